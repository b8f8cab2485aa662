#include "platforms/qt/table_views.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "platforms/qt/colours.h"
#include "platforms/qt/key_events.h"
#include "platforms/qt/screen.h"
#include "platforms/qt/twips.h"

namespace qvn::qt {

ListWidget::ListWidget(Screen& screen, memory::ListView& model, QWidget& parent)
    : QTableView(&parent), View(screen, model), rows_(*new TableRows<toolkit::ListView>(model, this)) {
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setHorizontalScrollMode(ScrollPerPixel);
  setShowGrid(false);
  setWordWrap(false);
  setEditTriggers(NoEditTriggers);
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(fontMetrics().height());
  verticalHeader()->setDefaultSectionSize(fontMetrics().height());
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  setModel(&rows_);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSortIndicatorShown(true);
  connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex& now) {
    if (byPerson() && !gainingFocus_ && now.isValid() && now.row() != list().selected())
      act(Act::row(now.row()), "KeyPress");
  });
  connect(this, &QTableView::doubleClicked, this,
          [this](const QModelIndex& on) { act(Act::doubleClick(on.row()), "DblClick"); });
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this,
          [this](int section) { act(Act::column(section + 1), "ColumnClick"); });
}

void ListWidget::act(const Act& act, const char* event) {
  if (!byPerson()) return;
  onScreen().act(*subject(), event, [&](memory::Hands& hands) { hands.actAtList(list(), act); });
  onScreen().showAgain(*this);
}

QPalette ListWidget::paletteFor(std::uint32_t back, std::uint32_t fore) const {
  return fieldColours(QApplication::palette(), back, fore);
}

void ListWidget::showContent() {
  if (shownEdition_ != list().edition()) {
    shownEdition_ = list().edition();
    rows_.renew();
    for (int column = 0; column < list().columnCount(); ++column) {
      horizontalHeader()->resizeSection(column, pixels(list().columnWidth(column), logicalDpiX()));
    }
    horizontalHeader()->setSortIndicator(list().SortKey(),
                                         list().SortOrder() == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
  }
  const int selected = list().selected();
  const QModelIndex current = selectionModel()->currentIndex();
  if (selected < 0) {
    if (current.isValid()) selectionModel()->clear();
  } else if (!current.isValid() || current.row() != selected) {
    setCurrentIndex(rows_.index(selected, 0));
  }
}

bool ListWidget::event(QEvent* event) {
  return isTab(*event) ? press(static_cast<QKeyEvent&>(*event)) : QTableView::event(event);
}

void ListWidget::keyPressEvent(QKeyEvent* event) {
  const bool byPage = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
  if (byPage) return QTableView::keyPressEvent(event);
  if (!press(*event)) event->ignore();
}

void ListWidget::focusInEvent(QFocusEvent* event) {
  gainingFocus_ = true;
  QTableView::focusInEvent(event);
  gainingFocus_ = false;
  if (byPerson()) onScreen().showAgain(*this);
}

GridWidget::GridWidget(Screen& screen, toolkit::DataGrid& model, QWidget& parent)
    : QTableView(&parent), View(screen, model), rows_(*new TableRows<toolkit::DataGrid>(model, this)) {
  setEditTriggers(NoEditTriggers);
  setModel(&rows_);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
  verticalHeader()->hide();
  horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
}

QPalette GridWidget::paletteFor(std::uint32_t back, std::uint32_t fore) const {
  return fieldColours(QApplication::palette(), back, fore);
}

void GridWidget::showContent() {
  std::vector<toolkit::DataGrid::Column> columns;
  columns.reserve(static_cast<std::size_t>(grid().columnCount()));
  for (std::int32_t i = 0; i < grid().columnCount(); ++i) columns.push_back(grid().column(i));
  if (!std::exchange(sourceChanged_, false) && columns == shownColumns_) return;
  shownColumns_ = std::move(columns);
  rows_.renew();
  resizeColumnsToContents();
  giveRestToWidest();
}

void GridWidget::giveRestToWidest() {
  const int columns = rows_.columnCount();
  if (columns == 0) return;
  int widest = 0;
  for (int column = 1; column < columns; ++column) {
    if (columnWidth(column) > columnWidth(widest)) widest = column;
  }
  const int rest = width() - 2 * frameWidth() - verticalScrollBar()->sizeHint().width() - horizontalHeader()->length();
  if (rest > 0) setColumnWidth(widest, columnWidth(widest) + rest);
}

bool GridWidget::event(QEvent* event) {
  return isTab(*event) ? press(static_cast<QKeyEvent&>(*event)) : QTableView::event(event);
}

void GridWidget::keyPressEvent(QKeyEvent* event) {
  const bool moves = event->key() >= Qt::Key_Home && event->key() <= Qt::Key_PageDown;
  if (moves || event->matches(QKeySequence::Copy)) return QTableView::keyPressEvent(event);
  if (!press(*event)) event->ignore();
}

}  // namespace qvn::qt
