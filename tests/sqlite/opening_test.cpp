// What can be opened and what cannot.
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>

#include "platforms/sqlite/driver.h"
#include "qvn/toolkit/database.h"
#include "tests/sqlite/scratch.h"

namespace qvn::test {
namespace {

std::string failureOfOpening(const std::string& file) {
  return databaseFailureOf([&] { opened(file); });
}

std::string message(const std::string& file, const std::string& reason) {
  return "the database \"" + file + "\" cannot be opened: " + reason;
}

TEST(Opening, WorksThroughTheConnection) {
  const ScratchFolder folder;
  toolkit::Drivers drivers;
  drivers.add(sqlite::driver());
  toolkit::Connection connection(drivers);
  connection.Open("sqlite:" + officeFile(folder));
  EXPECT_EQ(connection.State(), 1);
  toolkit::Recordset rows;
  rows.Open("Select IVA From TIPI_IVA Where COD_IVA = 2", connection, toolkit::adOpenDynamic, toolkit::adLockOptimistic,
            toolkit::adOptionUnspecified);
  EXPECT_EQ(std::get<std::int32_t>(rows.Fields("iva")), 10);
  connection.Close();
  EXPECT_EQ(std::get<std::int32_t>(rows.Fields("iva")), 10);
}

TEST(Opening, FailsOnWhatIsNoDatabaseAndCreatesNothing) {
  const ScratchFolder folder;
  writeFile(folder.path() / "garbage.db", std::string(10'000, 'x'));
  writeFile(folder.path() / "short.db", "SQLite");
  std::filesystem::create_directory(folder.path() / "folder.db");
  ASSERT_EQ(mkfifo(folder.file("pipe.db").c_str(), 0600), 0);
  std::filesystem::create_symlink("nowhere", folder.path() / "link.db");
  EXPECT_EQ(failureOfOpening(folder.file("missing.db")), message(folder.file("missing.db"), "there is no such file"));
  EXPECT_EQ(failureOfOpening(folder.file("missing/x.db")),
            message(folder.file("missing/x.db"), "there is no such file"));
  EXPECT_EQ(failureOfOpening(folder.file("link.db")), message(folder.file("link.db"), "there is no such file"));
  EXPECT_EQ(failureOfOpening(folder.file("folder.db")), message(folder.file("folder.db"), "it is a folder"));
  EXPECT_EQ(failureOfOpening(folder.file("pipe.db")), message(folder.file("pipe.db"), "it is no file"));
  EXPECT_EQ(failureOfOpening(folder.file("garbage.db")), message(folder.file("garbage.db"), "file is not a database"));
  EXPECT_EQ(failureOfOpening(folder.file("short.db")), message(folder.file("short.db"), "file is not a database"));
  EXPECT_EQ(failureOfOpening(""), message("", "there is no such file"));
  EXPECT_EQ(failureOfOpening(":memory:"), message(":memory:", "there is no such file"));
  EXPECT_EQ(failureOfOpening(std::string("a\0b", 3)), message("a", "the path holds a zero byte"));
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "missing.db"));
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "nowhere"));
}

TEST(Opening, TakesAPathAsAPathWhateverItLooksLike) {
  const ScratchFolder folder;
  const WorkingFolder working(folder);
  for (const std::string name :
       {"plain.db", "file:x?mode=rwc&cache=shared", ":memory:", "a b#c%41&d=e.db", "però.db"}) {
    writeFile(folder.path() / name, "");
    Host(folder.file("made.db")).exec("CREATE TABLE T (A); INSERT INTO T VALUES ('" + name + "')");
    std::filesystem::rename(folder.path() / "made.db", folder.path() / name);
    EXPECT_EQ(answerOf(*opened(name), "Select A From T", {"A"}), (Answer{{"t " + name}}));
    EXPECT_EQ(answerOf(*opened(folder.file(name)), "Select A From T", {"A"}), (Answer{{"t " + name}}));
  }
  EXPECT_EQ(folder.contents().size(), 5U);
}

TEST(Opening, TakesAnEmptyFileForADatabaseWithoutTables) {
  const ScratchFolder folder;
  writeFile(folder.path() / "empty.db", "");
  const auto session = opened(folder.file("empty.db"));
  EXPECT_NE(databaseFailureOf([&] { session->run({.sql = "Select IVA From TIPI_IVA"}); }).find("no such table"),
            std::string::npos);
  EXPECT_EQ(folder.contents(), (std::map<std::string, std::string>{{"empty.db", ""}}));
}

TEST(Opening, FailsWithTheSystemsReasonOnAFileThatCannotBeOpened) {
  const ScratchFolder folder;
  const std::string file = officeFile(folder);
  const std::string circle = folder.file("circle.db");  // a link to itself leads nowhere, for root either
  std::filesystem::create_symlink(circle, circle);
  EXPECT_EQ(failureOfOpening(circle), message(circle, "Too many levels of symbolic links"));
  EXPECT_EQ(failureOfOpening(file), "");
}

TEST(Opening, NeedsNoRightToWrite) {
  const ScratchFolder folder;
  const std::string file = officeFile(folder);
  ASSERT_EQ(chmod(file.c_str(), 0400), 0);
  ASSERT_EQ(chmod(folder.path().c_str(), 0500), 0);
  EXPECT_EQ(answerOf(*opened(file), "Select IVA From TIPI_IVA Where COD_IVA = 2", {"IVA"}), (Answer{{"i 10"}}));
  ASSERT_EQ(chmod(folder.path().c_str(), 0700), 0);
}

TEST(Opening, FailsOnAChangeThatBrokeOffAndLeavesItToTheHost) {
  const ScratchFolder folder;
  const ScratchFolder left;
  const auto earlier = opened(officeFile(left));
  {
    Host host(officeFile(folder));
    // A small cache makes the change reach the file before it is committed.
    host.exec(
        "PRAGMA cache_size = 5; PRAGMA cache_spill = 1; CREATE TABLE T (A); BEGIN;"
        "WITH RECURSIVE C(N) AS (SELECT 1 UNION ALL SELECT N + 1 FROM C WHERE N < 2000)"
        "INSERT INTO T SELECT hex(zeroblob(500)) FROM C");
    for (const auto& [name, bytes] : folder.contents()) writeFile(left.path() / name, bytes);
  }
  const auto before = left.contents();
  ASSERT_EQ(before.size(), 2U);
  EXPECT_EQ(failureOfOpening(left.file("office.db")),
            message(left.file("office.db"), "a program that broke off left the database in the middle of a change"));
  EXPECT_EQ(databaseFailureOf([&] { earlier->run({.sql = "Select IVA From TIPI_IVA"}); }),
            "the statement cannot be run: a program that broke off left the database in the middle of a change; Select "
            "IVA From TIPI_IVA");
  EXPECT_EQ(left.contents(), before);
  // The host takes the broken change back, and the file can be read again.
  Host(left.file("office.db")).exec("SELECT * FROM T");
  EXPECT_EQ(answerOf(*opened(left.file("office.db")), "Select Count(*) AS N From T", {"N"}), (Answer{{"i 0"}}));
}

TEST(Damage, FailsTheStatementThatMeetsIt) {
  const ScratchFolder folder;
  const std::string file = officeFile(folder);
  Host(file).exec(
      "CREATE TABLE T (A TEXT);"
      "WITH RECURSIVE C(N) AS (SELECT 1 UNION ALL SELECT N + 1 FROM C WHERE N < 3000)"
      "INSERT INTO T SELECT printf('%0100d', N) FROM C");
  std::string bytes = folder.contents().at("office.db");
  const std::size_t page = 4096;
  ASSERT_GT(bytes.size(), 60 * page);
  std::fill(bytes.begin() + 50 * page, bytes.begin() + 52 * page, '\x5A');
  writeFile(file, bytes);
  const auto session = opened(file);
  EXPECT_EQ(databaseFailureOf([&] { session->run({.sql = "Select A From T"}); }),
            "the statement cannot be run: database disk image is malformed; Select A From T");
  EXPECT_EQ(answerOf(*session, "Select IVA From TIPI_IVA Where COD_IVA = 2", {"IVA"}), (Answer{{"i 10"}}));

  // A file that was cut off, and a header that promises pages which are not there.
  std::filesystem::resize_file(file, 30 * page);
  EXPECT_NE(databaseFailureOf([&] { opened(file)->run({.sql = "Select A From T"}); }), "");
}

}  // namespace
}  // namespace qvn::test
