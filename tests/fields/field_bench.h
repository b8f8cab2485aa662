// A panel with a field of every kind, for the routines that all fields share.
#pragma once

#include <array>
#include <memory>
#include <string_view>

#include "tests/on_platform.h"

namespace qvn::test {

inline constexpr std::array<std::string_view, 2> kBenchItems{"1 - Uno", "2 - Due"};

inline constexpr std::array<toolkit::WidgetLayout, 15> kBenchWidgets{{
    {.name = "Box", .kind = toolkit::WidgetKind::Frame, .tabIndex = 13, .place = {0, 0, 6000, 1200}},
    {.name = "Zero", .tabIndex = 0, .frame = "Box", .place = {100, 100, 600, 315}},
    {.name = "Last", .tabIndex = 9, .frame = "Box", .place = {800, 100, 600, 315}},
    {.name = "A", .tabIndex = 1, .frame = "Box", .place = {1500, 100, 600, 315}},
    {.name = "Caption", .kind = toolkit::WidgetKind::Label, .tabIndex = 3, .frame = "Box", .caption = "Testo:"},
    {.name = "B", .tabIndex = 2, .frame = "Box", .place = {2200, 100, 600, 315}},
    {.name = "List", .kind = toolkit::WidgetKind::ComboBox, .tabIndex = 4, .frame = "Box", .items = kBenchItems},
    {.name = "Other", .kind = toolkit::WidgetKind::Frame, .tabIndex = 14, .place = {0, 1300, 6000, 1200}},
    {.name = "Check", .kind = toolkit::WidgetKind::CheckBox, .tabIndex = 5, .frame = "Other", .caption = "Flag"},
    {.name = "Date", .kind = toolkit::WidgetKind::DateControl, .tabIndex = 6, .frame = "Other"},
    {.name = "Twin1", .tabIndex = 7, .frame = "Other"},
    {.name = "Twin2", .tabIndex = 7, .frame = "Other"},
    {.name = "Button", .kind = toolkit::WidgetKind::CommandButton, .tabIndex = 10, .frame = "Other", .caption = "OK"},
    {.name = "Beyond", .tabIndex = 10000, .frame = "Other"},
    {.name = "FarBeyond", .tabIndex = 20000, .frame = "Other"},
}};

inline constexpr toolkit::PanelLayout kBenchLayout{
    .name = "Bench", .width = 6000, .height = 2600, .widgets = kBenchWidgets};

class FieldBench : public OnPlatform {
 public:
  toolkit::Surface& panel() { return *surface_; }
  toolkit::TextBox& field(std::string_view name) { return surface_->textBox(name); }
  toolkit::DateControl& date() { return surface_->date("Date"); }

 private:
  std::unique_ptr<toolkit::Surface> surface_ = platform().makeSurface(kBenchLayout, container(), "bench");
};

}  // namespace qvn::test
