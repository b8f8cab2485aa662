#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "qvn/shared/conversions.h"
#include "qvn/shared/patterns.h"
#include "tests/failure_matchers.h"
#include "tests/values/italian.h"

namespace qvn {
namespace {

std::string general(double value) { return format(value, Pattern::General, kItalian).str(); }

struct Shown {
  double value;
  const char* text;
};

TEST(GeneralText, OfADoubleHasUpTo15DigitsAndNoZerosAtItsEnd) {
  for (const Shown& shown : {Shown{0, "0"},
                             {-0.0, "0"},
                             {1, "1"},
                             {-1, "-1"},
                             {12.5, "12,5"},
                             {100, "100"},
                             {0.1, "0,1"},
                             {0.1 + 0.2, "0,3"},
                             {1.0 / 3, "0,333333333333333"},
                             {2.0 / 3, "0,666666666666667"},
                             {1234567.891, "1234567,891"},
                             {0.001, "0,001"},
                             {123456789012345, "123456789012345"},
                             {12345678901234.5, "12345678901234,5"},
                             {999999999999999, "999999999999999"},
                             {600.04 / 100 * 12.5, "75,005"}}) {
    EXPECT_EQ(general(shown.value), shown.text);
  }
}

TEST(GeneralText, OfADoubleIsPlainFrom1EMinus15ToBelow1E15) {
  for (const Shown& shown : {Shown{1e15, "1E+15"},
                             {1e14, "100000000000000"},
                             {999999999999999.9, "1E+15"},
                             {1.5e20, "1,5E+20"},
                             {-1.5e20, "-1,5E+20"},
                             {1e-15, "0,000000000000001"},
                             {1.5e-15, "0,0000000000000015"},
                             {-1.23456789012345e-15, "-0,00000000000000123456789012345"},
                             {9.99999999999999e-16, "9,99999999999999E-16"},
                             {1e-16, "1E-16"},
                             {1.7e-300, "1,7E-300"},
                             {std::numeric_limits<double>::denorm_min(), "4,94065645841247E-324"},
                             {std::numeric_limits<double>::max(), "1,79769313486231E+308"},
                             {std::numeric_limits<double>::lowest(), "-1,79769313486231E+308"}}) {
    EXPECT_EQ(general(shown.value), shown.text);
  }
}

TEST(GeneralText, OfADoubleParsesBackToItsFifteenDigits) {
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> exponent(-307, 308);
  std::uniform_real_distribution<double> mantissa(-10, 10);
  for (int i = 0; i < 20'000; ++i) {
    const double value = mantissa(random) * std::pow(10, exponent(random));
    if (!std::isfinite(value)) continue;
    const std::string text = general(value);
    const double back = toDouble(text, kItalian);
    EXPECT_LE(std::fabs(back - value), std::fabs(value) * 5.1e-15) << text;
    EXPECT_EQ(general(back), text);
  }
  EXPECT_EQ(general(toDouble(general(std::numeric_limits<double>::max()), kItalian)), "1,79769313486231E+308");
}

TEST(GeneralText, OfAnAmountOrADecimalHasNoZerosAtItsEnd) {
  const auto amount = [](std::int64_t count) {
    return format(Currency::fromTenThousandths(count), Pattern::General, kItalian).str();
  };
  EXPECT_EQ(amount(0), "0");
  EXPECT_EQ(amount(23'450), "2,345");
  EXPECT_EQ(amount(-23'450), "-2,345");
  EXPECT_EQ(amount(1), "0,0001");
  EXPECT_EQ(amount(12'345'670'000), "1234567");
  EXPECT_EQ(amount(10'000'000), "1000");
  EXPECT_EQ(amount(std::numeric_limits<std::int64_t>::max()), "922337203685477,5807");
  EXPECT_EQ(amount(std::numeric_limits<std::int64_t>::min()), "-922337203685477,5808");
  const auto decimal = [](const char* text) {
    return format(toDecimal(text, kItalian), Pattern::General, kItalian).str();
  };
  EXPECT_EQ(decimal("12,50"), "12,5");
  EXPECT_EQ(decimal("0,00"), "0");
  EXPECT_EQ(decimal("-0,0000000000000000000000000001"), "-0,0000000000000000000000000001");
  EXPECT_EQ(decimal("79228162514264337593543950335"), "79228162514264337593543950335");
  EXPECT_EQ(decimal("-7,9228162514264337593543950335"), "-7,9228162514264337593543950335");
  EXPECT_EQ(decimal("1000000000000000000000"), "1000000000000000000000");
}

TEST(GeneralText, OfAnInteger) {
  EXPECT_EQ(format(0, Pattern::General, kItalian).view(), "0");
  EXPECT_EQ(format(1234567, Pattern::General, kItalian).view(), "1234567");
  EXPECT_EQ(format(1000, Pattern::General, kItalian).view(), "1000");
  EXPECT_EQ(format(std::numeric_limits<std::int32_t>::min(), Pattern::General, kItalian).view(), "-2147483648");
}

TEST(GeneralText, TakesTheDecimalSignOfTheLocale) {
  const Locale other{.decimalSign = '.', .groupingSign = ','};
  EXPECT_EQ(format(1234.5, Pattern::General, other).view(), "1234.5");
  EXPECT_EQ(format(1.5e20, Pattern::General, other).view(), "1.5E+20");
  EXPECT_EQ(format(Currency::fromTenThousandths(5), Pattern::General, other).view(), "0.0005");
}

TEST(GeneralText, ThereIsNoneOfWhatIsNoFiniteNumber) {
  EXPECT_FAILURE(general(std::numeric_limits<double>::infinity()), FailureKind::Overflow, "infinite");
  EXPECT_FAILURE(general(-std::numeric_limits<double>::infinity()), FailureKind::Overflow, "infinite");
  EXPECT_FAILURE(general(std::numeric_limits<double>::quiet_NaN()), FailureKind::TypeMismatch, "no number");
}

}  // namespace
}  // namespace qvn
