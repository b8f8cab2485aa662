// The policy search result panel.
#pragma once

#include <memory>
#include <string_view>

#include "qvn/shared/currency.h"
#include "qvn/shared/variant.h"
#include "qvn/toolkit/panel.h"

namespace qvn {

/// One policy that a search of the host has found, told by PROT, which brings its lead company and lead producer. Three
/// buttons show how the policy divides among companies, producers and alternate producers, by the figures that its
/// current calculation holds. The panel can be used as soon as it exists, takes no typing, and announces nothing.
///
/// The captions are the panel's only state. What is shown is not handed back: every property reads as the empty value
/// of its type. Written values show as text; but for the date and the state, a Null fails with "invalid use of null",
/// and what has no text with "type mismatch", naming the label.
///
/// The host writes the properties in any order, but COD_GR before STATO.
class ctlRICERCA final : public Panel {
 public:
  explicit ctlRICERCA(const PanelSite& site);

  /// The client's name. Reads as Empty.
  Variant CLIENTE() const;
  void CLIENTE(const Variant& client);

  /// The object by which the library asks for its database.
  EventsReference Events() const;

  /// The protocol number of the policy, POLIZZE.PROT. Reads as Empty. A change looks up the lead company, then the lead
  /// producer, each with its name, and fails as a look-up does, which leaves what stands behind it as it was; or, with
  /// nothing looked up, with "type mismatch" or "overflow" where it is no 32-bit integer, the empty text among them.
  /// The caption stays written.
  Variant PROT() const;
  void PROT(const Variant& number);

  /// The share of the risk, in thousandths. Reads as Empty.
  Variant QUOTA() const;
  void QUOTA(const Variant& quota);

  /// The gross premium of the policy, shown under "Currency". Reads as 0.
  Currency PL() const;
  void PL(Currency premium);

  /// The date of the next instalment, shown under "dd/mm/yyyy"; the no-date mark, Null and Empty show nothing. Reads as
  /// Empty.
  Variant DATA_RATA() const;
  void DATA_RATA(const Variant& date);

  /// The policy's number. Reads as Empty.
  Variant N_POLIZZA() const;
  void N_POLIZZA(const Variant& number);

  /// The code of the insurance branch, RAMI.COD_RAMO, by which STATO is told. Reads as Empty.
  Variant COD_GR() const;
  void COD_GR(const Variant& code);

  /// The description of the sub-branch. Reads as Empty.
  Variant DESC_SRAMO() const;
  void DESC_SRAMO(const Variant& description);

  /// The kind of the instalments. Reads as Empty.
  Variant TIPO_RATA() const;
  void TIPO_RATA(const Variant& kind);

  /// The group of the insured. Reads as Empty.
  Variant GRUPPO() const;
  void GRUPPO(const Variant& group);

  /// The policy's state by its letter, POLIZZE.STATO: "A" or "D", exact in case; any other value shows none. Reads as
  /// Empty. "D" looks up the branch of COD_GR, and fails as the look-up does; the former state stays then.
  Variant STATO() const;
  void STATO(const Variant& letter);

  /// What is insured. Reads as Empty.
  Variant INT_ASS() const;
  void INT_ASS(const Variant& interest);

  toolkit::Surface& surface() const override { return *surface_; }
  std::span<const Member> members() const override { return publicMembers(); }
  static std::span<const Member> publicMembers();

 private:
  void wire();
  toolkit::Label& label(std::string_view name) const { return surface_->label(name); }

  std::unique_ptr<toolkit::Surface> surface_;
};

}  // namespace qvn
