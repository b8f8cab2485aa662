// The two-part key of an account, as the panels that post to one have it.
#pragma once

#include <cstdint>

#include "qvn/toolkit/widget.h"

namespace qvn::accounting {

/// The fields of a ledger and of an account in it, and the label that tells what the two stand for. The widgets are of
/// one panel.
struct AccountKey {
  toolkit::TextBox& mastro;
  toolkit::TextBox& conto;
  toolkit::Label& description;
};

/// Characters that a hand types into a ledger.
inline constexpr std::int16_t kMastroLength = 4;

/// Wires the two fields, but for the keys of the ledger, which differ from panel to panel.
///
/// A change is announced as "MASTRO" or "CONTO", and then the label shows MASTRI.DESCRIZIONE of a ledger alone,
/// CONTI.DESCRIZIONE of both, and nothing without a ledger or where none is found. A look-up that fails passes on, and
/// the label keeps what it shows.
///
/// "?" in the account opens the list of accounts for what is in both fields, "%" standing for an empty one. Of what is
/// chosen the ledger is written first and then the account, which is selected; a part that is empty is not written.
/// Any other key goes to FiltroTesto, with six characters.
void wire(const AccountKey& key);

}  // namespace qvn::accounting
