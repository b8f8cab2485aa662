// The VAT line of a movement.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "qvn/shared/currency.h"
#include "qvn/shared/variant.h"
#include "qvn/toolkit/panel.h"

namespace qvn {

/// One VAT line: a code of TIPI_IVA, a taxable amount and its VAT. Leaving the taxable amount works out a VAT that is
/// still 0; leaving the VAT works out a taxable amount that is still 0, by the rate that the code's label shows.
///
/// The texts of the fields are the panel's only state. An amount whose text is no number fails with "type mismatch"
/// when it is read or written, and one out of range with "overflow", naming the field.
class ctlINS_IVA final : public Panel {
 public:
  explicit ctlINS_IVA(const PanelSite& site);

  /// Freezes the panel. The values stay visible and readable. The field that had the focus is left first, and fails as
  /// it does under the operator's hand: leaving a VAT fails with "type mismatch" without a rate, with "division by
  /// zero" at a rate of 0. The panel is frozen all the same.
  void Disattiva();
  /// Lets the operator type: enables the fields and puts the focus on the code. Never fails.
  void Attiva();

  /// The object by which the library asks for its database.
  EventsReference Events() const;

  /// The VAT code, TIPI_IVA.COD_IVA. Another text is looked up, as it is: one that is no number fails with "database".
  /// An empty one becomes "0", with no description and no rate.
  std::string COD_IVA() const;
  void COD_IVA(std::string_view code);

  /// The taxable amount, shown under "Currency". Writing works out nothing.
  Currency IMPONIBILE() const;
  void IMPONIBILE(Currency amount);

  /// The VAT, shown under "Currency". Writing works out nothing.
  Currency IVA() const;
  void IVA(Currency amount);

  toolkit::Surface& surface() const override { return *surface_; }
  std::span<const Member> members() const override { return publicMembers(); }
  static std::span<const Member> publicMembers();

 private:
  void wire();

  std::unique_ptr<toolkit::Surface> surface_;
  toolkit::Frame& Frame1_;
  toolkit::TextBox& txtCOD_IVA_;
  toolkit::Label& LblDESC_IVA_;
  toolkit::Label& lblIVA_;
  toolkit::TextBox& TxtIMPONIBILE_;
  toolkit::TextBox& TxtIVA_;
};

}  // namespace qvn
