#include "examples/office/ledger.h"

#include <algorithm>

namespace office {

namespace {

constexpr Chance<std::optional<std::string_view>> statementStates[] = {{"S", 60}, {"", 20}, {std::nullopt, 20}};

/// The type of movement "Incasso titolo".
constexpr int collection = 1;

}  // namespace

Ledger::Ledger(const Database& database, Generator& generator)
    : generator_(generator),
      statementLines_(database, "ESTRATTI", {"N_RIGA",   "COD_COMP",    "COD_PROD",    "COD_PROD_ALT", "COD_CLIENTE",
                                             "COD_RAMO", "SIGLA_SRAMO", "TIPO_DOC",    "N_POLIZZA",    "INT_ASS",
                                             "PREMIO",   "RIMBORSO",    "PROVVIGIONE", "DATA_EC",      "DATA_QUIET",
                                             "DATA_REG", "ST_COMP",     "ST_PROD",     "ANNULLATA",    "STAMPA"}),
      movementLines_(database, "MOVIMENTI",
                     {"N_MOVIMENTO", "RIGA", "COD_MOVIMENTO", "DATA_MOVIMENTO", "MASTRO", "CONTO", "TIPO", "DESC_1",
                      "DESC_2", "IMPORTO"}) {}

void Ledger::add(const Policy& policy, const Title& title) {
  if (title.state != 'I') return;
  addStatementLine(policy, title);
  if (title.premium.cents > 0) addMovement(policy, title);
}

void Ledger::addStatementLine(const Policy& policy, const Title& title) {
  const Share* const lead = policy.lead();
  const Share& share = lead != nullptr ? *lead : policy.shares.front();
  const bool refund = title.premium.cents < 0;
  const std::optional<std::string> stated =
      generator_.happens(80) ? std::optional(iso(title.issued + std::chrono::days(120))) : std::nullopt;
  const std::optional<std::string_view> toCompany = generator_.draw(statementStates);
  const std::optional<std::string_view> toProducer = generator_.draw(statementStates);
  const bool cancelled = generator_.happens(3);
  const bool printed = generator_.happens(90);
  statementLines_.add(statementLines_.count() + 1, share.company, share.producer, share.alternate, policy.client,
                      policy.branch->code, policy.branch->initials, title.document, policy.number, policy.interest,
                      refund ? Money{} : title.premium, refund ? -title.premium : Money{}, title.commission, stated,
                      iso(title.issued + std::chrono::days(30)), iso(title.issued), toCompany, toProducer, cancelled,
                      printed);
}

void Ledger::addMovement(const Policy& policy, const Title& title) {
  struct Line {
    std::string_view ledger, account, side;
    Money amount;
  };
  const Line lines[] = {{"0202", "SEP001", "D", title.premium},
                        {"0301", "000001", "A", title.premium},
                        {"0302", "000002", "D", title.commission},
                        {"0701", "000001", "A", title.commission}};
  const std::string date = iso(title.issued + std::chrono::days(30));
  const std::string about = "Polizza " + policy.number;
  ++movement_;
  int number = 0;
  for (const Line& line : lines) {
    movementLines_.add(movement_, ++number, collection, date, line.ledger, line.account, line.side, "Incasso titolo",
                       about, line.amount);
  }
}

}  // namespace office
