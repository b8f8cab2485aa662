// What the commission panel computes: a quota gives premiums, percents give amounts, amounts give the summary.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "qvn/shared/currency.h"
#include "qvn/shared/patterns.h"
#include "qvn/shared/variant.h"
#include "qvn/toolkit/surface.h"

namespace qvn::commissions {

/// Premium, accessories and AQ, a second percent on the premium.
enum Component : std::size_t { PN, ACC, AQ };

/// What sets one cell apart from the others. Its boxes bear the names of their properties behind "Txt".
struct CellTraits {
  std::string_view amount;        ///< the property of the amount
  std::string_view percent;       ///< the property of the percent
  std::string_view premium;       ///< the label with the premium that the percent is of
  std::string_view office;        ///< the office's amount that it may be of instead; empty for the office itself
  Pattern emptyPercent;           ///< how a percent shows 0 when its text is taken away
  bool amountRunsTOTALI = false;  ///< whether a change of the amount brings the summary up to date at once
};

/// A percent and the amount that follows it.
class Cell {
 public:
  Cell(toolkit::Surface& surface, const CellTraits& its);

  const CellTraits& its;
  toolkit::TextBox& percentBox;
  toolkit::TextBox& amountBox;
  const toolkit::Label& premium;
  const toolkit::TextBox* office;  ///< null for the office itself

  /// The properties' side of the boxes: a value is written only where the box shows another.
  Currency amount() const;
  void amount(Currency value);
  Variant percent() const;
  void percent(const Variant& value);
};

/// Who shares in a commission.
struct PartyTraits {
  std::string_view frame;
  std::string_view base;         ///< the list of what its percents are of; empty for the office
  std::string_view baseNotice;   ///< what a click on the list announces
  bool recomputingEndsInTOTALI;  ///< of recomputing all its amounts, which nothing asks for of the office
  std::array<CellTraits, 3> cells;
};

struct Party {
  Party(toolkit::Surface& surface, const PartyTraits& its);
  Party(const Party&) = delete;
  Party& operator=(const Party&) = delete;

  const PartyTraits& its;
  toolkit::Frame& frame;
  toolkit::ComboBox* base;  ///< null for the office, whose percents are always of the premium
  std::array<Cell, 3> cells;

  Cell& operator[](Component component) { return cells[component]; }
  /// Whether its percents are of the premiums, and not of the office's amounts.
  bool onPremium() const;
};

/// A producer: the frame is enabled as soon as there is one.
struct Producer {
  toolkit::Label& caption;
  bool captionWithPercent;
  Party& party;
  std::string code;
};

/// A premium of the whole policy, and what of it goes in full to the lead coinsurer.
struct Premium {
  toolkit::Label& shown;
  Currency TOT;
  Currency DEL;
};

/// The rules of ctlPROV_POLIZZE and the values that it stores. They live as long as the widgets, since a host may drop
/// the panel at any announcement.
class Rules {
 public:
  /// Wires the widgets.
  explicit Rules(toolkit::Surface& surface);
  Rules(const Rules&) = delete;
  Rules& operator=(const Rules&) = delete;

  Party UFF;
  Party PROD;
  Party PROD_ALT;
  /// All three, in the order in which they are worked out: a producer's base may be an amount of the office.
  std::array<Party*, 3> parties() { return {&UFF, &PROD, &PROD_ALT}; }

  // Stored, each with what shows it.
  Producer PRODUTTORE;
  Producer PRODUTTORE_ALT;
  std::int16_t QUOTA = 0;
  std::string COD_COMPAGNIA;
  std::array<Premium, 3> premiums;
  bool DELEGATARIA = false;

  toolkit::Label& LblQUOTA;
  toolkit::Label& LblCOMPAGNIA;
  toolkit::Label& PROVV_ATTIVE;
  toolkit::Label& PROVV_PASSIVE;
  toolkit::Label& RIT_ACCONTO;

  /// Gives the boxes of a new panel their first texts.
  void fill();
  /// The participant's premiums from the quota, then again all amounts whose percent begins with another number than 0.
  void applyQuota();
  void TOTALI();
  void VALORI(const CurrencyArray& Importi);
  void percAlt();
  /// What stands already is neither applied nor looked up again.
  void quota(std::int16_t thousandths);
  void company(std::string_view code);
  void producer(Producer& producer, std::string_view code);

 private:
  void wireParty(Party& party);
  void wireCell(Party& party, Cell& cell);
  void wireBox(toolkit::TextBox& box, Pattern atRest);
  void percentChanged(const Party& party, Cell& cell);
  void amountChanged(Cell& cell);
  void followPercent(const Party& party, Cell& cell);
  void recompute(Party& party);
  const Locale& locale() const;

  toolkit::Surface& surface_;
};

}  // namespace qvn::commissions
