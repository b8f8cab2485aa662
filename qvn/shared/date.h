// A calendar date of the office.
#pragma once

#include <compare>
#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qvn {

/// A date, held as whole days from the date of zero (30/12/1899), years 100 to 9999.
///
/// The date of zero is the no-date mark: its general text is "0.00.00", and a date field that is given it goes blank.
class Date {
 public:
  constexpr Date() = default;  ///< the date of zero

  /// The date of a day, month (1 to 12) and year (100 to 9999); nothing if the calendar has no such day.
  static std::optional<Date> of(int day, int month, int year);

  /// The date so many days from the date of zero; nothing outside the years 100 to 9999.
  static std::optional<Date> ofDays(std::int32_t days);
  /// The same; fails with "overflow" outside those years.
  static Date fromDays(std::int32_t days);
  static Date fromDays(std::floating_point auto days) = delete;  ///< use as<Date>()

  constexpr std::int32_t days() const { return days_; }
  int day() const;
  int month() const;
  int year() const;

  friend constexpr bool operator==(Date, Date) = default;
  friend constexpr std::strong_ordering operator<=>(Date a, Date b) { return a.days_ <=> b.days_; }

 private:
  constexpr explicit Date(std::int32_t days) : days_(days) {}

  std::int32_t days_ = 0;
};

/// The date that a complete text "dd/mm/yyyy" tells, day first; nothing if it is no such text or no such day.
std::optional<Date> dateOf(std::string_view text);

/// The general text: "dd/mm/yyyy", and "0.00.00" for the date of zero.
std::string toText(Date date);

}  // namespace qvn
