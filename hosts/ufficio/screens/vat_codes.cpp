// The VAT codes: ctlIVA on TIPI_IVA.
#include <array>

#include "hosts/ufficio/journal/vat_line.h"
#include "hosts/ufficio/record_screen.h"
#include "hosts/ufficio/screens/makers.h"

namespace qvn::ufficio::screens {

namespace {

constexpr std::array<std::string_view, 1> kKey{"COD_IVA"};

constexpr std::array kFields{
    Field{"Codice", "COD_IVA", Kind::Number},
    Field{"DESCRIZIONE", "DESCRIZIONE", Kind::Text},
    Field{"IVA", "IVA", Kind::Number},
    Field{"Deb_Dec", "Deb_Dec", Kind::Number},
};

constexpr std::array kUses{
    Use{journal::kVatTable, "COD_IVA", "una riga IVA"},
};

constexpr RecordDescription kVatCodes{
    .panelClass = "ctlIVA",
    .find =
        "SELECT COD_IVA || '  ' || DESCRIZIONE AS TESTO, COD_IVA FROM TIPI_IVA "
        "WHERE holds(TESTO, ?1) ORDER BY COD_IVA LIMIT ?2",
    .table = "TIPI_IVA",
    .key = kKey,
    .fields = kFields,
    .adding = Reach::Record,
    .needed = {"COD_IVA", "il codice"},
    .uses = kUses,
};

}  // namespace

std::unique_ptr<Screen> vatCodes(const ScreenSite& site) { return std::make_unique<RecordScreen>(kVatCodes, site); }

}  // namespace qvn::ufficio::screens
