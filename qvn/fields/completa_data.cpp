// A partly typed date, completed from today's on Enter.
#include <array>
#include <string>
#include <string_view>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/date_mask.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/patterns.h"
#include "qvn/toolkit/platform.h"

namespace qvn::Gest_SCHEDE {

namespace {

/// What the rules below read of the field: its ten characters, "#" where nothing is typed yet, and today's date.
struct Typed {
  std::string_view text;
  Date today;

  std::string_view left(std::size_t count) const { return text.substr(0, count); }
  std::string year() const { return format(today, Pattern::Year).str(); }
  std::string monthAndYear() const { return format(today, Pattern::MonthYear).str(); }
};

std::string joined(std::initializer_list<std::string_view> parts) {
  std::string whole;
  for (std::string_view part : parts) whole.append(part);
  return whole;
}

/// Two digits from 20 to 99 are a year of the last century.
std::string_view centuryOf(std::string_view digits) {
  const double year = leadingNumber(digits);
  return year >= 20 && year <= 99 ? "19" : "20";
}

/// The end that the text must have, and the text that it becomes; the first that fits holds.
struct Completion {
  std::string_view end;
  std::string (*whole)(const Typed& typed);
};

constexpr std::array kCompletions{
    Completion{"#/##/####",
               [](const Typed& t) {
                 return joined({"0", t.left(1), "/", t.monthAndYear()});
               }},
    Completion{"##/####",
               [](const Typed& t) {
                 return joined({t.left(2), "/", t.monthAndYear()});
               }},
    Completion{"####",
               [](const Typed& t) {
                 return joined({t.left(6), t.year()});
               }},
    Completion{"###",
               [](const Typed& t) {
                 return joined({t.left(6), t.year().substr(0, 3), t.text.substr(6, 1)});
               }},
    Completion{"##",
               [](const Typed& t) {
                 const std::string_view digits = t.text.substr(6, 2);
                 return joined({t.left(6), centuryOf(digits), digits});
               }},
    // A year typed with three digits is left as typed.
};

bool isDate(const Variant& value) {
  const auto* text = std::get_if<std::string>(&value);
  return text != nullptr ? dateOf(*text).has_value() : std::holds_alternative<Date>(value);
}

}  // namespace

void CompletaData(toolkit::DateControl& control) {
  if (isDate(control.Value())) return ProssimoCampo(control);
  const std::string text = control.Text();
  const Typed typed{.text = text, .today = control.owner().platform().clock().today()};
  if (text == fields::kBlankDate) return control.Value(format(typed.today, Pattern::DayMonthYear).str());
  if (text.size() != fields::kBlankDate.size()) return;
  for (const Completion& completion : kCompletions) {
    if (text.ends_with(completion.end)) return control.Text(completion.whole(typed));
  }
}

}  // namespace qvn::Gest_SCHEDE
