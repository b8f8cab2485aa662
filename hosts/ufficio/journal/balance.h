// Debit and credit of a journal.
#pragma once

#include <string>
#include <string_view>

#include "qvn/shared/currency.h"

namespace qvn::ufficio::journal {

/// An amount as the panels show it, "€ 1.234,56".
std::string shownAmount(Currency amount);

struct Balance {
  Currency debit;
  Currency credit;

  /// Adds an amount on its side: "D" is the debit, any other the credit.
  void add(std::string_view side, Currency amount);
  bool even() const { return debit == credit; }
  /// Both sums and, where they differ, by how much and on which side it is missing; a clause without a stop.
  std::string told() const;
};

}  // namespace qvn::ufficio::journal
