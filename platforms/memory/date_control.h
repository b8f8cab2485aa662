// A date field in memory, typed over its mask.
#pragma once

#include "platforms/memory/editable.h"
#include "qvn/fields/date_mask.h"

namespace qvn::memory {

class DateControl final : public Editable<toolkit::DateControl> {
 public:
  /// "type mismatch", as for a write of Text, if the layout's text does not fit the mask; none is a blank field.
  explicit DateControl(const Making& making);

  using Editable::Text;
  void Text(std::string_view text) override;

  Variant Value() const override;
  void Value(const Variant& value) override;

  /// Lets a hand edit the date. True if it shows another text now, for which Change is still to be raised.
  template <class Edit>
  bool edit(Edit&& byHand) {
    fields::DateEntry entry{.text = Text(), .start = SelStart(), .length = SelLength()};
    byHand(entry);
    const bool changed = buffer().set(entry.text);
    buffer().select(entry.start, entry.length);
    return changed;
  }

 private:
  [[noreturn]] void refuse(std::string_view what) const;
};

}  // namespace qvn::memory
