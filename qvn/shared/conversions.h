// The conversions between texts, numbers and variants. Each fails as told here and never gives a default.
//
// Texts are read in the forms of the locale: the plain number, with an exponent too ("1,5E+20"), the form of the
// pattern "Currency", blanks around and between the parts, the symbol on either side, the sign before or behind or
// brackets. A decimal sign may stand first or last. Grouping signs must stand where groups of three end, behind a first
// group that does not begin with 0: "1.2" and "0.123" are no numbers. Each digit counts, however many there are. A text
// that is no number, the empty text included, is a "type mismatch" whose message quotes it; a number too large for its
// target is an "overflow". A double that is infinite is an "overflow" too, and one that is no number a "type mismatch";
// as a double it stays what it is, and as a boolean an infinite one is true.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qvn/shared/currency.h"
#include "qvn/shared/decimal.h"
#include "qvn/shared/locale.h"
#include "qvn/shared/variant.h"

namespace qvn {

/// Rounds to four decimals, ties to even.
Currency toCurrency(std::string_view text, const Locale& locale);
/// Rounds the value's 15 significant digits to four decimals, ties to even. Fails with "overflow" beyond the range.
Currency toCurrency(double value);

/// The double nearest to the text's number.
double toDouble(std::string_view text, const Locale& locale);
/// The nearest double.
double toDouble(Currency amount);

/// Exact as far as 28 decimals and 96 bits reach; further decimals round, ties to even.
Decimal toDecimal(std::string_view text, const Locale& locale);

/// Round to a whole number, ties to even: 2,5 gives 2 and 3,5 gives 4.
std::uint8_t toByte(std::string_view text, const Locale& locale);
std::int16_t toInt16(std::string_view text, const Locale& locale);
std::int32_t toInt32(std::string_view text, const Locale& locale);
/// Round the value's 15 significant digits likewise.
std::int16_t toInt16(double value);
std::int32_t toInt32(double value);

/// Whether the conversions above would take the text as a number.
bool isNumber(std::string_view text, const Locale& locale);

/// The longest number at the start of the text, behind optional blanks, with the point as its only decimal sign, in
/// any locale; 0 if there is none. An exponent counts where it has digits ("1e3"). Never fails: "12.5%)" gives 12.5,
/// "12,50" gives 12, and what is beyond the range gives the largest double.
double leadingNumber(std::string_view text);

/// The variant's value as the target's type: std::string, Currency, Decimal, double, std::uint8_t, std::int16_t,
/// std::int32_t, bool, Date, CurrencyArray or Variant itself.
///
/// Null fails with "invalid use of null"; Empty gives "" or 0; a text is parsed as above; true is -1 as a number, and
/// as a boolean zero is false, any other number true, "True" and "False" in any case what they say; a date counts its
/// days, and a number as a date is so many days, its decimals (a double's among its 15 significant digits) dropped; a
/// text as a date is "dd/mm/yyyy" or "0.00.00". As text, numbers and dates give their general text, a boolean "True" or
/// "False". A number out of range is an "overflow"; what cannot become the target, an array as anything else or
/// anything else as an array, or an object as anything but a variant, is a "type mismatch".
template <class Target>
Target as(const Variant& value, const Locale& locale);

template <>
std::string as<std::string>(const Variant& value, const Locale& locale);
template <>
Currency as<Currency>(const Variant& value, const Locale& locale);
template <>
Decimal as<Decimal>(const Variant& value, const Locale& locale);
template <>
double as<double>(const Variant& value, const Locale& locale);
template <>
std::uint8_t as<std::uint8_t>(const Variant& value, const Locale& locale);
template <>
std::int16_t as<std::int16_t>(const Variant& value, const Locale& locale);
template <>
std::int32_t as<std::int32_t>(const Variant& value, const Locale& locale);
template <>
bool as<bool>(const Variant& value, const Locale& locale);
template <>
Date as<Date>(const Variant& value, const Locale& locale);
template <>
CurrencyArray as<CurrencyArray>(const Variant& value, const Locale& locale);
template <>
Variant as<Variant>(const Variant& value, const Locale& locale);

/// The text followed by the value's text; Null and Empty add nothing.
std::string concatenated(std::string_view text, const Variant& value, const Locale& locale);

}  // namespace qvn
