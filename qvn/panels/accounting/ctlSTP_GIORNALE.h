// The header of the journal print.
#pragma once

#include <cstdint>
#include <memory>

#include "qvn/shared/currency.h"
#include "qvn/shared/variant.h"
#include "qvn/toolkit/panel.h"

namespace qvn {

/// The header of a journal print: its period, the count of its lines, the balances carried forward, and whether it is a
/// trial or the final one. The operator sets the last day and the flag; all else is shown as the host gives it.
///
/// The widgets are the panel's only state, and it works out nothing.
class ctlSTP_GIORNALE final : public Panel {
 public:
  explicit ctlSTP_GIORNALE(const PanelSite& site);

  /// Lets the operator type: enables the fields and puts the focus on the last day. Never fails: on a panel that cannot
  /// take the focus yet the fields end enabled all the same.
  void Attiva();
  /// Freezes the panel. The values stay visible and readable.
  void Disattiva();

  /// The first day: the text "dd/mm/yyyy", or Null where what is shown is no date. Writing shows a date under that
  /// pattern and any other text as it is; the no-date mark brings "##/##/####" back, and Null leaves what is shown.
  /// What has no text fails with "type mismatch", naming the label.
  Variant DA_DATA() const;
  void DA_DATA(const Variant& date);

  /// The last day, as the field gives it: the text "dd/mm/yyyy", or Null where it is blank. Writing the date that is
  /// shown, or Null, does nothing, and the no-date mark blanks the field; what is no date fails with "type mismatch",
  /// naming the field.
  Variant A_DATA() const;
  void A_DATA(const Variant& date);

  /// The count of the lines. Reads as 0.
  std::int32_t N_RIGHE() const;
  void N_RIGHE(std::int32_t lines);

  /// The balances carried forward, debit and credit, shown under "Currency"; one that is shown already stays in the
  /// form that it has. They read as 0.
  Currency DARE() const;
  void DARE(Currency balance);
  Currency AVERE() const;
  void AVERE(Currency balance);

  /// Whether the print is the final one. Nothing in the panel depends on it.
  bool DEFINITIVO() const;
  void DEFINITIVO(bool final);

  toolkit::Surface& surface() const override { return *surface_; }
  std::span<const Member> members() const override { return publicMembers(); }
  static std::span<const Member> publicMembers();

 private:
  std::unique_ptr<toolkit::Surface> surface_;
  toolkit::Frame& Frame1_;
  toolkit::Label& LblDA_DATA_;
  toolkit::DateControl& TxtA_DATA_;
  toolkit::CheckBox& ChkDEFINITIVO_;
  toolkit::Label& LblNRighe_;
  toolkit::Label& LblDARE_;
  toolkit::Label& LblAVERE_;
};

}  // namespace qvn
