#include "qvn/panels/accounting/ctlSTP_MOVIMENTI.h"

#include <array>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/skip_failing.h"
#include "qvn/fields/text_field.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/patterns.h"

namespace qvn {

namespace {

using toolkit::Align;
using toolkit::kBlack;
using toolkit::Place;
using toolkit::WidgetKind;
using toolkit::WidgetLayout;

constexpr std::uint32_t kDebit = toolkit::kRed;
constexpr std::uint32_t kCredit = 0x00C000;

constexpr WidgetLayout shown(std::string_view name, std::int16_t tab, Place place, Align align = Align::Left,
                             std::uint32_t fore = kBlack) {
  return {.name = name,
          .kind = WidgetKind::Label,
          .tabIndex = tab,
          .frame = "Frame1",
          .place = place,
          .align = align,
          .bordered = true,
          .fore = fore,
          .back = toolkit::kWhite};
}

/// One that lies on the panel itself and is never seen.
constexpr WidgetLayout unseen(std::string_view name, std::int16_t tab, Place place) {
  return {.name = name,
          .kind = WidgetKind::Label,
          .tabIndex = tab,
          .place = place,
          .visible = false,
          .back = toolkit::kWhite};
}

constexpr std::array<WidgetLayout, 11> kWidgets{{
    {.name = "Frame1", .kind = WidgetKind::Frame, .tabIndex = 0, .place = {75, 0, 10365, 1065}, .enabled = false},
    {.name = "TxtFLAG", .tabIndex = 1, .frame = "Frame1", .place = {75, 225, 615, 315}},
    shown("LblAVERE", 2, {8550, 600, 1740, 315}, Align::Right, kCredit),
    shown("LblDARE", 3, {6750, 600, 1740, 315}, Align::Right, kDebit),
    shown("LblDESC_2", 4, {75, 600, 6615, 315}),
    shown("LblDESC_1", 5, {4050, 225, 6240, 315}),
    shown("LblDOC", 6, {2850, 225, 1140, 315}),
    shown("LblDATA_RIF", 7, {1650, 225, 1140, 315}, Align::Center),
    shown("LblRIF", 8, {750, 225, 840, 315}, Align::Right),
    unseen("LblTIPO", 9, {7200, 900, 240, 240}),
    unseen("LblIMPORTO", 10, {7725, 825, 765, 315}),
}};

constexpr toolkit::PanelLayout kLayout{.name = "ctlSTP_MOVIMENTI", .width = 10530, .height = 1140, .widgets = kWidgets};

}  // namespace

ctlSTP_MOVIMENTI::ctlSTP_MOVIMENTI(const PanelSite& site)
    : surface_(Globale::platform().makeSurface(kLayout, site.container, site.name)),
      Frame1_(surface_->frame("Frame1")),
      TxtFLAG_(surface_->textBox("TxtFLAG")),
      LblAVERE_(surface_->label("LblAVERE")),
      LblDARE_(surface_->label("LblDARE")),
      LblDESC_2_(surface_->label("LblDESC_2")),
      LblDESC_1_(surface_->label("LblDESC_1")),
      LblDOC_(surface_->label("LblDOC")),
      LblDATA_RIF_(surface_->label("LblDATA_RIF")),
      LblRIF_(surface_->label("LblRIF")),
      LblIMPORTO_(surface_->label("LblIMPORTO")) {
  fields::wireColouredFirst(TxtFLAG_, "FLAG", Gest_SCHEDE::FiltroTesto, 3);
}

std::string ctlSTP_MOVIMENTI::FLAG() const { return TxtFLAG_.Text(); }
void ctlSTP_MOVIMENTI::FLAG(std::string_view flag) { fields::show(TxtFLAG_, flag); }

// The captions are written without a look at what stands there.

std::int32_t ctlSTP_MOVIMENTI::NRIF() const { return 0; }
void ctlSTP_MOVIMENTI::NRIF(std::int32_t number) { LblRIF_.Caption(std::to_string(number)); }

Variant ctlSTP_MOVIMENTI::DATA_RIF() const { return Empty{}; }
void ctlSTP_MOVIMENTI::DATA_RIF(const Variant& date) {
  LblDATA_RIF_.Caption(
      placed(LblDATA_RIF_.Name(), [&] { return as<std::string>(date, surface_->platform().locale()); }));
}

std::string ctlSTP_MOVIMENTI::NDOC() const { return {}; }
void ctlSTP_MOVIMENTI::NDOC(std::string_view number) { LblDOC_.Caption(number); }

std::string ctlSTP_MOVIMENTI::DESC_1() const { return {}; }
void ctlSTP_MOVIMENTI::DESC_1(std::string_view description) { LblDESC_1_.Caption(description); }

std::string ctlSTP_MOVIMENTI::DESC_2() const { return {}; }
void ctlSTP_MOVIMENTI::DESC_2(std::string_view description) { LblDESC_2_.Caption(description); }

Currency ctlSTP_MOVIMENTI::IMPORTO() const { return {}; }
void ctlSTP_MOVIMENTI::IMPORTO(Currency amount) {
  LblIMPORTO_.Caption(format(amount, Pattern::General, surface_->platform().locale()));
}

std::string ctlSTP_MOVIMENTI::TIPO() const { return {}; }
void ctlSTP_MOVIMENTI::TIPO(std::string_view side) {
  const Locale& locale = surface_->platform().locale();
  const std::string amount = formatText(LblIMPORTO_.Caption(), Pattern::Currency, locale);
  const std::string zero = format(Currency(), Pattern::Currency, locale).str();
  const bool debit = side == "D";
  LblDARE_.Caption(debit ? amount : zero);
  LblAVERE_.Caption(debit ? zero : amount);
}

void ctlSTP_MOVIMENTI::Attiva() {
  fields::skipFailing([this] { Frame1_.Enabled(true); },                  //
                      [this] { Gest_SCHEDE::SelezionaTutto(TxtFLAG_); },  //
                      [this] { TxtFLAG_.SetFocus(); });
}

void ctlSTP_MOVIMENTI::Disattiva() {
  fields::skipFailing([this] { Frame1_.Enabled(false); });
}

std::span<const Member> ctlSTP_MOVIMENTI::publicMembers() {
  using P = ctlSTP_MOVIMENTI;
  static const auto table = MemberTable<P>()
                                .property("FLAG", &P::FLAG, &P::FLAG)
                                .property("NRIF", &P::NRIF, &P::NRIF)
                                .property("DATA_RIF", &P::DATA_RIF, &P::DATA_RIF)
                                .property("NDOC", &P::NDOC, &P::NDOC)
                                .property("DESC_1", &P::DESC_1, &P::DESC_1)
                                .property("DESC_2", &P::DESC_2, &P::DESC_2)
                                .property("IMPORTO", &P::IMPORTO, &P::IMPORTO)
                                .property("TIPO", &P::TIPO, &P::TIPO)
                                .method("Attiva", &P::Attiva)
                                .method("Disattiva", &P::Disattiva);
  return table.members();
}

}  // namespace qvn
