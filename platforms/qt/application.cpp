#include "platforms/qt/application.h"

#include <QApplication>
#include <array>
#include <string>

namespace qvn::qt {

namespace {

/// What Qt keeps referring to for as long as its application stands.
struct CommandLine {
  std::string program = "qvn";
  std::string option = "-platform";
  std::string value = "offscreen";
  std::array<char*, 4> words{program.data(), option.data(), value.data(), nullptr};
  int count = 1;
};

}  // namespace

void ensureApplication(Display display) {
  if (QCoreApplication::instance() != nullptr) return;
  static CommandLine line;
  line.count = display == Display::Offscreen ? 3 : 1;
  if (display == Display::Desktop) line.words[1] = nullptr;
  static const auto* const application = new QApplication(line.count, line.words.data());
  static_cast<void>(application);
}

}  // namespace qvn::qt
