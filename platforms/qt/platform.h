// Panels on real widgets, those of Qt 6.
#pragma once

#include <QWidget>

#include "platforms/memory/platform.h"
#include "platforms/qt/application.h"
#include "platforms/qt/hands.h"
#include "platforms/qt/screen.h"

namespace qvn::qt {

/// The widgets in memory, each with a Qt widget that shows it and brings it what a person does. So all is in place the
/// moment that it is written, and on the screen when the person's hand has finished or the event loop comes round.
///
/// Without a QApplication one is made. To be used from its thread alone. No exception leaves an event handler: what is
/// no failure of the library goes to the container as one of the kind "invalid call".
class Platform : public memory::Platform {
 public:
  explicit Platform(Display display = Display::Desktop);
  ~Platform() override;

  std::string_view name() const override { return "qt"; }
  /// The primary screen's.
  toolkit::ScreenSize screen() const override;
  void beep() override;

  /// The panel's widget, which a host puts into any layout or window. It goes with the surface, and if it goes before,
  /// with a window that it was placed in, the next call makes another. "invalid call" on a panel of another platform.
  QWidget& widgetOf(toolkit::Surface& surface);
  /// The Qt widget that shows one of a panel's; null if the panel's has gone with what it was placed in.
  QWidget* widgetOf(const toolkit::Widget& widget) const;

  /// An operator who is a program. A form that is shown modally waits for a person, unless something was laid down for
  /// it; off-screen, where there is none, it does not wait, as long as it is not told to.
  Hands& hands() { return hands_; }
  void formsWait(bool wait) { screen_.waits(wait); }
  /// Whether panels that no host has placed stand as windows of their own; to begin with they do not.
  void panelsAreWindows(bool windows) { screen_.panelsAreWindows(windows); }
  /// Shows at once what has changed.
  void settle() { screen_.settle(); }

 private:
  /// Before the screen, which needs it.
  struct Application {
    explicit Application(Display display) { ensureApplication(display); }
  };

  Application application_;
  Screen screen_;
  Hands hands_;
};

/// One on Qt's own display, where programs are the operators.
class OffscreenPlatform final : public Platform {
 public:
  OffscreenPlatform() : Platform(Display::Offscreen) {}
};

}  // namespace qvn::qt
