#include "platforms/memory/usable.h"

#include "platforms/memory/surface.h"

namespace qvn::memory {

bool takesFocus(toolkit::WidgetKind kind) {
  switch (kind) {
    case toolkit::WidgetKind::TextBox:
    case toolkit::WidgetKind::ComboBox:
    case toolkit::WidgetKind::CheckBox:
    case toolkit::WidgetKind::CommandButton:
    case toolkit::WidgetKind::DateControl:
      return true;
    case toolkit::WidgetKind::Label:
    case toolkit::WidgetKind::Frame:
    case toolkit::WidgetKind::ListView:
    case toolkit::WidgetKind::DataGrid:
    case toolkit::WidgetKind::DataControl:
      return false;
  }
  return false;
}

std::string_view obstacle(const toolkit::Widget& widget) {
  if (!widget.Enabled()) return "it is disabled";
  if (!widget.Visible()) return "it is hidden";
  for (const toolkit::Frame* frame = widget.frame(); frame != nullptr; frame = frame->frame()) {
    if (!frame->Enabled()) return "its frame is disabled";
    if (!frame->Visible()) return "its frame is hidden";
  }
  const auto& surface = static_cast<const Surface&>(widget.owner());
  if (surface.gone()) return "its panel is gone";
  if (!surface.Enabled()) return "its panel is disabled";
  if (!surface.Visible()) return "its panel is hidden";
  return {};
}

std::string fullName(const toolkit::Widget& widget) {
  return std::string(widget.owner().name()).append(".").append(widget.Name());
}

}  // namespace qvn::memory
