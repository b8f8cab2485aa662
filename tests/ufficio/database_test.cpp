// The window on databases that are not as they should be.
#include <filesystem>
#include <optional>

#include "tests/ufficio/at_window.h"

namespace qvn::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

/// Walks through all screens; what the notice tells on the first.
std::string noticeOn(const std::string& file) {
  const OfficeAt office(file);
  std::string first = office.window->notice().toStdString();
  for (std::size_t number = 0; number < ufficio::screenClasses().size(); ++number) {
    EXPECT_TRUE(office.window->chooseScreen(number));
    EXPECT_THAT(office.window->chooser().records(), IsEmpty());
    EXPECT_FALSE(office.window->edit());
    EXPECT_FALSE(office.window->notice().isEmpty());
  }
  return first;
}

TEST(OfficeDatabase, ThatIsMissingIsToldAndNotMade) {
  const office_test::Folder folder;
  EXPECT_THAT(noticeOn(folder.file("manca.db")), HasSubstr("manca.db non esiste o non si può aprire"));
  EXPECT_THAT(folder.names(), IsEmpty());
}

TEST(OfficeDatabase, ThatIsAFolderIsTold) {
  const office_test::Folder folder;
  EXPECT_THAT(noticeOn(folder.path().string()), HasSubstr("non esiste o non si può aprire"));
}

TEST(OfficeDatabase, ThatIsNoneIsTold) {
  const office_test::Folder folder;
  office_test::writeFile(folder.file("lettera.txt"), std::string(5000, 'x'));
  EXPECT_THAT(noticeOn(folder.file("lettera.txt")), HasSubstr("lettera.txt non è un database"));
}

TEST(OfficeDatabase, WithoutTablesIsTold) {
  const office_test::Folder folder;
  office_test::writeFile(folder.file("vuoto.db"), "");
  EXPECT_THAT(noticeOn(folder.file("vuoto.db")), HasSubstr("I record non si possono cercare: il database risponde"));
}

TEST(OfficeDatabase, ThatIsLockedIsToldAndLaterRead) {
  const SampleCopy sample;
  std::optional<Writer> other(sample.file());
  const OfficeAt office(sample.file());
  EXPECT_THAT(office.window->notice().toStdString(), HasSubstr("il database è occupato da un altro programma"));
  other.reset();
  ASSERT_TRUE(office.window->chooseScreen(numberOf("provvigioni")));
  ASSERT_FALSE(office.window->chooser().records().empty());
  EXPECT_TRUE(office.window->openRecord(office.window->chooser().records().front()));
}

TEST(OfficeDatabase, ThatComesLaterIsRead) {
  const SampleCopy sample;
  const office_test::Folder folder;
  const OfficeAt office(folder.file("ufficio.db"));
  ASSERT_TRUE(office.window->chooseScreen(numberOf("provvigioni")));
  EXPECT_THAT(office.window->notice().toStdString(), HasSubstr("non esiste"));
  std::filesystem::copy_file(sample.file(), folder.file("ufficio.db"));
  ASSERT_TRUE(office.window->chooseScreen(numberOf("righe-iva")));
  ASSERT_TRUE(office.window->chooseScreen(numberOf("provvigioni")));
  ASSERT_FALSE(office.window->chooser().records().empty());
  EXPECT_TRUE(office.window->openRecord(office.window->chooser().records().front()));
}

TEST(OfficeDatabase, IsNotWrittenForTooLong) {
  const SampleCopy sample;
  const std::string before = sample.everything();
  ufficio::Store store(sample.file());
  const auto endless = [&store] {
    store.run(
        "UPDATE TIPI_IVA SET IVA = "
        "(WITH RECURSIVE N(X) AS (SELECT 1 UNION ALL SELECT X + 1 FROM N) SELECT max(X) FROM N)");
  };
  EXPECT_THAT(endless, testing::ThrowsMessage<ufficio::StoreFailure>(HasSubstr("la scrittura richiede troppo tempo")));
  EXPECT_EQ(sample.everything(), before);
  EXPECT_EQ(store.run("UPDATE TIPI_IVA SET IVA = 21 WHERE COD_IVA = 22"), 1) << "it goes on afterwards";
}

class OfficeLookups : public AtWindow {};

TEST_F(OfficeLookups, ThatFailAreToldAndLeaveWhatWasTyped) {
  choose("righe-iva");
  open("12  ");
  sample.write("ALTER TABLE TIPI_IVA RENAME TO ALTRA_TABELLA");
  edit();
  write("2");
  EXPECT_THAT(notice().toStdString(),
              HasSubstr("Campo «COD IVA», nuovo contenuto: una ricerca nel database non è riuscita ("));
  EXPECT_EQ(field("txtCOD_IVA").text(), "2");
  sample.write("ALTER TABLE ALTRA_TABELLA RENAME TO TIPI_IVA");
  write("2");
  EXPECT_EQ(field("txtCOD_IVA").text(), "22");
}

TEST_F(OfficeLookups, FindTheDatabaseAgainThatTheyMissed) {
  choose("righe-iva");
  open("12  ");
  edit();
  // The office has it open, and the library has not yet.
  std::filesystem::rename(sample.file(), sample.beside("altrove.db"));
  write("2");
  EXPECT_THAT(notice().toStdString(), HasSubstr("una ricerca nel database non è riuscita ("));
  EXPECT_EQ(field("txtCOD_IVA").text(), "2");
  std::filesystem::rename(sample.beside("altrove.db"), sample.file());
  write("2");
  EXPECT_EQ(field("txtCOD_IVA").text(), "22");
  EXPECT_EQ(screen().panels().front()->surface().label("lblIVA").Caption(), "22");
}

}  // namespace
}  // namespace qvn::test
