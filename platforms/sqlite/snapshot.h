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

/// All rows one behind the other in runs of bytes: of each cell its kind, then its value. A run is given back when its
/// last row has been passed, so that a long list is not held twice while it is filled from here.
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
  using Run = std::vector<char>;

  void makeRoom();
  const Run& current() const { return run_ < full_.size() ? full_[run_] : last_; }

  std::shared_ptr<const Columns> columns_;
  std::size_t mostBytes_;
  std::size_t fullBytes_ = 0;
  std::vector<Run> full_;
  Run last_;
  std::size_t rows_ = 0;
  std::size_t row_ = 0;
  std::size_t run_ = 0;  ///< the current row's, the last one behind all full ones
  std::size_t at_ = 0;   ///< where the current row begins in its run
};

}  // namespace qvn::sqlite
