// The command line.
#pragma once

#include <span>
#include <stdexcept>
#include <string>

namespace qvn::ufficio {

extern const char* const kUsage;

struct Arguments {
  std::string database = "ufficio.db";
  std::string screen;    ///< empty for the first
  std::string pictures;  ///< the folder that they are written to; empty for a window
  std::string state;     ///< the file that the window's state is kept in; empty for the user's own
  bool dark = false;
  bool help = false;
};

class WrongUsage : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The words behind the program's name. Fails with WrongUsage.
Arguments argumentsOf(std::span<char* const> words);

}  // namespace qvn::ufficio
