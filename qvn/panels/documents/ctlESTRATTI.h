// The line of an account statement.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "qvn/shared/currency.h"
#include "qvn/shared/variant.h"
#include "qvn/toolkit/panel.h"

namespace qvn {

/// One line of an account statement: a document of a policy with its premium, refund and commission, and whether it is
/// still open on the statements to the company and to the producers.
///
/// The widgets and the two codes of producers are the panel's only state. Amounts are shown under "Currency"; writing
/// an equal one leaves the text in the form that it has. A text that is no amount fails with "type mismatch" where it
/// is read or written over, and one out of range with "overflow", naming the field.
///
/// A date reads as its field gives it: the text "dd/mm/yyyy", or Null where it is blank. Writing the date that is
/// shown, or Null, does nothing, and the no-date mark blanks the field; what is no date fails with "type mismatch",
/// naming the field.
class ctlESTRATTI final : public Panel {
 public:
  /// A new one shows the kind "P - Polizza", and announces that.
  explicit ctlESTRATTI(const PanelSite& site);
  ~ctlESTRATTI() override;

  /// The client's code, CLIENTI.COD_CLIENTE.
  std::string COD_CLIENTE() const;
  void COD_CLIENTE(std::string_view code);

  /// The object by which the library asks for its database.
  EventsReference Events() const;

  /// The premium.
  Currency PREMIO() const;
  void PREMIO(Currency amount);

  /// The commission.
  Currency PROVVIGIONE() const;
  void PROVVIGIONE(Currency amount);

  /// The date of the statement.
  Variant DATA_EC() const;
  void DATA_EC(const Variant& date);

  /// The policy's number.
  std::string N_POLIZZA() const;
  void N_POLIZZA(std::string_view number);

  /// The group's code, which is only shown. Reads as the empty text.
  std::string COD_GR() const;
  void COD_GR(std::string_view code);

  /// The initials of the sub-branch, SOTTORAMI.sigla.
  std::string SIGLA_SRAMO() const;
  void SIGLA_SRAMO(std::string_view initials);

  /// The kind of the document by its letter: "P", "A", "Q" or "V". Any other text leaves the kind that is shown. Reads
  /// as the empty text where none is.
  std::string TIPO_DOC() const;
  void TIPO_DOC(std::string_view letter);

  /// The refund.
  Currency RIMBORSO() const;
  void RIMBORSO(Currency amount);

  /// The insured interest.
  std::string INT_ASS() const;
  void INT_ASS(std::string_view interest);

  /// The date of the receipt.
  Variant DATA_QUIET() const;
  void DATA_QUIET(const Variant& date);

  /// The date of registration, which is only shown, under "dd/mm/yyyy"; the no-date mark, Null and Empty show nothing.
  /// Reads as Empty.
  Variant DATA_REG() const;
  void DATA_REG(const Variant& date);

  /// Lets the operator type: enables the fields and puts the focus on DATA_EC. The state with the producers is left out
  /// where the line has neither a producer nor an alternate one. Never fails.
  void Attiva();
  /// Freezes the panel. The values stay visible and readable. The field that had the focus is left first; what its
  /// announcement fails with passes on.
  void Disattiva();

  /// Whether the document is cancelled. Announced as "ANN".
  bool ANNULLATA() const;
  void ANNULLATA(bool cancelled);

  /// Whether the line shows in print.
  bool STAMPA() const;
  void STAMPA(bool shown);

  /// The state of the line on the company's statements: empty while it is open, which the empty text, Null and Empty
  /// write, and "S" once it is discharged, which anything else writes; an array or an object fails with "type
  /// mismatch", naming the list. Reading as well as writing colours the list by its state, red while it is open or
  /// shows none, green once discharged, and nothing else does.
  Variant ST_COMP() const;
  void ST_COMP(const Variant& state);

  /// The same on the producers' statements.
  Variant ST_PROD() const;
  void ST_PROD(const Variant& state);

  /// The code of the line's producer, PRODUTTORI.COD_PROD, kept for the next Attiva.
  std::string COD_PROD() const;
  void COD_PROD(std::string_view code);

  /// The code of the line's alternate producer, kept likewise.
  std::string COD_PROD_ALT() const;
  void COD_PROD_ALT(std::string_view code);

  toolkit::Surface& surface() const override { return *surface_; }
  std::span<const Member> members() const override { return publicMembers(); }
  static std::span<const Member> publicMembers();

 private:
  struct Producers;

  void wire();

  std::unique_ptr<toolkit::Surface> surface_;
  toolkit::Frame& FrmDATI_ESTRATTO_;
  toolkit::DateControl& TxtDATA_EC_;
  toolkit::ComboBox& CmbTIPO_DOC_;
  toolkit::TextBox& TxtSIGLA_SRAMO_;
  toolkit::TextBox& TxtN_POLIZZA_;
  toolkit::TextBox& TxtCOD_CLI_;
  toolkit::DateControl& TxtDATA_QUIET_;
  toolkit::CheckBox& ChkANNULLATA_;
  toolkit::TextBox& TxtINT_ASS_;
  toolkit::Label& LblCOD_GR_;
  toolkit::Label& LblDATA_REG_;
  toolkit::TextBox& TxtPREMIO_;
  toolkit::TextBox& TxtRIMBORSO_;
  toolkit::TextBox& TxtPROVVIGIONE_;
  toolkit::ComboBox& CmbST_COMP_;
  toolkit::ComboBox& CmbST_PROD_;
  toolkit::CheckBox& chkSTAMPA_;
  Producers& producers_;
};

}  // namespace qvn
