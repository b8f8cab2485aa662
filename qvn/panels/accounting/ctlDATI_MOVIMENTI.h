// One line of the template of a movement type.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "qvn/shared/variant.h"
#include "qvn/toolkit/panel.h"

namespace qvn {

/// One line of the template of a movement type: its number, the account that it posts to, debit or credit, whether it
/// repeats, and whether it carries VAT and of which kind.
///
/// What the widgets show is the panel's only state. The lists show "AVERE" and "ACQUISTI" from the start: the container
/// hears "TIPO" and "TIPO_IVA" while the panel is being made. No value of the panel is a number, so that no conversion
/// can fail.
class ctlDATI_MOVIMENTI final : public Panel {
 public:
  explicit ctlDATI_MOVIMENTI(const PanelSite& site);

  /// Lets the operator type: enables the fields and puts the focus on the ledger. Never fails.
  void Attiva();
  /// Freezes the panel. The values stay visible and readable.
  void Disattiva();

  /// The number of the line, as the host gives it.
  std::string PROGRESSIVO() const;
  void PROGRESSIVO(std::string_view number);

  /// Whether the line carries VAT; only then can its kind be chosen by hand.
  bool IVA() const;
  void IVA(bool carries);

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

  /// Whether the line repeats.
  bool RIPETI() const;
  void RIPETI(bool repeats);

  /// "D" for a debit, "DARE", "A" for a credit, "AVERE". Writing another text does nothing.
  std::string TIPO() const;
  void TIPO(std::string_view side);

  /// "A" for "ACQUISTI", "C" for "CORRISPETTIVI", whether or not the line carries VAT. Writing another text does
  /// nothing.
  std::string TIPO_IVA() const;
  void TIPO_IVA(std::string_view kind);

  toolkit::Surface& surface() const override { return *surface_; }
  std::span<const Member> members() const override { return publicMembers(); }
  static std::span<const Member> publicMembers();

 private:
  void wire();

  std::unique_ptr<toolkit::Surface> surface_;
  toolkit::Frame& Frame1_;
  toolkit::Label& lblPROGRESSIVO_;
  toolkit::TextBox& txtMASTRO_;
  toolkit::TextBox& TxtCONTO_;
  toolkit::CheckBox& ChkRIPETI_;
  toolkit::ComboBox& cmbTIPO_;
  toolkit::Label& lblDESC_CONTO_;
  toolkit::CheckBox& ChkIVA_;
  toolkit::ComboBox& CmbTIPO_IVA_;
};

}  // namespace qvn
