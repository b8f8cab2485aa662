// The office's own books: statement lines and accounting movements of the titles collected.
#pragma once

#include <cstdint>

#include "examples/office/policies.h"
#include "examples/office/titles.h"

namespace office {

/// Writes ESTRATTI and MOVIMENTI.
class Ledger {
 public:
  Ledger(const Database& database, Generator& generator);

  /// Takes up a title, if it has been collected.
  void add(const Policy& policy, const Title& title);

 private:
  void addStatementLine(const Policy& policy, const Title& title);
  void addMovement(const Policy& policy, const Title& title);

  Generator& generator_;
  Insert statementLines_;
  Insert movementLines_;
  std::int64_t movement_ = 0;
};

}  // namespace office
