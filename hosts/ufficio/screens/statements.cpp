// The account statement of a client: ctlESTRATTI on ESTRATTI, a panel for each of its lines.
#include <algorithm>
#include <array>

#include "hosts/ufficio/record_screen.h"
#include "hosts/ufficio/screens/makers.h"

namespace qvn::ufficio::screens {

namespace {

constexpr std::array<std::string_view, 1> kKey{"COD_CLIENTE"};

/// The producers stand before Attiva, which asks for them.
constexpr std::array kFields{
    Field{"COD_PROD", "COD_PROD", Kind::Text},
    Field{"COD_PROD_ALT", "COD_PROD_ALT", Kind::Text},
    Field{"DATA_EC", "DATA_EC", Kind::Day},
    Field{"TIPO_DOC", "TIPO_DOC", Kind::Text},
    Field{"SIGLA_SRAMO", "SIGLA_SRAMO", Kind::Text},
    Field{"N_POLIZZA", "N_POLIZZA", Kind::Text},
    Field{"COD_CLIENTE", "COD_CLIENTE", Kind::Text},
    Field{"DATA_QUIET", "DATA_QUIET", Kind::Day},
    Field{"ANNULLATA", "ANNULLATA", Kind::Flag},
    Field{"INT_ASS", "INT_ASS", Kind::Text},
    Field{"COD_GR", "COD_RAMO", Kind::Text},
    Field{"DATA_REG", "DATA_REG", Kind::Day},
    Field{"PREMIO", "PREMIO", Kind::Amount},
    Field{"RIMBORSO", "RIMBORSO", Kind::Amount},
    Field{"PROVVIGIONE", "PROVVIGIONE", Kind::Amount},
    Field{"ST_COMP", "ST_COMP", Kind::Text},
    Field{"ST_PROD", "ST_PROD", Kind::Text},
    Field{"STAMPA", "STAMPA", Kind::Flag},
};

constexpr RecordDescription kStatements{
    .panelClass = "ctlESTRATTI",
    .find =
        "SELECT E.COD_CLIENTE || '  ' || coalesce(C.DESC_CLIENTE, '') AS TESTO, E.COD_CLIENTE "
        "FROM ESTRATTI E LEFT JOIN CLIENTI C ON C.COD_CLIENTE = E.COD_CLIENTE "
        "WHERE holds(TESTO, ?1) GROUP BY E.COD_CLIENTE ORDER BY E.COD_CLIENTE LIMIT ?2",
    .table = "ESTRATTI",
    .key = kKey,
    .order = "DATA_REG, N_RIGA",
    .fields = kFields,
    .panels = kAllRows,
};

class Statements final : public RecordScreen {
 public:
  explicit Statements(const ScreenSite& site) : RecordScreen(kStatements, site) {}

  /// A line may have gone to another client; the others are still this one's.
  Key save(Store& store) override {
    Key first = RecordScreen::save(store);
    const bool others = !store.rows("SELECT 1 FROM ESTRATTI WHERE COD_CLIENTE = ?1 LIMIT 1", key()).empty();
    return others ? key() : first;
  }
};

}  // namespace

std::unique_ptr<Screen> statements(const ScreenSite& site) { return std::make_unique<Statements>(site); }

}  // namespace qvn::ufficio::screens
