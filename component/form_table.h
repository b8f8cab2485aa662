// The list or the table of a form, read alike.
#pragma once

#include <cstdint>
#include <string>

#include "qvn/toolkit/data_grid.h"
#include "qvn/toolkit/form.h"
#include "qvn/toolkit/list_view.h"

namespace qvn::component {

/// The first list view of a form, or else its first grid; without either it has no rows and no columns. Rows and
/// columns from 0, "subscript out of range" outside.
class FormTable {
 public:
  explicit FormTable(const toolkit::Form& form);

  std::int32_t rowCount() const;
  std::int32_t columnCount() const;
  std::string head(std::int32_t column) const;
  std::string text(std::int32_t row, std::int32_t column) const;

 private:
  const toolkit::ListView* list_ = nullptr;
  const toolkit::DataGrid* grid_ = nullptr;
  std::string form_;
};

}  // namespace qvn::component
