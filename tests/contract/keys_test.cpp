// Keys typed into fields: KeyPress first, then what the field makes of them.
#include <random>

#include "tests/contract/contract_panel.h"

namespace qvn::test {
namespace {

QVN_CONTRACT(Keys);

TEST_P(Keys, ACharacterRaisesKeyPressBeforeTheTextChanges) {
  box().SetFocus();
  heard.clear();
  box().KeyPress = [this](std::int16_t& code) {
    heard.push_back("key " + std::to_string(code) + " on [" + box().Text() + "]");
  };
  box().Change = [this] { heard.push_back("change [" + box().Text() + "]"); };
  hands().type("7a");
  EXPECT_THAT(heard, ElementsAre("key 55 on []", "change [7]", "key 97 on [7]", "change [7a]"));
  EXPECT_EQ(selection(box()), sel(2, 0));
}

TEST_P(Keys, AKeySetToZeroIsDropped) {
  box().SetFocus();
  box().KeyPress = [](std::int16_t& code) {
    if (code == '2') code = 0;
  };
  hands().type("123");
  EXPECT_EQ(box().Text(), "13");
}

TEST_P(Keys, ADroppedKeyChangesNothing) {
  box().Text("abc");
  box().SetFocus();
  box().SelLength(2);
  heard.clear();
  box().Change = hears("change");
  box().KeyPress = [](std::int16_t& code) { code = 0; };
  hands().type("x{Backspace}");
  EXPECT_EQ(box().Text(), "abc");
  EXPECT_EQ(selection(box()), sel(0, 2));
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(Keys, AnotherValueIsTakenInTheKeysPlace) {
  box().SetFocus();
  box().KeyPress = [](std::int16_t& code) {
    if (code == '.') code = ',';
    if (code == 'e') code = 0x20AC;
  };
  hands().type("1.5e");
  EXPECT_EQ(box().Text(), "1,5€");
}

TEST_P(Keys, AControlCharacterInTheKeysPlacePutsNoTextIn) {
  box().SetFocus();
  heard.clear();
  box().Change = hears("change");
  for (const int control : {1, 10, 13, 27, 31, 127, 128, 159}) {
    box().KeyPress = [control](std::int16_t& code) { code = static_cast<std::int16_t>(control); };
    hands().type("x");
    EXPECT_EQ(box().Text(), "") << control;
  }
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(Keys, ANegativeValueInTheKeysPlacePutsNoTextIn) {
  box().SetFocus();
  box().KeyPress = [](std::int16_t& code) { code = -1; };
  hands().type("x");
  EXPECT_EQ(box().Text(), "");
}

TEST_P(Keys, ABlankThatDoesNotBreakIsACharacterLikeAnother) {
  box().SetFocus();
  hands().type("1\u00A02");
  EXPECT_EQ(box().Text(), "1\u00A02");
}

TEST_P(Keys, BackspaceInTheKeysPlaceDeletes) {
  box().Text("ab");
  box().SetFocus();
  box().SelStart(2);
  box().KeyPress = [](std::int16_t& code) { code = 8; };
  hands().type("x");
  EXPECT_EQ(box().Text(), "a");
}

TEST_P(Keys, TheCodeIsTheCharactersOwn) {
  box().SetFocus();
  heard.clear();
  hearKeys(box());
  hands().type("Aè€翾");
  EXPECT_THAT(heard, ElementsAre("key 65", "key 232", "key 8364", "key 32766"));
  EXPECT_EQ(box().Text(), "Aè€翾");
}

TEST_P(Keys, ACharacterBeyondTheKeyCodesIsTypedIfTheCodeIsLeftAlone) {
  box().SetFocus();
  std::vector<std::int16_t> codes;
  box().KeyPress = [&](std::int16_t& code) { codes.push_back(code); };
  hands().type("😀退");
  EXPECT_EQ(box().Text(), "😀退");
  ASSERT_EQ(codes.size(), 2U);
  EXPECT_GT(codes[0], 255);
  EXPECT_GT(codes[1], 255);
  EXPECT_EQ(selection(box()), sel(2, 0));
}

TEST_P(Keys, ACharacterBeyondTheKeyCodesCanBeRefusedAndReplaced) {
  box().SetFocus();
  box().KeyPress = [](std::int16_t& code) { code = 0; };
  hands().type("😀");
  EXPECT_EQ(box().Text(), "");
  box().KeyPress = [](std::int16_t& code) { code = 'x'; };
  hands().type("😀");
  EXPECT_EQ(box().Text(), "x");
}

TEST_P(Keys, EnterAndEscapeRaiseKeyPressAndPutNoTextIn) {
  box().Text("12");
  box().SetFocus();
  box().SelLength(2);
  heard.clear();
  hearKeys(box());
  box().Change = hears("change");
  hands().type("{Enter}{Escape}");
  EXPECT_THAT(heard, ElementsAre("key 13", "key 27"));
  EXPECT_EQ(box().Text(), "12");
  EXPECT_EQ(selection(box()), sel(0, 2));
  EXPECT_TRUE(box().hasFocus());
}

TEST_P(Keys, BackspaceRaisesKeyPress) {
  box().Text("12");
  box().SetFocus();
  box().SelStart(2);
  heard.clear();
  hearKeys(box());
  box().Change = [this] { heard.push_back(box().Text()); };
  hands().type("{Backspace}");
  EXPECT_THAT(heard, ElementsAre("key 8", "1"));
}

TEST_P(Keys, ArrowsDeleteHomeEndAndTabRaiseNoKeyPress) {
  box().Text("12");
  box().SetFocus();
  heard.clear();
  hearKeys(box());
  hands().type("{Left}{Right}{Up}{Down}{Home}{End}{Home}{Delete}{Tab}");
  EXPECT_EQ(box().Text(), "2");
  EXPECT_THAT(heard, ElementsAre("lost A", "got B"));
}

TEST_P(Keys, BackspaceDeletesTheCharacterBeforeTheCaret) {
  box().Text("aèb");
  box().SetFocus();
  hands().caret(2, 0);
  hands().type("{Backspace}");
  EXPECT_EQ(box().Text(), "ab");
  EXPECT_EQ(selection(box()), sel(1, 0));
}

TEST_P(Keys, BackspaceDeletesTheSelection) {
  box().Text("abcd");
  box().SetFocus();
  hands().caret(1, 2);
  hands().type("{Backspace}");
  EXPECT_EQ(box().Text(), "ad");
  EXPECT_EQ(selection(box()), sel(1, 0));
}

TEST_P(Keys, DeleteDeletesTheCharacterBehindTheCaret) {
  box().Text("a€b");
  box().SetFocus();
  hands().caret(1, 0);
  box().Change = [this] { heard.push_back(box().Text()); };
  heard.clear();
  hands().type("{Delete}");
  EXPECT_THAT(heard, ElementsAre("ab"));
  EXPECT_EQ(selection(box()), sel(1, 0));
}

TEST_P(Keys, DeleteDeletesTheSelection) {
  box().Text("abcd");
  box().SetFocus();
  hands().caret(1, 2);
  hands().type("{Delete}");
  EXPECT_EQ(box().Text(), "ad");
  EXPECT_EQ(selection(box()), sel(1, 0));
}

TEST_P(Keys, DeletingNothingRaisesNoChange) {
  box().Text("ab");
  box().SetFocus();
  heard.clear();
  box().Change = hears("change");
  hands().type("{Home}{Backspace}{End}{Delete}");
  EXPECT_EQ(box().Text(), "ab");
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(Keys, TypingReplacesTheSelection) {
  box().Text("abcd");
  box().SetFocus();
  hands().caret(1, 2);
  heard.clear();
  box().Change = [this] { heard.push_back(box().Text()); };
  hands().type("X");
  EXPECT_THAT(heard, ElementsAre("aXd"));
  EXPECT_EQ(selection(box()), sel(2, 0));
}

TEST_P(Keys, TypingTheSelectedCharacterAgainIsAChange) {
  box().Text("0");
  box().SetFocus();
  hands().caret(0, 1);
  heard.clear();
  box().Change = hears("change");
  hands().type("0");
  EXPECT_EQ(box().Text(), "0");
  EXPECT_THAT(heard, ElementsAre("change"));
}

TEST_P(Keys, TypingGoesInAtTheCaret) {
  box().Text("ad");
  box().SetFocus();
  hands().caret(1, 0);
  hands().type("bc");
  EXPECT_EQ(box().Text(), "abcd");
  EXPECT_EQ(selection(box()), sel(3, 0));
}

TEST_P(Keys, TheCaretStandsBehindTheCharacterAlreadyInChange) {
  box().SetFocus();
  heard.clear();
  box().Change = [this] { heard.push_back(std::to_string(box().SelStart())); };
  hands().type("ab");
  EXPECT_THAT(heard, ElementsAre("1", "2"));
}

TEST_P(Keys, ChangeMayCorrectWhatWasTyped) {
  box().SetFocus();
  box().Change = [this] {
    if (box().Text() != "250") return;
    box().Text("100");
    box().SelStart(0);
    box().SelLength(3);
  };
  hands().type("250");
  EXPECT_EQ(box().Text(), "100");
  EXPECT_EQ(selection(box()), sel(0, 3));
  hands().type("7");
  EXPECT_EQ(box().Text(), "7");
}

TEST_P(Keys, LeftAndRightMoveTheCaretByCharacters) {
  box().Text("a€b");
  box().SetFocus();
  hands().type("{Right}");
  EXPECT_EQ(selection(box()), sel(1, 0));
  hands().type("{Right}{Right}{Right}");
  EXPECT_EQ(selection(box()), sel(3, 0));
  hands().type("{Left}");
  EXPECT_EQ(selection(box()), sel(2, 0));
  hands().type("{Left}{Left}{Left}");
  EXPECT_EQ(selection(box()), sel(0, 0));
}

TEST_P(Keys, LeftAndRightGoToTheEndsOfASelection) {
  box().Text("abcdef");
  box().SetFocus();
  hands().caret(1, 3);
  hands().type("{Left}");
  EXPECT_EQ(selection(box()), sel(1, 0));
  hands().caret(1, 3);
  hands().type("{Right}");
  EXPECT_EQ(selection(box()), sel(4, 0));
}

TEST_P(Keys, HomeAndEndGoToTheEndsOfTheText) {
  box().Text("abcdef");
  box().SetFocus();
  hands().caret(1, 3);
  hands().type("{End}");
  EXPECT_EQ(selection(box()), sel(6, 0));
  hands().caret(1, 3);
  hands().type("{Home}");
  EXPECT_EQ(selection(box()), sel(0, 0));
}

TEST_P(Keys, UpAndDownLeaveATextAlone) {
  box().Text("abc");
  box().SetFocus();
  hands().caret(1, 0);
  heard.clear();
  box().Change = hears("change");
  hands().type("{Up}{Down}");
  EXPECT_EQ(box().Text(), "abc");
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(Keys, ABraceIsTypedByTwo) {
  box().SetFocus();
  hands().type("{{a}{{{{");
  EXPECT_EQ(box().Text(), "{a}{{");
}

TEST_P(Keys, AKeyOfAnotherNameFailsAfterTheKeysBeforeItWereTyped) {
  box().SetFocus();
  EXPECT_FAILURE(hands().type("12{F4}3"), FailureKind::InvalidCall, "\"{F4}\"");
  EXPECT_EQ(box().Text(), "12");
  EXPECT_FAILURE(hands().type("{enter}"), FailureKind::InvalidCall, "{enter}");
  EXPECT_FAILURE(hands().type("{Ent"), FailureKind::InvalidCall, "{Ent");
  EXPECT_FAILURE(hands().type("{}"), FailureKind::InvalidCall, "{}");
}

TEST_P(Keys, WithNothingFocusedTypingFails) {
  EXPECT_FAILURE(hands().type("1"), FailureKind::InvalidCall, "focus");
  EXPECT_FAILURE(hands().type(""), FailureKind::InvalidCall, "focus");
}

TEST_P(Keys, AKeyFollowsTheFocusThatTheKeyBeforeMoved) {
  box("A").SetFocus();
  box("A").KeyPress = [this](std::int16_t& code) {
    if (code != 13) return;
    code = 0;
    box("B").SetFocus();
  };
  box("B").Text("");
  hands().type("1{Enter}2");
  EXPECT_EQ(box("A").Text(), "1");
  EXPECT_EQ(box("B").Text(), "2");
}

TEST_P(Keys, AKeyThatItsKeyPressLeavesGoesIntoTheOldFieldThoughTheFocusMoves) {
  box("A").SetFocus();
  box("A").KeyPress = [this](std::int16_t&) { box("B").SetFocus(); };
  hands().type("1");
  EXPECT_EQ(box("A").Text(), "1");
  EXPECT_EQ(box("B").Text(), "già scritto");
  EXPECT_TRUE(box("B").hasFocus());
}

TEST_P(Keys, TypingFailsOnceAHandlerHasTakenTheFocusAway) {
  box().SetFocus();
  box().Change = [this] { box().Enabled(false); };
  EXPECT_FAILURE(hands().type("12"), FailureKind::InvalidCall, "focus");
  EXPECT_EQ(box().Text(), "1");
}

TEST_P(Keys, AFieldThatItsOwnKeyPressSwitchesOffTakesNoKey) {
  box().SetFocus();
  box().KeyPress = [this](std::int16_t&) { outer().Enabled(false); };
  hands().type("1");
  EXPECT_EQ(box().Text(), "");
}

/// What keys make of a text, told in the plainest way: characters, and a selection of them.
struct PlainText {
  std::vector<std::string> characters;
  std::size_t start = 0;
  std::size_t length = 0;

  void type(const std::string& character) {
    cut();
    characters.insert(characters.begin() + static_cast<std::ptrdiff_t>(start), character);
    ++start;
  }
  void backspace() {
    if (length == 0 && start > 0) {
      --start;
      length = 1;
    }
    cut();
  }
  void erase() {
    if (length == 0 && start < characters.size()) length = 1;
    cut();
  }
  void cut() {
    const auto from = characters.begin() + static_cast<std::ptrdiff_t>(start);
    characters.erase(from, from + static_cast<std::ptrdiff_t>(length));
    length = 0;
  }
  std::string text() const {
    std::string all;
    for (const std::string& character : characters) all += character;
    return all;
  }
};

TEST_P(Keys, ManyKeysInAnyOrderEditAsToldOneByOne) {
  static constexpr std::array<std::string_view, 5> kCharacters{"a", "è", "€", "😀", " "};
  std::mt19937 random(20261115);
  const auto below = [&](std::size_t bound) { return static_cast<std::size_t>(random() % bound); };
  PlainText plain;
  box().SetFocus();
  for (int i = 0; i < 3000; ++i) {
    const std::size_t act = below(12);
    if (act < 6) {
      const std::string_view character = kCharacters.at(below(kCharacters.size()));
      hands().type(character);
      plain.type(std::string(character));
    } else if (act < 8) {
      hands().type("{Backspace}");
      plain.backspace();
    } else if (act == 8) {
      hands().type("{Delete}");
      plain.erase();
    } else if (act == 9) {
      hands().type("{Left}");
      if (plain.length == 0 && plain.start > 0) --plain.start;
      plain.length = 0;
    } else if (act == 10) {
      hands().type("{Right}");
      const bool moves = plain.length == 0 && plain.start < plain.characters.size();
      plain.start += moves ? 1 : plain.length;
      plain.length = 0;
    } else {
      plain.start = below(plain.characters.size() + 1);
      plain.length = below(plain.characters.size() - plain.start + 1);
      hands().caret(static_cast<std::int32_t>(plain.start), static_cast<std::int32_t>(plain.length));
    }
    ASSERT_EQ(box().Text(), plain.text()) << "after act " << i;
    ASSERT_EQ(selection(box()), sel(static_cast<std::int32_t>(plain.start), static_cast<std::int32_t>(plain.length)))
        << "after act " << i;
  }
}

TEST_P(Keys, BytesThatAreNoCharacterAreTypedAsTheReplacementCharacter) {
  box().SetFocus();
  hands().type("a\xC3");
  EXPECT_EQ(box().Text(), "a\uFFFD");
}

}  // namespace
}  // namespace qvn::test
