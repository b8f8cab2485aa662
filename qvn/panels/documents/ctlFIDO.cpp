#include "qvn/panels/documents/ctlFIDO.h"

#include <array>
#include <cstdint>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/date_field.h"
#include "qvn/fields/shown_number.h"
#include "qvn/fields/skip_failing.h"
#include "qvn/fields/text_field.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/panels/documents/entry_fields.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/patterns.h"

namespace qvn {

namespace {

using toolkit::Align;
using toolkit::Place;
using toolkit::WidgetKind;
using toolkit::WidgetLayout;

constexpr WidgetLayout title(std::string_view name, std::int16_t tab, Place place, std::string_view caption) {
  return {.name = name,
          .kind = WidgetKind::Label,
          .tabIndex = tab,
          .frame = "Frame1",
          .place = place,
          .caption = caption,
          .align = Align::Right};
}

// The title of the date begins left of the frame: it is right-aligned, and only its text shows.
constexpr std::array<WidgetLayout, 11> kWidgets{{
    {.name = "Frame1", .kind = WidgetKind::Frame, .tabIndex = 0, .place = {75, 0, 7890, 1065}, .enabled = false},
    {.name = "TxtCOD_COMP", .tabIndex = 1, .frame = "Frame1", .place = {900, 225, 765, 315}},
    title("Label2", 2, {75, 225, 765, 315}, "C. Comp.:"),
    {.name = "DESC_COMPAGNIA",
     .kind = WidgetKind::Label,
     .tabIndex = 3,
     .frame = "Frame1",
     .place = {1725, 225, 6015, 315},
     .bordered = true},
    title("Label1", 4, {-75, 600, 915, 315}, "Data Fido:"),
    {.name = "TxtDATA_FIDO",
     .kind = WidgetKind::DateControl,
     .tabIndex = 5,
     .frame = "Frame1",
     .place = {900, 600, 1365, 315},
     .fore = toolkit::kBlue},
    title("Label3", 6, {2400, 600, 990, 315}, "Affidamento:"),
    {.name = "TxtIMPORTO",
     .tabIndex = 7,
     .frame = "Frame1",
     .place = {3450, 600, 1590, 315},
     .caption = "0,0001",  // no line has it, so that the first amount written differs and is formatted
     .align = Align::Right},
    title("Label4", 8, {5175, 600, 915, 315}, "Attuale Esp.:"),
    {.name = "ESPOSIZIONE",
     .kind = WidgetKind::Label,
     .tabIndex = 9,
     .frame = "Frame1",
     .place = {6150, 600, 1590, 315},
     .caption = "0",
     .align = Align::Right,
     .bordered = true,
     .back = toolkit::kWhite},
    {.name = "LblCOD_CLIENTE",
     .kind = WidgetKind::Label,
     .tabIndex = 10,
     .frame = "Frame1",
     .place = {7200, 225, 540, 315},
     .visible = false,
     .bordered = true},
}};

constexpr toolkit::PanelLayout kLayout{.name = "ctlFIDO", .width = 8040, .height = 1140, .widgets = kWidgets};

// The rules hold on to widgets alone, as a host may drop the panel at any announcement or look-up.

void companyChanged(const toolkit::TextBox& company, toolkit::Label& description, const toolkit::Label& client,
                    toolkit::Label& exposure) {
  fields::announce(company, "COD_COMP");
  std::string named = company.Text();
  description.Caption(QVN_Ricerche::CercaCOMPAGNIA(named));
  // Read again, since the name comes without the code's quotes and the host may have written both codes meanwhile.
  std::string COD_CLIENTE = client.Caption();
  std::string COD_COMP = company.Text();
  const std::string sum = QVN_Ricerche::CercaESPOSIZIONE(COD_CLIENTE, COD_COMP);
  exposure.Caption(formatText(sum, Pattern::Currency, exposure.owner().platform().locale()));
}

void amountChanged(toolkit::TextBox& box) {
  if (box.Text().empty()) {
    box.Text(format(0, Pattern::Currency, box.owner().platform().locale()));
    Gest_SCHEDE::SelezionaTutto(box);
  }
  fields::announce(box, "FIDO");
}

}  // namespace

ctlFIDO::ctlFIDO(const PanelSite& site)
    : surface_(Globale::platform().makeSurface(kLayout, site.container, site.name)),
      Frame1_(surface_->frame("Frame1")),
      TxtCOD_COMP_(surface_->textBox("TxtCOD_COMP")),
      TxtDATA_FIDO_(surface_->date("TxtDATA_FIDO")),
      TxtIMPORTO_(surface_->textBox("TxtIMPORTO")),
      LblCOD_CLIENTE_(surface_->label("LblCOD_CLIENTE")) {
  wire();
}

void ctlFIDO::wire() {
  toolkit::TextBox& company = TxtCOD_COMP_;
  documents::wireCode(company, "COD_COMP", QVN_Ricerche::ListaCOMPAGNIE, 5);
  company.Change = [&company, &description = surface_->label("DESC_COMPAGNIA"), &client = LblCOD_CLIENTE_,
                    &exposure = surface_->label("ESPOSIZIONE")] {
    companyChanged(company, description, client, exposure);
  };

  fields::wire(TxtDATA_FIDO_, "DATA_FIDO", fields::EnterKey::LeftToTheField);

  toolkit::TextBox& amount = TxtIMPORTO_;
  fields::wireAmount(amount, Gest_SCHEDE::FiltroNumero);
  amount.Change = [&amount] { amountChanged(amount); };
}

std::string ctlFIDO::COD_COMP() const { return TxtCOD_COMP_.Text(); }
void ctlFIDO::COD_COMP(std::string_view code) { fields::show(TxtCOD_COMP_, code); }

Variant ctlFIDO::DATA_FIDO() const { return TxtDATA_FIDO_.Value(); }
void ctlFIDO::DATA_FIDO(const Variant& date) { fields::showDate(TxtDATA_FIDO_, date); }

void ctlFIDO::Disattiva() { Frame1_.Enabled(false); }

Currency ctlFIDO::FIDO() const { return fields::currencyOf(TxtIMPORTO_); }
void ctlFIDO::FIDO(Currency amount) { fields::showAmount(TxtIMPORTO_, amount); }

EventsReference ctlFIDO::Events() const { return Globale::Eventi(); }

void ctlFIDO::Attiva() {
  fields::skipFailing([this] { Frame1_.Enabled(true); },                      //
                      [this] { Gest_SCHEDE::SelezionaTutto(TxtCOD_COMP_); },  //
                      [this] { TxtCOD_COMP_.SetFocus(); });
}

std::string ctlFIDO::COD_CLIENTE() const { return {}; }
void ctlFIDO::COD_CLIENTE(std::string_view code) { LblCOD_CLIENTE_.Caption(code); }

std::span<const Member> ctlFIDO::publicMembers() {
  using P = ctlFIDO;
  static const auto table = MemberTable<P>()
                                .property("COD_COMP", &P::COD_COMP, &P::COD_COMP)
                                .property("DATA_FIDO", &P::DATA_FIDO, &P::DATA_FIDO)
                                .method("Disattiva", &P::Disattiva)
                                .property("FIDO", &P::FIDO, &P::FIDO)
                                .readOnly("Events", &P::Events)
                                .method("Attiva", &P::Attiva)
                                .property("COD_CLIENTE", &P::COD_CLIENTE, &P::COD_CLIENTE);
  return table.members();
}

}  // namespace qvn
