// The rows of which the panels of a quota lay out their widgets. All is disabled until the operator may type.
#pragma once

#include <cstdint>
#include <string_view>

#include "qvn/toolkit/layout.h"

namespace qvn::quotas {

constexpr toolkit::WidgetLayout title(std::int16_t tabIndex, std::string_view name, toolkit::Place place,
                                      std::string_view caption) {
  return {.name = name,
          .kind = toolkit::WidgetKind::Label,
          .tabIndex = tabIndex,
          .place = place,
          .caption = caption,
          .align = toolkit::Align::Right};
}

constexpr toolkit::WidgetLayout box(std::int16_t tabIndex, std::string_view name, toolkit::Place place,
                                    toolkit::Align align = toolkit::Align::Left) {
  return {.name = name, .tabIndex = tabIndex, .place = place, .align = align, .enabled = false};
}

constexpr toolkit::WidgetLayout check(std::int16_t tabIndex, std::string_view name, toolkit::Place place,
                                      std::string_view caption) {
  return {.name = name,
          .kind = toolkit::WidgetKind::CheckBox,
          .tabIndex = tabIndex,
          .place = place,
          .caption = caption,
          .enabled = false};
}

/// A label that shows the description of a code, or right-aligned an amount.
constexpr toolkit::WidgetLayout shown(std::int16_t tabIndex, std::string_view name, toolkit::Place place,
                                      toolkit::Align align = toolkit::Align::Left) {
  return {.name = name,
          .kind = toolkit::WidgetKind::Label,
          .tabIndex = tabIndex,
          .place = place,
          .align = align,
          .bordered = true};
}

}  // namespace qvn::quotas
