#include "qvn/lookups/field_with_list.h"

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/toolkit/surface.h"

namespace qvn::lookups {

namespace {

std::string chosenFrom(ListFunction list, std::string code) {
  std::string description;
  return list(code, description);
}

std::string orAny(const std::string& text) { return text.empty() ? "%" : text; }

}  // namespace

bool asksForList(std::int16_t& KeyAscii) {
  if (KeyAscii != '?') return false;
  KeyAscii = 0;
  return true;
}

std::string picked(const toolkit::TextBox& field, ListFunction list) { return chosenFrom(list, field.Text()); }

bool writePicked(toolkit::TextBox& field, std::string_view chosen) {
  if (chosen.empty() || field.owner().dropped()) return false;
  field.Text(chosen);
  return true;
}

void keyOrList(toolkit::TextBox& field, std::int16_t& KeyAscii, ListFunction list, fields::Filter filter,
               std::int16_t limit) {
  if (!asksForList(KeyAscii)) {
    filter(field, KeyAscii, limit);
    return;
  }
  const toolkit::Surface::Hold hold(field.owner());
  if (writePicked(field, picked(field, list))) Gest_SCHEDE::SelezionaTutto(field);
}

Account pickedAccount(const toolkit::TextBox& mastro, const toolkit::TextBox& conto) {
  const std::string chosen =
      chosenFrom(QVN_Ricerche::ListaCONTI, orAny(mastro.Text()).append("?").append(orAny(conto.Text())));
  const std::size_t mark = chosen.find('?');
  if (mark == std::string::npos) return {};
  return {.mastro = chosen.substr(0, mark), .conto = chosen.substr(mark + 1)};
}

}  // namespace qvn::lookups
