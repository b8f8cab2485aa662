// A date field in memory. It shows what programs write; digits typed over its mask leave it as it is.
#pragma once

#include "platforms/memory/editable.h"

namespace qvn::memory {

class DateControl final : public Editable<toolkit::DateControl> {
 public:
  /// "type mismatch", as for a write of Text, if the layout's text does not fit the mask; none is a blank field.
  explicit DateControl(const Making& making);

  using Editable::Text;
  void Text(std::string_view text) override;

  Variant Value() const override;
  void Value(const Variant& value) override;

 private:
  [[noreturn]] void refuse(std::string_view what) const;
};

}  // namespace qvn::memory
