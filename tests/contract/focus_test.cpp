// Who has the focus, and the events of its moves.
#include "tests/contract/contract_panel.h"

namespace qvn::test {
namespace {

class Focus : public ContractPanel {
 public:
  Focus() {
    for (const std::string_view name : {"A", "B", "Free"}) {
      box(name).GotFocus = hears(std::string(name) + ".GotFocus");
      box(name).LostFocus = hears(std::string(name) + ".LostFocus");
    }
  }
};
QVN_ON_EVERY_PLATFORM_AS(Contract, Focus);

TEST_P(Focus, NothingHasItAtFirst) {
  EXPECT_EQ(platform().focused(), nullptr);
  for (const toolkit::Widget* each : panel().widgets()) EXPECT_FALSE(each->hasFocus()) << each->Name();
}

TEST_P(Focus, SetFocusGivesIt) {
  box("A").SetFocus();
  EXPECT_EQ(platform().focused(), &box("A"));
  EXPECT_TRUE(box("A").hasFocus());
  EXPECT_FALSE(box("B").hasFocus());
  EXPECT_THAT(heard, ElementsAre("got A", "A.GotFocus"));
}

TEST_P(Focus, TheOldHolderLosesItFirst) {
  box("A").SetFocus();
  heard.clear();
  box("B").SetFocus();
  EXPECT_THAT(heard, ElementsAre("lost A", "A.LostFocus", "got B", "B.GotFocus"));
}

TEST_P(Focus, AMoveHasHappenedBeforeItsEvents) {
  box("A").SetFocus();
  box("A").LostFocus = [this] { EXPECT_EQ(platform().focused(), &box("B")); };
  box("B").GotFocus = [this] {
    EXPECT_EQ(platform().focused(), &box("B"));
    heard.emplace_back("checked");
  };
  heard.clear();
  box("B").SetFocus();
  EXPECT_THAT(heard, ElementsAre("lost A", "got B", "checked"));
}

TEST_P(Focus, GivingItToItsHolderRaisesNothing) {
  box("A").SetFocus();
  heard.clear();
  box("A").SetFocus();
  hands().focus(box("A"));
  EXPECT_THAT(heard, IsEmpty());
  EXPECT_TRUE(box("A").hasFocus());
}

TEST_P(Focus, ListsCheckBoxesButtonsAndDatesTakeIt) {
  list().GotFocus = hears("List.GotFocus");
  list().LostFocus = hears("List.LostFocus");
  date().GotFocus = hears("Date.GotFocus");
  date().LostFocus = hears("Date.LostFocus");
  list().SetFocus();
  check().SetFocus();
  button().SetFocus();
  date().SetFocus();
  hands().leave();
  EXPECT_THAT(heard,
              ElementsAre("got List", "List.GotFocus", "lost List", "List.LostFocus", "got Check", "lost Check",
                          "got Button", "lost Button", "got Date", "Date.GotFocus", "lost Date", "Date.LostFocus"));
}

TEST_P(Focus, LabelsAndFramesDoNot) {
  EXPECT_FAILURE(label().SetFocus(), FailureKind::InvalidCall, "Label");
  EXPECT_FAILURE(outer().SetFocus(), FailureKind::InvalidCall, "Outer");
  EXPECT_FAILURE(hands().focus(label()), FailureKind::InvalidCall, "Label");
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(Focus, ItIsOneAmongAllPanels) {
  const auto other = another("other");
  box("A").SetFocus();
  heard.clear();
  other->textBox("A").SetFocus();
  EXPECT_FALSE(box("A").hasFocus());
  EXPECT_EQ(platform().focused(), &other->textBox("A"));
  EXPECT_THAT(heard, ElementsAre("lost A", "A.LostFocus", "got A"));
}

TEST_P(Focus, ADisabledOrHiddenWidgetRefusesIt) {
  box("B").SetFocus();
  heard.clear();
  EXPECT_FAILURE(box("Off").SetFocus(), FailureKind::InvalidCall, "Off");
  EXPECT_FAILURE(box("Hidden").SetFocus(), FailureKind::InvalidCall, "Hidden");
  EXPECT_FAILURE(hands().focus(box("Off")), FailureKind::InvalidCall, "Off");
  EXPECT_FAILURE(hands().focus(box("Hidden")), FailureKind::InvalidCall, "Hidden");
  EXPECT_TRUE(box("B").hasFocus());
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(Focus, AWidgetInADisabledOrHiddenFrameRefusesIt) {
  const auto refuse = [this](const std::function<void(bool)>& set) {
    set(false);
    EXPECT_FAILURE(box("B").SetFocus(), FailureKind::InvalidCall, "B");
    EXPECT_FAILURE(hands().focus(box("B")), FailureKind::InvalidCall, "B");
    set(true);
    box("B").SetFocus();
    EXPECT_TRUE(box("B").hasFocus());
    hands().leave();
  };
  refuse([this](bool on) { inner().Enabled(on); });
  refuse([this](bool on) { inner().Visible(on); });
  refuse([this](bool on) { outer().Enabled(on); });
  refuse([this](bool on) { outer().Visible(on); });
}

TEST_P(Focus, AWidgetOnADisabledOrHiddenPanelRefusesIt) {
  panel().Enabled(false);
  EXPECT_FAILURE(box("Free").SetFocus(), FailureKind::InvalidCall, "Free");
  panel().Enabled(true);
  panel().Visible(false);
  EXPECT_FAILURE(box("Free").SetFocus(), FailureKind::InvalidCall, "Free");
  panel().Visible(true);
  box("Free").SetFocus();
  EXPECT_TRUE(box("Free").hasFocus());
}

TEST_P(Focus, ADisabledFrameDoesNotTouchTheWidgetsBesideIt) {
  outer().Enabled(false);
  box("Free").SetFocus();
  EXPECT_TRUE(box("Free").hasFocus());
}

TEST_P(Focus, LeavingTakesItFromThePanels) {
  box("A").SetFocus();
  heard.clear();
  hands().leave();
  EXPECT_EQ(platform().focused(), nullptr);
  EXPECT_THAT(heard, ElementsAre("lost A", "A.LostFocus"));
  hands().leave();
  EXPECT_THAT(heard, ElementsAre("lost A", "A.LostFocus"));
}

TEST_P(Focus, AFailureOfLostFocusPassesOnAfterGotFocusHasRun) {
  box("A").SetFocus();
  box("A").LostFocus = fails("perso");
  heard.clear();
  EXPECT_FAILURE(box("B").SetFocus(), FailureKind::Overflow, "perso");
  EXPECT_TRUE(box("B").hasFocus());
  EXPECT_THAT(heard, ElementsAre("lost A", "got B", "B.GotFocus"));
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(Focus, AFailureOfGotFocusPassesOnAndTheFocusStays) {
  box("B").GotFocus = fails("preso");
  EXPECT_FAILURE(box("B").SetFocus(), FailureKind::Overflow, "preso");
  EXPECT_TRUE(box("B").hasFocus());
}

TEST_P(Focus, OfTwoFailuresTheFirstPassesOn) {
  box("A").SetFocus();
  box("A").LostFocus = fails("perso");
  box("B").GotFocus = fails("preso");
  EXPECT_FAILURE(box("B").SetFocus(), FailureKind::Overflow, "perso");
  EXPECT_TRUE(box("B").hasFocus());
}

TEST_P(Focus, LostFocusMayTakeItBack) {
  box("A").SetFocus();
  heard.clear();
  box("A").LostFocus = [this] {
    heard.emplace_back("A.LostFocus");
    box("A").SetFocus();
  };
  box("B").SetFocus();
  EXPECT_TRUE(box("A").hasFocus());
  EXPECT_THAT(heard, ElementsAre("lost A", "A.LostFocus", "got A", "A.GotFocus"));
}

TEST_P(Focus, LostFocusMaySendItElsewhere) {
  box("A").SetFocus();
  heard.clear();
  box("A").LostFocus = [this] {
    heard.emplace_back("A.LostFocus");
    box("Free").SetFocus();
  };
  box("B").SetFocus();
  EXPECT_TRUE(box("Free").hasFocus());
  EXPECT_THAT(heard, ElementsAre("lost A", "A.LostFocus", "got Free", "Free.GotFocus"));
}

TEST_P(Focus, LostFocusMaySendItElsewhereAndOnToTheNewHolder) {
  box("A").SetFocus();
  heard.clear();
  box("A").LostFocus = [this] {
    heard.emplace_back("A.LostFocus");
    box("Free").SetFocus();
    box("B").SetFocus();
  };
  box("B").SetFocus();
  EXPECT_TRUE(box("B").hasFocus());
  EXPECT_THAT(heard, ElementsAre("lost A", "A.LostFocus", "got Free", "Free.GotFocus", "lost Free", "Free.LostFocus",
                                 "got B", "B.GotFocus"));
}

TEST_P(Focus, LostFocusMayTakeItBackFromLeaving) {
  box("A").SetFocus();
  heard.clear();
  box("A").LostFocus = [this] {
    heard.emplace_back("A.LostFocus");
    box("A").SetFocus();
  };
  hands().leave();
  EXPECT_TRUE(box("A").hasFocus());
  EXPECT_THAT(heard, ElementsAre("lost A", "A.LostFocus", "got A", "A.GotFocus"));
}

TEST_P(Focus, GotFocusMaySendItOn) {
  box("A").SetFocus();
  heard.clear();
  box("B").GotFocus = [this] {
    heard.emplace_back("B.GotFocus");
    box("Free").SetFocus();
    heard.emplace_back("sent on");
  };
  box("B").SetFocus();
  EXPECT_TRUE(box("Free").hasFocus());
  EXPECT_THAT(heard, ElementsAre("lost A", "A.LostFocus", "got B", "B.GotFocus", "lost B", "B.LostFocus", "got Free",
                                 "Free.GotFocus", "sent on"));
}

TEST_P(Focus, LostFocusMaySwitchOffTheNewHolder) {
  box("A").SetFocus();
  heard.clear();
  box("A").LostFocus = [this] {
    heard.emplace_back("A.LostFocus");
    box("B").Enabled(false);
  };
  box("B").SetFocus();
  EXPECT_EQ(platform().focused(), nullptr);
  EXPECT_THAT(heard, ElementsAre("lost A", "A.LostFocus"));
}

TEST_P(Focus, GotFocusMaySwitchOffItsOwnWidget) {
  box("A").SetFocus();
  heard.clear();
  box("B").GotFocus = [this] {
    heard.emplace_back("B.GotFocus");
    box("B").Enabled(false);
  };
  box("B").SetFocus();
  EXPECT_EQ(platform().focused(), nullptr);
  EXPECT_THAT(heard, ElementsAre("lost A", "A.LostFocus", "got B", "B.GotFocus", "lost B", "B.LostFocus"));
}

TEST_P(Focus, TheMouseMovesItAsAProgramDoes) {
  hands().focus(box("A"));
  hands().focus(box("B"));
  EXPECT_TRUE(box("B").hasFocus());
  EXPECT_THAT(heard, ElementsAre("got A", "A.GotFocus", "lost A", "A.LostFocus", "got B", "B.GotFocus"));
}

TEST_P(Focus, TabGoesByTabIndexPastWhatCannotTakeIt) {
  box("Free").SetFocus();
  std::vector<std::string> way;
  for (int i = 0; i < 9; ++i) {
    hands().type("{Tab}");
    way.emplace_back(platform().focused()->Name());
  }
  EXPECT_THAT(way, ElementsAre("A", "B", "List", "Check", "Button", "Date", "Twin1", "Twin2", "Free"));
}

TEST_P(Focus, ShiftTabGoesBack) {
  box("Free").SetFocus();
  std::vector<std::string> way;
  for (int i = 0; i < 9; ++i) {
    hands().type("{ShiftTab}");
    way.emplace_back(platform().focused()->Name());
  }
  EXPECT_THAT(way, ElementsAre("Twin2", "Twin1", "Date", "Button", "Check", "List", "B", "A", "Free"));
}

TEST_P(Focus, TabTakesManyWidgetsOfOneIndexInTheOrderOfTheirMaking) {
  static constexpr std::string_view kNames = "zyxwvutsrqponmlkjihgfedcba";
  static constexpr auto kRows = [] {
    std::array<toolkit::WidgetLayout, kNames.size()> rows{};
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = {.name = kNames.substr(i, 1), .tabIndex = 7};
    return rows;
  }();
  static constexpr toolkit::PanelLayout kLayout{.name = "Many", .widgets = kRows};
  const auto many = platform().makeSurface(kLayout, container(), "many");
  many->textBox("z").SetFocus();
  std::string way = "z";
  for (std::size_t i = 1; i < kNames.size(); ++i) {
    hands().type("{Tab}");
    way += platform().focused()->Name();
  }
  EXPECT_EQ(way, kNames);
}

TEST_P(Focus, TabStaysWithinThePanel) {
  const auto other = another("other");
  other->textBox("Free").SetFocus();
  hands().type("{ShiftTab}");
  EXPECT_EQ(platform().focused(), &other->textBox("Twin2"));
}

TEST_P(Focus, TabStaysWhereThereIsNoOtherWidget) {
  outer().Enabled(false);
  box("Free").SetFocus();
  heard.clear();
  hands().type("{Tab}{ShiftTab}");
  EXPECT_TRUE(box("Free").hasFocus());
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(Focus, TabPassesOverAFrameThatIsSwitchedOff) {
  inner().Visible(false);
  box("A").SetFocus();
  hands().type("{Tab}");
  EXPECT_TRUE(check().hasFocus());
}

}  // namespace
}  // namespace qvn::test
