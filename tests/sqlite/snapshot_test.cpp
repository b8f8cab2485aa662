// An answer is a snapshot.
#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <variant>

#include "platforms/sqlite/session.h"
#include "tests/sqlite/scratch.h"

namespace qvn::test {
namespace {

TEST(Snapshot, StaysAsItWasWhateverFollows) {
  const ScratchFolder folder;
  const std::string file = officeFile(folder);
  auto session = opened(file);
  Host host(file);
  const auto rows = session->run({.sql = "Select COD_COMP, DESC_COMPAGNIA From COMPAGNIE Order By COD_COMP"});
  EXPECT_EQ(std::get<std::string>(rows->value("COD_COMP")), "ADR");
  host.exec("DELETE FROM COMPAGNIE");
  EXPECT_TRUE(session->run({.sql = "Select COD_COMP, DESC_COMPAGNIA From COMPAGNIE Order By COD_COMP"})->atEnd());
  host.exec("DROP TABLE COMPAGNIE");
  session.reset();
  rows->next();
  EXPECT_EQ(std::get<std::string>(rows->value("DESC_COMPAGNIA")), "Generale");
  rows->next();
  EXPECT_EQ(std::get<std::string>(rows->value("DESC_COMPAGNIA")), "Torinese");
  EXPECT_FALSE(rows->atEnd());
  rows->next();
  EXPECT_TRUE(rows->atEnd());
}

TEST(Snapshot, TwoOfOneStatementStandApart) {
  const ScratchFolder folder;
  const auto session = opened(officeFile(folder));
  const auto one = session->run({.sql = "Select IVA From TIPI_IVA Where COD_IVA = 1"});
  const auto other = session->run({.sql = "Select IVA From TIPI_IVA Where COD_IVA = 2"});
  EXPECT_EQ(std::get<std::int32_t>(one->value("IVA")), 22);
  EXPECT_EQ(std::get<std::int32_t>(other->value("IVA")), 10);
}

TEST(Snapshot, HoldsAMillionSortedRows) {
  Host host(":memory:");
  host.exec(
      "CREATE TABLE CLIENTI (COD_CLIENTE TEXT, DESC_CLIENTE TEXT);"
      "WITH RECURSIVE C(N) AS (SELECT 1 UNION ALL SELECT N + 1 FROM C WHERE N < 1000000)"
      "INSERT INTO CLIENTI SELECT printf('%07d', N), printf('Cliente %d', N * 7919 % 1000000) FROM C");
  sqlite::Session session(host.release());
  const auto rows = session.run({.sql = "Select DESC_CLIENTE, COD_CLIENTE From CLIENTI Where DESC_CLIENTE Like 'CLI%' "
                                        "Order By DESC_CLIENTE, COD_CLIENTE"});
  std::string before;
  int count = 0;
  bool sorted = true;
  for (; !rows->atEnd(); rows->next()) {
    auto name = std::get<std::string>(rows->value("DESC_CLIENTE"));
    sorted = sorted && before <= name;
    before = std::move(name);
    ++count;
  }
  EXPECT_EQ(count, 1'000'000);
  EXPECT_TRUE(sorted);
}

TEST(Snapshot, HoldsShortAndLongRowsInAnyOrder) {
  Host host(":memory:");
  host.exec(
      "CREATE TABLE T (N INTEGER, LENGTH INTEGER);"
      "WITH RECURSIVE C(N) AS (SELECT 0 UNION ALL SELECT N + 1 FROM C WHERE N < 199)"
      "INSERT INTO T SELECT N, CASE N % 7 WHEN 0 THEN 300000 WHEN 3 THEN 5000 WHEN 5 THEN 0 ELSE N END FROM C");
  sqlite::Session session(host.release());
  const auto rows =
      session.run({.sql = "Select N, substr(printf('%.*c', 300000, 'x'), 1, LENGTH) AS A, LENGTH From T Order By N"});
  for (int n = 0; n < 200; ++n, rows->next()) {
    ASSERT_FALSE(rows->atEnd());
    EXPECT_EQ(std::get<std::int32_t>(rows->value("N")), n);
    const auto length = static_cast<std::size_t>(std::get<std::int32_t>(rows->value("LENGTH")));
    EXPECT_EQ(std::get<std::string>(rows->value("A")), std::string(length, 'x'));
  }
  EXPECT_TRUE(rows->atEnd());
}

TEST(Session, OverAnOpenDatabaseOnlyReadsToo) {
  Host host(":memory:");
  host.exec(officeSchema());
  sqlite::Session session(host.release());
  EXPECT_EQ(answerOf(session, "Select IVA From TIPI_IVA Where COD_IVA = 1", {"IVA"}), (Answer{{"i 22"}}));
  for (const char* sql : {"DELETE FROM TIPI_IVA", "CREATE TABLE T (A)", "ATTACH ':memory:' AS M"}) {
    EXPECT_EQ(databaseFailureOf([&] { session.run({.sql = sql}); }),
              "the statement cannot be run: not authorized; " + std::string(sql));
  }
  EXPECT_EQ(answerOf(session, "Select Count(*) AS N From TIPI_IVA", {"N"}), (Answer{{"i 2"}}));
}

}  // namespace
}  // namespace qvn::test
