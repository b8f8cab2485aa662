#include "hosts/ufficio/register.h"

#include <array>

#include "hosts/ufficio/screens/makers.h"

namespace qvn::ufficio {

namespace {

constexpr std::array kScreens{
    ScreenClass{.name = "iva", .title = "Codici IVA", .make = screens::vatCodes},
    ScreenClass{.name = "provvigioni", .title = "Provvigioni di polizza", .make = screens::commissions},
    ScreenClass{.name = "quote-polizze", .title = "Quote di polizza", .make = screens::policyQuotas},
    ScreenClass{.name = "quote-sinistri", .title = "Quote di sinistro", .make = screens::claimQuotas},
    ScreenClass{.name = "sospesi", .title = "Titoli sospesi", .make = screens::titles},
    ScreenClass{.name = "estratti", .title = "Estratti conto", .make = screens::statements},
    ScreenClass{.name = "fidi", .title = "Fidi dei clienti", .make = screens::creditLines},
    ScreenClass{.name = "ricerca-polizze", .title = "Ricerca polizze", .make = screens::policySearch},
    ScreenClass{.name = "ricerca-sinistri", .title = "Ricerca sinistri", .make = screens::claimSearch},
    ScreenClass{.name = "righe-iva", .title = "Righe IVA dei movimenti", .make = screens::vatLines},
    ScreenClass{.name = "prima-nota", .title = "Prima nota", .make = screens::journalEntry},
    ScreenClass{.name = "giornale", .title = "Stampa del giornale", .make = screens::journalPrint},
    ScreenClass{.name = "tipi-movimenti", .title = "Tipi di movimento", .make = screens::movementTypes},
    ScreenClass{.name = "righe-tipi", .title = "Righe dei tipi di movimento", .make = screens::movementTypeLines},
    ScreenClass{.name = "stampe-contabili", .title = "Stampe contabili", .make = screens::accountingPrints},
    ScreenClass{.name = "rami", .title = "Rami", .make = screens::branches},
};

}  // namespace

std::span<const ScreenClass> screenClasses() { return kScreens; }

}  // namespace qvn::ufficio
