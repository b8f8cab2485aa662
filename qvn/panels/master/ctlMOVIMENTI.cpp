#include "qvn/panels/master/ctlMOVIMENTI.h"

#include <array>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/shown_number.h"
#include "qvn/fields/skip_failing.h"
#include "qvn/fields/text_field.h"
#include "qvn/shared/Globale.h"

namespace qvn {

namespace {

using toolkit::Align;
using toolkit::WidgetKind;

constexpr std::array<toolkit::WidgetLayout, 4> kWidgets{{
    {.name = "Frame1", .kind = WidgetKind::Frame, .tabIndex = 0, .place = {75, 75, 6765, 690}, .enabled = false},
    {.name = "lblCodice",
     .kind = WidgetKind::Label,
     .tabIndex = 1,
     .frame = "Frame1",
     .place = {75, 225, 690, 315},
     .caption = "Codice:",
     .align = Align::Right},
    {.name = "TxtCodice", .tabIndex = 2, .frame = "Frame1", .place = {825, 225, 540, 315}},
    {.name = "txtDescrizione", .tabIndex = 3, .frame = "Frame1", .place = {1425, 225, 5190, 315}},
}};

constexpr toolkit::PanelLayout kLayout{.name = "ctlMOVIMENTI", .width = 6870, .height = 840, .widgets = kWidgets};

}  // namespace

ctlMOVIMENTI::ctlMOVIMENTI(const PanelSite& site)
    : surface_(Globale::platform().makeSurface(kLayout, site.container, site.name)),
      Frame1_(surface_->frame("Frame1")),
      TxtCodice_(surface_->textBox("TxtCodice")),
      txtDescrizione_(surface_->textBox("txtDescrizione")) {
  fields::wire(TxtCodice_, "COD_MOVIMENTO", Gest_SCHEDE::FiltroCifre, 2);
  fields::wire(txtDescrizione_, "DESCRIZIONE", Gest_SCHEDE::FiltroTesto, 50);
}

void ctlMOVIMENTI::Attiva() {
  fields::skipFailing([this] { Frame1_.Enabled(true); },                    //
                      [this] { Gest_SCHEDE::SelezionaTutto(TxtCodice_); },  //
                      [this] { TxtCodice_.SetFocus(); });
}

void ctlMOVIMENTI::Disattiva() { Frame1_.Enabled(false); }

// Both are written without a look at what stands there.

std::uint8_t ctlMOVIMENTI::COD_MOVIMENTO() const { return fields::byteOf(TxtCodice_); }
void ctlMOVIMENTI::COD_MOVIMENTO(std::uint8_t code) { TxtCodice_.Text(std::to_string(code)); }

std::string ctlMOVIMENTI::DESCRIZIONE() const { return txtDescrizione_.Text(); }
void ctlMOVIMENTI::DESCRIZIONE(std::string_view description) { txtDescrizione_.Text(description); }

std::span<const Member> ctlMOVIMENTI::publicMembers() {
  using P = ctlMOVIMENTI;
  static const auto table = MemberTable<P>()
                                .method("Attiva", &P::Attiva)
                                .method("Disattiva", &P::Disattiva)
                                .property("COD_MOVIMENTO", &P::COD_MOVIMENTO, &P::COD_MOVIMENTO)
                                .property("DESCRIZIONE", &P::DESCRIZIONE, &P::DESCRIZIONE);
  return table.members();
}

}  // namespace qvn
