// The movement type panel.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "qvn/toolkit/panel.h"

namespace qvn {

/// One record of TIPI_MOVIMENTI: a movement type with its description.
///
/// The texts of the fields are the panel's only state. Both properties write their field at once, whatever it shows.
class ctlMOVIMENTI final : public Panel {
 public:
  explicit ctlMOVIMENTI(const PanelSite& site);

  /// Lets the operator type: enables the fields and puts the focus on the code. Never fails: on a panel that cannot
  /// take the focus yet the fields end enabled all the same.
  void Attiva();
  /// Freezes the panel. The values stay visible and readable.
  void Disattiva();

  /// The code, TIPI_MOVIMENTI.COD_MOVIMENTO; two digits when typed. Reading an empty field, as on a new panel, fails
  /// with "type mismatch", and a text out of range with "overflow".
  std::uint8_t COD_MOVIMENTO() const;
  void COD_MOVIMENTO(std::uint8_t code);

  /// The description, TIPI_MOVIMENTI.DESCRIZIONE; 50 characters when typed.
  std::string DESCRIZIONE() const;
  void DESCRIZIONE(std::string_view description);

  toolkit::Surface& surface() const override { return *surface_; }
  std::span<const Member> members() const override { return publicMembers(); }
  static std::span<const Member> publicMembers();

 private:
  std::unique_ptr<toolkit::Surface> surface_;
  toolkit::Frame& Frame1_;
  toolkit::TextBox& TxtCodice_;
  toolkit::TextBox& txtDescrizione_;
};

}  // namespace qvn
