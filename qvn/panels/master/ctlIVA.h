// The VAT code panel.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "qvn/toolkit/panel.h"

namespace qvn {

/// One record of TIPI_IVA: a VAT code with its description, rate and deductible share.
///
/// The texts of the fields are the panel's only state. A numeric property of an empty field, as on a new panel, fails
/// with "type mismatch" when it is read, and one whose text is out of range with "overflow".
class ctlIVA final : public Panel {
 public:
  explicit ctlIVA(const PanelSite& site);

  /// The VAT code, TIPI_IVA.COD_IVA; two digits when typed.
  std::uint8_t Codice() const;
  void Codice(std::uint8_t code);

  /// The deductible share in whole percent, TIPI_IVA.Deb_Dec; a value above 100 becomes 100.
  std::uint8_t Deb_Dec() const;
  void Deb_Dec(std::uint8_t percent);

  /// The description, TIPI_IVA.DESCRIZIONE; 50 characters when typed.
  std::string DESCRIZIONE() const;
  void DESCRIZIONE(std::string_view description);

  /// Lets the operator type: enables the fields and puts the focus on the code. Never fails: on a panel that cannot
  /// take the focus yet the fields end enabled all the same.
  void Attiva();
  /// Freezes the panel. The values stay visible and readable.
  void Disattiva();

  /// The rate in whole percent, TIPI_IVA.IVA; a value above 100 becomes 100.
  std::uint8_t IVA() const;
  void IVA(std::uint8_t percent);

  toolkit::Surface& surface() const override { return *surface_; }
  std::span<const Member> members() const override { return publicMembers(); }
  static std::span<const Member> publicMembers();

 private:
  void wire();

  std::unique_ptr<toolkit::Surface> surface_;
  toolkit::Frame& Frame1_;
  toolkit::TextBox& TxtCodice_;
  toolkit::TextBox& txtDescrizione_;
  toolkit::TextBox& TxtIVA_;
  toolkit::TextBox& txtDeb_Dec_;
};

}  // namespace qvn
