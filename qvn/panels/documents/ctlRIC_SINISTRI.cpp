#include "qvn/panels/documents/ctlRIC_SINISTRI.h"

#include <array>
#include <string>
#include <string_view>

#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/lookups/query.h"
#include "qvn/panels/documents/captions.h"
#include "qvn/panels/documents/claim_viewer.h"
#include "qvn/panels/documents/document_layout.h"
#include "qvn/panels/documents/leads.h"
#include "qvn/panels/documents/policy_state.h"
#include "qvn/shared/Globale.h"

namespace qvn {

namespace {

using documents::button;
using documents::frame;
using documents::shown;
using toolkit::Align;
using toolkit::kBlue;
using toolkit::kRed;
using toolkit::WidgetLayout;

constexpr std::string_view kClaim = "FrmDATI_SINISTRO";
constexpr std::string_view kNoFrame = {};

constexpr std::array<WidgetLayout, 17> kWidgets{{
    frame(kClaim, 0, "Dati Sinistro:", {75, 0, 9915, 1065}),
    shown("LblCLIENTE", 1, kClaim, {kBlue, Align::Left, true}, {150, 225, 5190, 315}, "Cliente"),
    shown("LblPROT", 2, kClaim, {kBlue, Align::Right}, {5400, 225, 1290, 315}, "N° Protocollo"),
    shown("LblQUOTA", 3, kClaim, {kBlue, Align::Right}, {6750, 225, 840, 315}, "Quota", "0"),
    shown("LblDANNO", 4, kClaim, {kBlue, Align::Center}, {7650, 225, 2115, 315}, "Premio Lordo Polizza"),
    shown("LblDATA_SINISTRO", 5, kClaim, {kRed, Align::Center}, {150, 600, 1215, 315}, "Data Rata Futura"),
    shown("LblN_POLIZZA", 6, kClaim, {kRed}, {1425, 600, 1365, 315}, "N° Polizza"),
    shown("LblCOD_GR", 7, kClaim, {kRed, Align::Center}, {2850, 600, 540, 315}, "Codice Gruppo Assicurativo"),
    shown("LblDESC_SRAMO", 8, kClaim, {kRed}, {3450, 600, 1890, 315}, "Descrizione S.Ramo Assicurativo"),
    shown("LblCONTROPARTE", 9, kClaim, {kRed}, {5400, 600, 2190, 315}, "Gruppo Assicurato"),
    shown("LblINT_ASS", 10, kClaim, {kRed}, {7650, 600, 2115, 315}, "Interesse Assicurato"),
    button("CmdCOMPAGNIE", 11, kNoFrame, "Vis. Comp.", {5250, 1275, 1365, 315}),
    shown("LblSTATO", 12, kNoFrame, {kRed, Align::Center, true}, {6675, 1275, 3240, 315}),
    shown("LblCOD_COMP_DEL", 13, kNoFrame, {}, {75, 1125, 915, 315}),
    shown("LblDESC_COMP_DEL", 14, kNoFrame, {}, {1050, 1125, 4140, 315}),
    shown("LblCOD_PROD_DEL", 15, kNoFrame, {}, {75, 1425, 915, 315}),
    shown("LblDESC_PROD_DEL", 16, kNoFrame, {}, {1050, 1425, 4140, 315}),
}};

constexpr toolkit::PanelLayout kLayout{.name = "ctlRIC_SINISTRI", .width = 10065, .height = 1830, .widgets = kWidgets};

/// The lead company of a claim's number. The look-up takes quotes and an empty number as they come, so both end here.
std::string leadCompanyOf(std::string N_SINISTRO) {
  lookups::removeQuotes(N_SINISTRO);
  if (!N_SINISTRO.empty()) return QVN_Ricerche::CercaCOMP_DEL_SIN(N_SINISTRO);
  lookups::fireMancaDB();
  return {};
}

}  // namespace

ctlRIC_SINISTRI::ctlRIC_SINISTRI(const PanelSite& site)
    : surface_(Globale::platform().makeSurface(kLayout, site.container, site.name)) {
  wire();
}

void ctlRIC_SINISTRI::wire() {
  toolkit::Label& PROT = label("LblPROT");
  // The lead company alone: a claim does not tell its producer.
  PROT.Change = [&PROT, &company = label("LblCOD_COMP_DEL")] { company.Caption(leadCompanyOf(PROT.Caption())); };
  documents::describeLeads(*surface_);
  documents::openViewerOfClaim(*surface_);
}

Variant ctlRIC_SINISTRI::CLIENTE() const { return Empty{}; }
void ctlRIC_SINISTRI::CLIENTE(const Variant& client) { documents::show(label("LblCLIENTE"), client); }

EventsReference ctlRIC_SINISTRI::Events() const { return Globale::Eventi(); }

Variant ctlRIC_SINISTRI::PROT() const { return Empty{}; }
void ctlRIC_SINISTRI::PROT(const Variant& number) { documents::show(label("LblPROT"), number); }

Variant ctlRIC_SINISTRI::QUOTA() const { return Empty{}; }
void ctlRIC_SINISTRI::QUOTA(const Variant& quota) { documents::show(label("LblQUOTA"), quota); }

Variant ctlRIC_SINISTRI::DANNO() const { return Empty{}; }
void ctlRIC_SINISTRI::DANNO(const Variant& damage) { documents::show(label("LblDANNO"), damage); }

Variant ctlRIC_SINISTRI::DATA_SINISTRO() const { return Empty{}; }
void ctlRIC_SINISTRI::DATA_SINISTRO(const Variant& date) { documents::showDate(label("LblDATA_SINISTRO"), date); }

Variant ctlRIC_SINISTRI::N_POLIZZA() const { return Empty{}; }
void ctlRIC_SINISTRI::N_POLIZZA(const Variant& number) { documents::show(label("LblN_POLIZZA"), number); }

Variant ctlRIC_SINISTRI::COD_GR() const { return Empty{}; }
void ctlRIC_SINISTRI::COD_GR(const Variant& code) { documents::show(label("LblCOD_GR"), code); }

Variant ctlRIC_SINISTRI::DESC_SRAMO() const { return Empty{}; }
void ctlRIC_SINISTRI::DESC_SRAMO(const Variant& description) { documents::show(label("LblDESC_SRAMO"), description); }

Variant ctlRIC_SINISTRI::CONTROPARTE() const { return Empty{}; }
void ctlRIC_SINISTRI::CONTROPARTE(const Variant& party) { documents::show(label("LblCONTROPARTE"), party); }

Variant ctlRIC_SINISTRI::STATO() const { return Empty{}; }
void ctlRIC_SINISTRI::STATO(const Variant& letter) { documents::showPolicyState(*surface_, letter); }

Variant ctlRIC_SINISTRI::INT_ASS() const { return Empty{}; }
void ctlRIC_SINISTRI::INT_ASS(const Variant& interest) { documents::show(label("LblINT_ASS"), interest); }

std::string ctlRIC_SINISTRI::COD_PROD() const { return {}; }
void ctlRIC_SINISTRI::COD_PROD(std::string_view code) { label("LblCOD_PROD_DEL").Caption(code); }

std::span<const Member> ctlRIC_SINISTRI::publicMembers() {
  using P = ctlRIC_SINISTRI;
  static const auto table = MemberTable<P>()
                                .property("CLIENTE", &P::CLIENTE, &P::CLIENTE)
                                .readOnly("Events", &P::Events)
                                .property("PROT", &P::PROT, &P::PROT)
                                .property("QUOTA", &P::QUOTA, &P::QUOTA)
                                .property("DANNO", &P::DANNO, &P::DANNO)
                                .property("DATA_SINISTRO", &P::DATA_SINISTRO, &P::DATA_SINISTRO)
                                .property("N_POLIZZA", &P::N_POLIZZA, &P::N_POLIZZA)
                                .property("COD_GR", &P::COD_GR, &P::COD_GR)
                                .property("DESC_SRAMO", &P::DESC_SRAMO, &P::DESC_SRAMO)
                                .property("CONTROPARTE", &P::CONTROPARTE, &P::CONTROPARTE)
                                .property("STATO", &P::STATO, &P::STATO)
                                .property("INT_ASS", &P::INT_ASS, &P::INT_ASS)
                                .property("COD_PROD", &P::COD_PROD, &P::COD_PROD);
  return table.members();
}

}  // namespace qvn
