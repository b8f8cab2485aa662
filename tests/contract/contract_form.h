// A form with a list view and its two buttons, on the platform under test, beside the contract's panel.
#pragma once

#include <array>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "qvn/toolkit/data_grid.h"
#include "qvn/toolkit/form.h"
#include "qvn/toolkit/list_view.h"
#include "tests/contract/contract_panel.h"
#include "tests/loaded_forms.h"

namespace qvn::test {

inline constexpr std::array<toolkit::WidgetLayout, 4> kPickWidgets{{
    {.name = "Rows", .kind = toolkit::WidgetKind::ListView, .tabIndex = 0, .place = {72, 72, 4548, 3036}},
    {.name = "Ok",
     .kind = toolkit::WidgetKind::CommandButton,
     .tabIndex = 1,
     .place = {4680, 48, 1188, 600},
     .caption = "&OK",
     .defaultButton = true},
    {.name = "Cancel",
     .kind = toolkit::WidgetKind::CommandButton,
     .tabIndex = 2,
     .place = {4680, 720, 1188, 600},
     .caption = "Annulla",
     .cancelButton = true},
    {.name = "Other",
     .kind = toolkit::WidgetKind::CommandButton,
     .tabIndex = 3,
     .place = {4680, 1400, 1188, 600},
     .caption = "Altro"},
}};
inline constexpr toolkit::FormLayout kPickForm{
    .caption = "Listato", .inside = {.name = "Pick", .width = 5940, .height = 3180, .widgets = kPickWidgets}};

/// A form to type in; its box comes last in tab order but one.
inline constexpr std::array<toolkit::WidgetLayout, 5> kAskWidgets{{
    {.name = "Later", .tabIndex = 3, .place = {100, 100, 900, 315}, .caption = "dopo"},
    {.name = "Off", .tabIndex = 0, .place = {100, 500, 900, 315}, .enabled = false},
    {.name = "Field", .tabIndex = 1, .place = {100, 900, 900, 315}},
    {.name = "Tick", .kind = toolkit::WidgetKind::CheckBox, .tabIndex = 4, .place = {100, 1300, 900, 315}},
    {.name = "Go",
     .kind = toolkit::WidgetKind::CommandButton,
     .tabIndex = 5,
     .place = {100, 1700, 900, 315},
     .caption = "Vai",
     .defaultButton = true,
     .cancelButton = true},
}};
inline constexpr toolkit::FormLayout kAskForm{
    .caption = "Domanda", .inside = {.name = "Ask", .width = 3000, .height = 2400, .widgets = kAskWidgets}};

/// Adds to `heard`: "load Pick", "modal Pick", "hide Pick", "unload Pick", and "viewer Pick: SQL".
class ContractForm : public ContractPanel {
 public:
  /// For platforms that say that they have forms; the suite Platform holds each to what it says.
  void SetUp() override {
    ASSERT_TRUE(platform().capabilities().modalForms);
    pick_ = make(kPickForm);
    ask_ = make(kAskForm);
    prepare();
  }
  virtual void prepare() {}

  toolkit::Form& pick() { return *pick_; }
  toolkit::Form& ask() { return *ask_; }
  void dropPick() { pick_.reset(); }
  void dropAsk() { ask_.reset(); }
  std::unique_ptr<toolkit::Form> make(const toolkit::FormLayout& layout) {
    return platform().makeForm(layout, container());
  }

  toolkit::ListView& rows() { return pick().surface().listView("Rows"); }
  toolkit::TextBox& field() { return ask().surface().textBox("Field"); }

  /// Wires the form at each load as a pick list is: OK, Enter and a double click hide it, Cancel unloads it.
  void wirePick() {
    pick().Load = [this] {
      pick().surface().button("Ok").Click = [this] {
        heard.emplace_back("ok");
        pick().hide();
      };
      pick().surface().button("Cancel").Click = [this] {
        heard.emplace_back("cancel");
        pick().unload();
      };
      rows().addColumn("DENOM.", 2000);
      rows().addColumn("CODICE", 1200);
    };
  }
  void add(std::initializer_list<std::string_view> texts) { rows().addRow(std::span(texts.begin(), texts.size())); }

  /// A column's texts from the first row shown to the last.
  static std::vector<std::string> shownIn(const toolkit::ListView& list, std::int32_t column) {
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(list.rowCount()));
    for (std::int32_t row = 0; row < list.rowCount(); ++row) texts.push_back(list.text(row, column));
    return texts;
  }

  /// "form widget event: words" of each failure that the container was told of.
  std::vector<std::string> reported() {
    std::vector<std::string> lines;
    for (const ReportedFailure& each : container().failures) {
      lines.push_back(each.panel + " " + each.widget + " " + each.event + ": " + each.message);
    }
    return lines;
  }

  std::vector<std::string> loadedForms() { return namesOfLoadedForms(platform()); }

 private:
  void formLoaded(std::string_view form) override { heard.push_back("load " + std::string(form)); }
  void formShown(std::string_view form) override { heard.push_back("modal " + std::string(form)); }
  void formHidden(std::string_view form) override { heard.push_back("hide " + std::string(form)); }
  void formUnloaded(std::string_view form) override { heard.push_back("unload " + std::string(form)); }
  void viewerRuns(std::string_view form, std::string_view sql) override {
    heard.push_back("viewer " + std::string(form) + ": " + std::string(sql));
  }

  std::unique_ptr<toolkit::Form> pick_;
  std::unique_ptr<toolkit::Form> ask_;
};

}  // namespace qvn::test

// NOLINTBEGIN(bugprone-macro-parentheses): a class cannot be named in parentheses.
/// As QVN_CONTRACT, with the forms.
#define QVN_FORM_CONTRACT(Suite)                     \
  class Suite : public ::qvn::test::ContractForm {}; \
  QVN_ON_EVERY_PLATFORM_AS(Contract, Suite)
// NOLINTEND(bugprone-macro-parentheses)
