#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "qvn/shared/conversions.h"

namespace qvn {
namespace {

struct Read {
  const char* text;
  double number;
};

TEST(LeadingNumber, IsTheLongestNumberAtTheStart) {
  for (const Read& read : {Read{"12.5%)", 12.5},
                           {"12,50", 12},
                           {"0,50", 0},
                           {"1,50", 1},
                           {"00120 ROSSI", 120},
                           {"12", 12},
                           {"12.", 12},
                           {"12.x", 12},
                           {".5", 0.5},
                           {"-.5", -0.5},
                           {"-3.25 x", -3.25},
                           {"+7", 7},
                           {"  7", 7},
                           {"\t7", 7},
                           {"\u00A07", 7},
                           {"1.2.3", 1.2},
                           {"1e3", 1000},
                           {"1E3x", 1000},
                           {"1e+3", 1000},
                           {"25e-2", 0.25},
                           {"1e", 1},
                           {"1e+", 1},
                           {"1ex", 1},
                           {"12EUR", 12},
                           {"1d3", 1},
                           {"1 2", 1},
                           {"1.234,5", 1.234},
                           {"0.1", 0.1},
                           {"5€", 5}}) {
    EXPECT_EQ(leadingNumber(read.text), read.number) << read.text;
  }
}

TEST(LeadingNumber, IsZeroWhereThereIsNone) {
  for (const char* text : {"", " ", "abc", "-", "+", ".", "-.", "(12", "€ 12", ",5", "- 5", "--5", "+-5", "e5", ".e5",
                           "%", "NaN", "inf", "x12"}) {
    EXPECT_EQ(leadingNumber(text), 0.0) << text;
  }
}

TEST(LeadingNumber, StaysInTheRangeOfADouble) {
  EXPECT_EQ(leadingNumber("1e999"), std::numeric_limits<double>::max());
  EXPECT_EQ(leadingNumber("-1e999"), -std::numeric_limits<double>::max());
  EXPECT_EQ(leadingNumber("1e99999999999999999999999"), std::numeric_limits<double>::max());
  EXPECT_EQ(leadingNumber("1e-99999999999999999999999"), 0.0);
  EXPECT_EQ(leadingNumber("0e99999999999999999999999"), 0.0);
}

}  // namespace
}  // namespace qvn
