// The commission panel with its host, its operator and the database that it looks into.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <gmock/gmock.h>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "qvn/panels/commissions/ctlPROV_POLIZZE.h"
#include "qvn/shared/conversions.h"
#include "tests/failure_matchers.h"
#include "tests/on_database.h"

namespace qvn::test {

/// One of the nine cells by the names of its properties.
struct CommissionCell {
  std::string amount;
  Currency (ctlPROV_POLIZZE::*getAmount)() const;
  void (ctlPROV_POLIZZE::*letAmount)(Currency);
  Variant (ctlPROV_POLIZZE::*getPercent)() const;
  void (ctlPROV_POLIZZE::*letPercent)(const Variant&);

  std::string percent() const { return "P_" + amount; }
  std::string amountBox() const { return "Txt" + amount; }
  std::string percentBox() const { return "TxtP_" + amount; }
  std::string party() const { return amount.substr(amount.find('_') + 1); }
  std::string frame() const { return "Frm" + party(); }
};

class CommissionPanel : public OnDatabase {
 public:
  using P = ctlPROV_POLIZZE;

  CommissionPanel() {
    company("C1", "GENERALE");
    producer("P1", "ROSSI", std::int32_t{40}, std::int32_t{23});
    producer("P2", "BIANCHI", std::int32_t{30}, std::int32_t{23});
    producer("P3", "VERDI", std::int32_t{50}, std::int32_t{20});
    panel = another("provv");
    container().notices.clear();
  }

  std::unique_ptr<ctlPROV_POLIZZE> panel;

  std::unique_ptr<ctlPROV_POLIZZE> another(std::string name) {
    return std::make_unique<ctlPROV_POLIZZE>(PanelSite{container(), std::move(name)});
  }

  // The database.
  static std::string rateSql(std::string_view code) {
    return std::string("Select R_ACC From PRODUTTORI Where COD_PROD = '").append(code).append("'");
  }
  void producer(std::string_view code, std::string name, Variant PERCALT, Variant R_ACC) {
    OnDatabase::producer(code, std::move(name), std::move(PERCALT));
    driver().answers[rateSql(code)] = {{"R_ACC"}, {{std::move(R_ACC)}}};
  }

  // The host.
  static Currency money(std::string_view text) { return toCurrency(text, Locale{}); }
  static Variant percent(std::string_view text) { return toDecimal(text, Locale{}); }
  /// The premiums of the policy, each with what goes to the lead coinsurer.
  static CurrencyArray figures(const std::array<std::string_view, 6>& rows) {
    CurrencyArray array{.extents = {3, 2}, .values = {}};
    array.values.reserve(rows.size());
    for (const std::string_view figure : rows) array.values.push_back(money(figure));
    return array;
  }
  /// Gives the participant these premiums, by a quota of the whole.
  void premiums(std::string_view PN, std::string_view ACC) {
    panel->VALORI(figures({PN, "0", ACC, "0", "0", "0"}));
    panel->QUOTA(1000);
    forget();
  }
  /// All three parties entitled and the panel ready, the focus elsewhere.
  void everybody() {
    panel->COD_PRODUTTORE("P1");
    panel->COD_PRODUTTORE_ALT("P2");
    panel->Attiva();
    hands().leave();
    forget();
  }

  // What can be seen.
  toolkit::Surface& surface() { return panel->surface(); }
  toolkit::TextBox& box(std::string_view name) { return surface().textBox(name); }
  toolkit::Label& label(std::string_view name) { return surface().label(name); }
  toolkit::ComboBox& list(std::string_view name) { return surface().comboBox(name); }
  toolkit::Frame& frame(std::string_view name) { return surface().frame(name); }
  std::string text(std::string_view name) { return box(name).Text(); }
  std::string caption(std::string_view name) { return label(name).Caption(); }
  Strings texts(const Strings& names) {
    Strings shown;
    shown.reserve(names.size());
    for (const std::string& name : names) shown.push_back(text(name));
    return shown;
  }
  /// Everything that the panel shows.
  std::map<std::string, std::string, std::less<>> shown() {
    std::map<std::string, std::string, std::less<>> all;
    for (toolkit::Widget* widget : surface().widgets()) {
      const std::string name(widget->Name());
      if (widget->Kind() == toolkit::WidgetKind::TextBox) all[name] = text(name);
      if (widget->Kind() == toolkit::WidgetKind::Label) all[name] = caption(name);
      if (widget->Kind() == toolkit::WidgetKind::ComboBox) all[name] = list(name).Text();
    }
    return all;
  }

  /// The nine cells in the order in which amounts are worked out.
  static const std::vector<CommissionCell>& cells() {
    static const std::vector<CommissionCell> all{
        {"PN_UFF", &P::PN_UFF, &P::PN_UFF, &P::P_PN_UFF, &P::P_PN_UFF},
        {"ACC_UFF", &P::ACC_UFF, &P::ACC_UFF, &P::P_ACC_UFF, &P::P_ACC_UFF},
        {"AQ_UFF", &P::AQ_UFF, &P::AQ_UFF, &P::P_AQ_UFF, &P::P_AQ_UFF},
        {"PN_PROD", &P::PN_PROD, &P::PN_PROD, &P::P_PN_PROD, &P::P_PN_PROD},
        {"ACC_PROD", &P::ACC_PROD, &P::ACC_PROD, &P::P_ACC_PROD, &P::P_ACC_PROD},
        {"AQ_PROD", &P::AQ_PROD, &P::AQ_PROD, &P::P_AQ_PROD, &P::P_AQ_PROD},
        {"PN_PROD_ALT", &P::PN_PROD_ALT, &P::PN_PROD_ALT, &P::P_PN_PROD_ALT, &P::P_PN_PROD_ALT},
        {"ACC_PROD_ALT", &P::ACC_PROD_ALT, &P::ACC_PROD_ALT, &P::P_ACC_PROD_ALT, &P::P_ACC_PROD_ALT},
        {"AQ_PROD_ALT", &P::AQ_PROD_ALT, &P::AQ_PROD_ALT, &P::P_AQ_PROD_ALT, &P::P_AQ_PROD_ALT},
    };
    return all;
  }
  Currency amount(const CommissionCell& cell) { return (*panel.*cell.getAmount)(); }
  void amount(const CommissionCell& cell, Currency value) { (*panel.*cell.letAmount)(value); }
  Variant percentOf(const CommissionCell& cell) { return (*panel.*cell.getPercent)(); }
  void percentOf(const CommissionCell& cell, const Variant& value) { (*panel.*cell.letPercent)(value); }
};

}  // namespace qvn::test
