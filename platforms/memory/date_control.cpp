#include "platforms/memory/date_control.h"

#include "platforms/memory/usable.h"
#include "qvn/fields/date_mask.h"
#include "qvn/shared/failure.h"

namespace qvn::memory {

DateControl::DateControl(const Making& making) : Editable(making) {
  const std::string_view text = making.layout.caption.empty() ? fields::kBlankDate : making.layout.caption;
  if (!fields::fitsDateMask(text, true)) refuse(text);
  buffer().set(text);
}

void DateControl::Text(std::string_view text) {
  if (!fields::fitsDateMask(text, true)) refuse(text);
  write(text);
}

Variant DateControl::Value() const {
  if (Text() == fields::kBlankDate) return Null{};
  return Text();
}

void DateControl::Value(const Variant& value) {
  if (isNull(value)) {
    write(fields::kBlankDate);
  } else if (const auto* text = std::get_if<std::string>(&value); text == nullptr) {
    refuse(kindName(value));
  } else if (!fields::fitsDateMask(*text, false)) {
    refuse(*text);
  } else {
    write(*text);
  }
}

void DateControl::refuse(std::string_view what) const {
  throw Failure(FailureKind::TypeMismatch,
                fullName(*this).append(": \"").append(what).append("\" is no date text in the form dd/mm/yyyy"));
}

}  // namespace qvn::memory
