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
  /// The surface goes.
  void detach();
  /// The window around the form that this is the inside of; none as long as it was not shown.
  FormWindow* window = nullptr;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void make(toolkit::Widget& widget);
  void setOrder();

  Screen& screen_;
  memory::Surface* surface_;
  std::unordered_map<const toolkit::Widget*, View*> views_;

 public:
  const std::unordered_map<const toolkit::Widget*, View*>& views() const { return views_; }
};

}  // namespace qvn::qt
