// The library's values as Qt's.
#pragma once

#include <QVariant>

#include "qvn/shared/variant.h"

namespace qvn::qt {

/// Numbers, booleans and texts are Qt's own; a currency and a decimal stay what they are, exact, and can be asked for
/// their text in the office's form; a date is a QDate, an array a list of currencies or of lists of them, a reference
/// to the event object an EventsReference; Empty is the invalid QVariant and Null one of nullptr.
QVariant toQt(const Variant& value);

/// The way back. An integer of more than 32 bits comes as a decimal, a list as an array of amounts. "type mismatch",
/// naming the type, on any other; "invalid call" on a list whose rows are not equally long.
Variant fromQt(const QVariant& value);

}  // namespace qvn::qt
