// Panels of a quota with their host, their operator and the database that they look into.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <gmock/gmock.h>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "qvn/panels/classes.h"
#include "qvn/panels/quotas/ctlQ_POLIZZE.h"
#include "qvn/panels/quotas/ctlQ_SINISTRI.h"
#include "qvn/shared/conversions.h"
#include "tests/failing_query.h"
#include "tests/failure_matchers.h"
#include "tests/on_platform.h"

namespace qvn::test {

inline constexpr std::uint32_t kCyan = 0xFFFF00;

using Strings = std::vector<std::string>;

inline Currency money(std::string_view text) { return toCurrency(text, Locale{}); }

inline CurrencyArray amounts(std::vector<std::size_t> extents, const Strings& texts) {
  CurrencyArray array{.extents = std::move(extents), .values = {}};
  array.values.reserve(texts.size());
  for (const std::string& text : texts) array.values.push_back(money(text));
  return array;
}

/// The figures of a policy, row by row: _TAF, what goes to the lead coinsurer, _TRF.
inline CurrencyArray ofPolicy(const std::array<std::string, 9>& texts) {
  return amounts({3, 3}, Strings(texts.begin(), texts.end()));
}

/// The figures of a claim: estimated, paid, and what nothing shows.
inline CurrencyArray ofClaim(const std::array<std::string, 3>& texts) {
  return amounts({3}, Strings(texts.begin(), texts.end()));
}

class QuotaBench : public OnPlatform {
 public:
  QuotaBench() {
    platform().drivers().add(statements);
    driver().answers[companySql("C1")] = {{"DESC_COMPAGNIA"}, {{std::string("GENERALE")}}};
    driver().answers[companySql("C2")] = {{"DESC_COMPAGNIA"}, {{std::string("RIUNIONE")}}};
    producer("P1", "ROSSI", 12.5);
    producer("P2", "BIANCHI", std::int32_t{30});
    Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
  }

  FailingQuery statements{driver()};
  std::unique_ptr<Panel> panel;

  // The database.
  static std::string companySql(std::string_view code) {
    return std::string("Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP = '").append(code).append("'");
  }
  static std::string producerSql(std::string_view code) {
    return std::string("Select DENOMINAZIONE, PERCALT From PRODUTTORI Where COD_PROD = '").append(code).append("'");
  }
  void producer(std::string_view code, std::string name, Variant PERCALT) {
    driver().answers[producerSql(code)] = {{"DENOMINAZIONE", "PERCALT"}, {{std::move(name), std::move(PERCALT)}}};
  }
  /// The statements run since it was last asked, in order.
  Strings asked() {
    Strings sql;
    sql.reserve(driver().ran.size());
    for (const Ran& ran : std::exchange(driver().ran, {})) sql.push_back(ran.sql);
    return sql;
  }

  // The host.
  static inline const Strings kBothClasses{"ctlQ_POLIZZE", "ctlQ_SINISTRI"};
  Panel& make(std::string_view className) {
    panel = panelClass(className).make(PanelSite{container(), "quota"});
    forget();
    return *panel;
  }
  /// Makes the panel ready, with its first amounts 1000,00 and 500,00 of the whole.
  void ready(std::string_view className) {
    make(className);
    figures();
    call("Attiva");
    forget();
  }
  void figures() {
    const bool policy = panel->surface().layout().name == "ctlQ_POLIZZE";
    std::vector<Variant> args{policy ? ofPolicy({"1000", "50", "500", "0", "0", "0", "0", "0", "0"})
                                     : ofClaim({"1000", "500", "7"})};
    callByName(*panel, "Imposta_VALORI", args);
  }
  /// Does so with either of the panels.
  void withBoth(const std::function<void(std::string_view className)>& act) {
    for (const std::string& className : kBothClasses) {
      SCOPED_TRACE(className);
      act(className);
      panel.reset();
    }
  }
  /// Makes one whose class is known.
  template <class P>
  P& make() {
    auto made = std::make_unique<P>(PanelSite{container(), "quota"});
    P& known = *made;
    panel = std::move(made);
    forget();
    return known;
  }
  void call(std::string_view name) { callByName(*panel, name, {}); }
  void let(std::string_view name, const Variant& value) { letByName(*panel, name, value); }
  void quota(int thousandths) { let("QUOTA", std::int32_t{thousandths}); }
  std::int16_t quota() { return std::get<std::int16_t>(getByName(*panel, "QUOTA")); }
  void write(std::string_view name, std::string text) { let(name, std::move(text)); }
  std::string read(std::string_view name) { return std::get<std::string>(getByName(*panel, name)); }
  /// The announcements since it was last asked, in order.
  Strings heard() { return std::exchange(container().notices, {}); }
  void forget() {
    container().notices.clear();
    driver().ran.clear();
  }
  /// The one failure that the container was told of since it was last asked; fails the test if there are more or none.
  ReportedFailure onlyReported() {
    EXPECT_EQ(container().failures.size(), 1U);
    if (container().failures.empty()) return {};
    return std::exchange(container().failures, {}).front();
  }

  // What can be seen.
  toolkit::Surface& surface() { return panel->surface(); }
  toolkit::TextBox& box(std::string_view name) { return surface().textBox(name); }
  toolkit::CheckBox& lead() { return surface().checkBox("ChkDELEGATARIA"); }
  std::string text(std::string_view name) { return box(name).Text(); }
  std::string caption(std::string_view name) { return surface().label(name).Caption(); }
  /// The two amounts that figures() is about.
  Strings shares() {
    const bool policy = surface().layout().name == "ctlQ_POLIZZE";
    return policy ? Strings{caption("TAF(0)"), caption("TRF(0)")} : Strings{caption("STIMATO"), caption("LIQUIDATO")};
  }
  std::string focused() { return platform().focused() == nullptr ? "" : std::string(platform().focused()->Name()); }
  bool wholeSelected(const toolkit::EditableText& field) {
    return field.SelStart() == 0 && field.SelLength() == static_cast<std::int32_t>(field.Text().size());
  }
};

/// What each label of a policy's two columns shows.
inline Strings columnsOf(toolkit::Surface& surface) {
  Strings captions;
  captions.reserve(6);
  for (const auto group : {"TAF", "TRF"}) {
    for (std::int32_t i = 0; i < 3; ++i) captions.push_back(surface.label(group, i).Caption());
  }
  return captions;
}

}  // namespace qvn::test
