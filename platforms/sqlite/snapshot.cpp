#include "platforms/sqlite/snapshot.h"

#include <cstdint>
#include <cstring>
#include <limits>
#include <utility>

#include "qvn/shared/failure.h"
#include "qvn/shared/names.h"

namespace qvn::sqlite {

namespace {

enum class Cell : char { Null, Integer, Real, Text, Binary };

using TextLength = std::uint32_t;

template <class Value>
void append(std::vector<char>& cells, Value value) {
  const auto* bytes = reinterpret_cast<const char*>(&value);
  cells.insert(cells.end(), bytes, bytes + sizeof value);
}

template <class Value>
Value valueAt(const char* place) {
  Value value;
  std::memcpy(&value, place, sizeof value);
  return value;
}

/// The bytes of the cell that begins at a place.
std::size_t sizeAt(const char* cell) {
  switch (valueAt<Cell>(cell)) {
    case Cell::Integer:
      return 1 + sizeof(std::int64_t);
    case Cell::Real:
      return 1 + sizeof(double);
    case Cell::Text:
      return 1 + sizeof(TextLength) + valueAt<TextLength>(cell + 1);
    default:
      return 1;
  }
}

std::string inQuotes(std::string_view name) { return std::string("\"").append(name).append("\""); }

Variant integer(std::int64_t value) {
  using Short = std::numeric_limits<std::int32_t>;
  if (value < Short::min() || value > Short::max()) return Decimal::of(value);
  return static_cast<std::int32_t>(value);
}

}  // namespace

void Snapshot::makeRoom() {
  constexpr std::size_t kUsualRow = 64;
  constexpr std::size_t kRun = std::size_t{1} << 18U;
  constexpr std::size_t kLargeRow = std::size_t{1} << 12U;  // beyond which a row may stretch its run
  if (rows_ == 0) last_.reserve(kUsualRow);
  if (last_.size() + kLargeRow <= kRun) return;
  fullBytes_ += last_.size();
  full_.push_back(std::move(last_));
  last_ = Run();
  last_.reserve(kRun);
}

void Snapshot::add(sqlite3_stmt* statement) {
  makeRoom();
  const int count = static_cast<int>(columns_->size());
  for (int i = 0; i < count; ++i) {
    switch (sqlite3_column_type(statement, i)) {
      case SQLITE_INTEGER:
        append(last_, Cell::Integer);
        append<std::int64_t>(last_, sqlite3_column_int64(statement, i));
        break;
      case SQLITE_FLOAT:
        append(last_, Cell::Real);
        append(last_, sqlite3_column_double(statement, i));
        break;
      case SQLITE_TEXT: {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, i));
        const auto length = static_cast<TextLength>(sqlite3_column_bytes(statement, i));
        if (text == nullptr) throw Failure(FailureKind::Database, "there is no memory for a text");
        const std::size_t place = last_.size();
        last_.resize(place + 1 + sizeof length + length);
        last_[place] = static_cast<char>(Cell::Text);
        std::memcpy(&last_[place + 1], &length, sizeof length);
        std::memcpy(&last_[place] + 1 + sizeof length, text, length);
        break;
      }
      case SQLITE_BLOB:
        append(last_, Cell::Binary);
        break;
      default:
        append(last_, Cell::Null);
        break;
    }
  }
  ++rows_;
  if (fullBytes_ + last_.size() > mostBytes_)
    throw Failure(FailureKind::Database, "it gives more rows than can be held");
}

void Snapshot::next() {
  if (atEnd()) throw Failure(FailureKind::Database, "there is no row behind the last one");
  const Run& run = current();
  for (std::size_t i = 0; i < columns_->size(); ++i) at_ += sizeAt(&run[at_]);
  ++row_;
  if (run_ == full_.size() || at_ < run.size()) return;
  full_[run_] = Run();
  ++run_;
  at_ = 0;
}

Variant Snapshot::value(std::string_view column) const {
  if (atEnd()) throw Failure(FailureKind::Database, "there is no row to read the column " + inQuotes(column) + " of");
  const char* cell = &current()[at_];
  for (const std::string& known : *columns_) {
    // Nearly every statement spells its columns as the library does, and comparing without case is slow.
    if (known != column && !sameName(known, column)) {
      cell += sizeAt(cell);
      continue;
    }
    switch (valueAt<Cell>(cell)) {
      case Cell::Integer:
        return integer(valueAt<std::int64_t>(cell + 1));
      case Cell::Real:
        return valueAt<double>(cell + 1);
      case Cell::Text:
        return Variant(std::in_place_type<std::string>, cell + 1 + sizeof(TextLength), valueAt<TextLength>(cell + 1));
      case Cell::Binary:
        throw Failure(FailureKind::Database, "the column " + inQuotes(column) + " holds a binary value");
      default:
        return Null{};
    }
  }
  std::string message = "the answer has no column " + inQuotes(column) + "; it has:";
  for (const std::string& known : *columns_) message.append(" ").append(inQuotes(known));
  throw Failure(FailureKind::Database, message);
}

}  // namespace qvn::sqlite
