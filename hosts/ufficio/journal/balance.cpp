#include "hosts/ufficio/journal/balance.h"

#include "qvn/shared/patterns.h"

namespace qvn::ufficio::journal {

std::string shownAmount(Currency amount) { return format(amount, Pattern::Currency, Locale()).str(); }

void Balance::add(std::string_view side, Currency amount) { (side == "D" ? debit : credit) += amount; }

std::string Balance::told() const {
  std::string text = std::string("DARE ").append(shownAmount(debit)).append(", AVERE ").append(shownAmount(credit));
  if (even()) return text;
  const bool inCredit = debit > credit;
  return text.append(", differenza ")
      .append(shownAmount(inCredit ? debit - credit : credit - debit))
      .append(inCredit ? ": manca in AVERE" : ": manca in DARE");
}

}  // namespace qvn::ufficio::journal
