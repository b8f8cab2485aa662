// The credit lines of a client: ctlFIDO on FIDI, a panel for each company that grants one and an empty one for another.
#include <array>

#include "hosts/ufficio/record_screen.h"
#include "hosts/ufficio/screens/makers.h"

namespace qvn::ufficio::screens {

namespace {

constexpr std::array<std::string_view, 1> kKey{"COD_CLIENTE"};

/// The client stands before the company, whose exposure is reckoned for him when its code comes.
constexpr std::array kFields{
    Field{"COD_CLIENTE", "COD_CLIENTE", Kind::Text},
    Field{"COD_COMP", "COD_COMP", Kind::Text},
    Field{"DATA_FIDO", "DATA_FIDO", Kind::Day},
    Field{"FIDO", "FIDO", Kind::Amount},
};

constexpr RecordDescription kCreditLines{
    .panelClass = "ctlFIDO",
    .find =
        "SELECT COD_CLIENTE || '  ' || DESC_CLIENTE AS TESTO, COD_CLIENTE FROM CLIENTI "
        "WHERE holds(TESTO, ?1) ORDER BY COD_CLIENTE LIMIT ?2",
    .table = "FIDI",
    .key = kKey,
    .fields = kFields,
    .panels = kAllRows,
    .adding = Reach::Row,
    .needed = {"COD_COMP", "il codice della compagnia"},
};

class CreditLines final : public RecordScreen {
 public:
  explicit CreditLines(const ScreenSite& site) : RecordScreen(kCreditLines, site) {}

 protected:
  std::vector<Row> read(Store& store, const Key& key) const override {
    std::vector<Row> lines = store.rows("SELECT * FROM FIDI WHERE COD_CLIENTE = ?1 ORDER BY COD_COMP", key);
    lines.push_back(newRow(key));
    return lines;
  }

  void show(Store& store, BoundPanel& bound, const Row& row) override {
    // A company that the panel shows already would keep the exposure of the client before.
    letByName(bound.panel(), "COD_COMP", std::string());
    RecordScreen::show(store, bound, row);
  }
};

}  // namespace

std::unique_ptr<Screen> creditLines(const ScreenSite& site) { return std::make_unique<CreditLines>(site); }

}  // namespace qvn::ufficio::screens
