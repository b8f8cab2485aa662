#include "platforms/qt/spoken_names.h"

#include <QStringList>
#include <array>

#include "platforms/qt/texts.h"
#include "qvn/toolkit/surface.h"

namespace qvn::qt {

namespace {

using toolkit::WidgetKind;
using toolkit::WidgetLayout;

constexpr std::array<std::string_view, 5> kMarks{"Txt", "txt", "Lbl", "Cmb", "Chk"};

bool isCaption(const WidgetLayout& row, const WidgetLayout& of) {
  return row.kind == WidgetKind::Label && !row.bordered && row.visible && row.frame == of.frame &&
         !row.caption.empty() && row.name != of.name;
}

std::int32_t rightOf(const WidgetLayout& row) { return row.place.left + row.place.width; }

bool standsBefore(const WidgetLayout& label, const WidgetLayout& field) {
  const std::int32_t middle = field.place.top + field.place.height / 2;
  return label.place.top <= middle && middle < label.place.top + label.place.height &&
         rightOf(label) <= field.place.left + field.place.width / 2;
}

bool headsColumn(const WidgetLayout& label, const WidgetLayout& field) {
  const std::int32_t middle = field.place.left + field.place.width / 2;
  return label.align == toolkit::Align::Center && label.place.left <= middle &&
         middle < label.place.left + label.place.width && label.place.top < field.place.top;
}

/// Whether what it shows is a value, which its own caption does not name.
bool showsValue(const WidgetLayout& row) {
  return row.kind == WidgetKind::TextBox || row.kind == WidgetKind::DateControl || row.kind == WidgetKind::ComboBox ||
         (row.kind == WidgetKind::Label && row.bordered);
}

QString withoutMarks(std::string_view caption) {
  QString name = shown(caption).remove(QLatin1Char('&')).trimmed();
  if (name.endsWith(QLatin1Char(':'))) name.chop(1);
  return name;
}

/// The captions that name a value, joined; empty if there is none.
QString captionsOf(const toolkit::Widget& widget) {
  const WidgetLayout& row = widget.layout();
  const WidgetLayout* before = nullptr;
  const WidgetLayout* head = nullptr;
  for (const WidgetLayout& candidate : widget.owner().layout().widgets) {
    if (!isCaption(candidate, row)) continue;
    if (standsBefore(candidate, row) && (before == nullptr || rightOf(candidate) > rightOf(*before))) {
      before = &candidate;
    }
    if (headsColumn(candidate, row) && (head == nullptr || candidate.place.top > head->place.top)) head = &candidate;
  }
  QStringList names;
  for (const WidgetLayout* caption : {before, head}) {
    if (caption != nullptr) names.append(withoutMarks(caption->caption));
  }
  return names.join(QLatin1Char(' '));
}

QString nameOf(const WidgetLayout& row) {
  std::string_view name = row.name;
  for (const std::string_view mark : kMarks) {
    if (name.starts_with(mark)) name.remove_prefix(mark.size());
  }
  return shown(name).replace(QLatin1Char('_'), QLatin1Char(' '));
}

}  // namespace

QString spokenName(const toolkit::Widget& widget) {
  const WidgetLayout& row = widget.layout();
  QString name = showsValue(row) ? captionsOf(widget) : withoutMarks(row.caption);
  if (name.isEmpty()) name = withoutMarks(row.tooltip);
  return name.isEmpty() ? nameOf(row) : name;
}

}  // namespace qvn::qt
