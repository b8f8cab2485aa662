// qvn-play, the session player.
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

#include "hosts/play/arguments.h"
#include "hosts/play/session.h"
#include "hosts/play/toolkits.h"
#include "platforms/sqlite/driver.h"

namespace {

using namespace qvn::play;

enum ExitStatus : int { kPlayed = 0, kRequestFailed = 1, kBadRequest = 2, kWrongUsage = 2, kUnreadable = 3 };

int complain(ExitStatus status, std::string_view message) {
  std::cerr << "qvn-play: " << message << '\n';
  return status;
}

bool isPassedOver(std::string_view line) {
  return line.starts_with('#') || line.find_first_not_of(" \t\r") == std::string_view::npos;
}

/// What the system said of the call that has just failed, if it said anything; errno was 0 before.
std::string cause() { return errno != 0 ? std::string(": ").append(std::strerror(errno)) : std::string(); }

/// Writes to standard output at once. Where that fails it is told, but a reader who has gone did so on purpose.
bool written(std::string_view text) {
  errno = 0;
  std::cout << text << std::flush;
  if (std::cout) return true;
  if (errno != EPIPE) complain(kUnreadable, "the answers cannot be written" + cause());
  return false;
}

std::string_view withoutByteOrderMark(std::string_view line) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  return line.starts_with(kMark) ? line.substr(kMark.size()) : line;
}

int play(std::istream& input, std::string_view inputName, Session& session, bool strict) {
  bool first = true;
  for (std::string read; std::getline(input, read); first = false) {
    const std::string_view line = first ? withoutByteOrderMark(read) : read;
    if (isPassedOver(line)) {
      session.passOver();
      continue;
    }
    const Answer answer = session.answer(line);
    if (!written(answer.dump(-1, ' ', false, Answer::error_handler_t::replace).append("\n"))) return kUnreadable;
  }
  if (input.bad()) return complain(kUnreadable, std::string("cannot read ").append(inputName));
  if (session.anyBadRequest()) return kBadRequest;
  return strict && session.anyFailed() ? kRequestFailed : kPlayed;
}

int play(const Arguments& arguments) {
  const std::unique_ptr<Toolkit> toolkit = makeToolkit(arguments.toolkit, arguments.today);
  if (!toolkit) {
    return complain(kWrongUsage, "no toolkit \"" + arguments.toolkit + "\" is built in; there is: " + toolkitNames());
  }
  const std::array<qvn::toolkit::Driver*, 1> drivers{&qvn::sqlite::driver()};
  Session session(*toolkit, drivers);
  if (arguments.file.empty()) return play(std::cin, "standard input", session, arguments.strict);

  std::error_code none;
  if (std::filesystem::is_directory(arguments.file, none)) {
    return complain(kUnreadable, "cannot read " + arguments.file + ": it is a folder");
  }
  errno = 0;
  std::ifstream file(arguments.file, std::ios::binary);
  if (!file) return complain(kUnreadable, "cannot read " + arguments.file + cause());
  return play(file, arguments.file, session, arguments.strict);
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  std::signal(SIGPIPE, SIG_IGN);  // writing tells it when nobody reads the answers
  try {
    const Arguments arguments = argumentsOf(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
    if (arguments.help) return written(kUsage) ? kPlayed : kUnreadable;
    return play(arguments);
  } catch (const WrongUsage& wrong) {
    return complain(kWrongUsage, std::string(wrong.what()) + "\n" + kUsage);
  } catch (const std::exception& unforeseen) {
    return complain(kUnreadable, unforeseen.what());
  }
}
