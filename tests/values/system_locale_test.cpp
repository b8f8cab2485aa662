// The system's locale, whatever it is, changes no text.
#include <clocale>
#include <gtest/gtest.h>
#include <locale>
#include <string>
#include <vector>

#include "qvn/shared/conversions.h"
#include "qvn/shared/patterns.h"
#include "tests/failure_matchers.h"

namespace qvn {
namespace {

/// Numbers with other signs, in groups of one.
class OtherNumbers : public std::numpunct<char> {
 public:
  OtherNumbers(char decimalSign, char groupingSign) : decimalSign_(decimalSign), groupingSign_(groupingSign) {}

 private:
  char do_decimal_point() const override { return decimalSign_; }
  char do_thousands_sep() const override { return groupingSign_; }
  std::string do_grouping() const override { return "\1"; }
  std::string do_truename() const override { return "yes"; }

  char decimalSign_;
  char groupingSign_;
};

std::vector<std::string> sample() {
  const Locale italian;
  std::vector<std::string> texts;
  for (Pattern pattern : {Pattern::General, Pattern::Currency, Pattern::TwoDecimals}) {
    texts.push_back(format(1234567.125, pattern, italian).str());
    texts.push_back(format(1.5e20, pattern, italian).str());
    texts.push_back(format(-1234567, pattern, italian).str());
    texts.push_back(format(Currency::fromTenThousandths(-12'345'678'900), pattern, italian).str());
    texts.push_back(format(toDecimal("1234567,125", italian), pattern, italian).str());
    texts.push_back(formatText("1.234.567,125", pattern, italian));
    texts.push_back(formatValue(true, pattern, italian));
  }
  texts.push_back(std::to_string(toCurrency("€ 1.234.567,125", italian).tenThousandths()));
  texts.push_back(std::to_string(toCurrency(1234567.125).tenThousandths()));
  texts.emplace_back(toDouble("1.234.567,125", italian) == 1234567.125 ? "the nearest double" : "another double");
  texts.emplace_back(leadingNumber("1234.5x") == 1234.5 ? "the leading number" : "another number");
  for (const char* none : {"1#5", "1~234", "x"}) {
    texts.emplace_back(isNumber(none, italian) ? "a number" : "no number");
  }
  try {
    toByte("1.234,5", italian);
  } catch (const Failure& failure) {
    texts.emplace_back(failure.what());
  }
  return texts;
}

class SystemLocale : public testing::Test {
 protected:
  const std::vector<std::string> expected_ = sample();

  void TearDown() override {
    std::locale::global(std::locale::classic());
    std::setlocale(LC_ALL, "C");
  }
};

TEST_F(SystemLocale, OfTheCppLibraryMeansNothing) {
  struct Signs {
    char decimal, grouping;
  };
  for (const Signs signs : {Signs{'#', '~'}, {',', '.'}, {'.', ','}}) {
    // The locale owns its facet.
    std::locale::global(std::locale(std::locale::classic(), new OtherNumbers(signs.decimal, signs.grouping)));
    ASSERT_EQ(std::use_facet<std::numpunct<char>>(std::locale()).decimal_point(), signs.decimal);
    EXPECT_EQ(sample(), expected_) << signs.decimal;
  }
}

TEST_F(SystemLocale, OfTheCLibraryMeansNothingAsFarAsTheMachineHasAny) {
  // Each system has names of its own. Only a machine with more than "C" tells of another decimal sign.
  int had = 0;
  for (const char* name : {"C", "C.utf8", "it_IT.utf8", "de_DE.utf8", "en_US.utf8", "fr_FR.utf8", "tr_TR.utf8",
                           "Italian", "German", "English", "French", "Turkish"}) {
    if (std::setlocale(LC_ALL, name) == nullptr) continue;
    ++had;
    EXPECT_EQ(sample(), expected_) << name;
  }
  EXPECT_GT(had, 0);
}

}  // namespace
}  // namespace qvn
