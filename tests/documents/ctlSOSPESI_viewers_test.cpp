// The three viewers that the buttons of the title panel open.
#include <gtest/gtest.h>

#include "qvn/toolkit/data_grid.h"
#include "tests/documents/form_log.h"
#include "tests/documents/title_bench.h"
#include "tests/viewer_columns.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kCompanies =
    "SELECT COMPAGNIE.COD_COMP, COMPAGNIE.DESC_COMPAGNIA, SOSPESI.PL, SOSPESI.PA FROM SOSPESI INNER JOIN COMPAGNIE ON "
    "SOSPESI.COD_COMP = COMPAGNIE.COD_COMP WHERE PROT = 7 AND PROG = 1 ORDER BY COMPAGNIE.COD_COMP";
constexpr const char* kProducers =
    "SELECT SOSPESI.COD_PROD, PRODUTTORI.DENOMINAZIONE, SOSPESI.PP, SOSPESI.RA FROM SOSPESI INNER JOIN PRODUTTORI ON "
    "SOSPESI.COD_PROD = PRODUTTORI.COD_PROD WHERE PROT = 7 AND PROG = 1 ORDER BY SOSPESI.COD_PROD";
constexpr const char* kAlternates =
    "SELECT SOSPESI.COD_PROD_ALT, PRODUTTORI.DENOMINAZIONE, SOSPESI.PP_ALT, SOSPESI.RA_ALT FROM SOSPESI INNER JOIN "
    "PRODUTTORI ON SOSPESI.COD_PROD_ALT = PRODUTTORI.COD_PROD WHERE PROT = 7 AND PROG = 1 ORDER BY "
    "SOSPESI.COD_PROD_ALT";

class TitleViewers : public TitlePanel {
 public:
  struct View {
    std::string button;
    std::string form;
    std::string sql;
  };
  static const std::vector<View>& views() {
    static const std::vector<View> all{{"CmdCOMPAGNIE", "FrmVIS_COMPAGNIE", kCompanies},
                                       {"CmdPRODUTTORI", "FrmVIS_PRODUTTORI", kProducers},
                                       {"CmdPRODUTTORI_ALT", "FrmVIS_PRODUTTORI", kAlternates}};
    return all;
  }

  TitleViewers() {
    driver().answers[kCompanies] = {
        {"COD_COMP", "DESC_COMPAGNIA", "PL", "PA"},
        {{text("C1"), text("GENERALE"), 600.5, std::int32_t{60}}, {text("C2"), text("ALPINA"), 400.0, -1.005}}};
    driver().answers[kProducers] = {{"COD_PROD", "DENOMINAZIONE", "PP", "RA"},
                                    {{text("P1"), text("ROSSI"), 30.0, 6.9}}};
    driver().answers[kAlternates] = {{"COD_PROD_ALT", "DENOMINAZIONE", "PP_ALT", "RA_ALT"},
                                     {{text("P2"), text("BIANCHI"), 12.0, 2.76}}};
    panel->PROT(std::int32_t{7});
    panel->PROG(std::int16_t{1});
    forget();
    hands().takePictures(true);
    watch(&log);
  }
  ~TitleViewers() override { watch(nullptr); }

  FormLog log;

  void press(const std::string& button) { hands().click(surface().button(button)); }
  FormPicture picture() {
    auto pictures = hands().shown();
    EXPECT_EQ(pictures.size(), 1U);
    return pictures.empty() ? FormPicture{} : pictures.front();
  }
};
QVN_ON_EVERY_PLATFORM(TitleViewers);

TEST_P(TitleViewers, TheCompaniesOfTheTitleWithPremiumAndCommission) {
  hands().layDown("FrmVIS_COMPAGNIE", {Act::click("CmdCHIUDI")});
  press("CmdCOMPAGNIE");
  const FormPicture seen = picture();
  EXPECT_EQ(seen.form, "FrmVIS_COMPAGNIE");
  EXPECT_EQ(seen.caption, "Visualizza Compagnie");
  EXPECT_EQ(columnsOf(seen), (Columns{{"Codice", "COD_COMP", ""},
                                      {"Denominazione", "DESC_COMPAGNIA", ""},
                                      {"PL", "PL", "Currency"},
                                      {"PA", "PA", "Currency"}}));
  EXPECT_EQ(seen.cells, (Strings{"C1", "GENERALE", "€ 600,50", "€ 60,00", "C2", "ALPINA", "€ 400,00", "-€ 1,01"}));
  EXPECT_EQ(asked(), Strings{kCompanies});
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(TitleViewers, TheProducersOfTheTitleWithCommissionAndWithholding) {
  press("CmdPRODUTTORI");
  const FormPicture seen = picture();
  EXPECT_EQ(seen.form, "FrmVIS_PRODUTTORI");
  EXPECT_EQ(seen.caption, "Visualizza Produttori");
  EXPECT_EQ(columnsOf(seen), (Columns{{"Codice", "COD_PROD", ""},
                                      {"Denominazione", "DENOMINAZIONE", ""},
                                      {"PP", "PP", "Currency"},
                                      {"RA", "RA", "Currency"}}));
  EXPECT_EQ(seen.cells, (Strings{"P1", "ROSSI", "€ 30,00", "€ 6,90"}));
  EXPECT_EQ(asked(), Strings{kProducers});
}

TEST_P(TitleViewers, TheAlternateProducersUnderTheSameHeadings) {
  press("CmdPRODUTTORI_ALT");
  const FormPicture seen = picture();
  EXPECT_EQ(seen.form, "FrmVIS_PRODUTTORI");
  EXPECT_EQ(seen.caption, "Visualizza Produttori Alt.");
  EXPECT_EQ(columnsOf(seen), (Columns{{"Codice", "COD_PROD_ALT", ""},
                                      {"Denominazione", "DENOMINAZIONE", ""},
                                      {"PP", "PP_ALT", "Currency"},
                                      {"RA", "RA_ALT", "Currency"}}));
  EXPECT_EQ(seen.cells, (Strings{"P2", "BIANCHI", "€ 12,00", "€ 2,76"}));
  EXPECT_EQ(asked(), Strings{kAlternates});
}

TEST_P(TitleViewers, EachOpeningStartsFromTheStoredLayout) {
  for (int i = 0; i < 2; ++i) {
    press("CmdPRODUTTORI_ALT");
    EXPECT_EQ(picture().caption, "Visualizza Produttori Alt.");
  }
  press("CmdPRODUTTORI");
  const FormPicture plain = picture();
  EXPECT_EQ(plain.caption, "Visualizza Produttori");
  EXPECT_EQ(plain.columns[0].field, "COD_PROD");
  EXPECT_EQ(plain.cells, (Strings{"P1", "ROSSI", "€ 30,00", "€ 6,90"}));
}

TEST_P(TitleViewers, TheNumbersGoInAsTheyStand) {
  label("LblPROT").Change = {};
  label("LblPROG").Change = {};
  label("LblPROT").Caption("1 OR 2");
  label("LblPROG").Caption("'x'");
  press("CmdPRODUTTORI");
  EXPECT_EQ(asked(),
            Strings{"SELECT SOSPESI.COD_PROD, PRODUTTORI.DENOMINAZIONE, SOSPESI.PP, SOSPESI.RA FROM SOSPESI INNER JOIN "
                    "PRODUTTORI ON SOSPESI.COD_PROD = PRODUTTORI.COD_PROD WHERE PROT = 1 OR 2 AND PROG = 'x' ORDER BY "
                    "SOSPESI.COD_PROD"});
}

TEST_P(TitleViewers, AnEmptyNumberLeavesAGapInTheStatement) {
  panel = another("titolo");
  press("CmdCOMPAGNIE");
  EXPECT_EQ(asked(),
            Strings{"SELECT COMPAGNIE.COD_COMP, COMPAGNIE.DESC_COMPAGNIA, SOSPESI.PL, SOSPESI.PA FROM SOSPESI INNER "
                    "JOIN COMPAGNIE ON SOSPESI.COD_COMP = COMPAGNIE.COD_COMP WHERE PROT =  AND PROG =  ORDER BY "
                    "COMPAGNIE.COD_COMP"});
}

TEST_P(TitleViewers, EachStandsOnAConnectionOfItsOwn) {
  for (const View& view : views()) {
    SCOPED_TRACE(view.button);
    driver().openings.clear();
    press(view.button);
    ASSERT_EQ(driver().openings.size(), 1U);
    EXPECT_EQ(driver().openings[0].rest, "ufficio");
    EXPECT_EQ(driver().openings[0].viewer, view.form);
  }
}

TEST_P(TitleViewers, EachIsLoadedFilledShownAndUnloaded) {
  for (const View& view : views()) {
    log.entries.clear();
    press(view.button);
    EXPECT_THAT(log.entries,
                ElementsAre("load " + view.form, "viewer " + view.form, "modal " + view.form, "unload " + view.form));
    EXPECT_THAT(namesOfLoadedForms(platform()), IsEmpty());
  }
}

TEST_P(TitleViewers, TheAlternatesCaptionIsWrittenBeforeTheRowsComeAndTheFieldsAfter) {
  std::string captionThen;
  std::string fieldThen;
  log.onEntry = [&](const std::string& entry) {
    if (entry != "viewer FrmVIS_PRODUTTORI") return;
    toolkit::Form& form = platform().forms().at(0);
    captionThen = form.Caption();
    fieldThen = form.surface().grid("TDBGrid1").column(0).dataField;
  };
  press("CmdPRODUTTORI_ALT");
  EXPECT_EQ(captionThen, "Visualizza Produttori Alt.");
  EXPECT_EQ(fieldThen, "COD_PROD");
  EXPECT_EQ(picture().columns[0].field, "COD_PROD_ALT");
}

TEST_P(TitleViewers, ATitleWithoutRowsShowsAnEmptyGrid) {
  panel->PROT(std::int32_t{99});
  press("CmdCOMPAGNIE");
  EXPECT_EQ(picture().rowCount(), 0U);
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(TitleViewers, AFailingStatementLeavesTheFormLoadedAndNotShown) {
  for (const View& view : views()) {
    SCOPED_TRACE(view.button);
    driver().ran.clear();
    driver().failingStatement = 1;
    press(view.button);
    const ReportedFailure failure = onlyReported();
    EXPECT_EQ(failure.kind, FailureKind::Database);
    EXPECT_EQ(failure.widget, view.button);
    EXPECT_EQ(failure.event, "Click");
    EXPECT_NE(failure.message.find(view.sql), std::string::npos);
    EXPECT_THAT(namesOfLoadedForms(platform()), testing::Contains(view.form));
    EXPECT_THAT(hands().shown(), IsEmpty());
    driver().failingStatement = 0;
    press(view.button);  // and the next opening comes over it
    EXPECT_EQ(picture().form, view.form);
    EXPECT_THAT(namesOfLoadedForms(platform()), IsEmpty());
  }
}

TEST_P(TitleViewers, AnAlternateThatFailedDoesNotMarkTheNextOpening) {
  driver().failingStatement = 1;
  press("CmdPRODUTTORI_ALT");
  driver().failingStatement = 0;
  press("CmdPRODUTTORI");
  EXPECT_EQ(picture().caption, "Visualizza Produttori");
}

TEST_P(TitleViewers, OpenOnAFrozenPanel) {
  panel->Disattiva();
  for (const View& view : views()) {
    press(view.button);
    EXPECT_EQ(picture().form, view.form);
  }
}

TEST_P(TitleViewers, AskForAMissingDatabaseBeforeTheFormLoads) {
  for (const View& view : views()) {
    SCOPED_TRACE(view.button);
    Globale::unload();
    Strings formsThen{"not asked"};
    const Subscription subscription = Globale::Eventi()->MancaDB.subscribe([&] {
      formsThen = namesOfLoadedForms(platform());
      Globale::Eventi()->ImpostaDB("failing:fake:altra");
    });
    driver().openings.clear();
    press(view.button);
    EXPECT_THAT(formsThen, IsEmpty());
    ASSERT_EQ(driver().openings.size(), 2U);  // the library's, and the viewer's
    EXPECT_EQ(driver().openings[1].rest, "altra");
    EXPECT_EQ(picture().form, view.form);
  }
}

TEST_P(TitleViewers, WithoutADatabaseStayLoadedAndNotShown) {
  Globale::unload();
  press("CmdCOMPAGNIE");
  EXPECT_EQ(onlyReported().kind, FailureKind::Database);
  EXPECT_THAT(namesOfLoadedForms(platform()), ElementsAre("FrmVIS_COMPAGNIE"));
}

TEST_P(TitleViewers, TheFocusComesBackToTheButton) {
  panel->Attiva(true);
  press("CmdPRODUTTORI");
  EXPECT_EQ(focused(), "CmdPRODUTTORI");
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(TitleViewers, ThePanelMayBeDroppedWhileOneStands) {
  for (const View& view : views()) {
    SCOPED_TRACE(view.button);
    log.onEntry = [&](const std::string& entry) {
      if (entry == "modal " + view.form) panel.reset();
    };
    press(view.button);
    EXPECT_EQ(panel, nullptr);
    EXPECT_THAT(namesOfLoadedForms(platform()), IsEmpty());
    EXPECT_THAT(container().failures, IsEmpty());
    EXPECT_EQ(hands().shown().size(), 1U);
    log.onEntry = {};
    panel = another("titolo");
  }
}

TEST_P(TitleViewers, ThePanelMayBeDroppedWhereTheDatabaseIsAskedFor) {
  for (const View& view : views()) {
    SCOPED_TRACE(view.button);
    panel = another("titolo");
    panel->PROT(std::int32_t{7});
    panel->PROG(std::int16_t{1});
    Globale::unload();
    const Subscription subscription = Globale::Eventi()->MancaDB.subscribe([&] {
      panel.reset();
      Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
    });
    forget();
    press(view.button);
    EXPECT_EQ(asked(), Strings{view.sql});  // the numbers are still told by the labels
    EXPECT_EQ(picture().form, view.form);
    EXPECT_THAT(container().failures, IsEmpty());
  }
}

TEST_P(TitleViewers, TheNumbersAreReadOnceTheDatabaseWasAskedFor) {
  for (const View& view : views()) {
    Globale::unload();
    panel->PROG(std::int16_t{1});
    const Subscription subscription = Globale::Eventi()->MancaDB.subscribe([&] {
      Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
      label("LblPROT").Caption("8");
    });
    forget();
    press(view.button);
    EXPECT_NE(asked().back().find("PROT = 8 AND"), std::string::npos);
    label("LblPROT").Caption("7");
  }
}

}  // namespace
}  // namespace qvn::test
