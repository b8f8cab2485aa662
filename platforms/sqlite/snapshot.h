// The rows of an answer, copied out of the database.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <sqlite3.h>
#include <string>
#include <string_view>
#include <vector>

#include "qvn/toolkit/database.h"

namespace qvn::sqlite {

using Columns = std::vector<std::string>;

/// All rows one behind the other in a single run of bytes: of each cell its kind, then its value.
class Snapshot final : public toolkit::Rows {
 public:
  /// An answer with these columns and no rows yet, whose rows may take so many bytes.
  Snapshot(std::shared_ptr<const Columns> columns, std::size_t mostBytes)
      : columns_(std::move(columns)), mostBytes_(mostBytes) {}

  /// Copies the row that a statement stands on, which has these columns. "database" if the rows grow too many, or if
  /// there is no memory for a text.
  void add(sqlite3_stmt* statement);

  std::span<const std::string> columns() const override { return *columns_; }
  bool atEnd() const override { return row_ == rows_; }
  void next() override;
  Variant value(std::string_view column) const override;

 private:
  std::shared_ptr<const Columns> columns_;
  std::size_t mostBytes_;
  std::vector<char> cells_;
  std::size_t rows_ = 0;
  std::size_t row_ = 0;
  std::size_t at_ = 0;  ///< where the current row begins in the cells
};

}  // namespace qvn::sqlite
