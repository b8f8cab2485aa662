#include "qvn/shared/patterns.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "qvn/shared/conversions.h"
#include "tests/failure_matchers.h"
#include "tests/values/decimal_model.h"
#include "tests/values/italian.h"

namespace qvn {
namespace {

std::string shown(std::int64_t tenThousandths, Pattern pattern, const Locale& locale = kItalian) {
  return format(Currency::fromTenThousandths(tenThousandths), pattern, locale).str();
}

TEST(Patterns, AreNamedWithoutRegardToCase) {
  EXPECT_EQ(patternNamed(""), Pattern::General);
  EXPECT_EQ(patternNamed("Currency"), Pattern::Currency);
  EXPECT_EQ(patternNamed("CURRENCY"), Pattern::Currency);
  EXPECT_EQ(patternNamed("0.00"), Pattern::TwoDecimals);
  EXPECT_EQ(patternNamed("dd/mm/yyyy"), Pattern::DayMonthYear);
  EXPECT_EQ(patternNamed("DD/MM/YYYY"), Pattern::DayMonthYear);
  EXPECT_EQ(patternNamed("MM/YYYY"), Pattern::MonthYear);
  EXPECT_EQ(patternNamed("YYYY"), Pattern::Year);
  EXPECT_FAILURE(patternNamed("0.000"), FailureKind::InvalidCall, "\"0.000\"");
  EXPECT_FAILURE(patternNamed("Currency "), FailureKind::InvalidCall, "\"Currency \"");
}

TEST(Patterns, CurrencyIsTheFormOfTheLocale) {
  EXPECT_EQ(shown(0, Pattern::Currency), "€ 0,00");
  EXPECT_EQ(shown(100, Pattern::Currency), "€ 0,01");
  EXPECT_EQ(shown(9'990'000, Pattern::Currency), "€ 999,00");
  EXPECT_EQ(shown(10'000'000, Pattern::Currency), "€ 1.000,00");
  EXPECT_EQ(shown(12'345'600, Pattern::Currency), "€ 1.234,56");
  EXPECT_EQ(shown(-12'345'600, Pattern::Currency), "-€ 1.234,56");
  EXPECT_EQ(shown(1'234'567'890'000, Pattern::Currency), "€ 123.456.789,00");
  EXPECT_EQ(shown(std::numeric_limits<std::int64_t>::max(), Pattern::Currency), "€ 922.337.203.685.477,58");
  EXPECT_EQ(shown(std::numeric_limits<std::int64_t>::min(), Pattern::Currency), "-€ 922.337.203.685.477,58");
  EXPECT_EQ(shown(std::numeric_limits<std::int64_t>::min(), Pattern::TwoDecimals), "-922337203685477,58");
}

TEST(Patterns, TwoDecimalsHaveNoGrouping) {
  EXPECT_EQ(shown(0, Pattern::TwoDecimals), "0,00");
  EXPECT_EQ(shown(12'345'670'000, Pattern::TwoDecimals), "1234567,00");
  EXPECT_EQ(shown(-5'000, Pattern::TwoDecimals), "-0,50");
  EXPECT_EQ(shown(5'000, Pattern::TwoDecimals, {.decimalSign = '.', .groupingSign = ','}), "0.50");
}

TEST(Patterns, RoundTiesAwayFromZero) {
  EXPECT_EQ(shown(23'450, Pattern::TwoDecimals), "2,35");
  EXPECT_EQ(shown(-23'450, Pattern::TwoDecimals), "-2,35");
  EXPECT_EQ(shown(23'449, Pattern::TwoDecimals), "2,34");
  EXPECT_EQ(shown(50, Pattern::Currency), "€ 0,01");
  EXPECT_EQ(shown(-50, Pattern::Currency), "-€ 0,01");
  EXPECT_EQ(shown(49, Pattern::Currency), "€ 0,00");
  EXPECT_EQ(shown(9'999'950, Pattern::Currency), "€ 1.000,00");
  EXPECT_EQ(format(2.345, Pattern::TwoDecimals, kItalian).view(), "2,35");
  EXPECT_EQ(format(-2.345, Pattern::TwoDecimals, kItalian).view(), "-2,35");
  EXPECT_EQ(format(1.005, Pattern::TwoDecimals, kItalian).view(), "1,01");
  EXPECT_EQ(format(toDecimal("2,345", kItalian), Pattern::TwoDecimals, kItalian).view(), "2,35");
  EXPECT_EQ(format(toDecimal("2,34499999999999999999999999", kItalian), Pattern::TwoDecimals, kItalian).view(), "2,34");
  EXPECT_EQ(formatText("2,345", Pattern::TwoDecimals, kItalian), "2,35");
}

TEST(Patterns, WhatRoundsToZeroHasNoSign) {
  EXPECT_EQ(shown(-49, Pattern::Currency), "€ 0,00");
  EXPECT_EQ(shown(-49, Pattern::TwoDecimals), "0,00");
  EXPECT_EQ(format(-0.001, Pattern::Currency, kItalian).view(), "€ 0,00");
  EXPECT_EQ(format(-0.001, Pattern::TwoDecimals, kItalian).view(), "0,00");
  EXPECT_EQ(format(-0.0, Pattern::Currency, kItalian).view(), "€ 0,00");
  EXPECT_EQ(format(toDecimal("-0,001", kItalian), Pattern::Currency, kItalian).view(), "€ 0,00");
  EXPECT_EQ(formatText("-0,001", Pattern::Currency, kItalian), "€ 0,00");
  EXPECT_EQ(shown(-49, Pattern::Currency, {.negative = NegativeForm::Brackets}), "€ 0,00");
  EXPECT_EQ(shown(-4'999, Pattern::Currency, {.currencyDecimals = 0}), "€ 0");
}

TEST(Patterns, NegativeFormsStandWhereTheLocaleSays) {
  const auto minusOne = [](bool symbolFirst, NegativeForm form, std::string_view symbol = "€") {
    return shown(-10'000, Pattern::Currency, {.symbol = symbol, .symbolFirst = symbolFirst, .negative = form});
  };
  EXPECT_EQ(minusOne(true, NegativeForm::SignFirst), "-€ 1,00");
  EXPECT_EQ(minusOne(true, NegativeForm::SignAtNumber), "€ -1,00");
  EXPECT_EQ(minusOne(true, NegativeForm::Brackets), "(€ 1,00)");
  EXPECT_EQ(minusOne(false, NegativeForm::SignFirst), "-1,00 €");
  EXPECT_EQ(minusOne(false, NegativeForm::SignAtNumber), "1,00- €");
  EXPECT_EQ(minusOne(false, NegativeForm::Brackets), "(1,00 €)");
  EXPECT_EQ(minusOne(true, NegativeForm::SignFirst, ""), "-1,00");
  EXPECT_EQ(minusOne(false, NegativeForm::SignAtNumber, ""), "1,00-");
  // The pattern "0.00" knows no forms.
  EXPECT_EQ(shown(-10'000, Pattern::TwoDecimals, {.negative = NegativeForm::Brackets}), "-1,00");
}

TEST(Patterns, CurrencyHasTheLocalesDecimals) {
  constexpr std::int64_t kAmount = 12'345'678;  // 1.234,5678
  const char* expected[] = {"€ 1.235", "€ 1.234,6", "€ 1.234,57", "€ 1.234,568", "€ 1.234,5678"};
  for (std::uint8_t decimals = 0; decimals <= 4; ++decimals) {
    EXPECT_EQ(shown(kAmount, Pattern::Currency, {.currencyDecimals = decimals}), expected[decimals]);
    EXPECT_EQ(format(1234.5678, Pattern::Currency, {.currencyDecimals = decimals}).view(), expected[decimals]);
    EXPECT_EQ(formatText("1234,5678", Pattern::Currency, {.currencyDecimals = decimals}), expected[decimals]);
    EXPECT_EQ(shown(kAmount, Pattern::TwoDecimals, {.currencyDecimals = decimals}), "1234,57");
  }
}

TEST(Patterns, ALocaleThatCannotBeFails) {
  EXPECT_FAILURE(shown(1, Pattern::Currency, {.currencyDecimals = 5}), FailureKind::InvalidCall, "not 5");
  EXPECT_FAILURE(format(1.0, Pattern::Currency, {.currencyDecimals = 255}), FailureKind::InvalidCall, "not 255");
  for (char sign : {'0', '9', '-', '+', '(', ')', ' ', '\t', 'E', '\xA0'}) {
    EXPECT_FAILURE(shown(1, Pattern::Currency, {.decimalSign = sign}), FailureKind::InvalidCall, "is no decimal sign");
    if (sign == ' ') continue;
    EXPECT_FAILURE(shown(1, Pattern::Currency, {.groupingSign = sign}), FailureKind::InvalidCall,
                   "is no grouping sign");
  }
  EXPECT_FAILURE(shown(1, Pattern::Currency, {.decimalSign = '\0'}), FailureKind::InvalidCall, "of code 0");
  EXPECT_FAILURE(shown(1, Pattern::Currency, {.groupingSign = ','}), FailureKind::InvalidCall,
                 "the character \",\" is no grouping sign beside the decimal sign \",\"");
  for (const char* symbol : {"5x", "-", "+x", "(x", ")", " x", "\tx", "\u00A0x", "\u202Fx", ",", ".x"}) {
    EXPECT_FAILURE(shown(1, Pattern::Currency, {.symbol = symbol}), FailureKind::InvalidCall,
                   "the currency symbol \"" + std::string(symbol) + "\" begins with");
    EXPECT_EQ(shown(1, Pattern::TwoDecimals, {.symbol = symbol}), "0,00");
  }
  const std::string symbol(65, 'x');
  EXPECT_FAILURE(shown(1, Pattern::Currency, {.symbol = symbol}), FailureKind::InvalidCall, "longer than 64 bytes");
  EXPECT_EQ(shown(1, Pattern::Currency, {.symbol = std::string_view(symbol).substr(1)}), symbol.substr(1) + " 0,00");
}

TEST(Patterns, AMessageCutsTheSymbolAtACharacter) {
  std::string symbol(79, 'x');
  symbol += "€";
  EXPECT_FAILURE(shown(1, Pattern::Currency, {.symbol = symbol}), FailureKind::InvalidCall,
                 "the currency symbol \"" + std::string(79, 'x') + "…\" is longer than 64 bytes");
}

TEST(Patterns, ALocaleWithoutGrouping) {
  const Locale locale{.groupingSign = '\0'};
  EXPECT_EQ(shown(-12'345'678'900, Pattern::Currency, locale), "-€ 1234567,89");
  EXPECT_EQ(formatText("1234567,89", Pattern::Currency, locale), "€ 1234567,89");
  EXPECT_FALSE(isNumber("1.234", locale));
  EXPECT_FALSE(isNumber(std::string_view("1\0"
                                         "234",
                                         5),
                        locale));
}

TEST(Patterns, IntegersAndDecimalsToo) {
  EXPECT_EQ(format(1234567, Pattern::Currency, kItalian).view(), "€ 1.234.567,00");
  EXPECT_EQ(format(0, Pattern::TwoDecimals, kItalian).view(), "0,00");
  EXPECT_EQ(format(std::numeric_limits<std::int32_t>::min(), Pattern::TwoDecimals, kItalian).view(), "-2147483648,00");
  EXPECT_EQ(format(toDecimal("12,5", kItalian), Pattern::TwoDecimals, kItalian).view(), "12,50");
  EXPECT_EQ(format(toDecimal("-79228162514264337593543950335", kItalian), Pattern::Currency, kItalian).view(),
            "-€ 79.228.162.514.264.337.593.543.950.335,00");
  EXPECT_EQ(format(toDecimal("99999999999999999999,995", kItalian), Pattern::Currency, kItalian).view(),
            "€ 100.000.000.000.000.000.000,00");
  EXPECT_EQ(format(toDecimal("99999999999999999999,994", kItalian), Pattern::TwoDecimals, kItalian).view(),
            "99999999999999999999,99");
  EXPECT_EQ(format(toDecimal("0,0000000000000000000000000001", kItalian), Pattern::TwoDecimals, kItalian).view(),
            "0,00");
}

TEST(Patterns, LargeDoublesShowFifteenDigitsAndZeros) {
  EXPECT_EQ(format(1e15, Pattern::Currency, kItalian).view(), "€ 1.000.000.000.000.000,00");
  EXPECT_EQ(format(123456789012345678.0, Pattern::TwoDecimals, kItalian).view(), "123456789012346000,00");
  EXPECT_EQ(format(-1.5e20, Pattern::Currency, kItalian).view(), "-€ 150.000.000.000.000.000.000,00");
  const std::string largest = format(std::numeric_limits<double>::lowest(), Pattern::Currency, kItalian).str();
  EXPECT_EQ(largest.substr(0, 27), "-€ 179.769.313.486.231.00");
  EXPECT_EQ(largest.size(), std::string("-€ ").size() + 309 + 102 + 3);
  EXPECT_EQ(format(std::numeric_limits<double>::denorm_min(), Pattern::Currency, kItalian).view(), "€ 0,00");
}

TEST(Patterns, RandomDecimalsAgreeWithTheModel) {
  std::mt19937_64 random(96);
  for (int i = 0; i < 20'000; ++i) {
    const Decimal::Magnitude words{static_cast<std::uint32_t>(random()), static_cast<std::uint32_t>(random()),
                                   i % 3 == 0 ? 0 : static_cast<std::uint32_t>(random())};
    const Decimal value = Decimal::of(words, static_cast<int>(random() % 29), random() % 2 == 0);
    const test::Exact exact{value.negative(), test::wholeNumber(words), -value.scale()};
    const std::string units = test::inUnits(exact, 2, test::ModelTies::AwayFromZero);
    ASSERT_EQ(format(value, Pattern::TwoDecimals, kItalian).view(), test::written(units, 2, false));
  }
}

TEST(Patterns, DatesUnderTheirPatterns) {
  const Date date = *Date::of(5, 3, 2026);
  EXPECT_EQ(format(date, Pattern::DayMonthYear).view(), "05/03/2026");
  EXPECT_EQ(format(date, Pattern::MonthYear).view(), "03/2026");
  EXPECT_EQ(format(date, Pattern::Year).view(), "2026");
  EXPECT_EQ(format(date, Pattern::General).view(), "05/03/2026");
  EXPECT_EQ(format(*Date::of(1, 2, 345), Pattern::Year).view(), "0345");
}

TEST(Patterns, NumbersAndDatesHaveTheirOwn) {
  const Date date = *Date::of(5, 3, 2026);
  for (Pattern pattern : {Pattern::Currency, Pattern::TwoDecimals}) {
    EXPECT_FAILURE(format(date, pattern), FailureKind::InvalidCall, "a date has no text");
    EXPECT_FAILURE(formatValue(date, pattern, kItalian), FailureKind::InvalidCall, "a date has no text");
  }
  for (Pattern pattern : {Pattern::DayMonthYear, Pattern::MonthYear, Pattern::Year}) {
    EXPECT_FAILURE(format(1.5, pattern, kItalian), FailureKind::InvalidCall, "a number has no text");
    EXPECT_FAILURE(format(1, pattern, kItalian), FailureKind::InvalidCall, "a number has no text");
    EXPECT_FAILURE(format(Currency(), pattern, kItalian), FailureKind::InvalidCall, "a number has no text");
    EXPECT_FAILURE(format(Decimal(), pattern, kItalian), FailureKind::InvalidCall, "a number has no text");
  }
}

TEST(Patterns, WhatIsNoFiniteNumberFails) {
  for (Pattern pattern : {Pattern::Currency, Pattern::TwoDecimals}) {
    EXPECT_FAILURE(format(std::numeric_limits<double>::infinity(), pattern, kItalian), FailureKind::Overflow,
                   "infinite");
    EXPECT_FAILURE(format(std::numeric_limits<double>::quiet_NaN(), pattern, kItalian), FailureKind::TypeMismatch,
                   "no number");
  }
}

TEST(Patterns, ATextIsReadAsANumberWhereItCanBe) {
  EXPECT_EQ(formatText("1234,5", Pattern::Currency, kItalian), "€ 1.234,50");
  EXPECT_EQ(formatText("€ 1.234,50", Pattern::TwoDecimals, kItalian), "1234,50");
  EXPECT_EQ(formatText("-€ 1.234,50", Pattern::Currency, kItalian), "-€ 1.234,50");
  EXPECT_EQ(formatText("(1)", Pattern::Currency, kItalian), "-€ 1,00");
  EXPECT_EQ(formatText("0", Pattern::TwoDecimals, kItalian), "0,00");
  EXPECT_EQ(formatText("1,5E+3", Pattern::TwoDecimals, kItalian), "1500,00");
  // Digit for digit: these have more than a double's 15.
  EXPECT_EQ(formatText("922337203685477,5807", Pattern::Currency, kItalian), "€ 922.337.203.685.477,58");
  EXPECT_EQ(formatText("12345678901234567890,125", Pattern::TwoDecimals, kItalian), "12345678901234567890,13");
}

TEST(Patterns, ATextThatIsNoNumberPassesThrough) {
  for (const char* text : {"", " ", "abc", "1.2", "-", "€", "12,5%", "15/11/2026", "True"}) {
    EXPECT_EQ(formatText(text, Pattern::Currency, kItalian), text);
    EXPECT_EQ(formatText(text, Pattern::TwoDecimals, kItalian), text);
  }
}

TEST(Patterns, ATextIsReadAsADateUnderThePatternsOfDates) {
  EXPECT_EQ(formatText("15/11/2026", Pattern::DayMonthYear, kItalian), "15/11/2026");
  EXPECT_EQ(formatText("15/11/2026", Pattern::MonthYear, kItalian), "11/2026");
  EXPECT_EQ(formatText("15/11/2026", Pattern::Year, kItalian), "2026");
  for (const char* text : {"", "0.00.00", "31/02/2026", "12,5x", "##/##/####"}) {
    EXPECT_EQ(formatText(text, Pattern::DayMonthYear, kItalian), text);
  }
}

TEST(Patterns, ATextThatIsANumberCountsDaysUnderThePatternsOfDates) {
  EXPECT_EQ(formatText("45000", Pattern::DayMonthYear, kItalian), "15/03/2023");
  EXPECT_EQ(formatText("45.000,9", Pattern::MonthYear, kItalian), "03/2023");
  EXPECT_EQ(formatText("45000", Pattern::Year, kItalian), "2023");
  EXPECT_EQ(formatText("0", Pattern::DayMonthYear, kItalian), "30/12/1899");
  EXPECT_EQ(formatText("-1", Pattern::DayMonthYear, kItalian), "29/12/1899");
  for (const char* text : {"2958466", "-657435", "99999999999999999999"}) {
    EXPECT_EQ(formatText(text, Pattern::DayMonthYear, kItalian), text) << "no date is so far away";
  }
}

TEST(Patterns, ATextWithoutPatternStaysAsItIs) {
  for (const char* text : {"", "00120", "1.234,50", "€ 1", "15/11/2026"}) {
    EXPECT_EQ(formatText(text, Pattern::General, kItalian), text);
    EXPECT_EQ(formatValue(std::string(text), Pattern::General, kItalian), text);
  }
}

TEST(Patterns, AnyValueHasItsText) {
  struct Row {
    Variant value;
    const char *general, *currency, *twoDecimals;
  };
  for (const Row& row : {
           Row{Empty{}, "", "", ""},
           Row{Null{}, "", "", ""},
           Row{true, "True", "-€ 1,00", "-1,00"},
           Row{false, "False", "€ 0,00", "0,00"},
           Row{std::uint8_t{200}, "200", "€ 200,00", "200,00"},
           Row{std::int16_t{-1'234}, "-1234", "-€ 1.234,00", "-1234,00"},
           Row{std::int32_t{1'234'567}, "1234567", "€ 1.234.567,00", "1234567,00"},
           Row{1234.5, "1234,5", "€ 1.234,50", "1234,50"},
           Row{Currency::fromTenThousandths(12'345'000), "1234,5", "€ 1.234,50", "1234,50"},
           Row{Decimal::of({123450, 0, 0}, 2, false), "1234,5", "€ 1.234,50", "1234,50"},
           Row{std::string("1234,5"), "1234,5", "€ 1.234,50", "1234,50"},
           Row{std::string("x"), "x", "x", "x"},
       }) {
    EXPECT_EQ(formatValue(row.value, Pattern::General, kItalian), row.general) << kindName(row.value);
    EXPECT_EQ(formatValue(row.value, Pattern::Currency, kItalian), row.currency) << kindName(row.value);
    EXPECT_EQ(formatValue(row.value, Pattern::TwoDecimals, kItalian), row.twoDecimals) << kindName(row.value);
  }
  EXPECT_FAILURE(formatValue(CurrencyArray{}, Pattern::General, kItalian), FailureKind::TypeMismatch, "array");
}

TEST(Patterns, AnyValueUnderAPatternOfDates) {
  const auto shownAsDate = [](const Variant& value) { return formatValue(value, Pattern::DayMonthYear, kItalian); };
  EXPECT_EQ(shownAsDate(*Date::of(15, 11, 2026)), "15/11/2026");
  EXPECT_EQ(formatValue(*Date::of(15, 11, 2026), Pattern::General, kItalian), "15/11/2026");
  EXPECT_EQ(formatValue(Date(), Pattern::General, kItalian), "0.00.00");
  EXPECT_EQ(shownAsDate(Date()), "30/12/1899");
  EXPECT_EQ(shownAsDate(std::string("15/11/2026")), "15/11/2026");
  EXPECT_EQ(shownAsDate(std::string("0.00.00")), "0.00.00");
  EXPECT_EQ(shownAsDate(std::int32_t{Date::of(15, 11, 2026)->days()}), "15/11/2026");
  EXPECT_EQ(shownAsDate(Date::of(15, 11, 2026)->days() + 0.75), "15/11/2026");
  EXPECT_EQ(shownAsDate(Null{}), "");
  EXPECT_EQ(shownAsDate(Empty{}), "");
  EXPECT_EQ(formatValue(Empty{}, Pattern::MonthYear, kItalian), "");
  EXPECT_EQ(formatValue(Empty{}, Pattern::Year, kItalian), "");
  EXPECT_EQ(formatValue(Date::of(15, 11, 2026)->days() + 0.75, Pattern::MonthYear, kItalian), "11/2026");
  EXPECT_EQ(formatValue(std::int32_t{Date::of(15, 11, 2026)->days()}, Pattern::Year, kItalian), "2026");
  EXPECT_FAILURE(shownAsDate(1e7), FailureKind::Overflow, "10000000");
  EXPECT_FAILURE(shownAsDate(CurrencyArray{}), FailureKind::TypeMismatch, "array");
}

}  // namespace
}  // namespace qvn
