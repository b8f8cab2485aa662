#include <gtest/gtest.h>
#include <initializer_list>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "qvn/shared/clsQVN_Eventi.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/patterns.h"
#include "tests/failure_matchers.h"
#include "tests/values/italian.h"

namespace qvn {
namespace {

using namespace std::string_literals;

template <class Target>
Target to(const Variant& value) {
  return as<Target>(value, kItalian);
}

Currency money(std::int64_t count) { return Currency::fromTenThousandths(count); }

/// Each kind of a number, with the same value.
std::vector<Variant> numbers(std::uint8_t value) {
  return {value,
          static_cast<std::int16_t>(value),
          static_cast<std::int32_t>(value),
          static_cast<double>(value),
          Currency::of(value),
          Decimal::of(std::int64_t{value}),
          Date::fromDays(value),
          std::to_string(value)};
}

TEST(VariantConversions, EachNumberConvertsToEachNumber) {
  for (const std::uint8_t value : std::initializer_list<std::uint8_t>{0, 1, 7, 255}) {
    for (const Variant& variant : numbers(value)) {
      EXPECT_EQ(to<std::uint8_t>(variant), value) << kindName(variant);
      EXPECT_EQ(to<std::int16_t>(variant), value) << kindName(variant);
      EXPECT_EQ(to<std::int32_t>(variant), value) << kindName(variant);
      EXPECT_EQ(to<double>(variant), value) << kindName(variant);
      EXPECT_EQ(to<Currency>(variant), Currency::of(value)) << kindName(variant);
      EXPECT_EQ(to<Decimal>(variant), Decimal::of(std::int64_t{value})) << kindName(variant);
      EXPECT_EQ(to<bool>(variant), value != 0) << kindName(variant);
      if (!std::holds_alternative<std::string>(variant)) {
        EXPECT_EQ(to<Date>(variant), Date::fromDays(value)) << kindName(variant);
      }
    }
  }
}

TEST(VariantConversions, ANullFails) {
  const Variant null = Null{};
  EXPECT_FAILURE(to<std::string>(null), FailureKind::InvalidUseOfNull, "Null");
  EXPECT_FAILURE(to<Currency>(null), FailureKind::InvalidUseOfNull, "Null");
  EXPECT_FAILURE(to<Decimal>(null), FailureKind::InvalidUseOfNull, "Null");
  EXPECT_FAILURE(to<double>(null), FailureKind::InvalidUseOfNull, "Null");
  EXPECT_FAILURE(to<std::uint8_t>(null), FailureKind::InvalidUseOfNull, "Null");
  EXPECT_FAILURE(to<std::int16_t>(null), FailureKind::InvalidUseOfNull, "Null");
  EXPECT_FAILURE(to<std::int32_t>(null), FailureKind::InvalidUseOfNull, "Null");
  EXPECT_FAILURE(to<bool>(null), FailureKind::InvalidUseOfNull, "Null");
  EXPECT_FAILURE(to<Date>(null), FailureKind::InvalidUseOfNull, "Null");
  EXPECT_FAILURE(to<CurrencyArray>(null), FailureKind::InvalidUseOfNull, "Null");
  EXPECT_TRUE(isNull(to<Variant>(null)));
}

TEST(VariantConversions, AnEmptyIsTheEmptyTextOrZero) {
  const Variant empty = Empty{};
  EXPECT_EQ(to<std::string>(empty), "");
  EXPECT_EQ(to<Currency>(empty), Currency());
  EXPECT_EQ(to<Decimal>(empty), Decimal());
  EXPECT_EQ(to<double>(empty), 0.0);
  EXPECT_EQ(to<std::uint8_t>(empty), 0);
  EXPECT_EQ(to<std::int16_t>(empty), 0);
  EXPECT_EQ(to<std::int32_t>(empty), 0);
  EXPECT_FALSE(to<bool>(empty));
  EXPECT_EQ(to<Date>(empty), Date());
  EXPECT_TRUE(isEmpty(to<Variant>(empty)));
  EXPECT_FAILURE(to<CurrencyArray>(empty), FailureKind::TypeMismatch, "a value of kind Empty is no array of currency");
}

TEST(VariantConversions, TrueIsMinusOneAsANumber) {
  EXPECT_EQ(to<std::int16_t>(true), -1);
  EXPECT_EQ(to<std::int32_t>(true), -1);
  EXPECT_EQ(to<double>(true), -1.0);
  EXPECT_EQ(to<Currency>(true), Currency::of(-1));
  EXPECT_EQ(to<Decimal>(true), Decimal::of(std::int64_t{-1}));
  EXPECT_EQ(to<std::int16_t>(false), 0);
  EXPECT_FAILURE(to<std::uint8_t>(true), FailureKind::Overflow, "True does not fit an 8-bit unsigned integer");
  EXPECT_EQ(to<std::string>(true), "True");
  EXPECT_EQ(to<std::string>(false), "False");
}

TEST(VariantConversions, ABooleanOfANumberOrAText) {
  for (const Variant& on :
       std::vector<Variant>{true, std::int16_t{-1}, 0.5, 1e-300, money(1), "True"s, "TRUE"s, "true"s, "-1"s, "0,01"s,
                            Date::fromDays(1), std::numeric_limits<double>::infinity()}) {
    EXPECT_TRUE(to<bool>(on)) << kindName(on);
  }
  for (const Variant& off : std::vector<Variant>{false, std::int32_t{0}, -0.0, money(0), "False"s, "fAlSe"s, "0"s,
                                                 "€ 0,00"s, Date(), Decimal::of({0, 0, 0}, 3, false)}) {
    EXPECT_FALSE(to<bool>(off)) << kindName(off);
  }
  EXPECT_FAILURE(to<bool>("Vero"s), FailureKind::TypeMismatch, "the text \"Vero\" is no boolean");
  EXPECT_FAILURE(to<bool>(""s), FailureKind::TypeMismatch, "the text \"\" is no boolean");
  EXPECT_FAILURE(to<bool>(std::numeric_limits<double>::quiet_NaN()), FailureKind::TypeMismatch, "no number");
  EXPECT_FAILURE(to<bool>(CurrencyArray{}), FailureKind::TypeMismatch, "array of currency is no boolean");
}

TEST(VariantConversions, ATextIsParsed) {
  EXPECT_EQ(to<Currency>("€ 1.234,56"s), money(12'345'600));
  EXPECT_EQ(to<double>("12,5"s), 12.5);
  EXPECT_EQ(to<std::int16_t>("2,5"s), 2);
  EXPECT_EQ(to<std::uint8_t>("255"s), 255);
  EXPECT_EQ(to<std::string>("€ x"s), "€ x");
  EXPECT_FAILURE(to<Currency>("abc"s), FailureKind::TypeMismatch, "the text \"abc\" is no number");
  EXPECT_FAILURE(to<Currency>(""s), FailureKind::TypeMismatch, "the text \"\" is no number");
  EXPECT_FAILURE(to<std::int32_t>("1.2"s), FailureKind::TypeMismatch, "the text \"1.2\" is no number");
  EXPECT_FAILURE(to<std::uint8_t>("300"s), FailureKind::Overflow,
                 "the text \"300\" does not fit an 8-bit unsigned integer (0 to 255)");
}

TEST(VariantConversions, NumbersRoundTiesToEven) {
  EXPECT_EQ(to<std::int16_t>(2.5), 2);
  EXPECT_EQ(to<std::int16_t>(3.5), 4);
  EXPECT_EQ(to<std::int16_t>(money(25'000)), 2);
  EXPECT_EQ(to<std::int32_t>(money(-35'000)), -4);
  EXPECT_EQ(to<std::uint8_t>(Decimal::of({25, 0, 0}, 1, false)), 2);
  EXPECT_EQ(to<Currency>(Decimal::of({100'005, 0, 0}, 5, false)), money(10'000));
  EXPECT_EQ(to<Currency>(Decimal::of({100'015, 0, 0}, 5, false)), money(10'002));
  EXPECT_EQ(to<Currency>(1.00005), money(10'000));
  EXPECT_EQ(to<Currency>(1.00015), money(10'002));
  EXPECT_EQ(to<Currency>(600.04 / 100 * 12.5), money(750'050));
  // 3,5 and 2,5 in 15 digits.
  EXPECT_EQ(to<std::int16_t>(3.4999999999999996), 4);
  EXPECT_EQ(to<std::int32_t>(3.4999999999999996), 4);
  EXPECT_EQ(to<std::int32_t>(2.5000000000000004), 2);
  EXPECT_EQ(to<std::uint8_t>(3.4999999999999996), 4);
  EXPECT_EQ(to<Decimal>(0.1), Decimal::of({1, 0, 0}, 1, false));
  EXPECT_EQ(to<double>(Decimal::of({1, 0, 0}, 1, false)), 0.1);
  EXPECT_EQ(to<double>(money(std::numeric_limits<std::int64_t>::min())), -922337203685477.5808);
}

TEST(VariantConversions, NumbersOutOfRangeOverflow) {
  EXPECT_FAILURE(to<std::uint8_t>(std::int16_t{300}), FailureKind::Overflow,
                 "300 does not fit an 8-bit unsigned integer (0 to 255)");
  EXPECT_FAILURE(to<std::uint8_t>(std::int16_t{-1}), FailureKind::Overflow, "-1 does not fit");
  EXPECT_FAILURE(to<std::int16_t>(32767.5), FailureKind::Overflow, "32767,5 does not fit a 16-bit integer");
  EXPECT_FAILURE(to<std::int16_t>(money(std::numeric_limits<std::int64_t>::min())), FailureKind::Overflow,
                 "-922337203685477,5808 does not fit");
  EXPECT_FAILURE(to<Currency>(1e15), FailureKind::Overflow, "1E+15 does not fit a currency amount");
  EXPECT_FAILURE(to<Currency>(Decimal::of({0, 0, 1}, 0, false)), FailureKind::Overflow, "18446744073709551616");
  EXPECT_FAILURE(to<Decimal>(1e29), FailureKind::Overflow, "1E+29 does not fit a decimal");
  EXPECT_FAILURE(to<Currency>(std::numeric_limits<double>::infinity()), FailureKind::Overflow, "infinite");
  EXPECT_FAILURE(to<std::string>(std::numeric_limits<double>::quiet_NaN()), FailureKind::TypeMismatch, "no number");
}

TEST(VariantConversions, ADoubleStaysWhatItIs) {
  EXPECT_EQ(to<double>(0.1 + 0.2), 0.1 + 0.2);
  EXPECT_EQ(to<double>(std::numeric_limits<double>::infinity()), std::numeric_limits<double>::infinity());
}

TEST(VariantConversions, ADateOfATextOrANumber) {
  EXPECT_EQ(to<Date>("15/11/2026"s), *Date::of(15, 11, 2026));
  EXPECT_EQ(to<Date>("0.00.00"s), Date());
  EXPECT_EQ(to<Date>(46'000.75), Date::fromDays(46'000));
  EXPECT_EQ(to<Date>(-1.25), Date::fromDays(-1));
  EXPECT_EQ(to<Date>(0.75), Date());
  EXPECT_EQ(to<Date>(1e-300), Date());
  EXPECT_EQ(to<Date>(money(459'999'999)), Date::fromDays(45'999));
  // 15 digits of the first make 46000, and of the second still 45999 and a time.
  EXPECT_EQ(to<Date>(45'999.99999999999), Date::fromDays(46'000));
  EXPECT_EQ(to<Date>(45'999.9999999999), Date::fromDays(45'999));
  EXPECT_EQ(to<Date>(toDecimal("45999,99999999999999999999999", kItalian)), Date::fromDays(45'999));
  EXPECT_EQ(to<Date>(std::int16_t{2}), Date::fromDays(2));
  EXPECT_FAILURE(to<Date>("31/02/2026"s), FailureKind::TypeMismatch, "the text \"31/02/2026\" is no date");
  EXPECT_FAILURE(to<Date>(""s), FailureKind::TypeMismatch, "the text \"\" is no date");
  EXPECT_FAILURE(to<Date>("46000"s), FailureKind::TypeMismatch, "the text \"46000\" is no date");
  EXPECT_FAILURE(to<Date>(std::int32_t{3'000'000}), FailureKind::Overflow, "3000000");
  EXPECT_FAILURE(to<Date>(std::int32_t{2'000'000'000}), FailureKind::Overflow, "2000000000 does not fit a date");
  EXPECT_FAILURE(to<Date>(1e300), FailureKind::Overflow, "1E+300 does not fit a date");
  EXPECT_FAILURE(to<Date>(std::numeric_limits<double>::quiet_NaN()), FailureKind::TypeMismatch, "no number");
  EXPECT_FAILURE(to<Date>(CurrencyArray{}), FailureKind::TypeMismatch, "is no date");
}

TEST(VariantConversions, ATextIsTheGeneralText) {
  EXPECT_EQ(to<std::string>(std::uint8_t{7}), "7");
  EXPECT_EQ(to<std::string>(12.5), "12,5");
  EXPECT_EQ(to<std::string>(1.5e20), "1,5E+20");
  EXPECT_EQ(to<std::string>(money(23'450)), "2,345");
  EXPECT_EQ(to<std::string>(Decimal::of({1250, 0, 0}, 2, false)), "12,5");
  EXPECT_EQ(to<std::string>(*Date::of(5, 3, 2026)), "05/03/2026");
  EXPECT_EQ(to<std::string>(Date()), "0.00.00");
  EXPECT_FAILURE(to<std::string>(CurrencyArray{}), FailureKind::TypeMismatch, "array");
}

TEST(VariantConversions, AnArrayIsNothingElse) {
  const CurrencyArray array{.extents = {2}, .values = {money(1), money(2)}};
  EXPECT_EQ(to<CurrencyArray>(array), array);
  EXPECT_FAILURE(to<Currency>(array), FailureKind::TypeMismatch, "a value of kind array of currency is no number");
  EXPECT_FAILURE(to<CurrencyArray>("1"s), FailureKind::TypeMismatch, "a value of kind text is no array of currency");
}

TEST(VariantConversions, AnObjectIsNothingElse) {
  const Variant object = std::make_shared<clsQVN_Eventi>();
  EXPECT_EQ(as<Variant>(object, kItalian), object);
  EXPECT_FAILURE(to<Currency>(object), FailureKind::TypeMismatch, "a value of kind object is no number");
  EXPECT_FAILURE(to<bool>(object), FailureKind::TypeMismatch, "a value of kind object is no boolean");
  EXPECT_FAILURE(to<Date>(object), FailureKind::TypeMismatch, "a value of kind object is no date");
  EXPECT_FAILURE(to<std::string>(object), FailureKind::TypeMismatch, "a value of kind object has no text");
  EXPECT_FAILURE(to<CurrencyArray>(object), FailureKind::TypeMismatch, "a value of kind object is no array");
}

TEST(VariantConversions, ConcatenationAddsTheText) {
  EXPECT_EQ(concatenated("a", Null{}, kItalian), "a");
  EXPECT_EQ(concatenated("", Null{}, kItalian), "");
  EXPECT_EQ(concatenated("a", Empty{}, kItalian), "a");
  EXPECT_EQ(concatenated("a", "b"s, kItalian), "ab");
  EXPECT_EQ(concatenated("a ", 12.5, kItalian), "a 12,5");
  EXPECT_EQ(concatenated("a ", "00120"s, kItalian), "a 00120");
  EXPECT_EQ(concatenated("", *Date::of(5, 3, 2026), kItalian), "05/03/2026");
  EXPECT_EQ(formatValue(Null{}, Pattern::Currency, kItalian), "");
}

}  // namespace
}  // namespace qvn
