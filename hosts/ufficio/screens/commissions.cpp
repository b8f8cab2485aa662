// The commission of a policy's participants: ctlPROV_POLIZZE on QUOTE_POLIZZE, in the policy's current family of
// amounts, and on the percents that the office keeps beside it.
#include <algorithm>
#include <array>
#include <optional>

#include "hosts/ufficio/commissions/percents.h"
#include "hosts/ufficio/record_screen.h"
#include "hosts/ufficio/screens/makers.h"
#include "qvn/panels/commissions/ctlPROV_POLIZZE.h"
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
        "WHERE holds(TESTO, ?1) ORDER BY Q.PROT, Q.COD_COMP LIMIT ?2",
    .table = "QUOTE_POLIZZE",
    .key = kKey,
    .fields = kTrf,
};

using commissions::kPercentFields;

/// What the percents' properties give; nothing for one that gives no number.
using Percents = std::array<std::optional<Value>, kPercentFields.size()>;

Percents percentsIn(Panel& panel) {
  Percents percents;
  for (std::size_t i = 0; i < percents.size(); ++i) {
    try {
      percents.at(i) = stored(getByName(panel, kPercentFields.at(i).property), kPercentFields.at(i).kind);
    } catch (const Failure&) {
      percents.at(i).reset();
    }
  }
  return percents;
}

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

  /// Leaving a list of bases makes stored amounts 0 where no percent is stored with them, which is easily overlooked.
  std::string remark() const override {
    if (key().empty()) return {};
    const auto gone = std::ranges::count_if(fields_, [&](const Field& field) {
      return amountOf(row_.at(field.column)) != Currency() && isZero(field.property);
    });
    if (gone == 0) return {};
    return std::string("Importi salvati che ora sono 0: ").append(std::to_string(gone)).append(". Annulla li riporta.");
  }

 protected:
  void show(Store& store, BoundPanel& bound, const Row& row) override {
    const std::vector<Row> policies = store.rows("SELECT * FROM POLIZZE WHERE PROT = ?1", std::array{row.at("PROT")});
    if (policies.empty()) throw StoreFailure("la polizza di questa quota non c'è più");
    const Row& policy = policies.front();
    const bool isTrf = textOf(policy.at("U_CALCOLO")) == "TRF";
    percents_ = commissions::percentsOf(store, row, isTrf ? "TRF" : "TAF");

    auto& panel = static_cast<ctlPROV_POLIZZE&>(bound.panel());
    showPercents(panel);  // before the codes, which reckon by what stands there
    panel.COD_COMPAGNIA(textOf(row.at("COD_COMP")));
    panel.COD_PRODUTTORE(textOf(row.at("COD_PROD")));
    panel.COD_PRODUTTORE_ALT(textOf(row.at("COD_PROD_ALT")));
    panel.DELEGATARIA(std::get<bool>(shown(row.at("DELEGATARIA"), Kind::Flag)));
    panel.VALORI(premiumsOf(policy, isTrf ? "_TRF" : "_TAF"));
    letByName(panel, "QUOTA", shown(row.at("QUOTA"), Kind::Number));
    panel.Disattiva();  // a producer's code has enabled his fields
    showPercents(panel);
    row_ = row;
    fields_ = isTrf ? std::span<const Field>(kTrf) : kTaf;
    bound.show(row, fields_);
    panel.TOTALI();
    asShown_ = percentsIn(panel);
  }

  bool changedIn(const BoundPanel& bound) const override {
    return RecordScreen::changedIn(bound) || (bound.row() && percentsIn(bound.panel()) != asShown_);
  }

  void write(Store& store, const BoundPanel& bound) const override {
    RecordScreen::write(store, bound);
    const Percents typed = percentsIn(bound.panel());
    if (typed == asShown_) return;
    Row now = percents_;
    for (std::size_t i = 0; i < typed.size(); ++i) {
      const Field& field = kPercentFields.at(i);
      if (typed.at(i) == asShown_.at(i)) continue;
      // Once more where it has given no number, so that it says why.
      now.at(field.column) = typed.at(i) ? *typed.at(i) : stored(getByName(bound.panel(), field.property), field.kind);
    }
    commissions::storePercents(store, percents_, now);
  }

 private:
  bool isZero(std::string_view property) const {
    try {
      return getByName(*panels().front(), property) == Variant(Currency());
    } catch (const Failure&) {
      return false;  // told when it is stored
    }
  }

  void showPercents(Panel& panel) const {
    for (const Field& field : kPercentFields) {
      letByName(panel, field.property, shown(percents_.at(field.column), field.kind));
    }
  }

  Row row_;  // as it was read
  std::span<const Field> fields_;
  Row percents_;  // as they were read
  Percents asShown_;
};

}  // namespace

std::unique_ptr<Screen> commissions(const ScreenSite& site) { return std::make_unique<Commissions>(site); }

}  // namespace qvn::ufficio::screens
