#include "qvn/shared/statements.h"

#include <array>

namespace qvn::statements {

namespace {

constexpr std::array<std::string_view, 4> kRami{
    "Select DESCRIZIONE, COD_RAMO From RAMI",
    "Select DESCRIZIONE, COD_RAMO From RAMI Where COD_RAMO Like '",
    "Select DESCRIZIONE, COD_RAMO From RAMI Where DESCRIZIONE Like '",
    "Select DESCRIZIONE From RAMI Where COD_RAMO = '",
};
constexpr std::array<std::string_view, 4> kAttivita{
    "Select DESCRIZIONE, COD From CODICI_ATTIVITA",
    "Select DESCRIZIONE, COD From CODICI_ATTIVITA Where COD like '",
    "Select DESCRIZIONE, COD From CODICI_ATTIVITA Where DESCRIZIONE like '",
    "Select DESCRIZIONE, COD From CODICI_ATTIVITA Where DESCRIZIONE Like '",
};
constexpr std::array<std::string_view, 3> kMovimenti{
    "Select DESCRIZIONE, COD_MOVIMENTO From TIPI_MOVIMENTI",
    "Select DESCRIZIONE, COD_MOVIMENTO From TIPI_MOVIMENTI Where COD_MOVIMENTO = ",
    "Select DESCRIZIONE, COD_MOVIMENTO From TIPI_MOVIMENTI Where DESCRIZIONE Like '",
};
constexpr std::array<std::string_view, 4> kBonifico{
    "Select DESCRIZIONE, COD_STAMPA From STAMPE_BONIFICO",
    "Select DESCRIZIONE, COD_STAMPA From STAMPE_BONIFICO Where COD_STAMPA Like '",
    "Select DESCRIZIONE, COD_STAMPA From STAMPE_BONIFICO Where DESCRIZIONE Like '",
    "Select DESCRIZIONE From STAMPE_BONIFICO Where COD_STAMPA = '",
};
constexpr std::array<std::string_view, 3> kFornitori{
    "Select DENOMINAZIONE, CODICE From FORNITORI",
    "Select DENOMINAZIONE, CODICE From FORNITORI Where CODICE Like '",
    "Select DENOMINAZIONE, CODICE From FORNITORI Where DENOMINAZIONE Like '",
};
constexpr std::array<std::string_view, 4> kGruppi{
    "Select DENOMINAZIONE, COD_GRUPPO From GRUPPI",
    "Select DENOMINAZIONE, COD_GRUPPO From GRUPPI Where COD_GRUPPO = ",
    "Select DENOMINAZIONE, COD_GRUPPO From GRUPPI Where DENOMINAZIONE Like '",
    "Select Denominazione From GRUPPI Where COD_GRUPPO = ",
};
constexpr std::array<std::string_view, 3> kCee{
    "Select DESCRIZIONE, MASTRO From CEE",
    "Select DESCRIZIONE, MASTRO From CEE Where MASTRO Like '",
    "Select DESCRIZIONE, MASTRO From CEE Where DESCRIZIONE Like '",
};
constexpr std::array<std::string_view, 5> kClausole{
    "Select DENOMINAZIONE, COD_CLAUS From CLAUSOLARI",
    "Select DENOMINAZIONE, COD_CLAUS From CLAUSOLARI Where COD_CLAUS Like '",
    "Select DENOMINAZIONE, COD_CLAUS From CLAUSOLARI Where DENOMINAZIONE Like '",
    "Select DESCRIZIONE From CLAUSOLARI Where COD_CLAUS = '",
    "Select FILE From CLAUSOLARI Where COD_CLAUS = '",
};
// The first is continued by the second, with the sub-code behind it.
constexpr std::array<std::string_view, 3> kSottocodici{
    "Select DESCRIZIONE, COD, S_COD From SOTTOCODICI_ATTIVITA Where Cod Like '",
    "' AND S_Cod LIKE '",
    "Select DESCRIZIONE, COD, S_COD From SOTTOCODICI_ATTIVITA Where DESCRIZIONE Like '",
};
constexpr std::array<std::string_view, 2> kContiCee{
    "Select DESCRIZIONE, CEE, CONTO From CONTI Where CEE Like '",
    "Select DESCRIZIONE, CEE, CONTO From CONTI Where DESCRIZIONE Like '",
};
constexpr std::array<std::string_view, 2> kSingle{
    "Select DESC_CLIENTE From CLIENTI Where COD_CLIENTE = '",
    "Select DESCRIZIONE From SOTTORAMI Where COD_SRAMO = ",
};
// A near twin of the lookup of COD_PROD, on another key column.
constexpr std::array<std::string_view, 1> kTitleLead{
    "Select COD_COMP FROM SOSPESI Where COD_COMP = COD_COMP_DEL AND NPROT = ",
};

constexpr std::array<Reserve, 12> kReserve{{
    {.title = "Elenco TIPI RAMI ASS.", .texts = kRami},
    {.title = "Elenco ATTIVITA'", .texts = kAttivita},
    {.title = "Elenco TIPI MOVIMENTI", .texts = kMovimenti},
    {.title = "Elenco BONIFICO", .texts = kBonifico},
    {.title = "Elenco FORNITORI", .texts = kFornitori},
    {.title = "Elenco GRUPPI", .texts = kGruppi},
    {.title = "Elenco CEE", .texts = kCee},
    {.title = {}, .texts = kClausole, .fieldName = "Cod_CLAUS"},
    {.title = {}, .texts = kSottocodici, .fieldName = "S_Cod", .heading = "S.Cod."},
    {.title = {}, .texts = kContiCee},
    {.title = {}, .texts = kSingle},
    {.title = {}, .texts = kTitleLead},
}};

}  // namespace

std::span<const Reserve> reserve() { return kReserve; }

}  // namespace qvn::statements
