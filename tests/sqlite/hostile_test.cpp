// Whatever a statement or a key says, it reads at most.
#include <gtest/gtest.h>
#include <ostream>
#include <string>

#include "tests/sqlite/scratch.h"

namespace qvn::test {
namespace {

enum class Outcome { Fails, GivesRows };

struct Attack {
  const char* name;
  std::string sql;
  Outcome outcome = Outcome::Fails;
};

void PrintTo(const Attack& one, std::ostream* out) { *out << one.sql.substr(0, 200); }

/// The statement of a look-up with a key that was not cleaned.
std::string lookup(const std::string& key) {
  return "Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP = '" + key + "'";
}

std::string vat(const std::string& key) { return "Select * From TIPI_IVA Where COD_IVA = " + key; }

std::string manyTimes(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

const std::string kEndless = "With Recursive C(N) As (Select 1 Union All Select N + 1 From C) ";

const Attack kCases[]{
    // Keys that leave their quotes.
    {"KeyDropsTable", lookup("x'; DROP TABLE COMPAGNIE; --")},
    {"KeyDeletes", lookup("x'; DELETE FROM COMPAGNIE WHERE 'a' = 'a")},
    {"KeyUpdates", lookup("x'; UPDATE COMPAGNIE SET DESC_COMPAGNIA = 'x")},
    {"KeyAttaches", lookup("x'; ATTACH 'evil.db' AS E; --")},
    {"KeyReadsAll", lookup("x' Or 'a' = 'a"), Outcome::GivesRows},
    // A union reads another table, which the operator may read anyway.
    {"KeyUnites", lookup("x' Union Select DESCRIZIONE From MASTRI --"), Outcome::GivesRows},
    {"KeyReadsSchema", lookup("x' Union Select sql From sqlite_master --"), Outcome::GivesRows},
    {"KeyOfOneQuote", lookup("'")},
    {"KeyOfTwoQuotes", lookup("''"), Outcome::GivesRows},
    {"KeyOfComment", lookup("' --"), Outcome::GivesRows},
    {"KeyOfOpenComment", lookup("' /*"), Outcome::GivesRows},
    {"NumberKeyDeletes", vat("1; DELETE FROM TIPI_IVA")},
    {"NumberKeyIsEmpty", vat("")},
    {"NumberKeyIsSelect", vat("(Select Max(COD_IVA) From TIPI_IVA)"), Outcome::GivesRows},
    {"NumberKeyOrders", vat("1 Or 1 = 1"), Outcome::GivesRows},
    {"NumberKeyIsParameter", vat("?")},
    {"NumberKeyIsNamedParameter", vat(":COD_IVA")},
    // Writing.
    {"Insert", "INSERT INTO MASTRI VALUES ('99', 'x')"},
    {"InsertReturning", "INSERT INTO MASTRI VALUES ('99', 'x') RETURNING MASTRO"},
    {"InsertOrReplace", "INSERT OR REPLACE INTO MASTRI VALUES ('01', 'x')"},
    {"Replace", "REPLACE INTO MASTRI VALUES ('01', 'x')"},
    {"Upsert", "INSERT INTO MASTRI VALUES ('01', 'x') ON CONFLICT DO UPDATE SET DESCRIZIONE = 'x'"},
    {"Update", "UPDATE MASTRI SET DESCRIZIONE = 'x'"},
    {"UpdateReturning", "UPDATE MASTRI SET DESCRIZIONE = 'x' RETURNING DESCRIZIONE"},
    {"UpdateOfNothing", "UPDATE MASTRI SET DESCRIZIONE = 'x' WHERE 0"},
    {"Delete", "DELETE FROM MASTRI"},
    {"DeleteReturning", "DELETE FROM MASTRI RETURNING MASTRO"},
    {"DeleteBehindWith", "WITH X AS (SELECT MASTRO FROM MASTRI) DELETE FROM MASTRI WHERE MASTRO IN (SELECT * FROM X)"},
    {"InsertBehindWith", "WITH X AS (SELECT '99' AS A, 'x' AS B) INSERT INTO MASTRI SELECT A, B FROM X RETURNING *"},
    {"DeleteInWith", "WITH X AS (DELETE FROM MASTRI RETURNING *) SELECT * FROM X"},
    {"WriteSchema", "UPDATE sqlite_master SET sql = ''"},
    {"InsertThroughView", "INSERT INTO ELENCO VALUES ('x')"},
    // Changing the schema.
    {"CreateTable", "CREATE TABLE T (A)"},
    {"CreateTableAs", "CREATE TABLE T AS SELECT * FROM MASTRI"},
    {"CreateTempTable", "CREATE TEMP TABLE T (A)"},
    {"CreateTempTableAs", "CREATE TEMP TABLE T AS SELECT * FROM MASTRI"},
    {"CreateTempView", "CREATE TEMP VIEW V AS SELECT * FROM MASTRI"},
    {"CreateTempTrigger", "CREATE TEMP TRIGGER G AFTER INSERT ON MASTRI BEGIN SELECT 1; END"},
    {"CreateVirtualTable", "CREATE VIRTUAL TABLE T USING fts5(A)"},
    {"CreateIndex", "CREATE INDEX X ON MASTRI (DESCRIZIONE)"},
    {"CreateView", "CREATE VIEW V AS SELECT * FROM MASTRI"},
    {"CreateTrigger", "CREATE TRIGGER G AFTER INSERT ON MASTRI BEGIN DELETE FROM CONTI; END"},
    {"DropTable", "DROP TABLE MASTRI"},
    {"DropTableIfExists", "DROP TABLE IF EXISTS MASTRI"},
    {"DropView", "DROP VIEW ELENCO"},
    {"AlterTableRename", "ALTER TABLE MASTRI RENAME TO M"},
    {"AlterTableAdd", "ALTER TABLE MASTRI ADD COLUMN X TEXT"},
    {"AlterTableDrop", "ALTER TABLE MASTRI DROP COLUMN DESCRIZIONE"},
    {"Reindex", "REINDEX"},
    {"Analyze", "ANALYZE"},
    {"Vacuum", "VACUUM"},
    {"VacuumInto", "VACUUM INTO 'evil.db'"},
    {"VacuumIntoBehindSelect", "Select 1; VACUUM INTO 'evil.db'"},
    {"ExplainVacuumInto", "EXPLAIN VACUUM INTO 'evil.db'"},
    // Other databases and files.
    {"Attach", "ATTACH 'evil.db' AS E"},
    {"AttachMemory", "ATTACH ':memory:' AS E"},
    {"AttachUri", "ATTACH 'file:evil.db?mode=rwc' AS E"},
    {"AttachComputed", "ATTACH DATABASE 'evil' || '.db' AS E"},
    {"ExplainAttach", "EXPLAIN ATTACH 'evil.db' AS E"},
    {"Detach", "DETACH main"},
    {"LoadExtension", "SELECT load_extension('evil.so')"},
    {"LoadExtensionInFilter", vat("load_extension('evil.so', 'main')")},
    {"ReadFile", "SELECT readfile('/etc/passwd')"},
    {"WriteFile", "SELECT writefile('evil.txt', 'x')"},
    {"FullTextTokenizer", "SELECT fts3_tokenizer('simple', x'0000000000000000')"},
    {"FileList", "SELECT * FROM fsdir('.')"},
    {"PageAccess", "SELECT * FROM sqlite_dbpage"},
    {"Statistics", "SELECT * FROM dbstat"},
    {"OtherStatements", "SELECT * FROM sqlite_stmt"},
    {"TableOfValues", "SELECT value FROM json_each('[1]')"},
    {"WriteLog", "SELECT sqlite_log(1, 'x')"},
    {"TempSchema", "SELECT * FROM sqlite_temp_master", Outcome::GivesRows},
    // Settings.
    {"PragmaRead", "PRAGMA user_version"},
    {"PragmaWrite", "PRAGMA user_version = 7"},
    {"PragmaJournal", "PRAGMA journal_mode = WAL"},
    {"PragmaWritableSchema", "PRAGMA writable_schema = ON"},
    {"PragmaQueryOnly", "PRAGMA query_only = OFF"},
    {"PragmaTempStore", "PRAGMA temp_store_directory = '.'"},
    {"PragmaCheckpoint", "PRAGMA wal_checkpoint"},
    {"PragmaCheck", "PRAGMA integrity_check"},
    {"PragmaOptimize", "PRAGMA optimize"},
    {"PragmaFunction", "SELECT * FROM pragma_table_info('MASTRI')"},
    {"PragmaFunctionInJoin", "SELECT * FROM MASTRI, pragma_user_version"},
    {"ExplainPragma", "EXPLAIN PRAGMA user_version = 7"},
    // Transactions.
    {"Begin", "BEGIN"},
    {"BeginExclusive", "BEGIN EXCLUSIVE"},
    {"Commit", "COMMIT"},
    {"Rollback", "ROLLBACK"},
    {"Savepoint", "SAVEPOINT S"},
    {"Release", "RELEASE S"},
    // Explaining shows how a statement would be run, and runs nothing.
    {"ExplainSelect", "EXPLAIN SELECT * FROM MASTRI", Outcome::GivesRows},
    {"ExplainPlan", "EXPLAIN QUERY PLAN SELECT * FROM MASTRI", Outcome::GivesRows},
    {"ExplainDelete", "EXPLAIN DELETE FROM MASTRI"},
    // Work without end, or nearly so.
    {"EndlessRows", kEndless + "Select N From C"},
    {"EndlessCount", kEndless + "Select Count(*) From C"},
    {"EndlessSort", kEndless + "Select N From C Order By N Desc"},
    {"EndlessGroups", kEndless + "Select N, Count(*) From C Group By N Having Count(*) > 1"},
    {"EndlessWideSort", kEndless + "Select N From C Order By hex(zeroblob(400000)) || N"},
    {"CrossJoin",
     "With T(A) As (Values (1),(2),(3),(4),(5),(6),(7),(8),(9),(0)) Select Count(*) From T A, T B, T C, T D, "
     "T E, T F, T G, T H, T I, T J"},
    {"LongTextMade", "Select hex(zeroblob(1000000000))"},
    {"WidePrintf", "Select printf('%1000000000d', 1)", Outcome::GivesRows},
    {"GiantPattern", lookup("x' Or DESC_COMPAGNIA Like '" + manyTimes("%a", 20'000))},
    {"ManyRuns", "Select hex(zeroblob(30000)) Like '" + manyTimes("%0", 400) + "1'", Outcome::GivesRows},
    {"GlobOfManyRuns", "Select hex(zeroblob(30000)) Glob '" + manyTimes("*0", 400) + "1'"},
    {"DeepExpression", "Select " + manyTimes("(", 10'000) + "1" + manyTimes(")", 10'000)},
    {"DeepSum", "Select 1" + manyTimes("+1", 5'000)},
    {"ManyUnions", "Select 1" + manyTimes(" Union All Select 1", 1'000)},
    {"ManyColumns", "Select 1" + manyTimes(",1", 5'000)},
    {"HugeText", lookup(std::string(1'000'000, 'x'))},
    {"LongKey", lookup(std::string(60'000, 'x')), Outcome::GivesRows},
    {"ManyKeys", vat("1" + manyTimes(" Or COD_IVA = 1", 150)), Outcome::GivesRows},
    // Texts that are none.
    {"Empty", ""},
    {"Blank", " \n\t"},
    {"SemicolonsAlone", ";;;"},
    {"CommentAlone", "/* nothing"},
    {"ZeroByte", std::string("Select 1") + '\0' + "; DELETE FROM MASTRI"},
    {"NotUtf8", lookup("\xFF\xFE\xC3"), Outcome::GivesRows},
    {"Nonsense", "DROP DROP DROP"},
};

class Hostile : public testing::TestWithParam<Attack> {};

TEST_P(Hostile, LeavesTheFileAndItsFolderAsTheyWere) {
  const ScratchFolder folder;
  const std::string file = officeFile(folder);
  Host(file).exec(
      "CREATE VIEW ELENCO AS SELECT DESCRIZIONE FROM MASTRI;"
      "CREATE TRIGGER ELENCO_NUOVO INSTEAD OF INSERT ON ELENCO BEGIN DELETE FROM CONTI; END");
  const WorkingFolder working(folder);
  const auto before = folder.contents();
  {
    const auto session = opened(file);
    // Twice: what is kept of the first time must not help the second.
    for (int i = 0; i < (GetParam().sql.starts_with(kEndless) ? 1 : 2); ++i) {
      const std::string failure = databaseFailureOf([&] {
        for (auto rows = session->run({.sql = GetParam().sql}); !rows->atEnd();) rows->next();
      });
      EXPECT_EQ(failure.empty(), GetParam().outcome == Outcome::GivesRows) << failure;
      EXPECT_EQ(folder.contents(), before);
    }
    EXPECT_EQ(answerOf(*session, "Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP = 'GEN'", {"DESC_COMPAGNIA"}),
              (Answer{{"t Generale"}}));
  }
  EXPECT_EQ(folder.contents(), before);
}

INSTANTIATE_TEST_SUITE_P(Statements, Hostile, testing::ValuesIn(kCases),
                         [](const auto& one) { return std::string(one.param.name); });

}  // namespace
}  // namespace qvn::test
