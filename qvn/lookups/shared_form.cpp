#include "qvn/lookups/shared_form.h"

#include <string>
#include <utility>

#include "qvn/fields/skip_failing.h"
#include "qvn/shared/Globale.h"
#include "qvn/toolkit/platform.h"
#include "qvn/toolkit/surface.h"

namespace qvn::lookups {

namespace {

/// Set while it lives.
class Raised {
 public:
  explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
  ~Raised() { flag_ = false; }
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;

 private:
  bool& flag_;
};

}  // namespace

SharedForm::SharedForm(const toolkit::FormLayout& layout) : form_(Globale::platform().makeForm(layout, *this)) {}

SharedForm::~SharedForm() {
  // Here, while form() still gives it to its Unload.
  fields::skipFailing([&] { form_->unload(); });
}

void SharedForm::load() {
  if (shown_) throw Failure(FailureKind::InvalidCall, std::string(form_->Name()).append(": it is shown already"));
  form_->load();
}

void SharedForm::show() {
  {
    const Raised shown(shown_);
    form_->showModal();
  }
  if (const auto failure = std::exchange(failure_, {})) {
    form_->unload();
    throw Failure(*failure);
  }
}

void SharedForm::handlerFailed(toolkit::Surface& panel, toolkit::Widget& widget, std::string_view event,
                               const Failure& failure) noexcept {
  if (failure_) return;
  failure_ = failure.within(std::string(panel.name()).append(".").append(widget.Name()).append(" ").append(event));
}

}  // namespace qvn::lookups
