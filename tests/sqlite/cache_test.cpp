// Keeping prepared statements changes nothing in what they answer.
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include "platforms/sqlite/session.h"
#include "tests/sqlite/scratch.h"

namespace qvn::test {
namespace {

constexpr const char* kMixed =
    "CREATE TABLE T (I INTEGER, R REAL, X TEXT, N NUMERIC, B BLOB, F, C TEXT COLLATE NOCASE);"
    "WITH V(V) AS (VALUES (0), (1), (-1), (1.0), (1.5), ('1'), ('01'), ('1.0'), (' 1'), ('1 '), ('a'), ('A'), (''),"
    "  (NULL), (x'31'), (9223372036854775807), (9007199254740993), (1e15), ('1e0'), (10), ('10'), ('x''y'), ('è'))"
    "INSERT INTO T SELECT V, V, V, V, V, V, V FROM V;"
    "CREATE INDEX T_X ON T (X); CREATE INDEX T_I ON T (I); CREATE INDEX T_PART ON T (N) WHERE X = 'a'";

TEST(KeptStatements, CompareAsLiteralsDo) {
  const ScratchFolder folder;
  const std::string file = folder.file("mixed.db");
  Host host(file);
  host.exec(kMixed);
  const auto session = opened(file);
  const std::vector<std::string> left{
      "I", "R", "X", "N", "B", "F", "C", "+X", "X || ''", "I + 0", "(N)", "Cast(F AS TEXT)", "Cast(X AS INTEGER)"};
  const std::vector<std::string> right{"0",
                                       "1",
                                       "01",
                                       "10",
                                       "9007199254740993",
                                       "9223372036854775807",
                                       "'1'",
                                       "'01'",
                                       "'1.0'",
                                       "' 1'",
                                       "'a'",
                                       "'A'",
                                       "''",
                                       "'è'",
                                       "'1e0'",
                                       "'x''y'",
                                       "-1",
                                       "1.0",
                                       "1.5",
                                       "NULL",
                                       "x'31'",
                                       "9223372036854775808",
                                       "0x1",
                                       "1 + 0",
                                       "'1' || '0'",
                                       "'A' Collate NoCase",
                                       "1 + '9'",
                                       "10 % 4",
                                       "(1)"};
  int compared = 0;
  for (const auto& a : left) {
    for (const std::string operation : {"=", "<>", "<", ">", "<=", ">=", "==", "!="}) {
      for (const auto& b : right) {
        const std::string sql = "Select rowid AS R From T Where " + a + " " + operation + " " + b + " Order By rowid";
        EXPECT_EQ(answerOf(*session, sql, {"R"}), plainAnswerOf(host.database(), sql)) << sql;
        ++compared;
      }
    }
  }
  EXPECT_EQ(compared, 13 * 8 * 29);
}

TEST(KeptStatements, AnswerAsFreshOnesDoElsewhereToo) {
  const ScratchFolder folder;
  const std::string file = folder.file("mixed.db");
  Host host(file);
  host.exec(kMixed);
  const auto session = opened(file);
  const std::vector<std::string> statements{
      "Select Count(*) AS R From T Where X = 'a' And N = 'a'",
      "Select Count(*) AS R From T Where X = 'A' And N = 'A'",
      "Select Count(*) AS R From T Where I = 1 Or I = 10 Or X = 'a'",
      "Select Count(*) AS R From T Where X In (Select X From T Where I >= 1)",
      "Select Case When I = 1 Then 'one' Else 'other' End AS R From T Where I <> 99 Order By R",
      "Select X = 'a' AS R, Count(*) AS N From T Where 1 = 1 Group By X = 'a' Order By R",
      "Select typeof(Max(I)) AS R From T Where 1 = 1 Group By X = 'a' Having Count(*) > 2",
      "Select I = 1 AS R From T Where I >= 0 Union Select I = 1 From T Order By 1",
      "Select I = 1 From T Where I >= 0 Union Select I = 1 From T Order By I = 1",
      "Select R AS R From T Where I = 'T'.I And R = 1",
      "Select typeof(I) AS R From T Where I >= 1 Order By I Limit 2 > 1",
  };
  for (const auto& sql : statements) {
    const std::string name = sql.find(" AS R") == std::string::npos ? "I = 1" : "R";
    Answer plain = plainAnswerOf(host.database(), sql);
    for (auto& row : plain) row.resize(1);
    EXPECT_EQ(answerOf(*session, sql, {name}), plain) << sql;
    EXPECT_EQ(answerOf(*session, sql, {name}), plain) << "again: " << sql;
  }
}

TEST(KeptStatements, TakeEachKeyAnew) {
  const ScratchFolder folder;
  const auto session = opened(officeFile(folder));
  const auto find = [&](const std::string& code) {
    return answerOf(*session, "Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP = '" + code + "'",
                    {"DESC_COMPAGNIA"});
  };
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(find("GEN"), (Answer{{"t Generale"}}));
    EXPECT_EQ(find(""), Answer{});
    EXPECT_EQ(find("TOR"), (Answer{{"t Torinese"}}));
    EXPECT_EQ(find("gen"), Answer{});
  }
  EXPECT_EQ(answerOf(*session, "Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP = 5", {"DESC_COMPAGNIA"}),
            Answer{});
  EXPECT_EQ(find("ADR"), (Answer{{"t Adriatica"}}));
}

/// The texts of a database's prepared statements.
std::set<std::string> preparedIn(sqlite3* database) {
  std::set<std::string> texts;
  for (sqlite3_stmt* one = sqlite3_next_stmt(database, nullptr); one != nullptr; one = sqlite3_next_stmt(database, one))
    texts.insert(sqlite3_sql(one));
  return texts;
}

TEST(KeptStatements, GiveWayToNewerOnes) {
  Host host(":memory:");
  host.exec(officeSchema());
  sqlite3* const database = &host.database();
  sqlite::Session session(host.release());
  const auto find = [&](const std::string& name) {
    EXPECT_EQ(answerOf(session, "Select IVA AS " + name + " From TIPI_IVA Where COD_IVA = 1", {name}),
              (Answer{{"i 22"}}));
    return "Select IVA AS " + name + " From TIPI_IVA Where COD_IVA = ?";
  };
  const auto usual = find("USUAL");
  for (int round = 0; round < 2; ++round) {
    for (int i = 0; i < 200; ++i) {
      const auto newest = find(std::string("C").append(std::to_string(i)));
      const auto prepared = preparedIn(database);
      EXPECT_LE(prepared.size(), sqlite::kMostPrepared);
      EXPECT_TRUE(prepared.contains(newest));
      EXPECT_TRUE(prepared.contains(usual)) << "though it was run just before";
      find("USUAL");
    }
  }
  EXPECT_EQ(preparedIn(database).size(), sqlite::kMostPrepared);
}

TEST(KeptStatements, SeeTheHostsChanges) {
  const ScratchFolder folder;
  const std::string file = officeFile(folder);
  const auto session = opened(file);
  Host host(file);
  const std::string sql = "Select * From TIPI_IVA Where COD_IVA = 1";
  EXPECT_EQ(answerOf(*session, sql, {"DESCRIZIONE", "IVA"}), (Answer{{"t Ordinaria", "i 22"}}));
  host.exec("UPDATE TIPI_IVA SET IVA = 23 WHERE COD_IVA = 1");
  EXPECT_EQ(answerOf(*session, sql, {"DESCRIZIONE", "IVA"}), (Answer{{"t Ordinaria", "i 23"}}));
  host.exec("ALTER TABLE TIPI_IVA ADD COLUMN NOTE TEXT DEFAULT 'n'");
  EXPECT_EQ(answerOf(*session, sql, {"NOTE", "IVA"}), (Answer{{"t n", "i 23"}}));
  host.exec("ALTER TABLE TIPI_IVA RENAME COLUMN IVA TO ALIQUOTA");
  EXPECT_EQ(answerOf(*session, sql, {"NOTE", "aliquota"}), (Answer{{"t n", "i 23"}}));
  host.exec("DROP TABLE TIPI_IVA");
  EXPECT_NE(databaseFailureOf([&] { session->run({.sql = sql}); }).find("no such table: TIPI_IVA"), std::string::npos);
  host.exec("CREATE TABLE TIPI_IVA (COD_IVA TEXT, IVA TEXT); INSERT INTO TIPI_IVA VALUES ('1', 'x')");
  EXPECT_EQ(answerOf(*session, sql, {"IVA"}), (Answer{{"t x"}}));
}

}  // namespace
}  // namespace qvn::test
