// A data control in memory.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platforms/memory/widget.h"
#include "qvn/toolkit/data_grid.h"
#include "qvn/toolkit/database.h"

namespace qvn::memory {

class DataControl final : public Common<toolkit::DataControl> {
 public:
  explicit DataControl(const Making& making);

  void ConnectionString(std::string_view connectionString) override { connectionString_ = connectionString; }
  void RecordSource(std::string_view sql) override { recordSource_ = sql; }
  void Refresh() override;

  std::int32_t rowCount() const { return answer_.rowCount; }
  /// A value of a row that is there, by the name of its column, the first of two with one name; null if the answer has
  /// no such column.
  const Variant* value(std::int32_t row, std::string_view field) const;

 private:
  struct Answer {
    std::vector<std::string> fields = {};
    std::vector<Variant> values = {};  // row after row
    std::int32_t rowCount = 0;
  };

  Answer ask();

  toolkit::Connection connection_;
  std::string connectionString_;
  std::string recordSource_;
  Answer answer_;
};

}  // namespace qvn::memory
