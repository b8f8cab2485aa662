// The insurance branches: ctlRAMI on RAMI.
#include <array>

#include "hosts/ufficio/record_screen.h"
#include "hosts/ufficio/screens/makers.h"

namespace qvn::ufficio::screens {

namespace {

constexpr std::array<std::string_view, 1> kKey{"COD_RAMO"};

constexpr std::array kFields{
    Field{"COD_RAMO", "COD_RAMO", Kind::Text},
    Field{"DESCRIZIONE", "DESCRIZIONE", Kind::Text},
    Field{"TIPO_SK", "TIPO_SK", Kind::Number},
    Field{"competenze", "competenze", Kind::Number},
};

constexpr std::array kUses{
    Use{"POLIZZE", "COD_RAMO", "una polizza"},
    Use{"SOTTORAMI", "COD_RAMO", "un sottoramo"},
    Use{"ESTRATTI", "COD_RAMO", "un estratto conto"},
};

constexpr RecordDescription kBranches{
    .panelClass = "ctlRAMI",
    .find =
        "SELECT COD_RAMO || '  ' || DESCRIZIONE AS TESTO, COD_RAMO FROM RAMI "
        "WHERE holds(TESTO, ?1) ORDER BY COD_RAMO LIMIT ?2",
    .table = "RAMI",
    .key = kKey,
    .fields = kFields,
    .adding = Reach::Record,
    .needed = {"COD_RAMO", "il codice"},
    .uses = kUses,
};

}  // namespace

std::unique_ptr<Screen> branches(const ScreenSite& site) { return std::make_unique<RecordScreen>(kBranches, site); }

}  // namespace qvn::ufficio::screens
