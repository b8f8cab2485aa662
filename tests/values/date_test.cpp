#include "qvn/shared/date.h"

#include <array>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "qvn/shared/locale.h"
#include "qvn/shared/patterns.h"
#include "tests/failure_matchers.h"

namespace qvn {
namespace {

constexpr std::int32_t kFirstDay = -657'434;
constexpr std::int32_t kLastDay = 2'958'465;

bool isLeap(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int lengthOf(int month, int year) {
  constexpr std::array lengths{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && isLeap(year) ? 29 : lengths.at(static_cast<std::size_t>(month) - 1);
}

std::string padded(int number, std::size_t width) {
  const std::string digits = std::to_string(number);
  return std::string(width - digits.size(), '0') + digits;
}

TEST(Date, EveryDayOfTheRangeIsThereAndBack) {
  std::int32_t days = kFirstDay;
  for (int year = 100; year <= 9999; ++year) {
    for (int month = 1; month <= 12; ++month) {
      for (int day = 1; day <= lengthOf(month, year); ++day, ++days) {
        const auto date = Date::of(day, month, year);
        ASSERT_TRUE(date) << day << ' ' << month << ' ' << year;
        ASSERT_EQ(date->days(), days);
        ASSERT_EQ(Date::fromDays(days), *date);
        ASSERT_EQ(date->day(), day);
        ASSERT_EQ(date->month(), month);
        ASSERT_EQ(date->year(), year);
        const std::string text = padded(day, 2) + "/" + padded(month, 2) + "/" + padded(year, 4);
        ASSERT_EQ(format(*date, Pattern::DayMonthYear).view(), text);
        ASSERT_EQ(dateOf(text), date);
      }
      ASSERT_FALSE(Date::of(lengthOf(month, year) + 1, month, year));
    }
  }
  EXPECT_EQ(days, kLastDay + 1);
}

TEST(Date, TheDateOfZeroIsTheNoDateMark) {
  EXPECT_EQ(Date().days(), 0);
  EXPECT_EQ(Date(), Date::of(30, 12, 1899));
  EXPECT_EQ(toText(Date()), "0.00.00");
  EXPECT_EQ(format(Date(), Pattern::DayMonthYear).view(), "30/12/1899");
  EXPECT_EQ(toText(Date::fromDays(1)), "31/12/1899");
  EXPECT_EQ(toText(Date::fromDays(-1)), "29/12/1899");
  EXPECT_EQ(dateOf("0.00.00"), std::nullopt);
}

TEST(Date, TheRangeEndsWithTheYears100And9999) {
  EXPECT_EQ(toText(Date::fromDays(kFirstDay)), "01/01/0100");
  EXPECT_EQ(toText(Date::fromDays(kLastDay)), "31/12/9999");
  EXPECT_EQ(Date::ofDays(kFirstDay), Date::fromDays(kFirstDay));
  EXPECT_EQ(Date::ofDays(kLastDay), Date::fromDays(kLastDay));
  EXPECT_EQ(Date::ofDays(kFirstDay - 1), std::nullopt);
  EXPECT_EQ(Date::ofDays(kLastDay + 1), std::nullopt);
  EXPECT_FAILURE(Date::fromDays(kFirstDay - 1), FailureKind::Overflow, "-657435");
  EXPECT_FAILURE(Date::fromDays(kLastDay + 1), FailureKind::Overflow, "2958466");
  EXPECT_FAILURE(Date::fromDays(std::numeric_limits<std::int32_t>::max()), FailureKind::Overflow, "2147483647");
  EXPECT_FAILURE(Date::fromDays(std::numeric_limits<std::int32_t>::min()), FailureKind::Overflow, "-2147483648");
}

TEST(Date, DaysThatTheCalendarLacksAreNone) {
  struct Day {
    int day, month, year;
  };
  for (const Day& none : {Day{29, 2, 2026}, Day{29, 2, 1900}, Day{29, 2, 2100}, Day{30, 2, 2024}, Day{31, 4, 2026},
                          Day{31, 11, 2026}, Day{32, 1, 2026}, Day{0, 1, 2026}, Day{1, 0, 2026}, Day{1, 13, 2026},
                          Day{-1, 1, 2026}, Day{1, -1, 2026}, Day{1, 1, 99}, Day{1, 1, 10'000}, Day{1, 1, -100},
                          Day{257, 1, 2026}, Day{1, 257, 2026}, Day{1, 1, 65'536 + 2026}}) {
    EXPECT_FALSE(Date::of(none.day, none.month, none.year)) << none.day << ' ' << none.month << ' ' << none.year;
  }
  EXPECT_TRUE(Date::of(29, 2, 2024));
  EXPECT_TRUE(Date::of(29, 2, 2000));
}

TEST(Date, OnlyACompleteTextTellsADate) {
  EXPECT_EQ(dateOf("15/11/2026"), Date::of(15, 11, 2026));
  EXPECT_EQ(dateOf("01/01/0100"), Date::of(1, 1, 100));
  for (const char* none :
       {"",           "15/11/26",   "1/11/2026",  "15-11-2026", "15/11/20260", "15/11/202#",  "##/##/####",
        "32/01/2026", "15/13/2026", "00/01/2026", "01/00/2026", "01/01/0000",  "01/01/0099",  "29/02/2026",
        "2026/11/15", " 5/11/2026", "+5/11/2026", "-5/11/2026", "15/11/+026",  "15/11/2026 ", "15/1 /2026"}) {
    EXPECT_EQ(dateOf(none), std::nullopt) << none;
  }
}

TEST(Date, IsOrderedByDay) {
  EXPECT_LT(*Date::of(31, 12, 2025), *Date::of(1, 1, 2026));
  EXPECT_LT(*Date::of(1, 1, 1800), Date());
}

}  // namespace
}  // namespace qvn
