#include "platforms/memory/usable.h"

#include "platforms/memory/surface.h"
#include "qvn/shared/failure.h"

namespace qvn::memory {

bool takesFocus(toolkit::WidgetKind kind) {
  switch (kind) {
    case toolkit::WidgetKind::TextBox:
    case toolkit::WidgetKind::ComboBox:
    case toolkit::WidgetKind::CheckBox:
    case toolkit::WidgetKind::CommandButton:
    case toolkit::WidgetKind::DateControl:
    case toolkit::WidgetKind::ListView:
    case toolkit::WidgetKind::DataGrid:
      return true;
    case toolkit::WidgetKind::Label:
    case toolkit::WidgetKind::Frame:
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
  if (surface.dropped()) return "its panel is gone";
  if (!surface.Enabled()) return "its panel is disabled";
  if (!surface.Visible()) return surface.isOfForm() ? "its form is not shown" : "its panel is hidden";
  if (surface.isCovered()) return "a form stands before it";
  return {};
}

void requirePlace(const toolkit::Widget& widget, std::string_view things, std::int32_t count, std::int32_t place) {
  if (place >= 0 && place < count) return;
  throw Failure(FailureKind::SubscriptOutOfRange, fullName(widget)
                                                      .append(" has ")
                                                      .append(std::to_string(count))
                                                      .append(" ")
                                                      .append(things)
                                                      .append(" and none at ")
                                                      .append(std::to_string(place)));
}

std::string fullName(const toolkit::Widget& widget) {
  return std::string(widget.owner().name()).append(".").append(widget.Name());
}

}  // namespace qvn::memory
