// What the program was asked for on its command line.
#pragma once

#include <span>
#include <stdexcept>
#include <string>

namespace office {

/// How the database stores amounts: by SQLite's NUMERIC, REAL or TEXT affinity.
enum class Storage { numeric, real, text };

struct Options {
  std::string file;
  int scale = 1;
  Storage storage = Storage::numeric;
  bool force = false;
  bool help = false;
};

/// The largest scale: beyond it the clients' codes would outgrow their six characters.
inline constexpr int maxScale = 250;

/// A command line that asks for nothing sensible; the message names the offending argument.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

extern const char* const usage;

/// Reads the arguments behind the program's name. Fails with UsageError.
Options readOptions(std::span<const char* const> arguments);

}  // namespace office
