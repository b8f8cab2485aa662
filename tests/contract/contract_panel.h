// A panel with a widget of every kind, on the platform under test, and a record of what happens on it.
#pragma once

#include <array>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "qvn/shared/failure.h"
#include "tests/failure_matchers.h"
#include "tests/platforms.h"
#include "tests/recording_container.h"

namespace qvn::test {

inline constexpr std::array<std::string_view, 4> kItems{"Uno", "Due", "Dodici", "È altro"};

/// The rows do not stand in tab order, and two of them share an index.
inline constexpr std::array<toolkit::WidgetLayout, 14> kContractWidgets{{
    {.name = "Outer",
     .kind = toolkit::WidgetKind::Frame,
     .tabIndex = 0,
     .place = {75, 75, 7001, 3001},
     .caption = "Dati"},
    {.name = "Inner",
     .kind = toolkit::WidgetKind::Frame,
     .tabIndex = 1,
     .frame = "Outer",
     .place = {100, 900, 6000, 900}},
    {.name = "A", .tabIndex = 3, .frame = "Outer", .place = {101, 303, 1507, 315}, .fore = toolkit::kBlue},
    {.name = "Free", .tabIndex = 2, .place = {0, 3200, 900, 315}},
    {.name = "Label",
     .kind = toolkit::WidgetKind::Label,
     .tabIndex = 4,
     .frame = "Outer",
     .place = {1800, 300, 900, 315},
     .caption = "Quantità:",
     .align = toolkit::Align::Right,
     .tooltip = "Spiegazione"},
    {.name = "B", .tabIndex = 5, .frame = "Inner", .place = {100, 100, 900, 315}, .caption = "già scritto"},
    {.name = "List",
     .kind = toolkit::WidgetKind::ComboBox,
     .tabIndex = 6,
     .frame = "Inner",
     .place = {1100, 100, 900, 315},
     .items = kItems},
    {.name = "Check",
     .kind = toolkit::WidgetKind::CheckBox,
     .tabIndex = 7,
     .frame = "Outer",
     .place = {2100, 100, 900, 315},
     .caption = "Attivo"},
    {.name = "Button",
     .kind = toolkit::WidgetKind::CommandButton,
     .tabIndex = 8,
     .frame = "Outer",
     .place = {3100, 100, 900, 315},
     .caption = "Compagnie"},
    {.name = "Date",
     .kind = toolkit::WidgetKind::DateControl,
     .tabIndex = 9,
     .frame = "Outer",
     .place = {4100, 100, 1365, 315}},
    {.name = "Off", .tabIndex = 10, .frame = "Outer", .place = {100, 600, 900, 315}, .enabled = false},
    {.name = "Hidden", .tabIndex = 11, .frame = "Outer", .place = {1100, 600, 900, 315}, .visible = false},
    {.name = "Twin1", .tabIndex = 12, .frame = "Outer", .place = {2100, 600, 900, 315}},
    {.name = "Twin2", .tabIndex = 12, .frame = "Outer", .place = {3100, 600, 900, 315}},
}};

inline constexpr toolkit::PanelLayout kContractLayout{
    .name = "Contract", .width = 7200, .height = 3600, .widgets = kContractWidgets};

/// Each test has a platform of its own with one panel, "panel". What happens goes into `heard` in one order: the
/// watcher's "lost A", "got B", "beep", and whatever the test's handlers write there.
class ContractPanel : public testing::TestWithParam<PlatformMaker>, protected Watcher {
 public:
  ContractPanel() { under_->watch(this); }
  ~ContractPanel() override { under_->watch(nullptr); }
  void TearDown() override { under_->expectShown(); }

  PlatformUnderTest& under() { return *under_; }
  toolkit::Platform& platform() { return under_->platform(); }
  Operator& hands() { return under_->hands(); }
  RecordingContainer& container() { return container_; }

  toolkit::Surface& panel() { return *panel_; }
  void dropPanel() { panel_.reset(); }
  std::unique_ptr<toolkit::Surface> another(std::string name) {
    return platform().makeSurface(kContractLayout, container_, std::move(name));
  }

  toolkit::Widget& widget(std::string_view name) { return panel().widget(name); }
  toolkit::TextBox& box(std::string_view name = "A") { return panel().textBox(name); }
  toolkit::ComboBox& list() { return panel().comboBox("List"); }
  toolkit::CheckBox& check() { return panel().checkBox("Check"); }
  toolkit::CommandButton& button() { return panel().button("Button"); }
  toolkit::DateControl& date() { return panel().date("Date"); }
  toolkit::Label& label() { return panel().label("Label"); }
  toolkit::Frame& outer() { return panel().frame("Outer"); }
  toolkit::Frame& inner() { return panel().frame("Inner"); }

  /// A handler that writes a line into `heard`.
  std::function<void()> hears(std::string line) {
    return [this, line = std::move(line)] { heard.push_back(line); };
  }
  /// A handler that fails with "overflow" and these words.
  static std::function<void()> fails(std::string words) {
    return [words = std::move(words)] { throw Failure(FailureKind::Overflow, words); };
  }
  /// Lets the box's KeyPress write "key N" and leave the key as it is.
  void hearKeys(toolkit::EditableText& field) {
    field.KeyPress = [this](std::int16_t& code) { heard.push_back("key " + std::to_string(code)); };
  }

  static std::pair<std::int32_t, std::int32_t> selection(const toolkit::EditableText& field) {
    return {field.SelStart(), field.SelLength()};
  }

  std::vector<std::string> heard;

 private:
  void lostFocus(const toolkit::Widget& widget) override { heard.push_back("lost " + std::string(widget.Name())); }
  void gotFocus(const toolkit::Widget& widget) override { heard.push_back("got " + std::string(widget.Name())); }
  void beeped() override { heard.emplace_back("beep"); }

  std::unique_ptr<PlatformUnderTest> under_ = GetParam().make();
  RecordingContainer container_;
  std::unique_ptr<toolkit::Surface> panel_ = platform().makeSurface(kContractLayout, container_, "panel");
};

inline std::pair<std::int32_t, std::int32_t> sel(std::int32_t start, std::int32_t length) { return {start, length}; }

using testing::ElementsAre;
using testing::IsEmpty;

}  // namespace qvn::test

// NOLINTBEGIN(bugprone-macro-parentheses): a class cannot be named in parentheses.
/// Names a suite of the contract and runs it on every platform.
#define QVN_CONTRACT(Suite)                           \
  class Suite : public ::qvn::test::ContractPanel {}; \
  QVN_ON_EVERY_PLATFORM_AS(Contract, Suite)
// NOLINTEND(bugprone-macro-parentheses)
