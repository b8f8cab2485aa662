#include "platforms/qt/platform.h"

#include <QApplication>
#include <QScreen>
#include <string>

#include "platforms/qt/twips.h"
#include "qvn/shared/failure.h"

namespace qvn::qt {

Platform::Platform(Display display)
    : application_(display), screen_(*this), hands_(memory::Platform::hands(), screen_) {
  screen_.waits(QGuiApplication::platformName() != QLatin1String("offscreen"));
  show(&screen_);
}

Platform::~Platform() { show(nullptr); }

toolkit::ScreenSize Platform::screen() const {
  const QScreen* primary = QGuiApplication::primaryScreen();
  if (primary == nullptr) return memory::Platform::screen();
  const QSize size = primary->size();
  return {.width = twips(size.width(), static_cast<int>(primary->logicalDotsPerInchX())),
          .height = twips(size.height(), static_cast<int>(primary->logicalDotsPerInchY()))};
}

void Platform::beep() {
  memory::Platform::beep();
  QApplication::beep();
}

QWidget& Platform::widgetOf(toolkit::Surface& surface) {
  if (&surface.platform() != this) {
    throw Failure(FailureKind::InvalidCall, std::string(surface.name()).append(": it is a panel of another platform"));
  }
  return screen_.widgetOf(static_cast<memory::Surface&>(surface));
}

QWidget* Platform::widgetOf(const toolkit::Widget& widget) const {
  View* view = screen_.viewOf(widget);
  return view == nullptr ? nullptr : &view->widget();
}

}  // namespace qvn::qt
