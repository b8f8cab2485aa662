// A panel on a screen, and the container that it is placed in.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "component/classes.h"
#include "component/object.h"
#include "component/screen_object.h"
#include "component/subscription.h"
#include "qvn/toolkit/panel.h"

namespace qvn::component {

class PanelObject final : public Object, private toolkit::Container {
 public:
  static constexpr const char* kKind = "panel";

  /// What the making of the panel fails with passes on.
  PanelObject(const ComponentClass& made, ScreenObject& screen, std::string name);

  std::string_view className() const override { return class_.name; }
  const MemberList& members() const override { return class_.members; }
  std::string placeOf(std::string_view member) const override {
    return std::string(panel_->surface().name()).append(".").append(member);
  }
  Variant get(std::string_view name) override { return getByName(*panel_, name); }
  void let(std::string_view name, const Variant& value) override { letByName(*panel_, name, value); }
  Variant call(std::string_view name, std::span<Variant> arguments) override {
    return callByName(*panel_, name, arguments);
  }

  toolkit::Surface& surface() const { return panel_->surface(); }
  ScreenObject& screen() const { return *screen_; }

  /// A property has changed: its name.
  Handlers<const char*>& changed() { return changed_; }
  /// A handler has failed: its widget and event, and with what.
  Handlers<const char*, const char*, const Failure&>& failed() { return failed_; }

 private:
  void PropertyChanged(toolkit::Surface& panel, std::string_view name) override;
  void handlerFailed(toolkit::Surface& panel, toolkit::Widget& widget, std::string_view event,
                     const Failure& failure) noexcept override;
  void drop() noexcept override { panel_.reset(); }

  const ComponentClass& class_;
  Reference<ScreenObject> screen_;
  Handlers<const char*> changed_;
  Handlers<const char*, const char*, const Failure&> failed_;
  std::unique_ptr<Panel> panel_;
};

}  // namespace qvn::component
