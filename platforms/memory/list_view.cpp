#include "platforms/memory/list_view.h"

#include <algorithm>

#include "platforms/memory/usable.h"
#include "platforms/memory/utf8.h"
#include "qvn/shared/failure.h"

namespace qvn::memory {

void ListView::alter() {
  ++edition_;
  tell();
}

void ListView::clearColumns() {
  columns_.clear();
  alter();
}

void ListView::addColumn(std::string_view caption, std::int32_t width) {
  columns_.push_back({.caption = utf8::valid(caption), .width = width});
  alter();
}

const ListView::Column& ListView::at(std::int32_t column) const {
  requirePlace(*this, "columns", columnCount(), column);
  return columns_[static_cast<std::size_t>(column)];
}

void ListView::clearRows() {
  rows_.clear();
  selected_ = -1;
  alter();
}

void ListView::addRow(std::span<const std::string_view> texts) {
  if (texts.size() != columns_.size()) {
    throw Failure(FailureKind::InvalidCall, fullName(*this)
                                                .append(" has ")
                                                .append(std::to_string(columnCount()))
                                                .append(" columns and takes no row of ")
                                                .append(std::to_string(texts.size()))
                                                .append(" texts"));
  }
  alter();
  if (std::ranges::all_of(texts, utf8::isValid)) return rows_.add(texts);
  std::vector<std::string> mended;
  mended.reserve(texts.size());
  for (const std::string_view text : texts) mended.push_back(utf8::valid(text));
  rows_.add(std::vector<std::string_view>(mended.begin(), mended.end()));
}

std::string ListView::text(std::int32_t row, std::int32_t column) const {
  requirePlace(*this, "rows", rowCount(), row);
  at(column);
  return std::string(rows_.text(rows_.rowAt(static_cast<std::size_t>(row)), static_cast<std::size_t>(column)));
}

std::int32_t ListView::selected() const {
  if (selected_ < 0) return -1;
  return static_cast<std::int32_t>(rows_.placeOf(static_cast<std::uint32_t>(selected_)));
}

void ListView::select(std::int32_t row) {
  if (row != -1) requirePlace(*this, "rows", rowCount(), row);
  selected_ = row == -1 ? -1 : std::int64_t{rows_.rowAt(static_cast<std::size_t>(row))};
  tell();
}

void ListView::sort() {
  rows_.sortBy(static_cast<std::size_t>(sortKey_), sortOrder_ == 1);
  alter();
}

void ListView::SortKey(std::int16_t column) {
  at(column);
  sortKey_ = column;
  sort();
}

void ListView::SortOrder(std::int16_t order) {
  if (order != 0 && order != 1) {
    throw Failure(FailureKind::InvalidCall,
                  fullName(*this).append(" sorts in order 0 or 1, not ").append(std::to_string(order)));
  }
  sortOrder_ = order;
  sort();
}

}  // namespace qvn::memory
