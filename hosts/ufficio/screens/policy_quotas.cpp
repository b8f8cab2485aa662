// The participants of a coinsured policy: ctlQ_POLIZZE on QUOTE_POLIZZE, with the policy's premiums in both families.
#include <array>

#include "hosts/ufficio/commissions/percents.h"
#include "hosts/ufficio/screens/makers.h"
#include "hosts/ufficio/screens/quota_screen.h"

namespace qvn::ufficio::screens {

namespace {

constexpr std::array<std::string_view, 1> kKey{"PROT"};

constexpr std::array kFields{
    Field{"COD_COMP", "COD_COMP", Kind::Text},
    Field{"COD_PROD", "COD_PROD", Kind::Text},
    Field{"COD_PROD_ALT", "COD_PROD_ALT", Kind::Text},
    Field{"N_POLIZZA", "N_POLIZZA", Kind::Text},
    Field{"D_RIMESSA", "D_RIMESSA", Kind::Day},
    Field{"DELEGATARIA", "DELEGATARIA", Kind::Flag},
    Field{"QUOTA", "QUOTA", Kind::Number},
};

/// What a participant's commission is entered in, by the screen of the commissions.
constexpr std::array<std::string_view, 18> kCommissions{
    "PN_UFF_TRF",      "ACC_UFF_TRF",      "AQ_UFF_TRF",      "pn_prod_TRF",     "acc_prod_TRF",     "aq_prod_TRF",
    "pn_prod_ALT_TRF", "acc_prod_ALT_TRF", "aq_prod_ALT_TRF", "PN_UFF_TAF",      "ACC_UFF_TAF",      "AQ_UFF_TAF",
    "pn_prod_TAF",     "acc_prod_TAF",     "aq_prod_TAF",     "pn_prod_ALT_TAF", "acc_prod_ALT_TAF", "aq_prod_ALT_TAF"};

constexpr std::array kHeads{Head{"TAF(0)", "TAF"}, Head{"TRF(0)", "TRF"}};

constexpr RecordDescription kPolicyQuotas{
    .panelClass = "ctlQ_POLIZZE",
    .find =
        "SELECT P.N_POLIZZA || '  ' || coalesce(C.DESC_CLIENTE, P.COD_CLIENTE) AS TESTO, P.PROT "
        "FROM POLIZZE P LEFT JOIN CLIENTI C ON C.COD_CLIENTE = P.COD_CLIENTE "
        "WHERE holds(TESTO, ?1) ORDER BY P.PROT LIMIT ?2",
    .table = "QUOTE_POLIZZE",
    .key = kKey,
    .order = "COD_COMP",
    .fields = kFields,
    .panels = 12,
    .heads = kHeads,
    .adding = Reach::Row,
    .needed = {"COD_COMP", "il codice della compagnia"},
    .others = kCommissions,
};

class PolicyQuotas final : public QuotaScreen {
 public:
  explicit PolicyQuotas(const ScreenSite& site) : QuotaScreen(kPolicyQuotas, site) {}

 protected:
  void write(Store& store, const BoundPanel& bound) const override {
    QuotaScreen::write(store, bound);
    commissions::movePercents(store, bound.row().value(), bound.toBeStored());
  }

  void erase(Store& store, const BoundPanel& bound) const override {
    QuotaScreen::erase(store, bound);
    commissions::erasePercents(store, bound.row().value());
  }

 private:
  /// Net premium, accessories and gross premium, each as TAF, as what goes to the lead alone, of which the office keeps
  /// none, and as TRF.
  CurrencyArray figures(Store& store, const Row& row) const override {
    const std::vector<Row> policies = store.rows("SELECT * FROM POLIZZE WHERE PROT = ?1", std::array{row.at("PROT")});
    if (policies.empty()) throw StoreFailure("la polizza di questa quota non c'è più");
    const auto amount = [&](std::string_view column) { return amountOf(policies.front().at(column)); };
    return {.extents = {3, 3},
            .values = {amount("PN_TAF"),
                       {},
                       amount("PN_TRF"),  //
                       amount("ACC_TAF"),
                       {},
                       amount("ACC_TRF"),  //
                       amount("PL_TAF"),
                       {},
                       amount("PL_TRF")}};
  }
};

}  // namespace

std::unique_ptr<Screen> policyQuotas(const ScreenSite& site) { return std::make_unique<PolicyQuotas>(site); }

}  // namespace qvn::ufficio::screens
