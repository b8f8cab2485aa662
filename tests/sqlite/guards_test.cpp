// Each guard by itself: what it lets pass, what it stops, and that it stands where another one fails.
#include "platforms/sqlite/guards.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <utility>

#include "platforms/sqlite/reading_vfs.h"
#include "platforms/sqlite/session.h"
#include "tests/sqlite/scratch.h"

namespace qvn::test {
namespace {

std::string repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

std::string counted(int rows) {
  return "With Recursive C(N) As (Select 1 Union All Select N + 1 From C Where N < " + std::to_string(rows) + ") ";
}

/// The answer of a statement is no matter, but why it cannot be run; the empty text if it can.
std::string reasonOf(sqlite::Session& session, const std::string& sql) {
  const std::string failure = databaseFailureOf([&] { session.run({.sql = sql}); });
  const std::string before = "the statement cannot be run: ";
  return failure.empty() ? failure : failure.substr(before.size(), failure.rfind("; ") - before.size());
}

struct Bound {
  const char* name;
  sqlite::Bounds bounds;
  std::string sql;
  std::string reason;
};

void PrintTo(const Bound& one, std::ostream* out) { *out << one.name; }

class Bounds : public testing::TestWithParam<Bound> {};

TEST_P(Bounds, StopAStatementAndLetTheNextOnesPass) {
  const auto& [name, bounds, sql, reason] = GetParam();
  sqlite::Session usual(Host(":memory:").release());
  EXPECT_EQ(reasonOf(usual, sql), "");
  sqlite::Session narrow(Host(":memory:").release(), bounds);
  EXPECT_EQ(reasonOf(narrow, sql), reason);
  // More than any bound, taken together.
  for (int i = 0; i < 200; ++i) EXPECT_EQ(reasonOf(narrow, counted(100) + "Select N From C Order By N"), "");
}

INSTANTIATE_TEST_SUITE_P(
    Work, Bounds,
    testing::Values(
        Bound{"Looks", {.looks = 100}, counted(100'000) + "Select Count(*) From C", "it takes too much work"},
        Bound{"Time",
              {.time = std::chrono::milliseconds(100)},
              counted(2'000'000) + "Select Count(*) From C",
              "it takes too much work"},
        Bound{"Memory",
              {.memory = 1 << 20},
              counted(20'000) + "Select printf('%0200d', N) From C Order By 1 Desc",
              "it takes too much work"},
        Bound{"Answer", {.answer = 2'000}, counted(1'000) + "Select N From C", "it gives more rows than can be held"}),
    [](const auto& one) { return std::string(one.param.name); });

struct Limit {
  const char* name;
  std::string within;
  std::string beyond;
  std::string reason;
};

void PrintTo(const Limit& one, std::ostream* out) { *out << one.name; }

/// A statement that is read in its parts, each of which names the one before so many times: three times over.
std::string unfolded(int times) {
  std::string sql = "With A0 As Not Materialized (Select 1 As X Union All Select 2)";
  for (int part = 1; part <= 3; ++part) {
    sql += ", A" + std::to_string(part) + " As Not Materialized (Select 0 As X";
    for (int i = 0; i < times; ++i)
      sql += " Union All Select X From A" + std::to_string(part - 1) + " Where X <> " + std::to_string(i);
    sql += ")";
  }
  return sql + " Select Count(*) From A3";
}

class Limits : public testing::TestWithParam<Limit> {};

TEST_P(Limits, StandWhereTheyStand) {
  sqlite::Session session(Host(":memory:").release());
  EXPECT_EQ(reasonOf(session, GetParam().within), "");
  EXPECT_EQ(reasonOf(session, GetParam().beyond), GetParam().reason);
}

INSTANTIATE_TEST_SUITE_P(
    Statements, Limits,
    testing::Values(Limit{"LengthOfTheStatement", "Select 1" + std::string(sqlite::kLongestStatement - 8, ' '),
                          "Select 1" + std::string(sqlite::kLongestStatement - 7, ' '), "it is too long"},
                    Limit{"LengthOfAValue", "Select hex(zeroblob(500000))", "Select hex(zeroblob(600000))",
                          "string or blob too big"},
                    Limit{"DepthOfAnExpression", "Select 1" + repeated("+1", 190), "Select 1" + repeated("+1", 210),
                          "Expression tree is too large (maximum depth 200)"},
                    Limit{"TermsOfAUnion", "Select 1" + repeated(" Union All Select 1", 45),
                          "Select 1" + repeated(" Union All Select 1", 55), "too many terms in compound SELECT"},
                    Limit{"StepsThatItIsMadeOf", unfolded(10), unfolded(25), "out of memory"},
                    Limit{"LengthOfAPlainPattern", "Select 'x' Like '" + std::string(1'000, 'x') + "'",
                          "Select 'x' Like '" + std::string(1'001, 'x') + "'", "LIKE or GLOB pattern too complex"},
                    Limit{"LengthOfAPattern", "Select 'x' Like '_" + std::string(999, 'x') + "'",
                          "Select 'x' Like '_" + std::string(1'000, 'x') + "'", "LIKE pattern too long"}),
    [](const auto& one) { return std::string(one.param.name); });

/// A session over a database in memory, and the handle that it works on.
struct Guarded {
  explicit Guarded(Host host = Host(":memory:")) : database(&host.database()), session(host.release()) {}
  /// What SQLite says to a statement of one who gets past the session; the empty text if it lets it pass.
  std::string tryTo(const char* sql) const {
    return sqlite3_exec(database, sql, nullptr, nullptr, nullptr) == SQLITE_OK ? "" : sqlite3_errmsg(database);
  }

  sqlite3* database;
  sqlite::Session session;
};

Host office() {
  Host host(":memory:");
  host.exec(officeSchema());
  return host;
}

TEST(Guards, StandWithoutTheAuthorizerToo) {
  Guarded guarded(office());
  EXPECT_EQ(guarded.tryTo("DELETE FROM MASTRI"), "not authorized");
  sqlite3_set_authorizer(guarded.database, nullptr, nullptr);
  EXPECT_EQ(guarded.tryTo("DELETE FROM MASTRI"), "attempt to write a readonly database");
  EXPECT_EQ(guarded.tryTo("ATTACH ':memory:' AS M"), "too many attached databases - max 0");
  for (const char* sql : {"DELETE FROM MASTRI RETURNING MASTRO", "BEGIN", "PRAGMA query_only = OFF"})
    EXPECT_EQ(reasonOf(guarded.session, sql), "it does not only read") << sql;
  EXPECT_EQ(reasonOf(guarded.session, "SELECT value FROM json_each('[1]')"), "no such table: json_each");
  EXPECT_EQ(guarded.tryTo("PRAGMA writable_schema = ON"), "");
  EXPECT_EQ(guarded.tryTo("UPDATE sqlite_master SET sql = ''"), "table sqlite_master may not be modified");
}

TEST(Guards, SetWhatTheDatabaseWorksBy) {
  const Guarded guarded;
  sqlite3_set_authorizer(guarded.database, nullptr, nullptr);
  for (const auto& [setting, value] : {std::pair<const char*, const char*>{"query_only", "i 1"},
                                       {"temp_store", "i 2"},
                                       {"cell_size_check", "i 1"},
                                       {"cache_size", "i -16384"},
                                       {"trusted_schema", "i 0"}}) {
    EXPECT_EQ(plainAnswerOf(*guarded.database, std::string("PRAGMA ") + setting), (Answer{{value}})) << setting;
  }
}

TEST(Guards, TakeBackWhatTheHostHadAllowed) {
  Host host = office();
  host.exec("PRAGMA writable_schema = ON");
  ASSERT_EQ(plainAnswerOf(host.database(), "PRAGMA writable_schema"), (Answer{{"i 1"}}));
  ASSERT_EQ(sqlite3_db_config(&host.database(), SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 1, nullptr), SQLITE_OK);
  const Guarded guarded(std::move(host));
  sqlite3_set_authorizer(guarded.database, nullptr, nullptr);
  EXPECT_EQ(plainAnswerOf(*guarded.database, "PRAGMA writable_schema"), (Answer{{"i 0"}}));
  char* message = nullptr;
  EXPECT_EQ(sqlite3_load_extension(guarded.database, "nothing", nullptr, &message), SQLITE_ERROR);
  EXPECT_STREQ(message, "not authorized");
  sqlite3_free(message);
}

// A host's function may do more than compute, under whatever name; a schema that somebody else wrote is not to call it.
TEST(Guards, KeepTheSchemaFromTheHostsFunctions) {
  Host host(":memory:");
  const auto answerOne = [](sqlite3_context* context, int, sqlite3_value**) { sqlite3_result_int(context, 1); };
  ASSERT_EQ(sqlite3_create_function(&host.database(), "sqrt", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, answerOne,
                                    nullptr, nullptr),
            SQLITE_OK);
  host.exec(
      "CREATE TABLE T (A, G AS (sqrt(A))); INSERT INTO T VALUES (4); CREATE VIEW V AS SELECT sqrt(A) AS R FROM T");
  Guarded guarded(std::move(host));
  EXPECT_EQ(answerOf(guarded.session, "Select sqrt(A) AS R From T", {"R"}), (Answer{{"i 1"}}));
  EXPECT_EQ(reasonOf(guarded.session, "Select R From V"), "unsafe use of sqrt()");
  EXPECT_EQ(reasonOf(guarded.session, "Select G From T"), "unsafe use of sqrt()");
}

TEST(Guards, KeepAViewFromWhatAStatementMayNot) {
  const ScratchFolder folder;
  const std::string file = officeFile(folder);
  Host(file).exec("CREATE VIEW V AS SELECT load_extension('evil.so') AS R");
  EXPECT_EQ(databaseFailureOf([&] { opened(file)->run({.sql = "Select R From V"}); }),
            "the statement cannot be run: unsafe use of load_extension(); Select R From V");
}

TEST(FailedStatements, AreQuotedUpToAWholeCharacter) {
  const ScratchFolder folder;
  const auto session = opened(officeFile(folder));
  const std::string begins = "Select " + std::string(992, 'x');
  const std::string message = databaseFailureOf([&] { session->run({.sql = begins + "è From Nowhere"}); });
  EXPECT_TRUE(message.ends_with("; " + begins + "…")) << message;
}

const std::string kBigSort = counted(60'000) + "Select printf('%0600d', N) AS A From C Order By A Desc";

TEST(Sorting, OfMuchNeedsNoFile) {
  const ScratchFolder folder;
  const auto session = opened(officeFile(folder));
  const Answer answer = answerOf(*session, kBigSort, {"A"});
  EXPECT_EQ(answer.size(), 60'000U);
  EXPECT_EQ(answer.at(0).at(0), "t " + std::string(595, '0') + "60000");
}

TEST(ReadingVfs, MakesNoTemporaryFile) {
  const ScratchFolder folder;
  const std::string file = officeFile(folder);
  const auto sortOver = [&](const char* vfs) {
    sqlite3* handle = nullptr;
    EXPECT_EQ(sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READONLY, vfs), SQLITE_OK);
    const sqlite::DatabaseHandle database(handle);
    EXPECT_EQ(sqlite3_exec(handle, "PRAGMA temp_store = FILE", nullptr, nullptr, nullptr), SQLITE_OK);
    return sqlite3_exec(handle, kBigSort.c_str(), nullptr, nullptr, nullptr);
  };
  EXPECT_EQ(sortOver(nullptr), SQLITE_OK);
  EXPECT_EQ(sortOver(sqlite::readingVfs()), SQLITE_CANTOPEN);
}

TEST(ReadingVfs, DeletesNothing) {
  const ScratchFolder folder;
  const std::string file = officeFile(folder);
  sqlite3_vfs* const vfs = sqlite3_vfs_find(sqlite::readingVfs());
  EXPECT_EQ(vfs->xDelete(vfs, file.c_str(), 0), SQLITE_READONLY);
  EXPECT_EQ(folder.contents().size(), 1U);
}

}  // namespace
}  // namespace qvn::test
