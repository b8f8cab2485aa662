#include "qvn/fields/list_field.h"

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/text_field.h"

namespace qvn::fields {

void wire(toolkit::ComboBox& list, std::string_view property) {
  list.Click = [&list, property] { announce(list, property); };
  list.GotFocus = [&list] { Gest_SCHEDE::ColoreFuoco(list, Gest_SCHEDE::kFocused); };
  list.LostFocus = [&list] { Gest_SCHEDE::ColoreFuoco(list, Gest_SCHEDE::kAtRest); };
}

}  // namespace qvn::fields
