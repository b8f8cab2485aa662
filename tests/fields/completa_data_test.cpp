// Dates completed on Enter, for every day that an office's clock may show.
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "qvn/fields/Gest_SCHEDE.h"
#include "tests/fields/field_bench.h"

namespace qvn::test {
namespace {

using Gest_SCHEDE::CompletaData;

class CompletedDates : public FieldBench {
 public:
  std::string completed(std::string_view typed) {
    date().Text(typed);
    CompletaData(date());
    return date().Text();
  }
  void clock(int day, int month, int year) { today(Date::of(day, month, year).value()); }
};
QVN_ON_EVERY_PLATFORM(CompletedDates);

struct Row {
  std::string typed;
  std::string becomes;
};

TEST_P(CompletedDates, TakeFromTodayWhatIsMissing) {
  clock(15, 11, 2026);
  const std::vector<Row> rows{
      {"##/##/####", "15/11/2026"}, {"3#/##/####", "03/11/2026"}, {"12/##/####", "12/11/2026"},
      {"12/03/####", "12/03/2026"}, {"12/03/5###", "12/03/2025"}, {"12/03/98##", "12/03/1998"},
      {"12/03/04##", "12/03/2004"}, {"12/03/19##", "12/03/2019"}, {"12/03/20##", "12/03/1920"},
      {"12/03/99##", "12/03/1999"}, {"12/03/00##", "12/03/2000"}, {"29/02/24##", "29/02/1924"},
      {"12/3#/####", "12/3#/2026"},  // a month of one digit takes the year and stays invalid
      {"12/03/202#", "12/03/202#"},  // a year of three digits is left as typed
      {"12/03/998#", "12/03/998#"}, {"32/13/2026", "32/13/2026"}, {"99/##/####", "99/11/2026"},
      {"0#/##/####", "00/11/2026"}, {"31/02/####", "31/02/2026"}, {"#3/##/####", "#3/11/2026"},
      {"##/12/####", "##/12/2026"}, {"12/03/#5##", "12/03/20#5"}, {"31/02/1###", "31/02/2021"},
  };
  for (const Row& row : rows) EXPECT_EQ(completed(row.typed), row.becomes) << row.typed;
}

TEST_P(CompletedDates, LeaveAWholeDateAlone) {
  clock(15, 11, 2026);
  EXPECT_EQ(completed("12/03/2024"), "12/03/2024");
  EXPECT_EQ(completed("##/##/####"), "15/11/2026");
  CompletaData(date());  // a second Enter
  EXPECT_EQ(date().Text(), "15/11/2026");
}

TEST_P(CompletedDates, ComeOutRightOnLeapDays) {
  clock(29, 2, 2024);
  EXPECT_EQ(completed("##/##/####"), "29/02/2024");
  EXPECT_EQ(completed("1#/##/####"), "01/02/2024");
  EXPECT_EQ(completed("29/##/####"), "29/02/2024");
  clock(28, 2, 2100);
  EXPECT_EQ(completed("29/##/####"), "29/02/2100");  // no such day; it stays as completed
  EXPECT_FALSE(dateOf(date().Text()));
}

/// Two or more digits with zeros in front, made without the library.
std::string digits(int value, int width) {
  std::string text = std::to_string(value);
  return std::string(static_cast<std::size_t>(width) - text.size(), '0') + text;
}

int daysIn(int month, int year) {
  const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  if (month == 2) return leap ? 29 : 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

TEST_P(CompletedDates, FollowTheClockOnEveryDayFrom1990To2099) {
  int days = 0;
  for (int year = 1990; year <= 2099; ++year) {
    for (int month = 1; month <= 12; ++month) {
      for (int day = 1; day <= daysIn(month, year); ++day, ++days) {
        clock(day, month, year);
        const std::string mm = digits(month, 2);
        const std::string yyyy = digits(year, 4);
        ASSERT_EQ(completed("##/##/####"), digits(day, 2) + "/" + mm + "/" + yyyy);
        ASSERT_EQ(completed("7#/##/####"), "07/" + mm + "/" + yyyy);
        ASSERT_EQ(completed("21/##/####"), "21/" + mm + "/" + yyyy);
        ASSERT_EQ(completed("21/06/####"), "21/06/" + yyyy);
        ASSERT_EQ(completed("21/06/3###"), "21/06/" + yyyy.substr(0, 3) + "3");
      }
    }
  }
  EXPECT_EQ(days, 40177);
}

TEST_P(CompletedDates, ReadEveryYearOfTwoDigits) {
  for (int year = 0; year <= 99; ++year) {
    const std::string century = year >= 20 ? "19" : "20";
    EXPECT_EQ(completed("12/03/" + digits(year, 2) + "##"), "12/03/" + century + digits(year, 2));
  }
}

TEST_P(CompletedDates, AreWrittenOnce) {
  clock(15, 11, 2026);
  date().Text("3#/##/####");
  int changes = 0;
  date().Change = [&] { ++changes; };
  CompletaData(date());
  EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace qvn::test
