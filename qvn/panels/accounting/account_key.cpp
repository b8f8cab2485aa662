#include "qvn/panels/accounting/account_key.h"

#include <string>
#include <string_view>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/text_field.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/lookups/field_with_list.h"

namespace qvn::accounting {

namespace {

constexpr std::int16_t kContoLength = 6;

void describe(const AccountKey& key) {
  std::string mastro = key.mastro.Text();
  std::string conto = key.conto.Text();
  key.description.Caption(QVN_Ricerche::CercaDESC_CONTO(mastro, conto));
}

void wireField(const AccountKey& key, toolkit::TextBox& box, std::string_view property) {
  box.Change = [key, &box, property] {
    fields::announce(box, property);
    describe(key);
  };
  box.GotFocus = [&box] {
    Gest_SCHEDE::SelezionaTutto(box);
    Gest_SCHEDE::ColoreFuoco(box, Gest_SCHEDE::kFocusedWithList);
  };
  box.LostFocus = [&box] { Gest_SCHEDE::ColoreFuoco(box, Gest_SCHEDE::kAtRest); };
}

void contoKey(const AccountKey& key, std::int16_t& KeyAscii) {
  if (!lookups::asksForList(KeyAscii)) {
    Gest_SCHEDE::FiltroTesto(key.conto, KeyAscii, kContoLength);
    return;
  }
  const lookups::Account chosen = lookups::pickedAccount(key.mastro, key.conto);
  lookups::writePicked(key.mastro, chosen.mastro);
  if (lookups::writePicked(key.conto, chosen.conto)) Gest_SCHEDE::SelezionaTutto(key.conto);
}

}  // namespace

void wire(const AccountKey& key) {
  wireField(key, key.mastro, "MASTRO");
  wireField(key, key.conto, "CONTO");
  key.conto.KeyPress = [key](std::int16_t& KeyAscii) { contoKey(key, KeyAscii); };
}

}  // namespace qvn::accounting
