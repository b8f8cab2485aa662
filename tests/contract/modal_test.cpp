// Forms as they stand on the screen, and what an operator does at them.
#include "tests/contract/contract_form.h"

namespace qvn::test {
namespace {

QVN_FORM_CONTRACT(ModalForm);

/// Hears with a form's going who has the focus at that moment.
class WatchedForm : public ContractForm {
  void formHidden(std::string_view form) override { see("hide " + std::string(form)); }
  void formUnloaded(std::string_view form) override { see("unload " + std::string(form)); }
  void see(std::string going) {
    const bool back = platform().focused() == &box();
    going.append(loadedForms().empty() ? ", gone" : ", loaded").append(back ? ", focus back" : ", focus away");
    heard.push_back(std::move(going));
  }
};
QVN_ON_EVERY_PLATFORM_AS(Contract, WatchedForm);

TEST_P(WatchedForm, GoesBeforeTheFocusIsBack) {
  wirePick();
  box().SetFocus();
  for (const auto* button : {"Ok", "Cancel"}) {
    hands().layDown("Pick", {Act::click(button)});
    pick().showModal();
    EXPECT_TRUE(box().hasFocus());
  }
  EXPECT_THAT(heard, ElementsAre("got A", "load Pick", "modal Pick", "ok", "hide Pick, loaded, focus away",
                                 "modal Pick", "cancel", "unload Pick, gone, focus away"));
}

TEST_P(WatchedForm, GoesBeforeAHolderThatWasSwitchedOffLosesTheFocus) {
  wirePick();
  for (const auto* last : {"Ok", "Cancel"}) {
    box().Enabled(true);
    box().SetFocus();
    pick().load();
    pick().surface().button("Other").Click = [this] { box().Enabled(false); };
    hands().layDown("Pick", {Act::click("Other"), Act::click(last)});
    heard.clear();
    pick().showModal();
    const bool hidden = std::string_view(last) == "Ok";
    EXPECT_THAT(heard,
                ElementsAre("modal Pick", hidden ? "ok" : "cancel",
                            hidden ? "hide Pick, loaded, focus away" : "unload Pick, gone, focus away", "lost A"));
  }
}

TEST_P(ModalForm, ReturnsWhenItHides) {
  wirePick();
  pick().Unload = hears("Unload");
  hands().layDown("Pick", {Act::click("Ok")});
  pick().showModal();
  EXPECT_TRUE(pick().loaded());
  EXPECT_FALSE(pick().surface().Visible());
  EXPECT_THAT(heard, ElementsAre("load Pick", "modal Pick", "ok", "hide Pick"));
}

TEST_P(ModalForm, ReturnsWhenItUnloads) {
  wirePick();
  pick().Unload = hears("Unload");
  hands().layDown("Pick", {Act::click("Cancel")});
  pick().showModal();
  EXPECT_FALSE(pick().loaded());
  EXPECT_THAT(heard, ElementsAre("load Pick", "modal Pick", "cancel", "Unload", "unload Pick"));
}

TEST_P(ModalForm, ClosingByTheFrameUnloads) {
  pick().Unload = hears("Unload");
  hands().layDown("Pick", {Act::close(), Act::click("nothing after it")});
  pick().showModal();
  EXPECT_FALSE(pick().loaded());
  EXPECT_THAT(heard, ElementsAre("load Pick", "modal Pick", "Unload", "unload Pick"));
}

TEST_P(ModalForm, IsClosedByItsFrameWhereNothingWasLaidDown) {
  pick().Unload = hears("Unload");
  pick().showModal();
  EXPECT_FALSE(pick().loaded());
  EXPECT_THAT(heard, ElementsAre("load Pick", "modal Pick", "Unload", "unload Pick"));
}

TEST_P(ModalForm, ShowsAsItWasLoaded) {
  pick().load();
  pick().Caption("Elenco");
  pick().Load = hears("Load");
  hands().layDown("Pick", {Act::click("Other")});
  pick().surface().button("Other").Click = [this] {
    EXPECT_EQ(pick().Caption(), "Elenco");
    EXPECT_TRUE(pick().surface().Visible());
    heard.emplace_back("seen");
  };
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("load Pick", "modal Pick", "seen", "unload Pick"));
}

TEST_P(ModalForm, UsesUpWhatWasLaidDownInTurn) {
  wirePick();
  hands().layDown("Pick", {Act::click("Ok")});
  hands().layDown("Pick", {Act::click("Cancel")});
  hands().layDown("pick", {Act::click("no such button")});
  pick().showModal();
  EXPECT_TRUE(pick().loaded());
  pick().showModal();
  EXPECT_FALSE(pick().loaded());
  heard.clear();
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("load Pick", "modal Pick", "unload Pick"));
}

TEST_P(ModalForm, WhatIsLeftWhenItHasGoneIsDropped) {
  wirePick();
  hands().layDown("Pick", {Act::click("Ok"), Act::click("Cancel")});
  pick().showModal();
  EXPECT_THAT(heard, testing::Not(testing::Contains("cancel")));
  heard.clear();
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Pick", "unload Pick"));
}

TEST_P(ModalForm, CannotBeShownTwice) {
  wirePick();
  pick().load();
  pick().surface().button("Other").Click = [this] {
    EXPECT_FAILURE(pick().showModal(), FailureKind::InvalidCall, "Pick");
    heard.emplace_back("refused");
  };
  hands().layDown("Pick", {Act::click("Other"), Act::click("Ok")});
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("load Pick", "modal Pick", "refused", "ok", "hide Pick"));
}

TEST_P(ModalForm, CannotBeShownIfItUnloadsItselfInLoad) {
  pick().Load = [this] { pick().unload(); };
  EXPECT_FAILURE(pick().showModal(), FailureKind::InvalidCall, "Pick");
  EXPECT_FALSE(pick().loaded());
  EXPECT_THAT(heard, ElementsAre("load Pick", "unload Pick"));
}

TEST_P(ModalForm, AFailureOfLoadPassesAndNothingIsShown) {
  pick().Load = fails("carico");
  hands().layDown("Pick", {Act::click("Other")});
  EXPECT_FAILURE(pick().showModal(), FailureKind::Overflow, "carico");
  EXPECT_TRUE(pick().loaded());
  EXPECT_THAT(heard, ElementsAre("load Pick"));
  pick().surface().button("Other").Click = hears("later");
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("load Pick", "modal Pick", "later", "unload Pick"));
}

TEST_P(ModalForm, MayBeShownAgainInTheHandlerThatHidesIt) {
  wirePick();
  pick().load();
  pick().surface().button("Other").Click = [this] {
    pick().hide();
    pick().showModal();
    heard.emplace_back("back");
  };
  hands().layDown("Pick", {Act::click("Other"), Act::click("Other")});
  hands().layDown("Pick", {Act::click("Ok")});
  heard.clear();
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Pick", "hide Pick", "modal Pick", "ok", "hide Pick", "back"));
  EXPECT_TRUE(pick().loaded());
}

TEST_P(ModalForm, TheFirstInTabOrderThatCanTakesTheFocus) {
  ask().load();
  field().GotFocus = hears("field got");
  ask().surface().textBox("Later").GotFocus = hears("later got");
  hands().layDown("Ask", {Act::key("x")});
  ask().surface().textBox("Field").Change = [this] {
    EXPECT_TRUE(field().hasFocus());
    EXPECT_EQ(platform().focused(), &field());
    heard.push_back(field().Text());
  };
  heard.clear();
  ask().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Ask", "field got", "x", "unload Ask"));
}

TEST_P(ModalForm, ThePanelsFocusIsPutAsideAndGivenBackWithoutEvents) {
  wirePick();
  box().SetFocus();
  box().GotFocus = hears("GotFocus");
  box().LostFocus = hears("LostFocus");
  box().KeyPress = [this](std::int16_t& code) {
    code = 0;
    pick().showModal();
    EXPECT_TRUE(box().hasFocus());
  };
  pick().load();
  pick().surface().button("Other").Click = [this] {
    EXPECT_FALSE(box().hasFocus());
    EXPECT_NE(platform().focused(), &box());
    heard.emplace_back("seen");
  };
  for (const auto* last : {"Ok", "Cancel"}) {
    hands().layDown("Pick", {Act::click("Other"), Act::click(last)});
    heard.clear();
    hands().type("?");
    EXPECT_TRUE(box().hasFocus());
    EXPECT_EQ(box().Text(), "");
    EXPECT_THAT(heard, testing::Contains("seen"));
    for (const auto* event : {"GotFocus", "LostFocus", "lost A", "got A"}) {
      EXPECT_THAT(heard, testing::Not(testing::Contains(event)));
    }
    pick().load();
    pick().surface().button("Other").Click = hears("seen");
  }
  box().KeyPress = nullptr;
  heard.clear();
  hands().focus(box("B"));
  EXPECT_THAT(heard, ElementsAre("lost A", "LostFocus", "got B"));
}

TEST_P(ModalForm, TheFocusIsBackAsSoonAsItHides) {
  box().SetFocus();
  pick().load();
  pick().surface().button("Other").Click = [this] {
    pick().hide();
    EXPECT_TRUE(box().hasFocus());
    box("B").SetFocus();
  };
  hands().layDown("Pick", {Act::click("Other")});
  pick().showModal();
  EXPECT_TRUE(box("B").hasFocus());
}

TEST_P(ModalForm, NobodyHasTheFocusAfterwardsIfNobodyHadItBefore) {
  wirePick();
  hands().layDown("Pick", {Act::click("Ok")});
  pick().showModal();
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(ModalForm, APanelAnswersNeitherKeysNorMouseMeanwhile) {
  check().Click = hears("check");
  pick().load();
  pick().surface().button("Other").Click = [this] {
    EXPECT_FAILURE(box().SetFocus(), FailureKind::InvalidCall, "panel.A");
    EXPECT_FAILURE(hands().focus(box()), FailureKind::InvalidCall, "panel.A");
    EXPECT_FAILURE(hands().choose(list(), 1), FailureKind::InvalidCall, "panel.List");
    hands().click(check());
    box().Text("per programma");
    heard.emplace_back("seen");
  };
  hands().layDown("Pick", {Act::click("Other")});
  heard.clear();
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Pick", "seen", "unload Pick"));
  EXPECT_EQ(box().Text(), "per programma");
}

TEST_P(ModalForm, AHolderThatWasSwitchedOffMeanwhileLosesTheFocus) {
  wirePick();
  box().SetFocus();
  box().LostFocus = [this] {
    heard.emplace_back("LostFocus");
    throw Failure(FailureKind::Overflow, "perso");
  };
  pick().load();
  pick().surface().button("Other").Click = [this] {
    box().Enabled(false);
    heard.emplace_back("off");
  };
  hands().layDown("Pick", {Act::click("Other"), Act::click("Ok")});
  heard.clear();
  pick().showModal();
  EXPECT_EQ(platform().focused(), nullptr);
  EXPECT_THAT(heard, ElementsAre("modal Pick", "off", "ok", "hide Pick", "lost A", "LostFocus"));
  EXPECT_THAT(reported(), ElementsAre("panel A LostFocus: perso"));
}

TEST_P(ModalForm, ItsWidgetsLeaveTheScreenWithoutEvents) {
  for (const bool hides : {true, false}) {
    ask().load();
    field().LostFocus = hears("LostFocus");
    ask().surface().textBox("Later").Change = hears("later");
    ask().surface().textBox("Field").Change = [this, hides] { hides ? ask().hide() : ask().unload(); };
    hands().layDown("Ask", {Act::key("x")});
    heard.clear();
    ask().showModal();
    EXPECT_THAT(heard, ElementsAre("modal Ask", hides ? "hide Ask" : "unload Ask"));
    ask().unload();
  }
}

TEST_P(ModalForm, FocusMovesWithinItRaiseEventsAndAreNotWatched) {
  ask().load();
  field().LostFocus = hears("field lost");
  ask().surface().textBox("Later").GotFocus = hears("later got");
  hands().layDown("Ask", {Act::key("{Tab}")});
  heard.clear();
  ask().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Ask", "field lost", "later got", "unload Ask"));
}

TEST_P(ModalForm, StandsBeforeTheFormThatShowsIt) {
  ask().load();
  field().Text("prima");
  wirePick();
  field().KeyPress = [this](std::int16_t& code) {
    code = 0;
    pick().load();
    pick().surface().button("Other").Click = [this] {
      EXPECT_FALSE(field().hasFocus());
      EXPECT_FAILURE(field().SetFocus(), FailureKind::InvalidCall, "Ask.Field");
    };
    pick().showModal();
    EXPECT_TRUE(field().hasFocus());
  };
  field().LostFocus = hears("LostFocus");
  field().GotFocus = hears("GotFocus");
  box().SetFocus();
  hands().layDown("Ask", {Act::key("?"), Act::click("Tick")});
  hands().layDown("Pick", {Act::click("Other"), Act::click("Ok")});
  ask().surface().checkBox("Tick").Click = hears("tick");
  heard.clear();
  ask().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Ask", "GotFocus", "load Pick", "modal Pick", "ok", "hide Pick", "LostFocus",
                                 "tick", "unload Ask"));
  EXPECT_TRUE(box().hasFocus());
}

TEST_P(ModalForm, TheFormBeneathMayGoFirst) {
  box().SetFocus();
  ask().load();
  field().KeyPress = [this](std::int16_t&) {
    pick().load();
    pick().surface().button("Other").Click = [this] { ask().unload(); };
    pick().surface().button("Cancel").Click = [this] {
      EXPECT_FAILURE(box().SetFocus(), FailureKind::InvalidCall, "panel.A");
      heard.emplace_back("still here");
    };
    pick().showModal();
    EXPECT_TRUE(box().hasFocus());
  };
  hands().layDown("Ask", {Act::key("?"), Act::key("!")});
  hands().layDown("Pick", {Act::click("Other"), Act::click("Cancel")});
  heard.clear();
  ask().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Ask", "load Pick", "modal Pick", "unload Ask", "still here", "unload Pick"));
  EXPECT_TRUE(box().hasFocus());
}

TEST_P(ModalForm, EnterPressesTheDefaultButtonAndEscapeTheCancelButton) {
  wirePick();
  hands().layDown("Pick", {Act::key("{Enter}")});
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("load Pick", "modal Pick", "ok", "hide Pick"));
  heard.clear();
  hands().layDown("Pick", {Act::key("{Escape}")});
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Pick", "cancel", "unload Pick"));
}

TEST_P(ModalForm, TheDefaultButtonIsPressedWithoutTheFocus) {
  ask().load();
  int pressed = 0;
  ask().surface().button("Go").Click = [&] {
    EXPECT_TRUE(field().hasFocus());
    ++pressed;
  };
  field().LostFocus = hears("LostFocus");
  hands().layDown("Ask", {Act::key("{Enter}"), Act::key("{Escape}")});
  heard.clear();
  ask().showModal();
  EXPECT_EQ(pressed, 2);
  EXPECT_THAT(heard, ElementsAre("modal Ask", "unload Ask"));
}

TEST_P(ModalForm, EnterOnAButtonIsForThatButton) {
  wirePick();
  pick().load();
  pick().surface().button("Other").Click = hears("other");
  hands().layDown("Pick", {Act::click("Other"), Act::key("{Enter}"), Act::key("{Escape}")});
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("load Pick", "modal Pick", "other", "other", "cancel", "unload Pick"));
}

TEST_P(ModalForm, EnterElsewhereReachesTheDefaultButton) {
  ask().load();
  ask().surface().button("Go").Click = hears("go");
  ask().surface().checkBox("Tick").Click = hears("tick");
  hands().layDown("Ask", {Act::click("Tick"), Act::key("{Enter}")});
  heard.clear();
  ask().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Ask", "tick", "go", "unload Ask"));
}

TEST_P(ModalForm, KeyPressComesFirstAndMayDropTheKey) {
  ask().load();
  ask().surface().button("Go").Click = hears("go");
  std::int16_t becomes = 13;
  field().KeyPress = [&](std::int16_t& code) {
    heard.push_back("key " + std::to_string(code));
    code = becomes;
  };
  field().Change = [&] { becomes = 0; };
  hands().layDown("Ask", {Act::key("{Enter}"), Act::key("{Escape}"), Act::key("{Enter}")});
  ask().surface().button("Go").Click = [&] {
    heard.emplace_back("go");
    becomes = becomes == 13 ? 'x' : 13;
  };
  heard.clear();
  ask().showModal();
  // The first Enter stays one; the Escape becomes an x, whose change lets the second Enter be dropped.
  EXPECT_THAT(heard, ElementsAre("modal Ask", "key 13", "go", "key 27", "key 13", "unload Ask"));
}

TEST_P(ModalForm, NothingIsPressedOnAFormThatItsKeyPressHasTakenAway) {
  wirePick();
  for (const bool hides : {true, false}) {
    pick().load();
    rows().KeyPress = [this, hides](std::int16_t&) { hides ? pick().hide() : pick().unload(); };
    hands().layDown("Pick", {Act::key("{Enter}")});
    heard.clear();
    pick().showModal();
    EXPECT_THAT(heard, ElementsAre("modal Pick", hides ? "hide Pick" : "unload Pick"));
  }
}

TEST_P(ModalForm, ADisabledOrHiddenDefaultButtonIsNotPressed) {
  wirePick();
  pick().load();
  pick().surface().button("Ok").Enabled(false);
  pick().surface().button("Cancel").Visible(false);
  hands().layDown("Pick", {Act::key("{Enter}"), Act::key("{Escape}")});
  heard.clear();
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Pick", "unload Pick"));
}

TEST_P(ModalForm, EnterReachesTheDefaultButtonWhereNothingHasTheFocus) {
  wirePick();
  pick().load();
  rows().KeyPress = [this](std::int16_t&) { rows().Enabled(false); };
  hands().layDown("Pick", {Act::key("x"), Act::key("y"), Act::key("{Enter}")});
  heard.clear();
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Pick", "ok", "hide Pick"));
}

TEST_P(ModalForm, OnAPanelEnterPressesNoButton) {
  const auto alone = platform().makeSurface(kAskForm.inside, container(), "p");
  alone->button("Go").Click = hears("go");
  alone->textBox("Field").SetFocus();
  heard.clear();
  hands().type("{Enter}{Escape}");
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(ModalForm, FailuresUnderTheHandGoToItsContainer) {
  pick().load();
  rows().addColumn("A", 100);
  add({"a"});
  rows().ColumnClick = [](std::int16_t) { throw Failure(FailureKind::Overflow, "colonna"); };
  rows().DblClick = fails("doppio");
  rows().KeyPress = [](std::int16_t&) { throw Failure(FailureKind::Overflow, "tasto"); };
  pick().surface().button("Ok").Click = fails("ok");
  pick().surface().button("Cancel").Click = fails("annulla");
  pick().Unload = fails("scarico");
  hands().layDown("Pick", {Act::column(1), Act::doubleClick(0), Act::key("x"), Act::key("{Enter}"),
                           Act::key("{Escape}"), Act::close()});
  pick().showModal();
  EXPECT_FALSE(pick().loaded());
  EXPECT_THAT(reported(),
              ElementsAre("Pick Rows ColumnClick: colonna", "Pick Rows DblClick: doppio", "Pick Rows KeyPress: tasto",
                          "Pick Rows KeyPress: tasto", "Pick Ok Click: ok", "Pick Rows KeyPress: tasto",
                          "Pick Cancel Click: annulla", "Pick Rows Unload: scarico"));
}

TEST_P(ModalForm, AFailureOfUnloadPassesOnWhereNoWidgetCanBeNamed) {
  static constexpr toolkit::FormLayout kEmpty{.caption = "Vuota", .inside = {.name = "Empty"}};
  const auto empty = make(kEmpty);
  empty->Unload = fails("scarico");
  EXPECT_FAILURE(empty->showModal(), FailureKind::Overflow, "scarico");
  EXPECT_FALSE(empty->loaded());
  EXPECT_THAT(reported(), IsEmpty());
}

TEST_P(ModalForm, OneThatItsFirstFieldClosesIsNotSeen) {
  hands().takePictures(true);
  ask().Load = [this] { field().GotFocus = [this] { ask().hide(); }; };
  ask().showModal();
  EXPECT_TRUE(ask().loaded());
  EXPECT_THAT(hands().shown(), IsEmpty());
}

TEST_P(ModalForm, AFailureOfUnloadByAHandlerIsThatHandlers) {
  wirePick();
  pick().Unload = fails("scarico");
  hands().layDown("Pick", {Act::click("Cancel")});
  pick().showModal();
  EXPECT_FALSE(pick().loaded());
  EXPECT_THAT(reported(), ElementsAre("Pick Cancel Click: scarico"));
}

TEST_P(ModalForm, AFailureAfterItIsDestroyedGoesToNobody) {
  pick().load();
  pick().surface().button("Other").Click = [this] {
    dropPick();
    throw Failure(FailureKind::Overflow, "troppo tardi");
  };
  hands().layDown("Pick", {Act::click("Other")});
  pick().showModal();
  EXPECT_THAT(reported(), IsEmpty());
}

/// Where no event loop stands between a handler and the caller of the showing.
class ModalFormInMemory : public ModalForm {};
INSTANTIATE_TEST_SUITE_P(Contract, ModalFormInMemory, testing::Values(platformOf<memory::Platform>("memory")),
                         [](const auto& platform) { return std::string(platform.param.name); });

TEST_P(ModalFormInMemory, AnotherExceptionPassesAndTheFormIsHidden) {
  box().SetFocus();
  pick().load();
  pick().surface().button("Other").Click = [] { throw std::bad_alloc(); };
  hands().layDown("Pick", {Act::click("Other")});
  EXPECT_THROW(pick().showModal(), std::bad_alloc);
  EXPECT_TRUE(pick().loaded());
  EXPECT_TRUE(box().hasFocus());
  pick().surface().button("Other").Click = hears("again");
  hands().layDown("Pick", {Act::click("Other")});
  heard.clear();
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Pick", "again", "unload Pick"));
}

TEST_P(ModalForm, MayBeDestroyedWhileItStands) {
  wirePick();
  box().SetFocus();
  pick().Unload = hears("Unload");
  pick().load();
  pick().surface().button("Other").Click = [this] {
    toolkit::ListView& list = rows();
    dropPick();
    EXPECT_EQ(list.columnCount(), 2);
    EXPECT_TRUE(box().hasFocus());
    heard.emplace_back("on");
  };
  hands().layDown("Pick", {Act::click("Other"), Act::click("Ok")});
  heard.clear();
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Pick", "Unload", "unload Pick", "on"));
  EXPECT_TRUE(box().hasFocus());
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(ModalForm, MayBeDestroyedInsideItsKeyPress) {
  pick().load();
  rows().KeyPress = [this](std::int16_t&) { dropPick(); };
  hands().layDown("Pick", {Act::key("{Enter}"), Act::key("{Enter}")});
  heard.clear();
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Pick", "unload Pick"));
}

TEST_P(ModalForm, BothMayBeDestroyedInTheInnerOne) {
  ask().load();
  field().KeyPress = [this](std::int16_t&) { pick().showModal(); };
  wirePick();
  pick().load();
  rows().KeyPress = [this](std::int16_t&) {
    dropAsk();
    dropPick();
  };
  hands().layDown("Ask", {Act::key("?"), Act::key("!")});
  hands().layDown("Pick", {Act::key("a"), Act::key("b")});
  heard.clear();
  ask().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Ask", "modal Pick", "unload Ask", "unload Pick"));
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(ModalForm, ThePanelThatShowsItMayBeDropped) {
  box().SetFocus();
  box().KeyPress = [this](std::int16_t&) {
    toolkit::TextBox& field = box();
    pick().showModal();
    field.Text("ancora qui");
    EXPECT_EQ(field.Text(), "ancora qui");
    heard.emplace_back("back");
  };
  pick().load();
  rows().KeyPress = [this](std::int16_t&) { dropPanel(); };
  hands().layDown("Pick", {Act::key("x")});
  heard.clear();
  hands().type("?");
  EXPECT_THAT(heard, ElementsAre("modal Pick", "unload Pick", "back"));
  EXPECT_EQ(platform().focused(), nullptr);
  EXPECT_FAILURE(hands().type("x"), FailureKind::InvalidCall, "focus");
}

TEST_P(ModalForm, APanelThatKeepsItsFormMayBeDropped) {
  toolkit::Surface& surface = panel();
  toolkit::Form& kept = *surface.keep(std::make_unique<std::unique_ptr<toolkit::Form>>(make(kPickForm)));
  box().SetFocus();
  box().KeyPress = [&](std::int16_t&) { kept.showModal(); };
  kept.Load = [&] {
    kept.surface().listView("Rows").KeyPress = [&](std::int16_t& code) {
      dropPanel();
      heard.push_back("key " + std::to_string(code));
    };
  };
  kept.Unload = hears("Unload");
  hands().layDown("Pick", {Act::key("x"), Act::key("y")});
  heard.clear();
  hands().type("?");
  EXPECT_THAT(heard, ElementsAre("load Pick", "modal Pick", "key 120", "key 121", "Unload", "unload Pick"));
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(ModalForm, FormsWithoutEndFail) {
  std::vector<std::unique_ptr<toolkit::Form>> forms;
  const std::function<void()> next = [&] {
    forms.push_back(make(kPickForm));
    forms.back()->Load = next;
    forms.back()->showModal();
  };
  EXPECT_FAILURE(next(), FailureKind::InvalidCall, "without end");
  EXPECT_GT(forms.size(), 20U);
  forms.clear();
  EXPECT_THAT(loadedForms(), IsEmpty());
}

}  // namespace
}  // namespace qvn::test
