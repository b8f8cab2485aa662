#include "qvn/panels/accounting/ctlINS_IVA.h"

#include <array>
#include <cstdint>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/shown_number.h"
#include "qvn/fields/skip_failing.h"
#include "qvn/fields/text_field.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/lookups/field_with_list.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/failure.h"

namespace qvn {

namespace {

using fields::currencyOf;
using toolkit::Align;
using toolkit::WidgetKind;

constexpr std::array<toolkit::WidgetLayout, 6> kWidgets{{
    {.name = "Frame1", .kind = WidgetKind::Frame, .tabIndex = 0, .place = {75, 0, 9840, 690}, .enabled = false},
    {.name = "txtCOD_IVA", .tabIndex = 1, .frame = "Frame1", .place = {75, 225, 915, 315}, .caption = "0"},
    {.name = "LblDESC_IVA",
     .kind = WidgetKind::Label,
     .tabIndex = 2,
     .frame = "Frame1",
     .place = {1050, 225, 4665, 315},
     .bordered = true},
    {.name = "lblIVA",
     .kind = WidgetKind::Label,
     .tabIndex = 3,
     .frame = "Frame1",
     .place = {5775, 225, 690, 315},
     .bordered = true},
    {.name = "TxtIMPONIBILE",
     .tabIndex = 4,
     .frame = "Frame1",
     .place = {6525, 225, 1590, 315},
     .caption = "0",
     .align = Align::Right},
    {.name = "TxtIVA",
     .tabIndex = 5,
     .frame = "Frame1",
     .place = {8175, 225, 1590, 315},
     .caption = "0",
     .align = Align::Right},
}};

constexpr toolkit::PanelLayout kLayout{.name = "ctlINS_IVA", .width = 10005, .height = 765, .widgets = kWidgets};

// The rules hold on to widgets alone, as a host may drop the panel at any announcement.

void codeChanged(toolkit::TextBox& code, toolkit::Label& description, toolkit::Label& rate) {
  std::string text = code.Text();
  if (!text.empty()) {
    std::string found;
    std::int16_t percent = 0;
    QVN_Ricerche::CercaIVA(text, found, percent);
    description.Caption(found);
    rate.Caption(std::to_string(percent));
  } else {
    code.Text("0");  // which is looked up in its turn, before the labels are emptied
    Gest_SCHEDE::SelezionaTutto(code);
    description.Caption("");
    rate.Caption("");
  }
  fields::announce(code, "COD_IVA");
}

void amountChanged(toolkit::TextBox& box, std::string_view property) {
  if (box.Text().empty()) {
    box.Text("0");
    Gest_SCHEDE::SelezionaTutto(box);
  }
  fields::announce(box, property);
}

/// Any VAT that stands is cleared, and a new one comes at the next leaving.
void taxableLeft(toolkit::TextBox& taxable, toolkit::TextBox& vat, const toolkit::Label& rate) {
  Gest_SCHEDE::ColoreFuoco(taxable, Gest_SCHEDE::kAtRest);
  const Currency standing = currencyOf(vat);
  if (!rate.Caption().empty() && standing == Currency()) {
    const double hundredth = toDouble(currencyOf(taxable)) / 100.0;
    const double due = hundredth * fields::int16Of(rate);
    vat.Text(format(due, Pattern::General, vat.owner().platform().locale()));
  } else {
    vat.Text("0");
  }
  fields::rewrite(vat, Pattern::Currency);
  fields::rewrite(taxable, Pattern::Currency);
}

void vatLeft(toolkit::TextBox& vat, toolkit::TextBox& taxable, const toolkit::Label& rate) {
  Gest_SCHEDE::ColoreFuoco(vat, Gest_SCHEDE::kAtRest);
  const Currency standing = currencyOf(taxable);
  const Currency due = currencyOf(vat);
  if (standing == Currency() && due > Currency()) {
    const std::int16_t percent = fields::int16Of(rate);
    if (percent == 0) {
      throw Failure(FailureKind::DivisionByZero, std::string(vat.Text()).append(" divided by a rate of 0"))
          .within(rate.Name());
    }
    fields::showAmount(taxable, toCurrency(toDouble(due) / percent * 100.0));
  }
  fields::rewrite(vat, Pattern::Currency);
  fields::rewrite(taxable, Pattern::Currency);
}

/// All of an amount but its leaving, which works out the other one.
void wireAmount(toolkit::TextBox& box, std::string_view property) {
  fields::wireAmount(box, Gest_SCHEDE::FiltroImporto);
  box.Change = [&box, property] { amountChanged(box, property); };
}

}  // namespace

ctlINS_IVA::ctlINS_IVA(const PanelSite& site)
    : surface_(Globale::platform().makeSurface(kLayout, site.container, site.name)),
      Frame1_(surface_->frame("Frame1")),
      txtCOD_IVA_(surface_->textBox("txtCOD_IVA")),
      LblDESC_IVA_(surface_->label("LblDESC_IVA")),
      lblIVA_(surface_->label("lblIVA")),
      TxtIMPONIBILE_(surface_->textBox("TxtIMPONIBILE")),
      TxtIVA_(surface_->textBox("TxtIVA")) {
  wire();
}

void ctlINS_IVA::wire() {
  toolkit::TextBox& code = txtCOD_IVA_;
  toolkit::Label& rate = lblIVA_;
  toolkit::TextBox& taxable = TxtIMPONIBILE_;
  toolkit::TextBox& vat = TxtIVA_;

  code.Change = [&code, &description = LblDESC_IVA_, &rate] { codeChanged(code, description, rate); };
  code.GotFocus = [&code] {
    Gest_SCHEDE::SelezionaTutto(code);
    Gest_SCHEDE::ColoreFuoco(code, Gest_SCHEDE::kFocusedWithList);
  };
  code.KeyPress = [&code](std::int16_t& KeyAscii) {
    lookups::keyOrList(code, KeyAscii, QVN_Ricerche::ListaTIPI_IVA, Gest_SCHEDE::FiltroCifre, 2);
  };
  code.LostFocus = [&code] { Gest_SCHEDE::ColoreFuoco(code, Gest_SCHEDE::kAtRest); };

  wireAmount(taxable, "IMPONIBILE");
  taxable.LostFocus = [&taxable, &vat, &rate] { taxableLeft(taxable, vat, rate); };
  wireAmount(vat, "IVA");
  vat.LostFocus = [&vat, &taxable, &rate] { vatLeft(vat, taxable, rate); };
}

void ctlINS_IVA::Disattiva() { Frame1_.Enabled(false); }

void ctlINS_IVA::Attiva() {
  fields::skipFailing([this] { Frame1_.Enabled(true); },                     //
                      [this] { Gest_SCHEDE::SelezionaTutto(txtCOD_IVA_); },  //
                      [this] { txtCOD_IVA_.SetFocus(); });
}

EventsReference ctlINS_IVA::Events() const { return Globale::Eventi(); }

std::string ctlINS_IVA::COD_IVA() const { return txtCOD_IVA_.Text(); }
void ctlINS_IVA::COD_IVA(std::string_view code) { txtCOD_IVA_.Text(code); }

Currency ctlINS_IVA::IMPONIBILE() const { return currencyOf(TxtIMPONIBILE_); }
void ctlINS_IVA::IMPONIBILE(Currency amount) { fields::showAmount(TxtIMPONIBILE_, amount); }

Currency ctlINS_IVA::IVA() const { return currencyOf(TxtIVA_); }
void ctlINS_IVA::IVA(Currency amount) { fields::showAmount(TxtIVA_, amount); }

std::span<const Member> ctlINS_IVA::publicMembers() {
  using P = ctlINS_IVA;
  static const auto table = MemberTable<P>()
                                .method("Disattiva", &P::Disattiva)
                                .method("Attiva", &P::Attiva)
                                .readOnly("Events", &P::Events)
                                .property("COD_IVA", &P::COD_IVA, &P::COD_IVA)
                                .property("IMPONIBILE", &P::IMPONIBILE, &P::IMPONIBILE)
                                .property("IVA", &P::IVA, &P::IVA);
  return table.members();
}

}  // namespace qvn
