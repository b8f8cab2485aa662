// The surface of one panel: the list of its widgets, across its frames.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <utility>

#include "qvn/toolkit/widget.h"

namespace qvn::toolkit {

class Container;
class DataControl;
class DataGrid;
class ListView;
class Platform;

/// Made by a platform from a panel's layout, owned by the panel. Its widgets go with it, and the focus from them, and
/// nothing more is raised on it. It may be dropped inside any handler, its own widgets' among them: they keep their
/// memory until the outermost handler has returned. So a handler that has announced a change may still touch its
/// widgets, and never the panel's object, which the host may have dropped.
class Surface {
 public:
  virtual ~Surface() = default;
  Surface() = default;
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;

  virtual Platform& platform() const = 0;
  virtual Container& container() const = 0;
  virtual const PanelLayout& layout() const = 0;
  /// The host's name of this panel.
  virtual std::string_view name() const = 0;

  /// All widgets, in the order of the layout, which is the order of their making.
  virtual std::span<Widget* const> widgets() const = 0;

  /// Whether the host shows the panel and lets it be used. Hiding or disabling it takes the focus from its widgets.
  virtual bool Visible() const = 0;
  virtual void Visible(bool visible) = 0;
  virtual bool Enabled() const = 0;
  virtual void Enabled(bool enabled) = 0;

  /// The widget of that name, exact in case. Fails with "no such member", naming panel and widget, if there is none or
  /// it is of another kind.
  Widget& widget(std::string_view name) const;
  TextBox& textBox(std::string_view name) const;
  Label& label(std::string_view name) const;
  /// One of an indexed group of labels, which is laid out under the group's name and its index: "TAF(0)".
  Label& label(std::string_view group, std::int32_t index) const;
  ComboBox& comboBox(std::string_view name) const;
  CheckBox& checkBox(std::string_view name) const;
  Frame& frame(std::string_view name) const;
  CommandButton& button(std::string_view name) const;
  DateControl& date(std::string_view name) const;
  ListView& listView(std::string_view name) const;
  DataGrid& grid(std::string_view name) const;
  DataControl& dataControl(std::string_view name) const;

  /// Whether the surface was dropped and only its memory still stands. Nothing is raised or announced then.
  virtual bool dropped() const = 0;

  /// Takes what the handlers use beside the widgets, once. It lives as long as their memory, so that a handler may go
  /// on with it where the panel's own object is gone.
  template <class Object>
  Object& keep(std::unique_ptr<Object> object) {
    Object& kept = *object;
    kept_ = std::move(object);
    return kept;
  }

  /// While one lives, the surface's memory stands if it is dropped, as it does inside a handler. A member that goes on
  /// after a write which may be announced holds one.
  class Hold {
   public:
    explicit Hold(Surface& surface) : surface_(surface) { surface_.hold(); }
    ~Hold() { surface_.release(); }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

   private:
    Surface& surface_;
  };

 private:
  virtual void hold() = 0;
  virtual void release() noexcept = 0;

  std::shared_ptr<void> kept_;
};

}  // namespace qvn::toolkit
