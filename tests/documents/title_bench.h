// The outstanding title panel with its host, its operator and the database that it looks into.
#pragma once

#include <cstdint>
#include <gmock/gmock.h>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "qvn/panels/documents/ctlSOSPESI.h"
#include "tests/failure_matchers.h"
#include "tests/loaded_forms.h"
#include "tests/on_database.h"

namespace qvn::test {

class TitlePanel : public OnDatabase {
 public:
  static constexpr std::uint32_t kCyan = 0xFFFF00;

  TitlePanel() {
    company("C1", "GENERALE");
    company("C2", "ALPINA");
    producer("P1", "ROSSI");
    producer("P2", "BIANCHI");
    leadProducer("7", "1", std::string("P1"));
    leadProducer("7", "2", std::string("P2"));
    leadProducer("8", "2", Null{});
    panel = another("titolo");
    forget();
  }

  std::unique_ptr<ctlSOSPESI> panel;

  std::unique_ptr<ctlSOSPESI> another(std::string name) {
    return std::make_unique<ctlSOSPESI>(PanelSite{container(), std::move(name)});
  }

  // The database.
  static std::string leadProducerSql(std::string_view PROT, std::string_view PROG) {
    return std::string("Select COD_PROD FROM SOSPESI Where COD_COMP = COD_COMP_DEL AND PROT = ")
        .append(PROT)
        .append(" AND PROG = ")
        .append(PROG);
  }
  void leadProducer(std::string_view PROT, std::string_view PROG, Variant code) {
    driver().answers[leadProducerSql(PROT, PROG)] = {{"COD_PROD"}, {{std::move(code)}}};
  }

  // The host.
  static Variant text(std::string_view value) { return std::string(value); }
  static Variant day(int day, int month, int year) { return *Date::of(day, month, year); }
  /// A title in the state of a letter, with an action pending; the operator has yet to come.
  void title(std::string_view state, std::string_view action) {
    panel->STATO(text(state));
    panel->N_STATO(text(action));
    forget();
  }

  // What can be seen.
  toolkit::Surface& surface() { return panel->surface(); }
  toolkit::Label& label(std::string_view name) { return surface().label(name); }
  toolkit::DateControl& date(std::string_view name) { return surface().date(name); }
  toolkit::ComboBox& actions() { return surface().comboBox("CmbTIPO_CONT"); }
  std::string caption(std::string_view name) { return label(name).Caption(); }
  Strings items() {
    Strings texts;
    for (std::int32_t i = 0; i < actions().ListCount(); ++i) texts.push_back(actions().List(i));
    return texts;
  }
  /// Codes and descriptions of the lead company and its producer.
  Strings leads() {
    return {caption("LblCOD_COMP_DEL"), caption("LblDESC_COMP_DEL"), caption("LblCOD_PROD_DEL"),
            caption("LblDESC_PROD_DEL")};
  }
  bool wholeSelected(const toolkit::DateControl& field) { return field.SelStart() == 0 && field.SelLength() == 10; }
};

}  // namespace qvn::test
