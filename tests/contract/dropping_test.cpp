// A host may drop a panel at any moment, from inside one of its handlers as well.
#include "tests/contract/contract_panel.h"

namespace qvn::test {
namespace {

class Dropping : public ContractPanel {
 public:
  /// Lets every other handler of the box A say that it ran, which it must not once the panel is gone.
  void listen(toolkit::TextBox& field) {
    field.KeyPress = [this](std::int16_t&) { heard.emplace_back("KeyPress"); };
    field.Change = hears("Change");
    field.GotFocus = hears("GotFocus");
    field.LostFocus = hears("LostFocus");
  }
};
QVN_ON_EVERY_PLATFORM_AS(Contract, Dropping);

TEST_P(Dropping, TakesTheFocusAndRaisesNothing) {
  box().SetFocus();
  listen(box());
  heard.clear();
  dropPanel();
  EXPECT_EQ(platform().focused(), nullptr);
  EXPECT_THAT(heard, testing::Not(testing::Contains("LostFocus")));
  EXPECT_FAILURE(hands().type("1"), FailureKind::InvalidCall, "focus");
}

TEST_P(Dropping, AnotherPanelLeavesTheFocusWhereItIs) {
  auto other = another("other");
  box().SetFocus();
  other.reset();
  EXPECT_TRUE(box().hasFocus());
}

TEST_P(Dropping, TheNextFocusTellsNothingOfThePanelThatIsGone) {
  box().SetFocus();
  dropPanel();
  const auto other = another("other");
  heard.clear();
  other->textBox("B").SetFocus();
  EXPECT_THAT(heard, ElementsAre("got B"));
}

TEST_P(Dropping, InKeyPressDropsTheKey) {
  box().SetFocus();
  listen(box());
  box().KeyPress = [this](std::int16_t&) { dropPanel(); };
  heard.clear();
  hands().type("1");
  EXPECT_EQ(platform().focused(), nullptr);
  EXPECT_THAT(heard, testing::Not(testing::Contains("Change")));
  EXPECT_FAILURE(hands().type("2"), FailureKind::InvalidCall, "focus");
}

TEST_P(Dropping, InChangeEndsTheTyping) {
  box().SetFocus();
  listen(box());
  box().Change = [this] { dropPanel(); };
  EXPECT_FAILURE(hands().type("12"), FailureKind::InvalidCall, "focus");
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(Dropping, InChangeEndsAPaste) {
  box().SetFocus();
  box().Change = [this] { dropPanel(); };
  hands().paste("12");
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(Dropping, InChangeOfAProgramsWrite) {
  box("Free").SetFocus();
  box().Change = [this] {
    heard.emplace_back("Change");
    dropPanel();
  };
  box().Text("12");
  EXPECT_THAT(heard, testing::Contains("Change"));
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(Dropping, AHandlerMayUseItsWidgetsToItsEnd) {
  toolkit::TextBox& field = box();
  field.SetFocus();
  const std::string longText(100, 'x');
  field.Change = [this, &field, longText] {
    heard.emplace_back("Change");
    dropPanel();
    field.Text(longText);
    field.SelLength(5);
    field.BackColor(toolkit::kWhite);
    EXPECT_EQ(field.Text(), longText);
    EXPECT_EQ(field.SelLength(), 5);
    EXPECT_EQ(&field.owner().platform(), &platform());
    EXPECT_FALSE(field.hasFocus());
    EXPECT_FAILURE(field.SetFocus(), FailureKind::InvalidCall, "A");
  };
  heard.clear();
  hands().type("1");
  EXPECT_THAT(heard, ElementsAre("Change"));
}

TEST_P(Dropping, InLostFocusLetsTheMoveToAnotherPanelGoOn) {
  const auto other = another("other");
  box().SetFocus();
  box().LostFocus = [this] { dropPanel(); };
  other->textBox("A").GotFocus = hears("other GotFocus");
  heard.clear();
  hands().focus(other->textBox("A"));
  EXPECT_TRUE(other->textBox("A").hasFocus());
  EXPECT_THAT(heard, ElementsAre("lost A", "got A", "other GotFocus"));
}

TEST_P(Dropping, InLostFocusOfTheNextHoldersPanel) {
  auto other = another("other");
  box().SetFocus();
  box().LostFocus = [&] { other.reset(); };
  other->textBox("A").GotFocus = hears("other GotFocus");
  heard.clear();
  other->textBox("A").SetFocus();
  EXPECT_EQ(platform().focused(), nullptr);
  EXPECT_THAT(heard, ElementsAre("lost A"));
}

TEST_P(Dropping, InLostFocusWhenSwitchedOff) {
  box().SetFocus();
  box().LostFocus = [this] { dropPanel(); };
  outer().Enabled(false);
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(Dropping, InGotFocus) {
  box().GotFocus = [this] { dropPanel(); };
  box().SetFocus();
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(Dropping, InClick) {
  button().Click = [this] { dropPanel(); };
  hands().click(button());
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(Dropping, InClickOfACheckBox) {
  check().Click = [this] { dropPanel(); };
  hands().click(check());
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(Dropping, InClickOfAList) {
  list().Click = [this] { dropPanel(); };
  hands().choose(list(), 1);
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(Dropping, InChangeOfALabel) {
  box("Free").SetFocus();
  label().Change = [this] {
    heard.emplace_back("Change");
    dropPanel();
  };
  label().Caption("nuova");
  EXPECT_THAT(heard, testing::Contains("Change"));
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(Dropping, InLostFocusBeforeAClick) {
  box().SetFocus();
  box().LostFocus = [this] { dropPanel(); };
  check().Click = hears("click");
  heard.clear();
  hands().click(check());
  EXPECT_EQ(platform().focused(), nullptr);
  EXPECT_THAT(heard, ElementsAre("lost A"));
}

TEST_P(Dropping, ByTheContainerInsideANotice) {
  container().onNotice = [this](toolkit::Surface&, std::string_view) { dropPanel(); };
  toolkit::Surface& surface = panel();
  box().SetFocus();
  box().Change = [&surface] { surface.container().PropertyChanged(surface, "A"); };
  hands().type("1");
  EXPECT_THAT(container().notices, ElementsAre("A"));
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(Dropping, AFailureAfterwardsGoesToNobody) {
  box().SetFocus();
  box().Change = [this] {
    dropPanel();
    throw Failure(FailureKind::Overflow, "troppo tardi");
  };
  hands().type("1");
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(Dropping, ReleasesWhatTheHandlersHold) {
  const auto held = std::make_shared<int>(1);
  box().SetFocus();
  box().Change = [this, held] {
    dropPanel();
    EXPECT_GE(held.use_count(), 2);
  };
  hands().type("1");
  EXPECT_EQ(held.use_count(), 1);
}

TEST_P(Dropping, IsToldByTheSurface) {
  toolkit::Surface& surface = panel();
  EXPECT_FALSE(surface.dropped());
  bool told = false;
  box().Change = [&] {
    dropPanel();
    told = surface.dropped();
  };
  box().Text("1");
  EXPECT_TRUE(told);
}

TEST_P(Dropping, ReleasesAtOnceWhatTheSurfaceKeeps) {
  const auto held = std::make_shared<int>(1);
  panel().keep(std::make_unique<std::shared_ptr<int>>(held));
  EXPECT_EQ(held.use_count(), 2);
  dropPanel();
  EXPECT_EQ(held.use_count(), 1);
}

TEST_P(Dropping, InAHandlerLeavesItWhatTheSurfaceKeeps) {
  const auto held = std::make_shared<int>(1);
  const auto& kept = panel().keep(std::make_unique<std::shared_ptr<int>>(held));
  box().Change = [this, &kept] {
    dropPanel();
    EXPECT_EQ(*kept, 1);
  };
  box().Text("1");
  EXPECT_EQ(held.use_count(), 1);
}

TEST_P(Dropping, WhileItIsHeldLeavesTheWidgetsUsableAndSilent) {
  const auto held = std::make_shared<int>(1);
  toolkit::Surface& surface = panel();
  surface.keep(std::make_unique<std::shared_ptr<int>>(held));
  toolkit::TextBox& field = box();
  toolkit::Label& text = label();
  listen(field);
  text.Change = hears("label Change");
  {
    const toolkit::Surface::Hold outer(surface);
    {
      const toolkit::Surface::Hold inner(surface);
      EXPECT_FALSE(surface.dropped());
      dropPanel();
    }
    heard.clear();
    EXPECT_TRUE(surface.dropped());
    EXPECT_EQ(&field.owner(), &surface);
    field.Text("ancora");
    text.Caption("ancora");
    EXPECT_EQ(field.Text(), "ancora");
    EXPECT_EQ(text.Caption(), "ancora");
    EXPECT_FAILURE(field.SetFocus(), FailureKind::InvalidCall, "A");
    EXPECT_EQ(held.use_count(), 2);
    EXPECT_THAT(heard, IsEmpty());
  }
  EXPECT_EQ(held.use_count(), 1);
}

TEST_P(Dropping, AHoldThatEndsLeavesASurfaceThatWasNotDropped) {
  toolkit::Surface& surface = panel();
  { const toolkit::Surface::Hold hold(surface); }
  listen(box());
  heard.clear();
  box().Text("1");
  EXPECT_THAT(heard, ElementsAre("Change"));
}

TEST_P(Dropping, OfSeveralPanelsInOneHandler) {
  auto second = another("second");
  auto third = another("third");
  box().SetFocus();
  box().Change = [&] {
    second.reset();
    dropPanel();
    third.reset();
  };
  hands().type("1");
  EXPECT_EQ(platform().focused(), nullptr);
  const auto fresh = another("fresh");
  hands().focus(fresh->textBox("A"));
  hands().type("1");
  EXPECT_EQ(fresh->textBox("A").Text(), "1");
}

}  // namespace
}  // namespace qvn::test
