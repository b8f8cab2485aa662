#include "qvn/lookups/shared_form.h"

#include <string>
#include <utility>

#include "qvn/fields/skip_failing.h"
#include "qvn/shared/Globale.h"
#include "qvn/toolkit/platform.h"
#include "qvn/toolkit/surface.h"

namespace qvn::lookups {

namespace {

/// Another value for as long as it lives, and then the former one again: a showing within a showing may be refused.
template <class Value>
class Meanwhile {
 public:
  Meanwhile(Value& place, Value value) : place_(place), former_(std::exchange(place, value)) {}
  ~Meanwhile() { place_ = former_; }
  Meanwhile(const Meanwhile&) = delete;
  Meanwhile& operator=(const Meanwhile&) = delete;

 private:
  Value& place_;
  Value former_;
};

}  // namespace

SharedForm::SharedForm(const toolkit::FormLayout& layout) : form_(Globale::platform().makeForm(layout, *this)) {}

SharedForm::~SharedForm() {
  // Here, while form() still gives it to its Unload.
  fields::skipFailing([&] { form_->unload(); });
}

void SharedForm::requireNotShown() const {
  if (failureOfShowing_ == nullptr) return;
  throw Failure(FailureKind::InvalidCall, std::string(form_->Name()).append(": it is shown already"));
}

void SharedForm::load() {
  requireNotShown();
  form_->load();
}

void SharedForm::show() {
  std::optional<Failure> failure;
  {
    const Meanwhile showing(failureOfShowing_, &failure);
    form_->showModal();
  }
  if (!failure) return;
  fields::skipFailing([&] { form_->unload(); });
  throw Failure(*failure);
}

void SharedForm::handlerFailed(toolkit::Surface& panel, toolkit::Widget& widget, std::string_view event,
                               const Failure& failure) noexcept {
  if (failureOfShowing_ == nullptr || *failureOfShowing_) return;
  *failureOfShowing_ =
      failure.within(std::string(panel.name()).append(".").append(widget.Name()).append(" ").append(event));
}

}  // namespace qvn::lookups
