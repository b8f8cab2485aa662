// A date field in memory. It shows what programs write; digits typed over its mask leave it as it is.
#pragma once

#include "platforms/memory/editable.h"

namespace qvn::memory {

class DateControl final : public Editable<toolkit::DateControl> {
 public:
  /// "type mismatch", as for a write of Text, if the layout's text does not fit the mask; none is a blank field.
  explicit DateControl(const Making& making);

  using Editable::Text;
  /// Takes a text of the mask, with a digit or "#" in each place; any other is a "type mismatch" that quotes it.
  void Text(std::string_view text) override;

  Variant Value() const override;
  /// Takes a text of the mask with all digits in place, whether or not the calendar has the day, or Null; anything else
  /// is a "type mismatch".
  void Value(const Variant& value) override;

 private:
  [[noreturn]] void refuse(std::string_view what) const;
};

}  // namespace qvn::memory
