// The quota of one participant of a coinsured claim.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "qvn/shared/currency.h"
#include "qvn/shared/variant.h"
#include "qvn/toolkit/panel.h"

namespace qvn {

/// One row of QUOTE_SINISTRI, and what its quota is worth of the claim's estimated and paid amounts.
///
/// The texts of the fields are the panel's only state beside the figures. The amounts follow the quota while its field
/// is enabled, and otherwise only where the host asks for them. Writing what a field shows already does nothing; any
/// other write runs the rules of the field, as typing does.
class ctlQ_SINISTRI final : public Panel {
 public:
  explicit ctlQ_SINISTRI(const PanelSite& site);
  ~ctlQ_SINISTRI() override;

  /// Shows what so many thousandths are worth, under "Currency". The field of the quota is left alone, but for an empty
  /// one, which becomes "0".
  void Calcola_QUOTA(const std::int16_t& xQUOTA);

  /// Takes the figures of the whole claim as they are: SINISTRI.D_STIMATO, SINISTRI.D_LIQUIDATO, and a third that shows
  /// nowhere. "subscript out of range" if the array has two dimensions or no such element; the elements before it are
  /// kept. Then shows what the quota of the field is worth.
  void Imposta_VALORI(const CurrencyArray& Valore);

  /// The object by which the library asks for its database.
  EventsReference Events() const;

  /// Lets the operator type: enables the fields and puts the focus on the quota. Never fails.
  void Attiva();
  /// Freezes the panel. The values stay visible and readable, and the amounts no longer follow.
  void Disattiva();

  /// The claim's number as the participant knows it; 20 characters when typed.
  std::string N_SINISTRO_COMP() const;
  void N_SINISTRO_COMP(std::string_view number);
  /// The participant, QUOTE_SINISTRI.COD_COMP; shown with COMPAGNIE.DESC_COMPAGNIA. A look-up that fails passes on,
  /// with the code written.
  std::string COD_COMP() const;
  void COD_COMP(std::string_view code);
  /// The participant's own number of the policy; 15 characters when typed.
  std::string N_POLIZZA() const;
  void N_POLIZZA(std::string_view number);

  /// The quota in thousandths, QUOTE_SINISTRI.QUOTA; an empty field reads 0, and a quota above 1000 becomes 1000. A
  /// quota below 0 is shown, but what is shown cannot be read: then both fail with "type mismatch", naming the field.
  std::int16_t QUOTA() const;
  void QUOTA(std::int16_t thousandths);

  /// Whether the participant is the lead coinsurer, QUOTE_SINISTRI.DELEGATARIA; no amount depends on it.
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
  toolkit::CheckBox& ChkDELEGATARIA_;
  toolkit::TextBox& TxtCOD_COMP_;
  toolkit::TextBox& TxtN_POLIZZA_;
  toolkit::TextBox& TxtN_SINISTRO_;
  Shares& shares_;
};

}  // namespace qvn
