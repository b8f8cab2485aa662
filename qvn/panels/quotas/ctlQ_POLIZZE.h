// The quota of one participant of a coinsured policy.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "qvn/shared/currency.h"
#include "qvn/shared/variant.h"
#include "qvn/toolkit/panel.h"

namespace qvn {

/// One row of QUOTE_POLIZZE, and what its quota is worth of each figure of the whole policy, in both families: the left
/// column of amounts shows _TAF, the right one _TRF.
///
/// The texts of the fields are the panel's only state beside the figures. The amounts follow the quota while its field
/// is enabled, and otherwise only where the host asks for them. Writing what a field shows already does nothing; any
/// other write runs the rules of the field, as typing does.
class ctlQ_POLIZZE final : public Panel {
 public:
  explicit ctlQ_POLIZZE(const PanelSite& site);
  ~ctlQ_POLIZZE() override;

  /// Shows what so many thousandths are worth to a participant: of each figure its share, under "Currency". The field
  /// of the quota is left alone, but for an empty one, which becomes "0".
  void Calcola_QUOTA(const std::int16_t& xQUOTA);
  /// As above to the lead coinsurer, who has what goes to it in full beside each share. An amount beyond the currency
  /// type fails with "overflow", naming the label; those before it stand.
  void Calcola_QUOTA_DELEGATARIA(const std::int16_t& xQUOTA);

  /// Takes the figures of the whole policy as they are, a row for each amount: in the first column the _TAF that the
  /// quota shares out, in the second what goes in full to the lead coinsurer, in the third the _TRF that the quota
  /// shares out. "subscript out of range" if the array has no such element; the elements before it are kept. Then shows
  /// what the quota of the field is worth, to the lead coinsurer or to another.
  void Imposta_VALORI(const CurrencyArray& Valore);

  /// The object by which the library asks for its database.
  EventsReference Events() const;

  /// Lets the operator type: enables the fields and puts the focus on the quota. Never fails.
  void Attiva();
  /// Freezes the panel. The values stay visible and readable, and the amounts no longer follow.
  void Disattiva();

  /// The producer, QUOTE_POLIZZE.COD_PROD; shown with PRODUTTORI.DENOMINAZIONE. A look-up that fails passes on, with
  /// the code written.
  std::string COD_PROD() const;
  void COD_PROD(std::string_view code);
  /// The participant, QUOTE_POLIZZE.COD_COMP; shown with COMPAGNIE.DESC_COMPAGNIA. Fails as COD_PROD.
  std::string COD_COMP() const;
  void COD_COMP(std::string_view code);
  /// The participant's own number of the policy; 15 characters when typed.
  std::string N_POLIZZA() const;
  void N_POLIZZA(std::string_view number);
  /// The alternate producer, QUOTE_POLIZZE.COD_PROD_ALT; shown with name and PRODUTTORI.PERCALT. Fails as COD_PROD.
  std::string COD_PROD_ALT() const;
  void COD_PROD_ALT(std::string_view code);

  /// The date of the remittance: Null where it is blank, a date in the form "dd/mm/yyyy", or what is no date where it
  /// is typed in part. The date of zero and its text "0.00.00" blank it, a Null leaves it, and what is no date fails
  /// with "type mismatch", naming the field.
  Variant D_RIMESSA() const;
  void D_RIMESSA(const Variant& date);

  /// The quota in thousandths, QUOTE_POLIZZE.QUOTA; an empty field reads 0, and a quota above 1000 becomes 1000. A
  /// quota below 0 is shown, but what is shown cannot be read: then both fail with "type mismatch", naming the field.
  std::int16_t QUOTA() const;
  void QUOTA(std::int16_t thousandths);

  /// Whether the participant is the lead coinsurer, QUOTE_POLIZZE.DELEGATARIA; the amounts follow at the next change of
  /// the quota.
  bool DELEGATARIA() const;
  void DELEGATARIA(bool lead);

  toolkit::Surface& surface() const override { return *surface_; }
  std::span<const Member> members() const override { return publicMembers(); }
  static std::span<const Member> publicMembers();

 private:
  class Shares;

  void wire();

  std::unique_ptr<toolkit::Surface> surface_;
  toolkit::TextBox& TxtQUOTA_;
  toolkit::TextBox& TxtCOD_COMP_;
  toolkit::TextBox& TxtCOD_PROD_;
  toolkit::TextBox& TxtCOD_PROD_ALT_;
  toolkit::TextBox& TxtN_POLIZZA_;
  toolkit::DateControl& TxtD_RIMESSA_;
  toolkit::CheckBox& ChkDELEGATARIA_;
  Shares& shares_;
};

}  // namespace qvn
