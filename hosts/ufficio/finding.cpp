#include "hosts/ufficio/finding.h"

#include <string>

namespace qvn::ufficio {

namespace {

/// The pattern of what holds the text anywhere.
std::string patternOf(std::string_view text) {
  std::string pattern = "%";
  for (const char c : text) {
    if (c == '%' || c == '_' || c == '\\') pattern += '\\';
    pattern += c;
  }
  return pattern += '%';
}

}  // namespace

std::vector<Found> findBy(std::string_view statement, Store& store, std::string_view filter, int most) {
  const std::vector<Value> parameters{patternOf(filter), std::int64_t{most}};
  std::vector<Found> records;
  for (const Row& row : store.rows(std::string(statement), parameters)) {
    records.push_back({.key = Key(row.values.begin() + 1, row.values.end()), .text = textOf(row.values.front())});
  }
  return records;
}

}  // namespace qvn::ufficio
