// The numbers that widgets show, read back from their texts.
#pragma once

#include <cstdint>

#include "qvn/shared/currency.h"
#include "qvn/shared/decimal.h"
#include "qvn/toolkit/widget.h"

namespace qvn::fields {

/// What the widget's text or caption says as a number, in any form of the locale. Each fails with "type mismatch" if it
/// is no number and with "overflow" if it is out of range, naming the widget.
Currency currencyOf(const toolkit::TextBox& box);
Currency currencyOf(const toolkit::Label& label);
Decimal decimalOf(const toolkit::TextBox& box);
double doubleOf(const toolkit::TextBox& box);
/// From 0 to 255.
std::uint8_t byteOf(const toolkit::TextBox& box);
std::int16_t int16Of(const toolkit::TextBox& box);
std::int16_t int16Of(const toolkit::Label& label);
std::int32_t int32Of(const toolkit::Label& label);

}  // namespace qvn::fields
