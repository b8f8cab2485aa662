// The claims on a policy, shared by its companies.
#pragma once

#include <cstdint>

#include "examples/office/policies.h"

namespace office {

/// Draws claims and writes them to SINISTRI and QUOTE_SINISTRI.
class Claims {
 public:
  Claims(const Database& database, Generator& generator);

  /// The claims on a policy, none for most.
  void add(const Policy& policy);

  std::int64_t count() const { return claims_.count(); }

 private:
  void addClaim(const Policy& policy);

  Generator& generator_;
  Insert claims_;
  Insert shares_;
};

}  // namespace office
