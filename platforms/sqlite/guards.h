// What keeps a database from harm, and the host from waiting, whatever a statement says.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <sqlite3.h>

namespace qvn::sqlite {

/// How long a statement waits for a writer to finish. The host's user interface waits with it.
inline constexpr int kBusyMilliseconds = 1000;

/// The longest statement, in bytes.
inline constexpr std::size_t kLongestStatement = 65'536;
/// The longest single value that a statement may read or make, in bytes.
inline constexpr int kLongestValue = 1 << 20;
/// The longest pattern of Like, in bytes.
inline constexpr int kLongestPattern = 1'000;
/// The most that Like may have to compare: the lengths of pattern and text, multiplied.
inline constexpr std::size_t kMostCompared = std::size_t{1} << 26;
/// The most literals of a statement that are bound to its prepared form.
inline constexpr int kMostBound = 32;

/// Steps of the database's machine between two looks at the work done.
inline constexpr int kStepsPerLook = 100;

/// The most that one statement may take.
struct Bounds {
  /// Looks at its work: 100 million steps, several times what a sorted list of a million rows takes.
  std::int64_t looks = 1'000'000;
  /// From its first look on. The host's user interface waits as long.
  std::chrono::milliseconds time{10'000};
  /// Bytes, for sorting and grouping.
  std::int64_t memory = std::int64_t{1} << 29;
  /// Bytes, for the rows of its answer.
  std::size_t answer = std::size_t{1} << 28;
};

/// The work of the running statement, which stops it where it exceeds its bounds.
class Work {
 public:
  explicit Work(const Bounds& bounds) : bounds_(bounds) {}
  void start() { looks_ = 0; }
  /// Counts a look; true if the statement is to stop.
  bool exceeded();

 private:
  Bounds bounds_;
  std::int64_t looks_ = 0;
  std::chrono::steady_clock::time_point first_;
  std::int64_t memoryAtFirst_ = 0;
};

/// Puts all guards on a database, which then only reads. The work is watched from then on and must outlive it.
/// Fails with "database", with the reason alone, if the database cannot be read.
void guard(sqlite3& database, Work& work);

}  // namespace qvn::sqlite
