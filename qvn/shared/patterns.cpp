#include "qvn/shared/patterns.h"

#include <array>

#include "qvn/shared/conversions.h"
#include "qvn/shared/digits.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/names.h"
#include "qvn/shared/number_format.h"
#include "qvn/shared/number_targets.h"

namespace qvn {

namespace {

struct Named {
  std::string_view name;
  Pattern pattern;
};

constexpr std::array kPatterns{
    Named{"", Pattern::General},          Named{"Currency", Pattern::Currency},
    Named{"0.00", Pattern::TwoDecimals},  Named{"dd/mm/yyyy", Pattern::DayMonthYear},
    Named{"mm/yyyy", Pattern::MonthYear}, Named{"yyyy", Pattern::Year},
};

bool isOfDates(Pattern pattern) {
  return pattern == Pattern::DayMonthYear || pattern == Pattern::MonthYear || pattern == Pattern::Year;
}

char* putDigits(char* to, int number, int places) {
  for (int place = places; place-- > 0; number /= 10) to[place] = static_cast<char>('0' + number % 10);
  return to + places;
}

}  // namespace

Pattern patternNamed(std::string_view name) {
  for (const Named& known : kPatterns) {
    if (sameName(known.name, name)) return known.pattern;
  }
  throw Failure(FailureKind::InvalidCall, "no pattern is named " + quoted(name));
}

FormattedText format(Date date, Pattern pattern) {
  if (pattern != Pattern::General && !isOfDates(pattern)) {
    throw Failure(FailureKind::InvalidCall, "a date has no text under the pattern of a number");
  }
  FormattedText text;
  char* to = text.room();
  if (pattern == Pattern::General && date == Date()) {
    constexpr std::string_view kNoDate = "0.00.00";
    text.endAt(kNoDate.copy(to, kNoDate.size()) + to);
    return text;
  }
  if (pattern == Pattern::General || pattern == Pattern::DayMonthYear) {
    to = putDigits(to, date.day(), 2);
    *to++ = '/';
  }
  if (pattern != Pattern::Year) {
    to = putDigits(to, date.month(), 2);
    *to++ = '/';
  }
  text.endAt(putDigits(to, date.year(), 4));
  return text;
}

std::string formatText(std::string_view text, Pattern pattern, const Locale& locale) {
  if (isOfDates(pattern)) {
    if (const auto told = dateOf(text)) return format(*told, pattern).str();
    const auto digits = digitsOf(text, locale);
    const auto date = digits ? numberAs<Date>(*digits) : std::nullopt;
    return date ? format(*date, pattern).str() : std::string(text);
  }
  const auto digits = pattern == Pattern::General ? std::nullopt : digitsOf(text, locale);
  if (!digits || !canWrite(*digits)) return std::string(text);
  FormattedText written;
  write(written, *digits, pattern, locale);
  return written.str();
}

std::string formatValue(const Variant& value, Pattern pattern, const Locale& locale) {
  if (isNull(value) || isEmpty(value)) return {};
  if (const auto* text = std::get_if<std::string>(&value)) return formatText(*text, pattern, locale);
  if (std::holds_alternative<CurrencyArray>(value) || std::holds_alternative<EventsReference>(value)) {
    throw Failure(FailureKind::TypeMismatch,
                  std::string("a value of kind ").append(kindName(value)).append(" has no text"));
  }
  if (isOfDates(pattern)) return format(as<Date>(value, locale), pattern).str();
  if (const auto* date = std::get_if<Date>(&value)) return format(*date, pattern).str();
  if (const auto* amount = std::get_if<Currency>(&value)) return format(*amount, pattern, locale).str();
  if (const auto* number = std::get_if<double>(&value)) return format(*number, pattern, locale).str();
  if (const auto* decimal = std::get_if<Decimal>(&value)) return format(*decimal, pattern, locale).str();
  if (const auto* on = std::get_if<bool>(&value); on != nullptr && pattern == Pattern::General) {
    return *on ? "True" : "False";
  }
  return format(as<std::int32_t>(value, locale), pattern, locale).str();
}

}  // namespace qvn
