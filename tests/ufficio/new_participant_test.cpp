// One participant of a coinsured policy, from its first digit to the stored commission, by the keyboard alone.
#include <QLabel>
#include <QTimer>
#include <array>

#include "platforms/operator.h"
#include "platforms/qt/texts.h"
#include "qvn/shared/Globale.h"
#include "tests/ufficio/at_window.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;

/// Notes what becomes of the library's forms.
class FormsWatched final : public Watcher {
 public:
  std::vector<std::string> seen;
  void lostFocus(const toolkit::Widget& /*widget*/) override {}
  void gotFocus(const toolkit::Widget& /*widget*/) override {}
  void beeped() override { seen.emplace_back("beep"); }
  void formLoaded(std::string_view form) override { seen.push_back("load " + std::string(form)); }
  void formShown(std::string_view form) override { seen.push_back("show " + std::string(form)); }
  void formUnloaded(std::string_view form) override { seen.push_back("unload " + std::string(form)); }
};

class OfficeNewParticipant : public AtWindow {
 public:
  std::string caption(std::string_view label, std::size_t panel) {
    return std::string(screen().panels().at(panel)->surface().label(label).Caption());
  }
  /// The six shares of a participant: those of the one family, then those of the other.
  std::vector<std::string> shares(std::size_t panel) {
    std::vector<std::string> captions;
    for (const char* group : {"TAF", "TRF"}) {
      for (int line = 0; line < 3; ++line) {
        captions.emplace_back(screen().panels().at(panel)->surface().label(group, line).Caption());
      }
    }
    return captions;
  }
  QString remark() { return window().findChild<QLabel*>("osservazione")->text(); }
  /// Presses "?", then in the list that opens these keys.
  void pick(const std::vector<Qt::Key>& keys) {
    office.platform.formsWait(true);
    QTimer::singleShot(0, [&keys] {
      see();
      for (const Qt::Key key : keys) QTest::keyClick(QApplication::focusWidget(), key);
    });
    write("?");
    QApplication::setActiveWindow(&window());
    see();
  }
  /// Goes to the screen above or below in the list of screens.
  void neighbouringScreen(Qt::Key key) {
    press(Qt::Key_F6);
    press(key);
    see();
  }

  /// Types percents from the box that has the focus on, past the amounts between.
  static void percents(const std::vector<QString>& texts) {
    for (const QString& text : texts) {
      write(text);
      press(Qt::Key_Return);
      press(Qt::Key_Return);
    }
  }
  std::vector<std::string> amounts() {
    std::vector<std::string> texts;
    texts.reserve(kAmountFields.size());
    for (const char* name : kAmountFields) texts.push_back(qt::utf8(field(name).text()));
    return texts;
  }

  static constexpr std::array kAmountFields{"TxtPN_UFF",      "TxtACC_UFF",      "TxtAQ_UFF",
                                            "TxtPN_PROD",     "TxtACC_PROD",     "TxtAQ_PROD",
                                            "TxtPN_PROD_ALT", "TxtACC_PROD_ALT", "TxtAQ_PROD_ALT"};
  const std::vector<std::string> typedAmounts{"€ 75,56", "€ 3,63",  "€ 24,18", "€ 48,36", "€ 1,81",
                                              "€ 12,09", "€ 24,18", "€ 0,73",  "€ 36,27"};
  /// Of the one connection: whether it is open, and on what.
  static std::string connection() {
    return std::to_string(Globale::DB().State()).append(" ").append(Globale::DB().ConnectionString());
  }
  void expectFrozen(const std::vector<const char*>& names) {
    for (const char* name : names) {
      const toolkit::Widget& widget = screen().panels().front()->surface().widget(name);
      EXPECT_FALSE(office.platform.widgetOf(widget)->isEnabled()) << name;
    }
  }
  FormsWatched forms;
};

TEST_F(OfficeNewParticipant, GoesFromItsFirstDigitToTheStoredCommission) {
  int asked = 0;
  const Subscription asking = Globale::Eventi()->MancaDB.subscribe([&asked] { ++asked; });
  EXPECT_EQ(connection(), "0 ") << "closed, and nothing is looked up yet";
  EXPECT_EQ(asked, 0);

  // On the way a panel looks up the first time, and the library asks the office for the database.
  neighbouringScreen(Qt::Key_Down);
  neighbouringScreen(Qt::Key_Down);
  open("92/00000001");
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(connection(), "1 sqlite:" + sample.file());
  ASSERT_EQ(remark(), "Somma delle quote: 1000‰.");

  // A participant more: its quota has the focus.
  press(Qt::Key_N, Qt::ControlModifier);
  constexpr int kNew = 2;
  EXPECT_TRUE(window().editing());
  EXPECT_TRUE(field("TxtQUOTA", kNew).hasFocus());
  EXPECT_EQ(field("TxtQUOTA", kNew).selectedText(), "0");
  EXPECT_FALSE(window().isWindowModified()) << "nothing is typed yet";

  // 250, and at each digit what it is worth. The whole is 2418, 145.08 and 3076 in one family, 2600, 130 and 3071.25
  // in the other.
  write("2");
  EXPECT_THAT(shares(kNew), ElementsAre("€ 4,84", "€ 0,29", "€ 6,15", "€ 5,20", "€ 0,26", "€ 6,14"));
  EXPECT_TRUE(window().isWindowModified());
  write("5");
  EXPECT_THAT(shares(kNew), ElementsAre("€ 60,45", "€ 3,63", "€ 76,90", "€ 65,00", "€ 3,25", "€ 76,78"));
  write("0");
  EXPECT_THAT(shares(kNew), ElementsAre("€ 604,50", "€ 36,27", "€ 769,00", "€ 650,00", "€ 32,50", "€ 767,81"));
  EXPECT_EQ(remark(), "Somma delle quote: 1250‰, ce ne sono 250 di troppo.");

  // "?" opens the list, behind the form that stands while the rows are read; the third row is confirmed.
  press(Qt::Key_Return);
  EXPECT_TRUE(field("TxtCOD_COMP", kNew).hasFocus());
  office.platform.watch(&forms);
  pick({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
  office.platform.watch(nullptr);
  EXPECT_THAT(forms.seen, ElementsAre("load Ricerca", "load Lista", "unload Ricerca", "show Lista", "unload Lista"));
  EXPECT_EQ(field("TxtCOD_COMP", kNew).text(), "AGRI");
  EXPECT_EQ(caption("DESC_COMPAGNIA", kNew), "Assicurazioni del Grifone");
  EXPECT_TRUE(field("TxtCOD_COMP", kNew).hasFocus());

  press(Qt::Key_Return);
  write("nar");
  pick({Qt::Key_Down, Qt::Key_Return});
  EXPECT_EQ(field("TxtCOD_PROD", kNew).text(), "NARDE009");
  press(Qt::Key_Return);
  enter("orsro047");
  enter("83/00000157");
  write("15112026");

  // The others make room.
  press(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_TRUE(field("TxtQUOTA", 1).hasFocus());
  write("250");
  EXPECT_EQ(remark(), "Somma delle quote: 1000‰.");
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  expectFrozen(
      {"TxtQUOTA", "TxtCOD_COMP", "TxtCOD_PROD", "TxtCOD_PROD_ALT", "TxtN_POLIZZA", "TxtD_RIMESSA", "ChkDELEGATARIA"});
  EXPECT_EQ(sample.line("SELECT * FROM QUOTE_POLIZZE WHERE PROT = 1 AND COD_COMP = 'AGRI'"),
            "1|AGRI|NARDE009|ORSRO047|0|250|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|83/00000157|2026-11-15");
  EXPECT_EQ(sample.line("SELECT group_concat(COD_COMP || QUOTA) FROM QUOTE_POLIZZE WHERE PROT = 1"),
            "AGRI250,COSIR500,RCED250");

  // Its commission: codes, figures and quota stand there.
  neighbouringScreen(Qt::Key_Up);
  open("83/00000157");
  EXPECT_EQ(caption("LblQUOTA", 0), "250");
  EXPECT_EQ(caption("LblCOMPAGNIA", 0), "AGRI - Assicurazioni del Grifone");
  EXPECT_EQ(caption("LblPRODUTTORE", 0), "NARDE009 - Nardò Enrico");
  EXPECT_EQ(caption("LblPRODUTTORE_ALT", 0), "ORSRO047 - Orsù Rosalìa (50%)");
  EXPECT_EQ(caption("LblPN", 0), "€ 604,50");
  EXPECT_EQ(caption("LblACC", 0), "€ 36,27");
  EXPECT_EQ(caption("LblPL", 0), "€ 769,00");
  EXPECT_EQ(caption("PROVV_ATTIVE", 0), "€ 0,00");

  // A percent, and at each key its amount; the totals when the box is left.
  edit();
  EXPECT_EQ(focused(), "TxtP_PN_UFF");
  write("12");
  EXPECT_EQ(field("TxtPN_UFF").text(), "€ 72,54");
  write(",5");
  EXPECT_EQ(field("TxtPN_UFF").text(), "€ 75,56");
  EXPECT_EQ(caption("PROVV_ATTIVE", 0), "€ 0,00");
  press(Qt::Key_Return);
  EXPECT_EQ(caption("PROVV_ATTIVE", 0), "€ 75,56");
  press(Qt::Key_Return);
  percents({"10", "4"});

  // The producers' are of the premiums, which is above in the list. A list is left by Tab.
  EXPECT_EQ(focused(), "CmbCALCOLO_PROD");
  press(Qt::Key_Up);
  press(Qt::Key_Tab);
  percents({"8", "5", "2"});
  EXPECT_EQ(focused(), "CmbCALCOLO_PROD_ALT");
  press(Qt::Key_Up);
  press(Qt::Key_Tab);
  percents({"4", "2", "6"});
  EXPECT_EQ(amounts(), typedAmounts);
  EXPECT_EQ(caption("PROVV_ATTIVE", 0), "€ 103,37");
  EXPECT_EQ(caption("PROVV_PASSIVE", 0), "€ 123,44");
  EXPECT_EQ(caption("RIT_ACCONTO", 0), "€ 28,39");

  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  expectFrozen({kAmountFields.begin(), kAmountFields.end()});
  expectFrozen({"TxtP_PN_UFF", "TxtP_ACC_UFF", "TxtP_AQ_UFF", "TxtP_PN_PROD", "TxtP_ACC_PROD", "TxtP_AQ_PROD",
                "TxtP_PN_PROD_ALT", "TxtP_ACC_PROD_ALT", "TxtP_AQ_PROD_ALT", "CmbCALCOLO_PROD", "CmbCALCOLO_PROD_ALT"});
  EXPECT_EQ(amounts(), typedAmounts) << "the values stay";
  EXPECT_EQ(sample.line("SELECT * FROM QUOTE_POLIZZE WHERE PROT = 1 AND COD_COMP = 'AGRI'"),
            "1|AGRI|NARDE009|ORSRO047|0|250|0|0|0|0|0|0|0|0|0|75.56|3.63|24.18|48.36|1.81|12.09|24.18|0.73|36.27|"
            "83/00000157|2026-11-15");
  EXPECT_EQ(sample.line("SELECT * FROM PERCENTUALI_POLIZZE"), "1|AGRI|TAF|1|1|12.5|10|4|8|5|2|4|2|6");

  // Another participant has none of it, and coming back shows what was stored.
  open("94/00000001");
  EXPECT_EQ(field("TxtP_PN_UFF").text(), "0,00");
  open("83/00000157");
  EXPECT_EQ(field("TxtP_PN_UFF").text(), "12,50");
  EXPECT_EQ(field("TxtP_AQ_PROD_ALT").text(), "6,00");
  EXPECT_EQ(amounts(), typedAmounts);
  EXPECT_EQ(caption("RIT_ACCONTO", 0), "€ 28,39");
  EXPECT_FALSE(screen().changed());
  EXPECT_EQ(asked, 1) << "the connection has been open ever since";
}

}  // namespace
}  // namespace qvn::test
