#include "qvn/panels/accounting/ctlDATI_MOVIMENTI.h"

#include <array>
#include <cstdint>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/list_field.h"
#include "qvn/fields/skip_failing.h"
#include "qvn/fields/text_field.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/lookups/field_with_list.h"
#include "qvn/panels/accounting/account_key.h"
#include "qvn/panels/accounting/lettered_list.h"
#include "qvn/shared/Globale.h"

namespace qvn {

namespace {

using accounting::kSides;
using toolkit::Align;
using toolkit::WidgetKind;

/// Purchases and takings.
constexpr std::array<accounting::Lettered, 2> kVatKinds{{{"A", "ACQUISTI"}, {"C", "CORRISPETTIVI"}}};

constexpr std::array kSideItems = accounting::itemsOf(kSides);
constexpr std::array kVatKindItems = accounting::itemsOf(kVatKinds);

constexpr std::array<toolkit::WidgetLayout, 9> kWidgets{{
    {.name = "Frame1", .kind = WidgetKind::Frame, .tabIndex = 0, .place = {75, 75, 5490, 1065}, .enabled = false},
    {.name = "lblPROGRESSIVO",
     .kind = WidgetKind::Label,
     .tabIndex = 1,
     .frame = "Frame1",
     .place = {150, 225, 465, 315},
     .align = Align::Right,
     .bordered = true,
     .back = toolkit::kWhite},
    {.name = "txtMASTRO", .tabIndex = 2, .frame = "Frame1", .place = {675, 225, 1215, 315}},
    {.name = "TxtCONTO", .tabIndex = 3, .frame = "Frame1", .place = {1950, 225, 1215, 315}},
    {.name = "ChkRIPETI",
     .kind = WidgetKind::CheckBox,
     .tabIndex = 4,
     .frame = "Frame1",
     .place = {3225, 225, 915, 315},
     .caption = "Ripeti"},
    {.name = "cmbTIPO",
     .kind = WidgetKind::ComboBox,
     .tabIndex = 5,
     .frame = "Frame1",
     .place = {3975, 225, 1365, 315},
     .items = kSideItems},
    {.name = "lblDESC_CONTO",
     .kind = WidgetKind::Label,
     .tabIndex = 6,
     .frame = "Frame1",
     .place = {150, 600, 2715, 315},
     .bordered = true,
     .back = toolkit::kWhite},
    {.name = "ChkIVA",
     .kind = WidgetKind::CheckBox,
     .tabIndex = 7,
     .frame = "Frame1",
     .place = {2925, 600, 615, 315},
     .caption = "IVA"},
    {.name = "CmbTIPO_IVA",
     .kind = WidgetKind::ComboBox,
     .tabIndex = 8,
     .frame = "Frame1",
     .place = {3600, 600, 1740, 315},
     .enabled = false,
     .items = kVatKindItems},
}};

constexpr toolkit::PanelLayout kLayout{.name = "ctlDATI_MOVIMENTI", .width = 5655, .height = 1230, .widgets = kWidgets};

}  // namespace

ctlDATI_MOVIMENTI::ctlDATI_MOVIMENTI(const PanelSite& site)
    : surface_(Globale::platform().makeSurface(kLayout, site.container, site.name)),
      Frame1_(surface_->frame("Frame1")),
      lblPROGRESSIVO_(surface_->label("lblPROGRESSIVO")),
      txtMASTRO_(surface_->textBox("txtMASTRO")),
      TxtCONTO_(surface_->textBox("TxtCONTO")),
      ChkRIPETI_(surface_->checkBox("ChkRIPETI")),
      cmbTIPO_(surface_->comboBox("cmbTIPO")),
      lblDESC_CONTO_(surface_->label("lblDESC_CONTO")),
      ChkIVA_(surface_->checkBox("ChkIVA")),
      CmbTIPO_IVA_(surface_->comboBox("CmbTIPO_IVA")) {
  wire();
  cmbTIPO_.Text(cmbTIPO_.List(0));
  CmbTIPO_IVA_.Text(CmbTIPO_IVA_.List(0));
}

// The handlers hold on to widgets alone, as a host may drop the panel at any announcement.
void ctlDATI_MOVIMENTI::wire() {
  lblPROGRESSIVO_.Change = [&label = lblPROGRESSIVO_] { fields::announce(label, "PROGRESSIVO"); };

  accounting::wire({.mastro = txtMASTRO_, .conto = TxtCONTO_, .description = lblDESC_CONTO_});
  txtMASTRO_.KeyPress = [&mastro = txtMASTRO_](std::int16_t& KeyAscii) {
    lookups::keyOrList(mastro, KeyAscii, QVN_Ricerche::ListaMASTRI, Gest_SCHEDE::FiltroTesto,
                       accounting::kMastroLength);
  };

  ChkRIPETI_.Click = [&box = ChkRIPETI_] { fields::announce(box, "RIPETI"); };
  fields::wire(cmbTIPO_, "TIPO");
  ChkIVA_.Click = [&box = ChkIVA_, &kinds = CmbTIPO_IVA_] {
    fields::announce(box, "IVA");
    kinds.Enabled(box.Value() != 0);
  };
  fields::wire(CmbTIPO_IVA_, "TIPO_IVA");
}

void ctlDATI_MOVIMENTI::Attiva() {
  fields::skipFailing([this] { Frame1_.Enabled(true); },                    //
                      [this] { Gest_SCHEDE::SelezionaTutto(txtMASTRO_); },  //
                      [this] { txtMASTRO_.SetFocus(); });
}

void ctlDATI_MOVIMENTI::Disattiva() { Frame1_.Enabled(false); }

// Everything is written without a look at what stands there.

std::string ctlDATI_MOVIMENTI::PROGRESSIVO() const { return lblPROGRESSIVO_.Caption(); }
void ctlDATI_MOVIMENTI::PROGRESSIVO(std::string_view number) { lblPROGRESSIVO_.Caption(number); }

bool ctlDATI_MOVIMENTI::IVA() const { return ChkIVA_.Value() != 0; }
void ctlDATI_MOVIMENTI::IVA(bool carries) { ChkIVA_.Value(carries ? 1 : 0); }

EventsReference ctlDATI_MOVIMENTI::Events() const { return Globale::Eventi(); }

std::string ctlDATI_MOVIMENTI::Mastro() const { return txtMASTRO_.Text(); }
void ctlDATI_MOVIMENTI::Mastro(std::string_view ledger) { txtMASTRO_.Text(ledger); }

std::string ctlDATI_MOVIMENTI::Conto() const { return TxtCONTO_.Text(); }
void ctlDATI_MOVIMENTI::Conto(std::string_view account) { TxtCONTO_.Text(account); }

void ctlDATI_MOVIMENTI::DESC_CONTO(std::string_view description) { lblDESC_CONTO_.Caption(description); }

bool ctlDATI_MOVIMENTI::RIPETI() const { return ChkRIPETI_.Value() != 0; }
void ctlDATI_MOVIMENTI::RIPETI(bool repeats) { ChkRIPETI_.Value(repeats ? 1 : 0); }

std::string ctlDATI_MOVIMENTI::TIPO() const { return accounting::letterOf(cmbTIPO_, kSides); }
void ctlDATI_MOVIMENTI::TIPO(std::string_view side) { accounting::choose(cmbTIPO_, kSides, side); }

std::string ctlDATI_MOVIMENTI::TIPO_IVA() const { return accounting::letterOf(CmbTIPO_IVA_, kVatKinds); }
void ctlDATI_MOVIMENTI::TIPO_IVA(std::string_view kind) { accounting::choose(CmbTIPO_IVA_, kVatKinds, kind); }

std::span<const Member> ctlDATI_MOVIMENTI::publicMembers() {
  using P = ctlDATI_MOVIMENTI;
  static const auto table = MemberTable<P>()
                                .method("Attiva", &P::Attiva)
                                .method("Disattiva", &P::Disattiva)
                                .property("PROGRESSIVO", &P::PROGRESSIVO, &P::PROGRESSIVO)
                                .property("IVA", &P::IVA, &P::IVA)
                                .readOnly("Events", &P::Events)
                                .property("Mastro", &P::Mastro, &P::Mastro)
                                .property("Conto", &P::Conto, &P::Conto)
                                .writeOnly("DESC_CONTO", &P::DESC_CONTO)
                                .property("RIPETI", &P::RIPETI, &P::RIPETI)
                                .property("TIPO", &P::TIPO, &P::TIPO)
                                .property("TIPO_IVA", &P::TIPO_IVA, &P::TIPO_IVA);
  return table.members();
}

}  // namespace qvn
