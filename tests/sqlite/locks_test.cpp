// The host writes while the library reads.
#include <chrono>
#include <gtest/gtest.h>
#include <string>

#include "platforms/sqlite/guards.h"
#include "tests/sqlite/scratch.h"

namespace qvn::test {
namespace {

constexpr const char* kLookup = "Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP = 'GEN'";

TEST(Locks, NoneIsHeldBetweenStatements) {
  const ScratchFolder folder;
  const std::string file = officeFile(folder);
  const auto session = opened(file);
  Host host(file);
  EXPECT_EQ(host.tryTo("BEGIN EXCLUSIVE; COMMIT"), SQLITE_OK) << "after opening";

  const auto one = session->run({.sql = kLookup});
  EXPECT_EQ(host.tryTo("BEGIN EXCLUSIVE; UPDATE COMPAGNIE SET DESC_COMPAGNIA = 'Nuova'; COMMIT"), SQLITE_OK);
  const auto list = session->run({.sql = "Select * From COMPAGNIE, TIPI_IVA"});
  list->next();
  EXPECT_EQ(host.tryTo("BEGIN EXCLUSIVE; DELETE FROM TIPI_IVA; COMMIT"), SQLITE_OK) << "in the middle of a list";
  EXPECT_NE(databaseFailureOf([&] { session->run({.sql = "Select NESSUNA From COMPAGNIE"}); }), "");
  EXPECT_EQ(host.tryTo("BEGIN EXCLUSIVE; COMMIT"), SQLITE_OK) << "after a statement that could not be prepared";
  EXPECT_NE(databaseFailureOf([&] {
              session->run({.sql = "Select abs(-9223372036854775807-1) From COMPAGNIE Where COD_COMP <> ''"});
            }),
            "");
  EXPECT_EQ(host.tryTo("BEGIN EXCLUSIVE; COMMIT"), SQLITE_OK) << "after a statement that failed on its way";
  EXPECT_EQ(answerOf(*session, kLookup, {"DESC_COMPAGNIA"}), (Answer{{"t Nuova"}}));
}

TEST(Locks, OfAWriterFailTheStatementInTime) {
  const ScratchFolder folder;
  const std::string file = officeFile(folder);
  const auto session = opened(file);
  EXPECT_EQ(answerOf(*session, kLookup, {"DESC_COMPAGNIA"}), (Answer{{"t Generale"}}));
  Host host(file);
  host.exec("BEGIN EXCLUSIVE");
  // Both a statement that is kept and one that is new.
  for (const std::string sql : {kLookup, "Select IVA From TIPI_IVA Where COD_IVA = 1"}) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(databaseFailureOf([&] { session->run({.sql = sql}); }),
              "the statement cannot be run: database is locked; " + sql);
    const auto waited = std::chrono::steady_clock::now() - start;
    EXPECT_GE(waited, std::chrono::milliseconds(sqlite::kBusyMilliseconds / 2));
    EXPECT_LE(waited, std::chrono::milliseconds(sqlite::kBusyMilliseconds + 500));
  }
  EXPECT_EQ(databaseFailureOf([&] { opened(file); }),
            "the database \"" + file + "\" cannot be opened: database is locked");
  host.exec("COMMIT");
  EXPECT_EQ(answerOf(*session, kLookup, {"DESC_COMPAGNIA"}), (Answer{{"t Generale"}}));
}

TEST(Locks, OfAWriterThatHasNotCommittedLetReadersRead) {
  const ScratchFolder folder;
  const std::string file = officeFile(folder);
  const auto session = opened(file);
  Host host(file);
  host.exec("BEGIN IMMEDIATE; UPDATE COMPAGNIE SET DESC_COMPAGNIA = 'Nuova'");
  EXPECT_EQ(answerOf(*session, kLookup, {"DESC_COMPAGNIA"}), (Answer{{"t Generale"}}));
  host.exec("COMMIT");
  EXPECT_EQ(answerOf(*session, kLookup, {"DESC_COMPAGNIA"}), (Answer{{"t Nuova"}}));
}

class WriteAheadLog : public testing::Test {
 protected:
  WriteAheadLog() { Host(file_).exec("PRAGMA journal_mode = WAL"); }

  const ScratchFolder folder_;
  const std::string file_ = officeFile(folder_);
};

TEST_F(WriteAheadLog, IsReadWhileItsHostHasItOpen) {
  Host host(file_);
  host.exec("UPDATE COMPAGNIE SET DESC_COMPAGNIA = 'Prima'");
  const auto before = folder_.contents();
  const auto session = opened(file_);
  EXPECT_EQ(answerOf(*session, kLookup, {"DESC_COMPAGNIA"}), (Answer{{"t Prima"}}));
  host.exec("BEGIN EXCLUSIVE; UPDATE COMPAGNIE SET DESC_COMPAGNIA = 'Dopo'");
  EXPECT_EQ(answerOf(*session, kLookup, {"DESC_COMPAGNIA"}), (Answer{{"t Prima"}}));
  host.exec("COMMIT");
  EXPECT_EQ(answerOf(*session, kLookup, {"DESC_COMPAGNIA"}), (Answer{{"t Dopo"}}));
  EXPECT_EQ(folder_.contents().size(), before.size());
}

TEST_F(WriteAheadLog, CannotBeOpenedWithoutItsFilesWhichAreNotCreated) {
  const auto before = folder_.contents();
  ASSERT_EQ(before.size(), 1U);
  EXPECT_EQ(
      databaseFailureOf([&] { opened(file_); }),
      "the database \"" + file_ +
          "\" cannot be opened: unable to open database file, or the \"-wal\" and \"-shm\" files that belong to it");
  EXPECT_EQ(folder_.contents(), before);
}

TEST_F(WriteAheadLog, IsReadWhereAHostBrokeOffAndLeftItsFiles) {
  const ScratchFolder left;
  {
    Host host(file_);
    host.exec("UPDATE COMPAGNIE SET DESC_COMPAGNIA = 'Prima'");
    for (const auto& [name, bytes] : folder_.contents()) writeFile(left.path() / name, bytes);
  }
  const auto before = left.contents();
  ASSERT_EQ(before.size(), 3U);
  {
    const auto session = opened(left.file("office.db"));
    EXPECT_EQ(answerOf(*session, kLookup, {"DESC_COMPAGNIA"}), (Answer{{"t Prima"}}));
  }
  EXPECT_EQ(left.contents(), before);
}

}  // namespace
}  // namespace qvn::test
