#include "hosts/ufficio/finding.h"

#include <string>

namespace qvn::ufficio {

std::vector<Found> findBy(std::string_view statement, Store& store, std::string_view filter, int most) {
  const std::vector<Value> parameters{std::string(filter), std::int64_t{most}};
  std::vector<Found> records;
  for (const Row& row : store.rows(std::string(statement), parameters)) {
    records.push_back({.key = Key(row.values.begin() + 1, row.values.end()), .text = textOf(row.values.front())});
  }
  return records;
}

}  // namespace qvn::ufficio
