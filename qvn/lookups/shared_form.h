// A form of the library, one in the process, from one modal showing to the next.
#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "qvn/toolkit/container.h"
#include "qvn/toolkit/form.h"

namespace qvn::lookups {

/// One form on the platform of the library, and the container of its handlers' failures: the first of them in a showing
/// is the failure of that showing, and one outside any is told to nobody. So it reaches the host by the way that the
/// form was opened: from a key or a button of a panel through the panel's container, from the host's own call as the
/// failure of that call.
class SharedForm final : toolkit::Container {
 public:
  /// The layout must live as long as the form. "invalid call" before the library is on a platform with forms.
  explicit SharedForm(const toolkit::FormLayout& layout);
  /// Unloads the form, if it is loaded.
  ~SharedForm() override;
  SharedForm(const SharedForm&) = delete;
  SharedForm& operator=(const SharedForm&) = delete;

  toolkit::Form& form() const { return *form_; }

  /// "invalid call" while the form is shown.
  void requireNotShown() const;
  /// Loads the form, to be filled and shown. "invalid call" while it is shown: what the operator looks at is not
  /// exchanged.
  void load();
  /// Shows the form until it hides or unloads. A handler's failure passes on from here, naming form, widget and event,
  /// and unloads the form, whose Unload may fail too: the first failure is the one that is told.
  void show();

 private:
  void PropertyChanged(toolkit::Surface& /*panel*/, std::string_view /*name*/) override {}
  void handlerFailed(toolkit::Surface& panel, toolkit::Widget& widget, std::string_view event,
                     const Failure& failure) noexcept override;

  std::optional<Failure>* failureOfShowing_ = nullptr;  // null while the form is not shown
  std::unique_ptr<toolkit::Form> form_;
};

}  // namespace qvn::lookups
