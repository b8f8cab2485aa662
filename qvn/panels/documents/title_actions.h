// What may be done with an outstanding title in each of its states.
#pragma once

#include <string>

#include "qvn/shared/variant.h"
#include "qvn/toolkit/widget.h"

namespace qvn::documents {

/// Shows the state of a letter, exact in case: "A" "ANNULLATA", "I" "INCASSATA", "C" "COPERTA", "S" "SOSPESA", "N" "NON
/// INCASSABILE". Any other value leaves the state that is shown.
void showState(toolkit::Label& state, const Variant& letter);

/// Fills the list anew with what the shown state offers, the blank item first, which does nothing to a title; nothing
/// is offered without a state. Then selects the action of a letter, exact in case: "A" "ANNULLA", "R" "RIATTIVA", "I"
/// "INCASSA", "C" "COPRI"; no item for any other value. An action that is not on offer fails with "invalid call",
/// naming the list; the list stands then with no current item.
void offerActions(toolkit::ComboBox& actions, const toolkit::Label& state, const Variant& letter);

/// The letter of the current action; empty for the blank item and for none.
std::string chosenAction(const toolkit::ComboBox& actions);

/// Takes "ANNULLA" out of the list, unless it is chosen already. Each item is selected on the way up to the one that
/// goes, and the choice from before again at the end, each with its Click. What fails is passed over.
void withdrawCancelling(toolkit::ComboBox& actions);

}  // namespace qvn::documents
