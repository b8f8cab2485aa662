// The account statement of a client at the window, line by line.
#include <QCheckBox>
#include <QComboBox>

#include "tests/ufficio/at_window.h"

namespace qvn::test {
namespace {

using testing::HasSubstr;

/// A client with seven lines.
constexpr const char* kStatedClient = "D00120";

class OfficeStatements : public AtWindow {
 public:
  OfficeStatements() { choose("estratti"); }

  template <class Widget>
  Widget& widget(std::string_view name, std::size_t panel) {
    const toolkit::Widget& its = screen().panels().at(panel)->surface().widget(name);
    return dynamic_cast<Widget&>(*office.platform.widgetOf(its));
  }
  std::string label(std::string_view name, std::size_t panel) {
    return std::string(screen().panels().at(panel)->surface().label(name).Caption());
  }
  void go(const QString& name, int panel) {
    field(name, panel).setFocus();
    see();
  }
  std::string lineOf(int number) const {
    return sample.line("SELECT * FROM ESTRATTI WHERE N_RIGA = " + std::to_string(number));
  }
};

TEST_F(OfficeStatements, ShowAllLinesOfAClientByTheDateOfTheirRegistration) {
  open(kStatedClient);
  const auto lines = sample.rows(
      "SELECT N_POLIZZA, INT_ASS, SIGLA_SRAMO, COD_RAMO, substr(DATA_REG, 9, 2) || '/' || substr(DATA_REG, 6, 2) || "
      "'/' || substr(DATA_REG, 1, 4), coalesce(ST_COMP, ''), TIPO_DOC, STAMPA FROM ESTRATTI "
      "WHERE COD_CLIENTE = 'D00120' ORDER BY DATA_REG");
  ASSERT_EQ(lines.size(), 7U);
  ASSERT_EQ(screen().panels().size(), 7U);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const int panel = static_cast<int>(i);
    EXPECT_EQ(field("TxtN_POLIZZA", panel).text().toStdString(), lines[i][0]);
    EXPECT_EQ(field("TxtINT_ASS", panel).text().toStdString(), lines[i][1]);
    EXPECT_EQ(field("TxtSIGLA_SRAMO", panel).text().toStdString(), lines[i][2]);
    EXPECT_EQ(field("TxtCOD_CLI", panel).text().toStdString(), kStatedClient);
    EXPECT_EQ(label("LblCOD_GR", i), lines[i][3]);
    EXPECT_EQ(label("LblDATA_REG", i), lines[i][4]);
    EXPECT_EQ(widget<QComboBox>("CmbST_COMP", i).currentText(), lines[i][5] == "S" ? "SCARICATO" : "ATTIVO");
    EXPECT_EQ(widget<QComboBox>("CmbTIPO_DOC", i).currentText().left(1).toStdString(), lines[i][6]);
    EXPECT_EQ(widget<QCheckBox>("chkSTAMPA", i).isChecked(), lines[i][7] == "1");
    EXPECT_FALSE(field("TxtN_POLIZZA", panel).isEnabled());
  }
  EXPECT_EQ(field("TxtDATA_EC", 0).text(), "21/01/2013");
  EXPECT_EQ(field("TxtDATA_EC", 1).text(), "##/##/####");
  EXPECT_EQ(field("TxtPREMIO", 1).text(), "€ 2.554,90");
  EXPECT_EQ(field("TxtRIMBORSO", 1).text(), "€ 0,00");
  EXPECT_EQ(field("TxtPROVVIGIONE", 1).text(), "€ 503,77");
}

TEST_F(OfficeStatements, HideThePanelsThatAStatementHasNoLinesFor) {
  open(kStatedClient);
  open("A00001");
  EXPECT_TRUE(field("TxtPREMIO", 0).isVisible());
  for (int panel = 1; panel < 7; ++panel) EXPECT_FALSE(field("TxtPREMIO", panel).isVisible());
}

TEST_F(OfficeStatements, StoreWhatWasTypedIntoALineAndNothingElse) {
  const std::string before = sample.everything();
  open(kStatedClient);
  edit();
  EXPECT_TRUE(field("TxtDATA_EC", 0).hasFocus());
  go("TxtDATA_EC", 1);
  write("05062024");
  go("TxtPREMIO", 1);
  write("2600,75");
  press(Qt::Key_Return);
  EXPECT_EQ(focused(), "TxtRIMBORSO");
  write("-12,5");
  widget<QComboBox>("CmbST_COMP", 1).setFocus();
  press(Qt::Key_Down);
  widget<QCheckBox>("ChkANNULLATA", 1).setFocus();
  press(Qt::Key_Space);
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_EQ(lineOf(964),
            "964|COAQU|COSTA031||D00120|VI|VCM|P|52/00002384|Merci in viaggio|2600.75|-12.5|503.77|2024-06-05|"
            "2015-04-21|2015-03-22||S|1|1");
  EXPECT_EQ(field("TxtPREMIO", 1).text(), "€ 2.600,75");
  EXPECT_EQ(widget<QComboBox>("CmbST_COMP", 1).currentText(), "ATTIVO");
  sample.write(
      "UPDATE ESTRATTI SET PREMIO = 2554.9, RIMBORSO = 0, DATA_EC = NULL, ST_COMP = 'S', ANNULLATA = 0 "
      "WHERE N_RIGA = 964");
  EXPECT_EQ(sample.everything(), before) << "the other lines and columns";
}

TEST_F(OfficeStatements, StoreLinesTogetherOrNotAtAll) {
  open(kStatedClient);
  edit();
  go("TxtPREMIO", 0);
  write("1");
  go("TxtPREMIO", 6);
  write("2");
  sample.write("UPDATE ESTRATTI SET STAMPA = 0 WHERE N_RIGA = 1545");
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("modificato o eliminato da altri"));
  EXPECT_EQ(sample.line("SELECT PREMIO FROM ESTRATTI WHERE N_RIGA = 758"), "1814.85");
  EXPECT_EQ(sample.line("SELECT PREMIO FROM ESTRATTI WHERE N_RIGA = 1545"), "540");
}

TEST_F(OfficeStatements, FreeTheStateForProducersOnlyWhereALineHasOne) {
  sample.write("UPDATE ESTRATTI SET COD_PROD = NULL, COD_PROD_ALT = '' WHERE N_RIGA = 964");
  open(kStatedClient);
  edit();
  EXPECT_TRUE(widget<QComboBox>("CmbST_PROD", 0).isEnabled());
  EXPECT_FALSE(widget<QComboBox>("CmbST_PROD", 1).isEnabled());
  EXPECT_TRUE(widget<QComboBox>("CmbST_PROD", 2).isEnabled());
}

TEST_F(OfficeStatements, GoFromLineToLineByTheKeyboard) {
  open(kStatedClient);
  edit();
  for (int panel = 1; panel < 7; ++panel) {
    press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_TRUE(field("TxtDATA_EC", panel).hasFocus()) << panel;
  }
}

TEST_F(OfficeStatements, StayWithTheClientWhenALineGoesToAnother) {
  open(kStatedClient);
  edit();
  go("TxtCOD_CLI", 0);
  enter("A00001");
  save();
  EXPECT_EQ(sample.line("SELECT COD_CLIENTE FROM ESTRATTI WHERE N_RIGA = 758"), "A00001");
  EXPECT_EQ(screen().key(), ufficio::Key{std::string(kStatedClient)});
  EXPECT_EQ(field("TxtN_POLIZZA", 0).text(), "52/00002384");
  EXPECT_FALSE(field("TxtN_POLIZZA", 6).isVisible());
}

TEST_F(OfficeStatements, FollowTheOnlyLineToItsNewClient) {
  open("A00001");
  edit();
  go("TxtCOD_CLI", 0);
  enter("A00008");
  save();
  EXPECT_EQ(screen().key(), ufficio::Key{std::string("A00008")});
}

TEST_F(OfficeStatements, AreHeadedByTheirNewClientHoweverFarDownTheListItStands) {
  open("A00001");
  edit();
  go("TxtCOD_CLI", 0);
  enter("R00021");
  save();
  ASSERT_EQ(screen().key(), ufficio::Key{std::string("R00021")});
  const std::string client = sample.line("SELECT DESC_CLIENTE FROM CLIENTI WHERE COD_CLIENTE = 'R00021'");
  EXPECT_THAT(window().windowTitle().toStdString(), testing::StartsWith("R00021  " + client));
}

}  // namespace
}  // namespace qvn::test
