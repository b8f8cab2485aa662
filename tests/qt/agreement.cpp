#include "tests/qt/agreement.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <algorithm>
#include <array>
#include <sstream>
#include <utility>

#include "platforms/memory/form.h"
#include "platforms/qt/colours.h"
#include "platforms/qt/twips.h"
#include "qvn/toolkit/data_grid.h"
#include "qvn/toolkit/list_view.h"

namespace qvn::test {

namespace {

using toolkit::WidgetKind;

QString textOf(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

template <class T>
std::string inWords(const T& value) {
  std::ostringstream words;
  words << value;
  return words.str();
}
std::string inWords(const QString& text) { return '"' + text.toStdString() + '"'; }
std::string inWords(const QColor& colour) { return colour.name().toStdString(); }
std::string inWords(const QRect& box) {
  return inWords(box.x()) + ',' + inWords(box.y()) + ' ' + inWords(box.width()) + 'x' + inWords(box.height());
}

class Comparison {
 public:
  explicit Comparison(std::string_view surface, std::string_view widget = {}) : surface_(surface), widget_(widget) {}

  template <class T>
  void same(std::string_view what, const T& says, const T& shows) {
    if (says != shows) differs(what, inWords(says) + ", shown " + inWords(shows));
  }
  void same(std::string_view what, std::string_view says, const QString& shows) {
    if (const QString wanted = textOf(says); wanted != shows)
      differs(what, inWords(wanted) + ", shown " + inWords(shows));
  }
  void differs(std::string_view what, std::string_view how) {
    found.push_back(
        std::string(surface_).append(" ").append(widget_).append(": ").append(what).append(" is ").append(how));
  }

  std::vector<std::string> found;

 private:
  std::string_view surface_;
  std::string_view widget_;
};

Qt::Alignment alignmentOf(const toolkit::WidgetLayout& row) {
  constexpr std::array kAlignments{Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
  return kAlignments.at(static_cast<std::size_t>(row.align)) | Qt::AlignVCenter;
}

void compareField(Comparison& comparison, const toolkit::EditableText& field, const QLineEdit& line) {
  comparison.same("text", field.Text(), line.text());
  comparison.same("alignment", alignmentOf(field.layout()).toInt(), line.alignment().toInt());
  if (!field.hasFocus()) return;
  const qsizetype start = line.hasSelectedText() ? line.selectionStart() : line.cursorPosition();
  comparison.same("start of selection", static_cast<qsizetype>(field.SelStart()),
                  line.text().left(start).toUcs4().size());
  comparison.same("length of selection", static_cast<qsizetype>(field.SelLength()),
                  line.selectedText().toUcs4().size());
}

void compareLabel(Comparison& comparison, const toolkit::Label& label, const QLabel& shown) {
  const QString caption = textOf(label.Caption());
  comparison.same("caption", caption, shown.text());
  comparison.same("alignment", alignmentOf(label.layout()).toInt(), shown.alignment().toInt());
  const QString tip = textOf(label.ToolTip());
  if (shown.toolTip() == tip) return;  // or else it tells a caption whole that is cut
  comparison.same("tooltip", tip.isEmpty() ? caption : tip + QStringLiteral(": ") + caption, shown.toolTip());
}

void compareList(Comparison& comparison, const toolkit::ComboBox& list, const QComboBox& box) {
  comparison.same("items", list.ListCount(), box.count());
  for (std::int32_t i = 0; i < list.ListCount() && i < box.count(); ++i) {
    comparison.same("item", list.List(i), box.itemText(i));
  }
  comparison.same("current item", list.ListIndex(), box.currentIndex());
}

void compareCheck(Comparison& comparison, const toolkit::CheckBox& check, const QAbstractButton& box) {
  comparison.same("caption", check.Caption(), box.text());
  comparison.same("value", check.Value() != 0, box.isChecked());
  comparison.same("box behind its caption", check.layout().align == toolkit::Align::Right,
                  box.layoutDirection() == Qt::RightToLeft);
}

void compareButton(Comparison& comparison, const toolkit::CommandButton& button, const QPushButton& shown) {
  comparison.same("caption", button.Caption(), shown.text());
  comparison.same("default", button.layout().defaultButton, shown.isDefault());
}

template <class Table>
void compareCells(Comparison& comparison, const Table& table, const QTableView& view) {
  const QAbstractItemModel& cells = *view.model();
  comparison.same("rows", table.rowCount(), cells.rowCount());
  comparison.same("columns", table.columnCount(), cells.columnCount());
  // The model reads the widget itself; what the view goes by is what it was told.
  comparison.same("rows in sight", table.rowCount(), view.verticalHeader()->count());
  comparison.same("columns in sight", table.columnCount(), view.horizontalHeader()->count());
  if (!comparison.found.empty()) return;
  constexpr std::int32_t kMany = 100;
  const std::int32_t step = std::max(1, table.rowCount() / kMany);
  for (std::int32_t row = 0; row < table.rowCount();) {
    for (std::int32_t column = 0; column < table.columnCount(); ++column) {
      comparison.same("cell", table.text(row, column), cells.index(row, column).data().toString());
    }
    row = row + step < table.rowCount() || row + 1 == table.rowCount() ? row + step : table.rowCount() - 1;
  }
}

void compareRows(Comparison& comparison, const toolkit::ListView& list, const QTableView& view) {
  compareCells(comparison, list, view);
  const QHeaderView& heads = *view.horizontalHeader();
  for (std::int32_t column = 0; column < list.columnCount() && column < heads.count(); ++column) {
    comparison.same("column's caption", list.columnCaption(column),
                    view.model()->headerData(column, Qt::Horizontal).toString());
    // A column keeps room for its head.
    const int width = qt::pixels(list.columnWidth(column), view.logicalDpiX());
    if (width >= heads.minimumSectionSize()) comparison.same("column's width", width, heads.sectionSize(column));
  }
  comparison.same("sort column", static_cast<int>(list.SortKey()), heads.sortIndicatorSection());
  comparison.same("sorted downwards", list.SortOrder() != 0, heads.sortIndicatorOrder() == Qt::DescendingOrder);
  if (list.columnCount() == 0) return;
  const QItemSelectionModel& selection = *view.selectionModel();
  const int selected = list.selected();
  comparison.same("selected row", selected, selection.currentIndex().row());
  comparison.same("row marked", selected >= 0,
                  selected < 0 ? selection.hasSelection() : selection.isRowSelected(selected));
}

void compareGrid(Comparison& comparison, const toolkit::DataGrid& grid, const QTableView& view) {
  compareCells(comparison, grid, view);
  const QAbstractItemModel& cells = *view.model();
  for (std::int32_t column = 0; column < grid.columnCount() && column < cells.columnCount(); ++column) {
    const toolkit::DataGrid::Column& says = grid.column(column);
    comparison.same("column's caption", says.caption, cells.headerData(column, Qt::Horizontal).toString());
    const int alignment = cells.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
    comparison.same("column of numbers", !says.numberFormat.empty(), (alignment & Qt::AlignRight) != 0);
    if (cells.rowCount() == 0) continue;
    const int ofCells = cells.index(0, column).data(Qt::TextAlignmentRole).toInt();
    comparison.same("cells' numbers", !says.numberFormat.empty(), (ofCells & Qt::AlignRight) != 0);
  }
}

/// Compares what only widgets of that kind have. False where the widget on the screen is of another kind.
bool compareContent(Comparison& comparison, const toolkit::Widget& widget, const QWidget& shown) {
  const auto with = [&]<class Says, class Shows>(void (*compare)(Comparison&, const Says&, const Shows&)) {
    const auto* shows = dynamic_cast<const Shows*>(&shown);
    if (shows != nullptr) compare(comparison, static_cast<const Says&>(widget), *shows);
    return shows != nullptr;
  };
  switch (widget.Kind()) {
    case WidgetKind::TextBox:
    case WidgetKind::DateControl:
      return with(compareField);
    case WidgetKind::Label:
      return with(compareLabel);
    case WidgetKind::Frame:
      return with(+[](Comparison& into, const toolkit::Frame& frame, const QGroupBox& box) {
        into.same("caption", frame.Caption(), box.title());
      });
    case WidgetKind::ComboBox:
      return with(compareList);
    case WidgetKind::CheckBox:
      return with(compareCheck);
    case WidgetKind::CommandButton:
      return with(compareButton);
    case WidgetKind::ListView:
      return with(compareRows);
    case WidgetKind::DataGrid:
      return with(compareGrid);
    case WidgetKind::DataControl:
      return true;
  }
  return false;
}

QColor colourOf(std::uint32_t bgr) {
  return {static_cast<int>(bgr & 0xFFU), static_cast<int>(bgr >> 8U & 0xFFU), static_cast<int>(bgr >> 16U & 0xFFU)};
}

/// Where a kind of widget has its colours in its palette, and the back that it does not paint itself.
struct Roles {
  QPalette::ColorRole text;
  QPalette::ColorRole back;
  bool paintsBack;
};

Roles rolesOf(const toolkit::Widget& widget) {
  switch (widget.Kind()) {
    case WidgetKind::TextBox:
    case WidgetKind::DateControl:
    case WidgetKind::ComboBox:
    case WidgetKind::ListView:
    case WidgetKind::DataGrid:
      return {.text = QPalette::Text, .back = QPalette::Base, .paintsBack = true};
    case WidgetKind::CommandButton:
      return {.text = QPalette::ButtonText, .back = QPalette::Button, .paintsBack = false};
    case WidgetKind::Label:
      return {.text = QPalette::WindowText,
              .back = QPalette::Window,
              .paintsBack = widget.BackColor() != toolkit::kFaceGray};
    default:
      return {.text = QPalette::WindowText, .back = QPalette::Window, .paintsBack = false};
  }
}

void compareColours(Comparison& comparison, const toolkit::Widget& widget, const QWidget& shown) {
  const QPalette desktop = QApplication::palette();
  const Roles roles = rolesOf(widget);
  const bool plain = !roles.paintsBack || widget.BackColor() == toolkit::kWhite;
  const bool asField = roles.paintsBack;
  const QColor back =
      plain ? desktop.color(QPalette::Active, asField ? QPalette::Base : roles.back) : colourOf(widget.BackColor());
  const QColor text = plain && widget.ForeColor() == toolkit::kBlack
                          ? desktop.color(QPalette::Active, asField ? QPalette::Text : roles.text)
                          : colourOf(widget.ForeColor());
  const QColor shownText = shown.palette().color(QPalette::Active, roles.text);
  comparison.same("back", back, shown.palette().color(QPalette::Active, roles.back));
  if (shownText == text) return;
  const bool readable = qt::contrast(text, back) >= qt::kReadable;  // or else it is another of the same hue
  if (readable || shownText.hslHue() != text.hslHue()) comparison.same("colour", text, shownText);
}

void compareLook(Comparison& comparison, const toolkit::Widget& widget, const QWidget& shown) {
  comparison.same("place", qt::pixels(widget.place(), shown), shown.geometry());
  comparison.same("bold", widget.layout().bold, shown.font().bold());
  if (widget.Kind() != WidgetKind::Label) comparison.same("tooltip", widget.ToolTip(), shown.toolTip());
  if (widget.Kind() != WidgetKind::DataControl) compareColours(comparison, widget, shown);
}

/// Whether nothing of a panel keeps a person from using the widget.
bool usable(const toolkit::Widget& widget) {
  for (const toolkit::Frame* frame = widget.frame(); frame != nullptr; frame = frame->frame()) {
    if (!frame->Enabled()) return false;
  }
  return widget.Enabled() && widget.owner().Enabled();
}

void compareStanding(Comparison& comparison, const qt::Platform& platform, const toolkit::Widget& widget,
                     const QWidget& shown) {
  comparison.same("visible", widget.Visible(), !shown.isHidden());
  comparison.same("enabled", widget.Enabled(), !shown.testAttribute(Qt::WA_ForceDisabled));
  comparison.same("usable", usable(widget), shown.isEnabled());
  // In a window that is not active, or stands nowhere, the focus waits.
  if (widget.hasFocus()) comparison.same("focus", true, shown.window()->focusWidget() == &shown);
  // A window that has gone keeps it until another is active.
  if (shown.hasFocus() && shown.window()->isVisible()) comparison.same("focus", widget.hasFocus(), true);
  const QWidget* around = shown.parentWidget();
  if (widget.frame() != nullptr) {
    comparison.same("in its frame", true, around == platform.widgetOf(*widget.frame()));
    return;
  }
  if (around == nullptr) return comparison.differs("panel", "not on the screen");
  const toolkit::Surface& panel = widget.owner();
  comparison.same("panel enabled", panel.Enabled(), !around->testAttribute(Qt::WA_ForceDisabled));
  if (!panel.Visible()) comparison.same("panel visible", false, around->isVisible());
}

}  // namespace

std::vector<std::string> disagreements(const qt::Platform& platform, const toolkit::Surface& panel) {
  std::vector<std::string> found;
  for (const toolkit::Widget* widget : panel.widgets()) {
    Comparison comparison(panel.name(), widget->Name());
    const QWidget* shown = platform.widgetOf(*widget);
    if (shown == nullptr) {
      comparison.differs("widget", "not on the screen");
    } else {
      compareStanding(comparison, platform, *widget, *shown);
      compareLook(comparison, *widget, *shown);
      if (!compareContent(comparison, *widget, *shown)) comparison.differs("widget", "of another kind");
    }
    found.insert(found.end(), comparison.found.begin(), comparison.found.end());
  }
  return found;
}

std::vector<std::string> disagreementsOfWindow(const qt::Platform& platform, const toolkit::Form& form) {
  Comparison comparison(form.Name());
  const toolkit::Surface& inside = form.surface();
  if (inside.widgets().empty()) return {};
  const QWidget* first = platform.widgetOf(*inside.widgets().front());
  if (first == nullptr) return {std::string(form.Name()).append(" is not on the screen")};
  const QWidget& window = *first->window();
  comparison.same("visible", true, first->parentWidget()->isVisible());
  comparison.same("modal", true, window.isModal());
  comparison.same("caption", form.Caption(), window.windowTitle());
  const toolkit::Place place = form.place();
  const int x = window.logicalDpiX();
  const int y = window.logicalDpiY();
  comparison.same("width", qt::pixels(place.width - memory::kFrameWidth, x), window.width());
  comparison.same("height", qt::pixels(place.height - memory::kFrameHeight, y), window.height());
  if (place.left != 0 || place.top != 0) {  // before it is placed, the desktop finds its place
    const QPoint corner = window.screen()->geometry().topLeft();
    comparison.same("left", corner.x() + qt::pixels(place.left, x), window.x());
    comparison.same("top", corner.y() + qt::pixels(place.top, y), window.y());
  }
  return comparison.found;
}

}  // namespace qvn::test
