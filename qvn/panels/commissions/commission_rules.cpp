#include "qvn/panels/commissions/commission_rules.h"

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/list_field.h"
#include "qvn/fields/shown_number.h"
#include "qvn/fields/text_field.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/failure.h"
#include "qvn/toolkit/platform.h"

namespace qvn::commissions {

namespace {

using fields::currencyOf;

constexpr Pattern kZero = Pattern::TwoDecimals;
constexpr Pattern kBareZero = Pattern::General;

constexpr PartyTraits kOffice{.frame = "FrmUFF",
                              .base = "",
                              .baseNotice = "",
                              .recomputingEndsInTOTALI = true,
                              .cells{{
                                  {"PN_UFF", "P_PN_UFF", "LblPN", "", kZero},
                                  {"ACC_UFF", "P_ACC_UFF", "LblACC", "", kZero},
                                  {"AQ_UFF", "P_AQ_UFF", "LblPN", "", kBareZero, true},
                              }}};

constexpr PartyTraits kProducer{.frame = "FrmPROD",
                                .base = "CmbCALCOLO_PROD",
                                .baseNotice = "CALCOLO_PROD",
                                .recomputingEndsInTOTALI = false,
                                .cells{{
                                    {"PN_PROD", "P_PN_PROD", "LblPN", "TxtPN_UFF", kZero},
                                    {"ACC_PROD", "P_ACC_PROD", "LblACC", "TxtACC_UFF", kZero},
                                    {"AQ_PROD", "P_AQ_PROD", "LblPN", "TxtAQ_UFF", kBareZero},
                                }}};

constexpr PartyTraits kAlternateProducer{.frame = "FrmPROD_ALT",
                                         .base = "CmbCALCOLO_PROD_ALT",
                                         .baseNotice = "CALCOLO_PROD_ALT",
                                         .recomputingEndsInTOTALI = true,
                                         .cells{{
                                             {"PN_PROD_ALT", "P_PN_PROD_ALT", "LblPN", "TxtPN_UFF", kZero},
                                             {"ACC_PROD_ALT", "P_ACC_PROD_ALT", "LblACC", "TxtACC_UFF", kZero},
                                             {"AQ_PROD_ALT", "P_AQ_PROD_ALT", "LblPN", "TxtAQ_UFF", kZero},
                                         }}};

toolkit::TextBox& boxOf(const toolkit::Surface& surface, std::string_view property) {
  return surface.textBox(std::string("Txt").append(property));
}

/// A figure worked out in double. Fails with "overflow" beyond the currency type, though it could be shown.
FormattedText amountOf(double figure, const Locale& locale) {
  static_cast<void>(toCurrency(figure));
  return format(figure, Pattern::Currency, locale);
}

/// Adds the party's amounts one by one, so that a sum of several parties fails only where it itself leaves the range.
Currency sumOf(const Party& party, Currency sum = {}) {
  for (const Cell& cell : party.cells) sum += currencyOf(cell.amountBox);
  return sum;
}

}  // namespace

Cell::Cell(toolkit::Surface& surface, const CellTraits& traits)
    : its(traits),
      percentBox(boxOf(surface, traits.percent)),
      amountBox(boxOf(surface, traits.amount)),
      premium(surface.label(traits.premium)),
      office(traits.office.empty() ? nullptr : &surface.textBox(traits.office)) {}

Currency Cell::amount() const { return currencyOf(amountBox); }
void Cell::amount(Currency value) { fields::showAmount(amountBox, value); }

Variant Cell::percent() const { return fields::decimalOf(percentBox); }

void Cell::percent(const Variant& value) {
  const Variant shown = fields::decimalOf(percentBox);
  // Nothing differs from a Null.
  if (isNull(value) || compare(shown, value) == std::partial_ordering::equivalent) return;
  percentBox.Text(placed(percentBox.Name(), [&] {
    return formatValue(value, Pattern::TwoDecimals, percentBox.owner().platform().locale());
  }));
}

Party::Party(toolkit::Surface& surface, const PartyTraits& traits)
    : its(traits),
      frame(surface.frame(traits.frame)),
      base(traits.base.empty() ? nullptr : &surface.comboBox(traits.base)),
      cells{Cell(surface, traits.cells[PN]), Cell(surface, traits.cells[ACC]), Cell(surface, traits.cells[AQ])} {}

bool Party::onPremium() const { return base == nullptr || base->Text().starts_with('1'); }

Rules::Rules(toolkit::Surface& surface)
    : UFF(surface, kOffice),
      PROD(surface, kProducer),
      PROD_ALT(surface, kAlternateProducer),
      PRODUTTORE{surface.label("LblPRODUTTORE"), false, PROD, {}},
      PRODUTTORE_ALT{surface.label("LblPRODUTTORE_ALT"), true, PROD_ALT, {}},
      premiums{{{surface.label("LblPN"), {}, {}}, {surface.label("LblACC"), {}, {}}, {surface.label("LblPL"), {}, {}}}},
      LblQUOTA(surface.label("LblQUOTA")),
      LblCOMPAGNIA(surface.label("LblCOMPAGNIA")),
      PROVV_ATTIVE(surface.label("PROVV_ATTIVE")),
      PROVV_PASSIVE(surface.label("PROVV_PASSIVE")),
      RIT_ACCONTO(surface.label("RIT_ACCONTO")),
      surface_(surface) {
  for (Party* party : parties()) wireParty(*party);
  LblQUOTA.Change = [this] { applyQuota(); };
  PROVV_ATTIVE.Change = [this] { fields::announce(PROVV_ATTIVE, "P_ATTIVE"); };
  PROVV_PASSIVE.Change = [this] { fields::announce(PROVV_PASSIVE, "P_PASSIVE"); };
}

void Rules::wireParty(Party& party) {
  for (Cell& cell : party.cells) wireCell(party, cell);
  if (party.base == nullptr) return;
  fields::wire(*party.base, party.its.baseNotice);
  party.base->LostFocus = [this, &party] {
    Gest_SCHEDE::ColoreFuoco(*party.base, Gest_SCHEDE::kAtRest);
    recompute(party);
    TOTALI();
  };
}

void Rules::wireCell(Party& party, Cell& cell) {
  wireBox(cell.percentBox, Pattern::TwoDecimals);
  cell.percentBox.Change = [this, &party, &cell] { percentChanged(party, cell); };
  wireBox(cell.amountBox, Pattern::Currency);
  cell.amountBox.Change = [this, &cell] { amountChanged(cell); };
}

void Rules::wireBox(toolkit::TextBox& box, Pattern atRest) {
  box.GotFocus = [&box] {
    fields::rewrite(box, Pattern::TwoDecimals);
    Gest_SCHEDE::ColoreFuoco(box, Gest_SCHEDE::kFocused);
    Gest_SCHEDE::SelezionaTutto(box);
  };
  box.KeyPress = [&box](std::int16_t& KeyAscii) { Gest_SCHEDE::FiltroNumero(box, KeyAscii, 2); };
  box.LostFocus = [this, &box, atRest] {
    fields::rewrite(box, atRest);
    Gest_SCHEDE::ColoreFuoco(box, Gest_SCHEDE::kAtRest);
    TOTALI();
  };
}

void Rules::percentChanged(const Party& party, Cell& cell) {
  fields::announce(cell.percentBox, cell.its.percent);
  if (cell.percentBox.Text().empty()) {
    cell.percentBox.Text(format(0, cell.its.emptyPercent, locale()));
    Gest_SCHEDE::SelezionaTutto(cell.percentBox);
  }
  followPercent(party, cell);
}

void Rules::amountChanged(Cell& cell) {
  fields::announce(cell.amountBox, cell.its.amount);
  if (cell.amountBox.Text().empty()) {
    cell.amountBox.Text(format(0, Pattern::TwoDecimals, locale()));
    Gest_SCHEDE::SelezionaTutto(cell.amountBox);
  }
  if (cell.its.amountRunsTOTALI) TOTALI();
}

void Rules::followPercent(const Party& party, Cell& cell) {
  if (cell.percentBox.Text().empty() || !party.frame.Enabled()) return;
  cell.amountBox.Text(placed(cell.amountBox.Name(), [&] {
    const double base = toDouble(party.onPremium() ? currencyOf(cell.premium) : currencyOf(*cell.office));
    const double percent = toDouble(currencyOf(cell.percentBox));
    return amountOf(base / 100.0 * percent, locale());
  }));
}

void Rules::recompute(Party& party) {
  for (Cell& cell : party.cells) followPercent(party, cell);
  if (party.its.recomputingEndsInTOTALI) TOTALI();
}

void Rules::applyQuota() {
  const bool lead = DELEGATARIA;
  for (const Premium& premium : premiums) {
    premium.shown.Caption(placed(premium.shown.Name(), [&] {
      const double quota = toDouble(currencyOf(LblQUOTA));
      const double share = toDouble(premium.TOT) / 1000.0 * quota;
      return lead ? format(toCurrency(share) + premium.DEL, Pattern::Currency, locale()) : amountOf(share, locale());
    }));
  }
  for (Party* party : parties()) {
    for (Cell& cell : party->cells) {
      if (leadingNumber(cell.percentBox.Text()) != 0) percentChanged(*party, cell);
    }
  }
}

void Rules::TOTALI() {
  applyQuota();
  PROVV_ATTIVE.Caption(placed(PROVV_ATTIVE.Name(), [&] { return format(sumOf(UFF), Pattern::Currency, locale()); }));
  PROVV_PASSIVE.Caption(
      placed(PROVV_PASSIVE.Name(), [&] { return format(sumOf(PROD_ALT, sumOf(PROD)), Pattern::Currency, locale()); }));
  RIT_ACCONTO.Caption(placed(RIT_ACCONTO.Name(), [&] {
    const Currency rate = QVN_Ricerche::CercaR_ACC(PRODUTTORE.code);
    const Currency alternateRate = QVN_Ricerche::CercaR_ACC(PRODUTTORE_ALT.code);
    const double alternate = toDouble(sumOf(PROD_ALT));
    const double producer = toDouble(sumOf(PROD));
    const double withheld = alternate / 100.0 * toDouble(alternateRate) + producer / 100.0 * toDouble(rate);
    return amountOf(withheld, locale());
  }));
}

void Rules::VALORI(const CurrencyArray& Importi) {
  const auto received = [&](std::size_t i, std::size_t j) {
    const Currency& figure = placed("Importi", [&]() -> const Currency& { return Importi.at(i, j); });
    return toCurrency(format(figure, Pattern::Currency, locale()), locale());
  };
  for (std::size_t i = 0; i < premiums.size(); ++i) premiums[i].TOT = received(i, 0);
  for (std::size_t i = 0; i < premiums.size(); ++i) premiums[i].DEL = received(i, 1);
  applyQuota();
}

void Rules::percAlt() {
  const toolkit::Label& caption = PRODUTTORE_ALT.caption;
  const std::string shown = caption.Caption();
  const std::size_t bracket = shown.find('(');
  const double share = leadingNumber(std::string_view(shown).substr(bracket == std::string::npos ? 0 : bracket + 1));
  const std::int16_t percent = placed(caption.Name(), [&] { return toInt16(share); });
  for (const Component component : {PN, ACC, AQ}) {
    Cell& alternate = PROD_ALT[component];
    alternate.percentBox.Text(placed(alternate.percentBox.Name(), [&] {
      return format(fields::doubleOf(PROD[component].percentBox) / 100.0 * percent, Pattern::TwoDecimals, locale());
    }));
  }
}

void Rules::quota(std::int16_t thousandths) {
  if (QUOTA == thousandths) return;
  QUOTA = thousandths;
  LblQUOTA.Caption(std::to_string(thousandths));
}

void Rules::company(std::string_view code) {
  if (COD_COMPAGNIA == code) return;
  COD_COMPAGNIA = code;
  std::string caption = COD_COMPAGNIA + " - ";
  LblCOMPAGNIA.Caption(caption.append(QVN_Ricerche::CercaCOMPAGNIA(COD_COMPAGNIA)));
}

void Rules::producer(Producer& producer, std::string_view code) {
  if (producer.code == code) return;
  producer.code = code;
  if (producer.code.empty()) {
    producer.caption.Caption("");
    producer.party.frame.Enabled(false);
    return;
  }
  std::string caption = producer.code + " - ";
  caption.append(QVN_Ricerche::CercaPRODUTTORE(producer.code, producer.captionWithPercent));
  producer.caption.Caption(caption);
  producer.party.frame.Enabled(true);
}

void Rules::fill() {
  const auto zero = format(0, Pattern::TwoDecimals, locale());
  for (Party* party : parties()) {
    for (Cell& cell : party->cells) {
      cell.percentBox.Text(zero);
      cell.amountBox.Text(zero);
    }
  }
}

const Locale& Rules::locale() const { return surface_.platform().locale(); }

}  // namespace qvn::commissions
