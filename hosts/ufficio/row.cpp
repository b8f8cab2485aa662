#include "hosts/ufficio/row.h"

#include <algorithm>
#include <charconv>

#include "hosts/ufficio/store_failure.h"
#include "qvn/shared/names.h"

namespace qvn::ufficio {

namespace {

struct AsText {
  std::string operator()(std::monostate) const { return {}; }
  std::string operator()(std::int64_t number) const { return std::to_string(number); }
  std::string operator()(double number) const {
    std::string text(32, '\0');
    text.resize(
        static_cast<std::size_t>(std::to_chars(text.data(), text.data() + text.size(), number).ptr - text.data()));
    return text;
  }
  std::string operator()(const std::string& text) const { return text; }
};

std::size_t placeOf(std::string_view column, const std::vector<std::string>& columns) {
  const auto found = std::ranges::find_if(columns, [&](const std::string& name) { return sameName(name, column); });
  if (found == columns.end()) throw StoreFailure("la riga letta non ha la colonna " + std::string(column));
  return static_cast<std::size_t>(found - columns.begin());
}

}  // namespace

const Value& Row::at(std::string_view column) const { return values.at(placeOf(column, columns)); }

Value& Row::at(std::string_view column) { return values.at(placeOf(column, columns)); }

std::string textOf(const Value& value) { return std::visit(AsText{}, value); }

}  // namespace qvn::ufficio
