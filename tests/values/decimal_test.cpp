#include "qvn/shared/decimal.h"

#include <gtest/gtest.h>
#include <limits>

#include "qvn/shared/conversions.h"
#include "tests/failure_matchers.h"
#include "tests/values/italian.h"

namespace qvn {
namespace {

constexpr std::uint32_t kFull = 0xFFFF'FFFF;

TEST(Decimal, IsSignMagnitudeAndScale) {
  const Decimal value = Decimal::of({1250, 0, 0}, 2, true);
  EXPECT_EQ(value.magnitude(), (Decimal::Magnitude{1250, 0, 0}));
  EXPECT_EQ(value.scale(), 2);
  EXPECT_TRUE(value.negative());
  EXPECT_EQ(Decimal().scale(), 0);
  EXPECT_FALSE(Decimal().negative());
}

TEST(Decimal, HasNoNegativeZero) {
  EXPECT_FALSE(Decimal::of({0, 0, 0}, 5, true).negative());
  EXPECT_EQ(Decimal::of({0, 0, 0}, 5, true), Decimal());
}

TEST(Decimal, HasUpTo28Decimals) {
  EXPECT_EQ(Decimal::of({1, 0, 0}, 28, false).scale(), 28);
  EXPECT_FAILURE(Decimal::of({1, 0, 0}, 29, false), FailureKind::Overflow, "29");
  EXPECT_FAILURE(Decimal::of({1, 0, 0}, -1, false), FailureKind::Overflow, "-1");
}

TEST(Decimal, HoldsWholeNumbersAndAmounts) {
  EXPECT_EQ(Decimal::of(std::int64_t{-7}), Decimal::of({70, 0, 0}, 1, true));
  EXPECT_EQ(Decimal::of(std::numeric_limits<std::int64_t>::min()), Decimal::of({0, 0x8000'0000, 0}, 0, true));
  EXPECT_EQ(Decimal::of(Currency::fromTenThousandths(125'000)), Decimal::of({125, 0, 0}, 1, false));
  EXPECT_EQ(Decimal::of(Currency::fromTenThousandths(std::numeric_limits<std::int64_t>::min())),
            Decimal::of({0, 0x8000'0000, 0}, 4, true));
}

TEST(Decimal, ComparesByValueWhateverTheScale) {
  const auto of = [](const char* text) { return toDecimal(text, kItalian); };
  EXPECT_EQ(of("12,5"), of("12,50"));
  EXPECT_EQ(of("-12,5"), of("-12,5000000000000000000000000000"));
  EXPECT_NE(of("12,5"), of("12,51"));
  EXPECT_LT(of("-12,51"), of("-12,5"));
  EXPECT_LT(of("9,99"), of("10"));
  EXPECT_LT(of("0,0000000000000000000000000001"), of("1"));
  EXPECT_LT(of("-1"), of("0"));
  EXPECT_GT(of("79228162514264337593543950335"), of("7,9228162514264337593543950335"));
  EXPECT_LT(of("7,9228162514264337593543950334"), of("7,9228162514264337593543950335"));
  EXPECT_EQ(of("1000"), of("1E+3"));
}

TEST(Decimal, FromTextIsExactUpTo28Decimals) {
  EXPECT_EQ(toDecimal("0,0000000000000000000000000001", kItalian), Decimal::of({1, 0, 0}, 28, false));
  EXPECT_EQ(toDecimal("12,50", kItalian).scale(), 2);
  EXPECT_EQ(toDecimal("€ 1.234,50", kItalian), Decimal::of({12345, 0, 0}, 1, false));
  EXPECT_EQ(toDecimal("1,5E+3", kItalian), Decimal::of({1500, 0, 0}, 0, false));
  EXPECT_EQ(toDecimal("79.228.162.514.264.337.593.543.950.335", kItalian),
            Decimal::of({kFull, kFull, kFull}, 0, false));
  EXPECT_EQ(toDecimal("-7,9228162514264337593543950335", kItalian), Decimal::of({kFull, kFull, kFull}, 28, true));
}

TEST(Decimal, FurtherDecimalsRoundOnceTiesToEven) {
  // The 29th decimal goes.
  EXPECT_EQ(toDecimal("0,00000000000000000000000000005", kItalian), Decimal());
  EXPECT_EQ(toDecimal("0,00000000000000000000000000015", kItalian), Decimal::of({2, 0, 0}, 28, false));
  EXPECT_EQ(toDecimal("0,000000000000000000000000000050000000000000000000000001", kItalian),
            Decimal::of({1, 0, 0}, 28, false));
  // 96 bits hold 27 decimals of it, and the cut digits 4 and 9 round as one.
  EXPECT_EQ(toDecimal("9,0000000000000000000000000049", kItalian),
            toDecimal("9,000000000000000000000000005", kItalian));
  EXPECT_EQ(toDecimal("9,00000000000000000000000000449", kItalian),
            toDecimal("9,000000000000000000000000004", kItalian));
  EXPECT_EQ(toDecimal("9,0000000000000000000000000045", kItalian),
            toDecimal("9,000000000000000000000000004", kItalian));
  EXPECT_EQ(toDecimal("9,0000000000000000000000000035", kItalian),
            toDecimal("9,000000000000000000000000004", kItalian));
  EXPECT_EQ(toDecimal("7,92281625142643375935439503355", kItalian),
            toDecimal("7,922816251426433759354395034", kItalian));
}

TEST(Decimal, TextBeyond96BitsFails) {
  EXPECT_FAILURE(toDecimal("79228162514264337593543950336", kItalian), FailureKind::Overflow,
                 "\"79228162514264337593543950336\" does not fit a decimal");
  EXPECT_FAILURE(toDecimal("79228162514264337593543950335,5", kItalian), FailureKind::Overflow, "does not fit");
  EXPECT_EQ(toDecimal("79228162514264337593543950335,4999", kItalian), Decimal::of({kFull, kFull, kFull}, 0, false));
  EXPECT_FAILURE(toDecimal("1E+29", kItalian), FailureKind::Overflow, "1E+29");
  EXPECT_FAILURE(toDecimal("1E+999999999999999999999999", kItalian), FailureKind::Overflow, "1E+99");
  EXPECT_EQ(toDecimal("1E-999999999999999999999999", kItalian), Decimal());
  EXPECT_FAILURE(toDecimal("x", kItalian), FailureKind::TypeMismatch, "\"x\" is no number");
}

}  // namespace
}  // namespace qvn
