#include "qvn/lookups/viewer.h"

#include <string>
#include <utility>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/shared/Globale.h"
#include "qvn/toolkit/surface.h"

namespace qvn::lookups {

namespace {

constexpr std::string_view kGrid = "TDBGrid1";

/// Changes one thing about a column of a grid.
template <class Change>
void changeColumn(toolkit::DataGrid& grid, std::int32_t index, Change&& change) {
  auto column = grid.column(index);
  change(column);
  grid.column(index, std::move(column));
}

std::span<const toolkit::GridColumn> columnsOf(const toolkit::FormLayout& layout) {
  for (const toolkit::WidgetLayout& widget : layout.inside.widgets) {
    if (widget.name == kGrid) return widget.columns;
  }
  return {};
}

}  // namespace

Viewer::Viewer(const toolkit::FormLayout& layout) : layout_(layout), form_(layout) {
  form().Load = [this] {
    Gest_SCHEDE::CentraForm(form());
    form().surface().button("CmdCHIUDI").Click = [this] { form().unload(); };
  };
}

toolkit::DataGrid& Viewer::grid() const { return form().surface().grid(kGrid); }

void Viewer::load() {
  const bool leftLoaded = form().loaded();
  form_.load();
  if (leftLoaded) layOutAnew();
}

void Viewer::layOutAnew() {
  form().Caption(layout_.caption);
  std::int32_t index = 0;
  for (const toolkit::GridColumn& column : columnsOf(layout_)) {
    grid().column(index++, {.caption = std::string(column.caption),
                            .dataField = std::string(column.dataField),
                            .numberFormat = std::string(column.numberFormat)});
  }
}

void Viewer::extendCaption(std::string_view ending) { form().Caption(form().Caption().append(ending)); }

void Viewer::heading(std::int32_t column, std::string_view caption) {
  changeColumn(grid(), column, [&](toolkit::DataGrid::Column& changed) { changed.caption = caption; });
}

void Viewer::dataField(std::int32_t column, std::string_view field) {
  changeColumn(grid(), column, [&](toolkit::DataGrid::Column& changed) { changed.dataField = field; });
}

void Viewer::connect() { data().ConnectionString(Globale::DB().ConnectionString()); }

void Viewer::fill(std::string_view sql) {
  data().RecordSource(sql);
  data().Refresh();
}

}  // namespace qvn::lookups
