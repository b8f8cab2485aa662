// A pick list in memory.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platforms/memory/widget.h"
#include "platforms/sorted_rows.h"
#include "qvn/toolkit/list_view.h"

namespace qvn::memory {

class ListView final : public Common<toolkit::ListView> {
 public:
  explicit ListView(const Making& making) : Common(making, toolkit::kWhite) {}

  void clearColumns() override;
  void addColumn(std::string_view caption, std::int32_t width) override;
  std::int32_t columnCount() const override { return static_cast<std::int32_t>(columns_.size()); }
  std::string columnCaption(std::int32_t column) const override { return at(column).caption; }
  std::int32_t columnWidth(std::int32_t column) const override { return at(column).width; }

  void clearRows() override;
  void addRow(std::span<const std::string_view> texts) override;
  std::int32_t rowCount() const override { return static_cast<std::int32_t>(rows_.size()); }
  std::string text(std::int32_t row, std::int32_t column) const override;

  std::int32_t selected() const override;
  void select(std::int32_t row) override;

  std::int16_t SortKey() const override { return sortKey_; }
  void SortKey(std::int16_t column) override;
  std::int16_t SortOrder() const override { return sortOrder_; }
  void SortOrder(std::int16_t order) override;

  /// Another number after each change of columns, rows or their order.
  std::uint64_t edition() const { return edition_; }

 private:
  struct Column {
    std::string caption;
    std::int32_t width;
  };

  const Column& at(std::int32_t column) const;
  void sort();

  void alter();

  std::vector<Column> columns_;
  SortedRows rows_;
  std::int64_t selected_ = -1;  // the row's number in the order of coming
  std::uint64_t edition_ = 1;
  std::int16_t sortKey_ = 0;
  std::int16_t sortOrder_ = 0;
};

}  // namespace qvn::memory
