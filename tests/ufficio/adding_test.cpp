// Records and rows that are added and taken away.
#include <QLabel>

#include "tests/ufficio/at_window.h"

namespace qvn::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using ufficio::Unsaved;

class OfficeAdding : public AtWindow {
 public:
  void add() { press(Qt::Key_N, Qt::ControlModifier); }
  /// Presses the key that takes away, and answers what it asks.
  void remove(bool goOn) {
    window().askRemovalBy([this, goOn](const QString& question) {
      asked = question;
      return goOn;
    });
    press(Qt::Key_F8);
  }
  QString remark() { return window().findChild<QLabel*>("osservazione")->text(); }
  void go(const QString& name, int panel) {
    field(name, panel).setFocus();
    see();
  }
  std::string quotas() const {
    return sample.line("SELECT group_concat(COD_COMP || QUOTA) FROM QUOTE_POLIZZE WHERE PROT = 1");
  }

  QString asked;
};

TEST_F(OfficeAdding, StoresANewCode) {
  const std::string before = sample.everything();
  open("22  ");
  add();
  EXPECT_TRUE(window().editing());
  EXPECT_EQ(window().windowTitle(), "Nuovo record[*] – Codici IVA – Ufficio");
  EXPECT_EQ(field("txtDescrizione").text(), "");
  EXPECT_FALSE(window().isWindowModified());
  enter("77");
  enter("nuova");
  enter("19");
  write("40");
  EXPECT_TRUE(window().isWindowModified());
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_EQ(sample.line("SELECT * FROM TIPI_IVA WHERE COD_IVA = 77"), "77|NUOVA|19|40");
  EXPECT_EQ(window().windowTitle(), "77  NUOVA[*] – Codici IVA – Ufficio");
  sample.write("DELETE FROM TIPI_IVA WHERE COD_IVA = 77");
  EXPECT_EQ(sample.everything(), before);
}

TEST_F(OfficeAdding, StoresNothingInWhichNothingIsWritten) {
  const std::string before = sample.everything();
  add();
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("Il record non è stato salvato: non è ancora stato scritto nulla."));
  EXPECT_TRUE(window().editing());
  EXPECT_EQ(focused(), "TxtCodice");
  EXPECT_EQ(sample.everything(), before);
}

TEST_F(OfficeAdding, TakesBlanksForNoCode) {
  choose("stampe-contabili");
  add();
  enter(" ");
  enter("x");
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("manca il codice"));
  EXPECT_TRUE(window().editing());
  EXPECT_EQ(sample.rows("SELECT 1 FROM sqlite_master WHERE name = 'STAMPE_CONTABILI'").size(), 0U);
}

TEST_F(OfficeAdding, AddsARecordOnEachScreenOfCodes) {
  struct Added {
    std::string_view screen;
    std::vector<QString> typed;
    std::string_view row;
    const char* stored;
  };
  const std::vector<Added> all{
      {"tipi-movimenti",
       {"88", "nuovo tipo"},
       "SELECT * FROM TIPI_MOVIMENTI WHERE COD_MOVIMENTO = 88",
       "88|NUOVO TIPO"},
      {"stampe-contabili", {"nuova", "prova"}, "SELECT * FROM STAMPE_CONTABILI WHERE CODICE = 'NUOVA'", "NUOVA|PROVA"},
      {"rami", {"zz", "ramo nuovo"}, "SELECT COD_RAMO, DESCRIZIONE FROM RAMI WHERE COD_RAMO = 'ZZ'", "ZZ|RAMO NUOVO"}};
  for (const Added& added : all) {
    choose(added.screen);
    add();
    for (const QString& text : added.typed) enter(text);
    save();
    EXPECT_EQ(notice(), "Il record è stato salvato.");
    EXPECT_EQ(sample.line(added.row), added.stored);
    remove(true);
    EXPECT_EQ(notice(), "Il record è stato eliminato.");
    EXPECT_THAT(sample.rows(added.row), IsEmpty());
  }
}

TEST_F(OfficeAdding, StoresNoRecordWithoutACode) {
  add();
  press(Qt::Key_Return);
  enter("senza codice");
  save();
  EXPECT_EQ(notice(), "Il record non è stato salvato: manca il codice.");
  EXPECT_EQ(field("txtDescrizione").text(), "SENZA CODICE");
  EXPECT_TRUE(window().editing());
}

TEST_F(OfficeAdding, StoresNoRecordUnderACodeThatIsTaken) {
  add();
  enter("22");
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("un codice che esiste già"));
  EXPECT_TRUE(window().editing());
}

TEST_F(OfficeAdding, GoesBackToTheRecordBeforeWhereTheNewOneIsGivenUp) {
  open("22  ");
  add();
  enter("77");
  window().askBy([](const QString& record) {
    EXPECT_EQ(record, "Nuovo record");
    return Unsaved::Discard;
  });
  press(Qt::Key_Escape);
  EXPECT_FALSE(window().editing());
  EXPECT_EQ(field("TxtCodice").text(), "22");
  EXPECT_EQ(window().windowTitle(), "22  Aliquota ordinaria[*] – Codici IVA – Ufficio");
  EXPECT_THAT(sample.rows("SELECT 1 FROM TIPI_IVA WHERE COD_IVA = 77"), IsEmpty());
}

TEST_F(OfficeAdding, ForgetsANewRecordThatIsLeftForAnotherScreen) {
  add();
  choose("rami");
  choose("iva");
  EXPECT_TRUE(screen().key().empty());
  EXPECT_FALSE(window().editing());
}

TEST_F(OfficeAdding, DeletesARecordOnlyWhenAsked) {
  open("81  ");
  const std::string before = sample.everything();
  remove(false);
  EXPECT_EQ(asked, "Eliminare il record «81  Non imponibile art. 8»?");
  EXPECT_EQ(sample.everything(), before);
  EXPECT_EQ(field("TxtCodice").text(), "81");
  remove(true);
  EXPECT_EQ(notice(), "Il record è stato eliminato.");
  EXPECT_THAT(sample.rows("SELECT 1 FROM TIPI_IVA WHERE COD_IVA = 81"), IsEmpty());
  EXPECT_FALSE(std::ranges::any_of(window().chooser().records(),
                                   [](const auto& found) { return found.text.starts_with("81"); }));
}

TEST_F(OfficeAdding, ShowsTheRecordBehindTheOneThatIsDeletedAndAtTheEndTheOneBefore) {
  ASSERT_TRUE(window().openRecord({.key = {std::int64_t{81}}, .text = "81"}));
  remove(true);
  EXPECT_EQ(field("TxtCodice").text(), "99");
  remove(true);
  EXPECT_EQ(field("TxtCodice").text(), "80");
}

TEST_F(OfficeAdding, DeletesNoRecordThatAnotherHasChanged) {
  open("81  ");
  sample.write("UPDATE TIPI_IVA SET Deb_Dec = 7 WHERE COD_IVA = 81");
  remove(true);
  EXPECT_EQ(notice(),
            "Il record non è stato eliminato: nel frattempo il record è stato modificato o eliminato da altri.");
  EXPECT_EQ(sample.rows("SELECT 1 FROM TIPI_IVA WHERE COD_IVA = 81").size(), 1U);
}

TEST_F(OfficeAdding, DeletesNoRecordThatOthersReferTo) {
  choose("rami");
  const std::string used = sample.line("SELECT min(COD_RAMO) FROM POLIZZE");
  open(QString::fromStdString(used + "  "));
  remove(true);
  EXPECT_EQ(notice(), "Il record non è stato eliminato: il record è ancora usato da una polizza.");
  EXPECT_EQ(sample.rows("SELECT 1 FROM RAMI WHERE COD_RAMO = '" + used + "'").size(), 1U);
}

TEST_F(OfficeAdding, TakesAParticipantAwayWhenThePolicyIsStored) {
  choose("quote-polizze");
  open("92/00000001");
  edit();
  go("TxtN_POLIZZA", 1);
  remove(true);
  EXPECT_FALSE(field("TxtQUOTA", 1).isVisible());
  EXPECT_EQ(remark(), "Somma delle quote: 500‰, ne mancano 500.");
  EXPECT_TRUE(window().isWindowModified());
  EXPECT_EQ(focused(), "TxtQUOTA");
  EXPECT_EQ(quotas(), "COSIR500,RCED500") << "not yet";
  window().askBy([](const QString& /*record*/) { return Unsaved::Discard; });
  press(Qt::Key_Escape);
  EXPECT_TRUE(field("TxtQUOTA", 1).isVisible()) << "given up";
  edit();
  go("TxtN_POLIZZA", 0);
  remove(true);
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_EQ(quotas(), "RCED500");
  EXPECT_EQ(field("TxtCOD_COMP", 0).text(), "RCED");
}

TEST_F(OfficeAdding, TakesAParticipantAwayThatIsNotStoredYet) {
  const std::string before = sample.everything();
  choose("quote-polizze");
  open("92/00000001");
  add();
  write("100");
  remove(true);
  EXPECT_FALSE(field("TxtQUOTA", 2).isVisible());
  EXPECT_FALSE(window().isWindowModified());
  EXPECT_EQ(remark(), "Somma delle quote: 1000‰.");
  go("TxtQUOTA", 0);
  write("400");
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_EQ(quotas(), "COSIR400,RCED500");
  sample.write("UPDATE QUOTE_POLIZZE SET QUOTA = 500 WHERE PROT = 1");
  EXPECT_EQ(sample.everything(), before);
}

TEST_F(OfficeAdding, PutsAParticipantInThePlaceOfAllOthers) {
  choose("quote-polizze");
  open("92/00000001");
  edit();
  go("TxtQUOTA", 0);
  remove(true);
  remove(true);
  save();
  EXPECT_THAT(sample.rows("SELECT 1 FROM QUOTE_POLIZZE WHERE PROT = 1"), IsEmpty());
  EXPECT_EQ(remark(), "Somma delle quote: 0‰, ne mancano 1000.");
  add();
  enter("1000");
  enter("cosir");
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_EQ(quotas(), "COSIR1000");
}

TEST_F(OfficeAdding, StoresNoParticipantWithoutACompany) {
  choose("quote-polizze");
  open("92/00000001");
  add();
  enter("100");
  save();
  EXPECT_EQ(notice(), "Il record non è stato salvato: manca il codice della compagnia.");
  EXPECT_EQ(field("TxtQUOTA", 2).text(), "100");
  EXPECT_EQ(quotas(), "COSIR500,RCED500");
}

TEST_F(OfficeAdding, LeavesAParticipantThatNothingWasTypedIntoAway) {
  const std::string before = sample.everything();
  choose("quote-polizze");
  open("92/00000001");
  add();
  save();
  EXPECT_EQ(sample.everything(), before);
  EXPECT_FALSE(field("TxtQUOTA", 2).isVisible());
}

TEST_F(OfficeAdding, TakesPercentsAlongWithTheirParticipant) {
  const std::string row = "SELECT COD_COMP, P_PN_UFF FROM PERCENTUALI_POLIZZE";
  choose("provvigioni");
  ASSERT_TRUE(window().openRecord({.key = {std::int64_t{1}, std::string("COSIR")}, .text = "prima"}));
  edit();
  write("7");
  save();
  ASSERT_EQ(sample.line(row), "COSIR|7");
  choose("quote-polizze");
  open("92/00000001");
  edit();
  go("TxtCOD_COMP", 0);
  enter("agri");
  save();
  EXPECT_EQ(sample.line(row), "AGRI|7");
  edit();
  go("TxtCOD_COMP", 0);
  remove(true);
  save();
  EXPECT_THAT(sample.rows(row), IsEmpty());
}

TEST_F(OfficeAdding, AddsAParticipantOfAClaim) {
  choose("quote-sinistri");
  ASSERT_TRUE(window().openRecord(ufficio::Found(window().chooser().records().front())));
  const std::string claim = ufficio::textOf(screen().key().front());
  add();
  write("100");
  press(Qt::Key_Return);
  field("TxtCOD_COMP",
        static_cast<int>(sample.rows("SELECT 1 FROM QUOTE_SINISTRI WHERE N_SINISTRO = '" + claim + "'").size()))
      .setFocus();
  see();
  enter("zzzz");
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_EQ(sample.line("SELECT * FROM QUOTE_SINISTRI WHERE COD_COMP = 'ZZZZ'"), claim + "|ZZZZ|0|100||");
}

TEST_F(OfficeAdding, GoesToTheEmptyCreditLineAndTakesOneAway) {
  choose("fidi");
  open("B00039");
  add();
  EXPECT_TRUE(field("TxtCOD_COMP", 4).hasFocus());
  go("TxtCOD_COMP", 0);
  remove(true);
  save();
  EXPECT_EQ(sample.rows("SELECT 1 FROM FIDI WHERE COD_CLIENTE = 'B00039'").size(), 3U);
}

TEST_F(OfficeAdding, BeginsAndDeletesAJournalEntry) {
  choose("prima-nota");
  add();
  EXPECT_EQ(focused(), "record");
  for (const auto& found : window().chooser().records()) EXPECT_THAT(found.text, HasSubstr("Nuova registrazione: "));
  press(Qt::Key_Return);
  EXPECT_FALSE(window().findChild<QAction*>("elimina")->isEnabled()) << "there is nothing to delete yet";
  sample.write(
      "CREATE TABLE MOVIMENTI_IVA (N_MOVIMENTO INTEGER PRIMARY KEY, COD_IVA INTEGER NOT NULL, "
      "IMPONIBILE DECIMAL(19,4) NOT NULL, IVA DECIMAL(19,4) NOT NULL)");
  sample.write("INSERT INTO MOVIMENTI_IVA VALUES (12, 22, 100, 22)");
  ASSERT_TRUE(window().openRecord({.key = {std::int64_t{12}}, .text = "registrazione"}));
  remove(true);
  EXPECT_EQ(notice(), "Il record è stato eliminato.");
  EXPECT_THAT(sample.rows("SELECT 1 FROM MOVIMENTI WHERE N_MOVIMENTO = 12"), IsEmpty());
  EXPECT_THAT(sample.rows("SELECT 1 FROM MOVIMENTI_IVA"), IsEmpty());
}

}  // namespace
}  // namespace qvn::test
