// The outstanding titles of a policy at the window: the actions on offer, and what becomes of the one that is picked.
#include <QComboBox>

#include "platforms/qt/texts.h"
#include "tests/ufficio/at_window.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr Qt::KeyboardModifiers kControlShift = Qt::ControlModifier | Qt::ShiftModifier;

class OfficeTitles : public AtWindow {
 public:
  OfficeTitles() { choose("sospesi"); }

  std::string caption(std::string_view label, std::size_t panel = 0) {
    return std::string(screen().panels().at(panel)->surface().label(label).Caption());
  }
  QWidget& widget(std::string_view name, std::size_t panel = 0) {
    const toolkit::Widget& its = screen().panels().at(panel)->surface().widget(name);
    return *office.platform.widgetOf(its);
  }
  QComboBox& actions(std::size_t panel = 0) { return dynamic_cast<QComboBox&>(widget("CmbTIPO_CONT", panel)); }
  std::vector<std::string> offered(std::size_t panel = 0) {
    std::vector<std::string> items;
    items.reserve(static_cast<std::size_t>(actions(panel).count()));
    for (int i = 0; i < actions(panel).count(); ++i) items.push_back(qt::utf8(actions(panel).itemText(i)));
    return items;
  }
  void go(std::string_view name, std::size_t panel = 0) {
    widget(name, panel).setFocus();
    see();
  }
  /// Goes down the actions to this one.
  void pick(const QString& action, std::size_t panel = 0) {
    go("CmbTIPO_CONT", panel);
    for (int i = 0; i < 5 && actions(panel).currentText() != action; ++i) press(Qt::Key_Down);
    ASSERT_EQ(actions(panel).currentText(), action);
  }
  void authorise() { press(Qt::Key_A, kControlShift); }

  /// What stands alike on all rows of a title.
  std::string title(int policy, int number) const {
    return sample.line(std::string("SELECT DISTINCT STATO, N_STATO, DATA_DOC, DATA_C FROM SOSPESI WHERE PROT = ")
                           .append(std::to_string(policy))
                           .append(" AND PROG = ")
                           .append(std::to_string(number)));
  }
};

TEST_F(OfficeTitles, ShowsEachTitleOfAPolicyOnceWithAllItsCompanies) {
  open("92/00000001");
  EXPECT_EQ(caption("LblCLIENTE", 1),
            sample.line("SELECT DESC_CLIENTE FROM CLIENTI JOIN POLIZZE USING (COD_CLIENTE) WHERE PROT = 1"));
  EXPECT_EQ(caption("LblPROT", 1), "1");
  EXPECT_EQ(caption("LblPROG", 1), "2");
  EXPECT_EQ(caption("LblQUOTA", 1), "500");
  EXPECT_EQ(caption("LblPL", 1), "€ 3.076,00");
  EXPECT_EQ(caption("LblN_POLIZZA", 1), "92/00000001");
  EXPECT_EQ(caption("LblCOD_GR", 1), sample.line("SELECT COD_RAMO FROM POLIZZE WHERE PROT = 1"));
  EXPECT_EQ(caption("LblDESC_SRAMO", 1), sample.line("SELECT DESCRIZIONE FROM SOTTORAMI WHERE COD_SRAMO = 102"));
  EXPECT_EQ(caption("LblTIPO_DOC", 1), "Q");
  EXPECT_EQ(caption("LblINT_ASS", 1), sample.line("SELECT DISTINCT INT_ASS FROM SOSPESI WHERE PROT = 1 AND PROG = 2"));
  EXPECT_EQ(caption("LblCOD_COMP_DEL", 1), "COSIR");
  EXPECT_EQ(caption("LblDESC_COMP_DEL", 1),
            sample.line("SELECT DESC_COMPAGNIA FROM COMPAGNIE WHERE COD_COMP = 'COSIR'"));
  EXPECT_EQ(caption("LblCOD_PROD_DEL", 1), "DONAT030");
  EXPECT_EQ(caption("LblDESC_PROD_DEL", 1),
            sample.line("SELECT DENOMINAZIONE FROM PRODUTTORI WHERE COD_PROD = 'DONAT030'"));
  EXPECT_EQ(caption("LblSTATO", 0), "INCASSATA");
  EXPECT_EQ(caption("LblDATA_EC", 0), "19/07/2019");
  EXPECT_EQ(field("TxtDATA_C", 0).text(), "31/05/2019");
  EXPECT_EQ(caption("LblSTATO", 1), "SOSPESA");
  EXPECT_EQ(caption("LblDATA_EC", 1), "");
  EXPECT_EQ(field("TxtDATA_C", 1).text(), "##/##/####");
  EXPECT_EQ(field("TxtDATA_DOC", 1).text(), "28/09/2019");
  EXPECT_EQ(caption("LblSTATO", 2), "INCASSATA");
  EXPECT_TRUE(actions(2).isVisible());
  EXPECT_FALSE(actions(3).isVisible());
}

TEST_F(OfficeTitles, CarriesOutTheActionThatIsPickedAndShowsTheNewState) {
  const std::string before = sample.everything();
  open("92/00000001");
  edit();
  EXPECT_EQ(focused(), "TxtDATA_C");
  go("TxtDATA_C", 1);
  write("05062024");
  press(Qt::Key_Tab);
  EXPECT_EQ(focused(), "TxtDATA_DOC");
  write("01102019");
  pick("COPRI", 1);
  EXPECT_TRUE(window().isWindowModified());
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_EQ(title(1, 2), "C||2019-10-01|2024-06-05");
  EXPECT_EQ(caption("LblSTATO", 1), "COPERTA");
  EXPECT_THAT(offered(1), ElementsAre("", "INCASSA", "ANNULLA"));
  EXPECT_EQ(actions(1).currentText(), "");
  EXPECT_EQ(field("TxtDATA_C", 1).text(), "05/06/2024");
  sample.write("UPDATE SOSPESI SET STATO = 'S', DATA_DOC = '2019-09-28', DATA_C = NULL WHERE PROT = 1 AND PROG = 2");
  EXPECT_EQ(sample.everything(), before) << "the other titles and columns";
}

TEST_F(OfficeTitles, CollectsWhatIsCovered) {
  sample.write("UPDATE SOSPESI SET STATO = 'C' WHERE PROT = 2");
  open("49/00000002");
  edit();
  pick("INCASSA");
  save();
  EXPECT_EQ(title(2, 1), "I||2020-06-20|NULL");
  EXPECT_EQ(caption("LblSTATO"), "INCASSATA");
  edit();
  EXPECT_THAT(offered(), ElementsAre(""));
}

TEST_F(OfficeTitles, OffersNoCancellingToWhoMayNot) {
  open("49/00000002");
  edit();
  EXPECT_THAT(offered(), ElementsAre("", "COPRI", "INCASSA"));
  EXPECT_FALSE(window().isWindowModified());
}

TEST_F(OfficeTitles, CancelsForWhoMayAndReactivatesForEverybody) {
  authorise();
  open("49/00000002");
  edit();
  EXPECT_THAT(offered(), ElementsAre("", "COPRI", "INCASSA", "ANNULLA"));
  pick("ANNULLA");
  save();
  EXPECT_EQ(title(2, 1), "A||2020-06-20|NULL");
  EXPECT_EQ(caption("LblSTATO"), "ANNULLATA");
  authorise();
  edit();
  EXPECT_THAT(offered(), ElementsAre("", "RIATTIVA"));
  pick("RIATTIVA");
  save();
  EXPECT_EQ(title(2, 1), "S||2020-06-20|NULL");
  EXPECT_EQ(caption("LblSTATO"), "SOSPESA");
}

TEST_F(OfficeTitles, HoldsTheRightFastWhileATitleIsChanged) {
  open("49/00000002");
  edit();
  authorise();
  press(Qt::Key_Escape);
  edit();
  EXPECT_THAT(offered(), ElementsAre("", "COPRI", "INCASSA"));
}

TEST_F(OfficeTitles, LeavesAPendingActionUntilTheTitleIsStored) {
  choose("sospesi");
  open("/00000023");
  ASSERT_EQ(title(23, 2), "S|I|2018-02-17|NULL");
  EXPECT_EQ(actions(1).currentText(), "INCASSA");
  edit();
  save();
  EXPECT_EQ(title(23, 2), "S|I|2018-02-17|NULL");
  edit();
  go("TxtDATA_C", 1);
  write("20022018");
  save();
  EXPECT_EQ(title(23, 2), "I||2018-02-17|2018-02-20");
}

TEST_F(OfficeTitles, GivesUpAPendingAction) {
  open("/00000023");
  edit();
  go("CmbTIPO_CONT", 1);
  press(Qt::Key_Home);
  save();
  EXPECT_EQ(title(23, 2), "S||2018-02-17|NULL");
}

TEST_F(OfficeTitles, LeavesAPendingCancellingToWhoMay) {
  open("/00000099");
  const std::size_t last = 1;
  ASSERT_EQ(title(99, 2), "S|A|2024-07-18|NULL");
  edit();
  EXPECT_EQ(actions(last).currentText(), "ANNULLA");
  go("TxtDATA_C", last);
  write("20072024");
  save();
  EXPECT_EQ(title(99, 2), "S|A|2024-07-18|2024-07-20");
  EXPECT_EQ(caption("LblSTATO", last), "SOSPESA");
  authorise();
  edit();
  go("TxtDATA_C", last);
  write("21072024");
  save();
  EXPECT_EQ(title(99, 2), "A||2024-07-18|2024-07-21");
}

TEST_F(OfficeTitles, WritesNoTitleThatAnotherHasChanged) {
  open("92/00000001");
  edit();
  pick("INCASSA", 1);
  sample.write("UPDATE SOSPESI SET PA = 1 WHERE PROT = 1 AND PROG = 2 AND COD_COMP = 'RCED'");
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("nel frattempo il record è stato modificato o eliminato da altri"));
  EXPECT_EQ(title(1, 2), "S||2019-09-28|NULL");
  EXPECT_EQ(actions(1).currentText(), "INCASSA");
  EXPECT_TRUE(window().editing());
}

TEST_F(OfficeTitles, RefusesAStateThatThereIsNot) {
  sample.write("UPDATE SOSPESI SET STATO = 'X' WHERE PROT = 2");
  open("49/00000002");
  EXPECT_THAT(notice().toStdString(), HasSubstr("un titolo ha lo stato «X», che non esiste"));
  EXPECT_THAT(screen().key(), IsEmpty());
}

class OfficeTitleViewers : public OfficeTitles {
 public:
  /// Presses by the keyboard a button that opens a viewer.
  Viewed viewed(std::string_view button) {
    go(button, 1);
    return AtWindow::viewed([] { press(Qt::Key_Space); });
  }
};

TEST_F(OfficeTitleViewers, OpenByTheirButtonsOnAFrozenPanel) {
  sample.write("UPDATE SOSPESI SET COD_PROD_ALT = 'PELLE005' WHERE PROT = 1 AND PROG = 2 AND COD_COMP = 'RCED'");
  open("92/00000001");
  const Viewed companies = viewed("CmdCOMPAGNIE");
  EXPECT_EQ(companies.title, "Visualizza Compagnie");
  EXPECT_THAT(companies.codes, ElementsAre("COSIR", "RCED"));
  const Viewed producers = viewed("CmdPRODUTTORI");
  EXPECT_EQ(producers.title, "Visualizza Produttori");
  EXPECT_THAT(producers.codes, ElementsAre("DONAT030", "GALLO042"));
  const Viewed alternates = viewed("CmdPRODUTTORI_ALT");
  EXPECT_EQ(alternates.title, "Visualizza Produttori Alt.");
  EXPECT_THAT(alternates.codes, ElementsAre("PELLE005"));
}

class OfficeTitleStorage : public testing::TestWithParam<const char*> {};

TEST_P(OfficeTitleStorage, AddsUpThePremiumsOfTheCompanies) {
  const SampleCopy sample(GetParam());
  sample.write("UPDATE SOSPESI SET PL = CASE COD_COMP WHEN 'RCED' THEN 2 ELSE 1.255 END WHERE PROT = 1 AND PROG = 2");
  const OfficeAt office(sample.file());
  office.window->chooseScreen(numberOf("sospesi"));
  ASSERT_TRUE(office.window->openRecord({.key = {std::int64_t{1}}, .text = "prima"}));
  EXPECT_EQ(office.window->screen()->panels().at(1)->surface().label("LblPL").Caption(), "€ 3,26");
}

INSTANTIATE_TEST_SUITE_P(Storages, OfficeTitleStorage, testing::ValuesIn(office_test::storages),
                         [](const auto& storage) { return std::string(storage.param); });

}  // namespace
}  // namespace qvn::test
