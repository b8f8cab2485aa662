// The codes of the accounting prints: ctlSTP_CONTABILE on STAMPE_CONTABILI. The office keeps that table itself and
// makes it when the first of them is stored; until then it has the codes that it begins with.
#include <array>
#include <string>

#include "hosts/ufficio/finding.h"
#include "hosts/ufficio/record_screen.h"
#include "hosts/ufficio/screens/makers.h"

namespace qvn::ufficio::screens {

namespace {

constexpr std::array<std::string_view, 1> kKey{"CODICE"};

constexpr std::array kFields{
    Field{"Codice", "CODICE", Kind::Text},
    Field{"DESCRIZIONE", "DESCRIZIONE", Kind::Text},
};

constexpr RecordDescription kAccountingPrints{
    .panelClass = "ctlSTP_CONTABILE",
    .find = {},
    .table = "STAMPE_CONTABILI",
    .key = kKey,
    .fields = kFields,
    .adding = Reach::Record,
    .needed = {"CODICE", "il codice"},
};

/// None where there are no accounts to print.
constexpr std::string_view kBeginning =
    "(SELECT column1 AS CODICE, column2 AS DESCRIZIONE FROM (VALUES ('BILAN', 'Bilancio di verifica'), "
    "('GIORN', 'Libro giornale'), ('MASTR', 'Schede di mastro'), ('REGIV', 'Registri IVA')) "
    "WHERE EXISTS (SELECT 1 FROM CONTI))";

/// What a statement reads the codes from.
std::string_view source(Store& store) {
  return store.hasTable(kAccountingPrints.table) ? kAccountingPrints.table : kBeginning;
}

class AccountingPrints final : public RecordScreen {
 public:
  explicit AccountingPrints(const ScreenSite& site) : RecordScreen(kAccountingPrints, site) {}

  std::vector<Found> find(Store& store, std::string_view filter, int most) const override {
    return findBy(std::string("SELECT CODICE || '  ' || DESCRIZIONE AS TESTO, CODICE FROM ")
                      .append(source(store))
                      .append(" WHERE holds(TESTO, ?1) ORDER BY CODICE LIMIT ?2"),
                  store, filter, most);
  }

 protected:
  std::vector<Row> read(Store& store, const Key& key) const override {
    std::vector<Row> rows =
        store.rows(std::string("SELECT * FROM ").append(source(store)).append(" WHERE CODICE = ?1"), key);
    if (rows.empty()) throw RecordGone();
    return rows;
  }

  void write(Store& store, const BoundPanel& panel) const override {
    makeTable(store);
    RecordScreen::write(store, panel);
  }

  void erase(Store& store, const BoundPanel& panel) const override {
    makeTable(store);
    RecordScreen::erase(store, panel);
  }

 private:
  static void makeTable(Store& store) {
    if (store.hasTable(kAccountingPrints.table)) return;
    store.run(
        "CREATE TABLE STAMPE_CONTABILI (CODICE TEXT NOT NULL PRIMARY KEY, DESCRIZIONE TEXT NOT NULL) WITHOUT ROWID");
    store.run(std::string("INSERT INTO STAMPE_CONTABILI SELECT * FROM ").append(kBeginning));
  }
};

}  // namespace

std::unique_ptr<Screen> accountingPrints(const ScreenSite& site) { return std::make_unique<AccountingPrints>(site); }

}  // namespace qvn::ufficio::screens
