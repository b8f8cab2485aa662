// A journal entry and the definition of its type, as they are typed at the window and then stored.
#include <QComboBox>
#include <QLabel>

#include "tests/ufficio/at_window.h"

namespace qvn::test {
namespace {

using testing::HasSubstr;

class OfficeJournal : public AtWindow {
 public:
  QWidget& widget(std::string_view name, std::size_t panel) {
    return *office.platform.widgetOf(screen().panels().at(panel)->surface().widget(name));
  }
  void go(std::string_view name, std::size_t panel) {
    widget(name, panel).setFocus();
    see();
  }
  QString remark() { return window().findChild<QLabel*>("osservazione")->text(); }
  /// Picks a side by its first letter.
  void side(char letter, std::size_t panel, std::string_view list = "cmbTIPO") {
    go(list, panel);
    press(letter == 'D' ? Qt::Key_End : Qt::Key_Home);
  }
  std::string lines(std::string_view movement) const {
    std::string all;
    for (const office_test::Row& row :
         sample.rows(std::string("SELECT RIGA, COD_MOVIMENTO, MASTRO, CONTO, TIPO, DESC_1, DESC_2, IMPORTO FROM "
                                 "MOVIMENTI WHERE N_MOVIMENTO = ")
                         .append(movement)
                         .append(" ORDER BY RIGA"))) {
      for (const auto& value : row) all.append(value.value_or("NULL")).append("|");
      all.append("\n");
    }
    return all;
  }
};

class OfficeEntry : public OfficeJournal {
 public:
  OfficeEntry() { choose("prima-nota"); }
  /// A line as a person types it; the focus is on its ledger.
  void type(std::size_t panel, const QString& ledger, const QString& account, char its, const QString& amount) {
    go("txtMASTRO", panel);
    enter(ledger);
    enter(account);
    enter("affitto");
    enter("gennaio");
    side(its, panel);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "TxtIMPORTO");
    enter(amount);
  }
  std::string last() const { return sample.line("SELECT max(N_MOVIMENTO) FROM MOVIMENTI"); }
};

TEST_F(OfficeEntry, RefusesWhatDoesNotBalanceAndStoresItOnceItDoes) {
  const std::string before = sample.everything();
  const std::string lastBefore = last();
  open("nuova registrazione: giroconto");
  edit();
  EXPECT_EQ(focused(), "txtMASTRO");
  type(0, "0601", "000001", 'D', "1000");
  EXPECT_EQ(remark(), "DARE € 1.000,00, AVERE € 0,00, differenza € 1.000,00: manca in AVERE.");
  type(1, "0202", "000001", 'A', "999,75");
  EXPECT_EQ(remark(), "DARE € 1.000,00, AVERE € 999,75, differenza € 0,25: manca in AVERE.");
  save();
  EXPECT_EQ(notice(),
            "Il record non è stato salvato: la registrazione non quadra: DARE € 1.000,00, AVERE € 999,75, differenza "
            "€ 0,25: manca in AVERE.");
  EXPECT_TRUE(window().editing());
  EXPECT_EQ(field("TxtIMPORTO", 1).text(), "€ 999,75");
  EXPECT_EQ(field("TxtDESC_2", 0).text(), "GENNAIO");
  EXPECT_EQ(sample.everything(), before);

  go("TxtIMPORTO", 1);
  enter("1000,00");
  EXPECT_EQ(remark(), "DARE € 1.000,00, AVERE € 1.000,00: la registrazione quadra.");
  const std::size_t vat = screen().panels().size() - 1;
  go("txtCOD_IVA", vat);
  enter("22");
  enter("819,67");
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_EQ(last(), std::to_string(std::stoi(lastBefore) + 1));
  EXPECT_EQ(lines(last()),
            "1|6|0601|000001|D|AFFITTO|GENNAIO|1000|\n"
            "2|6|0202|000001|A|AFFITTO|GENNAIO|1000|\n");
  EXPECT_EQ(
      sample.line("SELECT DISTINCT DATA_MOVIMENTO = date('now', 'localtime') FROM MOVIMENTI WHERE N_MOVIMENTO = " +
                  last()),
      "1");
  EXPECT_EQ(sample.line("SELECT * FROM MOVIMENTI_IVA"), last() + "|22|819.67|180.33");
  EXPECT_EQ(ufficio::textOf(screen().key().front()), last());
  EXPECT_THAT(window().windowTitle().toStdString(), HasSubstr("AFFITTO"));
}

TEST_F(OfficeEntry, ChangesAnEntryThatIsThereAndTakesAwayALineThatIsEmptied) {
  const std::string number = sample.line("SELECT max(N_MOVIMENTO) FROM MOVIMENTI");
  const std::string others = "SELECT group_concat(IMPORTO) FROM MOVIMENTI WHERE N_MOVIMENTO < " + number;
  const std::string before = sample.line(others);
  sample.write("UPDATE MOVIMENTI SET IMPORTO = CASE WHEN RIGA < 3 THEN 80 ELSE 20 END WHERE N_MOVIMENTO = " + number);
  const std::string about = sample.line("SELECT DESC_2 FROM MOVIMENTI WHERE RIGA = 1 AND N_MOVIMENTO = " + number);
  open(QString::fromStdString(number + "  "));
  ASSERT_EQ(ufficio::textOf(screen().key().front()), number);
  EXPECT_EQ(remark(), "DARE € 100,00, AVERE € 100,00: la registrazione quadra.");
  edit();
  go("TxtIMPORTO", 0);
  enter("100");
  for (const char* each : {"txtMASTRO", "TxtCONTO", "TxtDESC_1", "TxtDESC_2"}) {
    go(each, 2);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
  }
  go("TxtIMPORTO", 2);
  enter("0");
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_EQ(lines(number), "1|1|0202|SEP001|D|Incasso titolo|" + about +
                               "|100|\n"
                               "2|1|0301|000001|A|Incasso titolo|" +
                               about +
                               "|80|\n"
                               "4|1|0701|000001|A|Incasso titolo|" +
                               about + "|20|\n");
  EXPECT_EQ(sample.line(others), before);
}

TEST_F(OfficeEntry, RefusesALineWithoutAccountOrAmount) {
  open("nuova registrazione: giroconto");
  edit();
  type(0, "0601", "999999", 'D', "10");
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("nella riga 1 il conto «0601 999999» non esiste"));
  go("TxtCONTO", 0);
  enter("000002");
  type(1, "0202", "000001", 'A', "0");
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("la riga 2 non ha importo"));
  EXPECT_TRUE(window().editing());
  EXPECT_EQ(field("TxtCONTO", 1).text(), "000001");
}

TEST_F(OfficeEntry, NeverWritesOverALineThatAnotherHasAdded) {
  const std::string number = last();
  open(QString::fromStdString(number + "  "));
  edit();
  go("TxtDESC_1", 0);
  enter("altro");
  sample.write(
      "INSERT INTO MOVIMENTI SELECT N_MOVIMENTO, 9, COD_MOVIMENTO, DATA_MOVIMENTO, MASTRO, CONTO, TIPO, DESC_1, "
      "DESC_2, IMPORTO FROM MOVIMENTI WHERE RIGA = 1 AND N_MOVIMENTO = " +
      number);
  const std::string before = sample.everything();
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("nel frattempo il record è stato modificato o eliminato da altri"));
  EXPECT_EQ(field("TxtDESC_1", 0).text(), "ALTRO");
  EXPECT_EQ(sample.everything(), before);
}

TEST_F(OfficeEntry, StoresItsVatLineWhereNothingElseIsTyped) {
  const std::string before = sample.everything();
  open(QString::fromStdString(last() + "  "));
  edit();
  go("txtCOD_IVA", screen().panels().size() - 1);
  enter("22");
  enter("100");
  EXPECT_TRUE(window().isWindowModified());
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_EQ(sample.line("SELECT * FROM MOVIMENTI_IVA"), last() + "|22|100|22");
  sample.write("DROP TABLE MOVIMENTI_IVA");
  EXPECT_EQ(sample.everything(), before);
}

TEST_F(OfficeEntry, TellsOfAnAmountThatIsNone) {
  open(QString::fromStdString(last() + "  "));
  edit();
  go("TxtIMPORTO", 0);
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_Delete);
  EXPECT_EQ(remark(), "Un importo non è valido.");
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("un valore manca o non è valido"));
  EXPECT_TRUE(window().editing());
}

class OfficeMovementTypes : public OfficeJournal {};

TEST_F(OfficeMovementTypes, DefineTheLinesThatANewEntryBeginsWith) {
  choose("righe-tipi");
  open("4  Fattura");
  edit();
  EXPECT_EQ(focused(), "txtMASTRO");
  enter("0601");
  enter("000004");
  go("ChkRIPETI", 0);
  press(Qt::Key_Space);
  side('D', 0);
  go("ChkIVA", 0);
  press(Qt::Key_Space);
  side('D', 0, "CmbTIPO_IVA");
  go("txtMASTRO", 1);
  enter("0401");
  enter("000001");
  side('A', 1);
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  const auto rows = sample.rows("SELECT * FROM DATI_MOVIMENTI ORDER BY PROGRESSIVO");
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(sample.line("SELECT * FROM DATI_MOVIMENTI WHERE PROGRESSIVO = 1"), "4|1|0601|000004|D|1|1|C");
  EXPECT_EQ(sample.line("SELECT * FROM DATI_MOVIMENTI WHERE PROGRESSIVO = 2"), "4|2|0401|000001|A|0|0|A");

  choose("prima-nota");
  open("nuova registrazione: fattura");
  const auto account = [&](int panel) { return field("txtMASTRO", panel).text() + field("TxtCONTO", panel).text(); };
  EXPECT_EQ(account(0), "0601000004");
  EXPECT_EQ(account(2), "0601000004");
  EXPECT_EQ(account(3), "0401000001");
  EXPECT_EQ(account(4), "");
  EXPECT_FALSE(screen().changed());
  edit();
  go("TxtIMPORTO", 0);
  enter("50");
  go("TxtIMPORTO", 3);
  enter("50");
  save();
  EXPECT_EQ(lines(sample.line("SELECT max(N_MOVIMENTO) FROM MOVIMENTI")),
            "1|4|0601|000004|D|||50|\n4|4|0401|000001|A|||50|\n")
      << "lines that nothing was typed into are none";
}

TEST_F(OfficeMovementTypes, TakeAwayALineThatIsEmptied) {
  choose("righe-tipi");
  open("4  Fattura");
  edit();
  enter("0601");
  enter("000004");
  go("txtMASTRO", 1);
  enter("0401");
  enter("000001");
  save();
  edit();
  for (const char* each : {"txtMASTRO", "TxtCONTO"}) {
    go(each, 0);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
  }
  save();
  EXPECT_EQ(sample.line("SELECT * FROM DATI_MOVIMENTI"), "4|2|0401|000001|D|0|0|A");
}

TEST_F(OfficeMovementTypes, RefuseAnAccountThatThereIsNot) {
  choose("righe-tipi");
  open("4  Fattura");
  edit();
  enter("0601");
  enter("999");
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("nella riga 1 il conto «0601 999» non esiste"));
  EXPECT_EQ(sample.rows("SELECT 1 FROM sqlite_master WHERE name = 'DATI_MOVIMENTI'").size(), 0U);
  EXPECT_EQ(field("TxtCONTO", 0).text(), "999");
}

class OfficeCodes : public OfficeJournal {};

TEST_F(OfficeCodes, StoreAMovementType) {
  choose("tipi-movimenti");
  open("Giroconto");
  edit();
  press(Qt::Key_Return);
  enter("giro interno");
  save();
  EXPECT_EQ(sample.line("SELECT * FROM TIPI_MOVIMENTI WHERE COD_MOVIMENTO = 6"), "6|GIRO INTERNO");
}

TEST_F(OfficeCodes, StoreABranch) {
  choose("rami");
  open("IN  Incendio");
  edit();
  press(Qt::Key_Return);
  enter("incendio e scoppio");
  EXPECT_EQ(focused(), "CmbTIPO_SK");
  press(Qt::Key_Down);
  go("ckCompetenze", 0);
  press(Qt::Key_Space);
  save();
  EXPECT_EQ(sample.line("SELECT COD_RAMO, DESCRIZIONE, TIPO_SK, competenze FROM RAMI WHERE COD_RAMO = 'IN'"),
            "IN|INCENDIO E SCOPPIO|2|0");
}

TEST_F(OfficeCodes, StoreAnAccountingPrintWithTheOthersThatThereAre) {
  choose("stampe-contabili");
  EXPECT_EQ(window().chooser().records().size(), 4U);
  open("giorn");
  edit();
  enter("gior");
  enter("giornale bollato");
  save();
  EXPECT_EQ(sample.line("SELECT group_concat(CODICE || ' ' || DESCRIZIONE) FROM STAMPE_CONTABILI"),
            "BILAN Bilancio di verifica,GIOR GIORNALE BOLLATO,MASTR Schede di mastro,REGIV Registri IVA");
  EXPECT_EQ(window().chooser().records().size(), 1U) << "those that the filter holds";
  EXPECT_EQ(field("txtDescrizione").text(), "GIORNALE BOLLATO");
}

}  // namespace
}  // namespace qvn::test
