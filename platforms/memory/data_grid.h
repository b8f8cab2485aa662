// A grid in memory.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platforms/memory/data_control.h"
#include "platforms/memory/widget.h"
#include "qvn/toolkit/data_grid.h"

namespace qvn::memory {

class DataGrid final : public Common<toolkit::DataGrid> {
 public:
  explicit DataGrid(const Making& making);

  std::int32_t columnCount() const override { return static_cast<std::int32_t>(columns_.size()); }
  const Column& column(std::int32_t index) const override;
  void column(std::int32_t index, Column column) override;
  toolkit::DataControl& DataSource() const override { return source_; }
  std::int32_t rowCount() const override { return source_.rowCount(); }
  std::string text(std::int32_t row, std::int32_t column) const override;

 private:
  void requireFormat(std::string_view name) const;

  DataControl& source_;
  std::vector<Column> columns_;
};

}  // namespace qvn::memory
