#include "platforms/qt/spoken_names.h"

#include "platforms/qt/texts.h"
#include "qvn/toolkit/surface.h"

namespace qvn::qt {

namespace {

/// Whether a label stands before a field in the same row of the same frame.
bool standsBefore(const toolkit::WidgetLayout& label, const toolkit::WidgetLayout& field) {
  if (label.kind != toolkit::WidgetKind::Label || label.frame != field.frame || label.caption.empty()) return false;
  const std::int32_t middle = field.place.top + field.place.height / 2;
  return label.place.top <= middle && middle < label.place.top + label.place.height &&
         label.place.left < field.place.left;
}

bool isField(toolkit::WidgetKind kind) {
  return kind == toolkit::WidgetKind::TextBox || kind == toolkit::WidgetKind::DateControl ||
         kind == toolkit::WidgetKind::ComboBox;
}

QString withoutMarks(std::string_view caption) {
  QString name = shown(caption).remove(QLatin1Char('&')).trimmed();
  if (name.endsWith(QLatin1Char(':'))) name.chop(1);
  return name;
}

}  // namespace

QString spokenName(const toolkit::Widget& widget) {
  const toolkit::WidgetLayout& row = widget.layout();
  std::string_view caption = isField(row.kind) ? std::string_view() : row.caption;
  if (caption.empty()) {
    const toolkit::WidgetLayout* nearest = nullptr;
    for (const toolkit::WidgetLayout& candidate : widget.owner().layout().widgets) {
      if (!standsBefore(candidate, row)) continue;
      if (nearest == nullptr || candidate.place.left > nearest->place.left) nearest = &candidate;
    }
    if (nearest != nullptr) caption = nearest->caption;
  }
  if (caption.empty()) caption = row.tooltip;
  if (caption.empty()) caption = row.name;
  return withoutMarks(caption);
}

}  // namespace qvn::qt
