// qvn-play, the session player.
#include <array>
#include <cerrno>
#include <cstring>
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

int play(std::istream& input, std::string_view inputName, Session& session, bool strict) {
  std::string line;
  while (std::getline(input, line)) {
    if (isPassedOver(line)) continue;
    const Answer answer = session.answer(line);
    std::cout << answer.dump(-1, ' ', false, Answer::error_handler_t::replace) << std::endl;
    if (!std::cout) return complain(kUnreadable, "the answers cannot be written");
  }
  if (input.bad()) return complain(kUnreadable, std::string("cannot read ").append(inputName));
  if (session.anyBadRequest()) return kBadRequest;
  return strict && session.anyFailed() ? kRequestFailed : kPlayed;
}

int play(const Arguments& arguments) {
  const std::unique_ptr<Toolkit> toolkit = makeToolkit(arguments.toolkit);
  if (!toolkit) {
    return complain(kWrongUsage, "no toolkit \"" + arguments.toolkit + "\" is built in; there is: " + toolkitNames());
  }
  if (arguments.today) toolkit->today(*arguments.today);
  const std::array<qvn::toolkit::Driver*, 1> drivers{&qvn::sqlite::driver()};
  Session session(*toolkit, drivers);
  if (arguments.file.empty()) return play(std::cin, "standard input", session, arguments.strict);

  std::error_code none;
  if (std::filesystem::is_directory(arguments.file, none)) {
    return complain(kUnreadable, "cannot read " + arguments.file + ": it is a folder");
  }
  std::ifstream file(arguments.file, std::ios::binary);
  if (!file) return complain(kUnreadable, "cannot read " + arguments.file + ": " + std::strerror(errno));
  return play(file, arguments.file, session, arguments.strict);
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  try {
    const Arguments arguments = argumentsOf(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
    if (arguments.help) {
      std::cout << kUsage;
      return kPlayed;
    }
    return play(arguments);
  } catch (const WrongUsage& wrong) {
    return complain(kWrongUsage, std::string(wrong.what()) + "\n" + kUsage);
  }
}
