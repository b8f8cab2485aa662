// What would be stored without being meant, or be lost without being told.
#include <QLabel>

#include "tests/ufficio/at_window.h"

namespace qvn::test {
namespace {

using testing::HasSubstr;
using ufficio::Unsaved;

class OfficeNothingLost : public AtWindow {
 public:
  std::string told() { return notice().toStdString(); }
  std::string remark() { return window().findChild<QLabel*>("osservazione")->text().toStdString(); }
  bool hasTable(const std::string& name) const {
    return !sample.rows("SELECT 1 FROM sqlite_master WHERE name = '" + name + "'").empty();
  }
  /// Types the VAT of a code whose rate is 0, which the field cannot be left with.
  void typeVatThatCannotStand() {
    choose("righe-iva");
    open("12  ");
    edit();
    enter("80");
    press(Qt::Key_Return);
    write("50");
  }
};

constexpr const char* kChangedByOthers = "nel frattempo il record è stato modificato o eliminato da altri";

TEST_F(OfficeNothingLost, WhatAFieldCannotBeLeftWithIsNotStored) {
  typeVatThatCannotStand();
  EXPECT_EQ(focused(), "TxtIVA");
  save();
  EXPECT_THAT(told(), HasSubstr("Campo «IVA», uscita dal campo"));
  EXPECT_EQ(focused(), "TxtIVA");
  EXPECT_TRUE(window().editing());
  EXPECT_FALSE(hasTable("MOVIMENTI_IVA"));
}

TEST_F(OfficeNothingLost, WhatAFieldCouldNotBeLeftWithIsNotStoredFromElsewhere) {
  typeVatThatCannotStand();
  press(Qt::Key_F6);
  save();
  EXPECT_TRUE(window().editing());
  EXPECT_EQ(focused(), "TxtIVA");
  window().askBy([](const QString&) { return Unsaved::Save; });
  press(Qt::Key_Escape);
  EXPECT_TRUE(window().editing());
  EXPECT_FALSE(hasTable("MOVIMENTI_IVA"));
}

TEST_F(OfficeNothingLost, ItIsStoredOnceTheFieldWasLeftWell) {
  typeVatThatCannotStand();
  press(Qt::Key_F6);
  save();
  write("0");
  save();
  EXPECT_FALSE(window().editing());
}

TEST_F(OfficeNothingLost, ACodeThatCannotBeLookedUpForAWhileStaysAsTyped) {
  choose("righe-iva");
  open("12  ");
  edit();
  {
    const Writer other(sample.file());
    write("9");
    EXPECT_EQ(field("txtCOD_IVA").text(), "9");
    EXPECT_THAT(told(), HasSubstr("nuovo contenuto: una ricerca nel database non è riuscita; riprovare tra poco."));
    EXPECT_TRUE(window().editing());
  }
  write("9");
  EXPECT_EQ(field("txtCOD_IVA").text(), "99");
  EXPECT_EQ(screen().panels().front()->surface().label("LblDESC_IVA").Caption(), "Ordinaria, indetraibile");
  save();
  EXPECT_EQ(told(), "Il record è stato salvato.");
  EXPECT_EQ(sample.line("SELECT COD_IVA FROM MOVIMENTI_IVA WHERE N_MOVIMENTO = 12"), "99");
}

TEST_F(OfficeNothingLost, PercentsOfAParticipantThatIsGoneAreNotStored) {
  choose("provvigioni");
  open("92/00000001");
  edit();
  write("10");
  sample.write("DELETE FROM QUOTE_POLIZZE WHERE PROT = 1");
  save();
  EXPECT_THAT(told(), HasSubstr(kChangedByOthers));
  EXPECT_TRUE(window().editing());
  EXPECT_TRUE(!hasTable("PERCENTUALI_POLIZZE") || sample.rows("SELECT 1 FROM PERCENTUALI_POLIZZE").empty());
}

TEST_F(OfficeNothingLost, TheVatLineOfAnEntryThatIsGoneIsNotStored) {
  choose("prima-nota");
  open("12  ");
  edit();
  field("txtCOD_IVA", static_cast<int>(screen().panels().size()) - 1).setFocus();
  see();
  enter("22");
  enter("100");
  sample.write("DELETE FROM MOVIMENTI WHERE N_MOVIMENTO = " + ufficio::textOf(screen().key().front()));
  save();
  EXPECT_THAT(told(), HasSubstr(kChangedByOthers));
  EXPECT_FALSE(hasTable("MOVIMENTI_IVA") && !sample.rows("SELECT 1 FROM MOVIMENTI_IVA").empty());
}

TEST_F(OfficeNothingLost, NorIsItOnItsOwnScreen) {
  choose("righe-iva");
  open("12  ");
  edit();
  enter("22");
  enter("100");
  sample.write("DELETE FROM MOVIMENTI WHERE N_MOVIMENTO = 12");
  save();
  EXPECT_THAT(told(), HasSubstr("il record non c'è più: è stato eliminato da altri"));
  EXPECT_FALSE(hasTable("MOVIMENTI_IVA"));
}

TEST_F(OfficeNothingLost, LinesOfATypeThatIsGoneAreNotStored) {
  choose("righe-tipi");
  open("4  Fattura");
  edit();
  enter("0601");
  enter("000004");
  sample.write("DELETE FROM TIPI_MOVIMENTI");
  save();
  EXPECT_THAT(told(), HasSubstr("il tipo di movimento non c'è più: è stato eliminato da altri"));
  EXPECT_FALSE(hasTable("DATI_MOVIMENTI"));
}

TEST_F(OfficeNothingLost, ACodeInUseKeepsItsValue) {
  choose("rami");
  open("IN");
  const std::string code = field("TxtCOD_RAMO").text().toStdString();
  const std::string policies = "SELECT count(*) FROM POLIZZE WHERE COD_RAMO = '" + code + "'";
  const std::string before = sample.line(policies);
  ASSERT_NE(before, "0");
  edit();
  enter("ZZ");
  save();
  EXPECT_THAT(told(), HasSubstr("il record è ancora usato da"));
  EXPECT_TRUE(window().editing());
  EXPECT_EQ(sample.line("SELECT count(*) FROM RAMI WHERE COD_RAMO = '" + code + "'"), "1");
}

TEST_F(OfficeNothingLost, ItsOtherFieldsMayChange) {
  choose("rami");
  open("IN");
  edit();
  press(Qt::Key_Return);
  enter("nuova");
  save();
  EXPECT_EQ(told(), "Il record è stato salvato.");
}

TEST_F(OfficeNothingLost, NoCodeBecomesZero) {
  open("99  ");
  edit();
  enter("0");
  save();
  EXPECT_THAT(told(), HasSubstr("manca"));
  EXPECT_TRUE(window().editing());
  EXPECT_EQ(sample.line("SELECT count(*) FROM TIPI_IVA WHERE COD_IVA = 0"), "0");
}

TEST_F(OfficeNothingLost, AnEntryIsFoundByWhateverLineIsItsFirst) {
  sample.write("DELETE FROM MOVIMENTI WHERE N_MOVIMENTO = 12 AND RIGA = 1");
  choose("righe-iva");
  open("12  ");
  EXPECT_EQ(screen().key(), ufficio::Key{std::int64_t{12}});
}

TEST_F(OfficeNothingLost, ALineOfATypeThatIsOnlyTickedIsNoEmptyOne) {
  choose("righe-tipi");
  press(Qt::Key_F, Qt::ControlModifier);
  press(Qt::Key_Return);
  edit();
  office.platform.hands().click(screen().panels().front()->surface().widget("ChkRIPETI"));
  see();
  save();
  EXPECT_TRUE(window().editing());
  EXPECT_THAT(told(), HasSubstr("nella riga 1 il conto"));
}

TEST_F(OfficeNothingLost, AYearIsPrintedUpToADayOfItsOwn) {
  choose("giornale");
  press(Qt::Key_F, Qt::ControlModifier);
  press(Qt::Key_Return);
  edit();
  write("31122050");
  save();
  EXPECT_THAT(told(), HasSubstr("l'ultimo giorno non è dell'anno che si stampa"));
  EXPECT_FALSE(hasTable("STAMPE_GIORNALE"));
}

TEST_F(OfficeNothingLost, StoredAmountsThatBecameZeroOnTheWayAreTold) {
  choose("provvigioni");
  open("92/00000001  COSIR");
  EXPECT_EQ(remark(), "");
  edit();
  EXPECT_EQ(remark(), "");
  for (int field = 0; field < 13 && remark().empty(); ++field) press(Qt::Key_Tab);
  EXPECT_THAT(remark(), HasSubstr("Importi salvati che ora sono 0: "));
  window().askBy([](const QString&) { return Unsaved::Discard; });
  press(Qt::Key_Escape);
  EXPECT_EQ(remark(), "");
}

TEST_F(OfficeNothingLost, WhatOthersChangeDuringTheQuestionIsNotDeleted) {
  open("99  ");
  window().askRemovalBy([this](const QString&) {
    sample.write("UPDATE TIPI_IVA SET DESCRIZIONE = 'altra' WHERE COD_IVA = 99");
    QApplication::setActiveWindow(nullptr);
    see();
    QApplication::setActiveWindow(&window());
    see();
    return true;
  });
  press(Qt::Key_F8);
  EXPECT_THAT(told(), HasSubstr(kChangedByOthers));
  EXPECT_EQ(sample.line("SELECT DESCRIZIONE FROM TIPI_IVA WHERE COD_IVA = 99"), "altra");
}

TEST_F(OfficeNothingLost, ARecordIsNotDeletedWhileAnyTableRefersToIt) {
  struct Used {
    std::string_view screen;
    const char* found;
    const char* use;
    const char* called;
  };
  const std::vector<Used> all{
      {"iva", "22  ",
       "CREATE TABLE MOVIMENTI_IVA (N_MOVIMENTO INTEGER, COD_IVA INTEGER); INSERT INTO MOVIMENTI_IVA VALUES (1, 22)",
       "una riga IVA"},
      {"tipi-movimenti", "4  ", "UPDATE MOVIMENTI SET COD_MOVIMENTO = 4", "una registrazione di prima nota"},
      {"tipi-movimenti", "4  ",
       "DELETE FROM MOVIMENTI; CREATE TABLE DATI_MOVIMENTI (COD_MOVIMENTO INTEGER); INSERT INTO DATI_MOVIMENTI VALUES "
       "(4)",
       "una riga che definisce questo tipo di movimento"},
      {"rami", "IN", "DELETE FROM POLIZZE", "un sottoramo"},
      {"rami", "IN", "DELETE FROM SOTTORAMI", "un estratto conto"},
  };
  window().askRemovalBy([](const QString&) { return true; });
  for (const Used& used : all) {
    choose(used.screen);
    open(used.found);
    sample.write(used.use);
    press(Qt::Key_F8);
    EXPECT_EQ(told(), std::string("Il record non è stato eliminato: il record è ancora usato da ") + used.called + ".");
  }
}

TEST_F(OfficeNothingLost, AnEntryThatAnotherHasChangedIsNotDeleted) {
  choose("prima-nota");
  open("12  ");
  const std::string which = " WHERE N_MOVIMENTO = " + ufficio::textOf(screen().key().front());
  const std::string lines = sample.line("SELECT count(*) FROM MOVIMENTI" + which);
  window().askRemovalBy([](const QString&) { return true; });
  sample.write("UPDATE MOVIMENTI SET DESC_1 = 'x'" + which);
  press(Qt::Key_F8);
  EXPECT_THAT(told(), HasSubstr(kChangedByOthers));
  EXPECT_EQ(sample.line("SELECT count(*) FROM MOVIMENTI" + which), lines);
}

TEST_F(OfficeNothingLost, PercentsAreKeptInTheFamilyThatCounts) {
  choose("provvigioni");
  open("07/00000004");
  edit();
  write("10");
  save();
  EXPECT_EQ(sample.line("SELECT FAMIGLIA, COD_COMP, P_PN_UFF FROM PERCENTUALI_POLIZZE").substr(0, 11), "TRF|RFAL|10");
  EXPECT_EQ(sample.line("SELECT PN_UFF_TRF FROM QUOTE_POLIZZE WHERE PROT = 4"), "179.3");
}

}  // namespace
}  // namespace qvn::test
