// The widgets of one panel, or of the inside of a form, on the screen.
#pragma once

#include <QWidget>
#include <unordered_map>

#include "platforms/memory/surface.h"
#include "platforms/qt/form_window.h"
#include "platforms/qt/view.h"

namespace qvn::qt {

/// Of a fixed size, for a host to put into any layout or window.
class PanelWidget final : public QWidget {
 public:
  PanelWidget(Screen& screen, memory::Surface& surface);
  ~PanelWidget() override;

  /// Null once the surface is gone.
  memory::Surface* surface() const { return surface_; }
  View* viewOf(const toolkit::Widget& widget) const;
  /// Shows the flags of the panel itself.
  void showFlags();
  /// Gives the focus to what follows in the window, or stands before, as Qt goes about it. False if there is nothing.
  bool passFocusOn(bool forwards) { return focusNextPrevChild(forwards); }
  /// The surface goes.
  void detach();
  const std::unordered_map<const toolkit::Widget*, View*>& views() const { return views_; }
  /// The window around the form that this is the inside of; null until it is first shown.
  FormWindow* formWindow() const { return window_; }
  void formWindow(FormWindow& window) { window_ = &window; }

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void make(toolkit::Widget& widget, const QString& spokenName);
  void setOrder();

  Screen& screen_;
  memory::Surface* surface_;
  std::unordered_map<const toolkit::Widget*, View*> views_;
  FormWindow* window_ = nullptr;
};

}  // namespace qvn::qt
