// The titles of a policy: its documents waiting to be settled, or settled.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "examples/office/policies.h"

namespace office {

/// A title as the ledger takes it up.
struct Title {
  char state = 'S';
  std::string_view document;
  Date issued;
  Money premium;     ///< of all companies
  Money commission;  ///< the office's, of all companies
};

/// Draws titles and writes them to SOSPESI.
class Titles {
 public:
  Titles(const Database& database, Generator& generator);

  /// The titles of a policy, none for many, numbered from 1.
  std::vector<Title> add(const Policy& policy);

  std::int64_t count() const { return count_; }

 private:
  Title addTitle(const Policy& policy, int number);

  Generator& generator_;
  Insert rows_;
  std::int64_t count_ = 0;
};

}  // namespace office
