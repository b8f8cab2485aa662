// The rows of a pick list.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "qvn/toolkit/widget.h"

namespace qvn::toolkit {

/// Rows in columns, kept in the order of a sort column and direction as text without regard to case; rows that compare
/// equal stay in the order they came, in either direction. Texts compare by their characters' codes, letters as small
/// ones as far as U+00DE, and a text stands before one that goes on behind it. It takes the focus. The selected row
/// stays selected when the order changes.
///
/// Keys move the selection: Up, Down, Home and End; without a selection, Down and Home select the first row, Up and End
/// the last.
class ListView : public Widget {
 public:
  /// Columns may be taken away and added while there are rows: a row shows its texts from the first column on, and
  /// nothing in a column beyond them.
  virtual void clearColumns() = 0;
  /// Width in twips.
  virtual void addColumn(std::string_view caption, std::int32_t width) = 0;
  virtual std::int32_t columnCount() const = 0;
  /// A column's caption and width in twips, by its place from 0. "subscript out of range" outside.
  virtual std::string columnCaption(std::int32_t column) const = 0;
  virtual std::int32_t columnWidth(std::int32_t column) const = 0;

  /// Removes all rows; nothing is selected then.
  virtual void clearRows() = 0;
  /// Adds a row with one text a column: the row's text, then its sub-items. "invalid call" on another count of texts,
  /// "overflow" where the texts of all rows go beyond 4 GB.
  virtual void addRow(std::span<const std::string_view> texts) = 0;
  virtual std::int32_t rowCount() const = 0;
  /// A text by row in the order shown, and column, both from 0. "subscript out of range" outside.
  virtual std::string text(std::int32_t row, std::int32_t column) const = 0;

  /// The selected row in the order shown, -1 for none, as to begin with.
  virtual std::int32_t selected() const = 0;
  /// -1 selects nothing. "subscript out of range" on a row that is not there.
  virtual void select(std::int32_t row) = 0;

  /// The sort column, from 0, and 0 to begin with. "subscript out of range" on one that is not there. It stays when the
  /// columns are cleared.
  virtual std::int16_t SortKey() const = 0;
  virtual void SortKey(std::int16_t column) = 0;
  /// The sort direction: 0 ascending, to begin with, 1 descending. "invalid call" on another value.
  virtual std::int16_t SortOrder() const = 0;
  virtual void SortOrder(std::int16_t order) = 0;

  std::function<void(std::int16_t column)> ColumnClick;  ///< column from 1
  std::function<void()> DblClick;                        ///< on a row, which is selected by then
  /// Raised for each character key, Backspace, Enter and Escape. 0 drops the key, so that it reaches no default or
  /// cancel button.
  std::function<void(std::int16_t& KeyAscii)> KeyPress;
};

}  // namespace qvn::toolkit
