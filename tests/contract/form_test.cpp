// Forms as they are loaded and unloaded.
#include "tests/contract/contract_form.h"

namespace qvn::test {
namespace {

QVN_FORM_CONTRACT(LoadedForm);

TEST_P(LoadedForm, IsUnloadedWhenMade) {
  EXPECT_EQ(pick().Name(), "Pick");
  EXPECT_FALSE(pick().loaded());
  EXPECT_THAT(loadedForms(), IsEmpty());
  EXPECT_FAILURE(pick().Caption(), FailureKind::InvalidCall, "Pick");
  EXPECT_FAILURE(pick().Caption("x"), FailureKind::InvalidCall, "Pick");
  EXPECT_FAILURE(pick().place(), FailureKind::InvalidCall, "Pick");
  EXPECT_FAILURE(pick().place({}), FailureKind::InvalidCall, "Pick");
  EXPECT_FAILURE(pick().surface(), FailureKind::InvalidCall, "Pick");
  pick().refresh();
  pick().hide();
  pick().unload();
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(LoadedForm, StandsInTheListWhenLoadRuns) {
  pick().Load = [this] {
    EXPECT_TRUE(pick().loaded());
    EXPECT_THAT(loadedForms(), ElementsAre("Pick"));
    EXPECT_EQ(pick().Caption(), "Listato");
    heard.emplace_back("Load");
  };
  pick().load();
  EXPECT_THAT(heard, ElementsAre("load Pick", "Load"));
}

TEST_P(LoadedForm, LoadingItAgainDoesNothing) {
  pick().Load = hears("Load");
  pick().load();
  pick().Caption("Elenco");
  const toolkit::Surface* surface = &pick().surface();
  pick().load();
  EXPECT_EQ(pick().Caption(), "Elenco");
  EXPECT_EQ(&pick().surface(), surface);
  EXPECT_THAT(heard, ElementsAre("load Pick", "Load"));
}

TEST_P(LoadedForm, UnloadRunsWhileTheWidgetsStand) {
  wirePick();
  pick().Unload = [this] {
    EXPECT_TRUE(pick().loaded());
    EXPECT_THAT(loadedForms(), ElementsAre("Pick"));
    EXPECT_EQ(rows().rowCount(), 1);
    heard.emplace_back("Unload");
  };
  pick().load();
  add({"a", "b"});
  pick().unload();
  EXPECT_FALSE(pick().loaded());
  EXPECT_THAT(loadedForms(), IsEmpty());
  EXPECT_THAT(heard, ElementsAre("load Pick", "Unload", "unload Pick"));
}

TEST_P(LoadedForm, UnloadingInsideUnloadDoesNothing) {
  pick().Unload = [this] {
    heard.emplace_back("Unload");
    pick().unload();
    EXPECT_TRUE(pick().loaded());
    EXPECT_FAILURE(pick().showModal(), FailureKind::InvalidCall, "Pick");
  };
  pick().load();
  pick().unload();
  EXPECT_THAT(heard, ElementsAre("load Pick", "Unload", "unload Pick"));
}

TEST_P(LoadedForm, TheStoredLayoutIsBackAtEachLoad) {
  pick().load();
  const toolkit::Place laidOut = pick().place();
  pick().Caption("Elenco");
  pick().place({800, 800, 100, 100});
  rows().addColumn("X", 100);
  rows().place({1, 2, 3, 4});
  pick().surface().button("Ok").Enabled(false);
  pick().unload();
  pick().load();
  EXPECT_EQ(pick().Caption(), "Listato");
  EXPECT_EQ(pick().place(), laidOut);
  EXPECT_EQ(rows().columnCount(), 0);
  EXPECT_EQ(rows().place(), (toolkit::Place{72, 72, 4548, 3036}));
  EXPECT_TRUE(pick().surface().button("Ok").Enabled());
}

TEST_P(LoadedForm, ItsSizeGoesAroundTheInside) {
  pick().load();
  EXPECT_GE(pick().place().width, 5940);
  EXPECT_GE(pick().place().height, 3180);
  EXPECT_LT(pick().place().width, 5940 + 1440);
  EXPECT_LT(pick().place().height, 3180 + 1440);
  const toolkit::Place moved{801, 799, 6000, 4000};
  pick().place(moved);
  EXPECT_EQ(pick().place(), moved);
  EXPECT_EQ(rows().place(), (toolkit::Place{72, 72, 4548, 3036}));
}

TEST_P(LoadedForm, ItsSurfaceBearsItsNameAndLiesThere) {
  pick().load();
  EXPECT_EQ(pick().surface().name(), "Pick");
  EXPECT_EQ(&pick().surface().layout(), &kPickForm.inside);
  EXPECT_EQ(&pick().surface().platform(), &platform());
  EXPECT_FALSE(pick().surface().Visible());
  EXPECT_FAILURE(rows().SetFocus(), FailureKind::InvalidCall, "Pick.Rows");
}

TEST_P(LoadedForm, TakesACaptionOfAnyText) {
  pick().load();
  pick().Caption("Elenco \xFF è");
  EXPECT_EQ(pick().Caption(), "Elenco \uFFFD è");
}

TEST_P(LoadedForm, StandBehindEachOtherInLoadOrder) {
  const auto second = make(kPickForm);
  ask().load();
  pick().load();
  second->load();
  ask().unload();
  ask().load();
  EXPECT_THAT(loadedForms(), ElementsAre("Pick", "Pick", "Ask"));
  EXPECT_EQ(&platform().forms().at(0), &pick());
  EXPECT_EQ(&platform().forms().at(1), second.get());
  EXPECT_FAILURE(platform().forms().at(3), FailureKind::SubscriptOutOfRange, "3");
  EXPECT_FAILURE(platform().forms().at(-1), FailureKind::SubscriptOutOfRange, "-1");
}

TEST_P(LoadedForm, AFailureOfLoadPassesAndLeavesItLoaded) {
  pick().Load = fails("carico");
  EXPECT_FAILURE(pick().load(), FailureKind::Overflow, "carico");
  EXPECT_TRUE(pick().loaded());
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(LoadedForm, AFailureOfUnloadPassesAndItIsUnloaded) {
  pick().Unload = fails("scarico");
  pick().load();
  EXPECT_FAILURE(pick().unload(), FailureKind::Overflow, "scarico");
  EXPECT_FALSE(pick().loaded());
  EXPECT_THAT(loadedForms(), IsEmpty());
  EXPECT_THAT(heard, ElementsAre("load Pick", "unload Pick"));
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(LoadedForm, ALayoutThatCannotBeMadeLeavesItUnloaded) {
  static constexpr std::array<toolkit::WidgetLayout, 1> kLost{{{.name = "Box", .frame = "Nowhere"}}};
  static constexpr toolkit::FormLayout kLostForm{.caption = "", .inside = {.name = "Lost", .widgets = kLost}};
  const auto lost = make(kLostForm);
  EXPECT_FAILURE(lost->load(), FailureKind::InvalidCall, "Lost.Box");
  EXPECT_FALSE(lost->loaded());
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(LoadedForm, IsUnloadedWhenDestroyed) {
  pick().Unload = hears("Unload");
  pick().load();
  dropPick();
  EXPECT_THAT(loadedForms(), IsEmpty());
  EXPECT_THAT(heard, ElementsAre("load Pick", "Unload", "unload Pick"));
}

TEST_P(LoadedForm, AFailureOfUnloadWhenDestroyedGoesToTheContainer) {
  pick().Unload = fails("scarico");
  pick().load();
  dropPick();
  EXPECT_THAT(reported(), ElementsAre("Pick Rows Unload: scarico"));
}

TEST_P(LoadedForm, MayBeDestroyedInsideLoad) {
  pick().Load = [this] {
    dropPick();
    heard.emplace_back("Load");
  };
  pick().load();
  EXPECT_THAT(heard, ElementsAre("load Pick", "unload Pick", "Load"));
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(LoadedForm, MayBeDestroyedInsideUnload) {
  pick().Unload = [this] {
    dropPick();
    heard.emplace_back("Unload");
  };
  pick().load();
  pick().unload();
  EXPECT_THAT(heard, ElementsAre("load Pick", "unload Pick", "Unload"));
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(LoadedForm, AHandlerThatUnloadsItFinishesOnItsWidgets) {
  wirePick();
  pick().load();
  toolkit::ListView& list = rows();
  toolkit::CommandButton& other = pick().surface().button("Other");
  other.Click = [&] {
    pick().unload();
    EXPECT_EQ(list.columnCount(), 2);
    EXPECT_TRUE(list.owner().dropped());
    pick().load();
    EXPECT_EQ(list.columnCount(), 2);
    EXPECT_NE(&list, &rows());
  };
  hands().layDown("Pick", {Act::click("Other")});
  pick().showModal();
  EXPECT_TRUE(pick().loaded());
}

}  // namespace
}  // namespace qvn::test
