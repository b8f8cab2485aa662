// The two viewers, opened step by step as their callers do.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "qvn/lookups/viewer.h"
#include "qvn/shared/Globale.h"
#include "tests/failure_matchers.h"
#include "tests/lookups/list_bench.h"
#include "tests/viewer_columns.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Columns kCompanyColumns{{"Codice", "COD_COMP", ""},
                              {"Denominazione", "DESC_COMPAGNIA", ""},
                              {"PL", "PL", "Currency"},
                              {"PA", "PA", "Currency"}};
const Columns kProducerColumns{{"Codice", "COD_PROD", ""},
                               {"Denominazione", "DENOMINAZIONE", ""},
                               {"PP", "PP", "Currency"},
                               {"RA", "RA", "Currency"}};

constexpr std::string_view kTitles = "SELECT titoli";
constexpr std::string_view kAlternates = "SELECT alternativi";

class Viewers : public ListBench {
 public:
  void answerTitles() {
    answer(kTitles, {"COD_COMP", "DESC_COMPAGNIA", "PL", "PA"},
           {{text("AB"), text("Alfa"), 1234.5, std::int32_t{-10}},
            {text("CD"), Null{}, std::int32_t{0}, Currency::fromTenThousandths(12345)}});
  }
  static void open(const std::shared_ptr<lookups::Viewer>& viewer, std::string_view sql) {
    viewer->load();
    viewer->connect();
    viewer->fill(sql);
    viewer->show();
  }
  static void openAlternates() {
    const auto viewer = lookups::producersViewer();
    viewer->load();
    viewer->extendCaption(" Alt.");
    viewer->connect();
    viewer->fill(kAlternates);
    viewer->dataField(0, "COD_PROD_ALT");
    viewer->dataField(2, "PP_ALT");
    viewer->dataField(3, "RA_ALT");
    viewer->show();
  }
  FormPicture onlyPicture() {
    auto pictures = hands().shown();
    EXPECT_EQ(pictures.size(), 1U);
    return pictures.empty() ? FormPicture{} : pictures[0];
  }
};
QVN_ON_EVERY_PLATFORM(Viewers);

TEST_P(Viewers, ShowTheirColumnsWithAmountsInTheCurrencyForm) {
  answerTitles();
  hands().layDown("FrmVIS_COMPAGNIE", {Act::click("CmdCHIUDI")});
  open(lookups::companiesViewer(), kTitles);
  const FormPicture companies = onlyPicture();
  EXPECT_EQ(companies.caption, "Visualizza Compagnie");
  EXPECT_EQ(columnsOf(companies), kCompanyColumns);
  EXPECT_EQ(rowsOf(companies), (std::vector<std::vector<std::string>>{{"AB", "Alfa", "€ 1.234,50", "-€ 10,00"},
                                                                      {"CD", "", "€ 0,00", "€ 1,23"}}));
  EXPECT_THAT(hands().failedActs(), IsEmpty());

  answer("SELECT produttori", {"COD_PROD", "DENOMINAZIONE", "PP", "RA"}, {{text("P1"), text("Rossi"), 1.0, 0.5}});
  open(lookups::producersViewer(), "SELECT produttori");
  const FormPicture producers = onlyPicture();
  EXPECT_EQ(producers.caption, "Visualizza Produttori");
  EXPECT_EQ(columnsOf(producers), kProducerColumns);
  EXPECT_EQ(rowsOf(producers), (std::vector<std::vector<std::string>>{{"P1", "Rossi", "€ 1,00", "€ 0,50"}}));
}

TEST_P(Viewers, RunTheirStatementOnAConnectionOfTheirOwn) {
  answerTitles();
  driver().openings.clear();
  open(lookups::companiesViewer(), kTitles);
  ASSERT_EQ(driver().openings.size(), 1U);
  EXPECT_EQ(driver().openings[0].connectionString, "logged:ufficio");
  EXPECT_THAT(log().take(), ElementsAre("load FrmVIS_COMPAGNIE", "viewer FrmVIS_COMPAGNIE: SELECT titoli",
                                        "modal FrmVIS_COMPAGNIE", "unload FrmVIS_COMPAGNIE"));
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(Viewers, CloseByTheirButtonByEscapeAndByTheFrame) {
  for (const Act& act : {Act::click("CmdCHIUDI"), Act::key("{Escape}"), Act::close()}) {
    hands().layDown("FrmVIS_PRODUTTORI", {act, Act::look()});  // too late for a second look
    open(lookups::producersViewer(), kTitles);
    EXPECT_THAT(loadedForms(), IsEmpty());
  }
  EXPECT_THAT(hands().failedActs(), IsEmpty());
  EXPECT_EQ(hands().shown().size(), 3U);
}

TEST_P(Viewers, ShowAnEmptyGridWhereNoRowIsFound) {
  open(lookups::companiesViewer(), "SELECT niente");
  const FormPicture picture = onlyPicture();
  EXPECT_EQ(picture.rowCount(), 0U);
  EXPECT_EQ(columnsOf(picture), kCompanyColumns);
}

TEST_P(Viewers, StartEachOpeningFromTheirStoredLayout) {
  answer(kAlternates, {"COD_PROD_ALT", "DENOMINAZIONE", "PP_ALT", "RA_ALT"},
         {{text("P9"), text("Neri"), std::int32_t{3}, std::int32_t{1}}});
  for (int i = 0; i < 2; ++i) {
    openAlternates();
    const FormPicture alternates = onlyPicture();
    EXPECT_EQ(alternates.caption, "Visualizza Produttori Alt.");
    EXPECT_EQ(columnsOf(alternates), (Columns{{"Codice", "COD_PROD_ALT", ""},
                                              {"Denominazione", "DENOMINAZIONE", ""},
                                              {"PP", "PP_ALT", "Currency"},
                                              {"RA", "RA_ALT", "Currency"}}));
    EXPECT_EQ(rowsOf(alternates), (std::vector<std::vector<std::string>>{{"P9", "Neri", "€ 3,00", "€ 1,00"}}));
  }
  open(lookups::producersViewer(), kAlternates);
  const FormPicture plain = onlyPicture();
  EXPECT_EQ(plain.caption, "Visualizza Produttori");
  EXPECT_EQ(columnsOf(plain), kProducerColumns);
}

TEST_P(Viewers, TakeOtherHeadings) {
  answerTitles();
  const auto viewer = lookups::companiesViewer();
  viewer->load();
  viewer->heading(2, "Stimato");
  viewer->heading(3, "Liquidato");
  viewer->connect();
  viewer->fill(kTitles);
  viewer->show();
  const FormPicture picture = onlyPicture();
  EXPECT_EQ(columnsOf(picture), (Columns{{"Codice", "COD_COMP", ""},
                                         {"Denominazione", "DESC_COMPAGNIA", ""},
                                         {"Stimato", "PL", "Currency"},
                                         {"Liquidato", "PA", "Currency"}}));
  EXPECT_EQ(rowsOf(picture)[0][2], "€ 1.234,50");
}

TEST_P(Viewers, StayLoadedAndAreNotShownWhereTheStatementFails) {
  driver().failingStatement = 1;
  EXPECT_FAILURE(openAlternates(), FailureKind::Database, "SELECT alternativi");
  EXPECT_THAT(loadedForms(), ElementsAre("FrmVIS_PRODUTTORI"));
  EXPECT_THAT(hands().shown(), IsEmpty());

  // The next opening starts from the stored layout all the same.
  driver().failingStatement = 0;
  openAlternates();
  EXPECT_EQ(onlyPicture().caption, "Visualizza Produttori Alt.");
  driver().ran.clear();
  driver().failingStatement = 1;
  EXPECT_FAILURE(openAlternates(), FailureKind::Database, "SELECT alternativi");
  log().entries.clear();
  open(lookups::producersViewer(), kTitles);
  EXPECT_THAT(log().take(), ElementsAre("viewer FrmVIS_PRODUTTORI: SELECT titoli", "modal FrmVIS_PRODUTTORI",
                                        "unload FrmVIS_PRODUTTORI"));
  const FormPicture picture = onlyPicture();
  EXPECT_EQ(picture.caption, "Visualizza Produttori");
  EXPECT_EQ(columnsOf(picture), kProducerColumns);
}

TEST_P(Viewers, StayLoadedWhereTheConnectionStringCannotBeOpened) {
  Globale::unload();
  const auto viewer = lookups::companiesViewer();
  viewer->load();
  viewer->connect();  // never opened: no string
  EXPECT_FAILURE(viewer->fill(kTitles), FailureKind::Database, "");
  EXPECT_THAT(loadedForms(), ElementsAre("FrmVIS_COMPAGNIE"));
  Globale::unload();
  EXPECT_FAILURE(Globale::Eventi()->ImpostaDB("fake:refused"), FailureKind::Database, "refused");
  EXPECT_FAILURE(open(lookups::companiesViewer(), kTitles), FailureKind::Database, "refused");
}

TEST_P(Viewers, RefuseASecondOpeningWhileTheyAreShown) {
  answerTitles();
  log().at("modal FrmVIS_COMPAGNIE", [&] {
    EXPECT_FAILURE(open(lookups::companiesViewer(), "SELECT altro"), FailureKind::InvalidCall, "FrmVIS_COMPAGNIE");
    open(lookups::producersViewer(), "SELECT altro");  // the other one may stand over it
  });
  hands().layDown("FrmVIS_COMPAGNIE", {Act::look(), Act::close()});
  open(lookups::companiesViewer(), kTitles);
  const auto shown = hands().shown();
  ASSERT_FALSE(shown.empty());
  EXPECT_EQ(shown.back().form, "FrmVIS_COMPAGNIE");
  EXPECT_EQ(shown.back().rowCount(), 2U);
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(Viewers, StandAsTheyAreWhereASecondOpeningIsRefused) {
  answer(kAlternates, {"COD_PROD_ALT", "DENOMINAZIONE", "PP_ALT", "RA_ALT"},
         {{text("P2"), text("Bianchi"), 12.0, 2.76}});
  log().at("modal FrmVIS_PRODUTTORI",
           [] { EXPECT_FAILURE(lookups::producersViewer()->load(), FailureKind::InvalidCall, "FrmVIS_PRODUTTORI"); });
  hands().layDown("FrmVIS_PRODUTTORI", {Act::look(), Act::close()});
  openAlternates();
  const auto shown = hands().shown();
  ASSERT_FALSE(shown.empty());
  EXPECT_EQ(shown.back().caption, "Visualizza Produttori Alt.");
  EXPECT_EQ(shown.back().columns[0].field, "COD_PROD_ALT");
}

TEST_P(Viewers, RefuseWhatComesBeforeTheLoading) {
  const auto viewer = lookups::companiesViewer();
  EXPECT_FAILURE(viewer->extendCaption("x"), FailureKind::InvalidCall, "FrmVIS_COMPAGNIE");
  EXPECT_FAILURE(viewer->heading(0, "x"), FailureKind::InvalidCall, "FrmVIS_COMPAGNIE");
  EXPECT_FAILURE(viewer->connect(), FailureKind::InvalidCall, "FrmVIS_COMPAGNIE");
  EXPECT_FAILURE(viewer->fill("x"), FailureKind::InvalidCall, "FrmVIS_COMPAGNIE");
  viewer->load();
  EXPECT_FAILURE(viewer->heading(4, "x"), FailureKind::SubscriptOutOfRange, "4");
  EXPECT_FAILURE(viewer->dataField(-1, "x"), FailureKind::SubscriptOutOfRange, "-1");
}

TEST_P(Viewers, StandInTheMiddleOfTheScreen) {
  for (const auto& viewer : {lookups::companiesViewer(), lookups::producersViewer()}) {
    viewer->load();
    const toolkit::Place place = viewer->form().place();
    const toolkit::ScreenSize screen = platform().screen();
    EXPECT_EQ(place.left, (screen.width - place.width) / 2);
    EXPECT_EQ(place.top, (screen.height - place.height) / 2);
    const toolkit::Surface& surface = viewer->form().surface();
    EXPECT_EQ(surface.layout().width, 8310);
    EXPECT_EQ(surface.layout().height, 4905);
    EXPECT_EQ(surface.widgets().size(), 3U);
    EXPECT_EQ(surface.grid("TDBGrid1").place(), (toolkit::Place{75, 75, 8115, 4065}));
    EXPECT_EQ(surface.dataControl("Adodc1").place(), (toolkit::Place{75, 4200, 1815, 390}));
    EXPECT_EQ(surface.button("CmdCHIUDI").place(), (toolkit::Place{6150, 4200, 2040, 615}));
    EXPECT_EQ(surface.button("CmdCHIUDI").Caption(), "Chiudi");
  }
}

TEST_P(Viewers, GoWithTheLibrary) {
  lookups::companiesViewer()->load();
  lookups::producersViewer()->load();
  EXPECT_THAT(loadedForms(), ElementsAre("FrmVIS_COMPAGNIE", "FrmVIS_PRODUTTORI"));
  Globale::unload();
  EXPECT_THAT(loadedForms(), IsEmpty());
}

}  // namespace
}  // namespace qvn::test
