// The two panels of a movement's lines with their host, their operator and the database that they look into.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "qvn/panels/classes.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/conversions.h"
#include "tests/failure_matchers.h"
#include "tests/noting_platform.h"
#include "tests/on_database.h"

namespace qvn::test {

inline constexpr std::uint32_t kCyan = 0xFFFF00;
inline constexpr std::uint32_t kYellow = 0x00FFFF;
inline constexpr std::uint32_t kGreen = 65280;
inline constexpr std::uint32_t kRedBack = 255;

class MovementBench : public OnDatabase {
 public:
  static constexpr std::string_view kEntry = "ctlINS_MOVIMENTI";
  static constexpr std::string_view kTemplate = "ctlDATI_MOVIMENTI";

  MovementBench() {
    ledger("10", "CASSA");
    ledger("20", "BANCHE");
    account("10", "001", "CASSA CONTANTI");
    account("20", "001", "CONTO CORRENTE");
    account("20", "002", "CONTO PREMI");
  }

  std::unique_ptr<Panel> panel;

  // The database.
  static std::string ledgerSql(std::string_view mastro) {
    return std::string("Select DESCRIZIONE From MASTRI Where MASTRO = '").append(mastro).append("'");
  }
  static std::string accountSql(std::string_view mastro, std::string_view conto) {
    return std::string("Select DESCRIZIONE From CONTI Where MASTRO = '")
        .append(mastro)
        .append("' AND CONTO = '")
        .append(conto)
        .append("'");
  }
  static std::string ledgersSql(std::string_view beginning) {
    return std::string("Select DESCRIZIONE, MASTRO From Mastri Where MASTRO Like '").append(beginning).append("%'");
  }
  static std::string accountsSql(std::string_view mastro) {
    return std::string("Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '").append(mastro).append("'");
  }
  static std::string accountsSql(std::string_view mastro, std::string_view beginning) {
    return accountsSql(mastro).append(" AND CONTO LIKE '").append(beginning).append("%'");
  }
  void ledger(std::string_view mastro, std::string description) {
    driver().answers[ledgerSql(mastro)] = {{"DESCRIZIONE"}, {{std::move(description)}}};
  }
  void account(std::string_view mastro, std::string_view conto, std::string description) {
    driver().answers[accountSql(mastro, conto)] = {{"DESCRIZIONE"}, {{std::move(description)}}};
  }
  /// One row of the list of ledgers that the statement asks for.
  void listedLedger(const std::string& sql, std::string mastro) {
    driver().answers[sql] = {{"DESCRIZIONE", "MASTRO"}, {{std::string("SCELTO"), std::move(mastro)}}};
  }
  /// One row of the list of accounts that the statement asks for.
  void listedAccount(const std::string& sql, std::string mastro, std::string conto) {
    driver().answers[sql] = {{"DESCRIZIONE", "MASTRO", "CONTO"},
                             {{std::string("SCELTO"), std::move(mastro), std::move(conto)}}};
  }

  // The host.
  Panel& make(std::string_view className) {
    panel = panelClass(className).make(PanelSite{container(), "riga"});
    forget();
    return *panel;
  }
  /// Makes one with such a key, ready for the operator.
  void ready(std::string_view className, std::string mastro = {}, std::string conto = {}) {
    make(className);
    write("Mastro", std::move(mastro));
    write("Conto", std::move(conto));
    call("Attiva");
    forget();
  }
  /// Does so with either of the panels.
  void withBoth(const std::function<void(std::string_view className)>& act) {
    for (const std::string_view className : {kEntry, kTemplate}) {
      SCOPED_TRACE(className);
      act(className);
      statements.failAt(0);
      container().failures.clear();
      panel.reset();
    }
  }
  void call(std::string_view name) { callByName(*panel, name, {}); }
  void let(std::string_view name, const Variant& value) { letByName(*panel, name, value); }
  void write(std::string_view name, std::string text) { let(name, std::move(text)); }
  std::string read(std::string_view name) { return std::get<std::string>(getByName(*panel, name)); }
  bool flag(std::string_view name) { return std::get<bool>(getByName(*panel, name)); }
  /// What the act writes to the widgets of a new panel, changed or not, once it was prepared.
  Notes writesOf(
      std::string_view className, const std::function<void()>& act, const std::function<void()>& prepare = [] {}) {
    NotingPlatform noting(platform());
    Globale::install(noting);
    make(className);
    prepare();
    noting.notes.clear();
    act();
    panel.reset();
    Globale::install(platform());
    return noting.notes;
  }

  // The operator.
  /// Lays down that the first row of the next list is taken.
  void takeTheFirst() { hands().layDown("Lista", {Act::row(0), Act::click("CmdOK")}); }

  // What can be seen.
  toolkit::Surface& surface() { return panel->surface(); }
  toolkit::TextBox& box(std::string_view name) { return surface().textBox(name); }
  toolkit::TextBox& mastro() { return box("txtMASTRO"); }
  toolkit::TextBox& conto() { return box("TxtCONTO"); }
  toolkit::ComboBox& list(std::string_view name) { return surface().comboBox(name); }
  toolkit::Frame& frame() { return surface().frame("Frame1"); }
  std::string description() {
    return surface().label(surface().layout().name == kEntry ? "LblDESC_CONTO" : "lblDESC_CONTO").Caption();
  }
};

}  // namespace qvn::test
