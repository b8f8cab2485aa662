// One line of an accounting movement.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "qvn/shared/currency.h"
#include "qvn/shared/variant.h"
#include "qvn/toolkit/panel.h"

namespace qvn {

/// One line of a movement: the account that it posts to, debit or credit, two lines of description and the amount.
///
/// The texts of the fields and the item of the list are the panel's only state. Unlike the other panels it is made
/// enabled. The list shows "AVERE", on green, from the start: the container hears "TIPO" while the panel is being made.
class ctlINS_MOVIMENTI final : public Panel {
 public:
  explicit ctlINS_MOVIMENTI(const PanelSite& site);

  /// Freezes the panel. The values stay visible and readable. The field that had the focus is left first; what its
  /// announcement fails with passes on.
  void Disattiva();
  /// Lets the operator type: enables the fields and puts the focus on the ledger. Never fails.
  void Attiva();

  /// The object by which the library asks for its database.
  EventsReference Events() const;

  /// The ledger, MASTRI.MASTRO; 4 characters when typed. Another text is looked up, with the account: a look-up that
  /// fails passes on, with the text written.
  std::string Mastro() const;
  void Mastro(std::string_view ledger);
  /// The account in the ledger, CONTI.CONTO; 6 characters when typed. Another text is looked up as the ledger is.
  std::string Conto() const;
  void Conto(std::string_view account);
  /// What stands below the key, up to the next change of the key.
  void DESC_CONTO(std::string_view description);

  /// "D" for a debit, "DARE" on red, "A" for a credit, "AVERE" on green. Writing another text does nothing.
  std::string TIPO() const;
  void TIPO(std::string_view side);

  /// The two lines of description; 50 characters each when typed.
  std::string DESC_1() const;
  void DESC_1(std::string_view text);
  std::string DESC_2() const;
  void DESC_2(std::string_view text);

  /// The amount, shown under "Currency". A new panel holds 0,0001, so that the first write shows its amount, zero too.
  /// Reading and writing fail with "type mismatch" where the field holds no number, as an emptied one does, and with
  /// "overflow" where it is out of range, naming the field.
  Currency IMPORTO() const;
  void IMPORTO(Currency amount);

  toolkit::Surface& surface() const override { return *surface_; }
  std::span<const Member> members() const override { return publicMembers(); }
  static std::span<const Member> publicMembers();

 private:
  void wire();

  std::unique_ptr<toolkit::Surface> surface_;
  toolkit::Frame& Frame1_;
  toolkit::TextBox& txtMASTRO_;
  toolkit::TextBox& TxtCONTO_;
  toolkit::Label& LblDESC_CONTO_;
  toolkit::TextBox& TxtDESC_1_;
  toolkit::TextBox& TxtDESC_2_;
  toolkit::ComboBox& cmbTIPO_;
  toolkit::TextBox& TxtIMPORTO_;
};

}  // namespace qvn
