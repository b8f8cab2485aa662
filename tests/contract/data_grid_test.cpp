// A grid that shows what a query gives.
#include <limits>

#include "tests/contract/contract_form.h"
#include "tests/fake_database.h"

namespace qvn::test {
namespace {

constexpr std::array<toolkit::GridColumn, 3> kColumns{
    {{.caption = "Codice", .dataField = "COD_COMP"},
     {.caption = "PL", .dataField = "PL", .numberFormat = "Currency"},
     {.caption = "Quota", .dataField = "QUOTA", .numberFormat = "0.00"}}};
constexpr std::array<toolkit::WidgetLayout, 3> kViewerWidgets{{
    {.name = "Data", .kind = toolkit::WidgetKind::DataControl, .tabIndex = 1, .place = {75, 4200, 1815, 390}},
    {.name = "Grid",
     .kind = toolkit::WidgetKind::DataGrid,
     .tabIndex = 0,
     .place = {75, 75, 8115, 4065},
     .columns = kColumns,
     .dataSource = "Data"},
    {.name = "Close",
     .kind = toolkit::WidgetKind::CommandButton,
     .tabIndex = 2,
     .place = {6150, 4200, 2040, 615},
     .caption = "Chiudi",
     .cancelButton = true},
}};
constexpr toolkit::FormLayout kViewer{
    .caption = "Visualizza", .inside = {.name = "Viewer", .width = 8310, .height = 4905, .widgets = kViewerWidgets}};

class Grid : public ContractForm {
 public:
  void prepare() override {
    platform().drivers().add(driver_);
    viewer_ = make(kViewer);
    viewer_->load();
    heard.clear();
  }

  toolkit::Form& viewer() { return *viewer_; }
  toolkit::DataControl& data() { return viewer().surface().dataControl("Data"); }
  toolkit::DataGrid& grid() { return viewer().surface().grid("Grid"); }
  FakeDriver& driver() { return driver_; }

  void refresh(FakeAnswer answer) {
    driver_.answers["select"] = std::move(answer);
    data().ConnectionString("fake:office");
    data().RecordSource("select");
    data().Refresh();
  }
  std::vector<std::string> row(std::int32_t index) {
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(grid().columnCount()));
    for (std::int32_t column = 0; column < grid().columnCount(); ++column) {
      texts.push_back(grid().text(index, column));
    }
    return texts;
  }

 private:
  FakeDriver driver_;
  std::unique_ptr<toolkit::Form> viewer_;
};
QVN_ON_EVERY_PLATFORM_AS(Contract, Grid);

const FakeAnswer kTwo{.columns = {"QUOTA", "cod_comp", "PL"},
                      .rows = {{600, std::string("GEN"), Currency::fromTenThousandths(12345600)},
                               {400.5, std::string("ALL"), std::string("-1,5")}}};

TEST_P(Grid, HasItsColumnsAsLaidOut) {
  ASSERT_EQ(grid().columnCount(), 3);
  EXPECT_EQ(grid().column(0).caption, "Codice");
  EXPECT_EQ(grid().column(1).dataField, "PL");
  EXPECT_EQ(grid().column(1).numberFormat, "Currency");
  EXPECT_EQ(&grid().DataSource(), &data());
  EXPECT_FAILURE(grid().column(3), FailureKind::SubscriptOutOfRange, "Viewer.Grid");
  EXPECT_FAILURE(grid().column(-1), FailureKind::SubscriptOutOfRange, "-1");
  EXPECT_EQ(grid().BackColor(), toolkit::kWhite);
}

TEST_P(Grid, IsEmptyUntilRefresh) {
  data().ConnectionString("fake:office");
  data().RecordSource("select");
  EXPECT_EQ(grid().rowCount(), 0);
  EXPECT_FAILURE(grid().text(0, 0), FailureKind::SubscriptOutOfRange, "Viewer.Grid");
  EXPECT_THAT(driver().openings, IsEmpty());
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(Grid, ShowsTheAnswerUnderItsFormats) {
  refresh(kTwo);
  ASSERT_EQ(grid().rowCount(), 2);
  EXPECT_THAT(row(0), ElementsAre("GEN", "€ 1.234,56", "600,00"));
  EXPECT_THAT(row(1), ElementsAre("ALL", "-€ 1,50", "400,50"));
  EXPECT_FAILURE(grid().text(2, 0), FailureKind::SubscriptOutOfRange, "2");
  EXPECT_FAILURE(grid().text(-1, 0), FailureKind::SubscriptOutOfRange, "-1");
  EXPECT_FAILURE(grid().text(0, 3), FailureKind::SubscriptOutOfRange, "3");
}

TEST_P(Grid, WritesNumbersInThePlatformsLocale) {
  under().setLocale({.decimalSign = '.', .groupingSign = '\'', .symbol = "CHF"});
  refresh(kTwo);
  EXPECT_EQ(grid().text(0, 1), "CHF 1'234.56");
}

TEST_P(Grid, ShowsNothingForWhatCannotBeShown) {
  refresh({.columns = {"COD_COMP", "PL"}, .rows = {{Null{}, Null{}}, {12.5, std::numeric_limits<double>::infinity()}}});
  EXPECT_THAT(row(0), ElementsAre("", "", ""));
  EXPECT_THAT(row(1), ElementsAre("12,5", "", ""));
}

TEST_P(Grid, ReadsANumberThatIsKeptAsTextInTheDatabasesOwnForm) {
  refresh({.columns = {"COD_COMP", "PL", "QUOTA"},
           .rows = {{std::string("1.234"), std::string("1.234"), std::string("1234.5")},
                    {std::string("007"), std::string("1.234,50"), std::string("-.5")},
                    {std::string("1e3"), std::string("1e3"), std::string("n.d.")},
                    {std::string(""), std::string(40, '9'), std::string("")}}});
  EXPECT_THAT(row(0), ElementsAre("1.234", "€ 1,23", "1234,50"));
  EXPECT_THAT(row(1), ElementsAre("007", "€ 1.234,50", "-0,50"));
  EXPECT_THAT(row(2), ElementsAre("1e3", "€ 1.000,00", "n.d."));
  EXPECT_THAT(row(3), ElementsAre("", "", ""));
  grid().column(1, {.caption = "PL", .dataField = "PL", .numberFormat = "yyyy"});
  EXPECT_EQ(grid().text(0, 1), "1903");  // the day of that number
}

TEST_P(Grid, ShowsTheFirstOfTwoColumnsOfOneName) {
  refresh({.columns = {"PL", "COD_COMP", "pl"}, .rows = {{1, std::string("GEN"), 2}, {3, std::string("ALL"), 4}}});
  EXPECT_THAT(row(0), ElementsAre("GEN", "€ 1,00", ""));
  EXPECT_THAT(row(1), ElementsAre("ALL", "€ 3,00", ""));
}

TEST_P(Grid, AColumnWrittenHoldsForTheRowsThatAreThere) {
  refresh(kTwo);
  grid().column(0, {.caption = "Quota", .dataField = "quota", .numberFormat = ""});
  grid().column(1, {.caption = "Stimato", .dataField = "PL", .numberFormat = "0.00"});
  EXPECT_EQ(grid().column(1).caption, "Stimato");
  EXPECT_THAT(row(0), ElementsAre("600", "1234,56", "600,00"));
  EXPECT_FAILURE(grid().column(3, {}), FailureKind::SubscriptOutOfRange, "3");
  EXPECT_FAILURE(grid().column(-1, {}), FailureKind::SubscriptOutOfRange, "-1");
}

TEST_P(Grid, RefusesAFormatThatNamesNoPattern) {
  EXPECT_FAILURE(grid().column(0, {.caption = "", .dataField = "", .numberFormat = "Soldi"}), FailureKind::InvalidCall,
                 "Viewer.Grid");
  EXPECT_EQ(grid().column(0).caption, "Codice");
  static constexpr std::array<toolkit::GridColumn, 1> kWrong{{{.caption = "", .dataField = "", .numberFormat = "#"}}};
  static constexpr std::array<toolkit::WidgetLayout, 2> kRows{
      {{.name = "Data", .kind = toolkit::WidgetKind::DataControl},
       {.name = "Grid", .kind = toolkit::WidgetKind::DataGrid, .columns = kWrong, .dataSource = "Data"}}};
  static constexpr toolkit::PanelLayout kLayout{.name = "Wrong", .widgets = kRows};
  EXPECT_FAILURE(platform().makeSurface(kLayout, container(), "p"), FailureKind::InvalidCall, "p.Grid");
}

TEST_P(Grid, NeedsItsDataControlAboveIt) {
  static constexpr std::array<toolkit::WidgetLayout, 2> kRows{
      {{.name = "Grid", .kind = toolkit::WidgetKind::DataGrid, .dataSource = "Data"},
       {.name = "Data", .kind = toolkit::WidgetKind::DataControl}}};
  static constexpr toolkit::PanelLayout kLayout{.name = "Wrong", .widgets = kRows};
  EXPECT_FAILURE(platform().makeSurface(kLayout, container(), "p"), FailureKind::InvalidCall, "p.Grid");
}

TEST_P(Grid, OpensAConnectionOfItsOwnInTheNameOfItsForm) {
  refresh(kTwo);
  ASSERT_EQ(driver().openings.size(), 1U);
  EXPECT_EQ(driver().openings[0].connectionString, "fake:office");
  EXPECT_EQ(driver().openings[0].cursorLocation, toolkit::adUseClient);
  EXPECT_EQ(driver().openings[0].viewer, "Viewer");
  EXPECT_THAT(driver().ran,
              ElementsAre(Ran{"select", toolkit::adOpenStatic, toolkit::adLockReadOnly, toolkit::adOptionUnspecified}));
  EXPECT_THAT(heard, ElementsAre("viewer Viewer: select"));
}

TEST_P(Grid, ShowsTheNextAnswerAtTheNextRefresh) {
  refresh(kTwo);
  driver().answers["select"].rows.clear();
  EXPECT_EQ(grid().rowCount(), 2);
  data().Refresh();
  EXPECT_EQ(grid().rowCount(), 0);
  EXPECT_EQ(driver().openings.size(), 2U);
  data().RecordSource("other");
  EXPECT_EQ(driver().ran.size(), 2U);
}

TEST_P(Grid, IsEmptyWhereRefreshFails) {
  refresh(kTwo);
  driver().failingStatement = 2;
  EXPECT_FAILURE(data().Refresh(), FailureKind::Database, "Viewer.Data");
  EXPECT_EQ(grid().rowCount(), 0);
  data().Refresh();
  EXPECT_EQ(grid().rowCount(), 2);
  data().ConnectionString("fake:refused");
  EXPECT_FAILURE(data().Refresh(), FailureKind::Database, "refused");
  EXPECT_EQ(grid().rowCount(), 0);
  data().ConnectionString("nobody:knows");
  EXPECT_FAILURE(data().Refresh(), FailureKind::Database, "nobody:knows");
  data().ConnectionString("");
  EXPECT_FAILURE(data().Refresh(), FailureKind::Database, "Viewer.Data");
}

TEST_P(Grid, IsEmptyWhereARowCannotBeRead) {
  refresh(kTwo);
  FakeAnswer broken = kTwo;
  broken.failingRow = 2;
  EXPECT_FAILURE(refresh(broken), FailureKind::Database, "Viewer.Data: the row cannot be read");
  EXPECT_EQ(grid().rowCount(), 0);
  EXPECT_FAILURE(grid().text(0, 0), FailureKind::SubscriptOutOfRange, "Viewer.Grid");
  refresh(kTwo);
  ASSERT_EQ(grid().rowCount(), 2);
  EXPECT_THAT(row(0), ElementsAre("GEN", "€ 1.234,56", "600,00"));
}

TEST_P(Grid, LosesItsRowsWithTheForm) {
  refresh(kTwo);
  grid().column(0, {.caption = "Altro", .dataField = "X", .numberFormat = ""});
  viewer().unload();
  viewer().load();
  EXPECT_EQ(grid().rowCount(), 0);
  EXPECT_EQ(grid().column(0).caption, "Codice");
}

TEST_P(Grid, HasTheFocusFirstAndEscapeClosesTheForm) {
  refresh(kTwo);
  viewer().surface().button("Close").Click = [this] {
    EXPECT_TRUE(grid().hasFocus());
    viewer().unload();
  };
  hands().layDown("Viewer",
                  {Act::key("x"), Act::key(" "), Act::key("{Down}"), Act::key("{Enter}"), Act::key("{Escape}")});
  heard.clear();
  viewer().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Viewer", "unload Viewer"));
}

TEST_P(Grid, IsPicturedAsItShows) {
  refresh(kTwo);
  hands().takePictures(true);
  viewer().Caption("Visualizza Alt.");
  viewer().showModal();
  const std::vector<FormPicture> shown = hands().shown();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].form, "Viewer");
  EXPECT_EQ(shown[0].caption, "Visualizza Alt.");
  EXPECT_EQ(shown[0].shows, FormPicture::Shows::Grid);
  ASSERT_EQ(shown[0].columns.size(), 3U);
  EXPECT_EQ(shown[0].columns[1].caption, "PL");
  EXPECT_EQ(shown[0].columns[1].field, "PL");
  EXPECT_EQ(shown[0].columns[1].format, "Currency");
  EXPECT_THAT(shown[0].cells, ElementsAre("GEN", "€ 1.234,56", "600,00", "ALL", "-€ 1,50", "400,50"));
}

TEST_P(Grid, ADataControlTakesNoFocus) {
  viewer().surface().button("Close").Click = [this] {
    EXPECT_FAILURE(data().SetFocus(), FailureKind::InvalidCall, "Viewer.Data");
    viewer().unload();
  };
  hands().layDown("Viewer", {Act::click("Close")});
  viewer().showModal();
  EXPECT_FALSE(viewer().loaded());
}

}  // namespace
}  // namespace qvn::test
