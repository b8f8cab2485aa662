// The columns that a viewer shows.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "platforms/operator.h"

namespace qvn::test {

/// What each column is headed with, the field that it shows, its number format.
using Columns = std::vector<std::array<std::string, 3>>;

inline Columns columnsOf(const FormPicture& picture) {
  Columns columns;
  columns.reserve(picture.columns.size());
  for (const auto& column : picture.columns) columns.push_back({column.caption, column.field, column.format});
  return columns;
}

}  // namespace qvn::test
