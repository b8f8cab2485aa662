// Adding records and rows.
#pragma once

#include "hosts/ufficio/record_desk.h"

namespace qvn::ufficio {

/// Adds what can be added at the screen, and lets the operator type into it. Where its new records are found among the
/// others, lists those instead. False where it came to nothing, as the notice tells, or the operator has wanted to
/// stay.
bool addAt(RecordDesk& desk);

}  // namespace qvn::ufficio
