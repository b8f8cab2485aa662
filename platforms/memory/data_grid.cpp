#include "platforms/memory/data_grid.h"

#include <utility>

#include "platforms/memory/platform.h"
#include "platforms/memory/usable.h"
#include "platforms/memory/utf8.h"
#include "qvn/shared/database_numbers.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/patterns.h"

namespace qvn::memory {

namespace {

DataControl& sourceOf(const Making& making) {
  for (toolkit::Widget* widget : making.surface.widgets()) {
    if (widget->Kind() == toolkit::WidgetKind::DataControl && widget->Name() == making.layout.dataSource) {
      return static_cast<DataControl&>(*widget);
    }
  }
  throw Failure(FailureKind::InvalidCall, std::string(making.surface.name())
                                              .append(".")
                                              .append(making.layout.name)
                                              .append(": there is no data control \"")
                                              .append(making.layout.dataSource)
                                              .append("\" above it"));
}

bool isOfNumbers(Pattern pattern) { return pattern == Pattern::Currency || pattern == Pattern::TwoDecimals; }

}  // namespace

DataGrid::DataGrid(const Making& making) : Common(making, toolkit::kWhite), source_(sourceOf(making)) {
  columns_.reserve(making.layout.columns.size());
  for (const toolkit::GridColumn& row : making.layout.columns) {
    requireFormat(row.numberFormat);
    columns_.push_back({.caption = utf8::valid(row.caption),
                        .dataField = std::string(row.dataField),
                        .numberFormat = std::string(row.numberFormat)});
  }
}

void DataGrid::requireFormat(std::string_view name) const {
  try {
    patternNamed(name);
  } catch (const Failure& failure) {
    throw failure.within(fullName(*this));
  }
}

const DataGrid::Column& DataGrid::column(std::int32_t index) const {
  requirePlace(*this, "columns", columnCount(), index);
  return columns_[static_cast<std::size_t>(index)];
}

void DataGrid::column(std::int32_t index, Column column) {
  requirePlace(*this, "columns", columnCount(), index);
  requireFormat(column.numberFormat);
  column.caption = utf8::valid(column.caption);
  columns_[static_cast<std::size_t>(index)] = std::move(column);
  tell();
}

std::string DataGrid::text(std::int32_t row, std::int32_t column) const {
  const Column& shown = this->column(column);
  requirePlace(*this, "rows", rowCount(), row);
  const Variant* value = source_.value(row, shown.dataField);
  if (value == nullptr) return {};
  const Pattern pattern = patternNamed(shown.numberFormat);
  const Locale& locale = surface().platform().locale();
  try {
    return isOfNumbers(pattern) ? formatStored(*value, pattern, locale) : formatValue(*value, pattern, locale);
  } catch (const Failure&) {
    return {};  // infinite, and so without digits, or kept as a text of too many
  }
}

}  // namespace qvn::memory
