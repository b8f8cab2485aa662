// Flags read back as they were written, and switching off the holder of the focus takes it away.
#include "tests/contract/contract_panel.h"

namespace qvn::test {
namespace {

class SwitchingOff : public ContractPanel {
 public:
  SwitchingOff() {
    box("B").LostFocus = hears("B.LostFocus");
    box("Free").LostFocus = hears("Free.LostFocus");
  }
};
QVN_ON_EVERY_PLATFORM_AS(Contract, SwitchingOff);

TEST_P(SwitchingOff, FlagsStartAsTheLayoutSays) {
  EXPECT_TRUE(box("A").Enabled());
  EXPECT_TRUE(box("A").Visible());
  EXPECT_FALSE(box("Off").Enabled());
  EXPECT_TRUE(box("Off").Visible());
  EXPECT_TRUE(box("Hidden").Enabled());
  EXPECT_FALSE(box("Hidden").Visible());
  EXPECT_TRUE(panel().Enabled());
  EXPECT_TRUE(panel().Visible());
}

TEST_P(SwitchingOff, AWidgetsFlagsAreItsOwn) {
  outer().Enabled(false);
  outer().Visible(false);
  panel().Enabled(false);
  panel().Visible(false);
  EXPECT_TRUE(box("B").Enabled());
  EXPECT_TRUE(box("B").Visible());
  EXPECT_TRUE(inner().Enabled());
  EXPECT_TRUE(inner().Visible());
  EXPECT_FALSE(outer().Enabled());
  EXPECT_FALSE(outer().Visible());
  EXPECT_FALSE(panel().Enabled());
  EXPECT_FALSE(panel().Visible());
}

TEST_P(SwitchingOff, AFlagCanBeWrittenInsideAFrameThatIsOff) {
  outer().Enabled(false);
  box("B").Enabled(false);
  outer().Enabled(true);
  EXPECT_FALSE(box("B").Enabled());
  outer().Visible(false);
  box("Hidden").Visible(true);
  EXPECT_TRUE(box("Hidden").Visible());
  outer().Visible(true);
  EXPECT_TRUE(box("Hidden").Visible());
}

TEST_P(SwitchingOff, TheHolderLosesTheFocusAtOnceAndNothingGainsIt) {
  const auto loses = [this](const std::function<void(bool)>& set) {
    box("B").SetFocus();
    heard.clear();
    set(false);
    EXPECT_EQ(platform().focused(), nullptr);
    EXPECT_THAT(heard, ElementsAre("lost B", "B.LostFocus"));
    set(true);
    EXPECT_EQ(platform().focused(), nullptr);
    EXPECT_THAT(heard, ElementsAre("lost B", "B.LostFocus"));
  };
  loses([this](bool on) { box("B").Enabled(on); });
  loses([this](bool on) { box("B").Visible(on); });
  loses([this](bool on) { inner().Enabled(on); });
  loses([this](bool on) { inner().Visible(on); });
  loses([this](bool on) { outer().Enabled(on); });
  loses([this](bool on) { outer().Visible(on); });
  loses([this](bool on) { panel().Enabled(on); });
  loses([this](bool on) { panel().Visible(on); });
}

TEST_P(SwitchingOff, TheFlagIsOffAlreadyInLostFocus) {
  box("B").SetFocus();
  box("B").LostFocus = [this] { heard.emplace_back(inner().Enabled() ? "still on" : "off"); };
  heard.clear();
  inner().Enabled(false);
  EXPECT_THAT(heard, ElementsAre("lost B", "off"));
}

TEST_P(SwitchingOff, WhatDoesNotHoldTheFocusLosesNothing) {
  box("Free").SetFocus();
  heard.clear();
  box("B").Enabled(false);
  box("A").Visible(false);
  outer().Enabled(false);
  outer().Visible(false);
  EXPECT_TRUE(box("Free").hasFocus());
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(SwitchingOff, AnotherPanelsFlagsDoNotMatter) {
  const auto other = another("other");
  box("B").SetFocus();
  other->Enabled(false);
  other->Visible(false);
  EXPECT_TRUE(box("B").hasFocus());
}

TEST_P(SwitchingOff, WritingTheFlagThatIsThereTakesNothing) {
  box("B").SetFocus();
  heard.clear();
  box("B").Enabled(true);
  inner().Visible(true);
  panel().Enabled(true);
  EXPECT_TRUE(box("B").hasFocus());
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(SwitchingOff, AFailureOfLostFocusPassesToTheWriterOfTheFlag) {
  box("B").SetFocus();
  box("B").LostFocus = fails("perso");
  EXPECT_FAILURE(outer().Enabled(false), FailureKind::Overflow, "perso");
  EXPECT_FALSE(outer().Enabled());
  EXPECT_EQ(platform().focused(), nullptr);
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(SwitchingOff, LostFocusMayGiveTheFocusToAnother) {
  box("B").SetFocus();
  box("B").LostFocus = [this] { box("Free").SetFocus(); };
  heard.clear();
  outer().Enabled(false);
  EXPECT_TRUE(box("Free").hasFocus());
  EXPECT_THAT(heard, ElementsAre("lost B", "got Free"));
}

TEST_P(SwitchingOff, ListsCheckBoxesButtonsAndDatesLoseItToo) {
  for (toolkit::Widget* each : std::vector<toolkit::Widget*>{&list(), &check(), &button(), &date()}) {
    each->SetFocus();
    each->Enabled(false);
    EXPECT_EQ(platform().focused(), nullptr) << each->Name();
  }
}

}  // namespace
}  // namespace qvn::test
