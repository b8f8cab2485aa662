#include "qvn/shared/currency.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "tests/failure_matchers.h"

namespace qvn {
namespace {

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();

constexpr Currency amount(std::int64_t tenThousandths) { return Currency::fromTenThousandths(tenThousandths); }

TEST(Currency, CountsTenThousandths) {
  EXPECT_EQ(Currency().tenThousandths(), 0);
  EXPECT_EQ(Currency::of(3).tenThousandths(), 30'000);
  EXPECT_EQ(Currency::of(-3).tenThousandths(), -30'000);
  EXPECT_EQ(amount(1).tenThousandths(), 1);
}

TEST(Currency, WholeAmountsReachToTheEndOfTheRange) {
  EXPECT_EQ(Currency::of(922'337'203'685'477).tenThousandths(), 9'223'372'036'854'770'000);
  EXPECT_EQ(Currency::of(-922'337'203'685'477).tenThousandths(), -9'223'372'036'854'770'000);
  EXPECT_FAILURE(Currency::of(922'337'203'685'478), FailureKind::Overflow, "922337203685478");
  EXPECT_FAILURE(Currency::of(-922'337'203'685'478), FailureKind::Overflow, "-922337203685478");
  EXPECT_FAILURE(Currency::of(kLeast), FailureKind::Overflow, "-9223372036854775808");
}

TEST(Currency, SumsAreExactUpToTheEndOfTheRange) {
  EXPECT_EQ(amount(kMost - 1) + amount(1), amount(kMost));
  EXPECT_EQ(amount(kLeast + 1) - amount(1), amount(kLeast));
  EXPECT_EQ(amount(kLeast) + amount(kMost), amount(-1));
  EXPECT_EQ(amount(-1) - amount(kMost), amount(kLeast));
  EXPECT_EQ(amount(-1) - amount(kLeast), amount(kMost));
  EXPECT_EQ(-amount(kMost), amount(-kMost));
}

TEST(Currency, SumsThatDoNotFitFail) {
  EXPECT_FAILURE(amount(kMost) + amount(1), FailureKind::Overflow, "9223372036854775807 + 1");
  EXPECT_FAILURE(amount(kLeast) + amount(-1), FailureKind::Overflow, "-9223372036854775808 + -1");
  EXPECT_FAILURE(amount(kLeast) - amount(1), FailureKind::Overflow, "-9223372036854775808 - 1");
  EXPECT_FAILURE(amount(kMost) - amount(-1), FailureKind::Overflow, "9223372036854775807 - -1");
  EXPECT_FAILURE(amount(0) - amount(kLeast), FailureKind::Overflow, "0 - -9223372036854775808");
  EXPECT_FAILURE(-amount(kLeast), FailureKind::Overflow, "-9223372036854775808");
}

TEST(Currency, AFailedSumLeavesTheAmountAlone) {
  Currency sum = amount(kMost);
  EXPECT_FAILURE(sum += amount(1), FailureKind::Overflow, "does not fit");
  EXPECT_EQ(sum, amount(kMost));
  sum -= amount(kMost);
  EXPECT_EQ(sum, Currency());
}

constexpr std::int64_t kWord = std::int64_t{1} << 32;

/// A number in two words, of which sums do not overflow.
struct Wide {
  explicit Wide(std::int64_t number) : Wide(number / kWord, number % kWord) {}

  friend Wide operator+(const Wide& a, const Wide& b) { return {a.high + b.high, a.low + b.low}; }
  friend Wide operator-(const Wide& a, const Wide& b) { return {a.high - b.high, a.low - b.low}; }

  bool fits64Bits() const { return high >= -(kWord / 2) && high < kWord / 2; }
  std::int64_t number() const { return high * kWord + low; }

  std::int64_t high;
  std::int64_t low;  /// from 0 to kWord - 1

 private:
  Wide(std::int64_t highs, std::int64_t lows) : high(highs + (lows >> 32)), low(lows & (kWord - 1)) {}
};

/// Often near an end of the range or its middle.
std::int64_t anyCount(std::mt19937_64& random) {
  const auto some = static_cast<std::int64_t>(random()) >> (random() % 64);
  switch (random() % 4) {
    case 0:
      return kMost - static_cast<std::int64_t>(random() % 4);
    case 1:
      return kLeast + static_cast<std::int64_t>(random() % 4);
    default:
      return some;
  }
}

template <class Work>
void expectCount(const Wide& exact, int& overflows, const Work& work) {
  if (exact.fits64Bits()) {
    ASSERT_EQ(work(), amount(exact.number()));
  } else {
    ++overflows;
    ASSERT_TRUE(test::failsWith(FailureKind::Overflow, "does not fit", [&] { (void)work(); }));
  }
}

TEST(Currency, RandomSumsAgreeWithWiderArithmetic) {
  std::mt19937_64 random(20'261'115);
  int overflows = 0;
  for (int i = 0; i < 50'000; ++i) {
    const std::int64_t a = anyCount(random);
    const std::int64_t b = anyCount(random);
    expectCount(Wide(a) + Wide(b), overflows, [&] { return amount(a) + amount(b); });
    expectCount(Wide(a) - Wide(b), overflows, [&] { return amount(a) - amount(b); });
    expectCount(Wide(0) - Wide(a), overflows, [&] { return -amount(a); });
    if (HasFatalFailure()) FAIL() << a << ", " << b;
  }
  EXPECT_GT(overflows, 1'000);
}

TEST(Currency, IsOrderedByValue) {
  EXPECT_LT(amount(kLeast), amount(0));
  EXPECT_LT(amount(0), amount(kMost));
  EXPECT_EQ(amount(5) <=> amount(5), std::strong_ordering::equal);
}

}  // namespace
}  // namespace qvn
