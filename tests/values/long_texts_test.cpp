// Texts of more digits than any number type holds.
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "qvn/shared/conversions.h"
#include "qvn/shared/patterns.h"
#include "tests/failure_matchers.h"
#include "tests/values/italian.h"

namespace qvn {
namespace {

constexpr std::size_t kMany = 5'000;

std::string zeros(std::size_t count) { return std::string(count, '0'); }
std::string nines(std::size_t count) { return std::string(count, '9'); }

TEST(LongTexts, ZerosInFrontChangeNothing) {
  const std::string text = zeros(kMany) + "12,5";
  EXPECT_EQ(toCurrency(text, kItalian).tenThousandths(), 125'000);
  EXPECT_EQ(toDouble(text, kItalian), 12.5);
  EXPECT_EQ(toInt16(text, kItalian), 12);
  EXPECT_EQ(toDecimal(text, kItalian), Decimal::of({125, 0, 0}, 1, false));
  EXPECT_EQ(formatText(text, Pattern::Currency, kItalian), "€ 12,50");
}

TEST(LongTexts, ZerosAtTheEndChangeNothing) {
  const std::string text = "12,5" + zeros(kMany);
  EXPECT_EQ(toCurrency(text, kItalian).tenThousandths(), 125'000);
  EXPECT_EQ(toDouble(text, kItalian), 12.5);
  EXPECT_EQ(toInt16(text, kItalian), 12);
  EXPECT_EQ(toDecimal(text, kItalian), Decimal::of({125, 0, 0}, 1, false));
  EXPECT_EQ(formatText(text, Pattern::TwoDecimals, kItalian), "12,50");
}

TEST(LongTexts, TheLastDigitOfThousandsStillCounts) {
  const std::string tie = "1,00005" + zeros(kMany);
  EXPECT_EQ(toCurrency(tie, kItalian).tenThousandths(), 10'000);
  EXPECT_EQ(toCurrency(tie + "1", kItalian).tenThousandths(), 10'001);
  EXPECT_EQ(toInt32("2,5" + zeros(kMany), kItalian), 2);
  EXPECT_EQ(toInt32("2,5" + zeros(kMany) + "1", kItalian), 3);
  EXPECT_EQ(toDouble("9007199254740993," + zeros(kMany), kItalian), 9007199254740992.0);
  EXPECT_EQ(toDouble("9007199254740993," + zeros(kMany) + "1", kItalian), 9007199254740994.0);
  EXPECT_EQ(formatText("0,00" + nines(kMany), Pattern::TwoDecimals, kItalian), "0,01");
  EXPECT_EQ(formatText("0,004" + nines(kMany), Pattern::TwoDecimals, kItalian), "0,00");
}

TEST(LongTexts, SmallNumbersFarBehindTheDecimalSign) {
  const std::string text = "0," + zeros(kMany) + "7";
  EXPECT_EQ(toCurrency(text, kItalian).tenThousandths(), 0);
  EXPECT_EQ(toDouble(text, kItalian), 0.0);
  EXPECT_EQ(toDecimal(text, kItalian), Decimal());
  EXPECT_EQ(toCurrency(text + "E+5001", kItalian).tenThousandths(), 70'000);
  EXPECT_EQ(toDouble(text + "E+5001", kItalian), 7.0);
  EXPECT_EQ(formatText("-" + text, Pattern::Currency, kItalian), "€ 0,00");
}

TEST(LongTexts, LargeNumbersOverflow) {
  const std::string text = nines(kMany);
  EXPECT_FAILURE(toCurrency(text, kItalian), FailureKind::Overflow, "999…\" does not fit a currency amount");
  EXPECT_FAILURE(toDouble(text, kItalian), FailureKind::Overflow, "999…\" does not fit a double");
  EXPECT_FAILURE(toDecimal(text, kItalian), FailureKind::Overflow, "999…\" does not fit a decimal");
  EXPECT_FAILURE(toInt32(text, kItalian), FailureKind::Overflow, "999…\" does not fit a 32-bit integer");
  EXPECT_EQ(toDouble("1" + zeros(kMany) + "E-5000", kItalian), 1.0);
  EXPECT_EQ(toCurrency("1" + zeros(kMany) + "E-5000", kItalian).tenThousandths(), 10'000);
}

TEST(LongTexts, GroupsMayGoOnForThousandsOfDigits) {
  std::string text = "1";
  for (std::size_t i = 0; i < kMany; ++i) text += ".000";
  EXPECT_TRUE(isNumber(text, kItalian));
  EXPECT_FAILURE(toCurrency(text, kItalian), FailureKind::Overflow, "does not fit");
  EXPECT_FALSE(isNumber(text + ".00", kItalian));
}

TEST(LongTexts, PatternsShowEachDigitAsFarAsTheRangeOfADouble) {
  EXPECT_EQ(formatText(nines(25) + ",994", Pattern::TwoDecimals, kItalian), nines(25) + ",99");
  EXPECT_EQ(formatText(nines(25) + ",995", Pattern::TwoDecimals, kItalian), "1" + zeros(25) + ",00");
  EXPECT_EQ(formatText("-" + nines(309) + ",99", Pattern::TwoDecimals, kItalian), "-" + nines(309) + ",99");
  EXPECT_EQ(formatText(nines(309) + ",999", Pattern::TwoDecimals, kItalian), "1" + zeros(309) + ",00");
  const Locale wide{.symbol = "symbolsymbolsymbolsymbolsymbolsymbolsymbolsymbolsymbolsymbolsymb",
                    .negative = NegativeForm::Brackets,
                    .currencyDecimals = 4};
  const std::string longest = formatText("-" + nines(309) + ",99999", Pattern::Currency, wide);
  EXPECT_EQ(longest.size(), 1 + 64 + 1 + 310 + 103 + 5 + 1);
  EXPECT_LE(longest.size(), FormattedText::kCapacity);
  EXPECT_EQ(formatText(nines(310), Pattern::TwoDecimals, kItalian), nines(310));
  EXPECT_EQ(formatText("1E+310", Pattern::Currency, kItalian), "1E+310");
}

TEST(LongTexts, AZeroIsWrittenWhateverItsExponent) {
  EXPECT_EQ(formatText("0E+310", Pattern::TwoDecimals, kItalian), "0,00");
  EXPECT_EQ(formatText("-0,00E+99999", Pattern::Currency, kItalian), "€ 0,00");
  EXPECT_EQ(formatText("0E-310", Pattern::TwoDecimals, kItalian), "0,00");
}

TEST(LongTexts, MessagesAreCutAtACharacter) {
  EXPECT_FAILURE(toCurrency(std::string(79, 'a') + "€€€", kItalian), FailureKind::TypeMismatch,
                 "the text \"" + std::string(79, 'a') + "…\" is no number");
  EXPECT_FAILURE(toCurrency(std::string(80, 'a'), kItalian), FailureKind::TypeMismatch,
                 "the text \"" + std::string(80, 'a') + "\" is no number");
}

TEST(LongTexts, ALeadingNumberIsReadToItsEnd) {
  EXPECT_EQ(leadingNumber(zeros(kMany) + "12.5x"), 12.5);
  EXPECT_EQ(leadingNumber(nines(kMany)), std::numeric_limits<double>::max());
  EXPECT_EQ(leadingNumber("-" + nines(kMany)), -std::numeric_limits<double>::max());
  EXPECT_EQ(leadingNumber("0." + zeros(kMany) + "1"), 0.0);
}

}  // namespace
}  // namespace qvn
