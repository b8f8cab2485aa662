// A paste goes in as if it were typed.
#include "tests/contract/contract_panel.h"

namespace qvn::test {
namespace {

QVN_CONTRACT(Paste);

TEST_P(Paste, GoesInCharacterByCharacterPastKeyPress) {
  box().SetFocus();
  heard.clear();
  hearKeys(box());
  box().Change = [this] { heard.push_back(box().Text()); };
  hands().paste("1€");
  EXPECT_THAT(heard, ElementsAre("key 49", "1", "key 8364", "1€"));
}

TEST_P(Paste, StopsAtTheFirstCharacterThatIsRefused) {
  box().SetFocus();
  box().KeyPress = [](std::int16_t& code) {
    if (code < '0' || code > '9') code = 0;
  };
  hands().paste("12a34");
  EXPECT_EQ(box().Text(), "12");
  EXPECT_EQ(selection(box()), sel(2, 0));
}

TEST_P(Paste, TakesWhatKeyPressPutsInACharactersPlace) {
  box().SetFocus();
  box().KeyPress = [](std::int16_t& code) {
    if (code >= 'a' && code <= 'z') code = static_cast<std::int16_t>(code - 32);
  };
  hands().paste("abè");
  EXPECT_EQ(box().Text(), "ABè");
}

TEST_P(Paste, ReplacesTheSelection) {
  box().Text("abcd");
  box().SetFocus();
  hands().caret(1, 2);
  hands().paste("XYZ");
  EXPECT_EQ(box().Text(), "aXYZd");
  EXPECT_EQ(selection(box()), sel(4, 0));
}

TEST_P(Paste, OfNothingDoesNothing) {
  box().Text("abcd");
  box().SetFocus();
  hands().caret(1, 2);
  heard.clear();
  hearKeys(box());
  hands().paste("");
  EXPECT_EQ(box().Text(), "abcd");
  EXPECT_EQ(selection(box()), sel(1, 2));
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(Paste, BracesAreNoKeys) {
  box().SetFocus();
  hands().paste("{Enter}");
  EXPECT_EQ(box().Text(), "{Enter}");
}

TEST_P(Paste, CharactersBeyondTheKeyCodesGoIn) {
  box().SetFocus();
  hands().paste("a😀b");
  EXPECT_EQ(box().Text(), "a😀b");
}

TEST_P(Paste, ALineBreakPutsNoTextIn) {
  box().SetFocus();
  heard.clear();
  hearKeys(box());
  hands().paste("1\n2");
  EXPECT_EQ(box().Text(), "12");
  EXPECT_THAT(heard, ElementsAre("key 49", "key 10", "key 50"));
}

TEST_P(Paste, EndsWhenAHandlerMovesTheFocus) {
  box("A").SetFocus();
  box("B").Text("");
  box("A").Change = [this] {
    if (box("A").Text() == "12") box("B").SetFocus();
  };
  hands().paste("1234");
  EXPECT_EQ(box("A").Text(), "12");
  EXPECT_EQ(box("B").Text(), "");
}

TEST_P(Paste, GoesOnAfterAFailureThatLeftTheCharacter) {
  box().SetFocus();
  box().Change = [this] {
    if (box().Text() == "1") throw Failure(FailureKind::TypeMismatch, "non ancora");
  };
  hands().paste("12");
  EXPECT_EQ(box().Text(), "12");
  ASSERT_EQ(container().failures.size(), 1U);
  EXPECT_EQ(container().failures[0].event, "Change");
}

TEST_P(Paste, FailsWhereNoFieldHasTheFocus) {
  EXPECT_FAILURE(hands().paste("1"), FailureKind::InvalidCall, "focus");
  list().SetFocus();
  EXPECT_FAILURE(hands().paste("U"), FailureKind::InvalidCall, "List");
}

}  // namespace
}  // namespace qvn::test
