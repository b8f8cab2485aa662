// A column's value as a panel's property takes it, and what a property gives as it is stored.
#include "hosts/ufficio/field.h"

#include <gtest/gtest.h>
#include <limits>

#include "qvn/shared/failure.h"

namespace qvn::test {
namespace {

using ufficio::Kind;
using ufficio::shown;
using ufficio::stored;
using ufficio::Value;

constexpr std::monostate kNull;

Variant amount(std::int64_t tenThousandths) { return Currency::fromTenThousandths(tenThousandths); }
Variant day(int day, int month, int year) { return Date::of(day, month, year).value(); }
Value text(std::string_view text) { return std::string(text); }

TEST(OfficeField, ShowsTexts) {
  EXPECT_EQ(shown(text("à 'b'"), Kind::Text), Variant(std::string("à 'b'")));
  EXPECT_EQ(shown(kNull, Kind::Text), Variant(std::string()));
  EXPECT_EQ(shown(std::int64_t{7}, Kind::Text), Variant(std::string("7")));
}

TEST(OfficeField, ShowsWholeNumbers) {
  EXPECT_EQ(shown(std::int64_t{22}, Kind::Number), Variant(std::int32_t{22}));
  EXPECT_EQ(shown(kNull, Kind::Number), Variant(std::int32_t{0}));
  const std::int64_t large = std::numeric_limits<std::int64_t>::max();
  EXPECT_EQ(shown(large, Kind::Number), Variant(Decimal::of(large)));
}

TEST(OfficeField, ShowsAmountsInEveryStorage) {
  EXPECT_EQ(shown(std::int64_t{120}, Kind::Amount), amount(1'200'000));
  EXPECT_EQ(shown(1234.56, Kind::Amount), amount(12'345'600));
  EXPECT_EQ(shown(text("-1234.5"), Kind::Amount), amount(-12'345'000));
  EXPECT_EQ(shown(kNull, Kind::Amount), amount(0));
}

TEST(OfficeField, ShowsFlags) {
  EXPECT_EQ(shown(std::int64_t{-1}, Kind::Flag), Variant(true));
  EXPECT_EQ(shown(std::int64_t{1}, Kind::Flag), Variant(true));
  EXPECT_EQ(shown(std::int64_t{0}, Kind::Flag), Variant(false));
}

TEST(OfficeField, ShowsDays) {
  EXPECT_EQ(shown(text("2024-02-29"), Kind::Day), day(29, 2, 2024));
  EXPECT_EQ(shown(kNull, Kind::Day), Variant(Date()));
  EXPECT_THROW(shown(text("2023-02-29"), Kind::Day), Failure);
  EXPECT_THROW(shown(text("29/02/2024"), Kind::Day), Failure);
}

TEST(OfficeField, StoresWhatIsGiven) {
  EXPECT_EQ(stored(std::string("à 'b'"), Kind::Text), text("à 'b'"));
  EXPECT_EQ(stored(std::uint8_t{22}, Kind::Number), Value(std::int64_t{22}));
  EXPECT_EQ(stored(std::string("22"), Kind::Number), Value(std::int64_t{22}));
  EXPECT_EQ(stored(amount(12'345'600), Kind::Amount), text("1234.56"));
  EXPECT_EQ(stored(amount(-10'000), Kind::Amount), text("-1"));
  EXPECT_EQ(stored(true, Kind::Flag), Value(std::int64_t{1}));
  EXPECT_EQ(stored(false, Kind::Flag), Value(std::int64_t{0}));
}

TEST(OfficeField, StoresDaysFromDatesAndFromTheirTexts) {
  EXPECT_EQ(stored(day(1, 3, 2024), Kind::Day), text("2024-03-01"));
  EXPECT_EQ(stored(std::string("01/03/2024"), Kind::Day), text("2024-03-01"));
  EXPECT_EQ(stored(Date(), Kind::Day), Value(kNull));
  EXPECT_EQ(stored(std::string(), Kind::Day), Value(kNull));
  EXPECT_EQ(stored(std::string("0.00.00"), Kind::Day), Value(kNull));
  EXPECT_THROW(stored(std::string("31/02/2024"), Kind::Day), Failure);
}

TEST(OfficeField, StoresNoTextThatIsNoNumber) {
  EXPECT_THROW(stored(std::string(), Kind::Number), Failure);
  EXPECT_THROW(stored(std::string("x"), Kind::Amount), Failure);
}

}  // namespace
}  // namespace qvn::test
