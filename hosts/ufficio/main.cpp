// qvn-ufficio, the sample office.
#include <QApplication>
#include <QScreen>
#include <QSettings>
#include <QtGlobal>
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "hosts/ufficio/arguments.h"
#include "hosts/ufficio/italian.h"
#include "hosts/ufficio/pictures.h"
#include "hosts/ufficio/register.h"
#include "hosts/ufficio/window.h"
#include "platforms/qt/platform.h"
#include "platforms/qt/texts.h"
#include "platforms/sqlite/driver.h"
#include "qvn/shared/Globale.h"

namespace {

using namespace qvn::ufficio;

enum ExitStatus : int { kClosed = 0, kPicturesMissing = 1, kWrongUsage = 2, kNoDisplay = 3 };

/// The library on its platform, for as long as it lives.
class Installed {
 public:
  explicit Installed(qvn::toolkit::Platform& platform) { qvn::Globale::install(platform); }
  ~Installed() { qvn::Globale::uninstall(); }
  Installed(const Installed&) = delete;
  Installed& operator=(const Installed&) = delete;
};

std::optional<std::size_t> numberOf(const std::string& screen) {
  if (screen.empty()) return {};
  const std::span<const ScreenClass> classes = screenClasses();
  const auto found = std::ranges::find(classes, screen, &ScreenClass::name);
  if (found != classes.end()) return static_cast<std::size_t>(found - classes.begin());
  std::string names;
  for (const ScreenClass& made : classes) names.append(names.empty() ? "" : ", ").append(made.name);
  throw WrongUsage("there is no screen " + screen + "; there is: " + names);
}

/// While one lives, the program ends with kNoDisplay where Qt would end it with an abort, as without a display.
class OpeningDisplay {
 public:
  OpeningDisplay() { before_ = qInstallMessageHandler(&hear); }
  ~OpeningDisplay() { qInstallMessageHandler(before_); }
  OpeningDisplay(const OpeningDisplay&) = delete;
  OpeningDisplay& operator=(const OpeningDisplay&) = delete;

 private:
  static void hear(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type != QtFatalMsg) return before_(type, context, message);
    std::cerr << "qvn-ufficio: there is no display to open a window on. " << message.toStdString() << std::endl;
    std::_Exit(kNoDisplay);
  }

  static inline QtMessageHandler before_ = nullptr;
};

std::unique_ptr<QSettings> stateFile(const std::string& file) {
  if (file.empty()) return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, "qvn", "ufficio");
  return std::make_unique<QSettings>(qvn::qt::shown(file), QSettings::IniFormat);
}

int run(const Arguments& arguments) {
  const std::optional<std::size_t> first = numberOf(arguments.screen);
  const bool window = arguments.pictures.empty();
  std::optional<OpeningDisplay> opening(std::in_place);
  qvn::qt::Platform platform(window ? qvn::qt::Display::Desktop : qvn::qt::Display::Offscreen);
  opening.reset();
  const ItalianDialogs italian;
  platform.drivers().add(qvn::sqlite::driver());
  const Installed installed(platform);
  Store store(arguments.database);
  Window office(platform, store, screenClasses());
  if (!window && arguments.dark) office.darken();
  if (!window) return writePictures(office, screenClasses(), arguments.pictures) ? kClosed : kPicturesMissing;
  const std::unique_ptr<QSettings> state = stateFile(arguments.state);
  office.keepStateIn(*state);
  if (arguments.dark) office.darken();
  if (first) office.chooseScreen(*first);
  if (office.screen() == nullptr) office.chooseScreen(0);
  constexpr QSize kFrame(16, 48);  // what a window manager puts around the window, about
  office.resize(office.size().boundedTo(office.QWidget::screen()->availableGeometry().size() - kFrame));
  office.show();
  office.chooser().focusFilter();
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const Arguments arguments = argumentsOf(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
    if (!arguments.help) return run(arguments);
    std::cout << kUsage;
    return kClosed;
  } catch (const WrongUsage& wrong) {
    std::cerr << "qvn-ufficio: " << wrong.what() << '\n' << kUsage;
    return kWrongUsage;
  } catch (const std::exception& unforeseen) {
    std::cerr << "qvn-ufficio: " << unforeseen.what() << '\n';
    return kPicturesMissing;
  }
}
