#include "qvn/panels/accounting/ctlINS_MOVIMENTI.h"

#include <array>
#include <cstdint>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/shown_number.h"
#include "qvn/fields/skip_failing.h"
#include "qvn/fields/text_field.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/lookups/field_with_list.h"
#include "qvn/panels/accounting/account_key.h"
#include "qvn/panels/accounting/lettered_list.h"
#include "qvn/shared/Globale.h"

namespace qvn {

namespace {

using accounting::AccountKey;
using accounting::kSides;
using toolkit::Align;
using toolkit::WidgetKind;

constexpr std::array kSideItems = accounting::itemsOf(kSides);

constexpr std::array<toolkit::WidgetLayout, 8> kWidgets{{
    {.name = "Frame1", .kind = WidgetKind::Frame, .tabIndex = 0, .place = {75, 0, 10440, 1065}},
    {.name = "txtMASTRO", .tabIndex = 1, .frame = "Frame1", .place = {75, 225, 915, 315}},
    {.name = "TxtCONTO", .tabIndex = 2, .frame = "Frame1", .place = {1050, 225, 1290, 315}},
    {.name = "LblDESC_CONTO",
     .kind = WidgetKind::Label,
     .tabIndex = 3,
     .frame = "Frame1",
     .place = {75, 600, 3990, 315},
     .bordered = true},
    {.name = "TxtDESC_1", .tabIndex = 4, .frame = "Frame1", .place = {2400, 225, 5415, 315}},
    {.name = "TxtDESC_2", .tabIndex = 5, .frame = "Frame1", .place = {4125, 600, 3690, 315}},
    {.name = "cmbTIPO",
     .kind = WidgetKind::ComboBox,
     .tabIndex = 6,
     .frame = "Frame1",
     .place = {7875, 225, 840, 315},
     .items = kSideItems},
    {.name = "TxtIMPORTO",
     .tabIndex = 7,
     .frame = "Frame1",
     .place = {8775, 225, 1590, 315},
     .caption = "0,0001",  // differs from every amount of two decimals, so that the first one is written
     .align = Align::Right},
}};

constexpr toolkit::PanelLayout kLayout{.name = "ctlINS_MOVIMENTI", .width = 10605, .height = 1140, .widgets = kWidgets};

constexpr std::uint32_t kGreen = 0x00FF00;

std::uint32_t colourOf(std::string_view side) { return side == "A" ? kGreen : toolkit::kRed; }

// The rules hold on to widgets alone, as a host may drop the panel at any announcement.

void mastroKey(const AccountKey& key, std::int16_t& KeyAscii) {
  if (!lookups::asksForList(KeyAscii)) {
    Gest_SCHEDE::FiltroTesto(key.mastro, KeyAscii, accounting::kMastroLength);
    return;
  }
  if (!key.conto.Text().empty()) {
    const lookups::Account chosen = lookups::pickedAccount(key.mastro, key.conto);
    lookups::writePicked(key.conto, chosen.conto);
    lookups::writePicked(key.mastro, chosen.mastro);
  } else {
    lookups::writePicked(key.mastro, lookups::picked(key.mastro, QVN_Ricerche::ListaMASTRI));
  }
  Gest_SCHEDE::SelezionaTutto(key.mastro);
}

void sideChanged(toolkit::ComboBox& list) {
  fields::announce(list, "TIPO");
  const std::string side = accounting::letterOf(list, kSides);
  if (!side.empty()) list.BackColor(colourOf(side));
}

}  // namespace

ctlINS_MOVIMENTI::ctlINS_MOVIMENTI(const PanelSite& site)
    : surface_(Globale::platform().makeSurface(kLayout, site.container, site.name)),
      Frame1_(surface_->frame("Frame1")),
      txtMASTRO_(surface_->textBox("txtMASTRO")),
      TxtCONTO_(surface_->textBox("TxtCONTO")),
      LblDESC_CONTO_(surface_->label("LblDESC_CONTO")),
      TxtDESC_1_(surface_->textBox("TxtDESC_1")),
      TxtDESC_2_(surface_->textBox("TxtDESC_2")),
      cmbTIPO_(surface_->comboBox("cmbTIPO")),
      TxtIMPORTO_(surface_->textBox("TxtIMPORTO")) {
  wire();
  cmbTIPO_.Text(cmbTIPO_.List(0));
}

void ctlINS_MOVIMENTI::wire() {
  const AccountKey key{.mastro = txtMASTRO_, .conto = TxtCONTO_, .description = LblDESC_CONTO_};
  accounting::wire(key);
  txtMASTRO_.KeyPress = [key](std::int16_t& KeyAscii) { mastroKey(key, KeyAscii); };

  fields::wireColouredFirst(TxtDESC_1_, "DESC_1", Gest_SCHEDE::FiltroTesto, 50);
  fields::wireColouredFirst(TxtDESC_2_, "DESC_2", Gest_SCHEDE::FiltroTesto, 50);
  cmbTIPO_.Click = [&list = cmbTIPO_] { sideChanged(list); };  // no colour of the focus: it keeps its red or green
  TxtIMPORTO_.Change = [&amount = TxtIMPORTO_] { fields::announce(amount, "IMPORTO"); };
  fields::wireAmount(TxtIMPORTO_, Gest_SCHEDE::FiltroNumero);
}

void ctlINS_MOVIMENTI::Disattiva() { Frame1_.Enabled(false); }

void ctlINS_MOVIMENTI::Attiva() {
  fields::skipFailing([this] { Frame1_.Enabled(true); },                    //
                      [this] { Gest_SCHEDE::SelezionaTutto(txtMASTRO_); },  //
                      [this] { txtMASTRO_.SetFocus(); });
}

EventsReference ctlINS_MOVIMENTI::Events() const { return Globale::Eventi(); }

std::string ctlINS_MOVIMENTI::Mastro() const { return txtMASTRO_.Text(); }
void ctlINS_MOVIMENTI::Mastro(std::string_view ledger) { fields::show(txtMASTRO_, ledger); }

std::string ctlINS_MOVIMENTI::Conto() const { return TxtCONTO_.Text(); }
void ctlINS_MOVIMENTI::Conto(std::string_view account) { fields::show(TxtCONTO_, account); }

void ctlINS_MOVIMENTI::DESC_CONTO(std::string_view description) { LblDESC_CONTO_.Caption(description); }

std::string ctlINS_MOVIMENTI::TIPO() const { return accounting::letterOf(cmbTIPO_, kSides); }
void ctlINS_MOVIMENTI::TIPO(std::string_view side) {
  const toolkit::Surface::Hold hold(*surface_);
  toolkit::ComboBox& list = cmbTIPO_;
  for (const accounting::Lettered& one : kSides) {
    if (one.letter != side) continue;
    if (list.Text() != one.item) list.Text(one.item);
    list.BackColor(colourOf(one.letter));
  }
}

std::string ctlINS_MOVIMENTI::DESC_1() const { return TxtDESC_1_.Text(); }
void ctlINS_MOVIMENTI::DESC_1(std::string_view text) { fields::show(TxtDESC_1_, text); }

std::string ctlINS_MOVIMENTI::DESC_2() const { return TxtDESC_2_.Text(); }
void ctlINS_MOVIMENTI::DESC_2(std::string_view text) { fields::show(TxtDESC_2_, text); }

Currency ctlINS_MOVIMENTI::IMPORTO() const { return fields::currencyOf(TxtIMPORTO_); }
void ctlINS_MOVIMENTI::IMPORTO(Currency amount) { fields::showAmount(TxtIMPORTO_, amount); }

std::span<const Member> ctlINS_MOVIMENTI::publicMembers() {
  using P = ctlINS_MOVIMENTI;
  static const auto table = MemberTable<P>()
                                .method("Disattiva", &P::Disattiva)
                                .method("Attiva", &P::Attiva)
                                .readOnly("Events", &P::Events)
                                .property("Mastro", &P::Mastro, &P::Mastro)
                                .property("Conto", &P::Conto, &P::Conto)
                                .writeOnly("DESC_CONTO", &P::DESC_CONTO)
                                .property("TIPO", &P::TIPO, &P::TIPO)
                                .property("DESC_1", &P::DESC_1, &P::DESC_1)
                                .property("DESC_2", &P::DESC_2, &P::DESC_2)
                                .property("IMPORTO", &P::IMPORTO, &P::IMPORTO);
  return table.members();
}

}  // namespace qvn
