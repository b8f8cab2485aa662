// The way of the Enter key through a panel.
#include <gtest/gtest.h>

#include "qvn/fields/Gest_SCHEDE.h"
#include "tests/failure_matchers.h"
#include "tests/fields/field_bench.h"

namespace qvn::test {
namespace {

using Gest_SCHEDE::ProssimoCampo;

class Traversal : public FieldBench {};
QVN_ON_EVERY_PLATFORM(Traversal);

/// Enter from the widget; the name of the one that then has the focus.
std::string next(FieldBench& bench, std::string_view from) {
  toolkit::Widget& start = bench.panel().widget(from);
  start.SetFocus();
  ProssimoCampo(start);
  return std::string(bench.platform().focused()->Name());
}

TEST_P(Traversal, GoesByTabIndexAcrossFramesAndOverEveryKindThatTakesIt) {
  EXPECT_EQ(next(*this, "A"), "B");
  EXPECT_EQ(next(*this, "B"), "List");      // over a label
  EXPECT_EQ(next(*this, "List"), "Check");  // into the other frame
}

TEST_P(Traversal, WrapsBehindTheLastToTheLowestAboveZero) {
  EXPECT_EQ(next(*this, "Last"), "A");  // over the button behind it, and the field with TabIndex 0 is never reached
}

TEST_P(Traversal, ReachesADateControlAndNeverLeavesOne) {
  panel().widget("List").Enabled(false);
  panel().widget("Check").Enabled(false);
  EXPECT_EQ(next(*this, "B"), "Date");
  EXPECT_EQ(next(*this, "Date"), "Date");
}

TEST_P(Traversal, FailsFromACheckBoxAndDoesNothingFromAButton) {
  panel().widget("Check").SetFocus();
  EXPECT_FAILURE(ProssimoCampo(panel().widget("Check")), FailureKind::InvalidCall, "bench.Check");
  EXPECT_TRUE(panel().widget("Check").hasFocus());
  EXPECT_EQ(next(*this, "Button"), "Button");
}

TEST_P(Traversal, PassesOverDisabledAndHiddenFields) {
  field("B").Enabled(false);
  panel().widget("List").Visible(false);
  EXPECT_EQ(next(*this, "A"), "Check");
}

TEST_P(Traversal, PassesOverAHiddenFirstFieldAfterTheWrapToo) {
  field("A").Visible(false);
  EXPECT_EQ(next(*this, "Last"), "B");
}

TEST_P(Traversal, TakesTheFirstOfTwoWithTheSameIndex) {
  panel().widget("Date").Enabled(false);
  EXPECT_EQ(next(*this, "List"), "Check");
  panel().widget("Check").Enabled(false);
  EXPECT_EQ(next(*this, "List"), "Twin1");
  field("Twin1").Enabled(false);
  EXPECT_EQ(next(*this, "List"), "Twin2");
}

TEST_P(Traversal, FromOneOfTwoWithTheSameIndexGoesOnBehindBoth) { EXPECT_EQ(next(*this, "Twin1"), "Last"); }

TEST_P(Traversal, NeverChoosesAFieldWithAnIndexOfTenThousandOrMore) {
  for (const auto name : {"A", "B", "Twin1", "Twin2"}) field(name).Enabled(false);
  for (const auto name : {"List", "Check", "Date"}) panel().widget(name).Enabled(false);
  EXPECT_EQ(next(*this, "Last"), "Last");  // "Beyond" stands enabled with 10000
}

TEST_P(Traversal, AnOnlyCandidateKeepsTheFocusWithoutEvents) {
  for (const auto name : {"B", "Twin1", "Twin2", "Last"}) field(name).Enabled(false);
  for (const auto name : {"List", "Check", "Date"}) panel().widget(name).Enabled(false);
  field("A").SetFocus();
  int events = 0;
  field("A").GotFocus = field("A").LostFocus = [&events] { ++events; };
  ProssimoCampo(field("A"));
  EXPECT_TRUE(field("A").hasFocus());
  EXPECT_EQ(events, 0);
}

TEST_P(Traversal, AnOnlyCandidateWithoutTheFocusGetsIt) {
  for (const auto name : {"B", "Twin1", "Twin2", "Last"}) field(name).Enabled(false);
  for (const auto name : {"List", "Check", "Date"}) panel().widget(name).Enabled(false);
  ProssimoCampo(field("A"));
  EXPECT_TRUE(field("A").hasFocus());
}

TEST_P(Traversal, GoesOnFromTheFirstIndexAndFromBeyondTheLast) {
  EXPECT_EQ(next(*this, "Zero"), "A");
  EXPECT_EQ(next(*this, "Beyond"), "A");
  EXPECT_EQ(next(*this, "FarBeyond"), "A");
}

TEST_P(Traversal, CountsAFieldVisibleInAHiddenFrameAndFailsThere) {
  panel().widget("List").Visible(false);
  panel().frame("Other").Visible(false);
  field("B").SetFocus();
  EXPECT_FAILURE(ProssimoCampo(field("B")), FailureKind::InvalidCall, "Check");
  EXPECT_TRUE(field("B").hasFocus());
}

TEST_P(Traversal, CountsAFieldEnabledInADisabledFrameAndFailsThere) {
  panel().widget("List").Enabled(false);
  panel().frame("Other").Enabled(false);
  field("B").SetFocus();
  EXPECT_FAILURE(ProssimoCampo(field("B")), FailureKind::InvalidCall, "Check");
  EXPECT_TRUE(field("B").hasFocus());
}

TEST_P(Traversal, WithoutAnyCandidateFails) {
  for (const auto name : {"A", "B", "Twin1", "Twin2", "Last"}) field(name).Enabled(false);
  for (const auto name : {"List", "Check", "Date"}) panel().widget(name).Enabled(false);
  EXPECT_FAILURE(ProssimoCampo(field("A")), FailureKind::InvalidCall, "bench.A");
}

TEST_P(Traversal, RunsLostFocusAndGotFocusBeforeItReturns) {
  std::string order;
  field("A").LostFocus = [&] { order += "lost A, "; };
  field("B").GotFocus = [&] { order += "got B"; };
  field("A").SetFocus();
  ProssimoCampo(field("A"));
  EXPECT_EQ(order, "lost A, got B");
}

}  // namespace
}  // namespace qvn::test
