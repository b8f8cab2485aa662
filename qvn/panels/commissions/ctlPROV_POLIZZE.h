// The commission panel of a policy.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "qvn/shared/currency.h"
#include "qvn/shared/variant.h"
#include "qvn/toolkit/panel.h"

namespace qvn {

namespace commissions {
class Rules;
}

/// The commission of one policy for one coinsurance participant, divided among office (UFF), producer (PROD) and
/// alternate producer (PROD_ALT).
///
/// The host gives the premiums of the whole policy and the participant's quota; the operator types percents, of the
/// participant's premium or of the office's commission, and each amount follows its percent while the frame of its
/// party is enabled. Amounts are columns of QUOTE_POLIZZE in either of its two families; the panel holds one set.
///
/// The texts of the boxes are the model. A box whose text is no number fails with "type mismatch", and a figure beyond
/// the currency type with "overflow", in whatever reads it or works it out, naming the box or label; what was written
/// before stays. Writing a number that is already shown does nothing; any other write runs the rules of the box, as
/// typing does.
class ctlPROV_POLIZZE final : public Panel {
 public:
  /// Asks for the database if it is closed, as it already works out its first summary.
  explicit ctlPROV_POLIZZE(const PanelSite& site);
  ~ctlPROV_POLIZZE() override;

  /// Amounts are shown under "Currency", percents under "0.00". A percent is read as a decimal; any value but an array
  /// may be written. A Null leaves it, and a text is written even where it says the number that is shown.
  Currency AQ_UFF() const;
  void AQ_UFF(Currency amount);
  Variant P_AQ_UFF() const;
  void P_AQ_UFF(const Variant& percent);
  /// Sets the percents of the alternate producer to his share of the producer's: PRODUTTORI.PERCALT, as his caption
  /// shows it in brackets, to a whole number. Without brackets it is the number that the caption begins with.
  void percAlt();
  Currency PN_UFF() const;
  void PN_UFF(Currency amount);
  Variant P_PN_UFF() const;
  void P_PN_UFF(const Variant& percent);
  Currency ACC_UFF() const;
  void ACC_UFF(Currency amount);
  Variant P_ACC_UFF() const;
  void P_ACC_UFF(const Variant& percent);

  Currency AQ_PROD() const;
  void AQ_PROD(Currency amount);
  Variant P_AQ_PROD() const;
  void P_AQ_PROD(const Variant& percent);
  Currency PN_PROD() const;
  void PN_PROD(Currency amount);
  Variant P_PN_PROD() const;
  void P_PN_PROD(const Variant& percent);
  Currency ACC_PROD() const;
  void ACC_PROD(Currency amount);
  Variant P_ACC_PROD() const;
  void P_ACC_PROD(const Variant& percent);

  Currency AQ_PROD_ALT() const;
  void AQ_PROD_ALT(Currency amount);
  Variant P_AQ_PROD_ALT() const;
  void P_AQ_PROD_ALT(const Variant& percent);
  Currency PN_PROD_ALT() const;
  void PN_PROD_ALT(Currency amount);
  Variant P_PN_PROD_ALT() const;
  void P_PN_PROD_ALT(const Variant& percent);
  Currency ACC_PROD_ALT() const;
  void ACC_PROD_ALT(Currency amount);
  Variant P_ACC_PROD_ALT() const;
  void P_ACC_PROD_ALT(const Variant& percent);

  /// Selects the first base for the alternate producer, "1 - Premi Polizza".
  void setCombo();

  /// Works out the premiums by the quota, the amounts by their percents, and the summary. Asks for the withholding
  /// percent of both producers, PRODUTTORI.R_ACC.
  void TOTALI();

  /// Takes the premiums of the whole policy, rounded to the decimals of "Currency": rows PN, ACC and PL; first column
  /// what the quota shares out, second what goes in full to the lead coinsurer. "subscript out of range" if the array
  /// has no such element; the elements before it are kept. Works out premiums and amounts, not the summary.
  void VALORI(const CurrencyArray& Importi);

  /// What the producer's percents are of: 1 the premiums, 2 the office's amounts, 0 nothing chosen, which counts as 2.
  /// Other values leave it. The amounts follow when the operator leaves the list or the quota is applied again.
  std::uint8_t CALC_PROD() const;
  void CALC_PROD(std::uint8_t base);
  std::uint8_t CALC_PROD_ALT() const;
  void CALC_PROD_ALT(std::uint8_t base);

  /// The participant's quota in thousandths, QUOTE_POLIZZE.QUOTA; another quota is applied at once.
  std::int16_t QUOTA() const;
  void QUOTA(std::int16_t thousandths);

  /// The participant, QUOTE_POLIZZE.COD_COMP; shown with COMPAGNIE.DESC_COMPAGNIA.
  std::string COD_COMPAGNIA() const;
  void COD_COMPAGNIA(std::string_view code);

  /// The producer, QUOTE_POLIZZE.COD_PROD; shown with PRODUTTORI.DENOMINAZIONE. A code enables his frame, even on a
  /// panel that is frozen, and an empty one disables it; the amounts stay.
  std::string COD_PRODUTTORE() const;
  void COD_PRODUTTORE(std::string_view code);

  /// Lets the operator type: enables the office and each producer that has a code, and puts the focus on the office's
  /// first percent. Never fails.
  void Attiva();
  /// Freezes the panel: office, producer, alternate producer. The values stay, and amounts no longer follow. The field
  /// that had the focus is left first, with its TOTALI; what that fails with passes on, and the parties behind its own
  /// are not frozen.
  void Disattiva();

  /// The alternate producer, QUOTE_POLIZZE.COD_PROD_ALT; shown with name and PRODUTTORI.PERCALT. Otherwise as
  /// COD_PRODUTTORE.
  std::string COD_PRODUTTORE_ALT() const;
  void COD_PRODUTTORE_ALT(std::string_view code);

  /// Whether the participant is the lead coinsurer, QUOTE_POLIZZE.DELEGATARIA; takes effect when the quota is applied.
  bool DELEGATARIA() const;
  void DELEGATARIA(bool lead);

  /// What the office earns and what it passes on, as the summary shows them; a currency. Writing does nothing.
  Variant P_ATTIVE() const;
  void P_ATTIVE(const Variant& ignored);
  Variant P_PASSIVE() const;
  void P_PASSIVE(const Variant& ignored);

  toolkit::Surface& surface() const override { return *surface_; }
  std::span<const Member> members() const override { return publicMembers(); }
  static std::span<const Member> publicMembers();

 private:
  std::unique_ptr<toolkit::Surface> surface_;
  commissions::Rules& rules_;
};

}  // namespace qvn
