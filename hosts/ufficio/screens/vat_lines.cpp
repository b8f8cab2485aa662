// The VAT line of a movement: ctlINS_IVA on MOVIMENTI_IVA. The office keeps that table itself and makes it when the
// first line is stored; a movement that has no line yet shows an empty one.
#include <array>

#include "hosts/ufficio/journal/vat_line.h"
#include "hosts/ufficio/record_screen.h"
#include "hosts/ufficio/screens/makers.h"

namespace qvn::ufficio::screens {

namespace {

constexpr std::array<std::string_view, 1> kKey{"N_MOVIMENTO"};

constexpr std::array kHeads{
    Head{"txtCOD_IVA", "Codice"}, Head{"LblDESC_IVA", "Descrizione"},
    Head{"lblIVA", "%"},          Head{"TxtIMPONIBILE", "Imponibile"},
    Head{"TxtIVA", "IVA"},
};

constexpr RecordDescription kVatLines{
    .panelClass = "ctlINS_IVA",
    .find =
        "SELECT N_MOVIMENTO || '  ' || substr(DATA_MOVIMENTO, 9, 2) || '/' || substr(DATA_MOVIMENTO, 6, 2) || '/' "
        "|| substr(DATA_MOVIMENTO, 1, 4) || '  ' || DESC_2 AS TESTO, N_MOVIMENTO FROM MOVIMENTI A "
        "WHERE NOT EXISTS (SELECT 1 FROM MOVIMENTI B WHERE B.N_MOVIMENTO = A.N_MOVIMENTO AND B.RIGA < A.RIGA) "
        "AND holds(TESTO, ?1) ORDER BY N_MOVIMENTO LIMIT ?2",
    .table = journal::kVatTable,
    .key = kKey,
    .fields = journal::kVatFields,
    .heads = kHeads,
};

class VatLines final : public RecordScreen {
 public:
  explicit VatLines(const ScreenSite& site) : RecordScreen(kVatLines, site) {}

 protected:
  std::vector<Row> read(Store& store, const Key& key) const override {
    return {journal::vatLineOf(store, key.front())};
  }

  void write(Store& store, const BoundPanel& panel) const override {
    if (store.rows("SELECT 1 FROM MOVIMENTI WHERE N_MOVIMENTO = ?1", key()).empty()) throw RecordGone();
    journal::makeVatTable(store);
    RecordScreen::write(store, panel);
  }
};

}  // namespace

std::unique_ptr<Screen> vatLines(const ScreenSite& site) { return std::make_unique<VatLines>(site); }

}  // namespace qvn::ufficio::screens
