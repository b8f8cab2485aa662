#include "qvn/panels/documents/ctlRICERCA.h"

#include <array>
#include <string_view>

#include "qvn/fields/shown_number.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/panels/documents/captions.h"
#include "qvn/panels/documents/document_layout.h"
#include "qvn/panels/documents/leads.h"
#include "qvn/panels/documents/policy_state.h"
#include "qvn/panels/documents/policy_viewers.h"
#include "qvn/shared/Globale.h"

namespace qvn {

namespace {

using documents::button;
using documents::frame;
using documents::kDarkRed;
using documents::shown;
using toolkit::Align;
using toolkit::kBlack;
using toolkit::kBlue;
using toolkit::kRed;
using toolkit::WidgetLayout;

constexpr std::string_view kPolicy = "FrmDATI_POLIZZA";

constexpr std::array<WidgetLayout, 20> kWidgets{{
    frame(kPolicy, 0, "Dati Polizza:", {120, 0, 13080, 1155}),
    shown("LblCLIENTE", 1, kPolicy, {kBlue, Align::Left, true}, {120, 225, 5910, 255}, "Cliente"),
    shown("LblPROT", 2, kPolicy, {kBlue, Align::Right}, {6120, 225, 690, 255}, "N° Protocollo"),
    shown("LblQUOTA", 3, kPolicy, {kBlue, Align::Right}, {6840, 225, 540, 255}, "Quota"),
    shown("LblPL", 4, kPolicy, {kBlue, Align::Right, true}, {10200, 225, 1260, 255}, "Premio Lordo Polizza"),
    shown("LblDATA_RATA", 5, kPolicy, {kBlue, Align::Center}, {7440, 225, 1095, 255}, "Data Rata Futura"),
    shown("LblN_POLIZZA", 6, kPolicy, {kBlue}, {8640, 225, 1485, 255}, "N° Polizza"),
    shown("LblCOD_GR", 7, kPolicy, {kRed, Align::Center}, {120, 525, 660, 255}, "Codice Gruppo Assicurativo"),
    shown("LblDESC_SRAMO", 8, kPolicy, {kRed}, {840, 525, 4500, 255}, "Descrizione S.Ramo Assicurativo"),
    shown("LblGRUPPO", 9, kPolicy, {kRed}, {5400, 530, 1980, 255}, "Gruppo Assicurato"),
    shown("LblTIPO_RATA", 10, kPolicy, {kRed, Align::Center}, {7440, 530, 510, 255}, "Tipo Rata"),
    shown("LblINT_ASS", 11, kPolicy, {kRed}, {8025, 530, 3435, 255}, "Interesse Assicurato"),
    button("CmdPRODUTTORI_ALT", 12, kPolicy, "Vis. Prod. Alt.", {11640, 860, 1365, 225}),
    button("CmdPRODUTTORI", 13, kPolicy, "Vis. Prod.", {11640, 540, 1365, 225}),
    button("CmdCOMPAGNIE", 14, kPolicy, "Vis. Comp.", {11640, 220, 1365, 225}),
    shown("LblDESC_PROD_DEL", 15, kPolicy, {}, {5760, 825, 3850, 255}),
    shown("LblCOD_PROD_DEL", 16, kPolicy, {kBlack, Align::Center}, {5280, 825, 420, 255}),
    shown("LblDESC_COMP_DEL", 17, kPolicy, {}, {600, 825, 4620, 255}),
    shown("LblCOD_COMP_DEL", 18, kPolicy, {kBlack, Align::Center}, {120, 830, 420, 255}),
    shown("LblSTATO", 19, kPolicy, {kDarkRed, Align::Center, true}, {9675, 825, 1785, 255}),
}};

constexpr toolkit::PanelLayout kLayout{.name = "ctlRICERCA", .width = 13320, .height = 1245, .widgets = kWidgets};

/// The lead company and then the lead producer of the policy, each by the number that is shown by then.
void findLeads(const toolkit::Label& PROT, toolkit::Label& company, toolkit::Label& producer) {
  company.Caption(QVN_Ricerche::CercaCOMP_DEL(fields::int32Of(PROT)));
  producer.Caption(QVN_Ricerche::CercaPROD_DEL(fields::int32Of(PROT)));
}

}  // namespace

ctlRICERCA::ctlRICERCA(const PanelSite& site)
    : surface_(Globale::platform().makeSurface(kLayout, site.container, site.name)) {
  wire();
}

void ctlRICERCA::wire() {
  toolkit::Label& PROT = label("LblPROT");
  PROT.Change = [&PROT, &company = label("LblCOD_COMP_DEL"), &producer = label("LblCOD_PROD_DEL")] {
    findLeads(PROT, company, producer);
  };
  documents::describeLeads(*surface_);
  documents::openViewersOfPolicy(*surface_);
}

Variant ctlRICERCA::CLIENTE() const { return Empty{}; }
void ctlRICERCA::CLIENTE(const Variant& client) { documents::show(label("LblCLIENTE"), client); }

EventsReference ctlRICERCA::Events() const { return Globale::Eventi(); }

Variant ctlRICERCA::PROT() const { return Empty{}; }
void ctlRICERCA::PROT(const Variant& number) { documents::show(label("LblPROT"), number); }

Variant ctlRICERCA::QUOTA() const { return Empty{}; }
void ctlRICERCA::QUOTA(const Variant& quota) { documents::show(label("LblQUOTA"), quota); }

Currency ctlRICERCA::PL() const { return {}; }
void ctlRICERCA::PL(Currency premium) { documents::show(label("LblPL"), premium); }

Variant ctlRICERCA::DATA_RATA() const { return Empty{}; }
void ctlRICERCA::DATA_RATA(const Variant& date) { documents::showDate(label("LblDATA_RATA"), date); }

Variant ctlRICERCA::N_POLIZZA() const { return Empty{}; }
void ctlRICERCA::N_POLIZZA(const Variant& number) { documents::show(label("LblN_POLIZZA"), number); }

Variant ctlRICERCA::COD_GR() const { return Empty{}; }
void ctlRICERCA::COD_GR(const Variant& code) { documents::show(label("LblCOD_GR"), code); }

Variant ctlRICERCA::DESC_SRAMO() const { return Empty{}; }
void ctlRICERCA::DESC_SRAMO(const Variant& description) { documents::show(label("LblDESC_SRAMO"), description); }

Variant ctlRICERCA::TIPO_RATA() const { return Empty{}; }
void ctlRICERCA::TIPO_RATA(const Variant& kind) { documents::show(label("LblTIPO_RATA"), kind); }

Variant ctlRICERCA::GRUPPO() const { return Empty{}; }
void ctlRICERCA::GRUPPO(const Variant& group) { documents::show(label("LblGRUPPO"), group); }

Variant ctlRICERCA::STATO() const { return Empty{}; }
void ctlRICERCA::STATO(const Variant& letter) { documents::showPolicyState(*surface_, letter); }

Variant ctlRICERCA::INT_ASS() const { return Empty{}; }
void ctlRICERCA::INT_ASS(const Variant& interest) { documents::show(label("LblINT_ASS"), interest); }

std::span<const Member> ctlRICERCA::publicMembers() {
  using P = ctlRICERCA;
  static const auto table = MemberTable<P>()
                                .property("CLIENTE", &P::CLIENTE, &P::CLIENTE)
                                .readOnly("Events", &P::Events)
                                .property("PROT", &P::PROT, &P::PROT)
                                .property("QUOTA", &P::QUOTA, &P::QUOTA)
                                .property("PL", &P::PL, &P::PL)
                                .property("DATA_RATA", &P::DATA_RATA, &P::DATA_RATA)
                                .property("N_POLIZZA", &P::N_POLIZZA, &P::N_POLIZZA)
                                .property("COD_GR", &P::COD_GR, &P::COD_GR)
                                .property("DESC_SRAMO", &P::DESC_SRAMO, &P::DESC_SRAMO)
                                .property("TIPO_RATA", &P::TIPO_RATA, &P::TIPO_RATA)
                                .property("GRUPPO", &P::GRUPPO, &P::GRUPPO)
                                .property("STATO", &P::STATO, &P::STATO)
                                .property("INT_ASS", &P::INT_ASS, &P::INT_ASS);
  return table.members();
}

}  // namespace qvn
