#include <compare>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "qvn/shared/clsQVN_Eventi.h"
#include "qvn/shared/variant.h"
#include "tests/failure_matchers.h"

namespace qvn {
namespace {

using namespace std::string_literals;

constexpr auto kLess = std::partial_ordering::less;
constexpr auto kSame = std::partial_ordering::equivalent;
constexpr auto kGreater = std::partial_ordering::greater;
constexpr auto kUnordered = std::partial_ordering::unordered;

Currency currency(std::int64_t count) { return Currency::fromTenThousandths(count); }

std::partial_ordering reversed(std::partial_ordering order) {
  return std::is_lt(order) ? kGreater : std::is_gt(order) ? kLess : order;
}

/// Both ways round.
void expect(const Variant& a, std::partial_ordering order, const Variant& b) {
  EXPECT_TRUE(compare(a, b) == order) << kindName(a) << ", " << kindName(b);
  EXPECT_TRUE(compare(b, a) == reversed(order)) << kindName(b) << ", " << kindName(a);
}

std::vector<Variant> oneOfEachKind() {
  return {Empty{},         true, std::uint8_t{1}, std::int16_t{1},
          std::int32_t{1}, 1.0,  currency(1),     Decimal(),
          Date(),          "1"s, CurrencyArray{}, std::make_shared<clsQVN_Eventi>()};
}

TEST(Compare, ANullIsUnorderedToAll) {
  for (const Variant& value : oneOfEachKind()) expect(Null{}, kUnordered, value);
  expect(Null{}, kUnordered, Null{});
}

TEST(Compare, AnEmptyIsTheEmptyTextOrZero) {
  expect(Empty{}, kSame, Empty{});
  expect(Empty{}, kSame, ""s);
  expect(Empty{}, kLess, "a"s);
  expect(Empty{}, kLess, "0"s);
  expect(Empty{}, kSame, std::int16_t{0});
  expect(Empty{}, kSame, 0.0);
  expect(Empty{}, kSame, currency(0));
  expect(Empty{}, kSame, Decimal());
  expect(Empty{}, kSame, Date());
  expect(Empty{}, kSame, false);
  expect(Empty{}, kGreater, true);
  expect(Empty{}, kLess, 0.5);
  expect(Empty{}, kGreater, currency(-1));
}

TEST(Compare, NumbersCompareByValue) {
  const std::vector<Variant> twelve{std::uint8_t{12},  std::int16_t{12},
                                    std::int32_t{12},  12.0,
                                    Currency::of(12),  Decimal::of({1200, 0, 0}, 2, false),
                                    Date::fromDays(12)};
  for (const Variant& a : twelve) {
    for (const Variant& b : twelve) expect(a, kSame, b);
    expect(a, kLess, 12.5);
    expect(a, kLess, currency(120'001));
    expect(a, kGreater, Decimal::of({11'999, 0, 0}, 3, false));
    expect(a, kGreater, std::int16_t{-12});
    expect(a, kGreater, true);
  }
  expect(true, kSame, std::int16_t{-1});
  expect(true, kSame, currency(-10'000));
  expect(false, kSame, std::uint8_t{0});
  expect(*Date::of(1, 1, 2026), kLess, *Date::of(2, 1, 2026));
}

TEST(Compare, ADoubleMeetsAnyOtherNumberByItsFifteenDigits) {
  const double aboveOne = 1.0000000000000002;
  const double belowDay = 45'999.999999999993;  // 46000 in 15 digits
  expect(aboveOne, kSame, std::uint8_t{1});
  expect(aboveOne, kSame, std::int16_t{1});
  expect(aboveOne, kSame, std::int32_t{1});
  expect(aboveOne, kSame, currency(10'000));
  expect(aboveOne, kSame, Decimal::of(1));
  expect(aboveOne, kSame, Date::fromDays(1));
  expect(-aboveOne, kSame, true);
  expect(belowDay, kSame, Date::fromDays(46'000));
  expect(belowDay, kSame, std::int32_t{46'000});
  expect(1.00000000000001, kGreater, std::int32_t{1});
  expect(0.1, kSame, currency(1'000));
  expect(600.04 / 100 * 12.5, kSame, currency(750'050));
  expect(600.04 / 100 * 12.5, kSame, Decimal::of({75'005, 0, 0}, 3, false));
  expect(0.1 + 0.2, kSame, currency(3'000));
  expect(1e300, kGreater, currency(std::numeric_limits<std::int64_t>::max()));
  expect(-1e300, kLess, Decimal());
  expect(1e-300, kGreater, Decimal());
}

TEST(Compare, TwoDoublesCompareExactly) {
  expect(0.1 + 0.2, kGreater, 0.3);
  expect(1.0000000000000002, kGreater, 1.0);
  expect(0.0, kSame, -0.0);
}

TEST(Compare, EachDigitOfAmountsAndDecimalsCounts) {
  expect(currency(std::numeric_limits<std::int64_t>::max()), kGreater,
         currency(std::numeric_limits<std::int64_t>::max() - 1));
  expect(currency(std::numeric_limits<std::int64_t>::min()), kSame, Decimal::of({0, 0x8000'0000, 0}, 4, true));
  expect(Decimal::of({1, 0, 1}, 0, false), kGreater, Decimal::of({0, 0, 1}, 0, false));
}

TEST(Compare, WhatIsNoFiniteNumber) {
  const double infinity = std::numeric_limits<double>::infinity();
  const double none = std::numeric_limits<double>::quiet_NaN();
  expect(infinity, kGreater, currency(std::numeric_limits<std::int64_t>::max()));
  expect(-infinity, kLess, Decimal());
  expect(infinity, kSame, infinity);
  expect(infinity, kGreater, 1e308);
  expect(none, kUnordered, none);
  expect(none, kUnordered, currency(1));
  expect(none, kUnordered, std::int16_t{1});
  expect(none, kLess, "x"s);
}

TEST(Compare, TextsCompareExactly) {
  expect("a"s, kSame, "a"s);
  expect("a"s, kGreater, "A"s);
  expect("10"s, kLess, "9"s);
  expect("a"s, kLess, "a "s);
  expect("è"s, kGreater, "z"s);
  expect("15/11/2026"s, kSame, "15/11/2026"s);
}

TEST(Compare, ANumberStandsBeforeAnyText) {
  for (const Variant& value : oneOfEachKind()) {
    if (isEmpty(value) || std::holds_alternative<std::string>(value) || std::holds_alternative<CurrencyArray>(value) ||
        std::holds_alternative<EventsReference>(value)) {
      continue;
    }
    expect(value, kLess, ""s);
    expect(value, kLess, "1"s);
    expect(value, kLess, "-5"s);
  }
}

TEST(Compare, ArraysAreEquivalentOrUnordered) {
  const CurrencyArray array{.extents = {1}, .values = {currency(1)}};
  expect(array, kSame, array);
  expect(array, kUnordered, CurrencyArray{});
  expect(array, kUnordered, currency(1));
  expect(array, kUnordered, "1"s);
  expect(array, kUnordered, Empty{});
}

TEST(Compare, ReferencesAreEquivalentIfTheyAreToOneObject) {
  const Variant one = std::make_shared<clsQVN_Eventi>();
  expect(one, kSame, Variant(one));
  expect(one, kUnordered, std::make_shared<clsQVN_Eventi>());
  expect(one, kUnordered, currency(1));
  expect(one, kUnordered, "object"s);
  expect(one, kUnordered, CurrencyArray{});
}

TEST(Variant, KindsHaveNames) {
  std::vector<std::string_view> names{kindName(Null{})};
  for (const Variant& value : oneOfEachKind()) names.push_back(kindName(value));
  const std::vector<std::string_view> expected{
      "Null",    "Empty", "boolean", "8-bit unsigned integer", "16-bit integer", "32-bit integer", "double", "currency",
      "decimal", "date",  "text",    "array of currency",      "object"};
  EXPECT_EQ(names, expected);
}

TEST(Variant, EmptyAndNullAreNotTheEmptyTextOrZero) {
  EXPECT_TRUE(isEmpty(Variant()));
  EXPECT_FALSE(isNull(Variant()));
  EXPECT_FALSE(isEmpty(Null{}));
  EXPECT_FALSE(isEmpty(""s));
  EXPECT_FALSE(isNull(0.0));
}

TEST(CurrencyArray, IsReadByItsIndexes) {
  const CurrencyArray row{.extents = {3}, .values = {currency(1), currency(2), currency(3)}};
  EXPECT_EQ(row.at(0), currency(1));
  EXPECT_EQ(row.at(2), currency(3));
  const CurrencyArray table{
      .extents = {2, 3},
      .values = {currency(11), currency(12), currency(13), currency(21), currency(22), currency(23)}};
  EXPECT_EQ(table.at(0, 2), currency(13));
  EXPECT_EQ(table.at(1, 0), currency(21));
}

TEST(CurrencyArray, FailsOutsideItsExtents) {
  const CurrencyArray row{.extents = {3}, .values = std::vector<Currency>(3)};
  const CurrencyArray table{.extents = {2, 3}, .values = std::vector<Currency>(6)};
  EXPECT_FAILURE(row.at(3), FailureKind::SubscriptOutOfRange, "no element (3) in an array of 3 amounts");
  EXPECT_FAILURE(row.at(0, 0), FailureKind::SubscriptOutOfRange, "(0, 0)");
  EXPECT_FAILURE(table.at(0), FailureKind::SubscriptOutOfRange, "(0)");
  EXPECT_FAILURE(table.at(0, 3), FailureKind::SubscriptOutOfRange, "no element (0, 3) in an array of 2 × 3 amounts");
  EXPECT_FAILURE(table.at(2, 0), FailureKind::SubscriptOutOfRange, "(2, 0)");
  constexpr auto kMostIndex = static_cast<std::size_t>(-1);
  EXPECT_FAILURE(table.at(kMostIndex, 0), FailureKind::SubscriptOutOfRange, std::to_string(kMostIndex));
  EXPECT_FAILURE(CurrencyArray{}.at(0), FailureKind::SubscriptOutOfRange, "(0)");
  const CurrencyArray broken{.extents = {3}, .values = {currency(1)}};
  EXPECT_FAILURE(broken.at(2), FailureKind::SubscriptOutOfRange, "(2)");
}

}  // namespace
}  // namespace qvn
