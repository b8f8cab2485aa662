// The tables and columns that the panels' statements name, and the names that must be told apart without their table.
#include <algorithm>
#include <cctype>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "tests/office/office.h"

namespace office_test {
namespace {

struct Table {
  std::string_view name;
  std::vector<std::string_view> columns;
};

const std::vector<Table>& tables() {
  static const std::vector<Table> list = {
      {"POLIZZE", {"PROT", "COD_CLIENTE", "STATO", "U_CALCOLO", "PL_TRF", "PL_TAF"}},
      {"QUOTE_POLIZZE",
       {"PROT",
        "COD_COMP",
        "COD_PROD",
        "COD_PROD_ALT",
        "DELEGATARIA",
        "QUOTA",
        "PN_UFF_TRF",
        "ACC_UFF_TRF",
        "AQ_UFF_TRF",
        "PN_UFF_TAF",
        "ACC_UFF_TAF",
        "AQ_UFF_TAF",
        "pn_prod_TRF",
        "acc_prod_TRF",
        "aq_prod_TRF",
        "pn_prod_TAF",
        "acc_prod_TAF",
        "aq_prod_TAF",
        "pn_prod_ALT_TRF",
        "acc_prod_ALT_TRF",
        "aq_prod_ALT_TRF",
        "pn_prod_ALT_TAF",
        "acc_prod_ALT_TAF",
        "aq_prod_ALT_TAF"}},
      {"DATI_POLIZZE_4", {"PROT", "CAUZIONE"}},
      {"SOSPESI",
       {"PROT", "PROG", "NPROT", "COD_COMP", "COD_COMP_DEL", "COD_PROD", "COD_PROD_ALT", "PL", "PA", "PP", "RA",
        "PP_ALT", "RA_ALT"}},
      {"SINISTRI", {"N_SINISTRO", "D_STIMATO", "D_LIQUIDATO"}},
      {"QUOTE_SINISTRI", {"N_SINISTRO", "COD_COMP", "DELEGATARIA", "QUOTA"}},
      {"COMPAGNIE", {"COD_COMP", "DESC_COMPAGNIA"}},
      {"PRODUTTORI", {"COD_PROD", "DENOMINAZIONE", "PERCALT", "R_ACC"}},
      {"CLIENTI", {"COD_CLIENTE", "DESC_CLIENTE"}},
      {"RAMI", {"COD_RAMO", "DESCRIZIONE", "TIPO_SK"}},
      {"CLAUSOLARI", {"COD_CLAUS", "DENOMINAZIONE", "DESCRIZIONE", "FILE"}},
      {"STAMPE_BONIFICO", {"COD_STAMPA", "DESCRIZIONE"}},
      {"FORNITORI", {"CODICE", "DENOMINAZIONE"}},
      {"CODICI_ATTIVITA", {"COD", "DESCRIZIONE"}},
      {"SOTTOCODICI_ATTIVITA", {"COD", "S_COD", "DESCRIZIONE"}},
      {"MASTRI", {"MASTRO", "DESCRIZIONE"}},
      {"CONTI", {"MASTRO", "CONTO", "DESCRIZIONE", "CEE"}},
      {"CEE", {"MASTRO", "DESCRIZIONE"}},
      {"SOTTORAMI", {"COD_SRAMO", "DESCRIZIONE", "sigla"}},
      {"TIPI_IVA", {"COD_IVA", "DESCRIZIONE", "IVA", "Deb_Dec"}},
      {"TIPI_MOVIMENTI", {"COD_MOVIMENTO", "DESCRIZIONE"}},
      {"GRUPPI", {"COD_GRUPPO", "DENOMINAZIONE"}},
  };
  return list;
}

/// Tables that a statement joins, and the columns that it names without their table.
struct Join {
  std::vector<std::string_view> tables;
  std::vector<std::string_view> columns;
};

const std::vector<Join>& joins() {
  static const std::vector<Join> list = {
      {{"SOSPESI", "COMPAGNIE"}, {"PROT", "PROG"}},
      {{"SOSPESI", "PRODUTTORI"}, {"PROT", "PROG"}},
      {{"COMPAGNIE", "QUOTE_POLIZZE", "POLIZZE"},
       {"QUOTA", "PL_TRF", "PL_TAF", "PN_UFF_TRF", "ACC_UFF_TRF", "AQ_UFF_TRF", "PN_UFF_TAF", "ACC_UFF_TAF",
        "AQ_UFF_TAF"}},
      {{"PRODUTTORI", "QUOTE_POLIZZE"},
       {"R_ACC", "pn_prod_TRF", "acc_prod_TRF", "aq_prod_TRF", "pn_prod_Taf", "acc_prod_Taf", "aq_prod_Taf",
        "pn_prod_ALT_TRF", "acc_prod_ALT_TRF", "aq_prod_ALT_TRF", "pn_prod_ALT_TAF", "acc_prod_ALT_TAF",
        "aq_prod_ALT_TAF"}},
      {{"COMPAGNIE", "QUOTE_SINISTRI", "SINISTRI"}, {"QUOTA", "D_STIMATO", "D_LIQUIDATO"}},
      {{"DATI_POLIZZE_4", "QUOTE_POLIZZE", "POLIZZE"}, {"CAUZIONE", "QUOTA"}},
  };
  return list;
}

std::string capitals(std::string_view text) {
  std::string capitals(text);
  std::transform(capitals.begin(), capitals.end(), capitals.begin(),
                 [](unsigned char each) { return static_cast<char>(std::toupper(each)); });
  return capitals;
}

/// A table's columns, in capitals; none if there is no such table.
std::vector<std::string> columnsOf(std::string_view table) {
  std::vector<std::string> columns;
  for (const Row& row : sample().rows("SELECT name FROM pragma_table_info('" + std::string(table) + "')")) {
    columns.push_back(capitals(row.at(0).value()));
  }
  return columns;
}

TEST(OfficeSchema, holdsEveryTableAndColumnThatTheStatementsName) {
  EXPECT_EQ(tables().size(), 22U);
  for (const Table& table : tables()) {
    const std::vector<std::string> columns = columnsOf(table.name);
    ASSERT_FALSE(columns.empty()) << "no table " << table.name;
    for (const std::string_view column : table.columns) {
      EXPECT_THAT(columns, testing::Contains(capitals(column))) << "in " << table.name;
    }
  }
}

TEST(OfficeSchema, everyTableHasAPrimaryKey) {
  for (const Row& row : sample().rows("SELECT name FROM sqlite_schema WHERE type = 'table'")) {
    const std::string& table = row.at(0).value();
    EXPECT_GT(sample().number("SELECT count(*) FROM pragma_table_info('" + table + "') WHERE pk > 0"), 0) << table;
  }
}

TEST(OfficeSchema, namesWithoutTheirTableBelongToOneTableOfTheirJoin) {
  for (const Join& join : joins()) {
    for (const std::string_view column : join.columns) {
      std::vector<std::string_view> owners;
      for (const std::string_view table : join.tables) {
        const std::vector<std::string> columns = columnsOf(table);
        if (std::count(columns.begin(), columns.end(), capitals(column)) > 0) owners.push_back(table);
      }
      EXPECT_THAT(owners, testing::SizeIs(1)) << column;
    }
  }
}

TEST(OfficeSchema, registersAndPoliciesStayFreeOfNamesThatOtherTablesOwn) {
  const std::vector<Table> forbidden = {{"COMPAGNIE", {"PROT", "PROG", "QUOTA"}},
                                        {"PRODUTTORI", {"PROT", "PROG", "QUOTA"}},
                                        {"POLIZZE", {"QUOTA"}},
                                        {"SINISTRI", {"QUOTA"}}};
  for (const Table& table : forbidden) {
    for (const std::string_view column : table.columns) {
      EXPECT_THAT(columnsOf(table.name), testing::Not(testing::Contains(std::string(column)))) << table.name;
    }
  }
}

TEST(OfficeSchema, theOfficeKeepsItsOwnBooksBesides) {
  for (const std::string_view table : {"ESTRATTI", "FIDI", "MOVIMENTI"}) {
    EXPECT_GT(sample().number("SELECT count(*) FROM " + std::string(table)), 0) << table;
  }
}

}  // namespace
}  // namespace office_test
