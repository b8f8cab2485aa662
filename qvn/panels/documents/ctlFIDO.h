// The credit line of a client with a company.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "qvn/shared/currency.h"
#include "qvn/shared/variant.h"
#include "qvn/toolkit/panel.h"

namespace qvn {

/// One credit line: the amount that a company grants to a client, and the date from which it holds. Beside the amount
/// stands what the client has open with that company already; the two are not compared.
///
/// The texts of the widgets are the panel's only state. The host writes COD_CLIENTE before COD_COMP, since the exposure
/// is worked out as the company changes and at no other time.
class ctlFIDO final : public Panel {
 public:
  explicit ctlFIDO(const PanelSite& site);

  /// The company's code, COMPAGNIE.COD_COMP. Once a change is announced, the company's name is looked up and then the
  /// exposure of the client towards it, which shows under "Currency", or nothing where none of the client's policies is
  /// in force with it. A look-up that fails passes on, and what was to be shown from there on stays as it was.
  std::string COD_COMP() const;
  void COD_COMP(std::string_view code);

  /// The date from which the amount holds, as the field gives it: the text "dd/mm/yyyy", or Null where it is blank.
  /// Writing the date that is shown, or Null, does nothing, and the no-date mark blanks the field; what is no date
  /// fails with "type mismatch", naming the field.
  Variant DATA_FIDO() const;
  void DATA_FIDO(const Variant& date);

  /// Freezes the panel. The values stay visible and readable. The field that had the focus is left first; what its
  /// announcement fails with passes on.
  void Disattiva();

  /// The amount granted, shown under "Currency"; an equal one leaves the text in the form that it has. A text that is
  /// no amount fails with "type mismatch" where it is read or written over, and one out of range with "overflow",
  /// naming the field.
  Currency FIDO() const;
  void FIDO(Currency amount);

  /// The object by which the library asks for its database.
  EventsReference Events() const;

  /// Lets the operator type: enables the fields and puts the focus on the company. Never fails.
  void Attiva();

  /// The client's code, CLIENTI.COD_CLIENTE, kept unseen; it is looked up with the next change of the company. Reads as
  /// the empty text.
  std::string COD_CLIENTE() const;
  void COD_CLIENTE(std::string_view code);

  toolkit::Surface& surface() const override { return *surface_; }
  std::span<const Member> members() const override { return publicMembers(); }
  static std::span<const Member> publicMembers();

 private:
  void wire();

  std::unique_ptr<toolkit::Surface> surface_;
  toolkit::Frame& Frame1_;
  toolkit::TextBox& TxtCOD_COMP_;
  toolkit::DateControl& TxtDATA_FIDO_;
  toolkit::TextBox& TxtIMPORTO_;
  toolkit::Label& LblCOD_CLIENTE_;
};

}  // namespace qvn
