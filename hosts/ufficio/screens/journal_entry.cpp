// A journal entry: ctlINS_MOVIMENTI on MOVIMENTI, one panel a line, and below them ctlINS_IVA for its VAT line. A new
// entry begins with the lines that its type is defined by. One that does not balance is not stored.
#include <array>
#include <cstdint>

#include "hosts/ufficio/finding.h"
#include "hosts/ufficio/journal/accounts.h"
#include "hosts/ufficio/journal/balance.h"
#include "hosts/ufficio/journal/movement_types.h"
#include "hosts/ufficio/journal/vat_line.h"
#include "hosts/ufficio/line_panels.h"
#include "hosts/ufficio/screens/makers.h"
#include "qvn/panels/accounting/ctlINS_MOVIMENTI.h"
#include "qvn/panels/classes.h"
#include "qvn/shared/failure.h"
#include "qvn/toolkit/platform.h"

namespace qvn::ufficio::screens {

namespace {

using journal::Balance;

/// By movement; a new entry has the negative of its type's code.
constexpr std::string_view kFind =
    "SELECT TESTO, NUMERO FROM ("
    "SELECT 'Nuova registrazione: ' || DESCRIZIONE AS TESTO, -COD_MOVIMENTO AS NUMERO FROM TIPI_MOVIMENTI UNION ALL "
    "SELECT N_MOVIMENTO || '  ' || substr(DATA_MOVIMENTO, 9, 2) || '/' || substr(DATA_MOVIMENTO, 6, 2) || '/' "
    "|| substr(DATA_MOVIMENTO, 1, 4) || '  ' || DESC_1 || '  ' || DESC_2, N_MOVIMENTO FROM MOVIMENTI A "
    "WHERE NOT EXISTS (SELECT 1 FROM MOVIMENTI B WHERE B.N_MOVIMENTO = A.N_MOVIMENTO AND B.RIGA < A.RIGA)) "
    "WHERE holds(TESTO, ?1) ORDER BY NUMERO > 0, NUMERO DESC LIMIT ?2";

constexpr std::array kFields{
    Field{"Mastro", "MASTRO", Kind::Text}, Field{"Conto", "CONTO", Kind::Text},
    Field{"DESC_1", "DESC_1", Kind::Text}, Field{"DESC_2", "DESC_2", Kind::Text},
    Field{"TIPO", "TIPO", Kind::Text},     Field{"IMPORTO", "IMPORTO", Kind::Amount},
};

constexpr std::array kHeads{
    Head{"txtMASTRO", "Mastro"}, Head{"TxtCONTO", "Conto"},     Head{"TxtDESC_1", "Descrizione"},
    Head{"cmbTIPO", "Segno"},    Head{"TxtIMPORTO", "Importo"},
};

bool isEmpty(const Row& line) {
  for (const Field& field : kFields) {
    if (field.property != "TIPO" && field.kind == Kind::Text && !textOf(line.at(field.column)).empty()) return false;
  }
  return amountOf(line.at("IMPORTO")) == Currency();
}

constexpr LinesDescription kLines{
    .panelClass = "ctlINS_MOVIMENTI",
    .table = "MOVIMENTI",
    .key = "N_MOVIMENTO",
    .number = "RIGA",
    .fields = kFields,
    .empty = isEmpty,
};

Row emptyLine(const Value& type, const Value& day) {
  const std::string none;
  return {.columns = {"N_MOVIMENTO", "RIGA", "COD_MOVIMENTO", "DATA_MOVIMENTO", "MASTRO", "CONTO", "TIPO", "DESC_1",
                      "DESC_2", "IMPORTO"},
          .values = {Value(), Value(), type, day, none, none, std::string("D"), none, none, std::int64_t{0}},
          .isNew = true};
}

void check(Store& store, std::span<const Row> lines) {
  if (lines.empty()) throw StoreFailure("la registrazione non ha righe");
  Balance balance;
  for (const Row& line : lines) {
    journal::requireAccount(store, line, kLines.number);
    const Currency amount = amountOf(line.at("IMPORTO"));
    if (amount == Currency()) throw StoreFailure("la riga " + textOf(line.at("RIGA")) + " non ha importo");
    balance.add(textOf(line.at("TIPO")), amount);
  }
  if (!balance.even()) throw StoreFailure("la registrazione non quadra: " + balance.told());
}

class JournalEntry final : public Screen {
 public:
  explicit JournalEntry(const ScreenSite& site)
      : lines_(kLines, site),
        vat_(panelClass("ctlINS_IVA").make({.container = site.container, .name = site.name + "-iva"})) {}

  std::vector<Panel*> panels() const override {
    std::vector<Panel*> panels = lines_.panels();
    panels.push_back(&vat_.panel());
    return panels;
  }
  std::span<const Head> heads() const override { return kHeads; }

  std::string remark() const override {
    Balance balance;
    try {
      for (const BoundPanel& bound : lines_.bound()) {
        if (!bound.row()) continue;
        const auto& line = static_cast<const ctlINS_MOVIMENTI&>(bound.panel());
        balance.add(line.TIPO(), line.IMPORTO());
      }
      return balance.told().append(balance.even() ? ": la registrazione quadra." : ".");
    } catch (const Failure&) {
      return "Un importo non è valido.";
    }
  }

  std::vector<Found> find(Store& store, std::string_view filter, int most) const override {
    return findBy(kFind, store, filter, most);
  }

  void load(Store& store, const Key& key) override {
    const std::int64_t number = std::get<std::int64_t>(key.front());
    std::vector<Row> lines;
    if (number > 0) {
      lines = lines_.read(store, key.front());
      if (lines.empty()) throw StoreFailure("la registrazione non c'è più: è stata eliminata da altri");
    } else {
      lines = newLines(store, -number);
    }
    const Row vat = journal::vatLineOf(store, key.front());
    const Row empty = emptyLine(number > 0 ? lines.front().at("COD_MOVIMENTO") : Value(-number),
                                number > 0 ? lines.front().at("DATA_MOVIMENTO") : today());
    key_.clear();
    lines_.show(std::move(lines), empty);
    vat_.clear();
    vat_.panel().surface().Visible(true);
    callByName(vat_.panel(), "Disattiva", {});
    vat_.show(vat, journal::kVatFields);
    key_ = key;
  }
  Key key() const override { return key_; }

  bool editable() const override { return true; }
  void Attiva() override {
    callByName(vat_.panel(), "Attiva", {});
    lines_.Attiva();
  }
  void Disattiva() override {
    lines_.Disattiva();
    callByName(vat_.panel(), "Disattiva", {});
  }
  bool changed() const override { return lines_.changed() || vat_.changed(); }

  std::string_view newFilter() const override { return "Nuova registrazione"; }
  Reach removing() const override {
    return !key_.empty() && std::get<std::int64_t>(key_.front()) > 0 ? Reach::Record : Reach::Nothing;
  }

  /// The entry as a whole, with its VAT line.
  void remove(Store& store) override {
    Store::Transaction transaction(store);
    lines_.write(store, key_.front(), {});
    if (!vat_.row()->isNew) vat_.erase(store, journal::kVatTable);
    transaction.commit();
    forget();
  }
  void forget() override {
    key_.clear();
    lines_.forget();
    vat_.forget();
  }

  Key save(Store& store) override {
    const std::vector<Row> lines = lines_.lines();
    check(store, lines);
    Store::Transaction transaction(store);
    const bool isNew = std::get<std::int64_t>(key_.front()) <= 0;
    const Value number = isNew ? nextNumber(store) : key_.front();
    if (isNew || lines_.changed()) {
      lines_.write(store, number, lines);
    } else {
      lines_.requireUnchanged(store, number);
    }
    if (vat_.changed()) writeVat(store, number);
    transaction.commit();
    return {number};
  }

 private:
  static Value nextNumber(Store& store) {
    return store.rows("SELECT coalesce(max(N_MOVIMENTO), 0) + 1 AS NUMERO FROM MOVIMENTI").front().at("NUMERO");
  }

  Value today() const { return stored(vat_.panel().surface().platform().clock().today(), Kind::Day); }

  /// The lines that a new entry of the type begins with, a repeated one three times.
  std::vector<Row> newLines(Store& store, std::int64_t type) const {
    constexpr std::size_t kRepeated = 3;
    std::vector<Row> lines;
    for (const Row& defined : journal::linesOfType(store, type)) {
      Row line = emptyLine(type, today());
      for (const char* column : {"MASTRO", "CONTO", "TIPO"}) line.at(column) = defined.at(column);
      lines.insert(lines.end(), std::get<bool>(shown(defined.at("RIPETI"), Kind::Flag)) ? kRepeated : 1, line);
    }
    return lines;
  }

  void writeVat(Store& store, const Value& number) {
    journal::makeVatTable(store);
    if (!vat_.row()->isNew) return vat_.write(store, journal::kVatTable);
    Row line = vat_.toBeStored();
    line.at("N_MOVIMENTO") = number;
    addRow(store, journal::kVatTable, line);
  }

  LinePanels lines_;
  BoundPanel vat_;
  Key key_;
};

}  // namespace

std::unique_ptr<Screen> journalEntry(const ScreenSite& site) { return std::make_unique<JournalEntry>(site); }

}  // namespace qvn::ufficio::screens
