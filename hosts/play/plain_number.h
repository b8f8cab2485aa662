// Exact numbers as plain texts: "-1234.5600", the point as decimal sign, no grouping.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "qvn/shared/currency.h"
#include "qvn/shared/decimal.h"

namespace qvn::play {

/// Nothing if the text is no plain number, has more than four decimals or is out of range.
std::optional<Currency> currencyOfPlain(std::string_view text);
/// Nothing if the text is no plain number, has more than 28 decimals or needs more than 96 bits. "12.50" keeps its
/// scale of 2.
std::optional<Decimal> decimalOfPlain(std::string_view text);

/// With four decimals: "1234.5600".
std::string plainText(Currency amount);
/// With as many decimals as its scale.
std::string plainText(const Decimal& value);

}  // namespace qvn::play
