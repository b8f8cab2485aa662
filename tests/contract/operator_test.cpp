// The operator's requests themselves, and the watcher's eyes.
#include "tests/contract/contract_panel.h"

namespace qvn::test {
namespace {

QVN_CONTRACT(OperatorsHands);

TEST_P(OperatorsHands, SetTheSelectionOfTheFocusedField) {
  box().Text("12345");
  box().SetFocus();
  hands().caret(1, 3);
  EXPECT_EQ(selection(box()), sel(1, 3));
  hands().caret(3, 99);
  EXPECT_EQ(selection(box()), sel(3, 2));
  hands().caret(-1, -1);
  EXPECT_EQ(selection(box()), sel(0, 0));
  date().SetFocus();
  hands().caret(3, 2);
  EXPECT_EQ(selection(date()), sel(3, 2));
}

TEST_P(OperatorsHands, SelectNothingWhereNoFieldHasTheFocus) {
  EXPECT_FAILURE(hands().caret(0, 0), FailureKind::InvalidCall, "focus");
  check().SetFocus();
  EXPECT_FAILURE(hands().caret(0, 0), FailureKind::InvalidCall, "Check");
}

TEST_P(OperatorsHands, DoNotReachWidgetsOfAnotherPlatform) {
  const auto elsewhere = GetParam().make();
  const auto foreign = elsewhere->platform().makeSurface(kContractLayout, container(), "foreign");
  EXPECT_FAILURE(hands().focus(foreign->textBox("A")), FailureKind::InvalidCall, "foreign.A");
  EXPECT_FAILURE(hands().click(foreign->checkBox("Check")), FailureKind::InvalidCall, "foreign.Check");
  EXPECT_FAILURE(hands().choose(foreign->comboBox("List"), 0), FailureKind::InvalidCall, "foreign.List");
  EXPECT_FAILURE(hands().choose(foreign->comboBox("List"), "Uno"), FailureKind::InvalidCall, "foreign.List");
  EXPECT_EQ(elsewhere->platform().focused(), nullptr);
}

TEST_P(OperatorsHands, MoveNothingOnAPanelThatIsOff) {
  check().Click = hears("check");
  button().Click = hears("button");
  list().Click = hears("list");
  const auto findNothing = [this](const std::function<void(bool)>& set) {
    set(false);
    EXPECT_FAILURE(hands().focus(box("Free")), FailureKind::InvalidCall, "panel.Free");
    EXPECT_FAILURE(hands().choose(list(), 1), FailureKind::InvalidCall, "panel.List");
    EXPECT_FAILURE(hands().choose(list(), "Due"), FailureKind::InvalidCall, "panel.List");
    hands().click(check());
    hands().click(button());
    EXPECT_EQ(platform().focused(), nullptr);
    EXPECT_EQ(list().ListIndex(), -1);
    EXPECT_EQ(check().Value(), 0);
    EXPECT_THAT(heard, IsEmpty());
    set(true);
  };
  findNothing([this](bool on) { panel().Enabled(on); });
  findNothing([this](bool on) { panel().Visible(on); });
}

TEST_P(OperatorsHands, MayBeUsedInsideAHandler) {
  box("B").Text("");
  box("A").SetFocus();
  box("A").Change = [this] {
    hands().focus(box("B"));
    hands().type("b");
  };
  hands().type("a");
  EXPECT_EQ(box("A").Text(), "a");
  EXPECT_EQ(box("B").Text(), "b");
}

TEST_P(OperatorsHands, AWatcherHearsAfterTheMoveAndBeforeTheHandler) {
  struct Eyes final : ::qvn::Watcher {
    explicit Eyes(toolkit::Platform& platform) : platform_(platform) {}
    void lostFocus(const toolkit::Widget& widget) override {
      EXPECT_NE(platform_.focused(), &widget);
      ++lost;
    }
    void gotFocus(const toolkit::Widget& widget) override {
      EXPECT_EQ(platform_.focused(), &widget);
      ++got;
    }
    void beeped() override {}
    toolkit::Platform& platform_;
    int lost = 0;
    int got = 0;
  } eyes(platform());
  under().watch(&eyes);
  box("A").LostFocus = [&] {
    EXPECT_EQ(eyes.lost, 1);
    heard.emplace_back("A.LostFocus");
  };
  box("B").GotFocus = [&] {
    EXPECT_EQ(eyes.got, 2);
    heard.emplace_back("B.GotFocus");
  };
  box("A").SetFocus();
  hands().focus(box("B"));
  hands().leave();
  EXPECT_THAT(heard, ElementsAre("A.LostFocus", "B.GotFocus"));
  EXPECT_EQ(eyes.lost, 2);
  EXPECT_EQ(eyes.got, 2);
  under().watch(nullptr);
  box("Free").SetFocus();
  hands().leave();
  EXPECT_EQ(eyes.lost, 2);
  EXPECT_EQ(eyes.got, 2);
}

}  // namespace
}  // namespace qvn::test
