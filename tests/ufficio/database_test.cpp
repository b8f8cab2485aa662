// The window on databases that are not as they should be.
#include <QLabel>
#include <csignal>
#include <filesystem>
#include <optional>
#include <sys/resource.h>

#include "qvn/shared/conversions.h"
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
    for (const QLabel* label : office.window->chooser().findChildren<QLabel*>()) {
      EXPECT_FALSE(label->isVisible()) << "nobody knows that there are none: " << label->text().toStdString();
    }
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
  EXPECT_THAT(noticeOn(folder.file("vuoto.db")),
              testing::AllOf(HasSubstr("I record non si possono cercare: il database "),
                             HasSubstr("vuoto.db non è quello dell'ufficio, o è danneggiato.")));
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

/// A database that does not take what was typed.
class OfficeDatabaseRefusing : public AtWindow {
 public:
  /// Types a VAT line for a movement that had none: the first of all, so that its table has yet to be made.
  void typeVatLine() {
    choose("righe-iva");
    open("12  ");
    edit();
    enter("22");
    enter("1234,56");
  }
  void expectTypedStays() {
    EXPECT_TRUE(window().editing());
    EXPECT_TRUE(window().isWindowModified());
    EXPECT_EQ(field("txtCOD_IVA").text(), "22");
    EXPECT_EQ(as<Currency>(getByName(*screen().panels().front(), "IMPONIBILE"), Locale()),
              Currency::fromTenThousandths(12345600));
    EXPECT_TRUE(field("TxtIMPONIBILE").isEnabled());
  }
  void expectStored() {
    save();
    EXPECT_EQ(notice(), "Il record è stato salvato.");
    EXPECT_EQ(sample.line("SELECT * FROM MOVIMENTI_IVA"), "12|22|1234.56|271.6");
  }
};

TEST_F(OfficeDatabaseRefusing, WhereItCannotGrowKeepsWhatWasTyped) {
  const std::string before = sample.everything();
  typeVatLine();
  office.store.rows("PRAGMA max_page_count = 1");  // no more than it has
  save();
  EXPECT_EQ(notice(),
            "Il record non è stato salvato: il disco è pieno, o il database non può più crescere; liberare spazio e "
            "riprovare.");
  expectTypedStays();
  EXPECT_EQ(sample.everything(), before);
  office.store.rows("PRAGMA max_page_count = 1000000");
  expectStored();
}

TEST_F(OfficeDatabaseRefusing, WhereNoFileCanBeWrittenKeepsWhatWasTyped) {
  const std::string before = sample.everything();
  typeVatLine();
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
  const rlimit none{.rlim_cur = 0, .rlim_max = limit.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &none), 0);
  save();
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
  std::signal(SIGXFSZ, handler);
  EXPECT_THAT(notice().toStdString(), HasSubstr("Il record non è stato salvato: il disco "));
  expectTypedStays();
  EXPECT_EQ(sample.everything(), before);
  expectStored();
}

TEST_F(OfficeDatabaseRefusing, WhereItIsGoneKeepsWhatWasTyped) {
  typeVatLine();
  std::filesystem::rename(sample.file(), sample.beside("altrove.db"));
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("Il record non è stato salvato: il database "));
  EXPECT_THAT(notice().toStdString(), HasSubstr("ufficio.db non esiste o non si può aprire"));
  expectTypedStays();
  EXPECT_FALSE(std::filesystem::exists(sample.file())) << "none is made in its place";
  std::filesystem::rename(sample.beside("altrove.db"), sample.file());
  expectStored();
}

TEST_F(OfficeDatabaseRefusing, WhereItIsGoneTellsSoAlsoByReading) {
  open("22  ");
  std::filesystem::rename(sample.file(), sample.beside("altrove.db"));
  edit();
  EXPECT_THAT(notice().toStdString(), HasSubstr("non esiste o non si può aprire"));
  EXPECT_FALSE(window().editing());
  EXPECT_EQ(field("TxtCodice").text(), "22") << "what was shown stays";
  std::filesystem::rename(sample.beside("altrove.db"), sample.file());
  edit();
  EXPECT_TRUE(window().editing());
}

class OfficeLookups : public AtWindow {};

TEST_F(OfficeLookups, ThatFailAreToldAndLeaveWhatWasTyped) {
  choose("righe-iva");
  open("12  ");
  sample.write("ALTER TABLE TIPI_IVA RENAME TO ALTRA_TABELLA");
  edit();
  write("2");
  EXPECT_EQ(notice(), "Campo «COD IVA», nuovo contenuto: una ricerca nel database non è riuscita; riprovare tra poco.");
  EXPECT_THAT(window().findChild<QLabel*>("testo")->toolTip().toStdString(), HasSubstr("no such table"));
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
  EXPECT_THAT(notice().toStdString(), HasSubstr(": una ricerca nel database non è riuscita; riprovare tra poco."));
  EXPECT_EQ(field("txtCOD_IVA").text(), "2");
  std::filesystem::rename(sample.beside("altrove.db"), sample.file());
  write("2");
  EXPECT_EQ(field("txtCOD_IVA").text(), "22");
  EXPECT_EQ(screen().panels().front()->surface().label("lblIVA").Caption(), "22");
}

TEST_F(OfficeLookups, ReadTheFileThatCameIntoThePlaceOfTheirs) {
  choose("quote-polizze");
  open("92/00000001");
  edit();
  press(Qt::Key_Return);
  enter("agri");
  const toolkit::Label& company = screen().panels().front()->surface().label("DESC_COMPAGNIA");
  ASSERT_EQ(company.Caption(), "Assicurazioni del Grifone");
  window().askBy([](const QString& /*record*/) { return ufficio::Unsaved::Discard; });
  press(Qt::Key_Escape);
  std::filesystem::rename(sample.file(), sample.beside("prima.db"));
  std::filesystem::copy_file(sample.beside("prima.db"), sample.file());
  sample.write("UPDATE COMPAGNIE SET DESC_COMPAGNIA = 'Altro nome' WHERE COD_COMP = 'AGRI'");
  edit();
  press(Qt::Key_Return);
  enter("agri");
  EXPECT_EQ(company.Caption(), "Altro nome");
  press(Qt::Key_Escape);
}

}  // namespace
}  // namespace qvn::test
