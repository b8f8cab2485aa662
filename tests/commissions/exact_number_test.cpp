// The model's own arithmetic on figures worked out by hand.
#include "tests/commissions/exact_number.h"

#include <gtest/gtest.h>

#include "tests/commissions/text_field_model.h"

namespace qvn::test {
namespace {

Exact of(std::string_view text) { return pointed(text); }

TEST(ExactNumber, ReadsTheTextsOfTheOffice) {
  struct Reading {
    std::string_view text;
    std::string_view number;
  };
  for (const Reading& one : std::vector<Reading>{{"12,5", "12.5"},
                                                 {"€ 1.234,56", "1234.56"},
                                                 {"-€ 1.234.567,89", "-1234567.89"},
                                                 {"€ -1,00", "-1"},
                                                 {" 7 ", "7"},
                                                 {",5", "0.5"},
                                                 {"5,", "5"},
                                                 {"5 €", "5"},
                                                 {"5-", "-5"},
                                                 {"0012", "12"}}) {
    SCOPED_TRACE(one.text);
    const auto number = numberOf(one.text);
    ASSERT_TRUE(number);
    EXPECT_TRUE(equal(*number, of(one.number)));
  }
  for (const std::string_view none : {"", ",", "1.2", "1.23,4", "0.123", ".123", "1.2345", "12.34.567", "5 7", "--5",
                                      "€€5", "5€7", "abc", "1,2,3", "-", "€", "12x"}) {
    SCOPED_TRACE(none);
    EXPECT_FALSE(numberOf(none));
  }
}

TEST(ExactNumber, WritesTheFormsOfABox) {
  EXPECT_EQ(currencyForm(of("1234567.891")), "€ 1.234.567,89");
  EXPECT_EQ(currencyForm(of("-1234.565")), "-€ 1.234,57");
  EXPECT_EQ(currencyForm(of("-0.004")), "€ 0,00");
  EXPECT_EQ(currencyForm(of("123456")), "€ 123.456,00");
  EXPECT_EQ(plainForm(of("2.345")), "2,35");
  EXPECT_EQ(plainForm(of("-2.345")), "-2,35");
  EXPECT_EQ(plainForm(of("1234")), "1234,00");
  EXPECT_EQ(generalForm(of("12.50")), "12,5");
  EXPECT_EQ(generalForm(of("-40000")), "-40000");
  EXPECT_EQ(plainForm("€ 1.234,5"), "1234,50");
  EXPECT_EQ(currencyForm("12x"), "12x");
}

TEST(ExactNumber, RoundsToCurrencyTiesToEven) {
  EXPECT_EQ(currencyOf("1,00005"), 10'000);
  EXPECT_EQ(currencyOf("1,00015"), 10'002);
  EXPECT_EQ(currencyOf("-1,00015"), -10'002);
  EXPECT_EQ(currencyOf("922337203685477,5807"), INT64_MAX);
  EXPECT_THROW(currencyOf("922337203685477,5808"), ModelFailed);
  EXPECT_THROW(currencyOf("12345678901234567890"), ModelFailed);
  EXPECT_THROW(currencyOf(","), ModelFailed);
  EXPECT_THROW(sumOf(INT64_MAX, 1), ModelFailed);
}

TEST(ExactNumber, ReadsDecimalsOf96Bits) {
  EXPECT_TRUE(equal(decimalOf("12,50"), of("12.5")));
  EXPECT_THROW(decimalOf("79228162514264337593543950336"), ModelFailed);
  EXPECT_THROW(decimalOf("79228162514264337593543950335"), Undecided);
  EXPECT_THROW(decimalOf("1,,"), ModelFailed);
}

TEST(ExactNumber, ReadsLeadingNumbers) {
  EXPECT_TRUE(equal(leading("12,50"), of("12")));
  EXPECT_TRUE(equal(leading("12.5%)"), of("12.5")));
  EXPECT_TRUE(equal(leading("  00120 - ROSSI"), of("120")));
  EXPECT_TRUE(equal(leading("-7 - "), of("-7")));
  EXPECT_TRUE(equal(leading("0,50"), Exact{}));
  EXPECT_TRUE(equal(leading("€ 5"), Exact{}));
  EXPECT_TRUE(equal(leading(""), Exact{}));
}

TEST(ExactNumber, ComputesWhatFifteenDigitsShow) {
  const auto money = [](const Exact& value) { return currencyForm(value); };
  // In binary 75.00499999999999.
  EXPECT_EQ(Computed::product(of("600.04"), of("12.5"), 2).decided(money), "€ 75,01");
  EXPECT_EQ(Computed::product(of("333.33"), of("250"), 3).decided(money), "€ 83,33");
  EXPECT_EQ(Computed::product(of("0.01"), of("50"), 2).decided(money), "€ 0,01");
  EXPECT_EQ(Computed::product(of("0"), of("12.5"), 2).decided(money), "€ 0,00");
  const Computed both = Computed::product(of("34.80"), of("23"), 2) + Computed::product(of("65.50"), of("23"), 2);
  EXPECT_EQ(both.decided(money), "€ 23,07");
  const Computed nothing = Computed::product(of("34.80"), of("23"), 2) + Computed::product(of("-34.80"), of("23"), 2);
  EXPECT_EQ(nothing.decided(money), "€ 0,00");
  // Half-way between two amounts of 15 digits: the last bit of the double decides, and no answer is better than a
  // guess.
  EXPECT_THROW(Computed::product(of("8999999999999.995"), of("100"), 2).decided(money), Undecided);
}

TEST(TextFieldModel, EditsAtItsCaret) {
  TextFieldModel field{.text = U"€ 12"};
  field.selectAll();
  field.replace(U"7");
  EXPECT_EQ(encoded(field.text), "7");
  field.replace(U"€");
  EXPECT_EQ(encoded(field.text), "7€");
  field.left();
  EXPECT_TRUE(field.backspace());
  EXPECT_FALSE(field.backspace());
  EXPECT_TRUE(field.erase());
  EXPECT_FALSE(field.erase());
  EXPECT_EQ(decoded("è€"), U"è€");
}

TEST(TextFieldModel, FiltersKeysOfNumbers) {
  TextFieldModel field{.text = U"1,25"};
  EXPECT_EQ(field.filtered(U'3'), 0U);
  field.select(0, 1);
  EXPECT_EQ(field.filtered(U'3'), U'3');
  EXPECT_EQ(field.filtered(U','), 0U);
  EXPECT_EQ(field.filtered(kBackspaceKey), kBackspaceKey);
  field = {.text = U"1", .start = 1};
  EXPECT_EQ(field.filtered(U'.'), U',');
  EXPECT_EQ(field.filtered(U'-'), 0U);
  field.caret(0);
  EXPECT_EQ(field.filtered(U','), 0U);
}

}  // namespace
}  // namespace qvn::test
