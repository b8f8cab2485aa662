#include "bench/qt/plain_panel.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>
#include <stdexcept>
#include <string>

namespace qvn::bench {

namespace {

QWidget* fieldOf(const PlainWidget& row, QWidget& parent) {
  auto* field = new QLineEdit(row.text, &parent);
  field->setAlignment(row.alignment);
  return field;
}

QWidget* labelOf(const PlainWidget& row, QWidget& parent) {
  auto* label = new QLabel(row.text, &parent);
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(row.alignment);
  if (row.wraps) label->setWordWrap(true);
  if (row.bordered) label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  return label;
}

QWidget* listOf(const PlainWidget& row, QWidget& parent) {
  auto* list = new QComboBox(&parent);
  list->addItems(row.items);
  list->setCurrentIndex(row.item);
  return list;
}

QWidget* ofKind(const PlainWidget& row, QWidget& parent) {
  switch (row.kind) {
    case PlainWidget::Kind::Field:
      return fieldOf(row, parent);
    case PlainWidget::Kind::Label:
      return labelOf(row, parent);
    case PlainWidget::Kind::List:
      return listOf(row, parent);
    case PlainWidget::Kind::Frame:
      break;
  }
  return new QGroupBox(row.text, &parent);
}

QWidget& add(const PlainWidget& row, QWidget& parent) {
  QWidget& made = *ofKind(row, parent);  // its parent owns it
  made.setGeometry(row.place);
  if (row.font) made.setFont(*row.font);
  if (row.colours) made.setPalette(*row.colours);
  if (!row.enabled) made.setEnabled(false);
  return made;
}

/// The kind with what only widgets of it have.
PlainWidget kindOf(const QWidget& widget, const toolkit::WidgetLayout& layout) {
  if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) {
    return {.kind = PlainWidget::Kind::Field, .text = field->text(), .alignment = field->alignment()};
  }
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    return {.kind = PlainWidget::Kind::Label,
            .text = label->text(),
            .alignment = label->alignment(),
            .wraps = label->wordWrap(),
            .bordered = layout.bordered};
  }
  if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
    PlainWidget row{.kind = PlainWidget::Kind::List, .item = list->currentIndex()};
    for (int i = 0; i < list->count(); ++i) row.items.push_back(list->itemText(i));
    return row;
  }
  if (const auto* frame = qobject_cast<const QGroupBox*>(&widget)) {
    return {.kind = PlainWidget::Kind::Frame, .text = frame->title()};
  }
  throw std::logic_error(std::string(layout.name).append(" is of an unknown kind"));
}

}  // namespace

PlainPanel writtenDown(qt::Platform& platform, toolkit::Surface& panel) {
  platform.settle();
  const QWidget& inside = platform.widgetOf(panel);
  PlainPanel written{.size = inside.size(), .font = inside.font(), .widgets = {}};
  std::vector<const toolkit::Widget*> models;
  models.reserve(panel.widgets().size());
  written.widgets.reserve(panel.widgets().size());
  for (const toolkit::Widget* model : panel.widgets()) {
    const QWidget& widget = *platform.widgetOf(*model);
    if (widget.isHidden()) continue;
    PlainWidget row = kindOf(widget, model->layout());
    const auto frame = std::ranges::find(models, model->frame());
    if (frame != models.end()) row.frame = static_cast<int>(frame - models.begin());
    row.place = widget.geometry();
    row.enabled = !widget.testAttribute(Qt::WA_ForceDisabled);
    models.push_back(model);
    written.widgets.push_back(row);
  }
  // Only what a plain widget has not of itself, or from around it, is to be told.
  const PlainTwin twin(written);
  for (std::size_t i = 0; i < models.size(); ++i) {
    const QWidget& widget = *platform.widgetOf(*models[i]);
    QWidget& plain = twin.widget(i);
    if (plain.font() != widget.font()) plain.setFont(written.widgets[i].font.emplace(widget.font()));
    if (plain.palette() != widget.palette()) plain.setPalette(written.widgets[i].colours.emplace(widget.palette()));
  }
  return written;
}

PlainTwin::PlainTwin(const PlainPanel& panel) : inside_(std::make_unique<QWidget>()) {
  inside_->setFont(panel.font);
  inside_->setFixedSize(panel.size);
  widgets_.reserve(panel.widgets.size());
  for (const PlainWidget& row : panel.widgets) {
    QWidget& parent = row.frame < 0 ? *inside_ : widget(static_cast<std::size_t>(row.frame));
    widgets_.push_back(&add(row, parent));
  }
}

}  // namespace qvn::bench
