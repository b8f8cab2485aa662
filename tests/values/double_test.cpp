// Doubles against arithmetic on their exact decimal digits.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

#include "qvn/shared/conversions.h"
#include "qvn/shared/patterns.h"
#include "tests/failure_matchers.h"
#include "tests/values/decimal_model.h"
#include "tests/values/italian.h"

namespace qvn {
namespace {

using test::Exact;
using test::ModelTies;

void expectAgreement(double value) {
  const Exact digits = test::toFifteenDigits(test::exactValue(value));
  const std::string twoDecimals = test::inUnits(digits, 2, ModelTies::AwayFromZero);
  ASSERT_EQ(format(value, Pattern::TwoDecimals, kItalian).view(), test::written(twoDecimals, 2, false)) << value;
  const Locale bare{.symbol = ""};
  ASSERT_EQ(format(value, Pattern::Currency, bare).view(), test::written(twoDecimals, 2, true)) << value;

  const std::string units = test::inUnits(digits, 4, ModelTies::ToEven);
  if (test::fits64Bits(units)) {
    ASSERT_EQ(std::to_string(toCurrency(value).tenThousandths()), units) << value;
    ASSERT_EQ(std::to_string(as<Currency>(value, kItalian).tenThousandths()), units) << value;
  } else {
    ASSERT_TRUE(test::failsWith(FailureKind::Overflow, "does not fit a currency", [&] { (void)toCurrency(value); }));
  }

  const std::string whole = test::inUnits(digits, 0, ModelTies::ToEven);
  const bool fits32 = whole.size() < 12 && std::abs(std::stoll(whole) * 2 + 1) <= 4'294'967'295;
  if (fits32) {
    ASSERT_EQ(std::to_string(toInt32(value)), whole) << value;
    ASSERT_EQ(std::to_string(as<std::int32_t>(value, kItalian)), whole) << value;
    const std::int32_t as16 = static_cast<std::int16_t>(toInt32(value));
    if (as16 == toInt32(value)) {
      ASSERT_EQ(toInt16(value), as16) << value;
      ASSERT_EQ(as<std::int16_t>(value, kItalian), as16) << value;
    }
  } else {
    ASSERT_TRUE(test::failsWith(FailureKind::Overflow, "does not fit a 32-bit", [&] { (void)toInt32(value); }));
  }
}

TEST(Double, RandomBitPatternsAgreeWithTheModel) {
  std::mt19937_64 random(64);
  for (int i = 0; i < 3'000; ++i) {
    const std::uint64_t bits = random();
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    if (!std::isfinite(value)) continue;
    if (std::fabs(value) > 1.797693134862314e308) continue;
    expectAgreement(value);
    if (HasFatalFailure()) return;
  }
}

TEST(Double, AmountsOfAllSizesAgreeWithTheModel) {
  std::mt19937_64 random(1'000);
  std::uniform_real_distribution<double> exponent(-6, 19);
  std::uniform_real_distribution<double> mantissa(-10, 10);
  for (int i = 0; i < 20'000; ++i) {
    expectAgreement(mantissa(random) * std::pow(10, exponent(random)));
    if (HasFatalFailure()) return;
  }
}

TEST(Double, TiesOfFifteenDigitsAgreeWithTheModel) {
  std::mt19937_64 random(15);
  constexpr std::array powers{1.0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10};
  for (int i = 0; i < 20'000; ++i) {
    // Up to 14 digits and a 5, with the tie at each place; dividing may miss the tie in binary, and must not in digits.
    const std::uint64_t size = std::uint64_t{1} << (random() % 47);
    const auto count = static_cast<double>(random() % size * 10 + 5);
    const double value = count / powers.at(static_cast<std::size_t>(random() % powers.size()));
    const double near = std::nextafter(value, i % 3 == 0 ? 0 : value + 1);
    expectAgreement(i % 2 == 0 ? value : -value);
    expectAgreement(i % 2 == 0 ? near : -near);
    if (HasFatalFailure()) return;
  }
}

TEST(Double, ArithmeticThatMissesATieInBinaryStillShowsIt) {
  std::mt19937_64 random(75'005);
  int missed = 0;
  for (int i = 0; i < 20'000; ++i) {
    // b / 100 × p with a product that ends in a half cent: b in hundredths × p in tenths, an odd multiple of 5.
    const auto b = static_cast<std::int64_t>(random() % 10'000'000);
    const auto p = static_cast<std::int64_t>(random() % 1'000);
    if (b * p % 10 != 5) continue;
    const double product = static_cast<double>(b) / 100 / 100 * (static_cast<double>(p) / 10);
    const Exact ledger{false, std::to_string(b * p), -5};
    if (!(test::exactValue(product) == ledger)) ++missed;
    const std::string units = test::inUnits(ledger, 2, ModelTies::AwayFromZero);
    ASSERT_EQ(format(product, Pattern::TwoDecimals, kItalian).view(), test::written(units, 2, false)) << b << ' ' << p;
  }
  EXPECT_GT(missed, 100);
}

TEST(Double, ToCurrencyRoundsTiesToEven) {
  EXPECT_EQ(toCurrency(1.00005).tenThousandths(), 10'000);
  EXPECT_EQ(toCurrency(1.00015).tenThousandths(), 10'002);
  EXPECT_EQ(toCurrency(-1.00005).tenThousandths(), -10'000);
  EXPECT_EQ(toCurrency(-1.00015).tenThousandths(), -10'002);
  EXPECT_EQ(toCurrency(0.0).tenThousandths(), 0);
  EXPECT_EQ(toCurrency(1e-300).tenThousandths(), 0);
  EXPECT_EQ(toCurrency(600.04 / 100 * 12.5).tenThousandths(), 750'050);
  EXPECT_EQ(toCurrency(-922337203685477.0).tenThousandths(), -9'223'372'036'854'770'000);
}

TEST(Double, ToCurrencyFailsBeyondTheRange) {
  EXPECT_FAILURE(toCurrency(922337203685478.0), FailureKind::Overflow,
                 "922337203685478 does not fit a currency amount");
  EXPECT_FAILURE(toCurrency(-1e15), FailureKind::Overflow, "-1E+15 does not fit a currency amount");
  EXPECT_FAILURE(toCurrency(1.5e300), FailureKind::Overflow, "1,5E+300");
}

TEST(Double, ToIntegersRoundsTiesToEven) {
  EXPECT_EQ(toInt16(2.5), 2);
  EXPECT_EQ(toInt16(3.5), 4);
  EXPECT_EQ(toInt16(-2.5), -2);
  EXPECT_EQ(toInt16(-3.5), -4);
  EXPECT_EQ(toInt16(3.4999999999999996), 4);
  EXPECT_EQ(toInt32(3.4999999999999996), 4);
  EXPECT_EQ(toInt32(2.5000000000000004), 2);
  EXPECT_EQ(toInt16(32767.4), 32'767);
  EXPECT_EQ(toInt16(-32768.5), -32'768);
  EXPECT_EQ(toInt32(2147483647.4), 2'147'483'647);
  EXPECT_EQ(toInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
  EXPECT_FAILURE(toInt16(32767.5), FailureKind::Overflow, "32767,5 does not fit a 16-bit integer (-32768 to 32767)");
  EXPECT_FAILURE(toInt16(1e300), FailureKind::Overflow, "1E+300");
  EXPECT_FAILURE(toInt32(2147483647.5), FailureKind::Overflow, "2147483647,5 does not fit a 32-bit integer");
  EXPECT_FAILURE(toInt32(-2147483649.0), FailureKind::Overflow, "-2147483649");
}

TEST(Double, WhatIsNoFiniteNumberConvertsToNothing) {
  const double infinity = std::numeric_limits<double>::infinity();
  const double none = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FAILURE(toCurrency(infinity), FailureKind::Overflow, "infinite");
  EXPECT_FAILURE(toInt16(-infinity), FailureKind::Overflow, "infinite");
  EXPECT_FAILURE(toInt32(infinity), FailureKind::Overflow, "infinite");
  EXPECT_FAILURE(toCurrency(none), FailureKind::TypeMismatch, "no number");
  EXPECT_FAILURE(toInt16(none), FailureKind::TypeMismatch, "no number");
  EXPECT_FAILURE(toInt32(none), FailureKind::TypeMismatch, "no number");
}

TEST(Double, OfACurrencyIsTheNearest) {
  EXPECT_EQ(toDouble(Currency::fromTenThousandths(125'000)), 12.5);
  EXPECT_EQ(toDouble(Currency::fromTenThousandths(-1)), -0.0001);
  EXPECT_EQ(toDouble(Currency::fromTenThousandths(std::numeric_limits<std::int64_t>::max())), 922337203685477.5807);
  EXPECT_EQ(toDouble(Currency::fromTenThousandths(std::numeric_limits<std::int64_t>::min())), -922337203685477.5808);
  std::mt19937_64 random(53);
  for (int i = 0; i < 20'000; ++i) {
    const auto count = static_cast<std::int64_t>(random()) >> (random() % 60);
    const double value = toDouble(Currency::fromTenThousandths(count));
    ASSERT_TRUE(test::isNearest(value, test::exactCount(count, 4))) << count;
  }
}

TEST(Double, OfATextIsTheNearest) {
  std::mt19937_64 random(308);
  for (int i = 0; i < 3'000; ++i) {
    std::string digits(static_cast<std::size_t>(1 + random() % 40), '0');
    for (char& digit : digits) digit = static_cast<char>('0' + random() % 10);
    const int exponent = static_cast<int>(random() % 80) - 60;
    const std::string text = digits + "E" + std::to_string(exponent);
    ASSERT_TRUE(test::isNearest(toDouble(text, kItalian), {false, digits, exponent})) << text;
  }
}

TEST(Double, OfATextBetweenTwoOfTheSmallestTakesEachDigit) {
  std::mt19937_64 random(767);
  std::size_t most = 0;
  for (int i = 0; i < 200; ++i) {
    // The smallest normal doubles and those below: the bits count units of 2^-1074.
    const std::uint64_t bits = i % 2 == 0 ? random() >> 11 : random() >> (12 + random() % 52);
    double below = 0;
    std::memcpy(&below, &bits, sizeof below);
    const double above = std::nextafter(below, 1);
    const Exact middle = test::middle(below, above);
    const std::size_t first = middle.digits.find_first_not_of('0');
    most = std::max(most, middle.digits.find_last_not_of('0') + 1 - first);
    const std::string exponent = std::string("E").append(std::to_string(middle.exponent));
    ASSERT_EQ(toDouble(middle.digits + exponent, kItalian), bits % 2 == 0 ? below : above) << bits;
    const std::string zeros(i % 7 == 0 ? 900 : 3, '0');
    ASSERT_EQ(toDouble(middle.digits + "," + zeros + "1" + exponent, kItalian), above) << bits;
    std::string less = middle.digits;
    const std::size_t last = less.find_last_not_of('0');
    less[last] = '4';  // from a 5
    std::fill(less.begin() + static_cast<std::ptrdiff_t>(last) + 1, less.end(), '9');
    ASSERT_EQ(toDouble(less + ",9" + exponent, kItalian), below) << bits;
  }
  EXPECT_GE(most, 765U);
}

TEST(Double, OfADecimalIsTheNearest) {
  std::mt19937_64 random(28);
  for (int i = 0; i < 5'000; ++i) {
    const Decimal::Magnitude words{static_cast<std::uint32_t>(random()), static_cast<std::uint32_t>(random()),
                                   i % 2 == 0 ? 0 : static_cast<std::uint32_t>(random())};
    const Decimal value = Decimal::of(words, static_cast<int>(random() % 29), random() % 2 == 0);
    const Exact exact{value.negative(), test::wholeNumber(words), -value.scale()};
    ASSERT_TRUE(test::isNearest(as<double>(value, kItalian), exact)) << exact.digits << "E-" << value.scale();
  }
}

TEST(Double, OfATextBetweenTwoDoublesIsTheEvenOne) {
  std::mt19937_64 random(54);
  for (int i = 0; i < 500; ++i) {
    const double below = std::ldexp(static_cast<double>(random() >> 11 | std::uint64_t{1} << 52),
                                    static_cast<int>(random() % 120) - 110);
    const double above = std::nextafter(below, std::numeric_limits<double>::infinity());
    const Exact middle = test::middle(below, above);
    const std::string text = middle.digits + "E" + std::to_string(middle.exponent);
    const double even = std::fmod(std::ldexp(below, -std::ilogb(below) + 52), 2) == 0 ? below : above;
    ASSERT_EQ(toDouble(text, kItalian), even) << text;
    ASSERT_EQ(toDouble(middle.digits + "1E" + std::to_string(middle.exponent - 1), kItalian), above) << text;
  }
}

}  // namespace
}  // namespace qvn
