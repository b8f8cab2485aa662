// Variants as values of a known type.
#include <cmath>
#include <string>
#include <type_traits>

#include "qvn/shared/conversions.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/names.h"
#include "qvn/shared/number_targets.h"
#include "qvn/shared/patterns.h"
#include "qvn/shared/variant_numbers.h"

namespace qvn {

namespace {

[[noreturn]] void failToBecome(const Variant& value, std::string_view target) {
  throw Failure(FailureKind::TypeMismatch,
                std::string("a value of kind ").append(kindName(value)).append(" is no ").append(target));
}

void refuseNull(const Variant& value) {
  if (isNull(value)) throw Failure(FailureKind::InvalidUseOfNull, "Null has no value");
}

/// The value's number, or that of its text.
template <class Target>
Target asNumber(const Variant& value, const Locale& locale) {
  refuseNull(value);
  if (const auto* same = std::get_if<Target>(&value)) return *same;
  const auto* text = std::get_if<std::string>(&value);
  const VariantNumber number(value);
  const auto digits = text != nullptr ? digitsOf(*text, locale) : number.digits();
  if (!digits) {
    if (text != nullptr) failNoNumber(*text);
    failToBecome(value, "number");
  }
  const auto result = numberAs<Target>(*digits);
  if (!result) {
    failToFit(text != nullptr ? "the text " + quoted(*text) : formatValue(value, Pattern::General, locale),
              rangeName<Target>());
  }
  return *result;
}

}  // namespace

template <>
Currency as<Currency>(const Variant& value, const Locale& locale) {
  return asNumber<Currency>(value, locale);
}

template <>
Decimal as<Decimal>(const Variant& value, const Locale& locale) {
  return asNumber<Decimal>(value, locale);
}

template <>
double as<double>(const Variant& value, const Locale& locale) {
  return asNumber<double>(value, locale);
}

template <>
std::uint8_t as<std::uint8_t>(const Variant& value, const Locale& locale) {
  return asNumber<std::uint8_t>(value, locale);
}

template <>
std::int16_t as<std::int16_t>(const Variant& value, const Locale& locale) {
  return asNumber<std::int16_t>(value, locale);
}

template <>
std::int32_t as<std::int32_t>(const Variant& value, const Locale& locale) {
  return asNumber<std::int32_t>(value, locale);
}

template <>
bool as<bool>(const Variant& value, const Locale& locale) {
  refuseNull(value);
  if (const auto* on = std::get_if<bool>(&value)) return *on;
  if (const auto* number = std::get_if<double>(&value); number != nullptr && !std::isnan(*number)) return *number != 0;
  const VariantNumber number(value);
  if (number.digits()) return !number.digits()->isZero();
  const auto* text = std::get_if<std::string>(&value);
  if (text == nullptr) failToBecome(value, "boolean");
  if (sameName(*text, "True")) return true;
  if (sameName(*text, "False")) return false;
  const auto digits = digitsOf(*text, locale);
  if (!digits) throw Failure(FailureKind::TypeMismatch, "the text " + quoted(*text) + " is no boolean");
  return !digits->isZero();
}

template <>
Date as<Date>(const Variant& value, const Locale& locale) {
  refuseNull(value);
  if (const auto* date = std::get_if<Date>(&value)) return *date;
  if (const auto* text = std::get_if<std::string>(&value)) {
    if (*text == toText(Date())) return Date();
    if (const auto date = dateOf(*text)) return *date;
    throw Failure(FailureKind::TypeMismatch, "the text " + quoted(*text) + " is no date");
  }
  const VariantNumber number(value);
  if (!number.digits()) failToBecome(value, "date");
  const auto date = numberAs<Date>(*number.digits());
  if (!date) failToFit(formatValue(value, Pattern::General, locale), "a date (years 100 to 9999)");
  return *date;
}

template <>
std::string as<std::string>(const Variant& value, const Locale& locale) {
  refuseNull(value);
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  return formatValue(value, Pattern::General, locale);
}

template <>
CurrencyArray as<CurrencyArray>(const Variant& value, const Locale&) {
  refuseNull(value);
  if (const auto* array = std::get_if<CurrencyArray>(&value)) return *array;
  failToBecome(value, "array of currency");
}

template <>
Variant as<Variant>(const Variant& value, const Locale&) {
  return value;
}

std::string concatenated(std::string_view text, const Variant& value, const Locale& locale) {
  return std::string(text).append(formatValue(value, Pattern::General, locale));
}

}  // namespace qvn
