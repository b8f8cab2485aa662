#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "qvn/shared/conversions.h"
#include "tests/failure_matchers.h"
#include "tests/values/italian.h"

namespace qvn {
namespace {

std::int64_t count(std::string_view text, const Locale& locale = kItalian) {
  return toCurrency(text, locale).tenThousandths();
}

struct Reading {
  const char* text;
  std::int64_t tenThousandths;
};

TEST(TextToCurrency, TakesTheFormsOfTheLocale) {
  for (const Reading& read : {
           Reading{"0", 0},
           {"1", 10'000},
           {"1234,56", 12'345'600},
           {"1.234,56", 12'345'600},
           {"1.234", 12'340'000},
           {"12.345", 123'450'000},
           {"123.456", 1'234'560'000},
           {"1.234.567,8901", 12'345'678'901},
           {"0001", 10'000},
           {"0001,5", 15'000},
           {"00", 0},
           {",5", 5'000},
           {"5,", 50'000},
           {"1.234,", 12'340'000},
           {"-,5", -5'000},
           {"0,0001", 1},
           // the symbol on either side
           {"€ 1.234,56", 12'345'600},
           {"€1.234,56", 12'345'600},
           {"1.234,56 €", 12'345'600},
           {"1.234,56€", 12'345'600},
           // the sign before or behind, and brackets
           {"-1", -10'000},
           {"+1", 10'000},
           {"1-", -10'000},
           {"1+", 10'000},
           {"- 1", -10'000},
           {"1 -", -10'000},
           {"-€ 1,50", -15'000},
           {"€ -1,50", -15'000},
           {"€-1,50", -15'000},
           {"- € 1,50", -15'000},
           {"€ 1,50-", -15'000},
           {"1,50- €", -15'000},
           {"1,50 €-", -15'000},
           {"-1,50 €", -15'000},
           {"+€ 1,50", 15'000},
           {"(1,50)", -15'000},
           {"( 1,50 )", -15'000},
           {"(€ 1,50)", -15'000},
           {"€ (1,50)", -15'000},
           {"(1,50 €)", -15'000},
           {"(1,50) €", -15'000},
           {"-0", 0},
           // blanks around and between the parts
           {"  1,5  ", 15'000},
           {"\t1,5\t", 15'000},
           {"\u00A01,5\u00A0", 15'000},
           {"\u202F1,5\u202F", 15'000},
           {" - \u00A0€ \t 1,5 ", -15'000},
           {"€\u202F1,5", 15'000},
           {"1,5\u00A0€", 15'000},
           // the general text's exponent
           {"1,5E+3", 15'000'000},
           {"1,5E3", 15'000'000},
           {"1,5e-3", 15},
           {"-2E+2", -2'000'000},
           {"1E-4", 1},
           {"€ 1E+2", 1'000'000},
           {"0E+99999", 0},
       }) {
    EXPECT_EQ(count(read.text), read.tenThousandths) << read.text;
    EXPECT_TRUE(isNumber(read.text, kItalian)) << read.text;
  }
}

TEST(TextToCurrency, TakesNothingElse) {
  for (const char* text : {
           "",
           " ",
           "\t",
           "\u00A0",
           "abc",
           "€",
           "-",
           "+",
           ",",
           "-,",
           ",-",
           ".",
           "()",
           "(",
           ")",
           "€ -",
           "- €",
           // grouping signs where no group of three ends
           "1.2",
           "12.34",
           "1234.567",
           "1..234",
           ".123",
           "1.",
           "1.,5",
           "1.2345",
           "1.23,5",
           "12.3456",
           "1.234.56",
           "1.2345.678",
           "0.123",
           "012.345",
           "000.001",
           "1 234",
           ". 1",
           "1.\u00A0234",
           "-.123",
           // grouping behind the decimal sign, and a second decimal sign
           "1,234.567",
           "1,2,3",
           "1,,2",
           ",,",
           "1,.5",
           "1,5.",
           "1,234.",
           // one sign and one symbol only
           "--1",
           "-1-",
           "+-1",
           "-(1)",
           "(-1)",
           "(1)-",
           "(1-)",
           "+(1)",
           "(+1)",
           "((1))",
           "1--",
           "€ 1 €",
           "€€ 1",
           "- 1 +",
           // brackets come in pairs
           "(1",
           "1)",
           ")1(",
           "1()",
           "(1))",
           // what stands between, before or behind
           "1a",
           "a1",
           "1 2",
           "1 ,5",
           "1, 5",
           "1€2",
           "1-2",
           "€ 1 x",
           "1;",
           "'1'",
           "$ 1",
           "EUR 1",
           "1\n",
           "\n1",
           "1\r",
           "1\v",
           "1\u20072",
           "\u30001",
           "１",
           "٣",
           // exponents need digits, and stand behind plain numbers only
           "1E",
           "1E+",
           "1E-",
           "E5",
           "1E5,5",
           "1E5.5",
           "1E+-5",
           "1E 5",
           "1 E5",
           "1.234E+5",
           "1EE5",
           "1D5",
           ",E5",
           "1E5E5",
           // and no other notation
           "0x1F",
           "&H1F",
           "NaN",
           "inf",
           "1_000",
           "1'000",
           "50%",
           "1/2",
           "True",
       }) {
    EXPECT_FALSE(isNumber(text, kItalian)) << text;
    EXPECT_FAILURE(toCurrency(text, kItalian), FailureKind::TypeMismatch,
                   "the text \"" + std::string(text) + "\" is no number")
        << text;
  }
}

TEST(TextToCurrency, ANullCharacterEndsNothing) {
  EXPECT_FALSE(isNumber(std::string_view("1\0", 2), kItalian));
  EXPECT_FALSE(isNumber(std::string_view("1\0005", 3), kItalian));
  EXPECT_FALSE(isNumber(std::string_view("\0", 1), kItalian));
}

TEST(TextToCurrency, BrokenUtf8IsNoBlank) {
  for (const char* text : {"1\xC2", "1\xE2\x80",
                           "\xA0"
                           "1",
                           "\xC2"
                           "1",
                           "1\xE2\x82"}) {
    EXPECT_FALSE(isNumber(text, kItalian)) << text;
  }
}

TEST(TextToCurrency, RoundsToFourDecimalsTiesToEven) {
  EXPECT_EQ(count("1,00005"), 10'000);
  EXPECT_EQ(count("1,00015"), 10'002);
  EXPECT_EQ(count("-1,00005"), -10'000);
  EXPECT_EQ(count("-1,00015"), -10'002);
  EXPECT_EQ(count("1,00025"), 10'002);
  EXPECT_EQ(count("0,00005"), 0);
  EXPECT_EQ(count("0,00015"), 2);
  EXPECT_EQ(count("0,00004999999999999999999999999999999"), 0);
  EXPECT_EQ(count("0,00005000000000000000000000000000001"), 1);
  EXPECT_EQ(count("1,000050000000000000000000000000"), 10'000);
  EXPECT_EQ(count("1,000050000000000000000000000001"), 10'001);
  EXPECT_EQ(count("1,00014999999999999999999999999"), 10'001);
  EXPECT_EQ(count("123456789012345,00005"), 1'234'567'890'123'450'000);
  EXPECT_EQ(count("123456789012345,00005000000000000000001"), 1'234'567'890'123'450'001);
  EXPECT_EQ(count("123456789012345,00015"), 1'234'567'890'123'450'002);
  EXPECT_EQ(count("5E-5"), 0);
  EXPECT_EQ(count("15E-5"), 2);
  EXPECT_EQ(count("9,99995"), 100'000);
  EXPECT_EQ(count("1E-999999999999999999999"), 0);
}

TEST(TextToCurrency, ReachesTheEndsOfTheRangeAndNoFurther) {
  EXPECT_EQ(count("922337203685477,5807"), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(count("-922337203685477,5808"), std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(count("-€ 922.337.203.685.477,5808"), std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(count("922337203685477,58074999999999999999999"), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(count("-922337203685477,58085"), std::numeric_limits<std::int64_t>::min());
  for (const char* text :
       {"922337203685477,5808", "922337203685477,58075", "-922337203685477,5809", "-922337203685477,580850000000001",
        "922337203685478", "1000000000000000", "9999999999999999999", "99999999999999999999999999999999", "1E+15",
        "-1E+999999999999999999", "1844674407370955,1616", "1844674407370955,1617"}) {
    EXPECT_FAILURE(toCurrency(text, kItalian), FailureKind::Overflow,
                   "the text \"" + std::string(text) + "\" does not fit a currency amount")
        << text;
    EXPECT_TRUE(isNumber(text, kItalian)) << text;
  }
}

TEST(TextToCurrency, FollowsAnotherLocale) {
  const Locale other{.decimalSign = '.', .groupingSign = ',', .symbol = "Fr.", .symbolFirst = false};
  EXPECT_EQ(count("1,234.56 Fr.", other), 12'345'600);
  EXPECT_EQ(count("Fr. -1234.56", other), -12'345'600);
  EXPECT_EQ(count("Fr..5", other), 5'000);
  EXPECT_FALSE(isNumber("1.234,56", other));
  EXPECT_FALSE(isNumber("€ 1", other));
  const Locale blankGroups{.groupingSign = ' ', .symbol = ""};
  EXPECT_EQ(count("1 234 567,89 ", blankGroups), 12'345'678'900);
  EXPECT_EQ(count(" 1 -", blankGroups), -10'000);
  EXPECT_FALSE(isNumber("1 23", blankGroups));
}

TEST(TextToInteger, RoundsTiesToEven) {
  EXPECT_EQ(toInt16("2,5", kItalian), 2);
  EXPECT_EQ(toInt16("3,5", kItalian), 4);
  EXPECT_EQ(toInt16("-2,5", kItalian), -2);
  EXPECT_EQ(toInt16("-3,5", kItalian), -4);
  EXPECT_EQ(toInt16("2,50000000000000000000000001", kItalian), 3);
  EXPECT_EQ(toInt16("0,5", kItalian), 0);
  EXPECT_EQ(toInt16("-0,5", kItalian), 0);
  EXPECT_EQ(toInt32("1,5", kItalian), 2);
  EXPECT_EQ(toByte("254,5", kItalian), 254);
  EXPECT_EQ(toByte("-0,5", kItalian), 0);
  EXPECT_EQ(toInt16("€ 1.000,00", kItalian), 1'000);
  // In front of an empty field stands a 0.
  EXPECT_EQ(toInt16("0", kItalian), 0);
  EXPECT_EQ(toInt32("0123", kItalian), 123);
  for (const char* field : {"", " ", ",0", "0"}) {
    EXPECT_EQ(toInt16(std::string("0") + field, kItalian), 0) << field;
    EXPECT_EQ(toInt32(std::string("0") + field, kItalian), 0) << field;
  }
  EXPECT_EQ(toInt16(std::string("0") + "12", kItalian), 12);
  EXPECT_EQ(toInt32(std::string("0") + "12,5", kItalian), 12);
  EXPECT_EQ(toInt16(std::string("0") + "5-", kItalian), -5);
  for (const char* field : {"-5", "€ 5", "x", "1.234"}) {
    EXPECT_FAILURE(toInt16(std::string("0") + field, kItalian), FailureKind::TypeMismatch, std::string("\"0") + field);
  }
}

TEST(TextToInteger, ReachesTheEndsOfTheRangeAndNoFurther) {
  EXPECT_EQ(toByte("0", kItalian), 0);
  EXPECT_EQ(toByte("255", kItalian), 255);
  EXPECT_EQ(toByte("255,4999", kItalian), 255);
  EXPECT_FAILURE(toByte("255,5", kItalian), FailureKind::Overflow, "\"255,5\" does not fit an 8-bit unsigned integer");
  EXPECT_FAILURE(toByte("300", kItalian), FailureKind::Overflow,
                 "the text \"300\" does not fit an 8-bit unsigned integer (0 to 255)");
  EXPECT_FAILURE(toByte("-1", kItalian), FailureKind::Overflow, "\"-1\"");
  EXPECT_FAILURE(toByte("-0,51", kItalian), FailureKind::Overflow, "\"-0,51\"");
  EXPECT_EQ(toInt16("32767", kItalian), 32'767);
  EXPECT_EQ(toInt16("-32768", kItalian), -32'768);
  EXPECT_EQ(toInt16("-32.768,5", kItalian), -32'768);
  EXPECT_FAILURE(toInt16("32768", kItalian), FailureKind::Overflow, "a 16-bit integer (-32768 to 32767)");
  EXPECT_FAILURE(toInt16("32767,5", kItalian), FailureKind::Overflow, "\"32767,5\"");
  EXPECT_FAILURE(toInt16("-32769", kItalian), FailureKind::Overflow, "\"-32769\"");
  EXPECT_EQ(toInt32("2147483647", kItalian), 2'147'483'647);
  EXPECT_EQ(toInt32("-2.147.483.648", kItalian), std::numeric_limits<std::int32_t>::min());
  EXPECT_FAILURE(toInt32("2147483648", kItalian), FailureKind::Overflow,
                 "a 32-bit integer (-2147483648 to 2147483647)");
  EXPECT_FAILURE(toInt32("-2147483649", kItalian), FailureKind::Overflow, "\"-2147483649\"");
  EXPECT_FAILURE(toInt32("18446744073709551616", kItalian), FailureKind::Overflow, "18446744073709551616");
}

TEST(TextToInteger, FailsOnATextThatIsNoNumber) {
  for (const char* text : {"", "abc", "1.2", "-"}) {
    const std::string message = "the text \"" + std::string(text) + "\" is no number";
    EXPECT_FAILURE(toByte(text, kItalian), FailureKind::TypeMismatch, message);
    EXPECT_FAILURE(toInt16(text, kItalian), FailureKind::TypeMismatch, message);
    EXPECT_FAILURE(toInt32(text, kItalian), FailureKind::TypeMismatch, message);
    EXPECT_FAILURE(toDouble(text, kItalian), FailureKind::TypeMismatch, message);
    EXPECT_FAILURE(toDecimal(text, kItalian), FailureKind::TypeMismatch, message);
  }
}

TEST(TextToDouble, IsTheNearestDouble) {
  EXPECT_EQ(toDouble("0", kItalian), 0.0);
  EXPECT_EQ(toDouble("12,5", kItalian), 12.5);
  EXPECT_EQ(toDouble("-€ 1.234,56", kItalian), -1234.56);
  EXPECT_EQ(toDouble("0,1", kItalian), 0.1);
  EXPECT_EQ(toDouble("1,7976931348623157E+308", kItalian), std::numeric_limits<double>::max());
  EXPECT_EQ(toDouble("4,9406564584124654E-324", kItalian), std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(toDouble("2,2250738585072014E-308", kItalian), std::numeric_limits<double>::min());
  EXPECT_EQ(toDouble("0E+99999", kItalian), 0.0);
  EXPECT_EQ(toDouble("1E-400", kItalian), 0.0);
  EXPECT_EQ(toDouble("1E-999999999999999999999", kItalian), 0.0);
  EXPECT_EQ(toDouble("2,4703282292062327E-324", kItalian), 0.0);
  EXPECT_EQ(toDouble("9007199254740993", kItalian), 9007199254740992.0);
  EXPECT_EQ(toDouble("9007199254740993,0000000000000000000000000000000001", kItalian), 9007199254740994.0);
  EXPECT_EQ(toDouble("9.007.199.254.740.993", kItalian), 9007199254740992.0);
  EXPECT_FAILURE(toDouble("1E+309", kItalian), FailureKind::Overflow, "\"1E+309\" does not fit a double");
  EXPECT_FAILURE(toDouble("-1E+99999999999999999999", kItalian), FailureKind::Overflow, "does not fit a double");
  EXPECT_FAILURE(toDouble("1,7976931348623159E+308", kItalian), FailureKind::Overflow, "does not fit a double");
}

}  // namespace
}  // namespace qvn
