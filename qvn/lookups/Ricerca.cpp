#include "qvn/lookups/Ricerca.h"

#include <array>

#include "qvn/fields/Gest_SCHEDE.h"

namespace qvn::lookups {

namespace {

using toolkit::WidgetKind;

constexpr std::array<toolkit::WidgetLayout, 2> kWidgets{{
    // The room of a picture that no platform draws.
    {.name = "Image1", .kind = WidgetKind::Label, .tabIndex = 0, .place = {97, 97, 480, 480}},
    {.name = "Label1",
     .kind = WidgetKind::Label,
     .tabIndex = 1,
     .place = {675, 225, 1380, 225},
     .caption = "Ricerca in Corso ..."},
}};

constexpr toolkit::FormLayout kLayout{.caption = "Stampa",
                                      .inside = {.name = "Ricerca", .width = 2160, .height = 675, .widgets = kWidgets}};

}  // namespace

Ricerca::Ricerca() : form_(kLayout) {
  form_.form().Load = [&form = form_.form()] { Gest_SCHEDE::CentraForm(form); };
}

void Ricerca::load() {
  form_.load();
  form_.form().refresh();
}

}  // namespace qvn::lookups
