// The program as a person runs it: what it takes, what it says, and what it leaves on the disk.
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "tests/office/office.h"

namespace office_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

std::string in(const Folder& folder) { return "cd '" + folder.path().string() + "' &&"; }

TEST(OfficeCommandLine, twoRunsGiveTheSameFileToTheByte) {
  const Folder folder;
  ASSERT_EQ(campione("first.db", in(folder)).status, 0);
  ASSERT_EQ(campione("second.db", in(folder)).status, 0);
  EXPECT_TRUE(contentsOf(folder.file("first.db")) == contentsOf(folder.file("second.db")));
  EXPECT_THAT(folder.names(), ElementsAre("first.db", "second.db"));
}

TEST(OfficeCommandLine, saysWhatTheFileHolds) {
  const Folder folder;
  const Answer run = campione("office.db", in(folder));
  EXPECT_EQ(run.status, 0);
  EXPECT_THAT(run.output, StartsWith("office.db: 40 companies, 60 producers, 2000 clients, 5000 policies, "));
  EXPECT_THAT(run.errors, IsEmpty());
}

TEST(OfficeCommandLine, theScaleMultipliesClientsAndPoliciesAndAddsAFewCompaniesAndProducers) {
  const Folder folder;
  const Answer run = campione("office.db --scale 4", in(folder));
  EXPECT_EQ(run.status, 0);
  EXPECT_THAT(run.output, StartsWith("office.db: 50 companies, 100 producers, 8000 clients, 20000 policies, "));
  const Database office(folder.file("office.db"));
  EXPECT_EQ(office.number("SELECT count(*) FROM POLIZZE"), 20000);
  EXPECT_EQ(office.number("SELECT count(*) FROM CLIENTI"), 8000);
  EXPECT_EQ(office.number("SELECT count(*) FROM COMPAGNIE"), 50);
  EXPECT_EQ(office.number("SELECT count(*) FROM PRODUTTORI"), 100);
}

TEST(OfficeCommandLine, helpGoesToTheOutput) {
  const Answer run = campione("--help");
  EXPECT_EQ(run.status, 0);
  EXPECT_THAT(run.output, StartsWith("usage: qvn-campione FILE [--scale N] [--storage numeric|real|text] [--force]\n"));
  EXPECT_THAT(run.errors, IsEmpty());
}

struct WrongUsage {
  std::string_view arguments;
  std::string_view message;
};

constexpr WrongUsage wrongUsages[] = {
    {"", "no FILE given"},
    {"--force", "no FILE given"},
    {"''", "FILE is empty"},
    {"a.db b.db", "one FILE only, and both 'a.db' and 'b.db' were given"},
    {"a.db --sclae 2", "unknown option '--sclae'"},
    {"a.db -f", "unknown option '-f'"},
    {"a.db --scale", "--scale needs a value behind it"},
    {"a.db --scale two", "--scale: 'two' is no whole number from 1 to 250"},
    {"a.db --scale ''", "--scale: '' is no whole number from 1 to 250"},
    {"a.db --scale 2x", "--scale: '2x' is no whole number from 1 to 250"},
    {"a.db --scale 1.5", "--scale: '1.5' is no whole number from 1 to 250"},
    {"a.db --scale 0", "--scale: '0' is no whole number from 1 to 250"},
    {"a.db --scale -3", "--scale: '-3' is no whole number from 1 to 250"},
    {"a.db --scale 251", "--scale: '251' is no whole number from 1 to 250"},
    {"a.db --scale 99999999999999999999", "--scale: '99999999999999999999' is no whole number from 1 to 250"},
    {"a.db --storage", "--storage needs a value behind it"},
    {"a.db --storage blob", "--storage: 'blob' is none of numeric, real, text"},
};

TEST(OfficeCommandLine, wrongUsageIsToldAndWritesNothing) {
  for (const WrongUsage& wrong : wrongUsages) {
    const Folder folder;
    const Answer run = campione(wrong.arguments, in(folder));
    EXPECT_EQ(run.status, 2) << wrong.arguments;
    EXPECT_THAT(run.errors, StartsWith("qvn-campione: " + std::string(wrong.message) + "\nusage: ")) << wrong.arguments;
    EXPECT_THAT(run.output, IsEmpty()) << wrong.arguments;
    EXPECT_THAT(folder.names(), IsEmpty()) << wrong.arguments;
  }
}

TEST(OfficeCommandLine, aFileThatIsThereIsLeftAloneUnlessForced) {
  const Folder folder;
  writeFile(folder.file("office.db"), "precious");
  const Answer refused = campione("office.db", in(folder));
  EXPECT_EQ(refused.status, 1);
  EXPECT_EQ(refused.errors, "qvn-campione: cannot write 'office.db': it is there already; --force replaces it\n");
  EXPECT_EQ(contentsOf(folder.file("office.db")), "precious");

  EXPECT_EQ(campione("--force office.db", in(folder)).status, 0);
  EXPECT_EQ(Database(folder.file("office.db")).number("SELECT count(*) FROM CLIENTI"), 2000);
  EXPECT_THAT(folder.names(), ElementsAre("office.db"));
}

TEST(OfficeCommandLine, aReplacedDatabaseLeavesNoJournalBehind) {
  const Folder folder;
  for (const std::string_view name : {"office.db", "office.db-journal", "office.db-wal", "office.db-shm"}) {
    writeFile(folder.file(name), "of the database before");
  }
  EXPECT_EQ(campione("office.db --force", in(folder)).status, 0);
  EXPECT_THAT(folder.names(), ElementsAre("office.db"));
}

TEST(OfficeCommandLine, aFolderIsNeverReplaced) {
  const Folder folder;
  std::filesystem::create_directory(folder.path() / "office.db");
  const Answer run = campione("office.db --force", in(folder));
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.errors, "qvn-campione: cannot write 'office.db': it is there and is no plain file\n");
}

TEST(OfficeCommandLine, aFolderThatCannotBeWrittenInIsToldWithTheCause) {
  const Folder folder;
  writeFile(folder.file("plain"), "no folder");
  const Answer missing = campione("no/such/office.db", in(folder));
  EXPECT_EQ(missing.status, 1);
  EXPECT_EQ(missing.errors, "qvn-campione: cannot write 'no/such/office.db': No such file or directory\n");
  const Answer plain = campione("plain/office.db", in(folder));
  EXPECT_EQ(plain.status, 1);
  EXPECT_EQ(plain.errors, "qvn-campione: cannot write 'plain/office.db': Not a directory\n");
  EXPECT_THAT(folder.names(), ElementsAre("plain"));
}

TEST(OfficeCommandLine, whatCannotBeFinishedIsNotLeftBehindAndWhatWasThereStays) {
  const Folder folder;
  writeFile(folder.file("office.db"), "precious");
  // No file may grow beyond a thousand blocks, as on a disk that is full.
  const Answer run = campione("office.db --force", in(folder) + " trap '' XFSZ && ulimit -f 1000 &&");
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.errors, StartsWith("qvn-campione: cannot write 'office.db': "));
  EXPECT_THAT(folder.names(), ElementsAre("office.db"));
  EXPECT_EQ(contentsOf(folder.file("office.db")), "precious");
}

TEST(OfficeCommandLine, anInterruptedRunLeavesNothingBehind) {
  const Folder folder;
  const Answer run = campione("office.db --scale 250", in(folder) + " timeout --preserve-status -s INT 1");
  EXPECT_EQ(run.status, 130);
  EXPECT_THAT(folder.names(), IsEmpty());
}

}  // namespace
}  // namespace office_test
