// The rows of a list view or a grid, as Qt's views ask for them: straight from the widget, with nothing copied.
#pragma once

#include <QAbstractTableModel>

#include "qvn/toolkit/data_grid.h"
#include "qvn/toolkit/list_view.h"

namespace qvn::qt {

/// Empty once the widget is gone, which the view tells.
template <class Table>
class TableRows final : public QAbstractTableModel {
 public:
  TableRows(const Table& table, QObject* parent) : QAbstractTableModel(parent), table_(&table) {}

  /// All is other than it was.
  void renew() {
    beginResetModel();
    endResetModel();
  }
  void detach() {
    beginResetModel();
    table_ = nullptr;
    endResetModel();
  }

  int rowCount(const QModelIndex& parent = {}) const override {
    return table_ == nullptr || parent.isValid() ? 0 : table_->rowCount();
  }
  int columnCount(const QModelIndex& parent = {}) const override {
    return table_ == nullptr || parent.isValid() ? 0 : table_->columnCount();
  }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const Table* table_;
};

extern template class TableRows<toolkit::ListView>;
extern template class TableRows<toolkit::DataGrid>;

}  // namespace qvn::qt
