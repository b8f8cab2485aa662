#include "qvn/panels/quotas/ctlQ_SINISTRI.h"

#include <array>
#include <cstddef>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/skip_failing.h"
#include "qvn/fields/text_field.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/panels/quotas/quota_field.h"
#include "qvn/panels/quotas/quota_layout.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/failure.h"

namespace qvn {

using Hold = toolkit::Surface::Hold;

namespace {

using quotas::box;
using quotas::check;
using quotas::shown;
using quotas::title;
using toolkit::Align;

// Three lines: the participant, its numbers, and below them its amounts.
constexpr std::array<toolkit::WidgetLayout, 14> kWidgets{{
    title(0, "lblTitQUOTA", {75, 75, 945, 315}, "Quota:"),
    box(1, "TxtQUOTA", {1080, 75, 690, 315}, Align::Right),
    check(2, "ChkDELEGATARIA", {1830, 75, 1395, 315}, "Delegataria"),
    title(3, "lblTitCOD_COMP", {3285, 75, 1050, 315}, "C. Comp.:"),
    box(4, "TxtCOD_COMP", {4395, 75, 750, 315}),
    shown(5, "DESC_COMPAGNIA", {5205, 75, 4785, 315}),
    title(6, "lblTitN_POLIZZA", {75, 450, 945, 315}, "N. Pol.:"),
    box(7, "TxtN_POLIZZA", {1080, 450, 1815, 315}),
    title(8, "lblTitN_SINISTRO", {3285, 450, 1050, 315}, "N. Sin.:"),
    box(9, "TxtN_SINISTRO", {4395, 450, 2340, 315}),
    title(10, "lblTitSTIMATO", {75, 825, 945, 315}, "Q. Stim.:"),
    shown(11, "STIMATO", {1080, 825, 1590, 315}, Align::Right),
    title(12, "lblTitLIQUIDATO", {3285, 825, 1050, 315}, "Q Liquid.:"),
    shown(13, "LIQUIDATO", {4395, 825, 1590, 315}, Align::Right),
}};

constexpr toolkit::PanelLayout kLayout{.name = "ctlQ_SINISTRI", .width = 10065, .height = 1215, .widgets = kWidgets};

}  // namespace

/// The figures of the claim and what shows the shares in them. It lives as long as the widgets, since a host may drop
/// the panel at any announcement.
class ctlQ_SINISTRI::Shares {
 public:
  explicit Shares(const toolkit::Surface& surface)
      : TxtQUOTA_(surface.textBox("TxtQUOTA")),
        STIMATO_(surface.label("STIMATO")),
        LIQUIDATO_(surface.label("LIQUIDATO")) {}

  void Calcola_QUOTA(const std::int16_t& xQUOTA) {
    quotas::fillQuota(TxtQUOTA_);
    quotas::showShare(STIMATO_, Valori_[0], xQUOTA);
    quotas::showShare(LIQUIDATO_, Valori_[1], xQUOTA);
  }

  void Imposta_VALORI(const CurrencyArray& Valore) {
    for (std::size_t i = 0; i < Valori_.size(); ++i) {
      Valori_[i] = placed("Valore", [&]() -> const Currency& { return Valore.at(i); });
    }
    Calcola_QUOTA(quotas::quotaOf(TxtQUOTA_));
  }

 private:
  toolkit::TextBox& TxtQUOTA_;
  toolkit::Label& STIMATO_;
  toolkit::Label& LIQUIDATO_;
  std::array<Currency, 3> Valori_{};
};

ctlQ_SINISTRI::ctlQ_SINISTRI(const PanelSite& site)
    : surface_(Globale::platform().makeSurface(kLayout, site.container, site.name)),
      TxtQUOTA_(surface_->textBox("TxtQUOTA")),
      ChkDELEGATARIA_(surface_->checkBox("ChkDELEGATARIA")),
      TxtCOD_COMP_(surface_->textBox("TxtCOD_COMP")),
      TxtN_POLIZZA_(surface_->textBox("TxtN_POLIZZA")),
      TxtN_SINISTRO_(surface_->textBox("TxtN_SINISTRO")),
      shares_(surface_->keep(std::make_unique<Shares>(*surface_))) {
  wire();
}

ctlQ_SINISTRI::~ctlQ_SINISTRI() = default;

void ctlQ_SINISTRI::wire() {
  quotas::wireQuota(TxtQUOTA_, [&shares = shares_](std::int16_t thousandths) { shares.Calcola_QUOTA(thousandths); });
  ChkDELEGATARIA_.Click = [&lead = ChkDELEGATARIA_] { fields::announce(lead, "DELEGATARIA"); };
  quotas::wireCode(TxtCOD_COMP_, "COD_COMP", QVN_Ricerche::ListaCOMPAGNIE, 5, surface_->label("DESC_COMPAGNIA"),
                   QVN_Ricerche::CercaCOMPAGNIA);
  fields::wireColouredFirst(TxtN_POLIZZA_, "N_POLIZZA", Gest_SCHEDE::FiltroTesto, 15);
  fields::wireColouredFirst(TxtN_SINISTRO_, "N_SINISTRO_COMP", Gest_SCHEDE::FiltroTesto, 20);
}

void ctlQ_SINISTRI::Calcola_QUOTA(const std::int16_t& xQUOTA) {
  const Hold hold(*surface_);
  shares_.Calcola_QUOTA(xQUOTA);
}

void ctlQ_SINISTRI::Imposta_VALORI(const CurrencyArray& Valore) {
  const Hold hold(*surface_);
  shares_.Imposta_VALORI(Valore);
}

EventsReference ctlQ_SINISTRI::Events() const { return Globale::Eventi(); }

void ctlQ_SINISTRI::Attiva() {
  fields::skipFailing([this] { TxtQUOTA_.Enabled(true); },                 //
                      [this] { ChkDELEGATARIA_.Enabled(true); },           //
                      [this] { TxtCOD_COMP_.Enabled(true); },              //
                      [this] { TxtN_POLIZZA_.Enabled(true); },             //
                      [this] { TxtN_SINISTRO_.Enabled(true); },            //
                      [this] { Gest_SCHEDE::SelezionaTutto(TxtQUOTA_); },  //
                      [this] { TxtQUOTA_.SetFocus(); });
}

void ctlQ_SINISTRI::Disattiva() {
  TxtQUOTA_.Enabled(false);
  ChkDELEGATARIA_.Enabled(false);
  TxtCOD_COMP_.Enabled(false);
  TxtN_POLIZZA_.Enabled(false);
  TxtN_SINISTRO_.Enabled(false);
}

std::string ctlQ_SINISTRI::N_SINISTRO_COMP() const { return TxtN_SINISTRO_.Text(); }
void ctlQ_SINISTRI::N_SINISTRO_COMP(std::string_view number) { fields::show(TxtN_SINISTRO_, number); }

std::string ctlQ_SINISTRI::COD_COMP() const { return TxtCOD_COMP_.Text(); }
void ctlQ_SINISTRI::COD_COMP(std::string_view code) { fields::show(TxtCOD_COMP_, code); }

std::string ctlQ_SINISTRI::N_POLIZZA() const { return TxtN_POLIZZA_.Text(); }
void ctlQ_SINISTRI::N_POLIZZA(std::string_view number) { fields::show(TxtN_POLIZZA_, number); }

std::int16_t ctlQ_SINISTRI::QUOTA() const { return quotas::quotaOf(TxtQUOTA_); }
void ctlQ_SINISTRI::QUOTA(std::int16_t thousandths) { quotas::showQuota(TxtQUOTA_, thousandths); }

bool ctlQ_SINISTRI::DELEGATARIA() const { return ChkDELEGATARIA_.Value() != 0; }
void ctlQ_SINISTRI::DELEGATARIA(bool lead) { ChkDELEGATARIA_.Value(lead ? 1 : 0); }

std::span<const Member> ctlQ_SINISTRI::publicMembers() {
  using P = ctlQ_SINISTRI;
  static const auto table = MemberTable<P>()
                                .method("Calcola_QUOTA", &P::Calcola_QUOTA)
                                .method("Imposta_VALORI", &P::Imposta_VALORI)
                                .readOnly("Events", &P::Events)
                                .method("Attiva", &P::Attiva)
                                .method("Disattiva", &P::Disattiva)
                                .property("N_SINISTRO_COMP", &P::N_SINISTRO_COMP, &P::N_SINISTRO_COMP)
                                .property("COD_COMP", &P::COD_COMP, &P::COD_COMP)
                                .property("N_POLIZZA", &P::N_POLIZZA, &P::N_POLIZZA)
                                .property("QUOTA", &P::QUOTA, &P::QUOTA)
                                .property("DELEGATARIA", &P::DELEGATARIA, &P::DELEGATARIA);
  return table.members();
}

}  // namespace qvn
