// The two panels that show what a search has found, with their host, their operator and the database that they look
// into.
#pragma once

#include <cstdint>
#include <gmock/gmock.h>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "qvn/panels/classes.h"
#include "qvn/panels/documents/ctlRICERCA.h"
#include "qvn/panels/documents/ctlRIC_SINISTRI.h"
#include "qvn/toolkit/data_grid.h"
#include "tests/documents/form_log.h"
#include "tests/failure_matchers.h"
#include "tests/loaded_forms.h"
#include "tests/on_database.h"
#include "tests/viewer_columns.h"

namespace qvn::test {

class SearchBench : public OnDatabase {
 public:
  SearchBench() {
    company("C1", "GENERALE");
    company("C2", "ALPINA");
    producer("P1", "ROSSI");
    producer("P2", "BIANCHI");
    answer(kindSql("CA"), "TIPO_SK", std::int32_t{4});
    answer(kindSql("EL"), "TIPO_SK", std::int32_t{1});
    hands().takePictures(true);
    watch(&log);
  }
  ~SearchBench() override { watch(nullptr); }

  FormLog log;

  // The database.
  static std::string kindSql(std::string_view code) {
    return std::string("Select TIPO_SK FROM RAMI Where COD_RAMO = '").append(code).append("'");
  }
  void answer(const std::string& sql, std::string column, Variant value) {
    driver().answers[sql] = {{std::move(column)}, {{std::move(value)}}};
  }

  // The host.
  static Variant text(std::string_view value) { return std::string(value); }
  static Variant day(int day, int month, int year) { return *Date::of(day, month, year); }
  std::unique_ptr<Panel> make(std::string_view className) {
    return panelClass(className).make(PanelSite{container(), "trovato"});
  }
  /// Makes an answer for MancaDB that the library has to ask for, as its connection is gone.
  template <class Act>
  [[nodiscard]] Subscription whenAskedForTheDatabase(Act act) {
    Globale::unload();
    driver().ran.clear();
    return Globale::Eventi()->MancaDB.subscribe([act] {
      act();
      Globale::Eventi()->ImpostaDB("failing:fake:altra");
    });
  }

  // What can be seen.
  static std::string captionOf(const Panel& panel, std::string_view name) {
    return panel.surface().label(name).Caption();
  }
  /// Codes and descriptions of the lead company and its producer.
  static Strings leadsOf(const Panel& panel) {
    return {captionOf(panel, "LblCOD_COMP_DEL"), captionOf(panel, "LblDESC_COMP_DEL"),
            captionOf(panel, "LblCOD_PROD_DEL"), captionOf(panel, "LblDESC_PROD_DEL")};
  }
  Strings loadedForms() { return namesOfLoadedForms(platform()); }
  /// The one picture taken since it was last asked.
  FormPicture picture() {
    auto pictures = hands().shown();
    EXPECT_EQ(pictures.size(), 1U);
    return pictures.empty() ? FormPicture{} : pictures.front();
  }
};

/// The policy that has been found: 7 is led by C1 for P1, 8 by C2 for P2, 9 by C1 for P2.
class PolicyFound : public SearchBench {
 public:
  PolicyFound() {
    leads("7", "C1", "P1");
    leads("8", "C2", "P2");
    leads("9", "C1", "P2");
    panel = another();
  }

  std::unique_ptr<ctlRICERCA> panel;

  std::unique_ptr<ctlRICERCA> another() { return std::make_unique<ctlRICERCA>(PanelSite{container(), "polizza"}); }

  static std::string leadCompanySql(std::string_view PROT) {
    return std::string("Select COD_COMP From QUOTE_POLIZZE Where PROT = ").append(PROT).append(" AND DELEGATARIA <> 0");
  }
  static std::string leadProducerSql(std::string_view PROT) {
    return std::string("Select COD_PROD From QUOTE_POLIZZE Where PROT = ").append(PROT).append(" AND DELEGATARIA <> 0");
  }
  void leads(std::string_view PROT, std::string_view company, std::string_view producer) {
    answer(leadCompanySql(PROT), "COD_COMP", text(company));
    answer(leadProducerSql(PROT), "COD_PROD", text(producer));
  }

  toolkit::Surface& surface() { return panel->surface(); }
  toolkit::Label& label(std::string_view name) { return surface().label(name); }
  std::string caption(std::string_view name) { return captionOf(*panel, name); }
  Strings leads() { return leadsOf(*panel); }
};

/// The claim that has been found: "S/1" is led by C1, "S/2" by C2.
class ClaimFound : public SearchBench {
 public:
  ClaimFound() {
    answer(leadCompanySql("S/1"), "COD_COMP", text("C1"));
    answer(leadCompanySql("S/2"), "COD_COMP", text("C2"));
    panel = another();
  }

  std::unique_ptr<ctlRIC_SINISTRI> panel;

  std::unique_ptr<ctlRIC_SINISTRI> another() {
    return std::make_unique<ctlRIC_SINISTRI>(PanelSite{container(), "sinistro"});
  }

  static std::string leadCompanySql(std::string_view number) {
    return std::string("Select COD_COMP From QUOTE_SINISTRI Where N_SINISTRO = '")
        .append(number)
        .append("' AND DELEGATARIA <> 0");
  }

  toolkit::Surface& surface() { return panel->surface(); }
  toolkit::Label& label(std::string_view name) { return surface().label(name); }
  std::string caption(std::string_view name) { return captionOf(*panel, name); }
  Strings leads() { return leadsOf(*panel); }
};

}  // namespace qvn::test
