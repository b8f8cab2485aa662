// Numbers read back from the texts of widgets.
#include "qvn/fields/shown_number.h"

#include <gtest/gtest.h>

#include "tests/failure_matchers.h"
#include "tests/fields/field_bench.h"

namespace qvn::test {
namespace {

class ShownNumbers : public FieldBench {
 public:
  toolkit::TextBox& box(std::string_view text) {
    field("A").Text(text);
    return field("A");
  }
  toolkit::Label& label(std::string_view caption) {
    panel().label("Caption").Caption(caption);
    return panel().label("Caption");
  }
  static Currency tenThousandths(std::int64_t count) { return Currency::fromTenThousandths(count); }
};
QVN_ON_EVERY_PLATFORM(ShownNumbers);

TEST_P(ShownNumbers, AreReadAsMoneyInAnyFormToFourDecimals) {
  EXPECT_EQ(fields::currencyOf(box("1234,5")), tenThousandths(12'345'000));
  EXPECT_EQ(fields::currencyOf(box("-€ 1.234,56")), tenThousandths(-12'345'600));
  EXPECT_EQ(fields::currencyOf(box("0,00015")), tenThousandths(2));
  EXPECT_EQ(fields::currencyOf(box("0,00005")), tenThousandths(0));
  EXPECT_EQ(fields::currencyOf(label("€ 0,10")), tenThousandths(1'000));
  EXPECT_EQ(fields::currencyOf(label("1,00015")), tenThousandths(10'002));
}

TEST_P(ShownNumbers, AreReadAsDecimalsInFull) {
  EXPECT_EQ(fields::decimalOf(box("0,00005")), Decimal::of({5, 0, 0}, 5, false));
  EXPECT_EQ(fields::decimalOf(box("-12,50")), Decimal::of({125, 0, 0}, 1, true));
}

TEST_P(ShownNumbers, AreReadAsDoubles) {
  EXPECT_EQ(fields::doubleOf(box("0,00005")), 0.00005);
  EXPECT_EQ(fields::doubleOf(box("€ 1.012,5")), 1012.5);
}

TEST_P(ShownNumbers, AreReadAsWholeNumbersWithTiesToEven) {
  EXPECT_EQ(fields::int16Of(box("2,5")), 2);
  EXPECT_EQ(fields::int16Of(box("3,5")), 4);
  EXPECT_EQ(fields::int16Of(box("-32768")), -32768);
  EXPECT_EQ(fields::int16Of(label("2,5")), 2);
  EXPECT_EQ(fields::int32Of(label("2147483646,5")), 2'147'483'646);
  EXPECT_EQ(fields::int32Of(label("-2147483648")), -2'147'483'648);
  EXPECT_EQ(fields::byteOf(box("254,5")), 254);
  EXPECT_EQ(fields::byteOf(box("255")), 255);
}

TEST_P(ShownNumbers, FailNamingTheWidgetOnATextThatIsNone) {
  for (const auto text : {"", ",", "1.2", "dieci"}) {
    SCOPED_TRACE(text);
    EXPECT_FAILURE(fields::currencyOf(box(text)), FailureKind::TypeMismatch, "A: ");
    EXPECT_FAILURE(fields::currencyOf(label(text)), FailureKind::TypeMismatch, "Caption: ");
    EXPECT_FAILURE(fields::decimalOf(box(text)), FailureKind::TypeMismatch, "A: ");
    EXPECT_FAILURE(fields::doubleOf(box(text)), FailureKind::TypeMismatch, "A: ");
    EXPECT_FAILURE(fields::int16Of(box(text)), FailureKind::TypeMismatch, "A: ");
    EXPECT_FAILURE(fields::int32Of(label(text)), FailureKind::TypeMismatch, "Caption: ");
    EXPECT_FAILURE(fields::byteOf(box(text)), FailureKind::TypeMismatch, "A: ");
  }
}

TEST_P(ShownNumbers, FailNamingTheWidgetBeyondTheirRange) {
  EXPECT_FAILURE(fields::currencyOf(box("922337203685477,5808")), FailureKind::Overflow, "A: ");
  EXPECT_EQ(fields::currencyOf(box("922337203685477,5807")), tenThousandths(9'223'372'036'854'775'807));
  EXPECT_FAILURE(fields::currencyOf(label("1E+15")), FailureKind::Overflow, "Caption: ");
  EXPECT_FAILURE(fields::decimalOf(box("1E+29")), FailureKind::Overflow, "A: ");
  EXPECT_FAILURE(fields::doubleOf(box("1E+309")), FailureKind::Overflow, "A: ");
  EXPECT_FAILURE(fields::int16Of(box("32768")), FailureKind::Overflow, "A: ");
  EXPECT_FAILURE(fields::int32Of(label("2147483648")), FailureKind::Overflow, "Caption: ");
  EXPECT_FAILURE(fields::byteOf(box("256")), FailureKind::Overflow, "A: ");
  EXPECT_FAILURE(fields::byteOf(box("-1")), FailureKind::Overflow, "A: ");
}

TEST_P(ShownNumbers, AreReadInThePlatformsLocale) {
  setLocale({.decimalSign = '.', .groupingSign = ',', .symbol = "$"});
  EXPECT_EQ(fields::currencyOf(box("$ 1,234.5")), tenThousandths(12'345'000));
  EXPECT_EQ(fields::currencyOf(label("7.25")), tenThousandths(72'500));
  EXPECT_EQ(fields::decimalOf(box("7.25")), Decimal::of({725, 0, 0}, 2, false));
  EXPECT_EQ(fields::doubleOf(box("7.25")), 7.25);
  EXPECT_EQ(fields::int16Of(box("7.25")), 7);
  EXPECT_EQ(fields::byteOf(box("7.25")), 7);
}

}  // namespace
}  // namespace qvn::test
