// One line of the printed journal.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "qvn/shared/currency.h"
#include "qvn/shared/variant.h"
#include "qvn/toolkit/panel.h"

namespace qvn {

/// One line of the printed journal as it shows on screen: its reference and date, the document, two lines of
/// description, and the amount in the debit or the credit column. The operator types a flag and nothing else.
///
/// What the host alone owns is shown and not handed back: such a property reads as the empty value of its type. The
/// widgets are the panel's only state.
class ctlSTP_MOVIMENTI final : public Panel {
 public:
  explicit ctlSTP_MOVIMENTI(const PanelSite& site);

  /// The flag; three characters when typed, letters in upper case.
  std::string FLAG() const;
  void FLAG(std::string_view flag);

  /// The number of the reference. Reads as 0.
  std::int32_t NRIF() const;
  void NRIF(std::int32_t number);

  /// The date of the reference, shown as the value's general text. Reads as Empty. Writing fails as conversions to text
  /// do, naming the label: a Null with "invalid use of null".
  Variant DATA_RIF() const;
  void DATA_RIF(const Variant& date);

  /// The number of the document. Reads as the empty text.
  std::string NDOC() const;
  void NDOC(std::string_view number);

  /// The two lines of description. They read as the empty text.
  std::string DESC_1() const;
  void DESC_1(std::string_view description);
  std::string DESC_2() const;
  void DESC_2(std::string_view description);

  /// The amount, kept unseen until TIPO is written. Reads as 0.
  Currency IMPORTO() const;
  void IMPORTO(Currency amount);

  /// Shows the amount under "Currency" in the debit column for "D" and in the credit column for any other text, and a
  /// zero in the other one. Without an amount the column is empty. Reads as the empty text.
  std::string TIPO() const;
  void TIPO(std::string_view side);

  /// Lets the operator type: enables the flag and puts the focus on it. Never fails: on a panel that cannot take the
  /// focus yet the flag ends enabled all the same.
  void Attiva();
  /// Freezes the panel. The values stay visible and readable. Never fails either.
  void Disattiva();

  toolkit::Surface& surface() const override { return *surface_; }
  std::span<const Member> members() const override { return publicMembers(); }
  static std::span<const Member> publicMembers();

 private:
  std::unique_ptr<toolkit::Surface> surface_;
  toolkit::Frame& Frame1_;
  toolkit::TextBox& TxtFLAG_;
  toolkit::Label& LblAVERE_;
  toolkit::Label& LblDARE_;
  toolkit::Label& LblDESC_2_;
  toolkit::Label& LblDESC_1_;
  toolkit::Label& LblDOC_;
  toolkit::Label& LblDATA_RIF_;
  toolkit::Label& LblRIF_;
  toolkit::Label& LblIMPORTO_;
};

}  // namespace qvn
