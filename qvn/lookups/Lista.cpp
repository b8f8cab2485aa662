#include "qvn/lookups/Lista.h"

#include <array>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/toolkit/surface.h"

namespace qvn::lookups {

namespace {

using toolkit::WidgetKind;

constexpr std::array<toolkit::WidgetLayout, 3> kWidgets{{
    {.name = "ListView1", .kind = WidgetKind::ListView, .tabIndex = 0, .place = {72, 72, 4548, 3036}},
    {.name = "CmdOK",
     .kind = WidgetKind::CommandButton,
     .tabIndex = 1,
     .place = {4680, 48, 1188, 600},
     .caption = "&OK",
     .defaultButton = true},
    {.name = "CmdAbort",
     .kind = WidgetKind::CommandButton,
     .tabIndex = 2,
     .place = {4680, 720, 1188, 600},
     .caption = "Annulla",
     .cancelButton = true},
}};

// As much room to the right and below as the list has to the left and above.
constexpr toolkit::FormLayout kLayout{.caption = "Listato",
                                      .inside = {.name = "Lista", .width = 5940, .height = 3180, .widgets = kWidgets}};

constexpr std::int32_t kCorner = 800;

void reverse(toolkit::ListView& list) { list.SortOrder(static_cast<std::int16_t>(1 - list.SortOrder())); }

}  // namespace

Lista::Lista() : form_(kLayout) {
  form().Load = [this] {
    toolkit::Place place = form().place();
    place.top = kCorner;
    place.left = kCorner;
    form().place(place);
    wire();
  };
  form().Unload = [this] { list().clearRows(); };
}

toolkit::ListView& Lista::list() const { return form().surface().listView("ListView1"); }

void Lista::selectFirst() {
  if (list().rowCount() > 0) list().select(0);
}

void Lista::wire() {
  const toolkit::Surface& surface = form().surface();
  const auto confirm = [this] { form().hide(); };
  surface.button("CmdOK").Click = confirm;
  surface.button("CmdAbort").Click = [this] { form().unload(); };
  list().DblClick = confirm;
  list().KeyPress = [confirm](std::int16_t& KeyAscii) {
    if (KeyAscii == Gest_SCHEDE::kEnter) confirm();
  };
  list().ColumnClick = [this](std::int16_t column) { sortBy(column); };
}

void Lista::sortBy(std::int16_t column) {
  toolkit::ListView& rows = list();
  if (column == 1 && clicked_ == 0) {
    // The very first click of all on the first column finds the rows sorted by it already.
    reverse(rows);
  } else {
    rows.SortKey(static_cast<std::int16_t>(column - 1));
    if (column == clicked_) {
      reverse(rows);
    } else {
      rows.SortOrder(0);
    }
  }
  clicked_ = column;
  selectFirst();
}

}  // namespace qvn::lookups
