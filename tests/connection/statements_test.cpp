// The texts of the pick lists and the reserve statements.
#include "qvn/shared/statements.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace qvn::test {
namespace {

struct Group {
  std::string title;
  std::vector<std::string> texts;
  std::string fieldName;
  std::string heading;
};

TEST(PickListStatements, HoldTheirTexts) {
  using namespace statements;
  struct Texts {
    const PickListTexts& texts;
    std::string byDescription;
    std::string byCode;
    std::string all;
    std::string marked;
  };
  const std::vector<Texts> lists{
      {kListaCOMPAGNIE, "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where DESC_COMPAGNIA Like '",
       "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where COD_COMP  Like '",
       "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE", ""},
      {kListaMASTRI, "Select DESCRIZIONE, MASTRO From Mastri Where DESCRIZIONE Like '",
       "Select DESCRIZIONE, MASTRO From Mastri Where MASTRO Like '", "Select DESCRIZIONE, MASTRO From Mastri", ""},
      {kListaCLIENTI, "Select DESC_CLIENTE, COD_CLIENTE From CLIENTI Where DESC_CLIENTE Like '",
       "Select DESC_CLIENTE, COD_CLIENTE From CLIENTI Where COD_CLIENTE Like '",
       "Select DESC_CLIENTE, COD_CLIENTE From CLIENTI", ""},
      {kListaPRODUTTORI, "Select DENOMINAZIONE, COD_PROD From PRODUTTORI Where DENOMINAZIONE Like '",
       "Select DENOMINAZIONE, COD_PROD From PRODUTTORI Where COD_PROD Like '",
       "Select DENOMINAZIONE, COD_PROD From PRODUTTORI", ""},
      {kListaSOTTORAMI, "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI Where DESCRIZIONE Like '",
       "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI Where COD_SRAMO = ",
       "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI", ""},
      {kListaTIPI_IVA, "Select DESCRIZIONE, COD_IVA From TIPI_IVA Where DESCRIZIONE Like '",
       "Select DESCRIZIONE, COD_IVA From TIPI_IVA Where COD_IVA = ", "Select DESCRIZIONE, COD_IVA From TIPI_IVA",
       "Select DESCRIZIONE, COD_IVA From TIPI_IVA Where DESCRIZIONE like '"},
      {kListaCONTI, "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where DESCRIZIONE Like '",
       "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '", "", ""},
  };
  for (const Texts& list : lists) {
    EXPECT_EQ(list.texts.byDescription, list.byDescription);
    EXPECT_EQ(list.texts.byCode, list.byCode);
    EXPECT_EQ(list.texts.all, list.all);
    EXPECT_EQ(list.texts.marked, list.marked);
  }
  EXPECT_EQ(kLikeEnd, "%'");
  EXPECT_EQ(kQuoteAndLikeCONTO, "' AND CONTO LIKE '");
}

TEST(ReserveStatements, HoldTheirTextsTitlesAndNames) {
  const std::vector<Group> groups{
      {"Elenco TIPI RAMI ASS.",
       {"Select DESCRIZIONE, COD_RAMO From RAMI", "Select DESCRIZIONE, COD_RAMO From RAMI Where COD_RAMO Like '",
        "Select DESCRIZIONE, COD_RAMO From RAMI Where DESCRIZIONE Like '",
        "Select DESCRIZIONE From RAMI Where COD_RAMO = '"},
       "",
       ""},
      {"Elenco ATTIVITA'",
       {"Select DESCRIZIONE, COD From CODICI_ATTIVITA", "Select DESCRIZIONE, COD From CODICI_ATTIVITA Where COD like '",
        "Select DESCRIZIONE, COD From CODICI_ATTIVITA Where DESCRIZIONE like '",
        "Select DESCRIZIONE, COD From CODICI_ATTIVITA Where DESCRIZIONE Like '"},
       "",
       ""},
      {"Elenco TIPI MOVIMENTI",
       {"Select DESCRIZIONE, COD_MOVIMENTO From TIPI_MOVIMENTI",
        "Select DESCRIZIONE, COD_MOVIMENTO From TIPI_MOVIMENTI Where COD_MOVIMENTO = ",
        "Select DESCRIZIONE, COD_MOVIMENTO From TIPI_MOVIMENTI Where DESCRIZIONE Like '"},
       "",
       ""},
      {"Elenco BONIFICO",
       {"Select DESCRIZIONE, COD_STAMPA From STAMPE_BONIFICO",
        "Select DESCRIZIONE, COD_STAMPA From STAMPE_BONIFICO Where COD_STAMPA Like '",
        "Select DESCRIZIONE, COD_STAMPA From STAMPE_BONIFICO Where DESCRIZIONE Like '",
        "Select DESCRIZIONE From STAMPE_BONIFICO Where COD_STAMPA = '"},
       "",
       ""},
      {"Elenco FORNITORI",
       {"Select DENOMINAZIONE, CODICE From FORNITORI",
        "Select DENOMINAZIONE, CODICE From FORNITORI Where CODICE Like '",
        "Select DENOMINAZIONE, CODICE From FORNITORI Where DENOMINAZIONE Like '"},
       "",
       ""},
      {"Elenco GRUPPI",
       {"Select DENOMINAZIONE, COD_GRUPPO From GRUPPI",
        "Select DENOMINAZIONE, COD_GRUPPO From GRUPPI Where COD_GRUPPO = ",
        "Select DENOMINAZIONE, COD_GRUPPO From GRUPPI Where DENOMINAZIONE Like '",
        "Select Denominazione From GRUPPI Where COD_GRUPPO = "},
       "",
       ""},
      {"Elenco CEE",
       {"Select DESCRIZIONE, MASTRO From CEE", "Select DESCRIZIONE, MASTRO From CEE Where MASTRO Like '",
        "Select DESCRIZIONE, MASTRO From CEE Where DESCRIZIONE Like '"},
       "",
       ""},
      {"",
       {"Select DENOMINAZIONE, COD_CLAUS From CLAUSOLARI",
        "Select DENOMINAZIONE, COD_CLAUS From CLAUSOLARI Where COD_CLAUS Like '",
        "Select DENOMINAZIONE, COD_CLAUS From CLAUSOLARI Where DENOMINAZIONE Like '",
        "Select DESCRIZIONE From CLAUSOLARI Where COD_CLAUS = '", "Select FILE From CLAUSOLARI Where COD_CLAUS = '"},
       "Cod_CLAUS",
       ""},
      {"",
       {"Select DESCRIZIONE, COD, S_COD From SOTTOCODICI_ATTIVITA Where Cod Like '", "' AND S_Cod LIKE '",
        "Select DESCRIZIONE, COD, S_COD From SOTTOCODICI_ATTIVITA Where DESCRIZIONE Like '"},
       "S_Cod",
       "S.Cod."},
      {"",
       {"Select DESCRIZIONE, CEE, CONTO From CONTI Where CEE Like '",
        "Select DESCRIZIONE, CEE, CONTO From CONTI Where DESCRIZIONE Like '"},
       "",
       ""},
      {"",
       {"Select DESC_CLIENTE From CLIENTI Where COD_CLIENTE = '",
        "Select DESCRIZIONE From SOTTORAMI Where COD_SRAMO = "},
       "",
       ""},
      {"", {"Select COD_COMP FROM SOSPESI Where COD_COMP = COD_COMP_DEL AND NPROT = "}, "", ""},
  };
  const auto reserve = statements::reserve();
  ASSERT_EQ(reserve.size(), groups.size());
  for (std::size_t i = 0; i < groups.size(); ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(reserve[i].title, groups[i].title);
    EXPECT_EQ(std::vector<std::string>(reserve[i].texts.begin(), reserve[i].texts.end()), groups[i].texts);
    EXPECT_EQ(reserve[i].fieldName, groups[i].fieldName);
    EXPECT_EQ(reserve[i].heading, groups[i].heading);
  }
}

}  // namespace
}  // namespace qvn::test
