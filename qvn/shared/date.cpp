#include "qvn/shared/date.h"

#include <chrono>

#include "qvn/shared/failure.h"
#include "qvn/shared/locale.h"
#include "qvn/shared/patterns.h"

namespace qvn {

namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr sys_days kZero{std::chrono::year{1899} / 12 / 30};
constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;
constexpr sys_days kFirst{std::chrono::year{kFirstYear} / 1 / 1};
constexpr sys_days kLast{std::chrono::year{kLastYear} / 12 / 31};

year_month_day calendar(Date date) { return sys_days(kZero + std::chrono::days{date.days()}); }

/// The number that digits tell; -1 where another character stands.
int numberOf(std::string_view digits) {
  int number = 0;
  for (char c : digits) {
    if (c < '0' || c > '9') return -1;
    number = number * 10 + (c - '0');
  }
  return number;
}

}  // namespace

std::optional<Date> Date::of(int day, int month, int year) {
  if (day < 1 || month < 1 || year < kFirstYear || year > kLastYear) return std::nullopt;
  if (day > 31 || month > 12) return std::nullopt;
  const auto date = std::chrono::year{year} / month / day;
  if (!date.ok()) return std::nullopt;
  return Date(static_cast<std::int32_t>((sys_days(date) - kZero).count()));
}

std::optional<Date> Date::ofDays(std::int32_t days) {
  if (days < (kFirst - kZero).count() || days > (kLast - kZero).count()) return std::nullopt;
  return Date(days);
}

Date Date::fromDays(std::int32_t days) {
  if (const auto date = ofDays(days)) return *date;
  throw Failure(FailureKind::Overflow,
                std::to_string(days) + " days from 30/12/1899 lie outside the years 100 to 9999");
}

int Date::day() const { return static_cast<int>(static_cast<unsigned>(calendar(*this).day())); }
int Date::month() const { return static_cast<int>(static_cast<unsigned>(calendar(*this).month())); }
int Date::year() const { return static_cast<int>(calendar(*this).year()); }

std::optional<Date> dateOf(std::string_view text) {
  if (text.size() != 10 || text[2] != '/' || text[5] != '/') return std::nullopt;
  return Date::of(numberOf(text.substr(0, 2)), numberOf(text.substr(3, 2)), numberOf(text.substr(6)));
}

std::string toText(Date date) { return format(date, Pattern::General).str(); }

}  // namespace qvn
