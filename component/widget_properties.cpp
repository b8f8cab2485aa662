#include "component/widget_properties.h"

#include <array>
#include <optional>
#include <string>

#include "qvn/shared/failure.h"
#include "qvn/shared/names.h"
#include "qvn/toolkit/surface.h"

namespace qvn::component {

namespace {

using toolkit::Widget;
using toolkit::WidgetKind;

/// A property of all widgets.
struct Common {
  std::string_view name;
  Variant (*read)(const Widget&);
};

constexpr std::array kCommon{
    Common{"Kind", [](const Widget& w) -> Variant { return std::string(nameOf(w.Kind())); }},
    Common{"Enabled", [](const Widget& w) -> Variant { return w.Enabled(); }},
    Common{"Visible", [](const Widget& w) -> Variant { return w.Visible(); }},
    Common{"BackColor", [](const Widget& w) -> Variant { return static_cast<std::int32_t>(w.BackColor()); }},
    Common{"ForeColor", [](const Widget& w) -> Variant { return static_cast<std::int32_t>(w.ForeColor()); }},
    Common{"TabIndex", [](const Widget& w) -> Variant { return w.TabIndex(); }},
    Common{"ToolTip", [](const Widget& w) -> Variant { return std::string(w.ToolTip()); }},
    Common{"Left", [](const Widget& w) -> Variant { return w.place().left; }},
    Common{"Top", [](const Widget& w) -> Variant { return w.place().top; }},
    Common{"Width", [](const Widget& w) -> Variant { return w.place().width; }},
    Common{"Height", [](const Widget& w) -> Variant { return w.place().height; }},
};

/// A property of the widgets of one kind, whose class is W.
struct OfKind {
  WidgetKind kind;
  std::string_view name;
  Variant (*read)(const Widget&);
};

template <class W, auto Read>
constexpr OfKind ofKind(WidgetKind kind, std::string_view name) {
  return {.kind = kind, .name = name, .read = [](const Widget& widget) -> Variant {
            return Read(static_cast<const W&>(widget));
          }};
}

constexpr auto kText = [](const auto& w) { return w.Text(); };
constexpr auto kCaption = [](const auto& w) { return w.Caption(); };
constexpr auto kValue = [](const auto& w) { return w.Value(); };
constexpr auto kSelStart = [](const auto& w) { return w.SelStart(); };
constexpr auto kSelLength = [](const auto& w) { return w.SelLength(); };
constexpr auto kListIndex = [](const auto& w) { return w.ListIndex(); };
constexpr auto kListCount = [](const auto& w) { return w.ListCount(); };

constexpr std::array kOfKind{
    ofKind<toolkit::TextBox, kText>(WidgetKind::TextBox, "Text"),
    ofKind<toolkit::TextBox, kSelStart>(WidgetKind::TextBox, "SelStart"),
    ofKind<toolkit::TextBox, kSelLength>(WidgetKind::TextBox, "SelLength"),
    ofKind<toolkit::DateControl, kText>(WidgetKind::DateControl, "Text"),
    ofKind<toolkit::DateControl, kValue>(WidgetKind::DateControl, "Value"),
    ofKind<toolkit::DateControl, kSelStart>(WidgetKind::DateControl, "SelStart"),
    ofKind<toolkit::DateControl, kSelLength>(WidgetKind::DateControl, "SelLength"),
    ofKind<toolkit::ComboBox, kText>(WidgetKind::ComboBox, "Text"),
    ofKind<toolkit::ComboBox, kListIndex>(WidgetKind::ComboBox, "ListIndex"),
    ofKind<toolkit::ComboBox, kListCount>(WidgetKind::ComboBox, "ListCount"),
    ofKind<toolkit::CheckBox, kCaption>(WidgetKind::CheckBox, "Caption"),
    ofKind<toolkit::CheckBox, kValue>(WidgetKind::CheckBox, "Value"),
    ofKind<toolkit::Label, kCaption>(WidgetKind::Label, "Caption"),
    ofKind<toolkit::Frame, kCaption>(WidgetKind::Frame, "Caption"),
    ofKind<toolkit::CommandButton, kCaption>(WidgetKind::CommandButton, "Caption"),
};

}  // namespace

Variant propertyOf(const Widget& widget, std::string_view property) {
  for (const Common& one : kCommon) {
    if (sameName(one.name, property)) return one.read(widget);
  }
  for (const OfKind& one : kOfKind) {
    if (one.kind == widget.Kind() && sameName(one.name, property)) return one.read(widget);
  }
  throw Failure(FailureKind::NoSuchMember, std::string(widget.owner().name())
                                               .append(".")
                                               .append(widget.Name())
                                               .append(": there is no property \"")
                                               .append(property)
                                               .append("\""));
}

}  // namespace qvn::component
