#include "platforms/qt/list_table.h"

#include "platforms/qt/texts.h"

namespace qvn::qt {

namespace {

QString captionOf(const toolkit::ListView& list, int column) { return shown(list.columnCaption(column)); }
QString captionOf(const toolkit::DataGrid& grid, int column) { return shown(grid.column(column).caption); }

/// Numbers stand to the right.
Qt::Alignment alignmentOf(const toolkit::ListView& /*list*/, int /*column*/) { return Qt::AlignLeft; }
Qt::Alignment alignmentOf(const toolkit::DataGrid& grid, int column) {
  return grid.column(column).numberFormat.empty() ? Qt::AlignLeft : Qt::AlignRight;
}

}  // namespace

template <class Table>
QVariant TableRows<Table>::data(const QModelIndex& index, int role) const {
  // The tooltip tells whole what a narrow column cuts. A view may ask for what it last saw before it is told of what
  // has become of it.
  if (index.row() < 0 || index.row() >= rowCount() || index.column() >= columnCount()) return {};
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return shown(table_->text(index.row(), index.column()));
  if (role == Qt::TextAlignmentRole) return QVariant(alignmentOf(*table_, index.column()) | Qt::AlignVCenter);
  return {};
}

template <class Table>
QVariant TableRows<Table>::headerData(int section, Qt::Orientation orientation, int role) const {
  if (table_ == nullptr || orientation != Qt::Horizontal || section >= columnCount()) return {};
  if (role == Qt::DisplayRole) return captionOf(*table_, section);
  if (role == Qt::TextAlignmentRole) return QVariant(alignmentOf(*table_, section) | Qt::AlignVCenter);
  return {};
}

template class TableRows<toolkit::ListView>;
template class TableRows<toolkit::DataGrid>;

}  // namespace qvn::qt
