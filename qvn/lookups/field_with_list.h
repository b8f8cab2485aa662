// Fields in which the key "?" opens a pick list.
//
// A panel may be dropped while a list stands open over it. The field's memory stands until the key at hand is done, and
// writePicked() writes nothing then; outside a handler the caller of picked() and pickedAccount() holds the surface.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qvn/fields/text_field.h"
#include "qvn/toolkit/widget.h"

namespace qvn::lookups {

/// One of the pick lists with a code and a description.
using ListFunction = std::string (*)(std::string& code, std::string& description);

/// Whether the key is "?", which is cancelled then and so not typed.
bool asksForList(std::int16_t& KeyAscii);

/// The list for what is in the field, called with copies: the field keeps its text, quotes and all. Empty where nothing
/// was chosen.
std::string picked(const toolkit::TextBox& field, ListFunction list);

/// Writes what was chosen, unless that is empty or the field's panel was dropped meanwhile. Whether it wrote.
bool writePicked(toolkit::TextBox& field, std::string_view chosen);

/// KeyPress of a field with a list of its own. "?" opens it for the field's text, and what is chosen is written and
/// selected; any other key goes to the filter with its limit. A failure of the list passes on.
void keyOrList(toolkit::TextBox& field, std::int16_t& KeyAscii, ListFunction list, fields::Filter filter,
               std::int16_t limit);

/// The two keys of an account.
struct Account {
  std::string mastro;
  std::string conto;
};

/// The list of accounts for what is in the two fields, "%" standing for an empty one. Both parts are empty where
/// nothing was chosen.
Account pickedAccount(const toolkit::TextBox& mastro, const toolkit::TextBox& conto);

}  // namespace qvn::lookups
