// The commission of a policy's participants: ctlPROV_POLIZZE on QUOTE_POLIZZE, in the policy's current family of
// amounts. The table keeps amounts and no percents, so a percent is 0 until the operator types one, and it is told then
// that only its amount will stay.
#include <array>
#include <optional>

#include "hosts/ufficio/record_screen.h"
#include "hosts/ufficio/screens/makers.h"
#include "qvn/panels/commissions/ctlPROV_POLIZZE.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/failure.h"

namespace qvn::ufficio::screens {

namespace {

constexpr std::array<std::string_view, 2> kKey{"PROT", "COD_COMP"};

constexpr std::array kTrf{
    Field{"PN_UFF", "PN_UFF_TRF", Kind::Amount},           Field{"ACC_UFF", "ACC_UFF_TRF", Kind::Amount},
    Field{"AQ_UFF", "AQ_UFF_TRF", Kind::Amount},           Field{"PN_PROD", "pn_prod_TRF", Kind::Amount},
    Field{"ACC_PROD", "acc_prod_TRF", Kind::Amount},       Field{"AQ_PROD", "aq_prod_TRF", Kind::Amount},
    Field{"PN_PROD_ALT", "pn_prod_ALT_TRF", Kind::Amount}, Field{"ACC_PROD_ALT", "acc_prod_ALT_TRF", Kind::Amount},
    Field{"AQ_PROD_ALT", "aq_prod_ALT_TRF", Kind::Amount},
};

constexpr std::array kTaf{
    Field{"PN_UFF", "PN_UFF_TAF", Kind::Amount},           Field{"ACC_UFF", "ACC_UFF_TAF", Kind::Amount},
    Field{"AQ_UFF", "AQ_UFF_TAF", Kind::Amount},           Field{"PN_PROD", "pn_prod_TAF", Kind::Amount},
    Field{"ACC_PROD", "acc_prod_TAF", Kind::Amount},       Field{"AQ_PROD", "aq_prod_TAF", Kind::Amount},
    Field{"PN_PROD_ALT", "pn_prod_ALT_TAF", Kind::Amount}, Field{"ACC_PROD_ALT", "acc_prod_ALT_TAF", Kind::Amount},
    Field{"AQ_PROD_ALT", "aq_prod_ALT_TAF", Kind::Amount},
};

constexpr RecordDescription kCommissions{
    .panelClass = "ctlPROV_POLIZZE",
    .find =
        "SELECT Q.N_POLIZZA || '  ' || Q.COD_COMP || '  ' || Q.QUOTA || '‰  ' || "
        "coalesce(C.DESC_CLIENTE, P.COD_CLIENTE) AS TESTO, Q.PROT, Q.COD_COMP "
        "FROM QUOTE_POLIZZE Q JOIN POLIZZE P ON P.PROT = Q.PROT "
        "LEFT JOIN CLIENTI C ON C.COD_CLIENTE = P.COD_CLIENTE "
        "WHERE TESTO LIKE ?1 ESCAPE '\\' ORDER BY Q.PROT, Q.COD_COMP LIMIT ?2",
    .table = "QUOTE_POLIZZE",
    .key = kKey,
    .fields = kTrf,
};

/// The percents, which no column keeps.
constexpr std::array<std::string_view, 9> kPercents{"P_PN_UFF",      "P_ACC_UFF",      "P_AQ_UFF",
                                                    "P_PN_PROD",     "P_ACC_PROD",     "P_AQ_PROD",
                                                    "P_PN_PROD_ALT", "P_ACC_PROD_ALT", "P_AQ_PROD_ALT"};

/// What the boxes of percents say; nothing for one that says no number.
using Percents = std::array<std::optional<Decimal>, kPercents.size()>;

Percents percentsOf(Panel& panel) {
  Percents percents;
  for (std::size_t i = 0; i < percents.size(); ++i) {
    try {
      percents[i] = as<Decimal>(getByName(panel, kPercents[i]), Locale());
    } catch (const Failure&) {
      percents[i].reset();
    }
  }
  return percents;
}

/// The sample office reckons what it passes on as a part of its own commission.
constexpr std::uint8_t kOnOfficeCommission = 2;

Currency premium(const Row& policy, std::string_view column, std::string_view family) {
  return amountOf(policy.at(std::string(column).append(family)));
}

CurrencyArray premiumsOf(const Row& policy, std::string_view family) {
  return {
      .extents = {3, 2},
      .values = {
          premium(policy, "PN", family), {}, premium(policy, "ACC", family), {}, premium(policy, "PL", family), {}}};
}

class Commissions final : public RecordScreen {
 public:
  explicit Commissions(const ScreenSite& site) : RecordScreen(kCommissions, site) {}

  bool changed() const override { return RecordScreen::changed() || percentsTyped(); }
  std::string remark() const override {
    return percentsTyped() ? "Le percentuali non si conservano: si salvano solo gli importi." : "";
  }

 protected:
  void show(Store& store, BoundPanel& bound, const Row& row) override {
    const std::vector<Row> policies = store.rows("SELECT * FROM POLIZZE WHERE PROT = ?1", std::array{row.at("PROT")});
    if (policies.empty()) throw StoreFailure("la polizza di questa quota non c'è più");
    const Row& policy = policies.front();
    const bool isTrf = textOf(policy.at("U_CALCOLO")) == "TRF";

    auto& panel = static_cast<ctlPROV_POLIZZE&>(bound.panel());
    for (const std::string_view percent : kPercents) letByName(panel, percent, std::int32_t{0});
    panel.COD_COMPAGNIA(textOf(row.at("COD_COMP")));
    panel.COD_PRODUTTORE(textOf(row.at("COD_PROD")));
    panel.COD_PRODUTTORE_ALT(textOf(row.at("COD_PROD_ALT")));
    panel.DELEGATARIA(std::get<bool>(shown(row.at("DELEGATARIA"), Kind::Flag)));
    panel.VALORI(premiumsOf(policy, isTrf ? "_TRF" : "_TAF"));
    letByName(panel, "QUOTA", shown(row.at("QUOTA"), Kind::Number));
    panel.CALC_PROD(kOnOfficeCommission);
    panel.CALC_PROD_ALT(kOnOfficeCommission);
    panel.Disattiva();  // a producer's code has enabled his fields
    bound.show(row, isTrf ? std::span<const Field>(kTrf) : kTaf);
    panel.TOTALI();
    asShown_ = percentsOf(panel);
  }

 private:
  bool percentsTyped() const { return percentsOf(*panels().front()) != asShown_; }

  Percents asShown_;
};

}  // namespace

std::unique_ptr<Screen> commissions(const ScreenSite& site) { return std::make_unique<Commissions>(site); }

}  // namespace qvn::ufficio::screens
