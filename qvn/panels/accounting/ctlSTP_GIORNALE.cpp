#include "qvn/panels/accounting/ctlSTP_GIORNALE.h"

#include <array>
#include <string>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/date_field.h"
#include "qvn/fields/date_mask.h"
#include "qvn/fields/shown_number.h"
#include "qvn/fields/skip_failing.h"
#include "qvn/fields/text_field.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/patterns.h"

namespace qvn {

namespace {

using toolkit::Align;
using toolkit::Place;
using toolkit::WidgetKind;
using toolkit::WidgetLayout;

constexpr WidgetLayout caption(std::string_view name, std::int16_t tab, std::string_view text, Place place) {
  return {.name = name,
          .kind = WidgetKind::Label,
          .tabIndex = tab,
          .frame = "Frame1",
          .place = place,
          .caption = text,
          .align = Align::Right};
}

constexpr WidgetLayout shown(std::string_view name, std::int16_t tab, std::string_view text, Align align, Place place) {
  return {.name = name,
          .kind = WidgetKind::Label,
          .tabIndex = tab,
          .frame = "Frame1",
          .place = place,
          .caption = text,
          .align = align,
          .bordered = true,
          .back = toolkit::kWhite};
}

// "Saldo Dare:" begins outside the frame: its text stands at its right edge.
constexpr std::array<WidgetLayout, 12> kWidgets{{
    {.name = "Frame1", .kind = WidgetKind::Frame, .tabIndex = 0, .place = {75, 0, 5490, 1440}, .enabled = false},
    caption("Label1", 1, "Da Data:", {225, 225, 765, 315}),
    shown("LblDA_DATA", 2, fields::kBlankDate, Align::Left, {1050, 225, 1215, 315}),
    caption("Label2", 3, "A Data:", {2175, 225, 765, 315}),
    {.name = "TxtA_DATA",
     .kind = WidgetKind::DateControl,
     .tabIndex = 4,
     .frame = "Frame1",
     .place = {3000, 225, 1440, 315}},
    {.name = "ChkDEFINITIVO",
     .kind = WidgetKind::CheckBox,
     .tabIndex = 5,
     .frame = "Frame1",
     .place = {1050, 600, 1065, 315},
     .caption = "Definitiva"},
    caption("Label3", 6, "N° Righe:", {3525, 600, 765, 315}),
    shown("LblNRighe", 7, "0", Align::Right, {4350, 600, 990, 315}),
    caption("Label4", 8, "Saldo Dare:", {-225, 975, 1215, 315}),
    shown("LblDARE", 9, "0", Align::Right, {1050, 975, 1365, 315}),
    caption("Label6", 10, "Saldo AVERE:", {2700, 975, 1215, 315}),
    shown("LblAVERE", 11, "0", Align::Right, {3975, 975, 1365, 315}),
}};

constexpr toolkit::PanelLayout kLayout{.name = "ctlSTP_GIORNALE", .width = 5640, .height = 1500, .widgets = kWidgets};

void showBalance(toolkit::Label& label, Currency balance) {
  if (fields::currencyOf(label) == balance) return;
  label.Caption(format(balance, Pattern::Currency, label.owner().platform().locale()));
}

}  // namespace

ctlSTP_GIORNALE::ctlSTP_GIORNALE(const PanelSite& site)
    : surface_(Globale::platform().makeSurface(kLayout, site.container, site.name)),
      Frame1_(surface_->frame("Frame1")),
      LblDA_DATA_(surface_->label("LblDA_DATA")),
      TxtA_DATA_(surface_->date("TxtA_DATA")),
      ChkDEFINITIVO_(surface_->checkBox("ChkDEFINITIVO")),
      LblNRighe_(surface_->label("LblNRighe")),
      LblDARE_(surface_->label("LblDARE")),
      LblAVERE_(surface_->label("LblAVERE")) {
  fields::wire(TxtA_DATA_, "A_DATA", fields::EnterKey::Cancelled);
  ChkDEFINITIVO_.Click = [&box = ChkDEFINITIVO_] { fields::announce(box, "DEFINITIVO"); };
}

void ctlSTP_GIORNALE::Attiva() {
  fields::skipFailing([this] { Frame1_.Enabled(true); },                    //
                      [this] { Gest_SCHEDE::SelezionaTutto(TxtA_DATA_); },  //
                      [this] { TxtA_DATA_.SetFocus(); });
}

void ctlSTP_GIORNALE::Disattiva() { Frame1_.Enabled(false); }

Variant ctlSTP_GIORNALE::DA_DATA() const {
  std::string caption = LblDA_DATA_.Caption();
  if (!dateOf(caption)) return Null{};
  return caption;
}
void ctlSTP_GIORNALE::DA_DATA(const Variant& date) {
  if (isNull(date)) return;
  const std::string text = placed(
      LblDA_DATA_.Name(), [&] { return formatValue(date, Pattern::DayMonthYear, surface_->platform().locale()); });
  if (text == LblDA_DATA_.Caption()) return;
  LblDA_DATA_.Caption(fields::isNoDate(date) ? fields::kBlankDate : text);
}

Variant ctlSTP_GIORNALE::A_DATA() const { return TxtA_DATA_.Value(); }
void ctlSTP_GIORNALE::A_DATA(const Variant& date) { fields::showDate(TxtA_DATA_, date); }

std::int32_t ctlSTP_GIORNALE::N_RIGHE() const { return 0; }
void ctlSTP_GIORNALE::N_RIGHE(std::int32_t lines) {
  if (fields::int32Of(LblNRighe_) != lines) LblNRighe_.Caption(std::to_string(lines));
}

Currency ctlSTP_GIORNALE::DARE() const { return {}; }
void ctlSTP_GIORNALE::DARE(Currency balance) { showBalance(LblDARE_, balance); }

Currency ctlSTP_GIORNALE::AVERE() const { return {}; }
void ctlSTP_GIORNALE::AVERE(Currency balance) { showBalance(LblAVERE_, balance); }

bool ctlSTP_GIORNALE::DEFINITIVO() const { return ChkDEFINITIVO_.Value() != 0; }
void ctlSTP_GIORNALE::DEFINITIVO(bool final) {
  // True is -1 as a number, which no state of the box is: it is written over a ticked box too.
  if (final || ChkDEFINITIVO_.Value() != 0) ChkDEFINITIVO_.Value(final ? 1 : 0);
}

std::span<const Member> ctlSTP_GIORNALE::publicMembers() {
  using P = ctlSTP_GIORNALE;
  static const auto table = MemberTable<P>()
                                .method("Attiva", &P::Attiva)
                                .method("Disattiva", &P::Disattiva)
                                .property("DA_DATA", &P::DA_DATA, &P::DA_DATA)
                                .property("A_DATA", &P::A_DATA, &P::A_DATA)
                                .property("N_RIGHE", &P::N_RIGHE, &P::N_RIGHE)
                                .property("DARE", &P::DARE, &P::DARE)
                                .property("AVERE", &P::AVERE, &P::AVERE)
                                .property("DEFINITIVO", &P::DEFINITIVO, &P::DEFINITIVO);
  return table.members();
}

}  // namespace qvn
