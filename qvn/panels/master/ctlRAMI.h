// The insurance branch panel.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "qvn/toolkit/panel.h"

namespace qvn {

/// One record of RAMI: an insurance branch with its description, the kind of screen that its policies use, and a flag.
///
/// What the widgets show is the panel's only state. A new panel has no kind of screen, and none of its properties fails
/// when it is read.
class ctlRAMI final : public Panel {
 public:
  explicit ctlRAMI(const PanelSite& site);

  /// The code, RAMI.COD_RAMO; two characters when typed, letters in upper case.
  std::string COD_RAMO() const;
  void COD_RAMO(std::string_view code);

  /// The flag as text: "1" ticked, "0" not. Writing reads the text as a number in the locale's form, rounded to a whole
  /// one, ties to even. It fails with "type mismatch" on a text that is no number, with "overflow" beyond 16 bits, and
  /// with "invalid call" on a number other than 0 and 1, naming the check box, which stays as it was.
  std::string competenze() const;
  void competenze(std::string_view state);

  /// The description, RAMI.DESCRIZIONE; 50 characters when typed.
  std::string DESCRIZIONE() const;
  void DESCRIZIONE(std::string_view description);

  /// The kind of screen, RAMI.TIPO_SK: 1 "Elementari", 2 "Auto", 3 "Vita", 4 "Cauzioni"; 0 where none is chosen.
  /// Writing any other number leaves the one that is shown.
  std::int16_t TIPO_SK() const;
  void TIPO_SK(std::int16_t kind);

  /// Lets the operator type: enables the fields and puts the focus on the code. Never fails: on a panel that cannot
  /// take the focus yet the fields end enabled all the same.
  void Attiva();
  /// Freezes the panel. The values stay visible and readable.
  void Disattiva();

  toolkit::Surface& surface() const override { return *surface_; }
  std::span<const Member> members() const override { return publicMembers(); }
  static std::span<const Member> publicMembers();

 private:
  void wire();

  std::unique_ptr<toolkit::Surface> surface_;
  toolkit::Frame& Frame1_;
  toolkit::TextBox& TxtCOD_RAMO_;
  toolkit::TextBox& txtDescrizione_;
  toolkit::ComboBox& CmbTIPO_SK_;
  toolkit::CheckBox& ckCompetenze_;
};

}  // namespace qvn
