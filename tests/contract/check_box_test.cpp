// Check box and button.
#include "tests/contract/contract_panel.h"

namespace qvn::test {
namespace {

QVN_CONTRACT(CheckBox);

TEST_P(CheckBox, StartsUnchecked) {
  EXPECT_EQ(check().Value(), 0);
  EXPECT_EQ(check().Caption(), "Attivo");
}

TEST_P(CheckBox, AChangedValueRaisesClick) {
  check().Click = [this] { heard.push_back(std::to_string(check().Value())); };
  check().Value(1);
  check().Value(0);
  EXPECT_THAT(heard, ElementsAre("1", "0"));
}

TEST_P(CheckBox, AnUnchangedValueRaisesNothing) {
  check().Click = hears("click");
  check().Value(0);
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(CheckBox, OtherValuesFail) {
  check().Click = hears("click");
  EXPECT_FAILURE(check().Value(2), FailureKind::InvalidCall, "Check");
  EXPECT_FAILURE(check().Value(-1), FailureKind::InvalidCall, "-1");
  EXPECT_EQ(check().Value(), 0);
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(CheckBox, AFailureOfClickPassesToTheWriterAndTheValueStays) {
  check().Click = fails("scelta");
  EXPECT_FAILURE(check().Value(1), FailureKind::Overflow, "scelta");
  EXPECT_EQ(check().Value(), 1);
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(CheckBox, AClickTogglesItAndGivesItTheFocus) {
  check().Click = [this] { heard.push_back(std::to_string(check().Value())); };
  hands().click(check());
  hands().click(check());
  EXPECT_THAT(heard, ElementsAre("got Check", "1", "0"));
}

TEST_P(CheckBox, SpaceTogglesIt) {
  check().SetFocus();
  check().Click = [this] { heard.push_back(std::to_string(check().Value())); };
  heard.clear();
  hands().type("  ");
  EXPECT_THAT(heard, ElementsAre("1", "0"));
}

TEST_P(CheckBox, OtherKeysLeaveIt) {
  check().SetFocus();
  check().Click = hears("click");
  heard.clear();
  hands().type("x1{Enter}{Escape}{Backspace}{Delete}");
  EXPECT_EQ(check().Value(), 0);
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(CheckBox, AClickOnOneThatIsOffDoesNothing) {
  check().Click = hears("click");
  const auto doesNothing = [this](const std::function<void(bool)>& set) {
    set(false);
    hands().click(check());
    EXPECT_EQ(check().Value(), 0);
    EXPECT_THAT(heard, IsEmpty());
    set(true);
  };
  doesNothing([this](bool on) { check().Enabled(on); });
  doesNothing([this](bool on) { check().Visible(on); });
  doesNothing([this](bool on) { outer().Enabled(on); });
  doesNothing([this](bool on) { outer().Visible(on); });
  doesNothing([this](bool on) { panel().Enabled(on); });
  doesNothing([this](bool on) { panel().Visible(on); });
}

QVN_CONTRACT(CommandButton);

TEST_P(CommandButton, ShowsTheLayoutsCaption) { EXPECT_EQ(button().Caption(), "Compagnie"); }

TEST_P(CommandButton, AClickGivesItTheFocusAndRaisesClick) {
  box("A").SetFocus();
  box("A").LostFocus = hears("A.LostFocus");
  button().Click = hears("click");
  heard.clear();
  hands().click(button());
  EXPECT_THAT(heard, ElementsAre("lost A", "A.LostFocus", "got Button", "click"));
}

TEST_P(CommandButton, AClickComesToNothingWhereLostFocusSwitchesItOff) {
  box("A").SetFocus();
  box("A").LostFocus = [this] { button().Enabled(false); };
  button().Click = hears("click");
  heard.clear();
  hands().click(button());
  EXPECT_EQ(platform().focused(), nullptr);
  EXPECT_THAT(heard, ElementsAre("lost A"));
}

TEST_P(CommandButton, SpaceAndEnterClickIt) {
  button().SetFocus();
  button().Click = hears("click");
  heard.clear();
  hands().type(" {Enter}x{Escape}");
  EXPECT_THAT(heard, ElementsAre("click", "click"));
}

TEST_P(CommandButton, AClickOnOneThatIsOffDoesNothing) {
  button().Click = hears("click");
  button().Enabled(false);
  hands().click(button());
  button().Enabled(true);
  outer().Visible(false);
  hands().click(button());
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(CommandButton, OtherWidgetsAreNotClicked) {
  EXPECT_FAILURE(hands().click(box("A")), FailureKind::InvalidCall, "A");
  EXPECT_FAILURE(hands().click(label()), FailureKind::InvalidCall, "Label");
}

}  // namespace
}  // namespace qvn::test
