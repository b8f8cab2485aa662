#include "platforms/laid_down.h"

#include <utility>

#include "qvn/toolkit/data_grid.h"
#include "qvn/toolkit/list_view.h"
#include "qvn/toolkit/surface.h"

namespace qvn {

namespace {

toolkit::Widget* firstOf(const toolkit::Surface& surface, toolkit::WidgetKind kind) {
  for (toolkit::Widget* widget : surface.widgets()) {
    if (widget->Kind() == kind) return widget;
  }
  return nullptr;
}

template <class Table>
void copyCells(const Table& table, FormPicture& picture) {
  const std::int32_t columns = table.columnCount();
  const std::int32_t rows = table.rowCount();
  picture.cells.reserve(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows));
  for (std::int32_t row = 0; row < rows; ++row) {
    for (std::int32_t column = 0; column < columns; ++column) picture.cells.push_back(table.text(row, column));
  }
}

void see(const toolkit::ListView& list, FormPicture& picture) {
  picture.shows = FormPicture::Shows::List;
  for (std::int32_t i = 0; i < list.columnCount(); ++i) {
    picture.columns.push_back({.caption = list.columnCaption(i), .width = list.columnWidth(i)});
  }
  copyCells(list, picture);
  picture.selected = list.selected();
}

void see(const toolkit::DataGrid& grid, FormPicture& picture) {
  picture.shows = FormPicture::Shows::Grid;
  for (std::int32_t i = 0; i < grid.columnCount(); ++i) {
    const toolkit::DataGrid::Column& column = grid.column(i);
    picture.columns.push_back({.caption = column.caption, .field = column.dataField, .format = column.numberFormat});
  }
  copyCells(grid, picture);
}

}  // namespace

void LaidDown::add(std::string_view form, std::vector<Act> acts) {
  auto found = acts_.find(form);
  if (found == acts_.end()) found = acts_.try_emplace(std::string(form)).first;
  found->second.push(std::move(acts));
}

std::optional<std::vector<Act>> LaidDown::next(std::string_view form) {
  const auto found = acts_.find(form);
  if (found == acts_.end()) return std::nullopt;
  std::vector<Act> acts = std::move(found->second.front());
  found->second.pop();
  if (found->second.empty()) acts_.erase(found);
  return acts;
}

std::vector<FailedAct> LaidDown::takeFailed() { return std::exchange(failed_, {}); }

void LaidDown::look(const toolkit::Form& form) {
  if (taking_) pictures_.push_back(pictureOf(form));
}

std::vector<FormPicture> LaidDown::takePicturesTaken() { return std::exchange(pictures_, {}); }

FormPicture pictureOf(const toolkit::Form& form) {
  FormPicture picture{.form = std::string(form.Name()), .caption = form.Caption()};
  const toolkit::Surface& surface = form.surface();
  if (const auto* list = firstOf(surface, toolkit::WidgetKind::ListView)) {
    see(static_cast<const toolkit::ListView&>(*list), picture);
  } else if (const auto* grid = firstOf(surface, toolkit::WidgetKind::DataGrid)) {
    see(static_cast<const toolkit::DataGrid&>(*grid), picture);
  }
  return picture;
}

}  // namespace qvn
