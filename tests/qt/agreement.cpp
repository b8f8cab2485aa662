#include "tests/qt/agreement.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "qvn/toolkit/list_view.h"

namespace qvn::test {

namespace {

class Comparison {
 public:
  explicit Comparison(const toolkit::Widget& widget) : name_(widget.Name()) {}

  template <class A, class B>
  void same(std::string_view what, const A& says, const B& shows) {
    if (says != shows) found.push_back(name_ + ": " + std::string(what));
  }

  std::vector<std::string> found;

 private:
  std::string name_;
};

void compareField(Comparison& comparison, const toolkit::EditableText& field, const QLineEdit& line) {
  comparison.same("text", field.Text(), line.text().toStdString());
  if (!field.hasFocus()) return;
  const qsizetype start = line.hasSelectedText() ? line.selectionStart() : line.cursorPosition();
  comparison.same("start of selection", field.SelStart(), line.text().left(start).toUcs4().size());
  comparison.same("length of selection", field.SelLength(), line.selectedText().toUcs4().size());
}

void compareList(Comparison& comparison, const toolkit::ComboBox& list, const QComboBox& box) {
  comparison.same("items", list.ListCount(), box.count());
  for (std::int32_t i = 0; i < list.ListCount() && i < box.count(); ++i) {
    comparison.same("item", list.List(i), box.itemText(i).toStdString());
  }
  comparison.same("current item", list.ListIndex(), box.currentIndex());
}

void compareRows(Comparison& comparison, const toolkit::ListView& list, const QAbstractItemView& tree) {
  const QAbstractItemModel& rows = *tree.model();
  comparison.same("rows", list.rowCount(), rows.rowCount());
  for (std::int32_t row = 0; row < rows.rowCount(); ++row) {
    for (std::int32_t column = 0; column < rows.columnCount(); ++column) {
      comparison.same("cell", list.text(row, column), rows.index(row, column).data().toString().toStdString());
    }
  }
  comparison.same("selected row", list.selected(), tree.currentIndex().row());
}

void compareContent(Comparison& comparison, const toolkit::Widget& widget, const QWidget& shown) {
  switch (widget.Kind()) {
    case toolkit::WidgetKind::TextBox:
    case toolkit::WidgetKind::DateControl:
      return compareField(comparison, static_cast<const toolkit::EditableText&>(widget),
                          dynamic_cast<const QLineEdit&>(shown));
    case toolkit::WidgetKind::Label:
      return comparison.same("caption", static_cast<const toolkit::Label&>(widget).Caption(),
                             dynamic_cast<const QLabel&>(shown).text().toStdString());
    case toolkit::WidgetKind::Frame:
      return comparison.same("caption", static_cast<const toolkit::Frame&>(widget).Caption(),
                             dynamic_cast<const QGroupBox&>(shown).title().toStdString());
    case toolkit::WidgetKind::ComboBox:
      return compareList(comparison, static_cast<const toolkit::ComboBox&>(widget),
                         dynamic_cast<const QComboBox&>(shown));
    case toolkit::WidgetKind::CheckBox:
      return comparison.same("value", static_cast<const toolkit::CheckBox&>(widget).Value() != 0,
                             dynamic_cast<const QAbstractButton&>(shown).isChecked());
    case toolkit::WidgetKind::ListView:
      return compareRows(comparison, static_cast<const toolkit::ListView&>(widget),
                         dynamic_cast<const QAbstractItemView&>(shown));
    default:
      return;
  }
}

}  // namespace

std::vector<std::string> disagreements(qt::Platform& platform, toolkit::Surface& panel) {
  std::vector<std::string> found;
  for (const toolkit::Widget* widget : panel.widgets()) {
    Comparison comparison(*widget);
    const QWidget* shown = std::as_const(platform).widgetOf(*widget);
    if (shown == nullptr) {
      found.push_back(std::string(widget->Name()) + " is not on the screen");
      continue;
    }
    comparison.same("enabled", widget->Enabled(), !shown->testAttribute(Qt::WA_ForceDisabled));
    comparison.same("visible", widget->Visible(), !shown->isHidden());
    comparison.same("focus", widget->hasFocus(), shown->hasFocus());
    compareContent(comparison, *widget, *shown);
    found.insert(found.end(), comparison.found.begin(), comparison.found.end());
  }
  return found;
}

}  // namespace qvn::test
