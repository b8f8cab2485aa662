// The library's values as Qt's, and back.
#include "platforms/qt/variants.h"

#include <QDate>
#include <QPoint>
#include <gtest/gtest.h>

#include "qvn/shared/Globale.h"
#include "tests/failure_matchers.h"

namespace qvn::test {
namespace {

const Currency kAmount = Currency::fromTenThousandths(12'345'678);

TEST(QtVariants, OfEveryKindComeBackAsTheyWere) {
  const CurrencyArray row{.extents = {2}, .values = {kAmount, Currency::of(3)}};
  const CurrencyArray table{.extents = {2, 1}, .values = {kAmount, Currency::of(3)}};
  for (const Variant& value :
       {Variant(Empty{}), Variant(Null{}), Variant(true), Variant(std::int32_t{-7}), Variant(12.5), Variant(kAmount),
        Variant(Decimal::of({125, 0, 0}, 1, false)), Variant(*Date::of(15, 11, 2026)), Variant(Date{}),
        Variant(std::string("più €")), Variant(row), Variant(table), Variant(Globale::Eventi())}) {
    EXPECT_EQ(qt::fromQt(qt::toQt(value)), value) << kindName(value);
  }
  EXPECT_EQ(qt::fromQt(qt::toQt(std::uint8_t{7})), Variant(std::int32_t{7}));
  EXPECT_EQ(qt::fromQt(qt::toQt(std::int16_t{-7})), Variant(std::int32_t{-7}));
}

TEST(QtVariants, AreWhatQtWouldHaveThem) {
  EXPECT_EQ(qt::toQt(std::int16_t{12}), QVariant(12));
  EXPECT_EQ(qt::toQt(std::string("però")), QVariant(QStringLiteral("però")));
  EXPECT_EQ(qt::toQt(*Date::of(15, 11, 2026)), QVariant(QDate(2026, 11, 15)));
  EXPECT_FALSE(qt::toQt(Empty{}).isValid());
  EXPECT_TRUE(qt::toQt(Null{}).isNull());
}

TEST(QtVariants, AmountsAreExactAndTellTheirText) {
  EXPECT_EQ(qt::toQt(kAmount).value<Currency>(), kAmount);
  EXPECT_EQ(qt::toQt(kAmount).toString(), QStringLiteral("1234,5678"));
  EXPECT_EQ(qt::toQt(Decimal::of({125, 0, 0}, 1, false)).toString(), QStringLiteral("12,5"));
}

TEST(QtVariants, ADateThatIsNoneIsNull) {
  EXPECT_EQ(qt::fromQt(QVariant(QDate())), Variant(Null{}));
  EXPECT_EQ(qt::fromQt(QVariant(QDate(2026, 2, 30))), Variant(Null{}));
}

TEST(QtVariants, LongIntegersStayExact) {
  EXPECT_EQ(qt::fromQt(QVariant(qlonglong{9'007'199'254'740'993})), Variant(Decimal::of(9'007'199'254'740'993)));
}

TEST(QtVariants, WhatTheLibraryDoesNotHoldIsRefused) {
  EXPECT_FAILURE(qt::fromQt(QVariant(QPoint(1, 2))), FailureKind::TypeMismatch, "QPoint");
  EXPECT_FAILURE(qt::fromQt(QVariantList{QVariantList{1, 2}, QVariantList{1}}), FailureKind::InvalidCall,
                 "not equally long");
  EXPECT_FAILURE(qt::fromQt(QVariantList{QStringLiteral("x")}), FailureKind::TypeMismatch, "x");
}

}  // namespace
}  // namespace qvn::test
