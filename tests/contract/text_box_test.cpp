// What a program sees of a text box: text, selection, Change.
#include "tests/contract/contract_panel.h"

namespace qvn::test {
namespace {

QVN_CONTRACT(TextBox);

TEST_P(TextBox, StartsWithTheLayoutsText) {
  EXPECT_EQ(box("A").Text(), "");
  EXPECT_EQ(box("B").Text(), "già scritto");
  EXPECT_EQ(selection(box("B")), sel(0, 0));
}

TEST_P(TextBox, WritingTheSameTextDoesNothing) {
  box().Text("uno");
  box().SelStart(1);
  box().SelLength(2);
  box().Change = hears("change");
  box().Text("uno");
  EXPECT_THAT(heard, IsEmpty());
  EXPECT_EQ(selection(box()), sel(1, 2));
}

TEST_P(TextBox, WritingNothingIntoAnEmptyBoxDoesNothing) {
  box().Change = hears("change");
  box().Text("");
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(TextBox, CaseMakesAnotherText) {
  box().Text("uno");
  box().Change = hears("change");
  box().Text("UNO");
  EXPECT_EQ(box().Text(), "UNO");
  EXPECT_THAT(heard, ElementsAre("change"));
}

TEST_P(TextBox, AWriteIsInPlaceBeforeChange) {
  box().Change = [this] { heard.push_back(box().Text()); };
  box().Text("nuovo");
  EXPECT_THAT(heard, ElementsAre("nuovo"));
}

TEST_P(TextBox, AnEmptyTextIsAChangeToo) {
  box().Text("7");
  box().Change = [this] { heard.emplace_back(box().Text().empty() ? "empty" : "full"); };
  box().Text("");
  EXPECT_THAT(heard, ElementsAre("empty"));
}

TEST_P(TextBox, NestedWritesHaveRunWhenTheWriteReturns) {
  box().Change = [this] {
    heard.push_back("begin " + box().Text());
    if (box().Text() == "250") box().Text("100");
    heard.push_back("end " + box().Text());
  };
  box().Text("250");
  EXPECT_EQ(box().Text(), "100");
  EXPECT_THAT(heard, ElementsAre("begin 250", "begin 100", "end 100", "end 100"));
}

TEST_P(TextBox, WritesMayBeNestedAHundredDeep) {
  int changes = 0;
  box().Change = [&] {
    ++changes;
    if (box().Text().size() < 100) box().Text(box().Text() + "x");
  };
  box().Text("x");
  EXPECT_EQ(box().Text(), std::string(100, 'x'));
  EXPECT_EQ(changes, 100);
}

TEST_P(TextBox, ANestedWriteOfTheSameTextRaisesNothing) {
  box().Change = [this] {
    heard.emplace_back("change");
    box().Text(box().Text());
  };
  box().Text("5");
  EXPECT_THAT(heard, ElementsAre("change"));
}

TEST_P(TextBox, ChangeMayWriteAnotherWidget) {
  box("A").Change = [this] { box("B").Text("da " + box("A").Text()); };
  box("B").Change = [this] { heard.push_back(box("B").Text()); };
  box("A").Text("A");
  EXPECT_THAT(heard, ElementsAre("da A"));
}

TEST_P(TextBox, AfterAWriteTheCaretStandsAtTheStart) {
  box().Text("prima");
  box().SelStart(2);
  box().SelLength(3);
  box().Text("seconda");
  EXPECT_EQ(selection(box()), sel(0, 0));
}

TEST_P(TextBox, TheCaretStandsAtTheStartAlreadyInChange) {
  box().Text("prima");
  box().SelStart(4);
  box().Change = [this] { heard.push_back(std::to_string(box().SelStart())); };
  box().Text("seconda");
  EXPECT_THAT(heard, ElementsAre("0"));
}

TEST_P(TextBox, ASelectionMadeByChangeStays) {
  box().Change = [this] {
    box().SelStart(0);
    box().SelLength(3);
  };
  box().Text("100");
  EXPECT_EQ(selection(box()), sel(0, 3));
}

TEST_P(TextBox, AFailureOfChangePassesToTheWriter) {
  box().Change = fails("troppo");
  EXPECT_FAILURE(box().Text("9"), FailureKind::Overflow, "troppo");
  EXPECT_EQ(box().Text(), "9");
  EXPECT_EQ(selection(box()), sel(0, 0));
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(TextBox, AFailureOfANestedChangePassesThroughTheOuter) {
  box("B").Change = fails("dentro");
  box("A").Change = [this] {
    box("B").Text("x");
    heard.emplace_back("never");
  };
  EXPECT_FAILURE(box("A").Text("y"), FailureKind::Overflow, "dentro");
  EXPECT_THAT(heard, IsEmpty());
  EXPECT_EQ(box("A").Text(), "y");
  EXPECT_EQ(box("B").Text(), "x");
}

TEST_P(TextBox, WorksOnAfterAFailureOfChange) {
  box().Change = fails("una volta");
  EXPECT_FAILURE(box().Text("1"), FailureKind::Overflow, "una volta");
  box().Change = hears("change");
  box().Text("2");
  EXPECT_THAT(heard, ElementsAre("change"));
}

TEST_P(TextBox, TakesWritesWhileDisabledOrHidden) {
  box("Off").Change = hears("off");
  box("Hidden").Change = hears("hidden");
  box("Off").Text("1");
  box("Hidden").Text("2");
  EXPECT_EQ(box("Off").Text(), "1");
  EXPECT_EQ(box("Hidden").Text(), "2");
  EXPECT_THAT(heard, ElementsAre("off", "hidden"));
}

TEST_P(TextBox, PositionsCountCharacters) {
  box().Text("È 5 €😀!");
  box().SelStart(0);
  box().SelLength(100);
  EXPECT_EQ(selection(box()), sel(0, 7));
  box().SelStart(5);
  box().SelLength(1);
  box().SetFocus();
  hands().type("x");
  EXPECT_EQ(box().Text(), "È 5 €x!");
  EXPECT_EQ(selection(box()), sel(6, 0));
}

TEST_P(TextBox, SelectionsBeyondTheTextAreCut) {
  box().Text("12345");
  box().SelStart(3);
  box().SelLength(9);
  EXPECT_EQ(selection(box()), sel(3, 2));
  box().SelStart(9);
  EXPECT_EQ(selection(box()), sel(5, 0));
  box().SelLength(1);
  EXPECT_EQ(selection(box()), sel(5, 0));
}

TEST_P(TextBox, NegativeSelectionsCountAsNothing) {
  box().Text("12345");
  box().SelStart(2);
  box().SelLength(-1);
  EXPECT_EQ(selection(box()), sel(2, 0));
  box().SelStart(-5);
  EXPECT_EQ(selection(box()), sel(0, 0));
}

TEST_P(TextBox, ExtremeSelectionsAreCut) {
  box().Text("12345");
  box().SelStart(INT32_MAX);
  box().SelLength(INT32_MAX);
  EXPECT_EQ(selection(box()), sel(5, 0));
  box().SelStart(INT32_MIN);
  box().SelLength(INT32_MIN);
  EXPECT_EQ(selection(box()), sel(0, 0));
  box().SelLength(INT32_MAX);
  EXPECT_EQ(selection(box()), sel(0, 5));
}

TEST_P(TextBox, MovingTheStartSelectsNothing) {
  box().Text("12345");
  box().SelStart(0);
  box().SelLength(4);
  box().SelStart(1);
  EXPECT_EQ(selection(box()), sel(1, 0));
}

TEST_P(TextBox, TheSelectionIsThereWithoutTheFocusToo) {
  box("A").Text("12345");
  box("A").SelStart(1);
  box("A").SelLength(2);
  box("A").SetFocus();
  EXPECT_EQ(selection(box("A")), sel(1, 2));
  box("B").SetFocus();
  EXPECT_EQ(selection(box("A")), sel(1, 2));
}

TEST_P(TextBox, SelectingRaisesNothing) {
  box().Text("12345");
  box().Change = hears("change");
  box().SelStart(2);
  box().SelLength(2);
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(TextBox, HasNoMaximumLength) {
  const std::string longText(100'000, 'x');
  box().Text(longText);
  EXPECT_EQ(box().Text(), longText);
  box().SelLength(100'000);
  EXPECT_EQ(box().SelLength(), 100'000);
}

TEST_P(TextBox, BytesThatAreNoCharacterAreReplaced) {
  box().Text("a\xFFz");
  EXPECT_EQ(box().Text(), "a\uFFFDz");
  box().SelLength(9);
  EXPECT_EQ(box().SelLength(), 3);
}

TEST_P(TextBox, WritingTheSameBrokenTextAgainDoesNothing) {
  box().Text("a\xFFz");
  box().Change = hears("change");
  box().Text("a\xFFz");
  EXPECT_THAT(heard, IsEmpty());
}

}  // namespace
}  // namespace qvn::test
