// The outstanding title panel.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "qvn/shared/currency.h"
#include "qvn/shared/variant.h"
#include "qvn/toolkit/panel.h"

namespace qvn {

/// One outstanding title: a document of a policy that waits to be settled, told by PROT and PROG. The operator enters
/// two dates and picks what is to be done with the title, of what its state allows; the host reads these back and
/// carries the action out. Three buttons show how the title divides among companies and producers.
///
/// The widgets are the panel's only state. What the host alone owns is shown and not handed back: such a property
/// reads as the empty value of its type. Written values show as text; a Null fails with "invalid use of null", and what
/// has no text with "type mismatch", naming the label.
///
/// The host writes the properties in any order, then STATO, then N_STATO, which fills the list of actions, and then
/// calls Attiva.
class ctlSOSPESI final : public Panel {
 public:
  explicit ctlSOSPESI(const PanelSite& site);

  /// Lets the operator type: enables the two dates and the actions, and puts the focus on DATA_C. `autorizzato` is the
  /// right to cancel a title: without it "ANNULLA" goes from the actions, unless it is chosen already, and "N_STATO" is
  /// announced for each action looked at. Never fails; what fails on the way is passed over.
  void Attiva(bool autorizzato);
  /// Freezes the dates and the actions. The values stay visible and readable; an action that went stays away until
  /// N_STATO is written again.
  void Disattiva();

  /// The client's name. Reads as Empty.
  Variant CLIENTE() const;
  void CLIENTE(const Variant& client);

  /// The object by which the library asks for its database.
  EventsReference Events() const;

  /// The protocol number of the policy, SOSPESI.PROT. Reads as Empty. Once PROG stands as well, a change looks up the
  /// producer of the title's lead company, and fails as the look-up does, or with "type mismatch" or "overflow" where
  /// PROT is no 32-bit integer or PROG no 16-bit one; the caption stays written.
  Variant PROT() const;
  void PROT(const Variant& number);

  /// The share of the risk, in thousandths. Reads as Empty.
  Variant QUOTA() const;
  void QUOTA(const Variant& quota);

  /// The gross premium of the policy, shown under "Currency". Reads as 0.
  Currency PL() const;
  void PL(Currency premium);

  /// The date of the statement of account, shown under "dd/mm/yyyy"; the no-date mark, Null and Empty show nothing.
  /// Reads as Empty.
  Variant DATA_EC() const;
  void DATA_EC(const Variant& date);

  /// The policy's number. Reads as Empty.
  Variant N_POLIZZA() const;
  void N_POLIZZA(const Variant& number);

  /// The code of the insurance branch's group. Reads as Empty.
  Variant COD_GR() const;
  void COD_GR(const Variant& code);

  /// The description of the sub-branch. Reads as Empty.
  Variant DESC_SRAMO() const;
  void DESC_SRAMO(const Variant& description);

  /// The document's date, as the field gives it: the text "dd/mm/yyyy", or Null where it is blank. Writing the date
  /// that is shown, or Null, does nothing, and the no-date mark blanks the field; what is no date fails with "type
  /// mismatch", naming the field.
  Variant DATA_DOC() const;
  void DATA_DOC(const Variant& date);

  /// The date of the accounting action; as DATA_DOC.
  Variant DATA_C() const;
  void DATA_C(const Variant& date);

  /// The kind of the document. Reads as Empty.
  Variant TIPO_DOC() const;
  void TIPO_DOC(const Variant& kind);

  /// The title's state by its letter: "A", "I", "C", "S" or "N". Any other value leaves the state that is shown. Reads
  /// as Empty. The actions follow at the next writing of N_STATO.
  Variant STATO() const;
  void STATO(const Variant& letter);

  /// The action by its letter: "A" cancel, "R" reactivate, "I" collect, "C" cover; the empty text for none. Writing
  /// fills the list with what the state offers and selects the action, or none for any other value; an action that is
  /// not on offer fails with "invalid call", and none is selected.
  Variant N_STATO() const;
  void N_STATO(const Variant& letter);

  /// The running number of the title within its policy, SOSPESI.PROG, kept unseen. Reads as Empty. A change looks up
  /// and fails as that of PROT does.
  Variant PROG() const;
  void PROG(const Variant& number);

  /// The document's description. Reads as the empty text.
  std::string INT_ASS() const;
  void INT_ASS(std::string_view description);

  /// The lead company, COMPAGNIE.COD_COMP, which is looked up. Reads as Empty. A change fails as the look-up does; the
  /// code stays written.
  Variant COD_COMP_DEL() const;
  void COD_COMP_DEL(const Variant& code);

  toolkit::Surface& surface() const override { return *surface_; }
  std::span<const Member> members() const override { return publicMembers(); }
  static std::span<const Member> publicMembers();

 private:
  void wire();
  toolkit::Label& label(std::string_view name) const { return surface_->label(name); }

  std::unique_ptr<toolkit::Surface> surface_;
  toolkit::DateControl& TxtDATA_C_;
  toolkit::DateControl& TxtDATA_DOC_;
  toolkit::ComboBox& CmbTIPO_CONT_;
};

}  // namespace qvn
