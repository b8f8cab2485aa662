#include "qvn/panels/documents/ctlSOSPESI.h"

#include <array>
#include <cstdint>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/date_field.h"
#include "qvn/fields/list_field.h"
#include "qvn/fields/shown_number.h"
#include "qvn/fields/skip_failing.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/panels/documents/captions.h"
#include "qvn/panels/documents/document_layout.h"
#include "qvn/panels/documents/leads.h"
#include "qvn/panels/documents/title_actions.h"
#include "qvn/panels/documents/title_viewers.h"
#include "qvn/shared/Globale.h"

namespace qvn {

namespace {

using documents::button;
using documents::frame;
using documents::shown;
using toolkit::Align;
using toolkit::kBlue;
using toolkit::kRed;
using toolkit::Place;
using toolkit::WidgetKind;
using toolkit::WidgetLayout;

constexpr std::string_view kDocument = "FrmDATI_POLIZZA";
constexpr std::string_view kAction = "FrmTIPO_CONT";

constexpr WidgetLayout date(std::string_view name, std::int16_t tab, Place place) {
  return {.name = name,
          .kind = WidgetKind::DateControl,
          .tabIndex = tab,
          .frame = kDocument,
          .place = place,
          .enabled = false};
}

constexpr std::array<WidgetLayout, 24> kWidgets{{
    frame(kDocument, 0, "Dati Polizza:", {75, 0, 9915, 1065}),
    shown("LblCLIENTE", 1, kDocument, {kBlue, Align::Left, true}, {150, 225, 3765, 315}, "Cliente"),
    date("TxtDATA_C", 2, {3975, 225, 1365, 315}),
    shown("LblPROT", 3, kDocument, {kBlue, Align::Right}, {5400, 225, 1290, 315}, "N° Protocollo"),
    shown("LblQUOTA", 4, kDocument, {kBlue, Align::Right}, {6750, 225, 1215, 315}, "Quota", "0"),
    shown("LblPL", 5, kDocument, {kBlue, Align::Right, true}, {8025, 225, 1740, 315}, "Premio Lordo Polizza", "0"),
    shown("LblDATA_EC", 6, kDocument, {kRed, Align::Center}, {150, 600, 1215, 315}, "Data E/C"),
    shown("LblN_POLIZZA", 7, kDocument, {kRed}, {1425, 600, 1365, 315}, "N° Polizza"),
    shown("LblCOD_GR", 8, kDocument, {kRed, Align::Center}, {2850, 600, 540, 315}, "Codice Gruppo Assicurativo"),
    shown("LblDESC_SRAMO", 9, kDocument, {kRed}, {3450, 600, 1890, 315}, "Descrizione S.Ramo Assicurativo"),
    date("TxtDATA_DOC", 10, {5400, 600, 1365, 315}),
    shown("LblTIPO_DOC", 11, kDocument, {kRed, Align::Center}, {6825, 600, 390, 315}, "Tipo Documento"),
    shown("LblINT_ASS", 12, kDocument, {kRed}, {7275, 600, 2490, 315}, "Descrizione Documento"),
    frame(kAction, 13, "Tipo Cont.:", {5175, 1050, 4815, 690}),
    {.name = "CmbTIPO_CONT",
     .kind = WidgetKind::ComboBox,
     .tabIndex = 14,
     .frame = kAction,
     .place = {150, 225, 2265, 315},
     .enabled = false},
    shown("LblSTATO", 15, kAction, {kRed, Align::Center, true}, {2475, 225, 2190, 315}),
    button("CmdCOMPAGNIE", 16, "", "Vis. Comp.", {3825, 1050, 1290, 240}),
    button("CmdPRODUTTORI", 17, "", "Vis. Prod.", {3825, 1275, 1290, 240}),
    button("CmdPRODUTTORI_ALT", 18, "", "Vis. Prod. Alt.", {3825, 1500, 1290, 240}),
    {.name = "LblPROG",
     .kind = WidgetKind::Label,
     .tabIndex = 19,
     .frame = kDocument,
     .place = {6300, 225, 390, 315},
     .visible = false,
     .bordered = true},
    shown("LblDESC_PROD_DEL", 20, "", {}, {1050, 1425, 2715, 315}),
    shown("LblCOD_PROD_DEL", 21, "", {}, {75, 1425, 915, 315}),
    shown("LblDESC_COMP_DEL", 22, "", {}, {1050, 1125, 2715, 315}),
    shown("LblCOD_COMP_DEL", 23, "", {}, {75, 1125, 915, 315}),
}};

constexpr toolkit::PanelLayout kLayout{.name = "ctlSOSPESI", .width = 10065, .height = 1830, .widgets = kWidgets};

/// The lead producer of the title, as soon as both its numbers stand; which of them comes last does not matter.
void findLeadProducer(const toolkit::Label& PROT, const toolkit::Label& PROG, toolkit::Label& producer) {
  if (PROT.Caption().empty() || PROG.Caption().empty()) return;
  const std::int32_t policy = fields::int32Of(PROT);
  const std::int16_t title = fields::int16Of(PROG);
  producer.Caption(QVN_Ricerche::CercaPROD_DEL_SOSPESO(policy, title));
}

}  // namespace

ctlSOSPESI::ctlSOSPESI(const PanelSite& site)
    : surface_(Globale::platform().makeSurface(kLayout, site.container, site.name)),
      TxtDATA_C_(surface_->date("TxtDATA_C")),
      TxtDATA_DOC_(surface_->date("TxtDATA_DOC")),
      CmbTIPO_CONT_(surface_->comboBox("CmbTIPO_CONT")) {
  wire();
}

void ctlSOSPESI::wire() {
  fields::wire(TxtDATA_C_, "DATA_C", fields::EnterKey::LeftToTheField);
  fields::wire(TxtDATA_DOC_, "DATA_DOC", fields::EnterKey::LeftToTheField);
  fields::wire(CmbTIPO_CONT_, "N_STATO");

  toolkit::Label& PROT = label("LblPROT");
  toolkit::Label& PROG = label("LblPROG");
  PROT.Change = [&PROT, &PROG, &producer = label("LblCOD_PROD_DEL")] { findLeadProducer(PROT, PROG, producer); };
  PROG.Change = PROT.Change;
  documents::describeLeads(*surface_);
  documents::openViewersOfTitle(*surface_);
}

void ctlSOSPESI::Attiva(bool autorizzato) {
  const toolkit::Surface::Hold hold(*surface_);
  toolkit::DateControl& first = TxtDATA_C_;
  toolkit::DateControl& second = TxtDATA_DOC_;
  toolkit::ComboBox& actions = CmbTIPO_CONT_;
  fields::skipFailing([&] { first.Enabled(true); },   //
                      [&] { second.Enabled(true); },  //
                      [&] { actions.Enabled(true); });
  if (!autorizzato) documents::withdrawCancelling(actions);
  fields::skipFailing([&] { Gest_SCHEDE::SelezionaTutto(first); },  //
                      [&] { first.SetFocus(); });
}

void ctlSOSPESI::Disattiva() {
  TxtDATA_C_.Enabled(false);
  TxtDATA_DOC_.Enabled(false);
  CmbTIPO_CONT_.Enabled(false);
}

Variant ctlSOSPESI::CLIENTE() const { return Empty{}; }
void ctlSOSPESI::CLIENTE(const Variant& client) { documents::show(label("LblCLIENTE"), client); }

EventsReference ctlSOSPESI::Events() const { return Globale::Eventi(); }

Variant ctlSOSPESI::PROT() const { return Empty{}; }
void ctlSOSPESI::PROT(const Variant& number) { documents::show(label("LblPROT"), number); }

Variant ctlSOSPESI::QUOTA() const { return Empty{}; }
void ctlSOSPESI::QUOTA(const Variant& quota) { documents::show(label("LblQUOTA"), quota); }

Currency ctlSOSPESI::PL() const { return {}; }
void ctlSOSPESI::PL(Currency premium) { documents::show(label("LblPL"), premium); }

Variant ctlSOSPESI::DATA_EC() const { return Empty{}; }
void ctlSOSPESI::DATA_EC(const Variant& date) { documents::showDate(label("LblDATA_EC"), date); }

Variant ctlSOSPESI::N_POLIZZA() const { return Empty{}; }
void ctlSOSPESI::N_POLIZZA(const Variant& number) { documents::show(label("LblN_POLIZZA"), number); }

Variant ctlSOSPESI::COD_GR() const { return Empty{}; }
void ctlSOSPESI::COD_GR(const Variant& code) { documents::show(label("LblCOD_GR"), code); }

Variant ctlSOSPESI::DESC_SRAMO() const { return Empty{}; }
void ctlSOSPESI::DESC_SRAMO(const Variant& description) { documents::show(label("LblDESC_SRAMO"), description); }

Variant ctlSOSPESI::DATA_DOC() const { return TxtDATA_DOC_.Value(); }
void ctlSOSPESI::DATA_DOC(const Variant& date) { fields::showDate(TxtDATA_DOC_, date); }

Variant ctlSOSPESI::DATA_C() const { return TxtDATA_C_.Value(); }
void ctlSOSPESI::DATA_C(const Variant& date) { fields::showDate(TxtDATA_C_, date); }

Variant ctlSOSPESI::TIPO_DOC() const { return Empty{}; }
void ctlSOSPESI::TIPO_DOC(const Variant& kind) { documents::show(label("LblTIPO_DOC"), kind); }

Variant ctlSOSPESI::STATO() const { return Empty{}; }
void ctlSOSPESI::STATO(const Variant& letter) { documents::showState(label("LblSTATO"), letter); }

Variant ctlSOSPESI::N_STATO() const { return documents::chosenAction(CmbTIPO_CONT_); }
void ctlSOSPESI::N_STATO(const Variant& letter) { documents::offerActions(CmbTIPO_CONT_, label("LblSTATO"), letter); }

Variant ctlSOSPESI::PROG() const { return Empty{}; }
void ctlSOSPESI::PROG(const Variant& number) { documents::show(label("LblPROG"), number); }

std::string ctlSOSPESI::INT_ASS() const { return {}; }
void ctlSOSPESI::INT_ASS(std::string_view description) { label("LblINT_ASS").Caption(description); }

Variant ctlSOSPESI::COD_COMP_DEL() const { return Empty{}; }
void ctlSOSPESI::COD_COMP_DEL(const Variant& code) { documents::show(label("LblCOD_COMP_DEL"), code); }

std::span<const Member> ctlSOSPESI::publicMembers() {
  using P = ctlSOSPESI;
  static const auto table = MemberTable<P>()
                                .method("Attiva", &P::Attiva)
                                .method("Disattiva", &P::Disattiva)
                                .property("CLIENTE", &P::CLIENTE, &P::CLIENTE)
                                .readOnly("Events", &P::Events)
                                .property("PROT", &P::PROT, &P::PROT)
                                .property("QUOTA", &P::QUOTA, &P::QUOTA)
                                .property("PL", &P::PL, &P::PL)
                                .property("DATA_EC", &P::DATA_EC, &P::DATA_EC)
                                .property("N_POLIZZA", &P::N_POLIZZA, &P::N_POLIZZA)
                                .property("COD_GR", &P::COD_GR, &P::COD_GR)
                                .property("DESC_SRAMO", &P::DESC_SRAMO, &P::DESC_SRAMO)
                                .property("DATA_DOC", &P::DATA_DOC, &P::DATA_DOC)
                                .property("DATA_C", &P::DATA_C, &P::DATA_C)
                                .property("TIPO_DOC", &P::TIPO_DOC, &P::TIPO_DOC)
                                .property("STATO", &P::STATO, &P::STATO)
                                .property("N_STATO", &P::N_STATO, &P::N_STATO)
                                .property("PROG", &P::PROG, &P::PROG)
                                .property("INT_ASS", &P::INT_ASS, &P::INT_ASS)
                                .property("COD_COMP_DEL", &P::COD_COMP_DEL, &P::COD_COMP_DEL);
  return table.members();
}

}  // namespace qvn
