// The outstanding titles of a policy: ctlSOSPESI on SOSPESI, one panel a title. What is picked to be done with a title
// is done when it is stored: the title takes the state of that letter, and a reactivated one is outstanding again.
#include <algorithm>
#include <array>
#include <string>

#include "hosts/ufficio/record_screen.h"
#include "hosts/ufficio/screens/makers.h"
#include "qvn/panels/documents/ctlSOSPESI.h"

namespace qvn::ufficio::screens {

namespace {

constexpr std::array<std::string_view, 1> kKey{"PROT"};

/// The state stands before the action, which is offered by it.
constexpr std::array kFields{
    Field{"COD_COMP_DEL", "COD_COMP_DEL", Kind::Text},
    Field{"PROT", "PROT", Kind::Number},
    Field{"PROG", "PROG", Kind::Number},
    Field{"DATA_EC", "DATA_EC", Kind::Day},
    Field{"TIPO_DOC", "TIPO_DOC", Kind::Text},
    Field{"INT_ASS", "INT_ASS", Kind::Text},
    Field{"DATA_DOC", "DATA_DOC", Kind::Day},
    Field{"DATA_C", "DATA_C", Kind::Day},
    Field{"STATO", "STATO", Kind::Text},
    Field{"N_STATO", "N_STATO", Kind::Text},
};

constexpr RecordDescription kTitles{
    .panelClass = "ctlSOSPESI",
    .find =
        "SELECT P.N_POLIZZA || '  ' || coalesce(C.DESC_CLIENTE, P.COD_CLIENTE) AS TESTO, P.PROT "
        "FROM POLIZZE P LEFT JOIN CLIENTI C ON C.COD_CLIENTE = P.COD_CLIENTE "
        "WHERE EXISTS (SELECT 1 FROM SOSPESI S WHERE S.PROT = P.PROT) "
        "AND holds(TESTO, ?1) ORDER BY P.PROT LIMIT ?2",
    .table = "SOSPESI",
    .key = kKey,
    .fields = kFields,
    .panels = 12,
};

/// What a title's panel shows of its policy; the quota is the lead company's.
constexpr const char* kPolicyOfTitle =
    "SELECT coalesce(C.DESC_CLIENTE, P.COD_CLIENTE) AS CLIENTE, P.N_POLIZZA, P.COD_RAMO, "
    "coalesce(R.DESCRIZIONE, '') AS DESC_SRAMO, coalesce(Q.QUOTA, 0) AS QUOTA "
    "FROM POLIZZE P LEFT JOIN CLIENTI C ON C.COD_CLIENTE = P.COD_CLIENTE "
    "LEFT JOIN SOTTORAMI R ON R.COD_SRAMO = P.COD_SRAMO "
    "LEFT JOIN QUOTE_POLIZZE Q ON Q.PROT = P.PROT AND Q.COD_COMP = ?2 WHERE P.PROT = ?1";

constexpr std::array kFieldsOfPolicy{
    Field{"CLIENTE", "CLIENTE", Kind::Text}, Field{"N_POLIZZA", "N_POLIZZA", Kind::Text},
    Field{"COD_GR", "COD_RAMO", Kind::Text}, Field{"DESC_SRAMO", "DESC_SRAMO", Kind::Text},
    Field{"QUOTA", "QUOTA", Kind::Number},
};

/// What the operator can change of a title. It stands on each of the title's rows.
constexpr std::array<std::string_view, 4> kWritten{"STATO", "N_STATO", "DATA_DOC", "DATA_C"};

constexpr std::string_view kStates = "AICSN";

/// The titles of a policy. A title is one row here: its companies' rows one behind the other, the first company's
/// values thereby being those that a column's name finds.
std::vector<Row> titlesOf(Store& store, const Key& policy) {
  std::vector<Row> titles;
  for (const Row& row : store.rows("SELECT * FROM SOSPESI WHERE PROT = ?1 ORDER BY PROG, COD_COMP", policy)) {
    if (titles.empty() || titles.back().at("PROG") != row.at("PROG")) titles.emplace_back();
    Row& title = titles.back();
    title.columns.insert(title.columns.end(), row.columns.begin(), row.columns.end());
    title.values.insert(title.values.end(), row.values.begin(), row.values.end());
  }
  return titles;
}

/// The gross premium of all its companies.
Currency premiumOf(const Row& title) {
  Currency premium;
  for (std::size_t i = 0; i < title.columns.size(); ++i) {
    if (title.columns[i] == "PL") premium += amountOf(title.values[i]);
  }
  return premium;
}

void checkState(const Row& title) {
  const std::string state = textOf(title.at("STATO"));
  if (state.size() == 1 && kStates.find(state) != std::string_view::npos) return;
  throw StoreFailure(std::string("un titolo ha lo stato «").append(state).append("», che non esiste"));
}

class Titles final : public RecordScreen {
 public:
  explicit Titles(const ScreenSite& site) : RecordScreen(kTitles, site), settings_(site.settings) {}

 protected:
  std::vector<Row> read(Store& store, const Key& key) const override {
    std::vector<Row> titles = titlesOf(store, key);
    if (titles.empty()) throw StoreFailure("la polizza non ha più titoli: sono stati eliminati da altri");
    if (titles.size() > panels().size()) {
      throw StoreFailure("la polizza ha più titoli di quanti la schermata ne mostra");
    }
    return titles;
  }

  void show(Store& store, BoundPanel& bound, const Row& title) override {
    checkState(title);
    const std::vector<Row> policies =
        store.rows(kPolicyOfTitle, std::array{title.at("PROT"), title.at("COD_COMP_DEL")});
    if (policies.empty()) throw StoreFailure("la polizza di questo titolo non c'è più");
    for (const Field& field : kFieldsOfPolicy) {
      letByName(bound.panel(), field.property, shown(policies.front().at(field.column), field.kind));
    }
    letByName(bound.panel(), "PL", premiumOf(title));
    bound.show(title, description().fields);
  }

  void activate(Panel& panel) override { static_cast<ctlSOSPESI&>(panel).Attiva(settings_.mayCancel); }

  void write(Store& store, const BoundPanel& panel) const override {
    const Row& before = panel.row().value();
    Row after = panel.toBeStored();
    carryOut(after);
    const std::vector<Row> now = titlesOf(store, {before.at("PROT")});
    if (std::ranges::find(now, before.values, &Row::values) == now.end()) throw ChangedByOthers();
    for (const std::string_view column : kWritten) {
      if (after.at(column) == before.at(column)) continue;
      store.run(std::string("UPDATE SOSPESI SET ").append(column).append(" = ?1 WHERE PROT = ?2 AND PROG = ?3"),
                std::array{after.at(column), before.at("PROT"), before.at("PROG")});
    }
  }

 private:
  /// Does what is picked, but for a cancelling that waits for an operator who may.
  void carryOut(Row& title) const {
    const std::string action = textOf(title.at("N_STATO"));
    if (action.empty() || (action == "A" && !settings_.mayCancel)) return;
    title.at("STATO") = action == "R" ? std::string("S") : action;
    title.at("N_STATO") = std::string();
  }

  const Settings& settings_;
};

}  // namespace

std::unique_ptr<Screen> titles(const ScreenSite& site) { return std::make_unique<Titles>(site); }

}  // namespace qvn::ufficio::screens
