// The dialect that the library's statements are written in.
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platforms/sqlite/driver.h"
#include "tests/sqlite/scratch.h"

namespace qvn::test {
namespace {

struct Case {
  const char* name;
  std::string sql;
  std::vector<std::string> columns;
  Answer answer;
};

void PrintTo(const Case& one, std::ostream* out) { *out << one.sql; }

class Dialect : public testing::TestWithParam<Case> {};

TEST_P(Dialect, IsUnderstood) {
  const ScratchFolder folder;
  const auto session = opened(officeFile(folder));
  EXPECT_EQ(answerOf(*session, GetParam().sql, GetParam().columns), GetParam().answer);
}

INSTANTIATE_TEST_SUITE_P(
    Statements, Dialect,
    testing::Values(
        Case{"NamesInAnyCase", "Select Descrizione From Mastri Where Mastro = '01'", {"DESCRIZIONE"}, {{"t Cassa"}}},
        Case{"ColumnsInAnyCase",
             "Select DENOMINAZIONE, PERCALT From PRODUTTORI Where COD_PROD = 'P1'",
             {"Denominazione", "percAlt"},
             {{"t Rossi", "r 12.5"}}},
        Case{"KeywordsInAnyCase", "SELECT MASTRO FROM MASTRI wHeRe DESCRIZIONE lIKE 'b%'", {"Mastro"}, {{"t 02"}}},
        Case{"LongColumnNames",
             "Select POLIZZE.COD_CLIENTE, [STATO], (POLIZZE.PROT) From POLIZZE Where PROT = 3",
             {"COD_CLIENTE", "stato", "Prot"},
             {{"t C1", "t A", "i 3"}}},
        Case{"AllColumns", "Select * From TIPI_IVA Where COD_IVA = 2", {"DESCRIZIONE", "IVA"}, {{"t Ridotta", "i 10"}}},
        Case{"NumberKeyAndFlag",
             "Select COD_COMP From QUOTE_POLIZZE Where PROT = 1 AND DELEGATARIA <> 0",
             {"COD_COMP"},
             {{"t GEN"}}},
        Case{"TwoKeys",
             "Select DESCRIZIONE From CONTI Where MASTRO = '01' AND CONTO = '002'",
             {"DESCRIZIONE"},
             {{"t Cassa assegni"}}},
        Case{"TwoPatterns",
             "Select CONTO From CONTI Where MASTRO Like '01' AND CONTO LIKE '001%'",
             {"Conto"},
             {{"t 001"}}},
        Case{"PatternOfAccents",
             "Select COD_PROD From PRODUTTORI Where DENOMINAZIONE Like 'NICCOLÒ%'",
             {"COD_PROD"},
             {{"t P2"}}},
        Case{"ComparedColumns",
             "Select COD_PROD FROM QUOTE_POLIZZE Where COD_COMP = COD_COMP AND PROT = 2",
             {"COD_PROD"},
             {{"t P1"}}},
        // 333/1000 of 10001 and the whole of 501; the states "A" and " " are left out.
        Case{"Exposure",
             "SELECT POLIZZE.COD_CLIENTE, QUOTE_POLIZZE.COD_COMP, Sum([CAUZIONE]*[QUOTA]/1000) AS ESP "
             "FROM (DATI_POLIZZE_4 INNER JOIN QUOTE_POLIZZE ON DATI_POLIZZE_4.PROT = QUOTE_POLIZZE.PROT) "
             "INNER JOIN POLIZZE ON QUOTE_POLIZZE.PROT = POLIZZE.PROT "
             "WHERE (((POLIZZE.STATO) Is Null Or (POLIZZE.STATO)='')) "
             "GROUP BY POLIZZE.COD_CLIENTE, QUOTE_POLIZZE.COD_COMP "
             "HAVING (((POLIZZE.COD_CLIENTE)='C1') AND ((QUOTE_POLIZZE.COD_COMP)='GEN'))",
             {"Cod_Cliente", "cod_comp", "esp"},
             {{"t C1", "t GEN", "r 3831.3330000000001"}}},
        Case{"ExposureOfNobody",
             "SELECT POLIZZE.COD_CLIENTE, Sum([CAUZIONE]/1000) AS ESP FROM DATI_POLIZZE_4 INNER JOIN POLIZZE ON "
             "DATI_POLIZZE_4.PROT = POLIZZE.PROT GROUP BY POLIZZE.COD_CLIENTE HAVING (((POLIZZE.COD_CLIENTE)='C9'))",
             {"ESP"},
             {}}),
    [](const auto& one) { return std::string(one.param.name); });

TEST(Division, GivesAFractionWhateverTheStorage) {
  const ScratchFolder folder;
  const std::string file = folder.file("amounts.db");
  Host(file).exec(
      "CREATE TABLE T (I INTEGER, R REAL, X TEXT, N NUMERIC, B, D INTEGER);"
      "INSERT INTO T VALUES (7, 7, 7, 7, 7, 2)");
  const auto session = opened(file);
  for (const std::string column : {"I", "R", "X", "N", "B", "[I]", "\"I\""}) {
    EXPECT_EQ(answerOf(*session, "Select " + column + "/1000 AS A, " + column + " / 100 AS C From T", {"A", "C"}),
              (Answer{{"r 0.0070000000000000001", "r 0.070000000000000007"}}))
        << column;
    EXPECT_EQ(answerOf(*session, "Select " + column + "/D AS A, " + column + "/(2) AS C From T", {"A", "C"}),
              (Answer{{"r 3.5", "r 3.5"}}))
        << column;
  }
  EXPECT_EQ(
      answerOf(*session, "Select 3*I/1000*2 AS A, 1+I/2-1 AS C, -I/2 AS E From T Where I/2 = 3.5", {"A", "C", "E"}),
      (Answer{{"r 0.042000000000000003", "r 3.5", "r -3.5"}}));
}

TEST(Division, OutsideOfStatementsTextAloneIsLeft) {
  const ScratchFolder folder;
  const std::string file = folder.file("names.db");
  Host(file).exec(
      "CREATE TABLE T ([A/2] TEXT, \"B/2\" TEXT, `C/2` TEXT);"
      "INSERT INTO T VALUES ('1/2', '2/2', '3/2')");
  const auto session = opened(file);
  EXPECT_EQ(answerOf(*session, "Select [A/2], \"B/2\", `C/2`, 'x/2' AS X /* 1/2 */ From T -- 1/2\n Where [A/2] = '1/2'",
                     {"A/2", "b/2", "c/2", "X"}),
            (Answer{{"t 1/2", "t 2/2", "t 3/2", "t x/2"}}));
}

TEST(Division, LeavesTheNameOfItsColumn) {
  const ScratchFolder folder;
  const auto session = opened(officeFile(folder));
  EXPECT_EQ(answerOf(*session, "Select PROT/1000, PROT / 100 From POLIZZE Where PROT = 1", {"PROT/1000", "PROT / 100"}),
            (Answer{{"r 0.001", "r 0.01"}}));
}

TEST(Like, LeavesTheNameOfItsColumnAndItsPlaceInReasons) {
  const ScratchFolder folder;
  const auto session = opened(officeFile(folder));
  EXPECT_EQ(answerOf(*session, "Select DENOMINAZIONE Like 'NICCOLÒ' From PRODUTTORI Order By COD_PROD",
                     {"DENOMINAZIONE like 'NICCOLÒ'"}),
            (Answer{{"i 0"}, {"i 1"}}));
  EXPECT_EQ(databaseFailureOf([&] { session->run({.sql = "Select * Like"}); }),
            "the statement cannot be run: near \"Like\": syntax error; Select * Like");
}

TEST(Statement, MayEndInBlanksSemicolonsAndComments) {
  const ScratchFolder folder;
  const auto session = opened(officeFile(folder));
  for (const std::string tail : {" ", ";", " ; \n", ";;", " -- done", "; -- done\n", "; /* done */ ;", " /* open"}) {
    EXPECT_EQ(answerOf(*session, "Select IVA From TIPI_IVA Where COD_IVA = 1" + tail, {"IVA"}), (Answer{{"i 22"}}))
        << tail;
  }
}

TEST(Statement, FailsWithTheDatabasesWordsAndItsText) {
  const ScratchFolder folder;
  const auto session = opened(officeFile(folder));
  const auto failureOf = [&](const std::string& sql) { return databaseFailureOf([&] { session->run({.sql = sql}); }); };
  EXPECT_EQ(failureOf("Select A From NESSUNA Where A = '1'"),
            "the statement cannot be run: no such table: NESSUNA; Select A From NESSUNA Where A = '1'");
  EXPECT_EQ(failureOf("Select NESSUNA From MASTRI"),
            "the statement cannot be run: no such column: NESSUNA; Select NESSUNA From MASTRI");
  EXPECT_EQ(failureOf("Select * From TIPI_IVA Where COD_IVA = "),
            "the statement cannot be run: incomplete input; Select * From TIPI_IVA Where COD_IVA = ");
  EXPECT_EQ(failureOf("Select '"), "the statement cannot be run: unrecognized token: \"'\"; Select '");
  EXPECT_EQ(failureOf(""), "the statement cannot be run: there is none; ");
  EXPECT_EQ(failureOf(" -- nothing"), "the statement cannot be run: there is none;  -- nothing");
  EXPECT_EQ(failureOf("Select 1; Select 2"), "the statement cannot be run: there is more than one; Select 1; Select 2");
  EXPECT_EQ(failureOf(std::string("Select 1\0Select 2", 17)).find("the statement cannot be run: it holds a zero byte"),
            0U);
  // What is quoted of a long statement is its beginning.
  EXPECT_LT(failureOf("Select " + std::string(50'000, 'x')).size(), 2'200U);
}

TEST(Statement, HasNoParametersOfItsOwn) {
  const ScratchFolder folder;
  const auto session = opened(officeFile(folder));
  for (const std::string parameter : {"?", "?1", "?2", ":a", "@a", "$a"}) {
    const std::string sql = "Select IVA From TIPI_IVA Where COD_IVA = 1 And DESCRIZIONE <> " + parameter;
    EXPECT_EQ(databaseFailureOf([&] { session->run({.sql = sql}); }),
              "the statement cannot be run: it has parameters, which nothing gives a value; " + sql);
  }
}

}  // namespace
}  // namespace qvn::test
