#include "qvn/panels/master/ctlRAMI.h"

#include <algorithm>
#include <array>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/list_field.h"
#include "qvn/fields/skip_failing.h"
#include "qvn/fields/text_field.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/failure.h"

namespace qvn {

namespace {

using toolkit::Align;
using toolkit::WidgetKind;

/// The kinds of screen, from 1 on.
constexpr std::array<std::string_view, 4> kScreens{"Elementari", "Auto", "Vita", "Cauzioni"};

constexpr std::array<toolkit::WidgetLayout, 7> kWidgets{{
    {.name = "Frame1", .kind = WidgetKind::Frame, .tabIndex = 0, .place = {75, 75, 6615, 1065}, .enabled = false},
    {.name = "Label1",
     .kind = WidgetKind::Label,
     .tabIndex = 1,
     .frame = "Frame1",
     .place = {225, 225, 1065, 315},
     .caption = "Cod. Ramo:",
     .align = Align::Right},
    {.name = "TxtCOD_RAMO", .tabIndex = 2, .frame = "Frame1", .place = {1350, 225, 840, 315}},
    {.name = "txtDescrizione", .tabIndex = 3, .frame = "Frame1", .place = {2250, 225, 4215, 315}},
    {.name = "Label3",
     .kind = WidgetKind::Label,
     .tabIndex = 4,
     .frame = "Frame1",
     .place = {-75, 600, 1365, 315},
     .caption = "Tipo Schermata:",
     .align = Align::Right},
    {.name = "CmbTIPO_SK",
     .kind = WidgetKind::ComboBox,
     .tabIndex = 5,
     .frame = "Frame1",
     .place = {1350, 600, 1890, 315},
     .items = kScreens},
    {.name = "ckCompetenze",
     .kind = WidgetKind::CheckBox,
     .tabIndex = 6,
     .frame = "Frame1",
     .place = {3480, 600, 1335, 375},
     .caption = "Competenze",
     .align = Align::Right},
}};

constexpr toolkit::PanelLayout kLayout{.name = "ctlRAMI", .width = 6795, .height = 1245, .widgets = kWidgets};

}  // namespace

ctlRAMI::ctlRAMI(const PanelSite& site)
    : surface_(Globale::platform().makeSurface(kLayout, site.container, site.name)),
      Frame1_(surface_->frame("Frame1")),
      TxtCOD_RAMO_(surface_->textBox("TxtCOD_RAMO")),
      txtDescrizione_(surface_->textBox("txtDescrizione")),
      CmbTIPO_SK_(surface_->comboBox("CmbTIPO_SK")),
      ckCompetenze_(surface_->checkBox("ckCompetenze")) {
  wire();
}

void ctlRAMI::wire() {
  fields::wireColouredFirst(TxtCOD_RAMO_, "COD_RAMO", Gest_SCHEDE::FiltroTesto, 2);
  fields::wireColouredFirst(txtDescrizione_, "DESCRIZIONE", Gest_SCHEDE::FiltroTesto, 50);
  fields::wire(CmbTIPO_SK_, "TIPO_SK");
  ckCompetenze_.Click = [&box = ckCompetenze_] { fields::announce(box, "competenze"); };
}

std::string ctlRAMI::COD_RAMO() const { return TxtCOD_RAMO_.Text(); }
void ctlRAMI::COD_RAMO(std::string_view code) { fields::show(TxtCOD_RAMO_, code); }

std::string ctlRAMI::competenze() const { return std::to_string(ckCompetenze_.Value()); }
void ctlRAMI::competenze(std::string_view state) {
  const std::string_view box = ckCompetenze_.Name();
  const double number = placed(box, [&] { return toDouble(state, surface_->platform().locale()); });
  if (number == ckCompetenze_.Value()) return;
  ckCompetenze_.Value(placed(box, [&] { return toInt16(number); }));
}

std::string ctlRAMI::DESCRIZIONE() const { return txtDescrizione_.Text(); }
void ctlRAMI::DESCRIZIONE(std::string_view description) { fields::show(txtDescrizione_, description); }

std::int16_t ctlRAMI::TIPO_SK() const {
  const auto* const chosen = std::ranges::find(kScreens, CmbTIPO_SK_.Text());
  return chosen == kScreens.end() ? std::int16_t{0} : static_cast<std::int16_t>(chosen - kScreens.begin() + 1);
}
void ctlRAMI::TIPO_SK(std::int16_t kind) {
  if (kind < 1 || kind > static_cast<std::int16_t>(kScreens.size())) return;
  const std::string_view screen = kScreens[static_cast<std::size_t>(kind - 1)];
  if (CmbTIPO_SK_.Text() != screen) CmbTIPO_SK_.Text(screen);
}

void ctlRAMI::Attiva() {
  fields::skipFailing([this] { Frame1_.Enabled(true); },                      //
                      [this] { Gest_SCHEDE::SelezionaTutto(TxtCOD_RAMO_); },  //
                      [this] { TxtCOD_RAMO_.SetFocus(); });
}

void ctlRAMI::Disattiva() { Frame1_.Enabled(false); }

std::span<const Member> ctlRAMI::publicMembers() {
  using P = ctlRAMI;
  static const auto table = MemberTable<P>()
                                .property("COD_RAMO", &P::COD_RAMO, &P::COD_RAMO)
                                .property("competenze", &P::competenze, &P::competenze)
                                .property("DESCRIZIONE", &P::DESCRIZIONE, &P::DESCRIZIONE)
                                .property("TIPO_SK", &P::TIPO_SK, &P::TIPO_SK)
                                .method("Attiva", &P::Attiva)
                                .method("Disattiva", &P::Disattiva);
  return table.members();
}

}  // namespace qvn
