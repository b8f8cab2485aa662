// A table of what a query gives, for a person to look at.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qvn/toolkit/widget.h"

namespace qvn::toolkit {

/// A connection of its own with one query, for a grid to show. It opens by the drivers of its platform.
class DataControl : public Widget {
 public:
  /// Both are kept as written until Refresh.
  virtual void ConnectionString(std::string_view connectionString) = 0;
  virtual void RecordSource(std::string_view sql) = 0;
  /// Opens the connection anew and runs the query. "database" if either fails; there are no rows then.
  virtual void Refresh() = 0;
};

/// A read-only table of what a data control's query gave.
class DataGrid : public Widget {
 public:
  /// One column, by its name in the answer and a pattern's name, empty for none.
  struct Column {
    std::string caption;
    std::string dataField;
    std::string numberFormat;
  };

  virtual std::int32_t columnCount() const = 0;
  /// "subscript out of range" outside the grid's columns, from 0.
  virtual const Column& column(std::int32_t index) const = 0;
  virtual void column(std::int32_t index, Column column) = 0;
  /// What the grid shows: the data control on its own form that the layout names.
  virtual DataControl& DataSource() const = 0;

  virtual std::int32_t rowCount() const = 0;
  /// A cell as the grid shows it, under the column's number format; row and column from 0. "subscript out of range"
  /// outside.
  virtual std::string text(std::int32_t row, std::int32_t column) const = 0;
};

}  // namespace qvn::toolkit
