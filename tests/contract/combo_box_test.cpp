// The closed list.
#include "tests/contract/contract_panel.h"

namespace qvn::test {
namespace {

QVN_CONTRACT(ComboBox);

TEST_P(ComboBox, StartsWithTheLayoutsItemsAndNoneCurrent) {
  EXPECT_EQ(list().ListCount(), 4);
  EXPECT_EQ(list().List(0), "Uno");
  EXPECT_EQ(list().List(3), "È altro");
  EXPECT_EQ(list().ListIndex(), -1);
  EXPECT_EQ(list().Text(), "");
}

TEST_P(ComboBox, WritingItsTextSelectsTheItemAndRaisesClick) {
  list().Click = [this] { heard.push_back(list().Text()); };
  list().Text("Due");
  EXPECT_EQ(list().ListIndex(), 1);
  EXPECT_THAT(heard, ElementsAre("Due"));
}

TEST_P(ComboBox, WritingTheTextThatIsShownDoesNothing) {
  list().Click = hears("click");
  list().Text("");
  EXPECT_THAT(heard, IsEmpty());
  list().Text("Due");
  list().Text("Due");
  EXPECT_THAT(heard, ElementsAre("click"));
}

TEST_P(ComboBox, WritingTheEmptyTextSelectsABlankItemThatIsNotCurrent) {
  list().AddItem("");
  list().Click = [this] { heard.push_back(std::to_string(list().ListIndex())); };
  list().Text("");
  list().Text("");
  EXPECT_THAT(heard, ElementsAre("4"));
}

TEST_P(ComboBox, WritingATextThatNoItemHasFails) {
  list().Text("Due");
  list().Click = hears("click");
  EXPECT_FAILURE(list().Text("Tre"), FailureKind::InvalidCall, "Tre");
  EXPECT_FAILURE(list().Text("due"), FailureKind::InvalidCall, "List");
  EXPECT_FAILURE(list().Text(""), FailureKind::InvalidCall, "List");
  EXPECT_EQ(list().Text(), "Due");
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(ComboBox, SelectingByIndexAlwaysRaisesClick) {
  list().Click = [this] { heard.push_back(std::to_string(list().ListIndex())); };
  list().ListIndex(2);
  list().ListIndex(2);
  list().ListIndex(-1);
  list().ListIndex(-1);
  EXPECT_THAT(heard, ElementsAre("2", "2", "-1", "-1"));
  EXPECT_EQ(list().Text(), "");
}

TEST_P(ComboBox, AnIndexOutsideTheListFails) {
  list().ListIndex(1);
  list().Click = hears("click");
  EXPECT_FAILURE(list().ListIndex(4), FailureKind::SubscriptOutOfRange, "4");
  EXPECT_FAILURE(list().ListIndex(-2), FailureKind::SubscriptOutOfRange, "-2");
  EXPECT_FAILURE(list().List(4), FailureKind::SubscriptOutOfRange, "List");
  EXPECT_FAILURE(list().List(-1), FailureKind::SubscriptOutOfRange, "List");
  EXPECT_FAILURE(list().RemoveItem(4), FailureKind::SubscriptOutOfRange, "List");
  EXPECT_FAILURE(list().RemoveItem(-1), FailureKind::SubscriptOutOfRange, "List");
  EXPECT_EQ(list().ListIndex(), 1);
  EXPECT_EQ(list().ListCount(), 4);
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(ComboBox, AddingPutsAnItemAtTheEndAndRaisesNothing) {
  list().ListIndex(1);
  list().Click = hears("click");
  list().AddItem("Ultimo");
  EXPECT_EQ(list().ListCount(), 5);
  EXPECT_EQ(list().List(4), "Ultimo");
  EXPECT_EQ(list().ListIndex(), 1);
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(ComboBox, AddingToAnEmptyListMakesNoItemCurrent) {
  list().Clear();
  list().Click = hears("click");
  list().AddItem("Solo");
  EXPECT_EQ(list().ListIndex(), -1);
  EXPECT_EQ(list().Text(), "");
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(ComboBox, RemovingTheCurrentItemLeavesNoneAndRaisesNothing) {
  list().ListIndex(1);
  list().Click = hears("click");
  list().RemoveItem(1);
  EXPECT_EQ(list().ListIndex(), -1);
  EXPECT_EQ(list().Text(), "");
  EXPECT_EQ(list().ListCount(), 3);
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(ComboBox, RemovingAnotherItemKeepsTheCurrentOne) {
  list().ListIndex(1);
  list().Click = hears("click");
  list().RemoveItem(0);
  EXPECT_EQ(list().ListIndex(), 0);
  EXPECT_EQ(list().Text(), "Due");
  list().RemoveItem(2);
  EXPECT_EQ(list().ListIndex(), 0);
  EXPECT_EQ(list().Text(), "Due");
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(ComboBox, ClearingLeavesNothingAndRaisesNothing) {
  list().ListIndex(1);
  list().Click = hears("click");
  list().Clear();
  EXPECT_EQ(list().ListCount(), 0);
  EXPECT_EQ(list().ListIndex(), -1);
  EXPECT_EQ(list().Text(), "");
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(ComboBox, OfTwoItemsWithOneTextTheFirstIsSelected) {
  list().AddItem("Due");
  list().Text("Due");
  EXPECT_EQ(list().ListIndex(), 1);
}

TEST_P(ComboBox, AFailureOfClickPassesToTheWriterAndTheItemStays) {
  list().Click = fails("scelta");
  EXPECT_FAILURE(list().Text("Due"), FailureKind::Overflow, "scelta");
  EXPECT_EQ(list().ListIndex(), 1);
  EXPECT_FAILURE(list().ListIndex(0), FailureKind::Overflow, "scelta");
  EXPECT_EQ(list().ListIndex(), 0);
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(ComboBox, ClickMayChooseAnother) {
  list().Click = [this] {
    heard.push_back(list().Text());
    if (list().ListIndex() == 1) list().ListIndex(0);
  };
  list().Text("Due");
  EXPECT_EQ(list().Text(), "Uno");
  EXPECT_THAT(heard, ElementsAre("Due", "Uno"));
}

TEST_P(ComboBox, TheOperatorPicksByPlaceOrText) {
  list().Click = [this] { heard.push_back(list().Text()); };
  hands().choose(list(), 2);
  hands().choose(list(), "Uno");
  EXPECT_THAT(heard, ElementsAre("got List", "Dodici", "Uno"));
  EXPECT_TRUE(list().hasFocus());
}

TEST_P(ComboBox, TheOperatorsPickOfTheCurrentItemRaisesClick) {
  list().ListIndex(2);
  list().SetFocus();
  heard.clear();
  list().Click = hears("click");
  hands().choose(list(), 2);
  EXPECT_THAT(heard, ElementsAre("click"));
}

TEST_P(ComboBox, TheOperatorCannotPickWhatIsNotThere) {
  EXPECT_FAILURE(hands().choose(list(), 4), FailureKind::InvalidCall, "List");
  EXPECT_FAILURE(hands().choose(list(), -1), FailureKind::InvalidCall, "List");
  EXPECT_FAILURE(hands().choose(list(), "uno"), FailureKind::InvalidCall, "uno");
  EXPECT_EQ(list().ListIndex(), -1);
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(ComboBox, TheOperatorCannotPickFromAListThatIsOff) {
  outer().Enabled(false);
  EXPECT_FAILURE(hands().choose(list(), 1), FailureKind::InvalidCall, "List");
  EXPECT_EQ(list().ListIndex(), -1);
}

TEST_P(ComboBox, APickGoesToTheItemOnceTheOldHolderHasLostTheFocus) {
  box("A").SetFocus();
  box("A").LostFocus = hears("A.LostFocus");
  list().GotFocus = hears("List.GotFocus");
  list().Click = hears("click");
  heard.clear();
  hands().choose(list(), 1);
  EXPECT_THAT(heard, ElementsAre("lost A", "A.LostFocus", "got List", "List.GotFocus", "click"));
}

TEST_P(ComboBox, APickComesToNothingWhereLostFocusTakesTheFocusBack) {
  box("A").SetFocus();
  box("A").LostFocus = [this] { box("A").SetFocus(); };
  hands().choose(list(), 1);
  EXPECT_EQ(list().ListIndex(), -1);
  EXPECT_TRUE(box("A").hasFocus());
}

TEST_P(ComboBox, APickByTextFindsItsItemWhereLostFocusRemovesAnother) {
  box("A").SetFocus();
  box("A").LostFocus = [this] { list().RemoveItem(0); };
  hands().choose(list(), "Due");
  EXPECT_EQ(list().Text(), "Due");
}

TEST_P(ComboBox, APickComesToNothingWhereGotFocusRemovesItsItem) {
  list().GotFocus = [this] { list().Clear(); };
  list().Click = hears("click");
  hands().choose(list(), 1);
  EXPECT_EQ(list().ListCount(), 0);
  hands().leave();
  list().AddItem("Due");
  hands().choose(list(), "Due");
  EXPECT_EQ(list().ListCount(), 0);
  EXPECT_EQ(list().ListIndex(), -1);
  EXPECT_THAT(heard, ElementsAre("got List", "lost List", "got List"));
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(ComboBox, BytesThatAreNoCharacterAreReplaced) {
  list().AddItem("a\xFFz");
  EXPECT_EQ(list().List(4), "a\uFFFDz");
  list().Text("a\xFFz");
  EXPECT_EQ(list().ListIndex(), 4);
  list().Click = hears("click");
  list().Text("a\xFFz");
  EXPECT_THAT(heard, IsEmpty());
  list().ListIndex(0);
  hands().choose(list(), "a\xFFz");
  EXPECT_EQ(list().ListIndex(), 4);
}

TEST_P(ComboBox, UpAndDownPickTheItemsBeside) {
  list().SetFocus();
  list().Click = [this] { heard.push_back(list().Text()); };
  heard.clear();
  hands().type("{Down}{Down}{Up}");
  EXPECT_THAT(heard, ElementsAre("Uno", "Due", "Uno"));
}

TEST_P(ComboBox, UpAndDownStopAtTheEnds) {
  list().ListIndex(0);
  list().SetFocus();
  list().Click = hears("click");
  heard.clear();
  hands().type("{Up}");
  EXPECT_EQ(list().ListIndex(), 0);
  EXPECT_THAT(heard, IsEmpty());
  list().ListIndex(3);
  heard.clear();
  hands().type("{Down}");
  EXPECT_EQ(list().ListIndex(), 3);
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(ComboBox, HomeAndEndPickTheFirstAndTheLast) {
  list().ListIndex(1);
  list().SetFocus();
  list().Click = [this] { heard.push_back(list().Text()); };
  heard.clear();
  hands().type("{End}{End}{Home}");
  EXPECT_THAT(heard, ElementsAre("È altro", "Uno"));
}

TEST_P(ComboBox, KeysOnAnEmptyListDoNothing) {
  list().Clear();
  list().SetFocus();
  list().Click = hears("click");
  heard.clear();
  hands().type("{Down}{Up}{Home}{End}x");
  EXPECT_EQ(list().ListIndex(), -1);
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(ComboBox, ALetterPicksTheNextItemThatBeginsWithIt) {
  list().SetFocus();
  list().Click = [this] { heard.push_back(list().Text()); };
  heard.clear();
  hands().type("dDdu");
  EXPECT_THAT(heard, ElementsAre("Due", "Dodici", "Due", "Uno"));
}

TEST_P(ComboBox, AccentedLettersAreFoundInEitherCase) {
  list().SetFocus();
  hands().type("è");
  EXPECT_EQ(list().Text(), "È altro");
}

TEST_P(ComboBox, ALetterThatLeadsNowhereElseDoesNothing) {
  list().ListIndex(0);
  list().SetFocus();
  list().Click = hears("click");
  heard.clear();
  hands().type("xu");
  EXPECT_EQ(list().ListIndex(), 0);
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(ComboBox, EnterAndEscapeLeaveItAsItIs) {
  list().ListIndex(1);
  list().SetFocus();
  list().Click = hears("click");
  heard.clear();
  hands().type("{Enter}{Escape}{Backspace}{Delete}{Left}{Right}");
  EXPECT_EQ(list().ListIndex(), 1);
  EXPECT_TRUE(list().hasFocus());
  EXPECT_THAT(heard, IsEmpty());
}

}  // namespace
}  // namespace qvn::test
