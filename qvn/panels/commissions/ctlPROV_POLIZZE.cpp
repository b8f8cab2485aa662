#include "qvn/panels/commissions/ctlPROV_POLIZZE.h"

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/shown_number.h"
#include "qvn/fields/skip_failing.h"
#include "qvn/panels/commissions/commission_layout.h"
#include "qvn/panels/commissions/commission_rules.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/conversions.h"

namespace qvn {

using commissions::ACC;
using commissions::AQ;
using commissions::PN;
using Hold = toolkit::Surface::Hold;

namespace {

std::uint8_t baseOf(const toolkit::ComboBox& list) {
  const std::string text = std::string("0").append(list.Text(), 0, 1);
  return placed(list.Name(), [&] { return toByte(text, list.owner().platform().locale()); });
}

void chooseBase(toolkit::ComboBox& list, std::uint8_t base) {
  if (base == 1 || base == 2) list.Text(commissions::kBases.at(base - 1U));
}

}  // namespace

ctlPROV_POLIZZE::ctlPROV_POLIZZE(const PanelSite& site)
    : surface_(Globale::platform().makeSurface(commissions::layout(), site.container, site.name)),
      rules_(surface_->keep(std::make_unique<commissions::Rules>(*surface_))) {
  rules_.fill();
}

ctlPROV_POLIZZE::~ctlPROV_POLIZZE() = default;

Currency ctlPROV_POLIZZE::AQ_UFF() const { return rules_.UFF[AQ].amount(); }
void ctlPROV_POLIZZE::AQ_UFF(Currency amount) { rules_.UFF[AQ].amount(amount); }
Variant ctlPROV_POLIZZE::P_AQ_UFF() const { return rules_.UFF[AQ].percent(); }
void ctlPROV_POLIZZE::P_AQ_UFF(const Variant& percent) { rules_.UFF[AQ].percent(percent); }

void ctlPROV_POLIZZE::percAlt() {
  const Hold hold(*surface_);
  rules_.percAlt();
}

Currency ctlPROV_POLIZZE::PN_UFF() const { return rules_.UFF[PN].amount(); }
void ctlPROV_POLIZZE::PN_UFF(Currency amount) { rules_.UFF[PN].amount(amount); }
Variant ctlPROV_POLIZZE::P_PN_UFF() const { return rules_.UFF[PN].percent(); }
void ctlPROV_POLIZZE::P_PN_UFF(const Variant& percent) { rules_.UFF[PN].percent(percent); }
Currency ctlPROV_POLIZZE::ACC_UFF() const { return rules_.UFF[ACC].amount(); }
void ctlPROV_POLIZZE::ACC_UFF(Currency amount) { rules_.UFF[ACC].amount(amount); }
Variant ctlPROV_POLIZZE::P_ACC_UFF() const { return rules_.UFF[ACC].percent(); }
void ctlPROV_POLIZZE::P_ACC_UFF(const Variant& percent) { rules_.UFF[ACC].percent(percent); }

Currency ctlPROV_POLIZZE::AQ_PROD() const { return rules_.PROD[AQ].amount(); }
void ctlPROV_POLIZZE::AQ_PROD(Currency amount) { rules_.PROD[AQ].amount(amount); }
Variant ctlPROV_POLIZZE::P_AQ_PROD() const { return rules_.PROD[AQ].percent(); }
void ctlPROV_POLIZZE::P_AQ_PROD(const Variant& percent) { rules_.PROD[AQ].percent(percent); }
Currency ctlPROV_POLIZZE::PN_PROD() const { return rules_.PROD[PN].amount(); }
void ctlPROV_POLIZZE::PN_PROD(Currency amount) { rules_.PROD[PN].amount(amount); }
Variant ctlPROV_POLIZZE::P_PN_PROD() const { return rules_.PROD[PN].percent(); }
void ctlPROV_POLIZZE::P_PN_PROD(const Variant& percent) { rules_.PROD[PN].percent(percent); }
Currency ctlPROV_POLIZZE::ACC_PROD() const { return rules_.PROD[ACC].amount(); }
void ctlPROV_POLIZZE::ACC_PROD(Currency amount) { rules_.PROD[ACC].amount(amount); }
Variant ctlPROV_POLIZZE::P_ACC_PROD() const { return rules_.PROD[ACC].percent(); }
void ctlPROV_POLIZZE::P_ACC_PROD(const Variant& percent) { rules_.PROD[ACC].percent(percent); }

Currency ctlPROV_POLIZZE::AQ_PROD_ALT() const { return rules_.PROD_ALT[AQ].amount(); }
void ctlPROV_POLIZZE::AQ_PROD_ALT(Currency amount) { rules_.PROD_ALT[AQ].amount(amount); }
Variant ctlPROV_POLIZZE::P_AQ_PROD_ALT() const { return rules_.PROD_ALT[AQ].percent(); }
void ctlPROV_POLIZZE::P_AQ_PROD_ALT(const Variant& percent) { rules_.PROD_ALT[AQ].percent(percent); }
Currency ctlPROV_POLIZZE::PN_PROD_ALT() const { return rules_.PROD_ALT[PN].amount(); }
void ctlPROV_POLIZZE::PN_PROD_ALT(Currency amount) { rules_.PROD_ALT[PN].amount(amount); }
Variant ctlPROV_POLIZZE::P_PN_PROD_ALT() const { return rules_.PROD_ALT[PN].percent(); }
void ctlPROV_POLIZZE::P_PN_PROD_ALT(const Variant& percent) { rules_.PROD_ALT[PN].percent(percent); }
Currency ctlPROV_POLIZZE::ACC_PROD_ALT() const { return rules_.PROD_ALT[ACC].amount(); }
void ctlPROV_POLIZZE::ACC_PROD_ALT(Currency amount) { rules_.PROD_ALT[ACC].amount(amount); }
Variant ctlPROV_POLIZZE::P_ACC_PROD_ALT() const { return rules_.PROD_ALT[ACC].percent(); }
void ctlPROV_POLIZZE::P_ACC_PROD_ALT(const Variant& percent) { rules_.PROD_ALT[ACC].percent(percent); }

void ctlPROV_POLIZZE::setCombo() { rules_.PROD_ALT.base->ListIndex(0); }

void ctlPROV_POLIZZE::TOTALI() {
  const Hold hold(*surface_);
  rules_.TOTALI();
}

void ctlPROV_POLIZZE::VALORI(const CurrencyArray& Importi) {
  const Hold hold(*surface_);
  rules_.VALORI(Importi);
}

std::uint8_t ctlPROV_POLIZZE::CALC_PROD() const { return baseOf(*rules_.PROD.base); }
void ctlPROV_POLIZZE::CALC_PROD(std::uint8_t base) { chooseBase(*rules_.PROD.base, base); }
std::uint8_t ctlPROV_POLIZZE::CALC_PROD_ALT() const { return baseOf(*rules_.PROD_ALT.base); }
void ctlPROV_POLIZZE::CALC_PROD_ALT(std::uint8_t base) { chooseBase(*rules_.PROD_ALT.base, base); }

std::int16_t ctlPROV_POLIZZE::QUOTA() const { return rules_.QUOTA; }
void ctlPROV_POLIZZE::QUOTA(std::int16_t thousandths) {
  const Hold hold(*surface_);
  rules_.quota(thousandths);
}

std::string ctlPROV_POLIZZE::COD_COMPAGNIA() const { return rules_.COD_COMPAGNIA; }
void ctlPROV_POLIZZE::COD_COMPAGNIA(std::string_view code) {
  const Hold hold(*surface_);
  rules_.company(code);
}

std::string ctlPROV_POLIZZE::COD_PRODUTTORE() const { return rules_.PRODUTTORE.code; }
void ctlPROV_POLIZZE::COD_PRODUTTORE(std::string_view code) {
  const Hold hold(*surface_);
  rules_.producer(rules_.PRODUTTORE, code);
}

void ctlPROV_POLIZZE::Attiva() {
  const Hold hold(*surface_);
  commissions::Rules& rules = rules_;
  toolkit::TextBox& first = rules.UFF[PN].percentBox;
  fields::skipFailing([&] { rules.UFF.frame.Enabled(true); },
                      [&] {
                        if (!rules.PRODUTTORE.code.empty()) rules.PROD.frame.Enabled(true);
                      },
                      [&] {
                        if (!rules.PRODUTTORE_ALT.code.empty()) rules.PROD_ALT.frame.Enabled(true);
                      },
                      [&] { Gest_SCHEDE::SelezionaTutto(first); },  //
                      [&] { first.SetFocus(); });
}

void ctlPROV_POLIZZE::Disattiva() {
  const Hold hold(*surface_);
  const auto parties = rules_.parties();
  for (commissions::Party* party : parties) party->frame.Enabled(false);
}

std::string ctlPROV_POLIZZE::COD_PRODUTTORE_ALT() const { return rules_.PRODUTTORE_ALT.code; }
void ctlPROV_POLIZZE::COD_PRODUTTORE_ALT(std::string_view code) {
  const Hold hold(*surface_);
  rules_.producer(rules_.PRODUTTORE_ALT, code);
}

bool ctlPROV_POLIZZE::DELEGATARIA() const { return rules_.DELEGATARIA; }
void ctlPROV_POLIZZE::DELEGATARIA(bool lead) { rules_.DELEGATARIA = lead; }

Variant ctlPROV_POLIZZE::P_ATTIVE() const { return fields::currencyOf(rules_.PROVV_ATTIVE); }
void ctlPROV_POLIZZE::P_ATTIVE(const Variant& /*ignored*/) {}
Variant ctlPROV_POLIZZE::P_PASSIVE() const { return fields::currencyOf(rules_.PROVV_PASSIVE); }
void ctlPROV_POLIZZE::P_PASSIVE(const Variant& /*ignored*/) {}

std::span<const Member> ctlPROV_POLIZZE::publicMembers() {
  using P = ctlPROV_POLIZZE;
  static const auto table = MemberTable<P>()
                                .property("AQ_UFF", &P::AQ_UFF, &P::AQ_UFF)
                                .property("P_AQ_UFF", &P::P_AQ_UFF, &P::P_AQ_UFF)
                                .method("percAlt", &P::percAlt)
                                .property("PN_UFF", &P::PN_UFF, &P::PN_UFF)
                                .property("P_PN_UFF", &P::P_PN_UFF, &P::P_PN_UFF)
                                .property("ACC_UFF", &P::ACC_UFF, &P::ACC_UFF)
                                .property("P_ACC_UFF", &P::P_ACC_UFF, &P::P_ACC_UFF)
                                .property("AQ_PROD", &P::AQ_PROD, &P::AQ_PROD)
                                .property("P_AQ_PROD", &P::P_AQ_PROD, &P::P_AQ_PROD)
                                .property("PN_PROD", &P::PN_PROD, &P::PN_PROD)
                                .property("P_PN_PROD", &P::P_PN_PROD, &P::P_PN_PROD)
                                .property("ACC_PROD", &P::ACC_PROD, &P::ACC_PROD)
                                .property("P_ACC_PROD", &P::P_ACC_PROD, &P::P_ACC_PROD)
                                .property("AQ_PROD_ALT", &P::AQ_PROD_ALT, &P::AQ_PROD_ALT)
                                .property("P_AQ_PROD_ALT", &P::P_AQ_PROD_ALT, &P::P_AQ_PROD_ALT)
                                .property("PN_PROD_ALT", &P::PN_PROD_ALT, &P::PN_PROD_ALT)
                                .property("P_PN_PROD_ALT", &P::P_PN_PROD_ALT, &P::P_PN_PROD_ALT)
                                .property("ACC_PROD_ALT", &P::ACC_PROD_ALT, &P::ACC_PROD_ALT)
                                .property("P_ACC_PROD_ALT", &P::P_ACC_PROD_ALT, &P::P_ACC_PROD_ALT)
                                .method("setCombo", &P::setCombo)
                                .method("TOTALI", &P::TOTALI)
                                .method("VALORI", &P::VALORI)
                                .property("CALC_PROD", &P::CALC_PROD, &P::CALC_PROD)
                                .property("CALC_PROD_ALT", &P::CALC_PROD_ALT, &P::CALC_PROD_ALT)
                                .property("QUOTA", &P::QUOTA, &P::QUOTA)
                                .property("COD_COMPAGNIA", &P::COD_COMPAGNIA, &P::COD_COMPAGNIA)
                                .property("COD_PRODUTTORE", &P::COD_PRODUTTORE, &P::COD_PRODUTTORE)
                                .method("Attiva", &P::Attiva)
                                .method("Disattiva", &P::Disattiva)
                                .property("COD_PRODUTTORE_ALT", &P::COD_PRODUTTORE_ALT, &P::COD_PRODUTTORE_ALT)
                                .property("DELEGATARIA", &P::DELEGATARIA, &P::DELEGATARIA)
                                .property("P_ATTIVE", &P::P_ATTIVE, &P::P_ATTIVE)
                                .property("P_PASSIVE", &P::P_PASSIVE, &P::P_PASSIVE);
  return table.members();
}

}  // namespace qvn
