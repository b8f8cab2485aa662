// A table of what a query gives, for a person to look at.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qvn/toolkit/widget.h"

namespace qvn::toolkit {

/// A connection of its own with one query, for a grid to show. It opens by the drivers of its platform, for reading
/// only and with the name of its form as the viewer, and stays open until the next Refresh or until the form unloads.
class DataControl : public Widget {
 public:
  /// Both are kept as written until Refresh, empty to begin with.
  virtual void ConnectionString(std::string_view connectionString) = 0;
  virtual void RecordSource(std::string_view sql) = 0;
  /// Closes the connection, opens it anew and runs the query. "database", naming the control, if either fails; there
  /// are no rows then.
  virtual void Refresh() = 0;
};

/// A read-only table of what a data control's query gave at its last Refresh, in the order of the answer. It takes the
/// focus.
class DataGrid : public Widget {
 public:
  /// One column, by its name in the answer without regard to case and a pattern's name, empty for none.
  struct Column {
    std::string caption;
    std::string dataField;
    std::string numberFormat;

    friend bool operator==(const Column&, const Column&) = default;
  };

  virtual std::int32_t columnCount() const = 0;
  /// The layout's to begin with; a column written holds for the rows that are there already. "subscript out of range"
  /// outside the grid's columns, from 0; "invalid call" on a number format that names no pattern.
  virtual const Column& column(std::int32_t index) const = 0;
  virtual void column(std::int32_t index, Column column) = 0;
  /// What the grid shows: the data control on its own form that the layout names.
  virtual DataControl& DataSource() const = 0;

  virtual std::int32_t rowCount() const = 0;
  /// A cell as the grid shows it, under the column's number format; row and column from 0. Null, a column that the
  /// answer does not have, and a value that the format cannot write show nothing. "subscript out of range" outside.
  virtual std::string text(std::int32_t row, std::int32_t column) const = 0;
};

}  // namespace qvn::toolkit
