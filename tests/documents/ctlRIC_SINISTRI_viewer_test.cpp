// The viewer that the button of the claim panel opens.
#include <gtest/gtest.h>

#include "tests/documents/search_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string sharesSql(std::string_view number) {
  return std::string(
             "SELECT COMPAGNIE.COD_COMP, COMPAGNIE.DESC_COMPAGNIA, [D_STIMATO]*[QUOTA]/1000 AS PL, "
             "[D_LIQUIDATO]*[QUOTA]/1000 AS PA FROM (COMPAGNIE INNER JOIN QUOTE_SINISTRI ON COMPAGNIE.COD_COMP = "
             "QUOTE_SINISTRI.COD_COMP) INNER JOIN SINISTRI ON QUOTE_SINISTRI.N_SINISTRO = SINISTRI.N_SINISTRO WHERE "
             "(((QUOTE_SINISTRI.N_SINISTRO) = '")
      .append(number)
      .append("')) ORDER BY COMPAGNIE.COD_COMP");
}

const Columns& kDamages() {
  static const Columns columns{{"Codice", "COD_COMP", ""},
                               {"Denominazione", "DESC_COMPAGNIA", ""},
                               {"Stimato", "PL", "Currency"},
                               {"Liquidato", "PA", "Currency"}};
  return columns;
}

class ClaimViewer : public ClaimFound {
 public:
  ClaimViewer() {
    driver().answers[sharesSql("S/1")] = {
        {"COD_COMP", "DESC_COMPAGNIA", "PL", "PA"},
        {{text("C1"), text("GENERALE"), 600.5, std::int32_t{60}}, {text("C2"), text("ALPINA"), 400.0, Null{}}}};
    panel->PROT(text("S/1"));
    asked();
  }

  void press() { hands().click(surface().button("CmdCOMPAGNIE")); }
};
QVN_ON_EVERY_PLATFORM(ClaimViewer);

TEST_P(ClaimViewer, TheCompaniesOfTheClaimWithEstimatedAndPaidDamage) {
  hands().layDown("FrmVIS_COMPAGNIE", {Act::click("CmdCHIUDI")});
  press();
  const FormPicture seen = picture();
  EXPECT_EQ(seen.form, "FrmVIS_COMPAGNIE");
  EXPECT_EQ(seen.caption, "Visualizza Compagnie");
  EXPECT_EQ(columnsOf(seen), kDamages());
  EXPECT_EQ(seen.cells, (Strings{"C1", "GENERALE", "€ 600,50", "€ 60,00", "C2", "ALPINA", "€ 400,00", ""}));
  EXPECT_EQ(asked(), Strings{sharesSql("S/1")});
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(ClaimViewer, IsLoadedFilledShownAndUnloaded) {
  press();
  EXPECT_THAT(log.take(), ElementsAre("load FrmVIS_COMPAGNIE", "viewer FrmVIS_COMPAGNIE", "modal FrmVIS_COMPAGNIE",
                                      "unload FrmVIS_COMPAGNIE"));
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(ClaimViewer, StandsOnAConnectionOfItsOwn) {
  driver().openings.clear();
  press();
  ASSERT_EQ(driver().openings.size(), 1U);
  EXPECT_EQ(driver().openings[0].rest, "ufficio");
  EXPECT_EQ(driver().openings[0].viewer, "FrmVIS_COMPAGNIE");
}

TEST_P(ClaimViewer, TheHeadingsAreThereBeforeTheRows) {
  Strings headings;
  log.onEntry = [&](const std::string& entry) {
    if (entry != "viewer FrmVIS_COMPAGNIE") return;
    const toolkit::DataGrid& grid = platform().forms().at(0).surface().grid("TDBGrid1");
    for (std::int32_t i = 0; i < 4; ++i) headings.push_back(grid.column(i).caption);
  };
  press();
  EXPECT_EQ(headings, (Strings{"Codice", "Denominazione", "Stimato", "Liquidato"}));
}

TEST_P(ClaimViewer, TheHeadingsAreThoseOfThisOpeningAlone) {
  press();
  hands().shown();
  ctlRICERCA policy(PanelSite{container(), "polizza"});
  policy.PROT(std::int32_t{7});
  answer("Select U_CALCOLO FROM POLIZZE WHERE PROT = 7", "U_CALCOLO", text("TRF"));
  hands().click(policy.surface().button("CmdCOMPAGNIE"));
  EXPECT_EQ(columnsOf(picture()), (Columns{{"Codice", "COD_COMP", ""},
                                           {"Denominazione", "DESC_COMPAGNIA", ""},
                                           {"PL", "PL", "Currency"},
                                           {"PA", "PA", "Currency"}}));
}

TEST_P(ClaimViewer, AClaimWithoutRowsShowsAnEmptyGridUnderItsHeadings) {
  panel->PROT(text("S/9"));
  press();
  const FormPicture seen = picture();
  EXPECT_EQ(seen.rowCount(), 0U);
  EXPECT_EQ(columnsOf(seen), kDamages());
}

TEST_P(ClaimViewer, AnEmptyNumberIsAskedForBetweenItsQuotes) {
  panel = another();
  press();
  EXPECT_EQ(asked(), Strings{sharesSql("")});
  EXPECT_EQ(picture().rowCount(), 0U);
}

TEST_P(ClaimViewer, QuotesInTheNumberStay) {
  panel->PROT(text("S'1'"));
  asked();
  press();
  EXPECT_EQ(asked(), Strings{sharesSql("S'1'")});
}

TEST_P(ClaimViewer, AFailingStatementLeavesTheFormLoadedAndNotShown) {
  statements.failAt(1);
  press();
  const ReportedFailure failure = onlyReported();
  EXPECT_EQ(failure.kind, FailureKind::Database);
  EXPECT_EQ(failure.panel, "sinistro");
  EXPECT_EQ(failure.widget, "CmdCOMPAGNIE");
  EXPECT_EQ(failure.event, "Click");
  EXPECT_NE(failure.message.find(sharesSql("S/1")), std::string::npos);
  EXPECT_THAT(loadedForms(), ElementsAre("FrmVIS_COMPAGNIE"));
  EXPECT_EQ(platform().forms().at(0).surface().grid("TDBGrid1").column(2).caption, "Stimato");
  EXPECT_THAT(hands().shown(), IsEmpty());
  statements.failAt(0);
  press();  // and the next opening comes over it
  EXPECT_EQ(columnsOf(picture()), kDamages());
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(ClaimViewer, TheNumberIsReadOnceTheDatabaseIsThere) {
  label("LblPROT").Change = {};
  label("LblPROT").Caption("S/8");
  const auto subscription = whenAskedForTheDatabase([&] {
    EXPECT_THAT(loadedForms(), IsEmpty());
    label("LblPROT").Caption("S/1");
  });
  press();
  EXPECT_EQ(asked(), Strings{sharesSql("S/1")});
}

TEST_P(ClaimViewer, TheStatementStandsBeforeTheFormLoads) {
  label("LblPROT").Change = {};
  log.onEntry = [&](const std::string& entry) {
    if (entry.starts_with("load")) label("LblPROT").Caption("S/8");
  };
  press();
  EXPECT_EQ(asked(), Strings{sharesSql("S/1")});
}

TEST_P(ClaimViewer, AsksForAMissingDatabaseAndIsOpenedFromItsString) {
  int asks = 0;
  const auto subscription = whenAskedForTheDatabase([&] { ++asks; });
  driver().openings.clear();
  press();
  EXPECT_EQ(asks, 1);
  ASSERT_EQ(driver().openings.size(), 2U);  // the library's, and the viewer's
  EXPECT_EQ(driver().openings[1].rest, "altra");
}

TEST_P(ClaimViewer, WithoutADatabaseStaysLoadedAndNotShown) {
  Globale::unload();
  press();
  EXPECT_EQ(onlyReported().kind, FailureKind::Database);
  EXPECT_THAT(loadedForms(), ElementsAre("FrmVIS_COMPAGNIE"));
  EXPECT_THAT(hands().shown(), IsEmpty());
}

TEST_P(ClaimViewer, ClosesByEscapeAndTheFocusComesBackToTheButton) {
  hands().layDown("FrmVIS_COMPAGNIE", {Act::key("{Escape}")});
  press();
  EXPECT_EQ(hands().shown().size(), 1U);
  EXPECT_THAT(loadedForms(), IsEmpty());
  ASSERT_NE(platform().focused(), nullptr);
  EXPECT_EQ(platform().focused()->Name(), "CmdCOMPAGNIE");
}

}  // namespace
}  // namespace qvn::test
