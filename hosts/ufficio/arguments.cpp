#include "hosts/ufficio/arguments.h"

#include <string_view>

namespace qvn::ufficio {

const char* const kUsage =
    R"(usage: qvn-ufficio [DATABASE] [--screen NAME] [--picture FOLDER] [--dark] [--state FILE]

The sample office: a window with its screens and their records, which are changed and stored.

  DATABASE          its database, as qvn-campione writes it; ufficio.db if not said
  --screen NAME     the screen to begin with; the one shown last, or the first, if not said
  --picture FOLDER  write a picture of each screen with a record into FOLDER, as NAME.png, and end
  --dark            in dark colours
  --state FILE      where the window's place and last screen are kept; the user's settings if not said
  --help            this text

exit status:
  0  the window was closed, or all pictures are written
  1  a picture cannot be written, or a screen has no record to show
  2  the command line was wrong
  3  there is no display to open a window on
)";

Arguments argumentsOf(std::span<char* const> words) {
  Arguments arguments;
  bool named = false;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string_view word = words[i];
    const auto value = [&] {
      if (i + 1 == words.size()) throw WrongUsage(std::string(word).append(" needs a value"));
      const std::string_view given = words[++i];
      if (given.empty()) throw WrongUsage(std::string(word).append(" needs a value that is not empty"));
      return given;
    };
    if (word == "--help") {
      arguments.help = true;
    } else if (word == "--dark") {
      arguments.dark = true;
    } else if (word == "--state") {
      arguments.state = value();
    } else if (word == "--screen") {
      arguments.screen = value();
    } else if (word == "--picture") {
      arguments.pictures = value();
    } else if (word.starts_with("-")) {
      throw WrongUsage(std::string("unknown option ").append(word));
    } else if (word.empty()) {
      throw WrongUsage("the name of a database is empty");
    } else if (named) {
      throw WrongUsage("one database at a time: " + arguments.database + " and " + std::string(word));
    } else {
      arguments.database = word;
      named = true;
    }
  }
  return arguments;
}

}  // namespace qvn::ufficio
