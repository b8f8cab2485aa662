#include "platforms/qt/spoken_names.h"

#include <QHash>
#include <QStringList>
#include <algorithm>
#include <array>

#include "platforms/qt/texts.h"

namespace qvn::qt {

namespace {

using toolkit::PanelLayout;
using toolkit::WidgetKind;
using toolkit::WidgetLayout;

constexpr std::array<std::string_view, 9> kMarks{"Txt", "txt", "Lbl", "lbl", "Cmb", "cmb", "Chk", "chk", "Cmd"};

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

/// Whether another value stands between a caption and a field behind it. A label may lie over fields where it has no
/// text.
bool isParted(const WidgetLayout& label, const WidgetLayout& field, const PanelLayout& panel) {
  const std::int32_t middle = field.place.top + field.place.height / 2;
  return std::ranges::any_of(panel.widgets, [&](const WidgetLayout& other) {
    const bool behind =
        label.align == toolkit::Align::Right ? rightOf(other) > rightOf(label) : other.place.left >= label.place.left;
    return showsValue(other) && other.visible && other.frame == field.frame && other.name != field.name &&
           other.place.top <= middle && middle < other.place.top + other.place.height && behind &&
           other.place.left < field.place.left;
  });
}

/// The captions that name a value, joined; empty if there is none. In a table the caption of a row names all of it.
QString captionsOf(const WidgetLayout& row, const PanelLayout& panel) {
  const WidgetLayout* before = nullptr;
  const WidgetLayout* head = nullptr;
  for (const WidgetLayout& candidate : panel.widgets) {
    if (!isCaption(candidate, row)) continue;
    if (standsBefore(candidate, row) && (before == nullptr || rightOf(candidate) > rightOf(*before))) {
      before = &candidate;
    }
    if (headsColumn(candidate, row) && (head == nullptr || candidate.place.top > head->place.top)) head = &candidate;
  }
  if (before != nullptr && head == nullptr && isParted(*before, row, panel)) before = nullptr;
  QStringList names;
  for (const WidgetLayout* caption : {before, head}) {
    if (caption != nullptr) names.append(withoutMarks(caption->caption));
  }
  return names.join(QLatin1Char(' '));
}

QString nameOf(const WidgetLayout& row) {
  std::string_view name = row.name;
  const auto* const mark = std::ranges::find_if(kMarks, [&](std::string_view each) { return name.starts_with(each); });
  if (mark != kMarks.end()) name.remove_prefix(mark->size());
  return shown(name).replace(QLatin1Char('_'), QLatin1Char(' '));
}

/// What is told beside the widget; empty if nothing is.
QString toldName(const WidgetLayout& row, const PanelLayout& panel) {
  const QString name = showsValue(row) ? captionsOf(row, panel) : withoutMarks(row.caption);
  return name.isEmpty() ? withoutMarks(row.tooltip) : name;
}

/// The caption of the frame around the widget; empty if there is none.
QString frameOf(const WidgetLayout& row, const PanelLayout& panel) {
  const auto frame = std::ranges::find(panel.widgets, row.frame, &WidgetLayout::name);
  return row.frame.empty() || frame == panel.widgets.end() ? QString() : withoutMarks(frame->caption);
}

QString lettersOf(const QString& name) {
  QString letters;
  for (const QChar c : name) {
    if (c.isLetterOrNumber()) letters.append(c.toLower());
  }
  return letters;
}

/// The name with the frame's in front, which stands for both where they say the same.
QString within(const QString& frame, const QString& name) {
  if (frame.isEmpty()) return name;
  return lettersOf(frame) == lettersOf(name) ? frame : frame + QStringLiteral(": ") + name;
}

bool isNamed(const WidgetLayout& row) {
  return row.kind != WidgetKind::Frame && (row.kind != WidgetKind::Label || row.bordered);
}

}  // namespace

SpokenNames spokenNames(const PanelLayout& panel) {
  SpokenNames names;
  QHash<QString, int> times;
  for (const WidgetLayout& row : panel.widgets) {
    const QString told = toldName(row, panel);
    names.emplace(row.name, told);
    if (isNamed(row)) ++times[told];
  }
  for (const WidgetLayout& row : panel.widgets) {
    if (!isNamed(row)) continue;
    QString& name = names.at(row.name);
    if (name.isEmpty()) {
      name = within(frameOf(row, panel), nameOf(row));
    } else if (times.value(name) > 1) {
      name = within(frameOf(row, panel), name);
    }
  }
  return names;
}

}  // namespace qvn::qt
