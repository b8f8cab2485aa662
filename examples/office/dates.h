// Dates as the database holds them.
#pragma once

#include <array>
#include <chrono>
#include <cstdio>
#include <string>

namespace office {

using Date = std::chrono::sys_days;

constexpr Date date(int year, unsigned month, unsigned day) {
  return std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day);
}

/// "yyyy-mm-dd"
inline std::string iso(Date when) {
  const std::chrono::year_month_day parts(when);
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02u-%02u", static_cast<int>(parts.year()) % 10000,
                static_cast<unsigned>(parts.month()) % 100, static_cast<unsigned>(parts.day()) % 100);
  return text.data();
}

}  // namespace office
