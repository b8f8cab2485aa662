// Amounts as the panels calculate them: out of texts, through doubles, and back into texts.
#include <gtest/gtest.h>
#include <string>

#include "qvn/shared/conversions.h"
#include "qvn/shared/patterns.h"
#include "tests/values/italian.h"

namespace qvn {
namespace {

double number(std::string_view text) { return toDouble(toCurrency(text, kItalian)); }

std::string currency(double value) { return format(value, Pattern::Currency, kItalian).str(); }

std::string percentOf(std::string_view base, std::string_view percent) {
  return currency(number(base) / 100.0 * number(percent));
}

TEST(WorkedExamples, APercentOfABase) {
  EXPECT_EQ(percentOf("€ 600,00", "12,50"), "€ 75,00");
  EXPECT_EQ(percentOf("€ 110,00", "10,00"), "€ 11,00");
  EXPECT_EQ(percentOf("€ 600,00", "5,00"), "€ 30,00");
  EXPECT_EQ(percentOf("€ 110,00", "5,00"), "€ 5,50");
  EXPECT_EQ(percentOf("€ 11,00", "30,00"), "€ 3,30");
  EXPECT_EQ(percentOf("€ 600,04", "12,5"), "€ 75,01");
}

TEST(WorkedExamples, AStepReadsTheRoundedTextOfTheStepBefore) {
  const std::string base = currency(333.33 / 1000.0 * number("250"));
  EXPECT_EQ(base, "€ 83,33");
  EXPECT_EQ(percentOf(base, "15,00"), "€ 12,50");
  EXPECT_EQ(percentOf(percentOf(base, "15,00"), "40,00"), "€ 5,00");
}

TEST(WorkedExamples, APercentIsCutToFourDecimalsHoweverItIsShown) {
  EXPECT_EQ(number("12,34567"), 12.3457);
  EXPECT_EQ(number("12,34565"), 12.3456);
}

TEST(WorkedExamples, AFigureOfTheLeadIsAddedInCurrency) {
  const Currency share = toCurrency(toDouble(Currency::of(100)) / 1000.0 * number("600"));
  EXPECT_EQ(format(share + Currency::of(50), Pattern::Currency, kItalian).view(), "€ 110,00");
}

TEST(WorkedExamples, AWithholding) { EXPECT_EQ(currency(34.80 / 100 * 23 + 65.50 / 100 * 23), "€ 23,07"); }

TEST(WorkedExamples, AFieldRewrittenUnderItsPatterns) {
  std::string field = "1234,565";
  field = formatText(field, Pattern::Currency, kItalian);
  EXPECT_EQ(field, "€ 1.234,57");
  EXPECT_EQ(toCurrency(field, kItalian).tenThousandths(), 12'345'700);
  field = formatText(field, Pattern::TwoDecimals, kItalian);
  EXPECT_EQ(field, "1234,57");
}

}  // namespace
}  // namespace qvn
