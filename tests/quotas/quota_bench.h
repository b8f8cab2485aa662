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
#include "tests/failure_matchers.h"
#include "tests/on_database.h"

namespace qvn::test {

inline constexpr std::uint32_t kCyan = 0xFFFF00;

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

class QuotaBench : public OnDatabase {
 public:
  QuotaBench() {
    company("C1", "GENERALE");
    company("C2", "RIUNIONE");
    producer("P1", "ROSSI", 12.5);
    producer("P2", "BIANCHI", std::int32_t{30});
  }

  std::unique_ptr<Panel> panel;

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
