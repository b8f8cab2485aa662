#include "qvn/panels/master/ctlSTP_CONTABILE.h"

#include <array>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/skip_failing.h"
#include "qvn/fields/text_field.h"
#include "qvn/shared/Globale.h"

namespace qvn {

namespace {

using toolkit::Align;
using toolkit::WidgetKind;

constexpr std::array<toolkit::WidgetLayout, 5> kWidgets{{
    {.name = "Frame1", .kind = WidgetKind::Frame, .tabIndex = 0, .place = {75, 0, 6240, 840}, .enabled = false},
    {.name = "lblCodice",
     .kind = WidgetKind::Label,
     .tabIndex = 1,
     .frame = "Frame1",
     .place = {75, 300, 615, 315},
     .caption = "Codice:",
     .align = Align::Right},
    {.name = "TxtCodice", .tabIndex = 2, .frame = "Frame1", .place = {750, 300, 690, 315}},
    {.name = "lblDescrizione",
     .kind = WidgetKind::Label,
     .tabIndex = 3,
     .frame = "Frame1",
     .place = {1425, 300, 1065, 315},
     .caption = "Descrizione:",
     .align = Align::Right},
    {.name = "txtDescrizione", .tabIndex = 4, .frame = "Frame1", .place = {2550, 300, 3540, 315}},
}};

constexpr toolkit::PanelLayout kLayout{.name = "ctlSTP_CONTABILE", .width = 6405, .height = 915, .widgets = kWidgets};

}  // namespace

ctlSTP_CONTABILE::ctlSTP_CONTABILE(const PanelSite& site)
    : surface_(Globale::platform().makeSurface(kLayout, site.container, site.name)),
      Frame1_(surface_->frame("Frame1")),
      TxtCodice_(surface_->textBox("TxtCodice")),
      txtDescrizione_(surface_->textBox("txtDescrizione")) {
  fields::wire(TxtCodice_, "Codice", Gest_SCHEDE::FiltroTesto, 5);
  fields::wire(txtDescrizione_, "Descrizione", Gest_SCHEDE::FiltroTesto, 50);
}

std::string ctlSTP_CONTABILE::Codice() const { return TxtCodice_.Text(); }
void ctlSTP_CONTABILE::Codice(std::string_view code) { fields::show(TxtCodice_, code); }

std::string ctlSTP_CONTABILE::DESCRIZIONE() const { return txtDescrizione_.Text(); }
void ctlSTP_CONTABILE::DESCRIZIONE(std::string_view description) { fields::show(txtDescrizione_, description); }

void ctlSTP_CONTABILE::Attiva() {
  fields::skipFailing([this] { Frame1_.Enabled(true); },                    //
                      [this] { Gest_SCHEDE::SelezionaTutto(TxtCodice_); },  //
                      [this] { TxtCodice_.SetFocus(); });
}

void ctlSTP_CONTABILE::Disattiva() { Frame1_.Enabled(false); }

std::span<const Member> ctlSTP_CONTABILE::publicMembers() {
  using P = ctlSTP_CONTABILE;
  static const auto table = MemberTable<P>()
                                .property("Codice", &P::Codice, &P::Codice)
                                .property("DESCRIZIONE", &P::DESCRIZIONE, &P::DESCRIZIONE)
                                .method("Attiva", &P::Attiva)
                                .method("Disattiva", &P::Disattiva);
  return table.members();
}

}  // namespace qvn
