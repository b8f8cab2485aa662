// The claim search result panel.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "qvn/shared/variant.h"
#include "qvn/toolkit/panel.h"

namespace qvn {

/// One claim that a search of the host has found, told by its number in PROT, which brings its lead company. The
/// producer is the host's to give. A button shows how the damage divides among the companies. The panel can be used as
/// soon as it exists, takes no typing, and announces nothing.
///
/// The captions are the panel's only state. What is shown is not handed back: every property reads as the empty value
/// of its type. Written values show as text; but for the date and the state, a Null fails with "invalid use of null",
/// and what has no text with "type mismatch", naming the label.
///
/// The host writes the properties in any order, but COD_GR before STATO. What a label holds is told by its property,
/// not by its tooltip.
class ctlRIC_SINISTRI final : public Panel {
 public:
  explicit ctlRIC_SINISTRI(const PanelSite& site);

  /// The client's name. Reads as Empty.
  Variant CLIENTE() const;
  void CLIENTE(const Variant& client);

  /// The object by which the library asks for its database.
  EventsReference Events() const;

  /// The number of the claim, SINISTRI.N_SINISTRO, a text. Reads as Empty. A change looks up the lead company of
  /// the number without its quotes, and the company's name, and fails as a look-up does; the caption stays written.
  Variant PROT() const;
  void PROT(const Variant& number);

  /// The share of the risk, in thousandths. Reads as Empty.
  Variant QUOTA() const;
  void QUOTA(const Variant& quota);

  /// The damage, as the host has formatted it. Reads as Empty.
  Variant DANNO() const;
  void DANNO(const Variant& damage);

  /// The date of the claim, shown under "dd/mm/yyyy"; the no-date mark, Null and Empty show nothing. Reads as Empty.
  Variant DATA_SINISTRO() const;
  void DATA_SINISTRO(const Variant& date);

  /// The policy's number. Reads as Empty.
  Variant N_POLIZZA() const;
  void N_POLIZZA(const Variant& number);

  /// The code of the insurance branch, RAMI.COD_RAMO, by which STATO is told. Reads as Empty.
  Variant COD_GR() const;
  void COD_GR(const Variant& code);

  /// The description of the sub-branch. Reads as Empty.
  Variant DESC_SRAMO() const;
  void DESC_SRAMO(const Variant& description);

  /// The other party. Reads as Empty.
  Variant CONTROPARTE() const;
  void CONTROPARTE(const Variant& party);

  /// The state by its letter: "A" or "D", exact in case; any other value shows none. Reads as Empty. "D" looks up the
  /// branch of COD_GR, and fails as the look-up does; the former state stays then.
  Variant STATO() const;
  void STATO(const Variant& letter);

  /// What is insured. Reads as Empty.
  Variant INT_ASS() const;
  void INT_ASS(const Variant& interest);

  /// The producer, PRODUTTORI.COD_PROD, which is looked up. Reads as the empty text. A change fails as the look-up
  /// does; the code stays written.
  std::string COD_PROD() const;
  void COD_PROD(std::string_view code);

  toolkit::Surface& surface() const override { return *surface_; }
  std::span<const Member> members() const override { return publicMembers(); }
  static std::span<const Member> publicMembers();

 private:
  void wire();
  toolkit::Label& label(std::string_view name) const { return surface_->label(name); }

  std::unique_ptr<toolkit::Surface> surface_;
};

}  // namespace qvn
