// The three viewers that the buttons of the policy panel open.
#include <gtest/gtest.h>

#include "tests/documents/search_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kCurrent = "Select U_CALCOLO FROM POLIZZE WHERE PROT = 7";

/// What a button opens: its form, and its statement for the policy 7 by each of the two calculations.
struct View {
  std::string button;
  std::string form;
  std::string byTRF;
  std::string byTAF;
};

const std::vector<View>& views() {
  static const std::vector<View> all{
      {"CmdCOMPAGNIE", "FrmVIS_COMPAGNIE",
       "SELECT COMPAGNIE.COD_COMP, COMPAGNIE.DESC_COMPAGNIA, [PL_TRF]*[QUOTA]/1000 AS PL, "
       "[PN_UFF_TRF]+[ACC_UFF_TRF]+[AQ_UFF_TRF] AS PA FROM (COMPAGNIE INNER JOIN QUOTE_POLIZZE ON COMPAGNIE.COD_COMP = "
       "QUOTE_POLIZZE.COD_COMP) INNER JOIN POLIZZE ON QUOTE_POLIZZE.PROT = POLIZZE.PROT WHERE "
       "(((QUOTE_POLIZZE.PROT) = 7)) ORDER BY COMPAGNIE.COD_COMP",
       "SELECT COMPAGNIE.COD_COMP, COMPAGNIE.DESC_COMPAGNIA, [PL_TAF]*[QUOTA]/1000 AS PL, "
       "[PN_UFF_TAF]+[ACC_UFF_TAF]+[AQ_UFF_TAF] AS PA FROM (COMPAGNIE INNER JOIN QUOTE_POLIZZE ON COMPAGNIE.COD_COMP = "
       "QUOTE_POLIZZE.COD_COMP) INNER JOIN POLIZZE ON QUOTE_POLIZZE.PROT = POLIZZE.PROT WHERE "
       "(((QUOTE_POLIZZE.PROT) = 7)) ORDER BY COMPAGNIE.COD_COMP"},
      {"CmdPRODUTTORI", "FrmVIS_PRODUTTORI",
       "SELECT QUOTE_POLIZZE.COD_PROD, PRODUTTORI.DENOMINAZIONE, [pn_prod_TRF]+[acc_prod_TRF]+[aq_prod_TRF] AS PP, "
       "([pn_prod_TRF]+[acc_prod_TRF]+[aq_prod_TRF])/100*[R_ACC] AS RA FROM PRODUTTORI INNER JOIN QUOTE_POLIZZE ON "
       "PRODUTTORI.COD_PROD = QUOTE_POLIZZE.COD_PROD WHERE (((QUOTE_POLIZZE.PROT) = 7)) ORDER BY "
       "QUOTE_POLIZZE.COD_PROD",
       "SELECT QUOTE_POLIZZE.COD_PROD, PRODUTTORI.DENOMINAZIONE, [pn_prod_Taf]+[acc_prod_Taf]+[aq_prod_Taf] AS PP, "
       "([pn_prod_Taf]+[acc_prod_Taf]+[aq_prod_Taf])/100*[R_ACC] AS RA FROM PRODUTTORI INNER JOIN QUOTE_POLIZZE ON "
       "PRODUTTORI.COD_PROD = QUOTE_POLIZZE.COD_PROD WHERE (((QUOTE_POLIZZE.PROT) = 7)) ORDER BY "
       "QUOTE_POLIZZE.COD_PROD"},
      {"CmdPRODUTTORI_ALT", "FrmVIS_PRODUTTORI",
       "SELECT QUOTE_POLIZZE.COD_PROD_ALT, PRODUTTORI.DENOMINAZIONE, "
       "[pn_prod_ALT_TRF]+[acc_prod_ALT_TRF]+[aq_prod_ALT_TRF] AS PP, "
       "([pn_prod_ALT_TRF]+[acc_prod_ALT_TRF]+[aq_prod_ALT_TRF])/100*[R_ACC] AS RA FROM PRODUTTORI INNER JOIN "
       "QUOTE_POLIZZE ON PRODUTTORI.COD_PROD = QUOTE_POLIZZE.COD_PROD_ALT WHERE (((QUOTE_POLIZZE.PROT) = 7)) ORDER BY "
       "QUOTE_POLIZZE.COD_PROD_ALT",
       "SELECT QUOTE_POLIZZE.COD_PROD_ALT, PRODUTTORI.DENOMINAZIONE, "
       "[pn_prod_ALT_TAF]+[acc_prod_ALT_TAF]+[aq_prod_ALT_TAF] AS PP, "
       "([pn_prod_ALT_TAF]+[acc_prod_ALT_TAF]+[aq_prod_ALT_TAF])/100*[R_ACC] AS RA FROM PRODUTTORI INNER JOIN "
       "QUOTE_POLIZZE ON PRODUTTORI.COD_PROD = QUOTE_POLIZZE.COD_PROD_ALT WHERE (((QUOTE_POLIZZE.PROT) = 7)) ORDER BY "
       "QUOTE_POLIZZE.COD_PROD_ALT"}};
  return all;
}

class PolicyViewers : public PolicyFound {
 public:
  PolicyViewers() {
    current(text("TRF"));
    driver().answers[views()[0].byTRF] = {
        {"COD_COMP", "DESC_COMPAGNIA", "PL", "PA"},
        {{text("C1"), text("GENERALE"), 600.5, std::int32_t{60}}, {text("C2"), text("ALPINA"), 400.0, -1.005}}};
    driver().answers[views()[1].byTRF] = {{"COD_PROD", "DENOMINAZIONE", "PP", "RA"},
                                          {{text("P1"), text("ROSSI"), 30.0, 6.9}}};
    driver().answers[views()[2].byTRF] = {{"COD_PROD_ALT", "DENOMINAZIONE", "PP", "RA"},
                                          {{text("P2"), text("BIANCHI"), 12.0, 2.76}}};
    statements.onStatement = [this](std::string_view sql) {
      if (sql.starts_with("Select U_CALCOLO")) log.add("current");
    };
    panel->PROT(std::int32_t{7});
    asked();
    log.take();
  }

  /// What POLIZZE.U_CALCOLO holds for the policy 7.
  void current(Variant value) { answer(kCurrent, "U_CALCOLO", std::move(value)); }
  void press(const std::string& button) { hands().click(surface().button(button)); }
};
QVN_ON_EVERY_PLATFORM(PolicyViewers);

TEST_P(PolicyViewers, TheCompaniesOfThePolicyWithPremiumAndCommission) {
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
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(PolicyViewers, TheProducersOfThePolicyWithCommissionAndWithholding) {
  press("CmdPRODUTTORI");
  const FormPicture seen = picture();
  EXPECT_EQ(seen.form, "FrmVIS_PRODUTTORI");
  EXPECT_EQ(seen.caption, "Visualizza Produttori");
  EXPECT_EQ(columnsOf(seen), (Columns{{"Codice", "COD_PROD", ""},
                                      {"Denominazione", "DENOMINAZIONE", ""},
                                      {"PP", "PP", "Currency"},
                                      {"RA", "RA", "Currency"}}));
  EXPECT_EQ(seen.cells, (Strings{"P1", "ROSSI", "€ 30,00", "€ 6,90"}));
}

TEST_P(PolicyViewers, TheAlternateProducersByTheirCodeAlone) {
  press("CmdPRODUTTORI_ALT");
  const FormPicture seen = picture();
  EXPECT_EQ(seen.form, "FrmVIS_PRODUTTORI");
  EXPECT_EQ(seen.caption, "Visualizza Produttori Alt.");
  EXPECT_EQ(columnsOf(seen), (Columns{{"Codice", "COD_PROD_ALT", ""},
                                      {"Denominazione", "DENOMINAZIONE", ""},
                                      {"PP", "PP", "Currency"},
                                      {"RA", "RA", "Currency"}}));
  EXPECT_EQ(seen.cells, (Strings{"P2", "BIANCHI", "€ 12,00", "€ 2,76"}));
}

TEST_P(PolicyViewers, TheCurrentCalculationIsAskedForFirstOnAStaticCursorWithNoLockNamed) {
  for (const View& view : views()) {
    driver().ran.clear();
    press(view.button);
    ASSERT_EQ(driver().ran.size(), 2U);
    EXPECT_EQ(driver().ran[0], (Ran{kCurrent, 3, -1, -1}));
    EXPECT_EQ(driver().ran[1].sql, view.byTRF);
  }
}

TEST_P(PolicyViewers, AnyOtherCalculationThanTRFIsTakenForTAF) {
  for (const Variant& other : {text("TAF"), text("trf"), text("Trf"), text("TRF "), text(" TRF"), text(""),
                               Variant(Null{}), Variant(Empty{}), Variant(std::int32_t{0})}) {
    SCOPED_TRACE(kindName(other));
    current(other);
    for (const View& view : views()) {
      press(view.button);
      EXPECT_EQ(asked(), (Strings{kCurrent, view.byTAF}));
      EXPECT_EQ(picture().form, view.form);
    }
  }
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(PolicyViewers, TheFirstRowTellsTheCalculation) {
  driver().answers[kCurrent] = {{"U_CALCOLO"}, {{text("TAF")}, {text("TRF")}}};
  press("CmdPRODUTTORI");
  EXPECT_EQ(asked(), (Strings{kCurrent, views()[1].byTAF}));
}

TEST_P(PolicyViewers, EachIsAskedLoadedFilledShownAndUnloaded) {
  for (const View& view : views()) {
    press(view.button);
    EXPECT_THAT(log.take(), ElementsAre("current", "load " + view.form, "viewer " + view.form, "modal " + view.form,
                                        "unload " + view.form));
    EXPECT_THAT(loadedForms(), IsEmpty());
  }
}

TEST_P(PolicyViewers, EachStandsOnAConnectionOfItsOwn) {
  for (const View& view : views()) {
    driver().openings.clear();
    press(view.button);
    ASSERT_EQ(driver().openings.size(), 1U);
    EXPECT_EQ(driver().openings[0].rest, "ufficio");
    EXPECT_EQ(driver().openings[0].viewer, view.form);
  }
}

TEST_P(PolicyViewers, TheAlternatesCaptionAndFieldAreThereBeforeTheRows) {
  std::string captionThen;
  Strings fieldsThen;
  log.onEntry = [&](const std::string& entry) {
    if (entry != "viewer FrmVIS_PRODUTTORI") return;
    const toolkit::Form& form = platform().forms().at(0);
    captionThen = form.Caption();
    for (std::int32_t i = 0; i < 4; ++i) fieldsThen.push_back(form.surface().grid("TDBGrid1").column(i).dataField);
  };
  press("CmdPRODUTTORI_ALT");
  EXPECT_EQ(captionThen, "Visualizza Produttori Alt.");
  EXPECT_EQ(fieldsThen, (Strings{"COD_PROD_ALT", "DENOMINAZIONE", "PP", "RA"}));
}

TEST_P(PolicyViewers, EachOpeningStartsFromTheStoredLayout) {
  for (int i = 0; i < 3; ++i) {
    press("CmdPRODUTTORI_ALT");
    EXPECT_EQ(picture().caption, "Visualizza Produttori Alt.");
  }
  press("CmdPRODUTTORI");
  const FormPicture plain = picture();
  EXPECT_EQ(plain.caption, "Visualizza Produttori");
  EXPECT_EQ(plain.cells, (Strings{"P1", "ROSSI", "€ 30,00", "€ 6,90"}));
}

TEST_P(PolicyViewers, AFailingAskForTheCalculationLoadsNoForm) {
  for (const View& view : views()) {
    SCOPED_TRACE(view.button);
    statements.failAt(1);
    press(view.button);
    const ReportedFailure failure = onlyReported();
    EXPECT_EQ(failure.kind, FailureKind::Database);
    EXPECT_EQ(failure.panel, "polizza");
    EXPECT_EQ(failure.widget, view.button);
    EXPECT_EQ(failure.event, "Click");
    EXPECT_NE(failure.message.find(kCurrent), std::string::npos);
    EXPECT_THAT(log.take(), ElementsAre("current"));
    EXPECT_THAT(loadedForms(), IsEmpty());
    EXPECT_THAT(hands().shown(), IsEmpty());
  }
}

TEST_P(PolicyViewers, APolicyThatIsNotThereLoadsNoForm) {
  driver().answers.erase(kCurrent);
  for (const View& view : views()) {
    press(view.button);
    EXPECT_EQ(onlyReported().kind, FailureKind::Database);
    EXPECT_EQ(asked(), Strings{kCurrent});
    EXPECT_THAT(log.take(), ElementsAre("current"));
    EXPECT_THAT(loadedForms(), IsEmpty());
  }
}

TEST_P(PolicyViewers, AnEmptyNumberLeavesAGapInTheFirstStatement) {
  panel = another();
  press("CmdCOMPAGNIE");
  EXPECT_EQ(onlyReported().kind, FailureKind::Database);
  EXPECT_EQ(asked(), Strings{"Select U_CALCOLO FROM POLIZZE WHERE PROT = "});
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(PolicyViewers, AFailingStatementLeavesTheFormLoadedAndNotShown) {
  for (const View& view : views()) {
    SCOPED_TRACE(view.button);
    statements.failAt(2);
    press(view.button);
    const ReportedFailure failure = onlyReported();
    EXPECT_EQ(failure.kind, FailureKind::Database);
    EXPECT_EQ(failure.widget, view.button);
    EXPECT_NE(failure.message.find(view.byTRF), std::string::npos);
    EXPECT_THAT(loadedForms(), ElementsAre(view.form));
    EXPECT_THAT(hands().shown(), IsEmpty());
    statements.failAt(0);
    press(view.button);  // and the next opening comes over it
    EXPECT_EQ(picture().form, view.form);
    EXPECT_THAT(loadedForms(), IsEmpty());
  }
}

TEST_P(PolicyViewers, AnAlternateThatFailedStandsMarkedAndDoesNotMarkTheNextOpening) {
  statements.failAt(2);
  press("CmdPRODUTTORI_ALT");
  EXPECT_EQ(platform().forms().at(0).Caption(), "Visualizza Produttori Alt.");
  EXPECT_EQ(platform().forms().at(0).surface().grid("TDBGrid1").column(0).dataField, "COD_PROD_ALT");
  statements.failAt(0);
  press("CmdPRODUTTORI_ALT");
  EXPECT_EQ(picture().caption, "Visualizza Produttori Alt.");
  statements.failAt(2);
  press("CmdPRODUTTORI_ALT");
  statements.failAt(0);
  press("CmdPRODUTTORI");
  const FormPicture plain = picture();
  EXPECT_EQ(plain.caption, "Visualizza Produttori");
  EXPECT_EQ(plain.columns[0].field, "COD_PROD");
}

TEST_P(PolicyViewers, TheNumberGoesInAsItStands) {
  label("LblPROT").Change = {};
  label("LblPROT").Caption("1 OR 'x'");
  answer("Select U_CALCOLO FROM POLIZZE WHERE PROT = 1 OR 'x'", "U_CALCOLO", text("TAF"));
  press("CmdPRODUTTORI");
  EXPECT_EQ(asked().back(),
            "SELECT QUOTE_POLIZZE.COD_PROD, PRODUTTORI.DENOMINAZIONE, [pn_prod_Taf]+[acc_prod_Taf]+[aq_prod_Taf] AS "
            "PP, ([pn_prod_Taf]+[acc_prod_Taf]+[aq_prod_Taf])/100*[R_ACC] AS RA FROM PRODUTTORI INNER JOIN "
            "QUOTE_POLIZZE ON PRODUTTORI.COD_PROD = QUOTE_POLIZZE.COD_PROD WHERE (((QUOTE_POLIZZE.PROT) = 1 OR 'x')) "
            "ORDER BY QUOTE_POLIZZE.COD_PROD");
}

TEST_P(PolicyViewers, TheNumberIsReadOnceTheDatabaseIsThere) {
  const auto subscription = whenAskedForTheDatabase([&] {
    label("LblPROT").Change = {};
    label("LblPROT").Caption("7");
  });
  label("LblPROT").Change = {};
  label("LblPROT").Caption("8");
  press("CmdPRODUTTORI");
  EXPECT_EQ(asked(), (Strings{kCurrent, views()[1].byTRF}));
}

TEST_P(PolicyViewers, TheNumberIsReadAnewForTheRows) {
  label("LblPROT").Change = {};
  label("LblPROT").Caption("8");
  answer("Select U_CALCOLO FROM POLIZZE WHERE PROT = 8", "U_CALCOLO", text("TRF"));
  log.onEntry = [&](const std::string& entry) {
    if (entry == "current") label("LblPROT").Caption("7");
  };
  press("CmdCOMPAGNIE");
  EXPECT_EQ(asked(), (Strings{"Select U_CALCOLO FROM POLIZZE WHERE PROT = 8", views()[0].byTRF}));
}

TEST_P(PolicyViewers, TheStatementStandsBeforeTheFormLoads) {
  label("LblPROT").Change = {};
  log.onEntry = [&](const std::string& entry) {
    if (entry.starts_with("load")) label("LblPROT").Caption("8");
  };
  for (const View& view : views()) {
    label("LblPROT").Caption("7");
    press(view.button);
    EXPECT_EQ(asked(), (Strings{kCurrent, view.byTRF}));
  }
}

TEST_P(PolicyViewers, AskForAMissingDatabaseBeforeAnythingElse) {
  for (const View& view : views()) {
    SCOPED_TRACE(view.button);
    log.take();
    const auto subscription = whenAskedForTheDatabase([&] { log.add("asked"); });
    driver().openings.clear();
    press(view.button);
    EXPECT_EQ(log.take().front(), "asked");
    ASSERT_EQ(driver().openings.size(), 2U);  // the library's, and the viewer's
    EXPECT_EQ(driver().openings[1].rest, "altra");
    EXPECT_EQ(picture().form, view.form);
  }
}

TEST_P(PolicyViewers, WithoutADatabaseLoadNoForm) {
  Globale::unload();
  for (const View& view : views()) {
    press(view.button);
    EXPECT_EQ(onlyReported().kind, FailureKind::Database);
    EXPECT_THAT(loadedForms(), IsEmpty());
  }
}

TEST_P(PolicyViewers, APolicyWithoutSharesShowsAnEmptyGrid) {
  driver().answers.erase(views()[0].byTRF);
  press("CmdCOMPAGNIE");
  EXPECT_EQ(picture().rowCount(), 0U);
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(PolicyViewers, CloseByEscapeAndTheFocusComesBackToTheButton) {
  hands().layDown("FrmVIS_PRODUTTORI", {Act::key("{Escape}")});
  press("CmdPRODUTTORI");
  EXPECT_EQ(hands().shown().size(), 1U);
  EXPECT_THAT(loadedForms(), IsEmpty());
  ASSERT_NE(platform().focused(), nullptr);
  EXPECT_EQ(platform().focused()->Name(), "CmdPRODUTTORI");
}

TEST_P(PolicyViewers, LeaveTheCaptionsOfThePanelAlone) {
  const Strings before = leads();
  for (const View& view : views()) press(view.button);
  EXPECT_EQ(leads(), before);
  EXPECT_EQ(caption("LblPROT"), "7");
}

}  // namespace
}  // namespace qvn::test
