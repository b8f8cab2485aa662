#include "qvn/panels/quotas/ctlQ_POLIZZE.h"

#include <array>
#include <cstddef>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/date_field.h"
#include "qvn/fields/skip_failing.h"
#include "qvn/fields/text_field.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/panels/quotas/quota_field.h"
#include "qvn/panels/quotas/quota_layout.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/patterns.h"

namespace qvn {

using Hold = toolkit::Surface::Hold;

namespace {

using quotas::box;
using quotas::check;
using quotas::shown;
using quotas::title;
using toolkit::Align;

// Four lines: the codes with their descriptions, and beside the first three of them the amounts in two columns.
constexpr std::array<toolkit::WidgetLayout, 22> kWidgets{{
    title(0, "lblTitQUOTA", {75, 75, 1470, 315}, "Quota:"),
    box(1, "TxtQUOTA", {1605, 75, 690, 315}, Align::Right),
    title(2, "lblTitCOD_COMP", {2355, 75, 945, 315}, "C. Comp.:"),
    box(3, "TxtCOD_COMP", {3360, 75, 750, 315}),
    shown(4, "DESC_COMPAGNIA", {4170, 75, 2520, 315}),
    title(5, "lblTitCOD_PROD", {75, 450, 1470, 315}, "C. Prod.:"),
    box(6, "TxtCOD_PROD", {1605, 450, 1065, 315}),
    shown(7, "DESC_PRODUTTORE", {2730, 450, 3960, 315}),
    title(8, "lblTitCOD_PROD_ALT", {75, 825, 1470, 315}, "C. Prod. Alt.:"),
    box(9, "TxtCOD_PROD_ALT", {1605, 825, 1065, 315}),
    shown(10, "DESC_PRODUTTORE_ALT", {2730, 825, 3960, 315}),
    title(11, "lblTitN_POLIZZA", {75, 1200, 1470, 315}, "N. Pol.:"),
    box(12, "TxtN_POLIZZA", {1605, 1200, 1815, 315}),
    title(13, "lblTitD_RIMESSA", {3510, 1200, 1155, 315}, "D. Rimessa:"),
    {.name = "TxtD_RIMESSA",
     .kind = toolkit::WidgetKind::DateControl,
     .tabIndex = 14,
     .place = {4725, 1200, 1365, 315},
     .enabled = false},
    check(15, "ChkDELEGATARIA", {6150, 1200, 1500, 315}, "Delegataria"),
    shown(16, "TAF(0)", {6750, 75, 1590, 315}, Align::Right),
    shown(17, "TAF(1)", {6750, 450, 1590, 315}, Align::Right),
    shown(18, "TAF(2)", {6750, 825, 1590, 315}, Align::Right),
    shown(19, "TRF(0)", {8400, 75, 1590, 315}, Align::Right),
    shown(20, "TRF(1)", {8400, 450, 1590, 315}, Align::Right),
    shown(21, "TRF(2)", {8400, 825, 1590, 315}, Align::Right),
}};

constexpr toolkit::PanelLayout kLayout{.name = "ctlQ_POLIZZE", .width = 10065, .height = 1590, .widgets = kWidgets};

constexpr std::int16_t kTicked = 1;
constexpr std::int16_t kNotTicked = 0;

}  // namespace

/// The figures of the policy and what shows the shares in them. It lives as long as the widgets, since a host may drop
/// the panel at any announcement.
class ctlQ_POLIZZE::Shares {
 public:
  explicit Shares(const toolkit::Surface& surface)
      : TxtQUOTA_(surface.textBox("TxtQUOTA")),
        ChkDELEGATARIA_(surface.checkBox("ChkDELEGATARIA")),
        TAF_(group(surface, "TAF")),
        TRF_(group(surface, "TRF")) {}

  bool lead() const { return ChkDELEGATARIA_.Value() != kNotTicked; }

  void Calcola_QUOTA(const std::int16_t& xQUOTA) {
    quotas::fillQuota(TxtQUOTA_);
    for (std::size_t i = 0; i < kRows; ++i) quotas::showShare(*TAF_[i], Valori_[i][kTAF], xQUOTA);
    for (std::size_t i = 0; i < kRows; ++i) quotas::showShare(*TRF_[i], Valori_[i][kTRF], xQUOTA);
  }

  void Calcola_QUOTA_DELEGATARIA(const std::int16_t& xQUOTA) {
    quotas::fillQuota(TxtQUOTA_);
    for (std::size_t i = 0; i < kRows; ++i) showOfLead(*TAF_[i], Valori_[i][kTAF], xQUOTA, Valori_[i][kOfLead]);
    for (std::size_t i = 0; i < kRows; ++i) showOfLead(*TRF_[i], Valori_[i][kTRF], xQUOTA, Valori_[i][kOfLead]);
  }

  void apply(std::int16_t thousandths) {
    if (lead()) {
      Calcola_QUOTA_DELEGATARIA(thousandths);
    } else {
      Calcola_QUOTA(thousandths);
    }
  }

  void Imposta_VALORI(const CurrencyArray& Valore) {
    for (std::size_t i = 0; i < kRows; ++i) {
      for (const Column column : {kTAF, kOfLead, kTRF}) {
        Valori_[i][column] = placed("Valore", [&]() -> const Currency& { return Valore.at(i, column); });
      }
    }
    apply(quotas::quotaOf(TxtQUOTA_));
  }

 private:
  static constexpr std::size_t kRows = 3;
  enum Column : std::size_t { kTAF, kOfLead, kTRF };
  using Labels = std::array<toolkit::Label*, kRows>;

  static Labels group(const toolkit::Surface& surface, std::string_view name) {
    return {&surface.label(name, 0), &surface.label(name, 1), &surface.label(name, 2)};
  }

  static void showOfLead(toolkit::Label& label, Currency whole, std::int16_t thousandths, Currency inFull) {
    label.Caption(placed(label.Name(), [&] {
      return format(toCurrency(quotas::shareOf(whole, thousandths)) + inFull, Pattern::Currency,
                    label.owner().platform().locale());
    }));
  }

  toolkit::TextBox& TxtQUOTA_;
  toolkit::CheckBox& ChkDELEGATARIA_;
  Labels TAF_;
  Labels TRF_;
  std::array<std::array<Currency, 3>, kRows> Valori_{};
};

ctlQ_POLIZZE::ctlQ_POLIZZE(const PanelSite& site)
    : surface_(Globale::platform().makeSurface(kLayout, site.container, site.name)),
      TxtQUOTA_(surface_->textBox("TxtQUOTA")),
      TxtCOD_COMP_(surface_->textBox("TxtCOD_COMP")),
      TxtCOD_PROD_(surface_->textBox("TxtCOD_PROD")),
      TxtCOD_PROD_ALT_(surface_->textBox("TxtCOD_PROD_ALT")),
      TxtN_POLIZZA_(surface_->textBox("TxtN_POLIZZA")),
      TxtD_RIMESSA_(surface_->date("TxtD_RIMESSA")),
      ChkDELEGATARIA_(surface_->checkBox("ChkDELEGATARIA")),
      shares_(surface_->keep(std::make_unique<Shares>(*surface_))) {
  wire();
}

ctlQ_POLIZZE::~ctlQ_POLIZZE() = default;

void ctlQ_POLIZZE::wire() {
  quotas::wireQuota(TxtQUOTA_, [&shares = shares_](std::int16_t thousandths) { shares.apply(thousandths); });
  quotas::wireCode(TxtCOD_COMP_, "COD_COMP", QVN_Ricerche::ListaCOMPAGNIE, 5, surface_->label("DESC_COMPAGNIA"),
                   QVN_Ricerche::CercaCOMPAGNIA);
  quotas::wireCode(TxtCOD_PROD_, "COD_PROD", QVN_Ricerche::ListaPRODUTTORI, 8, surface_->label("DESC_PRODUTTORE"),
                   [](std::string& code) { return QVN_Ricerche::CercaPRODUTTORE(code, false); });
  quotas::wireCode(TxtCOD_PROD_ALT_, "COD_PROD_ALT", QVN_Ricerche::ListaPRODUTTORI, 8,
                   surface_->label("DESC_PRODUTTORE_ALT"),
                   [](std::string& code) { return QVN_Ricerche::CercaPRODUTTORE(code, true); });
  fields::wireColouredFirst(TxtN_POLIZZA_, "N_POLIZZA", Gest_SCHEDE::FiltroTesto, 15);
  fields::wire(TxtD_RIMESSA_, "D_RIMESSA", fields::EnterKey::Cancelled);
  ChkDELEGATARIA_.Click = [&lead = ChkDELEGATARIA_] { fields::announce(lead, "DELEGATARIA"); };
}

void ctlQ_POLIZZE::Calcola_QUOTA(const std::int16_t& xQUOTA) {
  const Hold hold(*surface_);
  shares_.Calcola_QUOTA(xQUOTA);
}

void ctlQ_POLIZZE::Calcola_QUOTA_DELEGATARIA(const std::int16_t& xQUOTA) {
  const Hold hold(*surface_);
  shares_.Calcola_QUOTA_DELEGATARIA(xQUOTA);
}

void ctlQ_POLIZZE::Imposta_VALORI(const CurrencyArray& Valore) {
  const Hold hold(*surface_);
  shares_.Imposta_VALORI(Valore);
}

EventsReference ctlQ_POLIZZE::Events() const { return Globale::Eventi(); }

void ctlQ_POLIZZE::Attiva() {
  fields::skipFailing([this] { TxtQUOTA_.Enabled(true); },                 //
                      [this] { TxtCOD_COMP_.Enabled(true); },              //
                      [this] { TxtCOD_PROD_.Enabled(true); },              //
                      [this] { TxtCOD_PROD_ALT_.Enabled(true); },          //
                      [this] { TxtN_POLIZZA_.Enabled(true); },             //
                      [this] { TxtD_RIMESSA_.Enabled(true); },             //
                      [this] { ChkDELEGATARIA_.Enabled(true); },           //
                      [this] { Gest_SCHEDE::SelezionaTutto(TxtQUOTA_); },  //
                      [this] { TxtQUOTA_.SetFocus(); });
}

void ctlQ_POLIZZE::Disattiva() {
  TxtQUOTA_.Enabled(false);
  TxtCOD_COMP_.Enabled(false);
  TxtCOD_PROD_.Enabled(false);
  TxtCOD_PROD_ALT_.Enabled(false);
  TxtN_POLIZZA_.Enabled(false);
  TxtD_RIMESSA_.Enabled(false);
  ChkDELEGATARIA_.Enabled(false);
}

std::string ctlQ_POLIZZE::COD_PROD() const { return TxtCOD_PROD_.Text(); }
void ctlQ_POLIZZE::COD_PROD(std::string_view code) { fields::show(TxtCOD_PROD_, code); }

std::string ctlQ_POLIZZE::COD_COMP() const { return TxtCOD_COMP_.Text(); }
void ctlQ_POLIZZE::COD_COMP(std::string_view code) { fields::show(TxtCOD_COMP_, code); }

std::string ctlQ_POLIZZE::N_POLIZZA() const { return TxtN_POLIZZA_.Text(); }
void ctlQ_POLIZZE::N_POLIZZA(std::string_view number) { fields::show(TxtN_POLIZZA_, number); }

std::string ctlQ_POLIZZE::COD_PROD_ALT() const { return TxtCOD_PROD_ALT_.Text(); }
void ctlQ_POLIZZE::COD_PROD_ALT(std::string_view code) { fields::show(TxtCOD_PROD_ALT_, code); }

Variant ctlQ_POLIZZE::D_RIMESSA() const { return TxtD_RIMESSA_.Value(); }
void ctlQ_POLIZZE::D_RIMESSA(const Variant& date) { fields::showDate(TxtD_RIMESSA_, date); }

std::int16_t ctlQ_POLIZZE::QUOTA() const { return quotas::quotaOf(TxtQUOTA_); }
void ctlQ_POLIZZE::QUOTA(std::int16_t thousandths) { quotas::showQuota(TxtQUOTA_, thousandths); }

bool ctlQ_POLIZZE::DELEGATARIA() const { return shares_.lead(); }
void ctlQ_POLIZZE::DELEGATARIA(bool lead) {
  const std::int16_t value = lead ? kTicked : kNotTicked;
  if (ChkDELEGATARIA_.Value() != value) ChkDELEGATARIA_.Value(value);
}

std::span<const Member> ctlQ_POLIZZE::publicMembers() {
  using P = ctlQ_POLIZZE;
  static const auto table = MemberTable<P>()
                                .method("Calcola_QUOTA", &P::Calcola_QUOTA)
                                .method("Calcola_QUOTA_DELEGATARIA", &P::Calcola_QUOTA_DELEGATARIA)
                                .method("Imposta_VALORI", &P::Imposta_VALORI)
                                .readOnly("Events", &P::Events)
                                .method("Attiva", &P::Attiva)
                                .method("Disattiva", &P::Disattiva)
                                .property("COD_PROD", &P::COD_PROD, &P::COD_PROD)
                                .property("COD_COMP", &P::COD_COMP, &P::COD_COMP)
                                .property("N_POLIZZA", &P::N_POLIZZA, &P::N_POLIZZA)
                                .property("COD_PROD_ALT", &P::COD_PROD_ALT, &P::COD_PROD_ALT)
                                .property("D_RIMESSA", &P::D_RIMESSA, &P::D_RIMESSA)
                                .property("QUOTA", &P::QUOTA, &P::QUOTA)
                                .property("DELEGATARIA", &P::DELEGATARIA, &P::DELEGATARIA);
  return table.members();
}

}  // namespace qvn
