// The rows of the panels that show a document: its figures and texts in labels with a border, under one frame.
#pragma once

#include <cstdint>
#include <string_view>

#include "qvn/toolkit/layout.h"

namespace qvn::documents {

inline constexpr std::uint32_t kDarkRed = 0x0000C0;  // red is the low byte

/// How a label shows what the document holds.
struct Look {
  std::uint32_t fore = toolkit::kBlack;
  toolkit::Align align = toolkit::Align::Left;
  bool bold = false;
};

constexpr toolkit::WidgetLayout frame(std::string_view name, std::int16_t tab, std::string_view caption,
                                      toolkit::Place place) {
  return {.name = name, .kind = toolkit::WidgetKind::Frame, .tabIndex = tab, .place = place, .caption = caption};
}

/// A label in a frame, or on the panel itself where the frame is empty.
constexpr toolkit::WidgetLayout shown(std::string_view name, std::int16_t tab, std::string_view frame, Look look,
                                      toolkit::Place place, std::string_view tooltip = {},
                                      std::string_view caption = {}) {
  return {.name = name,
          .kind = toolkit::WidgetKind::Label,
          .tabIndex = tab,
          .frame = frame,
          .place = place,
          .caption = caption,
          .align = look.align,
          .bordered = true,
          .bold = look.bold,
          .fore = look.fore,
          .tooltip = tooltip};
}

constexpr toolkit::WidgetLayout button(std::string_view name, std::int16_t tab, std::string_view frame,
                                       std::string_view caption, toolkit::Place place) {
  return {.name = name,
          .kind = toolkit::WidgetKind::CommandButton,
          .tabIndex = tab,
          .frame = frame,
          .place = place,
          .caption = caption};
}

}  // namespace qvn::documents
