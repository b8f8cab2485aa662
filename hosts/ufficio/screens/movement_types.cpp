// The types of movements: ctlMOVIMENTI on TIPI_MOVIMENTI.
#include <array>

#include "hosts/ufficio/record_screen.h"
#include "hosts/ufficio/screens/makers.h"

namespace qvn::ufficio::screens {

namespace {

constexpr std::array<std::string_view, 1> kKey{"COD_MOVIMENTO"};

constexpr std::array kFields{
    Field{"COD_MOVIMENTO", "COD_MOVIMENTO", Kind::Number},
    Field{"DESCRIZIONE", "DESCRIZIONE", Kind::Text},
};

constexpr std::array kUses{
    Use{"MOVIMENTI", "COD_MOVIMENTO", "una registrazione di prima nota"},
    Use{"DATI_MOVIMENTI", "COD_MOVIMENTO", "una riga che definisce questo tipo di movimento"},
};

constexpr RecordDescription kMovementTypes{
    .panelClass = "ctlMOVIMENTI",
    .find =
        "SELECT COD_MOVIMENTO || '  ' || DESCRIZIONE AS TESTO, COD_MOVIMENTO FROM TIPI_MOVIMENTI "
        "WHERE holds(TESTO, ?1) ORDER BY COD_MOVIMENTO LIMIT ?2",
    .table = "TIPI_MOVIMENTI",
    .key = kKey,
    .fields = kFields,
    .adding = Reach::Record,
    .needed = {"COD_MOVIMENTO", "il codice"},
    .uses = kUses,
};

}  // namespace

std::unique_ptr<Screen> movementTypes(const ScreenSite& site) {
  return std::make_unique<RecordScreen>(kMovementTypes, site);
}

}  // namespace qvn::ufficio::screens
