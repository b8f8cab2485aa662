// The accounting print code panel.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "qvn/toolkit/panel.h"

namespace qvn {

/// One code of the accounting prints with its description. Both are texts, so that no conversion can fail; the texts of
/// the fields are the panel's only state.
class ctlSTP_CONTABILE final : public Panel {
 public:
  explicit ctlSTP_CONTABILE(const PanelSite& site);

  /// The code; five characters when typed, letters in upper case.
  std::string Codice() const;
  void Codice(std::string_view code);

  /// The description; 50 characters when typed.
  std::string DESCRIZIONE() const;
  void DESCRIZIONE(std::string_view description);

  /// Lets the operator type: enables the fields and puts the focus on the code. Never fails: on a panel that cannot
  /// take the focus yet the fields end enabled all the same.
  void Attiva();
  /// Freezes the panel. The values stay visible and readable.
  void Disattiva();

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
