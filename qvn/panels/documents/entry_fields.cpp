#include "qvn/panels/documents/entry_fields.h"

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/shared/patterns.h"

namespace qvn::documents {

void wireWithList(toolkit::TextBox& box, std::string_view property) {
  box.Change = [&box, property] { fields::announce(box, property); };
  fields::colourThenSelect(box, Gest_SCHEDE::kFocusedWithList);
  box.LostFocus = [&box] { Gest_SCHEDE::ColoreFuoco(box, Gest_SCHEDE::kAtRest); };
}

void wireCode(toolkit::TextBox& box, std::string_view property, lookups::ListFunction list, std::int16_t limit) {
  wireWithList(box, property);
  box.KeyPress = [&box, list, limit](std::int16_t& KeyAscii) {
    lookups::keyOrList(box, KeyAscii, list, Gest_SCHEDE::FiltroTesto, limit);
  };
}

}  // namespace qvn::documents
