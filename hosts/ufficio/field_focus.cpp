#include "hosts/ufficio/field_focus.h"

namespace qvn::ufficio {

bool FieldFocus::leave() {
  failures_ = 0;
  chooser_.focusRecords();
  // In a window that is not the active one, no change of the focus is heard of.
  if (platform_.focused() != nullptr) attempt_("Il campo non si può lasciare", [this] { platform_.hands().leave(); });
  return failures_ == 0 && !leftBadly_;
}

void FieldFocus::goBack() {
  if (field_ != nullptr) field_->setFocus();
}

}  // namespace qvn::ufficio
