// The panels of a statement line and of a credit line with their host, their operator and the database that they look
// into.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <gmock/gmock.h>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "qvn/shared/conversions.h"
#include "tests/failure_matchers.h"
#include "tests/loaded_forms.h"
#include "tests/on_database.h"

namespace qvn::test {

inline constexpr std::uint32_t kCyan = 0xFFFF00;
inline constexpr std::uint32_t kYellow = 0x00FFFF;

inline Variant text(std::string_view value) { return std::string(value); }
inline Variant day(int day, int month, int year) { return *Date::of(day, month, year); }
inline Currency money(std::string_view value) { return toCurrency(value, Locale{}); }

/// A row of a layout as a test expects it.
struct LaidOut {
  std::string name;
  toolkit::WidgetKind kind;
  toolkit::Place place;
  std::string text = {};  ///< the caption, or what a field shows
  std::string tooltip = {};
  std::uint32_t fore = toolkit::kBlack;
  toolkit::Align align = toolkit::Align::Left;
  bool bordered = false;
  bool enabled = true;
  bool visible = true;
};

inline std::string shownBy(toolkit::Widget& widget) {
  switch (widget.Kind()) {
    case toolkit::WidgetKind::Label:
      return static_cast<toolkit::Label&>(widget).Caption();
    case toolkit::WidgetKind::Frame:
      return static_cast<toolkit::Frame&>(widget).Caption();
    case toolkit::WidgetKind::CheckBox:
      return static_cast<toolkit::CheckBox&>(widget).Caption();
    case toolkit::WidgetKind::ComboBox:
      return static_cast<toolkit::ComboBox&>(widget).Text();
    default:
      return static_cast<toolkit::EditableText&>(widget).Text();
  }
}

/// Every widget of a surface in tab order, at its place, with its look; all lie in the first, which is a frame.
inline void expectLaidOut(const toolkit::Surface& surface, const std::vector<LaidOut>& rows) {
  ASSERT_EQ(surface.widgets().size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const LaidOut& row = rows[i];
    toolkit::Widget& widget = *surface.widgets()[i];
    SCOPED_TRACE(row.name);
    EXPECT_EQ(widget.Name(), row.name);
    EXPECT_EQ(widget.Kind(), row.kind);
    EXPECT_EQ(widget.TabIndex(), static_cast<std::int16_t>(i));
    EXPECT_EQ(widget.frame() == nullptr ? "" : widget.frame()->Name(), i == 0 ? "" : rows[0].name);
    EXPECT_EQ(widget.place(), row.place);
    EXPECT_EQ(shownBy(widget), row.text);
    EXPECT_EQ(widget.ToolTip(), row.tooltip);
    EXPECT_EQ(widget.ForeColor(), row.fore);
    EXPECT_EQ(widget.layout().align, row.align);
    EXPECT_EQ(widget.layout().bordered, row.bordered);
    EXPECT_FALSE(widget.layout().bold);
    EXPECT_EQ(widget.Enabled(), row.enabled);
    EXPECT_EQ(widget.Visible(), row.visible);
  }
}

template <class P>
class LinePanel : public OnDatabase {
 public:
  LinePanel() { renew(); }

  std::unique_ptr<P> panel;

  // The host.
  std::unique_ptr<P> another(std::string name) { return std::make_unique<P>(PanelSite{container(), std::move(name)}); }
  /// A new panel in place of the former, of which nothing was told yet.
  void renew() {
    panel = another("riga");
    forget();
  }
  std::string membersInOrder() {
    std::string told;
    for (const Member& member : panel->members()) {
      told.append(member.name).append(" ").append(nameOf(member.kind)).append(" ").append(member.type).append("\n");
    }
    return told;
  }

  /// Does so on panels that were started, which the host drops at the first announcement, at the second, and so on.
  void dropAtEachNotice(const std::function<void()>& start, const std::function<void()>& act) {
    start();
    act();
    const std::size_t announcements = heard().size();
    ASSERT_GT(announcements, 0U);
    for (std::size_t at = 1; at <= announcements; ++at) {
      SCOPED_TRACE(at);
      start();
      container().onNotice = [this, at](toolkit::Surface&, std::string_view) {
        if (container().notices.size() == at) panel.reset();
      };
      act();
      container().onNotice = {};
      EXPECT_EQ(panel, nullptr);
      EXPECT_EQ(container().notices.size(), at) << "announced by a panel that is gone";
      EXPECT_EQ(platform().focused(), nullptr);
      EXPECT_EQ(container().failures.size(), 0U);
    }
    start();
  }

  // What can be seen.
  toolkit::Surface& surface() { return panel->surface(); }
  toolkit::TextBox& box(std::string_view name) { return surface().textBox(name); }
  toolkit::DateControl& date(std::string_view name) { return surface().date(name); }
  toolkit::Label& label(std::string_view name) { return surface().label(name); }
  toolkit::ComboBox& list(std::string_view name) { return surface().comboBox(name); }
  toolkit::CheckBox& flag(std::string_view name) { return surface().checkBox(name); }
  std::string caption(std::string_view name) { return label(name).Caption(); }
  /// Where each of so many keys leads, one after the other.
  Strings pathOf(std::string_view key, int times) {
    Strings path;
    for (int i = 0; i < times; ++i) {
      hands().type(key);
      path.push_back(focused());
    }
    return path;
  }
};

}  // namespace qvn::test
