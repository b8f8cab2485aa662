// The player's command line.
#pragma once

#include <optional>
#include <span>
#include <stdexcept>
#include <string>

#include "qvn/shared/date.h"

namespace qvn::play {

struct Arguments {
  std::string toolkit = "memory";
  std::optional<Date> today;  ///< none: the system's date
  std::string file;           ///< empty: standard input
  bool strict = false;
  bool help = false;
};

/// A command line that the player does not understand; the message names the argument.
class WrongUsage : public std::runtime_error {
 public:
  explicit WrongUsage(const std::string& message) : std::runtime_error(message) {}
};

/// Reads the arguments, without the program's name. WrongUsage on one that is unknown, lacks its value or has a bad
/// one.
Arguments argumentsOf(std::span<char* const> words);

/// How the player is called, as --help tells it.
extern const char* const kUsage;

}  // namespace qvn::play
