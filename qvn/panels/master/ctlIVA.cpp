#include "qvn/panels/master/ctlIVA.h"

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

// "Ded.:" lies over TxtIVA to keep its right edge against its field; labels have no background of their own.
constexpr std::array<toolkit::WidgetLayout, 9> kWidgets{{
    {.name = "Frame1", .kind = WidgetKind::Frame, .tabIndex = 0, .place = {75, 75, 7890, 765}, .enabled = false},
    {.name = "lblCodice",
     .kind = WidgetKind::Label,
     .tabIndex = 1,
     .frame = "Frame1",
     .place = {75, 300, 615, 315},
     .caption = "Codice:",
     .align = Align::Right},
    {.name = "TxtCodice", .tabIndex = 2, .frame = "Frame1", .place = {750, 300, 465, 315}},
    {.name = "lblDescrizione",
     .kind = WidgetKind::Label,
     .tabIndex = 3,
     .frame = "Frame1",
     .place = {1125, 300, 1065, 315},
     .caption = "Descrizione:",
     .align = Align::Right},
    {.name = "txtDescrizione", .tabIndex = 4, .frame = "Frame1", .place = {2250, 300, 3540, 315}},
    {.name = "lblIVA",
     .kind = WidgetKind::Label,
     .tabIndex = 5,
     .frame = "Frame1",
     .place = {5625, 300, 540, 315},
     .caption = "IVA:",
     .align = Align::Right},
    {.name = "TxtIVA", .tabIndex = 6, .frame = "Frame1", .place = {6225, 300, 465, 315}},
    {.name = "lblDeb_Dec",
     .kind = WidgetKind::Label,
     .tabIndex = 7,
     .frame = "Frame1",
     .place = {5850, 300, 1290, 315},
     .caption = "Ded.:",
     .align = Align::Right},
    {.name = "txtDeb_Dec", .tabIndex = 8, .frame = "Frame1", .place = {7200, 300, 540, 315}},
}};

constexpr toolkit::PanelLayout kLayout{.name = "ctlIVA", .width = 8070, .height = 945, .widgets = kWidgets};

}  // namespace

ctlIVA::ctlIVA(const PanelSite& site)
    : surface_(Globale::platform().makeSurface(kLayout, site.container, site.name)),
      Frame1_(surface_->frame("Frame1")),
      TxtCodice_(surface_->textBox("TxtCodice")),
      txtDescrizione_(surface_->textBox("txtDescrizione")),
      TxtIVA_(surface_->textBox("TxtIVA")),
      txtDeb_Dec_(surface_->textBox("txtDeb_Dec")) {
  wire();
}

void ctlIVA::wire() {
  fields::wire(TxtCodice_, "Codice", Gest_SCHEDE::FiltroCifre, 2);
  fields::wire(txtDescrizione_, "Descrizione", Gest_SCHEDE::FiltroTesto, 50);
  fields::wirePercent(TxtIVA_, "IVA");
  fields::wirePercent(txtDeb_Dec_, "Deb_Dec");
}

std::uint8_t ctlIVA::Codice() const { return fields::byteOf(TxtCodice_); }
void ctlIVA::Codice(std::uint8_t code) { fields::show(TxtCodice_, std::to_string(code)); }

std::uint8_t ctlIVA::Deb_Dec() const { return fields::byteOf(txtDeb_Dec_); }
void ctlIVA::Deb_Dec(std::uint8_t percent) { fields::show(txtDeb_Dec_, std::to_string(percent)); }

std::string ctlIVA::DESCRIZIONE() const { return txtDescrizione_.Text(); }
void ctlIVA::DESCRIZIONE(std::string_view description) { fields::show(txtDescrizione_, description); }

void ctlIVA::Attiva() {
  fields::skipFailing([this] { Frame1_.Enabled(true); },                    //
                      [this] { Gest_SCHEDE::SelezionaTutto(TxtCodice_); },  //
                      [this] { TxtCodice_.SetFocus(); });
}

void ctlIVA::Disattiva() { Frame1_.Enabled(false); }

std::uint8_t ctlIVA::IVA() const { return fields::byteOf(TxtIVA_); }
void ctlIVA::IVA(std::uint8_t percent) { fields::show(TxtIVA_, std::to_string(percent)); }

std::span<const Member> ctlIVA::publicMembers() {
  static const auto table = MemberTable<ctlIVA>()
                                .property("Codice", &ctlIVA::Codice, &ctlIVA::Codice)
                                .property("Deb_Dec", &ctlIVA::Deb_Dec, &ctlIVA::Deb_Dec)
                                .property("DESCRIZIONE", &ctlIVA::DESCRIZIONE, &ctlIVA::DESCRIZIONE)
                                .method("Attiva", &ctlIVA::Attiva)
                                .method("Disattiva", &ctlIVA::Disattiva)
                                .property("IVA", &ctlIVA::IVA, &ctlIVA::IVA);
  return table.members();
}

}  // namespace qvn
