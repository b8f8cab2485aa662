// Digits under the patterns of numbers, for the values that patterns.h knows.
#pragma once

#include "qvn/shared/digits.h"
#include "qvn/shared/locale.h"
#include "qvn/shared/patterns.h"

namespace qvn {

/// Whether a formatted text has room for the number: it has as many whole digits as the largest double, or fewer.
bool canWrite(const Digits& digits);

/// Writes digits that canWrite() under Currency or TwoDecimals; another pattern fails with "invalid call".
void write(FormattedText& text, const Digits& digits, Pattern pattern, const Locale& locale);

}  // namespace qvn
