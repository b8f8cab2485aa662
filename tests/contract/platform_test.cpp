// What a platform offers beside widgets, and what it says it lacks.
#include "qvn/toolkit/data_grid.h"
#include "qvn/toolkit/list_view.h"
#include "tests/contract/contract_panel.h"

namespace qvn::test {
namespace {

QVN_CONTRACT(Platform);

TEST_P(Platform, BearsItsName) { EXPECT_EQ(platform().name(), GetParam().name); }

TEST_P(Platform, BeepsAreCountedAndHeard) {
  EXPECT_EQ(under().beeps(), 0);
  platform().beep();
  platform().beep();
  EXPECT_EQ(under().beeps(), 2);
  EXPECT_THAT(heard, ElementsAre("beep", "beep"));
}

TEST_P(Platform, TheClockTellsTheDateThatItWasGiven) {
  under().today(Date::of(15, 11, 2026).value());
  EXPECT_EQ(platform().clock().today(), Date::of(15, 11, 2026));
  under().today(Date::of(29, 2, 2028).value());
  EXPECT_EQ(platform().clock().today(), Date::of(29, 2, 2028));
}

TEST_P(Platform, TheLocaleIsItalianUntilItIsSet) {
  EXPECT_EQ(platform().locale(), Locale{});
  const Locale swiss{.decimalSign = '.', .groupingSign = '\'', .symbol = "CHF"};
  under().setLocale(swiss);
  EXPECT_EQ(platform().locale(), swiss);
}

TEST_P(Platform, TheScreenHasASize) {
  EXPECT_GT(platform().screen().width, 0);
  EXPECT_GT(platform().screen().height, 0);
}

TEST_P(Platform, HasNoDriversUntilAHostAddsThem) {
  EXPECT_FAILURE(platform().drivers().find("sqlite:x.db"), FailureKind::Database, "known are: none");
}

TEST_P(Platform, NoFormIsLoadedAtFirst) {
  EXPECT_EQ(platform().forms().count(), 0);
  EXPECT_FAILURE(platform().forms().at(0), FailureKind::SubscriptOutOfRange, "0");
  EXPECT_FAILURE(platform().forms().at(-1), FailureKind::SubscriptOutOfRange, "-1");
}

TEST_P(Platform, FormsCanBeMadeWhereItSaysSo) {
  static constexpr toolkit::FormLayout kForm{.caption = "Listato", .inside = {.name = "Lista"}};
  if (!platform().capabilities().modalForms) {
    EXPECT_FAILURE(platform().makeForm(kForm, container()), FailureKind::InvalidCall, "Lista");
    return;
  }
  const auto form = platform().makeForm(kForm, container());
  EXPECT_FALSE(form->loaded());
  EXPECT_EQ(platform().forms().count(), 0);
  form->load();
  EXPECT_TRUE(form->loaded());
  EXPECT_EQ(form->Caption(), "Listato");
  ASSERT_EQ(platform().forms().count(), 1);
  EXPECT_EQ(&platform().forms().at(0), form.get());
  form->unload();
  EXPECT_FALSE(form->loaded());
  EXPECT_EQ(platform().forms().count(), 0);
}

TEST_P(Platform, LabelsOfAGroupAreFoundByTheirIndex) {
  static constexpr std::array<toolkit::WidgetLayout, 3> kGroup{
      {{.name = "TAF(0)", .kind = toolkit::WidgetKind::Label, .caption = "a"},
       {.name = "TAF(1)", .kind = toolkit::WidgetKind::Label, .caption = "b"},
       {.name = "TAF(10)", .kind = toolkit::WidgetKind::Label, .caption = "c"}}};
  static constexpr toolkit::PanelLayout kGroupLayout{.name = "Group", .widgets = kGroup};
  const auto surface = platform().makeSurface(kGroupLayout, container(), "p");
  EXPECT_EQ(surface->label("TAF", 0).Caption(), "a");
  EXPECT_EQ(surface->label("TAF", 1).Caption(), "b");
  EXPECT_EQ(surface->label("TAF", 10).Caption(), "c");
  EXPECT_FAILURE(surface->label("TAF", 2), FailureKind::NoSuchMember, "TAF(2)");
  EXPECT_FAILURE(surface->label("TAF", -1), FailureKind::NoSuchMember, "TAF(-1)");
}

TEST_P(Platform, ListViewsGridsAndDataControlsAreMadeWhereItSaysSo) {
  static constexpr std::array<toolkit::WidgetLayout, 2> kList{
      {{.name = "Before"}, {.name = "Rows", .kind = toolkit::WidgetKind::ListView}}};
  static constexpr std::array<toolkit::WidgetLayout, 2> kGrid{
      {{.name = "Data", .kind = toolkit::WidgetKind::DataControl},
       {.name = "Grid", .kind = toolkit::WidgetKind::DataGrid, .dataSource = "Data"}}};
  static constexpr std::array<toolkit::WidgetLayout, 1> kGridAlone{
      {{.name = "Grid", .kind = toolkit::WidgetKind::DataGrid}}};
  static constexpr toolkit::PanelLayout kListLayout{.name = "List", .widgets = kList};
  static constexpr toolkit::PanelLayout kGridLayout{.name = "Grid", .widgets = kGrid};
  static constexpr toolkit::PanelLayout kGridAloneLayout{.name = "Grid", .widgets = kGridAlone};
  if (!platform().capabilities().modalForms) {
    EXPECT_FAILURE(platform().makeSurface(kListLayout, container(), "p"), FailureKind::InvalidCall, "p.Rows");
    EXPECT_FAILURE(platform().makeSurface(kGridLayout, container(), "p"), FailureKind::InvalidCall, "p.Data");
    EXPECT_FAILURE(platform().makeSurface(kGridAloneLayout, container(), "p"), FailureKind::InvalidCall, "p.Grid");
    return;
  }
  const auto rows = platform().makeSurface(kListLayout, container(), "p");
  EXPECT_EQ(rows->listView("Rows").rowCount(), 0);
  const auto table = platform().makeSurface(kGridLayout, container(), "p");
  EXPECT_EQ(&table->grid("Grid").DataSource(), &table->dataControl("Data"));
}

}  // namespace
}  // namespace qvn::test
