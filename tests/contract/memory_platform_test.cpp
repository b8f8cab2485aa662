// What the platform in memory promises beyond the contract.
#include <array>
#include <ctime>
#include <gtest/gtest.h>

#include "platforms/memory/platform.h"
#include "tests/failure_matchers.h"
#include "tests/recording_container.h"

namespace qvn::test {
namespace {

constexpr std::array<toolkit::WidgetLayout, 2> kTwoFields{{{.name = "A", .tabIndex = 1}, {.name = "B", .tabIndex = 2}}};
constexpr toolkit::PanelLayout kLayout{.name = "Two", .widgets = kTwoFields};

class MemoryPlatform : public testing::Test {
 protected:
  memory::Platform platform;
  RecordingContainer container;
  std::unique_ptr<toolkit::Surface> panel = platform.makeSurface(kLayout, container, "panel");
  toolkit::TextBox& a = panel->textBox("A");
  toolkit::TextBox& b = panel->textBox("B");
};

TEST_F(MemoryPlatform, ChangesThatNeverSettleFail) {
  a.Change = [this] { a.Text(a.Text() + "x"); };
  EXPECT_FAILURE(a.Text("x"), FailureKind::InvalidCall, "without end");
  a.Change = nullptr;
  a.Text("ancora");
  EXPECT_EQ(a.Text(), "ancora");
}

TEST_F(MemoryPlatform, AFieldSwitchedOffByHandlersWithoutEndHasLostTheFocus) {
  a.SetFocus();
  a.LostFocus = [] {};
  int switchedOff = 0;
  a.Change = [&] {
    try {
      a.Text(a.Text() + "x");
    } catch (const Failure&) {
      EXPECT_FAILURE(a.Enabled(false), FailureKind::InvalidCall, "without end");
      EXPECT_FALSE(a.Enabled());
      EXPECT_FALSE(a.hasFocus());
      ++switchedOff;
    }
  };
  a.Text("x");
  EXPECT_EQ(switchedOff, 1);
  a.Enabled(true);
  a.SetFocus();
  EXPECT_TRUE(a.hasFocus());
}

TEST_F(MemoryPlatform, AWatcherMayDropThePanelThatItHearsOf) {
  struct Dropper final : Watcher {
    explicit Dropper(std::unique_ptr<toolkit::Surface>& dropped) : panel(dropped) {}
    void lostFocus(const toolkit::Widget&) override { panel.reset(); }
    void gotFocus(const toolkit::Widget&) override {}
    void beeped() override {}
    std::unique_ptr<toolkit::Surface>& panel;
  } dropper(panel);
  bool told = false;
  a.SetFocus();
  a.LostFocus = [&] { told = true; };
  platform.watch(&dropper);
  a.Enabled(false);
  platform.watch(nullptr);
  EXPECT_EQ(panel, nullptr);
  EXPECT_EQ(platform.focused(), nullptr);
  EXPECT_FALSE(told);
}

TEST_F(MemoryPlatform, FieldsThatSendTheFocusToEachOtherFail) {
  a.GotFocus = [this] { b.SetFocus(); };
  b.GotFocus = [this] { a.SetFocus(); };
  EXPECT_FAILURE(a.SetFocus(), FailureKind::InvalidCall, "without end");
  a.GotFocus = nullptr;
  b.GotFocus = nullptr;
  a.SetFocus();
  EXPECT_EQ(platform.focused(), &a);
}

TEST_F(MemoryPlatform, FieldsThatSendTheFocusToEachOtherAreReportedUnderTheHand) {
  a.GotFocus = [this] { b.SetFocus(); };
  b.GotFocus = [this] { a.SetFocus(); };
  platform.hands().focus(a);
  ASSERT_EQ(container.failures.size(), 1U);
  EXPECT_EQ(container.failures[0].event, "GotFocus");
}

TEST_F(MemoryPlatform, TheDateIsTheSystemsUntilOneIsFixed) {
  const auto system = [] {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return Date::of(local.tm_mday, local.tm_mon + 1, local.tm_year + 1900).value();
  };
  const Date before = system();
  const Date today = platform.clock().today();
  const Date after = system();
  EXPECT_LE(before, today);
  EXPECT_LE(today, after);
  platform.today(Date::of(1, 1, 2000).value());
  EXPECT_EQ(platform.clock().today(), Date::of(1, 1, 2000));
}

TEST_F(MemoryPlatform, TheScreenIsOfTheUsualSize) {
  EXPECT_EQ(platform.screen().width, 15360);
  EXPECT_EQ(platform.screen().height, 11520);
}

TEST_F(MemoryPlatform, AFailureThatIsNoFailureOfTheLibraryPassesThrough) {
  a.SetFocus();
  a.KeyPress = [](std::int16_t&) { throw std::bad_alloc(); };
  EXPECT_THROW(platform.hands().type("1"), std::bad_alloc);
  a.KeyPress = nullptr;
  platform.hands().type("2");
  EXPECT_EQ(a.Text(), "2");
}

}  // namespace
}  // namespace qvn::test
