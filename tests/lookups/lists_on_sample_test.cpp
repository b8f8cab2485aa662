// The pick lists and the viewers on the sample office's database, beside the same questions put to SQLite itself.
#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "platforms/sqlite/driver.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/lookups/viewer.h"
#include "qvn/shared/patterns.h"
#include "tests/failure_matchers.h"
#include "tests/office/office.h"
#include "tests/on_platform.h"

namespace qvn::test {
namespace {

using namespace QVN_Ricerche;

using Rows = std::vector<std::vector<std::string>>;

/// The sample's file, made once for all tests.
const std::string& sampleFile() {
  static const office_test::Folder folder;
  static const std::string file = [] {
    std::string name = folder.file("ufficio.db");
    const auto made = office_test::campione("'" + name + "'");
    if (made.status != 0) throw std::runtime_error("no sample: " + made.errors);
    return name;
  }();
  return file;
}

const office_test::Database& plainly() {
  static const office_test::Database database(sampleFile());
  return database;
}

Rows rowsOf(std::string_view sql) {
  Rows rows;
  for (const auto& row : plainly().rows(sql)) {
    auto& texts = rows.emplace_back();
    for (const auto& text : row) texts.push_back(text.value_or("NULL"));
  }
  return rows;
}

Rows rowsOf(const FormPicture& picture) {
  Rows rows;
  for (std::size_t row = 0; row < picture.rowCount(); ++row) {
    auto& texts = rows.emplace_back();
    for (std::size_t column = 0; column < picture.columns.size(); ++column) texts.push_back(picture.cell(row, column));
  }
  return rows;
}

std::string subBranches(std::string& code, std::string& description) {
  std::string third;
  return ListaSOTTORAMI(code, description, third);
}

struct Question {
  std::string (*list)(std::string&, std::string&);
  std::string code;
  std::string description;
  std::string plain;  ///< the same, as SQLite takes it
};

class ListsOnSample : public OnPlatform {
 public:
  void SetUp() override {
    ASSERT_TRUE(platform().capabilities().modalForms);
    platform().drivers().add(sqlite::driver());
    Globale::Eventi()->ImpostaDB("sqlite:" + sampleFile());
    hands().takePictures(true);
  }
};
QVN_ON_EVERY_PLATFORM(ListsOnSample);

TEST_P(ListsOnSample, ShowTheRowsThatTheDatabaseGives) {
  const std::string company = plainly().text("select COD_COMP from COMPAGNIE order by COD_COMP limit 1 offset 3");
  const std::string client =
      plainly().text("select DESC_CLIENTE from CLIENTI where DESC_CLIENTE not like '%''%' limit 1");
  const std::string begin = client.substr(0, 3);
  const std::string ledger = plainly().text("select MASTRO from CONTI group by MASTRO order by count(*) desc limit 1");
  const std::string vat = plainly().text("select COD_IVA from TIPI_IVA order by COD_IVA limit 1");
  const std::vector<Question> questions{
      {ListaCOMPAGNIE, "", "", "select DESC_COMPAGNIA, COD_COMP from COMPAGNIE"},
      {ListaCOMPAGNIE, company.substr(0, 1), "",
       "select DESC_COMPAGNIA, COD_COMP from COMPAGNIE where COD_COMP like '" + company.substr(0, 1) + "%'"},
      {ListaCLIENTI, "", "", "select DESC_CLIENTE, COD_CLIENTE from CLIENTI"},
      {ListaCLIENTI, "!" + begin, "",
       "select DESC_CLIENTE, COD_CLIENTE from CLIENTI where DESC_CLIENTE like '" + begin + "%'"},
      {ListaCLIENTI, "", begin,
       "select DESC_CLIENTE, COD_CLIENTE from CLIENTI where DESC_CLIENTE like '" + begin + "%'"},
      {ListaPRODUTTORI, "", "", "select DENOMINAZIONE, COD_PROD from PRODUTTORI"},
      {ListaMASTRI, "", "", "select DESCRIZIONE, MASTRO from MASTRI"},
      {ListaMASTRI, ledger, "", "select DESCRIZIONE, MASTRO from MASTRI where MASTRO like '" + ledger + "%'"},
      {ListaCONTI, "%?%", "", "select DESCRIZIONE, MASTRO, CONTO from CONTI"},
      {ListaCONTI, ledger + "?%", "", "select DESCRIZIONE, MASTRO, CONTO from CONTI where MASTRO = '" + ledger + "'"},
      {ListaCONTI, "%?0", "", "select DESCRIZIONE, MASTRO, CONTO from CONTI where CONTO like '0%'"},
      {subBranches, "", "", "select DESCRIZIONE, COD_SRAMO from SOTTORAMI"},
      {subBranches, "ABC", "", "select DESCRIZIONE, COD_SRAMO from SOTTORAMI"},
      {ListaTIPI_IVA, "0", "", "select DESCRIZIONE, COD_IVA from TIPI_IVA"},
      {ListaTIPI_IVA, vat, "", "select DESCRIZIONE, COD_IVA from TIPI_IVA where COD_IVA = " + vat},
  };
  for (const Question& question : questions) {
    SCOPED_TRACE(question.plain);
    Rows expected = rowsOf(question.plain);
    hands().layDown("Lista", {Act::click("CmdOK")});
    std::string code = question.code;
    std::string description = question.description;
    const std::string chosen = question.list(code, description);
    const auto shown = hands().shown();
    if (expected.empty()) {
      EXPECT_EQ(chosen, "");
      EXPECT_TRUE(shown.empty());
      continue;
    }
    ASSERT_EQ(shown.size(), 1U);
    Rows rows = rowsOf(shown[0]);
    ASSERT_FALSE(rows.empty());
    EXPECT_EQ(chosen, rows[0][1] + (rows[0].size() == 3 ? "?" + rows[0][2] : ""));
    EXPECT_TRUE(std::ranges::is_permutation(rows, expected)) << rows.size() << " rows, " << expected.size() << " given";
  }
}

TEST_P(ListsOnSample, FindARowByTheCodeThatTheyGive) {
  hands().layDown("Lista", {Act::row(5), Act::click("CmdOK")});
  std::string code;
  std::string description;
  std::string chosen = ListaCOMPAGNIE(code, description);
  const auto row = hands().shown().at(0).cells[10];
  EXPECT_EQ(CercaCOMPAGNIA(chosen), row);
}

TEST_P(ListsOnSample, ShowAViewersRowsWithTheAmountsOfTheDatabase) {
  const std::string source =
      " FROM SOSPESI INNER JOIN COMPAGNIE ON SOSPESI.COD_COMP = COMPAGNIE.COD_COMP WHERE PROT = 1 AND PROG = 1 "
      "ORDER BY COMPAGNIE.COD_COMP";
  const auto viewer = lookups::companiesViewer();
  viewer->load();
  viewer->connect();
  viewer->fill("SELECT COMPAGNIE.COD_COMP, COMPAGNIE.DESC_COMPAGNIA, SOSPESI.PL, SOSPESI.PA" + source);
  viewer->show();

  Rows expected = rowsOf("SELECT COMPAGNIE.COD_COMP, DESC_COMPAGNIA" + source);
  ASSERT_FALSE(expected.empty());
  for (const std::string_view column : {"PL", "PA"}) {
    const auto amounts = plainly().tenThousandths(std::string("SELECT ").append(column).append(source));
    for (std::size_t i = 0; i < amounts.size(); ++i) {
      const auto amount = Currency::fromTenThousandths(std::int64_t{amounts[i]});
      expected[i].push_back(format(amount, Pattern::Currency, platform().locale()).str());
    }
  }
  EXPECT_EQ(rowsOf(hands().shown().at(0)), expected);
}

TEST_P(ListsOnSample, FailInAViewerOnAStatementThatTheDatabaseRefuses) {
  const auto viewer = lookups::producersViewer();
  viewer->load();
  viewer->connect();
  EXPECT_FAILURE(viewer->fill("SELECT COD_PROD FROM SOSPESI WHERE PROT = "), FailureKind::Database, "Adodc1");
  EXPECT_FAILURE(viewer->fill("DELETE FROM SOSPESI"), FailureKind::Database, "Adodc1");
}

}  // namespace
}  // namespace qvn::test
