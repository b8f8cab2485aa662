#include "platforms/memory/date_control.h"

#include "platforms/memory/usable.h"
#include "qvn/shared/date.h"
#include "qvn/shared/failure.h"

namespace qvn::memory {

namespace {

constexpr std::string_view kBlank = "##/##/####";

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Whether the text has the mask's separators, and in each other place a digit or, where allowed, the placeholder.
bool fitsMask(std::string_view text, bool placeholders) {
  if (text.size() != kBlank.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool fits = kBlank[i] == '/' ? text[i] == '/' : isDigit(text[i]) || (placeholders && text[i] == '#');
    if (!fits) return false;
  }
  return true;
}

}  // namespace

DateControl::DateControl(const Making& making) : Editable(making) {
  const std::string_view text = making.layout.caption.empty() ? kBlank : making.layout.caption;
  if (!fitsMask(text, true)) refuse(text);
  buffer().set(text);
}

void DateControl::Text(std::string_view text) {
  if (!fitsMask(text, true)) refuse(text);
  write(text);
}

Variant DateControl::Value() const {
  if (Text() == kBlank) return Null{};
  return Text();
}

void DateControl::Value(const Variant& value) {
  if (isNull(value)) {
    write(kBlank);
  } else if (const auto* text = std::get_if<std::string>(&value); text == nullptr) {
    refuse(kindName(value));
  } else if (!fitsMask(*text, false)) {
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
