// What all widgets in memory have in common.
#pragma once

#include <cstdint>

#include "platforms/memory/surface.h"
#include "qvn/toolkit/platform.h"
#include "qvn/toolkit/widget.h"

namespace qvn::memory {

/// What a widget is made from. All of it outlives the widget.
struct Making {
  const toolkit::WidgetLayout& layout;
  Surface& surface;
  toolkit::Frame* frame;
};

/// The part of every widget's interface that does not depend on its kind.
template <class Interface>
class Common : public Interface {
 public:
  const toolkit::WidgetLayout& layout() const final { return layout_; }
  toolkit::Surface& owner() const final { return surface_; }
  toolkit::Frame* frame() const final { return frame_; }

  toolkit::Place place() const final { return place_; }
  void place(toolkit::Place place) final {
    place_ = place;
    tell();
  }

  bool Enabled() const final { return enabled_; }
  void Enabled(bool enabled) final {
    enabled_ = enabled;
    tell();
    surface_.checkFocus();
  }
  bool Visible() const final { return visible_; }
  void Visible(bool visible) final {
    visible_ = visible;
    tell();
    surface_.checkFocus();
  }

  std::uint32_t BackColor() const final { return back_; }
  void BackColor(std::uint32_t colour) final {
    back_ = colour;
    tell();
  }
  std::uint32_t ForeColor() const final { return fore_; }
  void ForeColor(std::uint32_t colour) final {
    fore_ = colour;
    tell();
  }

  void SetFocus() final { surface_.giveFocus(*this); }
  bool hasFocus() const final { return surface_.platform().focused() == this; }

 protected:
  /// With the back that widgets of its kind have.
  Common(const Making& making, std::uint32_t back)
      : layout_(making.layout),
        surface_(making.surface),
        frame_(making.frame),
        place_(making.layout.place),
        back_(making.layout.back.value_or(back)),
        fore_(making.layout.fore),
        enabled_(making.layout.enabled),
        visible_(making.layout.visible) {}

  Surface& surface() const { return surface_; }
  /// Tells the stage that the widget has another value to show.
  void tell() { surface_.tell(*this); }

 private:
  const toolkit::WidgetLayout& layout_;
  Surface& surface_;
  toolkit::Frame* frame_;
  toolkit::Place place_;
  std::uint32_t back_;
  std::uint32_t fore_;
  bool enabled_;
  bool visible_;
};

}  // namespace qvn::memory
