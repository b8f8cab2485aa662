// A panel that asks no database, with its host and its operator.
#pragma once

#include <algorithm>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "qvn/shared/Globale.h"
#include "qvn/shared/clsQVN_Eventi.h"
#include "qvn/toolkit/panel.h"
#include "tests/failure_matchers.h"
#include "tests/noting_platform.h"
#include "tests/on_platform.h"
#include "tests/refusing_platform.h"

namespace qvn::test {

inline constexpr std::uint32_t kCyan = 16776960;

/// What a widget's row of the layout says, and what the widget shows when it was made.
struct LaidOut {
  std::string name;
  toolkit::WidgetKind kind = toolkit::WidgetKind::TextBox;
  toolkit::Place place = {};
  std::string text = {};
  toolkit::Align align = toolkit::Align::Left;
  bool bordered = false;
  std::optional<std::uint32_t> back = {};
  std::uint32_t fore = toolkit::kBlack;
  bool outside = false;  ///< on the panel itself, and not visible
  Strings items = {};
};

inline std::string shownBy(toolkit::Widget& widget) {
  switch (widget.Kind()) {
    case toolkit::WidgetKind::TextBox:
    case toolkit::WidgetKind::DateControl:
      return static_cast<toolkit::EditableText&>(widget).Text();
    case toolkit::WidgetKind::Label:
      return static_cast<toolkit::Label&>(widget).Caption();
    case toolkit::WidgetKind::ComboBox:
      return static_cast<toolkit::ComboBox&>(widget).Text();
    case toolkit::WidgetKind::CheckBox:
      return static_cast<toolkit::CheckBox&>(widget).Caption();
    case toolkit::WidgetKind::Frame:
      return static_cast<toolkit::Frame&>(widget).Caption();
    default:
      return "";
  }
}

template <class P>
class PlainPanel : public OnPlatform {
 public:
  PlainPanel() { renew(); }
  ~PlainPanel() override { EXPECT_EQ(asked_, 0) << "for a database"; }

  std::unique_ptr<P> panel;

  // The host.
  std::unique_ptr<P> another(std::string name) { return std::make_unique<P>(PanelSite{container(), std::move(name)}); }
  /// A new panel in place of the former, of which nothing was told yet.
  void renew() {
    panel = another("scheda");
    container().notices.clear();
  }
  /// A new panel, ready for the operator.
  void ready() {
    renew();
    panel->Attiva();
  }
  std::string membersInOrder() {
    std::string told;
    for (const Member& member : panel->members()) {
      told.append(member.name).append(" ").append(nameOf(member.kind)).append(" ").append(member.type).append("\n");
    }
    return told;
  }

  // What can be seen.
  toolkit::Surface& surface() { return panel->surface(); }
  toolkit::Frame& frame() { return surface().frame("Frame1"); }
  toolkit::TextBox& box(std::string_view name) { return surface().textBox(name); }
  toolkit::DateControl& date(std::string_view name) { return surface().date(name); }
  toolkit::ComboBox& list(std::string_view name) { return surface().comboBox(name); }
  toolkit::CheckBox& flag(std::string_view name) { return surface().checkBox(name); }
  std::string caption(std::string_view name) { return surface().label(name).Caption(); }
  /// Where each of so many keys leads, one after the other.
  Strings pathOf(std::string_view key, int times) {
    Strings path;
    for (int i = 0; i < times; ++i) {
      hands().type(key);
      path.push_back(focused());
    }
    return path;
  }

  /// Expects the widgets of the rows in tab order, all but the first in it, a frame that is disabled.
  void expectLaidOut(const std::vector<LaidOut>& rows) {
    ASSERT_EQ(surface().widgets().size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const LaidOut& row = rows[i];
      toolkit::Widget& widget = *surface().widgets()[i];
      SCOPED_TRACE(row.name);
      EXPECT_EQ(widget.Name(), row.name);
      EXPECT_EQ(widget.Kind(), row.kind);
      EXPECT_EQ(widget.TabIndex(), static_cast<std::int16_t>(i));
      EXPECT_EQ(widget.place(), row.place);
      EXPECT_EQ(shownBy(widget), row.text);
      EXPECT_EQ(widget.layout().align, row.align);
      EXPECT_EQ(widget.layout().bordered, row.bordered);
      EXPECT_EQ(widget.layout().back, row.back);
      EXPECT_FALSE(widget.layout().bold);
      EXPECT_EQ(widget.ForeColor(), row.fore);
      EXPECT_EQ(widget.ToolTip(), "");
      EXPECT_EQ(widget.frame(), i == 0 || row.outside ? nullptr : &frame());
      EXPECT_EQ(widget.Visible(), !row.outside);
      EXPECT_EQ(widget.Enabled(), i != 0);
      const auto items = widget.layout().items;
      EXPECT_EQ(Strings(items.begin(), items.end()), row.items);
    }
  }

  /// What the act writes to the widgets of a new panel, changed or not, once it was prepared.
  Notes writesOf(
      const std::function<void()>& act, const std::function<void()>& prepare = [] {}) {
    NotingPlatform noting(platform());
    Globale::install(noting);
    renew();
    prepare();
    noting.notes.clear();
    act();
    panel.reset();
    Globale::install(platform());
    renew();
    return noting.notes;
  }
  /// Does so with a new panel of which the named widget refuses to be enabled or to be selected in.
  void whereItRefuses(const std::string& widget, const std::function<void()>& act) {
    RefusingPlatform refusing(platform());
    refusing.refusing = {widget};
    Globale::install(refusing);
    renew();
    act();
    panel.reset();
    Globale::install(platform());
    renew();
  }

  /// Does so with new panels, dropping them at the first announcement, at the second, and so on.
  void dropAtEach(const std::function<void()>& act) {
    ready();
    container().notices.clear();
    act();
    const std::size_t announcements = heard().size();
    ASSERT_GT(announcements, 0U);
    for (std::size_t at = 1; at <= announcements; ++at) {
      SCOPED_TRACE(at);
      ready();
      container().notices.clear();
      container().onNotice = [this, at](toolkit::Surface&, std::string_view) {
        if (container().notices.size() == at) panel.reset();
      };
      act();
      container().onNotice = {};
      EXPECT_EQ(panel, nullptr);
      EXPECT_EQ(heard().size(), at) << "announced by a panel that is gone";
      EXPECT_EQ(platform().focused(), nullptr);
      EXPECT_TRUE(container().failures.empty());
    }
    renew();
  }

  /// What Attiva does, step by step, when each is done and when one cannot be.
  void attivaGoesTo(const std::string& first, const std::function<toolkit::EditableText&()>& field) {
    renew();
    field().Text(sample_);
    panel->Attiva();
    EXPECT_TRUE(frame().Enabled());
    EXPECT_EQ(focused(), first);
    EXPECT_EQ(field().BackColor(), kCyan);
    EXPECT_TRUE(wholeSelected(field()));
    hands().caret(1, 1);
    panel->Attiva();  // once more, which selects again
    EXPECT_TRUE(wholeSelected(field()));
    EXPECT_EQ(focused(), first);

    renew();
    field().Text(sample_);
    surface().Visible(false);
    panel->Attiva();
    EXPECT_TRUE(frame().Enabled());
    EXPECT_TRUE(wholeSelected(field()));
    EXPECT_EQ(focused(), "");

    whereItRefuses("Frame1", [&] {
      field().Text(sample_);
      panel->Attiva();
      EXPECT_TRUE(wholeSelected(field()));
      EXPECT_EQ(focused(), "");
    });
    whereItRefuses(first, [&] {
      panel->Attiva();
      EXPECT_TRUE(frame().Enabled());
      EXPECT_EQ(focused(), first);
    });
    EXPECT_EQ(writesOf([&] { panel->Attiva(); }, [&] { field().Text(sample_); }),
              (Notes{"Frame1.Enabled true", first + ".SelStart 0",
                     first + ".SelLength " + std::to_string(sample_.size()), first + ".SetFocus "}));
    EXPECT_TRUE(container().failures.empty());
  }
  void disattivaFreezesAndKeeps(const std::string& value, const std::function<toolkit::EditableText&()>& field) {
    ready();
    field().Text(value);
    container().notices.clear();
    panel->Disattiva();
    EXPECT_FALSE(frame().Enabled());
    EXPECT_EQ(focused(), "");
    EXPECT_EQ(field().BackColor(), toolkit::kWhite);
    EXPECT_EQ(field().Text(), value);
    EXPECT_TRUE(heard().empty());
    EXPECT_FAILURE(hands().focus(field()), FailureKind::InvalidCall, std::string(field().Name()));
    panel->Disattiva();
    EXPECT_FALSE(frame().Enabled());
    panel->Attiva();
    EXPECT_TRUE(frame().Enabled());
    EXPECT_EQ(focused(), field().Name());
  }
  void disattivaPassesAFailureOn(const std::function<toolkit::EditableText&()>& field) {
    whereItRefuses("Frame1",
                   [this] { EXPECT_FAILURE(panel->Disattiva(), FailureKind::InvalidCall, "Frame1 refuses"); });
    ready();
    field().LostFocus = [] { throw Failure(FailureKind::Overflow, "on leaving"); };
    EXPECT_FAILURE(panel->Disattiva(), FailureKind::Overflow, "on leaving");
    EXPECT_FALSE(frame().Enabled());
  }
  /// Enter goes from the first field to the second, selecting and colouring the one that it leads to.
  void enterLeads(const std::string& from, const std::string& to) {
    box(from).Text("UNO");
    box(to).Text("DUE");
    hands().focus(box(from));
    EXPECT_EQ(pathOf("{Enter}", 1), Strings{to});
    EXPECT_TRUE(wholeSelected(box(to)));
    EXPECT_EQ(box(to).BackColor(), kCyan);
    EXPECT_EQ(box(from).BackColor(), toolkit::kWhite);
  }
  void typedInto(toolkit::TextBox& field, std::string_view keys, std::string_view text, std::int64_t refused) {
    SCOPED_TRACE(field.Name());
    hands().focus(field);
    const std::int64_t before = beeps();
    hands().type(keys);
    EXPECT_EQ(field.Text(), text);
    EXPECT_EQ(beeps() - before, refused);
  }

  void selectsFirst(const std::string& name) {
    EXPECT_EQ(writesOf([&] { box(name).GotFocus(); }),
              (Notes{name + ".SelStart 0", name + ".SelLength 0", name + ".BackColor 16776960"}));
  }
  void coloursFirst(const std::string& name) {
    EXPECT_EQ(writesOf([&] { box(name).GotFocus(); }),
              (Notes{name + ".BackColor 16776960", name + ".SelStart 0", name + ".SelLength 0"}));
  }

 private:
  std::string sample_ = "12/03/####";  // a text of every kind of field
  int asked_ = 0;
  Subscription askedFor_ = Globale::Eventi()->MancaDB.subscribe([this] { ++asked_; });
};

}  // namespace qvn::test
