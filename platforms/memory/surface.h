// A panel's surface in memory.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <new>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "platforms/memory/turns.h"
#include "platforms/operator.h"
#include "qvn/toolkit/container.h"
#include "qvn/toolkit/surface.h"

namespace qvn::memory {

class Platform;

/// The widgets of one panel, made in one piece of memory.
class Surface final : public toolkit::Surface, public Turns::Lasting {
 public:
  /// One of a form, told by what lives as long as the form, is hidden to begin with.
  Surface(Platform& platform, const toolkit::PanelLayout& layout, toolkit::Container& container, std::string name,
          const std::shared_ptr<const void>& form = {});
  ~Surface() override;
  /// Dropping a surface takes the focus from its widgets and raises nothing; inside a handler its memory stays until
  /// the outermost handler has returned.
  void operator delete(Surface* surface, std::destroying_delete_t);

  /// Makes the widgets of the layout, once. "invalid call", naming the widget, on a kind that the platform does not
  /// have, a frame that no row above has made, or a starting text that the widget cannot show.
  void makeWidgets();

  toolkit::Platform& platform() const override;
  toolkit::Container& container() const override { return container_; }
  const toolkit::PanelLayout& layout() const override { return layout_; }
  std::string_view name() const override { return name_; }
  std::span<toolkit::Widget* const> widgets() const override { return widgets_; }
  bool Visible() const override { return visible_; }
  void Visible(bool visible) override;
  bool Enabled() const override { return enabled_; }
  void Enabled(bool enabled) override;
  /// For a surface whose widgets lose the focus by other means.
  void hideWithoutEvents();

  bool dropped() const override { return dropped_; }

  bool isOfForm() const { return ofForm_; }
  /// Whether a form stands on the screen before all that is not on it, and the surface is not that form's.
  bool isCovered() const;

  /// Runs a widget's handler, if it is set and the surface is not dropped.
  template <class... Args>
  void raise(const std::function<void(Args...)>& handler, std::type_identity_t<Args>... args) {
    if (!handler || dropped_) return;
    const Turn turn(turns());
    handler(std::forward<Args>(args)...);
  }

  /// Hands a failure that the operator's hand has caused to the container, unless the surface is dropped; that of a
  /// form that still lives hears of it then too.
  void report(toolkit::Widget& widget, std::string_view event, const Failure& failure) noexcept;

  /// Who hears what happens on the platform, or null.
  Watcher* watcher() const;

  /// Tells the stage, where there is one, that something of a widget has another value to show.
  void tell(const toolkit::Widget& widget) const;

  /// SetFocus of one of the widgets.
  void giveFocus(toolkit::Widget& widget);
  /// Takes the focus from its holder if that can no longer hold it, after a flag of this surface has changed.
  void checkFocus();

 private:
  void hold() override { turns().begin(); }
  void release() noexcept override { turns().end(); }

  Turns& turns() const;
  void tellFlags() const;
  toolkit::Frame* frameNamed(const toolkit::WidgetLayout& row) const;
  void destroy() noexcept override;

  Platform& platform_;
  const toolkit::PanelLayout& layout_;
  toolkit::Container& container_;
  std::string name_;
  std::unique_ptr<std::byte[]> memory_;
  std::vector<toolkit::Widget*> widgets_;  // made in memory_, in the order of the layout
  std::weak_ptr<const void> form_;
  bool ofForm_;
  bool visible_;
  bool enabled_ = true;
  bool dropped_ = false;
};

}  // namespace qvn::memory
