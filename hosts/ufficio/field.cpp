#include "hosts/ufficio/field.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <limits>
#include <optional>
#include <string>

#include "qvn/shared/conversions.h"
#include "qvn/shared/database_numbers.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/patterns.h"

namespace qvn::ufficio {

namespace {

Variant numberOf(const Value& stored) {
  if (const auto* text = std::get_if<std::string>(&stored)) return toDecimal(*text, kDatabaseForm);
  if (const auto* fraction = std::get_if<double>(&stored)) return *fraction;
  const auto* whole = std::get_if<std::int64_t>(&stored);
  if (whole == nullptr) return std::int32_t{0};
  if (*whole < std::numeric_limits<std::int32_t>::min() || *whole > std::numeric_limits<std::int32_t>::max()) {
    return Decimal::of(*whole);
  }
  return static_cast<std::int32_t>(*whole);
}

int digits(std::string_view text) {
  int number = -1;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

/// The date of a text "yyyy-mm-dd".
std::optional<Date> dateOfStored(std::string_view text) {
  constexpr std::size_t kLength = 10;
  if (text.size() != kLength || text[4] != '-' || text[7] != '-') return {};
  return Date::of(digits(text.substr(8, 2)), digits(text.substr(5, 2)), digits(text.substr(0, 4)));
}

Date dayOf(const Value& stored) {
  const std::string text = textOf(stored);
  if (text.empty()) return {};
  if (const std::optional<Date> day = dateOfStored(text)) return *day;
  throw Failure(FailureKind::TypeMismatch, std::string("the text \"").append(text).append("\" is no date"));
}

Value storedDay(const Variant& given) {
  const auto* text = std::get_if<std::string>(&given);
  if (isNull(given) || isEmpty(given) || (text != nullptr && text->empty())) return {};
  const Date day = as<Date>(given, Locale());
  if (day == Date()) return {};
  std::array<char, 16> iso{};
  std::snprintf(iso.data(), iso.size(), "%04d-%02d-%02d", day.year() % 10000, day.month() % 100, day.day() % 100);
  return std::string(iso.data());
}

}  // namespace

Currency amountOf(const Value& stored) { return as<Currency>(numberOf(stored), kDatabaseForm); }

Value blank(Kind kind) {
  switch (kind) {
    case Kind::Text:
      return std::string();
    case Kind::Day:
      return {};
    case Kind::Number:
    case Kind::Amount:
    case Kind::Flag:
      break;
  }
  return std::int64_t{0};
}

Variant shown(const Value& stored, Kind kind) {
  switch (kind) {
    case Kind::Text:
      return textOf(stored);
    case Kind::Number:
      return numberOf(stored);
    case Kind::Amount:
      return amountOf(stored);
    case Kind::Flag:
      return as<bool>(numberOf(stored), kDatabaseForm);
    case Kind::Day:
      return dayOf(stored);
  }
  return {};
}

Value stored(const Variant& given, Kind kind) {
  switch (kind) {
    case Kind::Text:
      return as<std::string>(given, Locale());
    case Kind::Number:
      return std::int64_t{as<std::int32_t>(given, Locale())};
    case Kind::Amount:
      return format(as<Currency>(given, Locale()), Pattern::General, kDatabaseForm).str();
    case Kind::Flag:
      return std::int64_t{as<bool>(given, Locale()) ? 1 : 0};
    case Kind::Day:
      return storedDay(given);
  }
  return {};
}

}  // namespace qvn::ufficio
