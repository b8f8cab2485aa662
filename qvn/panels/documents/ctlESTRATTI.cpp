#include "qvn/panels/documents/ctlESTRATTI.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/date_field.h"
#include "qvn/fields/list_field.h"
#include "qvn/fields/shown_number.h"
#include "qvn/fields/skip_failing.h"
#include "qvn/fields/text_field.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/lookups/field_with_list.h"
#include "qvn/panels/documents/captions.h"
#include "qvn/panels/documents/entry_fields.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/failure.h"

namespace qvn {

using Hold = toolkit::Surface::Hold;

namespace {

using toolkit::Align;
using toolkit::kBlack;
using toolkit::kBlue;
using toolkit::kRed;
using toolkit::Place;
using toolkit::WidgetKind;
using toolkit::WidgetLayout;

constexpr std::uint32_t kGreen = 0x00FF00;

constexpr std::array<std::string_view, 4> kKinds{"P - Polizza", "A - Appendice", "Q - Quietanza", "V - Varie"};
constexpr std::string_view kDischarged = "SCARICATO";
constexpr std::string_view kOpen = "ATTIVO";
constexpr std::array kStates{kDischarged, kOpen};

constexpr WidgetLayout inFrame(std::string_view name, WidgetKind kind, std::int16_t tab, Place place,
                               std::uint32_t fore, std::string_view tooltip = {}) {
  return {.name = name,
          .kind = kind,
          .tabIndex = tab,
          .frame = "FrmDATI_ESTRATTO",
          .place = place,
          .fore = fore,
          .tooltip = tooltip};
}

constexpr WidgetLayout box(std::string_view name, std::int16_t tab, Place place, std::uint32_t fore,
                           std::string_view tooltip) {
  return inFrame(name, WidgetKind::TextBox, tab, place, fore, tooltip);
}

constexpr WidgetLayout amount(std::string_view name, std::int16_t tab, Place place, std::string_view tooltip) {
  WidgetLayout row = box(name, tab, place, kRed, tooltip);
  row.caption = "0,0001";  // no line has it, so that the first amount written differs and is formatted
  row.align = Align::Right;
  return row;
}

constexpr WidgetLayout date(std::string_view name, std::int16_t tab, Place place) {
  return inFrame(name, WidgetKind::DateControl, tab, place, kBlue);
}

constexpr WidgetLayout list(std::string_view name, std::int16_t tab, Place place, std::uint32_t fore,
                            std::span<const std::string_view> items) {
  WidgetLayout row = inFrame(name, WidgetKind::ComboBox, tab, place, fore);
  row.items = items;
  return row;
}

constexpr WidgetLayout check(std::string_view name, std::int16_t tab, Place place, std::string_view caption) {
  WidgetLayout row = inFrame(name, WidgetKind::CheckBox, tab, place, kBlack);
  row.caption = caption;
  return row;
}

constexpr WidgetLayout shown(std::string_view name, std::int16_t tab, Place place, std::string_view tooltip) {
  WidgetLayout row = inFrame(name, WidgetKind::Label, tab, place, kRed, tooltip);
  row.align = Align::Center;
  row.bordered = true;
  return row;
}

constexpr WidgetLayout title(std::string_view name, std::int16_t tab, Place place, std::string_view caption) {
  WidgetLayout row = inFrame(name, WidgetKind::Label, tab, place, kBlack);
  row.caption = caption;
  row.align = Align::Right;
  return row;
}

constexpr std::array<WidgetLayout, 19> kWidgets{{
    {.name = "FrmDATI_ESTRATTO",
     .kind = WidgetKind::Frame,
     .tabIndex = 0,
     .place = {75, 0, 9915, 1365},
     .caption = "Dati Estratto:",
     .enabled = false},
    date("TxtDATA_EC", 1, {150, 225, 1365, 315}),
    list("CmbTIPO_DOC", 2, {1575, 225, 1965, 315}, kBlue, kKinds),
    box("TxtSIGLA_SRAMO", 3, {3600, 225, 1215, 315}, kBlue, "Sigla Sottoramo"),
    box("TxtN_POLIZZA", 4, {4875, 225, 1590, 315}, kBlue, "N° Polizza"),
    box("TxtCOD_CLI", 5, {6525, 225, 990, 315}, kBlue, "Codice Cliente"),
    date("TxtDATA_QUIET", 6, {7575, 225, 1365, 315}),
    check("ChkANNULLATA", 7, {9000, 225, 690, 315}, "Ann."),
    box("TxtINT_ASS", 8, {150, 600, 2715, 315}, kRed, "Interesse Assicurato"),
    shown("LblCOD_GR", 9, {2925, 600, 540, 315}, "Codice Gruppo"),
    shown("LblDATA_REG", 10, {3525, 600, 1290, 315}, "Data Registazione"),
    amount("TxtPREMIO", 11, {4875, 600, 1590, 315}, "Premio"),
    amount("TxtRIMBORSO", 12, {6525, 600, 1590, 315}, "Rimborso"),
    amount("TxtPROVVIGIONE", 13, {8175, 600, 1590, 315}, "Provvigione"),
    title("Label1", 14, {1680, 960, 2040, 315}, "Stato in Estratti Compagnia:"),
    list("CmbST_COMP", 15, {3720, 960, 1755, 315}, kBlack, kStates),
    title("Label2", 16, {5400, 960, 2040, 315}, "Stato in Estratti Produttori:"),
    list("CmbST_PROD", 17, {7530, 960, 2235, 315}, kBlack, kStates),
    check("chkSTAMPA", 18, {120, 960, 1170, 315}, "Vis. Stampa"),
}};

constexpr toolkit::PanelLayout kLayout{.name = "ctlESTRATTI", .width = 10065, .height = 1440, .widgets = kWidgets};

constexpr std::int16_t kTicked = 1;
constexpr std::int16_t kNotTicked = 0;

void wireAmount(toolkit::TextBox& field, std::string_view property) {
  fields::wireAmount(field, Gest_SCHEDE::FiltroImporto);
  field.Change = [&field, property] {
    fields::announce(field, property);
    if (!field.Text().empty()) return;
    field.Text("0");
    Gest_SCHEDE::SelezionaTutto(field);
  };
}

void wireCheck(toolkit::CheckBox& flag, std::string_view notice) {
  flag.Click = [&flag, notice] { fields::announce(flag, notice); };
}

/// The list offers every sub-branch, whatever the field holds; the field takes the initials of the one picked, even
/// where it has none.
void initialsKey(toolkit::TextBox& initials, std::int16_t& KeyAscii) {
  if (!lookups::asksForList(KeyAscii)) {
    Gest_SCHEDE::FiltroTesto(initials, KeyAscii, 6);
    return;
  }
  const Hold hold(initials.owner());
  std::string any;
  std::string description;
  std::string unused;
  std::string COD_SRAMO = QVN_Ricerche::ListaSOTTORAMI(any, description, unused);
  if (COD_SRAMO.empty() || initials.owner().dropped()) return;
  initials.Text(QVN_Ricerche::CercaSIGLA(COD_SRAMO));
  Gest_SCHEDE::SelezionaTutto(initials);
}

void tick(toolkit::CheckBox& flag, bool on) { flag.Value(on ? kTicked : kNotTicked); }
bool isTicked(const toolkit::CheckBox& flag) { return flag.Value() != kNotTicked; }

void colour(toolkit::ComboBox& state, bool discharged) { state.ForeColor(discharged ? kGreen : kRed); }

void showState(toolkit::ComboBox& state, const Variant& code) {
  const Hold hold(state.owner());
  const bool discharged =
      !placed(state.Name(), [&] { return concatenated("", code, state.owner().platform().locale()); }).empty();
  state.Text(discharged ? kDischarged : kOpen);
  colour(state, discharged);
}

std::string stateOf(toolkit::ComboBox& state) {
  const bool discharged = state.Text() == kDischarged;
  colour(state, discharged);
  return discharged ? "S" : "";
}

}  // namespace

/// What Attiva goes by. It lives as long as the widgets, since a host may drop the panel while the focus moves.
struct ctlESTRATTI::Producers {
  std::string COD_PROD;
  std::string COD_PROD_ALT;

  bool any() const { return !COD_PROD.empty() || !COD_PROD_ALT.empty(); }
};

ctlESTRATTI::ctlESTRATTI(const PanelSite& site)
    : surface_(Globale::platform().makeSurface(kLayout, site.container, site.name)),
      FrmDATI_ESTRATTO_(surface_->frame("FrmDATI_ESTRATTO")),
      TxtDATA_EC_(surface_->date("TxtDATA_EC")),
      CmbTIPO_DOC_(surface_->comboBox("CmbTIPO_DOC")),
      TxtSIGLA_SRAMO_(surface_->textBox("TxtSIGLA_SRAMO")),
      TxtN_POLIZZA_(surface_->textBox("TxtN_POLIZZA")),
      TxtCOD_CLI_(surface_->textBox("TxtCOD_CLI")),
      TxtDATA_QUIET_(surface_->date("TxtDATA_QUIET")),
      ChkANNULLATA_(surface_->checkBox("ChkANNULLATA")),
      TxtINT_ASS_(surface_->textBox("TxtINT_ASS")),
      LblCOD_GR_(surface_->label("LblCOD_GR")),
      LblDATA_REG_(surface_->label("LblDATA_REG")),
      TxtPREMIO_(surface_->textBox("TxtPREMIO")),
      TxtRIMBORSO_(surface_->textBox("TxtRIMBORSO")),
      TxtPROVVIGIONE_(surface_->textBox("TxtPROVVIGIONE")),
      CmbST_COMP_(surface_->comboBox("CmbST_COMP")),
      CmbST_PROD_(surface_->comboBox("CmbST_PROD")),
      chkSTAMPA_(surface_->checkBox("chkSTAMPA")),
      producers_(surface_->keep(std::make_unique<Producers>())) {
  wire();
  CmbTIPO_DOC_.ListIndex(0);
}

ctlESTRATTI::~ctlESTRATTI() = default;

void ctlESTRATTI::wire() {
  fields::wire(TxtDATA_EC_, "DATA_EC", fields::EnterKey::LeftToTheField);
  fields::wire(CmbTIPO_DOC_, "TIPO_DOC");
  documents::wireWithList(TxtSIGLA_SRAMO_, "SIGLA_SRAMO");
  TxtSIGLA_SRAMO_.KeyPress = [&initials = TxtSIGLA_SRAMO_](std::int16_t& KeyAscii) { initialsKey(initials, KeyAscii); };
  documents::wireCode(TxtCOD_CLI_, "COD_CLIENTE", QVN_Ricerche::ListaCLIENTI, 6);
  fields::wireColouredFirst(TxtN_POLIZZA_, "N_POLIZZA", Gest_SCHEDE::FiltroTesto, 15);
  fields::wire(TxtDATA_QUIET_, "DATA_QUIET", fields::EnterKey::LeftToTheField);
  wireCheck(ChkANNULLATA_, "ANN");
  fields::wireColouredFirst(TxtINT_ASS_, "INT_ASS", Gest_SCHEDE::FiltroTesto, 20);
  wireAmount(TxtPREMIO_, "PREMIO");
  wireAmount(TxtRIMBORSO_, "RIMBORSO");
  wireAmount(TxtPROVVIGIONE_, "PROVVIGIONE");
  fields::wire(CmbST_COMP_, "ST_COMP");
  fields::wire(CmbST_PROD_, "ST_PROD");
  wireCheck(chkSTAMPA_, "STAMPA");
}

std::string ctlESTRATTI::COD_CLIENTE() const { return TxtCOD_CLI_.Text(); }
void ctlESTRATTI::COD_CLIENTE(std::string_view code) { fields::show(TxtCOD_CLI_, code); }

EventsReference ctlESTRATTI::Events() const { return Globale::Eventi(); }

Currency ctlESTRATTI::PREMIO() const { return fields::currencyOf(TxtPREMIO_); }
void ctlESTRATTI::PREMIO(Currency amount) { fields::showAmount(TxtPREMIO_, amount); }

Currency ctlESTRATTI::PROVVIGIONE() const { return fields::currencyOf(TxtPROVVIGIONE_); }
void ctlESTRATTI::PROVVIGIONE(Currency amount) { fields::showAmount(TxtPROVVIGIONE_, amount); }

Variant ctlESTRATTI::DATA_EC() const { return TxtDATA_EC_.Value(); }
void ctlESTRATTI::DATA_EC(const Variant& date) { fields::showDate(TxtDATA_EC_, date); }

std::string ctlESTRATTI::N_POLIZZA() const { return TxtN_POLIZZA_.Text(); }
void ctlESTRATTI::N_POLIZZA(std::string_view number) { fields::show(TxtN_POLIZZA_, number); }

std::string ctlESTRATTI::COD_GR() const { return {}; }
void ctlESTRATTI::COD_GR(std::string_view code) { LblCOD_GR_.Caption(code); }

std::string ctlESTRATTI::SIGLA_SRAMO() const { return TxtSIGLA_SRAMO_.Text(); }
void ctlESTRATTI::SIGLA_SRAMO(std::string_view initials) { fields::show(TxtSIGLA_SRAMO_, initials); }

std::string ctlESTRATTI::TIPO_DOC() const { return CmbTIPO_DOC_.Text().substr(0, 1); }
void ctlESTRATTI::TIPO_DOC(std::string_view letter) {
  const auto kind = std::ranges::find(kKinds, letter, [](std::string_view item) { return item.substr(0, 1); });
  if (kind != kKinds.end()) CmbTIPO_DOC_.Text(*kind);
}

Currency ctlESTRATTI::RIMBORSO() const { return fields::currencyOf(TxtRIMBORSO_); }
void ctlESTRATTI::RIMBORSO(Currency amount) { fields::showAmount(TxtRIMBORSO_, amount); }

std::string ctlESTRATTI::INT_ASS() const { return TxtINT_ASS_.Text(); }
void ctlESTRATTI::INT_ASS(std::string_view interest) { fields::show(TxtINT_ASS_, interest); }

Variant ctlESTRATTI::DATA_QUIET() const { return TxtDATA_QUIET_.Value(); }
void ctlESTRATTI::DATA_QUIET(const Variant& date) { fields::showDate(TxtDATA_QUIET_, date); }

Variant ctlESTRATTI::DATA_REG() const { return Empty{}; }
void ctlESTRATTI::DATA_REG(const Variant& date) { documents::showDate(LblDATA_REG_, date); }

void ctlESTRATTI::Attiva() {
  const Hold hold(*surface_);
  toolkit::Frame& frame = FrmDATI_ESTRATTO_;
  toolkit::DateControl& first = TxtDATA_EC_;
  toolkit::ComboBox& withProducers = CmbST_PROD_;
  const Producers& producers = producers_;
  fields::skipFailing([&] { frame.Enabled(true); },                 //
                      [&] { Gest_SCHEDE::SelezionaTutto(first); },  //
                      [&] { first.SetFocus(); },                    //
                      [&] { withProducers.Enabled(producers.any()); });
}

void ctlESTRATTI::Disattiva() {
  const Hold hold(*surface_);
  toolkit::ComboBox& withProducers = CmbST_PROD_;
  FrmDATI_ESTRATTO_.Enabled(false);
  withProducers.Enabled(true);
}

bool ctlESTRATTI::ANNULLATA() const { return isTicked(ChkANNULLATA_); }
void ctlESTRATTI::ANNULLATA(bool cancelled) { tick(ChkANNULLATA_, cancelled); }

bool ctlESTRATTI::STAMPA() const { return isTicked(chkSTAMPA_); }
void ctlESTRATTI::STAMPA(bool shown) { tick(chkSTAMPA_, shown); }

Variant ctlESTRATTI::ST_COMP() const { return stateOf(CmbST_COMP_); }
void ctlESTRATTI::ST_COMP(const Variant& state) { showState(CmbST_COMP_, state); }

Variant ctlESTRATTI::ST_PROD() const { return stateOf(CmbST_PROD_); }
void ctlESTRATTI::ST_PROD(const Variant& state) { showState(CmbST_PROD_, state); }

std::string ctlESTRATTI::COD_PROD() const { return producers_.COD_PROD; }
void ctlESTRATTI::COD_PROD(std::string_view code) { producers_.COD_PROD = code; }

std::string ctlESTRATTI::COD_PROD_ALT() const { return producers_.COD_PROD_ALT; }
void ctlESTRATTI::COD_PROD_ALT(std::string_view code) { producers_.COD_PROD_ALT = code; }

std::span<const Member> ctlESTRATTI::publicMembers() {
  using P = ctlESTRATTI;
  static const auto table = MemberTable<P>()
                                .property("COD_CLIENTE", &P::COD_CLIENTE, &P::COD_CLIENTE)
                                .readOnly("Events", &P::Events)
                                .property("PREMIO", &P::PREMIO, &P::PREMIO)
                                .property("PROVVIGIONE", &P::PROVVIGIONE, &P::PROVVIGIONE)
                                .property("DATA_EC", &P::DATA_EC, &P::DATA_EC)
                                .property("N_POLIZZA", &P::N_POLIZZA, &P::N_POLIZZA)
                                .property("COD_GR", &P::COD_GR, &P::COD_GR)
                                .property("SIGLA_SRAMO", &P::SIGLA_SRAMO, &P::SIGLA_SRAMO)
                                .property("TIPO_DOC", &P::TIPO_DOC, &P::TIPO_DOC)
                                .property("RIMBORSO", &P::RIMBORSO, &P::RIMBORSO)
                                .property("INT_ASS", &P::INT_ASS, &P::INT_ASS)
                                .property("DATA_QUIET", &P::DATA_QUIET, &P::DATA_QUIET)
                                .property("DATA_REG", &P::DATA_REG, &P::DATA_REG)
                                .method("Attiva", &P::Attiva)
                                .method("Disattiva", &P::Disattiva)
                                .property("ANNULLATA", &P::ANNULLATA, &P::ANNULLATA)
                                .property("STAMPA", &P::STAMPA, &P::STAMPA)
                                .property("ST_COMP", &P::ST_COMP, &P::ST_COMP)
                                .property("ST_PROD", &P::ST_PROD, &P::ST_PROD)
                                .property("COD_PROD", &P::COD_PROD, &P::COD_PROD)
                                .property("COD_PROD_ALT", &P::COD_PROD_ALT, &P::COD_PROD_ALT);
  return table.members();
}

}  // namespace qvn
