// The screen that panels are placed on, with the library on it.
#pragma once

#include "component/object.h"
#include "component/subscription.h"
#include "platforms/memory/platform.h"

namespace qvn::component {

/// One at a time, as the library is on one platform at a time. Panels keep it.
class ScreenObject final : public Object, private Watcher {
 public:
  static constexpr const char* kKind = "screen";

  /// "invalid call" while another lives.
  ScreenObject();
  ~ScreenObject() override;

  std::string_view className() const override { return kKind; }

  memory::Platform& platform() { return platform_; }
  Operator& hands() { return platform_.hands(); }
  /// The loaded form of a name. "no such member" if there is none.
  toolkit::Form& form(std::string_view name) const;

  /// What happens to forms: the form's name, and a QVN_FORM_….
  Handlers<const char*, std::int32_t>& forms() { return forms_; }

 private:
  void lostFocus(const toolkit::Widget&) override {}
  void gotFocus(const toolkit::Widget&) override {}
  void beeped() override {}
  void formLoaded(std::string_view form) override { tell(form, QVN_FORM_LOADED); }
  void formShown(std::string_view form) override { tell(form, QVN_FORM_SHOWN); }
  void formHidden(std::string_view form) override { tell(form, QVN_FORM_HIDDEN); }
  void formUnloaded(std::string_view form) override { tell(form, QVN_FORM_UNLOADED); }
  void tell(std::string_view form, std::int32_t event) const;
  /// Handlers are told nothing more: they would be lent an object that is going.
  void drop() noexcept override { platform_.watch(nullptr); }

  memory::Platform platform_;
  Handlers<const char*, std::int32_t> forms_;
};

}  // namespace qvn::component
