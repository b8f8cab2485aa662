#include "hosts/play/arguments.h"

#include <string_view>

#include "hosts/play/bad_request.h"
#include "hosts/play/values.h"

namespace qvn::play {

const char* const kUsage =
    R"(usage: qvn-play [--toolkit memory|qt] [--today YYYY-MM-DD] [--strict] [FILE]

Plays a session: reads one JSON object a line from FILE, or from standard input, does to real panels what it says, and
answers each with one JSON object on one line. Blank lines and lines that begin with # are passed over.

  --toolkit NAME       the widgets that the panels are made of: memory (the default), or qt, where it was built
  --today YYYY-MM-DD   the clock's date; without it the system's
  --strict             exit with 1 if any request failed
  --help               this text

exit status:
  0  the end of the session
  1  with --strict: a request failed
  2  a line was no JSON object or asked for something unknown; or the command line was wrong, and nothing was played
  3  FILE cannot be read, the answers cannot be written, or memory has run out
)";

namespace {

Date dateArgument(std::string_view text) {
  try {
    return dateOfIso(text);
  } catch (const BadRequest& bad) {
    throw WrongUsage(std::string("--today: ") + bad.what());
  }
}

}  // namespace

Arguments argumentsOf(std::span<char* const> words) {
  Arguments arguments;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string_view word = words[i];
    const auto value = [&] {
      if (i + 1 == words.size()) throw WrongUsage(std::string(word) + " needs a value");
      return std::string_view(words[++i]);
    };
    if (word == "--help") {
      arguments.help = true;
    } else if (word == "--strict") {
      arguments.strict = true;
    } else if (word == "--toolkit") {
      arguments.toolkit = value();
    } else if (word == "--today") {
      arguments.today = dateArgument(value());
    } else if (word.starts_with("-")) {
      throw WrongUsage("unknown option " + std::string(word));
    } else if (word.empty()) {
      throw WrongUsage("the name of a file is empty");
    } else if (!arguments.file.empty()) {
      throw WrongUsage("one session at a time: " + arguments.file + " and " + std::string(word));
    } else {
      arguments.file = word;
    }
  }
  return arguments;
}

}  // namespace qvn::play
