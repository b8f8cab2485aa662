// Every statement of the panels runs on the sample, finds something, and finds it by an index.
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "tests/office/office.h"

namespace office_test {
namespace {

enum class Way {
  byKey,  ///< every table of it must be searched by an index
  whole,  ///< reads the whole table
};

struct Statement {
  std::string_view sql;  ///< with {keys}
  Way way = Way::byKey;
};

constexpr Statement singleLookups[] = {
    {"Select TIPO_SK FROM RAMI Where COD_RAMO = '{ramo}'"},
    {"Select R_ACC From PRODUTTORI Where COD_PROD = '{prod}'"},
    {"Select DENOMINAZIONE, PERCALT From PRODUTTORI Where COD_PROD = '{prod}'"},
    {"Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP = '{comp}'"},
    {"Select COD_COMP From QUOTE_POLIZZE Where PROT = {prot} AND DELEGATARIA <> 0"},
    {"Select COD_COMP From QUOTE_SINISTRI Where N_SINISTRO = '{sinistro}' AND DELEGATARIA <> 0"},
    {"Select COD_PROD From QUOTE_POLIZZE Where PROT = {prot} AND DELEGATARIA <> 0"},
    {"Select COD_PROD FROM SOSPESI Where COD_COMP = COD_COMP_DEL AND PROT = {titolo} AND PROG = 1"},
    {"Select * From TIPI_IVA Where COD_IVA = 22"},
    {"SELECT POLIZZE.COD_CLIENTE, QUOTE_POLIZZE.COD_COMP, Sum([CAUZIONE]*[QUOTA]/1000) AS ESP "
     "FROM (DATI_POLIZZE_4 INNER JOIN QUOTE_POLIZZE ON DATI_POLIZZE_4.PROT = QUOTE_POLIZZE.PROT) INNER JOIN POLIZZE ON "
     "QUOTE_POLIZZE.PROT = POLIZZE.PROT "
     "WHERE (((POLIZZE.STATO) Is Null Or (POLIZZE.STATO)='')) "
     "GROUP BY POLIZZE.COD_CLIENTE, QUOTE_POLIZZE.COD_COMP "
     "HAVING (((POLIZZE.COD_CLIENTE)='{garantito}') AND ((QUOTE_POLIZZE.COD_COMP)='{garante}'))"},
    {"Select DESCRIZIONE From MASTRI Where MASTRO = '0101'"},
    {"Select DESCRIZIONE From CONTI Where MASTRO = '0202' AND CONTO = 'SEP001'"},
    {"Select sigla From SOTTORAMI Where COD_SRAMO = 100"},
};

constexpr Statement reserve[] = {
    {"Select DESCRIZIONE, COD_RAMO From RAMI", Way::whole},
    {"Select DESCRIZIONE, COD_RAMO From RAMI Where COD_RAMO Like 'R%'"},
    {"Select DESCRIZIONE, COD_RAMO From RAMI Where DESCRIZIONE Like 'auto%'"},
    {"Select DESCRIZIONE From RAMI Where COD_RAMO = '{ramo}'"},
    {"Select DESCRIZIONE, COD From CODICI_ATTIVITA", Way::whole},
    {"Select DESCRIZIONE, COD From CODICI_ATTIVITA Where COD like '0%'"},
    {"Select DESCRIZIONE, COD From CODICI_ATTIVITA Where DESCRIZIONE like 'A%'"},
    {"Select DESCRIZIONE, COD From CODICI_ATTIVITA Where DESCRIZIONE Like 'A%'"},
    {"Select DESCRIZIONE, COD_MOVIMENTO From TIPI_MOVIMENTI", Way::whole},
    {"Select DESCRIZIONE, COD_MOVIMENTO From TIPI_MOVIMENTI Where COD_MOVIMENTO = 1"},
    {"Select DESCRIZIONE, COD_MOVIMENTO From TIPI_MOVIMENTI Where DESCRIZIONE Like 'incasso%'"},
    {"Select DESCRIZIONE, COD_STAMPA From STAMPE_BONIFICO", Way::whole},
    {"Select DESCRIZIONE, COD_STAMPA From STAMPE_BONIFICO Where COD_STAMPA Like 'BON%'"},
    {"Select DESCRIZIONE, COD_STAMPA From STAMPE_BONIFICO Where DESCRIZIONE Like 'bon%'"},
    {"Select DESCRIZIONE From STAMPE_BONIFICO Where COD_STAMPA = 'BON1'"},
    {"Select DENOMINAZIONE, CODICE From FORNITORI", Way::whole},
    {"Select DENOMINAZIONE, CODICE From FORNITORI Where CODICE Like 'F00%'"},
    {"Select DENOMINAZIONE, CODICE From FORNITORI Where DENOMINAZIONE Like 'T%'"},
    {"Select DENOMINAZIONE, COD_GRUPPO From GRUPPI", Way::whole},
    {"Select DENOMINAZIONE, COD_GRUPPO From GRUPPI Where COD_GRUPPO = 1"},
    {"Select DENOMINAZIONE, COD_GRUPPO From GRUPPI Where DENOMINAZIONE Like 'Gruppo%'"},
    {"Select Denominazione From GRUPPI Where COD_GRUPPO = 1"},
    {"Select DESCRIZIONE, MASTRO From CEE", Way::whole},
    {"Select DESCRIZIONE, MASTRO From CEE Where MASTRO Like 'A%'"},
    {"Select DESCRIZIONE, MASTRO From CEE Where DESCRIZIONE Like 'debiti%'"},
    {"Select DENOMINAZIONE, COD_CLAUS From CLAUSOLARI", Way::whole},
    {"Select DENOMINAZIONE, COD_CLAUS From CLAUSOLARI Where COD_CLAUS Like 'A%'"},
    {"Select DENOMINAZIONE, COD_CLAUS From CLAUSOLARI Where DENOMINAZIONE Like 'R%'"},
    {"Select DESCRIZIONE From CLAUSOLARI Where COD_CLAUS = 'A01'"},
    {"Select FILE From CLAUSOLARI Where COD_CLAUS = 'A01'"},
    {"Select DESCRIZIONE, COD, S_COD From SOTTOCODICI_ATTIVITA Where Cod Like '01%' AND S_Cod LIKE '2%'"},
    {"Select DESCRIZIONE, COD, S_COD From SOTTOCODICI_ATTIVITA Where DESCRIZIONE Like 'coltiv%'"},
    {"Select DESCRIZIONE, CEE, CONTO From CONTI Where CEE Like 'PD%'"},
    {"Select DESCRIZIONE, CEE, CONTO From CONTI Where DESCRIZIONE Like 'prov%'"},
    {"Select DESC_CLIENTE From CLIENTI Where COD_CLIENTE = '{cliente}'"},
    {"Select DESCRIZIONE From SOTTORAMI Where COD_SRAMO = 10"},
    {"Select COD_COMP FROM SOSPESI Where COD_COMP = COD_COMP_DEL AND NPROT = {titolo}"},
};

constexpr Statement pickLists[] = {
    {"Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where DESC_COMPAGNIA Like 'soc%'"},
    {"Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where COD_COMP  Like 'CO%'"},
    {"Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE", Way::whole},
    {"Select DESCRIZIONE, MASTRO From Mastri Where DESCRIZIONE Like 'ban%'"},
    {"Select DESCRIZIONE, MASTRO From Mastri Where MASTRO Like '03%'"},
    {"Select DESCRIZIONE, MASTRO From Mastri", Way::whole},
    {"Select DESC_CLIENTE, COD_CLIENTE From CLIENTI Where DESC_CLIENTE Like 'ros%'"},
    {"Select DESC_CLIENTE, COD_CLIENTE From CLIENTI Where COD_CLIENTE Like 'R000%'"},
    {"Select DESC_CLIENTE, COD_CLIENTE From CLIENTI", Way::whole},
    {"Select DENOMINAZIONE, COD_PROD From PRODUTTORI Where DENOMINAZIONE Like 'm%'"},
    {"Select DENOMINAZIONE, COD_PROD From PRODUTTORI Where COD_PROD Like 'M%'"},
    {"Select DENOMINAZIONE, COD_PROD From PRODUTTORI", Way::whole},
    {"Select DESCRIZIONE, COD_SRAMO From SOTTORAMI Where COD_SRAMO = 10"},
    {"Select DESCRIZIONE, COD_SRAMO From SOTTORAMI", Way::whole},
    {"Select DESCRIZIONE, COD_SRAMO From SOTTORAMI Where DESCRIZIONE Like 'rc%'"},
    {"Select DESCRIZIONE, COD_IVA From TIPI_IVA Where COD_IVA = 22"},
    {"Select DESCRIZIONE, COD_IVA From TIPI_IVA", Way::whole},
    {"Select DESCRIZIONE, COD_IVA From TIPI_IVA Where DESCRIZIONE Like 'ord%'"},
    {"Select DESCRIZIONE, COD_IVA From TIPI_IVA Where DESCRIZIONE like 'ord%'"},
    {"Select DESCRIZIONE, MASTRO, CONTO From CONTI Where DESCRIZIONE Like 'banca%'"},
    {"Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '0101' AND CONTO LIKE '0%'"},
    {"Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '0101'"},
    {"Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '%'", Way::whole},
};

#define QVN_COMPANIES_OF_A_POLICY                                                                                   \
  "FROM (COMPAGNIE INNER JOIN QUOTE_POLIZZE ON COMPAGNIE.COD_COMP = QUOTE_POLIZZE.COD_COMP) INNER JOIN POLIZZE ON " \
  "QUOTE_POLIZZE.PROT = POLIZZE.PROT WHERE (((QUOTE_POLIZZE.PROT) = {prot})) ORDER BY COMPAGNIE.COD_COMP"
#define QVN_PRODUCERS_OF_A_POLICY                                                             \
  "FROM PRODUTTORI INNER JOIN QUOTE_POLIZZE ON PRODUTTORI.COD_PROD = QUOTE_POLIZZE.COD_PROD " \
  "WHERE (((QUOTE_POLIZZE.PROT) = {prot})) ORDER BY QUOTE_POLIZZE.COD_PROD"
#define QVN_ALTERNATES_OF_A_POLICY                                                                \
  "FROM PRODUTTORI INNER JOIN QUOTE_POLIZZE ON PRODUTTORI.COD_PROD = QUOTE_POLIZZE.COD_PROD_ALT " \
  "WHERE (((QUOTE_POLIZZE.PROT) = {protAlt})) ORDER BY QUOTE_POLIZZE.COD_PROD_ALT"

constexpr Statement viewers[] = {
    {"Select U_CALCOLO FROM POLIZZE WHERE PROT = {prot}"},
    {"SELECT COMPAGNIE.COD_COMP, COMPAGNIE.DESC_COMPAGNIA, [PL_TRF]*[QUOTA]/1000 AS PL, "
     "[PN_UFF_TRF]+[ACC_UFF_TRF]+[AQ_UFF_TRF] AS PA " QVN_COMPANIES_OF_A_POLICY},
    {"SELECT COMPAGNIE.COD_COMP, COMPAGNIE.DESC_COMPAGNIA, [PL_TAF]*[QUOTA]/1000 AS PL, "
     "[PN_UFF_TAF]+[ACC_UFF_TAF]+[AQ_UFF_TAF] AS PA " QVN_COMPANIES_OF_A_POLICY},
    {"SELECT QUOTE_POLIZZE.COD_PROD, PRODUTTORI.DENOMINAZIONE, [pn_prod_TRF]+[acc_prod_TRF]+[aq_prod_TRF] AS PP, "
     "([pn_prod_TRF]+[acc_prod_TRF]+[aq_prod_TRF])/100*[R_ACC] AS RA " QVN_PRODUCERS_OF_A_POLICY},
    {"SELECT QUOTE_POLIZZE.COD_PROD, PRODUTTORI.DENOMINAZIONE, [pn_prod_Taf]+[acc_prod_Taf]+[aq_prod_Taf] AS PP, "
     "([pn_prod_Taf]+[acc_prod_Taf]+[aq_prod_Taf])/100*[R_ACC] AS RA " QVN_PRODUCERS_OF_A_POLICY},
    {"SELECT QUOTE_POLIZZE.COD_PROD_ALT, PRODUTTORI.DENOMINAZIONE, "
     "[pn_prod_ALT_TRF]+[acc_prod_ALT_TRF]+[aq_prod_ALT_TRF] AS PP, "
     "([pn_prod_ALT_TRF]+[acc_prod_ALT_TRF]+[aq_prod_ALT_TRF])/100*[R_ACC] AS RA " QVN_ALTERNATES_OF_A_POLICY},
    {"SELECT QUOTE_POLIZZE.COD_PROD_ALT, PRODUTTORI.DENOMINAZIONE, "
     "[pn_prod_ALT_TAF]+[acc_prod_ALT_TAF]+[aq_prod_ALT_TAF] AS PP, "
     "([pn_prod_ALT_TAF]+[acc_prod_ALT_TAF]+[aq_prod_ALT_TAF])/100*[R_ACC] AS RA " QVN_ALTERNATES_OF_A_POLICY},
    {"SELECT COMPAGNIE.COD_COMP, COMPAGNIE.DESC_COMPAGNIA, SOSPESI.PL, SOSPESI.PA FROM SOSPESI INNER JOIN COMPAGNIE ON "
     "SOSPESI.COD_COMP = COMPAGNIE.COD_COMP WHERE PROT = {titolo} AND PROG = 1 ORDER BY COMPAGNIE.COD_COMP"},
    {"SELECT SOSPESI.COD_PROD, PRODUTTORI.DENOMINAZIONE, SOSPESI.PP, SOSPESI.RA FROM SOSPESI INNER JOIN PRODUTTORI ON "
     "SOSPESI.COD_PROD = PRODUTTORI.COD_PROD WHERE PROT = {titolo} AND PROG = 1 ORDER BY SOSPESI.COD_PROD"},
    {"SELECT SOSPESI.COD_PROD_ALT, PRODUTTORI.DENOMINAZIONE, SOSPESI.PP_ALT, SOSPESI.RA_ALT FROM SOSPESI INNER JOIN "
     "PRODUTTORI ON SOSPESI.COD_PROD_ALT = PRODUTTORI.COD_PROD WHERE PROT = {titoloAlt} AND PROG = 1 ORDER BY "
     "SOSPESI.COD_PROD_ALT"},
    {"SELECT COMPAGNIE.COD_COMP, COMPAGNIE.DESC_COMPAGNIA, [D_STIMATO]*[QUOTA]/1000 AS PL, [D_LIQUIDATO]*[QUOTA]/1000 "
     "AS PA FROM (COMPAGNIE INNER JOIN QUOTE_SINISTRI ON COMPAGNIE.COD_COMP = QUOTE_SINISTRI.COD_COMP) INNER JOIN "
     "SINISTRI ON QUOTE_SINISTRI.N_SINISTRO = SINISTRI.N_SINISTRO WHERE (((QUOTE_SINISTRI.N_SINISTRO) = '{sinistro}')) "
     "ORDER BY COMPAGNIE.COD_COMP"},
};

/// What to put for each {key}: something that the sample holds.
const std::map<std::string, std::string>& keys() {
  const auto first = [](std::string_view sql) { return sample().text(sql); };
  static const std::map<std::string, std::string> found = {
      {"{ramo}", first("SELECT COD_RAMO FROM RAMI WHERE TIPO_SK = 4")},
      {"{prod}", first("SELECT COD_PROD FROM PRODUTTORI")},
      {"{comp}", first("SELECT COD_COMP FROM COMPAGNIE")},
      {"{cliente}", first("SELECT COD_CLIENTE FROM CLIENTI")},
      {"{prot}", first("SELECT PROT FROM QUOTE_POLIZZE JOIN PRODUTTORI USING (COD_PROD) WHERE DELEGATARIA <> 0")},
      {"{protAlt}", first("SELECT PROT FROM QUOTE_POLIZZE WHERE COD_PROD_ALT <> ''")},
      {"{titolo}", first("SELECT PROT FROM SOSPESI JOIN PRODUTTORI USING (COD_PROD) WHERE COD_COMP = COD_COMP_DEL")},
      {"{titoloAlt}", first("SELECT PROT FROM SOSPESI WHERE COD_PROD_ALT <> ''")},
      {"{sinistro}", first("SELECT N_SINISTRO FROM QUOTE_SINISTRI WHERE DELEGATARIA <> 0")},
      {"{garantito}", first("SELECT COD_CLIENTE FROM DATI_POLIZZE_4 JOIN POLIZZE USING (PROT) WHERE STATO IS NULL "
                            "ORDER BY PROT")},
      {"{garante}",
       first("SELECT COD_COMP FROM DATI_POLIZZE_4 JOIN POLIZZE USING (PROT) JOIN QUOTE_POLIZZE USING (PROT)"
             " WHERE STATO IS NULL ORDER BY PROT")},
  };
  return found;
}

std::string withKeys(std::string_view sql) {
  std::string text(sql);
  for (const auto& [name, value] : keys()) {
    if (const auto at = text.find(name); at != std::string::npos) text.replace(at, name.size(), value);
  }
  return text;
}

/// The steps by which the driver runs a statement.
std::vector<std::string> plan(const std::string& sql) {
  std::vector<std::string> steps;
  for (const auto rows = session().run({.sql = "EXPLAIN QUERY PLAN " + sql}); !rows->atEnd(); rows->next())
    steps.push_back(std::get<std::string>(rows->value("detail")));
  return steps;
}

template <typename Statements>
void expectAllToFindSomething(const Statements& statements) {
  for (const Statement& statement : statements) {
    const std::string sql = withKeys(statement.sql);
    SCOPED_TRACE(sql);
    EXPECT_FALSE(session().run({.sql = sql})->atEnd());
    const testing::Matcher<std::string> scans = testing::StartsWith("SCAN");
    if (statement.way == Way::byKey) {
      EXPECT_THAT(plan(sql), testing::Each(testing::Not(scans)));
    } else {
      EXPECT_THAT(plan(sql), testing::Contains(scans));
    }
  }
}

TEST(OfficeStatements, singleLookupsFindByIndex) { expectAllToFindSomething(singleLookups); }
TEST(OfficeStatements, reserveStatementsFindByIndex) { expectAllToFindSomething(reserve); }
TEST(OfficeStatements, pickListsFindByIndex) { expectAllToFindSomething(pickLists); }
TEST(OfficeStatements, viewersFindByIndex) { expectAllToFindSomething(viewers); }

/// A value as a number to the hundred-thousandth where it is one, so that integers and reals that say the same are one.
std::string saying(const qvn::Variant& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return "'" + *text + "'";
  if (const auto* number = std::get_if<std::int32_t>(&value)) return std::to_string(*number * 100000LL);
  if (const auto* number = std::get_if<double>(&value)) return std::to_string(std::llround(*number * 100000.0));
  return qvn::isNull(value) ? "Null" : throw std::runtime_error("a value of no known kind");
}

// Amounts alone are stored in several ways, and the look-ups reckon with them in one place.
TEST(OfficeStatements, singleLookupsAnswerAlikeInAllStorages) {
  for (const Statement& statement : singleLookups) {
    const std::string sql = withKeys(statement.sql);
    const auto columns = sample().columns(sql);
    std::vector<std::vector<std::string>> answers;
    for (const char* storage : storages) {
      auto& answer = answers.emplace_back();
      for (const auto rows = session(storage).run({.sql = sql}); !rows->atEnd(); rows->next()) {
        for (const std::string& column : columns) answer.push_back(saying(rows->value(column)));
      }
    }
    EXPECT_FALSE(answers.at(0).empty()) << sql;
    EXPECT_THAT(answers, testing::Each(answers.at(0))) << sql;
  }
}

TEST(OfficeStatements, aBeginningIsFoundInCapitalsAndSmallLettersAlike) {
  const auto count = [](std::string_view pattern) {
    const std::string sql = "Select COD_CLIENTE From CLIENTI Where DESC_CLIENTE Like '" + std::string(pattern) + "'";
    std::size_t found = 0;
    for (const auto rows = session().run({.sql = sql}); !rows->atEnd(); rows->next()) ++found;
    return found;
  };
  EXPECT_GT(count("Rossi%"), 0U);
  EXPECT_EQ(count("Rossi%"), count("ROSSI%"));
}

TEST(OfficeStatements, ofSeveralLeadsTheFirstCompanyByCodeIsGiven) {
  const std::string prot =
      sample().text("SELECT PROT FROM QUOTE_POLIZZE WHERE DELEGATARIA <> 0 GROUP BY PROT HAVING count(*) > 1");
  const auto rows =
      session().run({.sql = "Select COD_COMP From QUOTE_POLIZZE Where PROT = " + prot + " AND DELEGATARIA <> 0"});
  EXPECT_EQ(std::get<std::string>(rows->value("COD_COMP")),
            sample().text("SELECT min(COD_COMP) FROM QUOTE_POLIZZE WHERE DELEGATARIA <> 0 AND PROT = " + prot));
}

}  // namespace
}  // namespace office_test
