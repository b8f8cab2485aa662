// The two states of a statement line, whose lists are coloured as the host writes or reads them.
#include <gtest/gtest.h>

#include "qvn/panels/documents/ctlESTRATTI.h"
#include "tests/documents/line_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;
using toolkit::kBlack;
using toolkit::kRed;

constexpr std::uint32_t kGreen = 0x00FF00;

struct State {
  std::string property;
  Variant (ctlESTRATTI::*get)() const;
  void (ctlESTRATTI::*let)(const Variant&);
  std::string box() const { return "Cmb" + property; }
};

const std::vector<State>& states() {
  using P = ctlESTRATTI;
  static const std::vector<State> both{{"ST_COMP", &P::ST_COMP, &P::ST_COMP}, {"ST_PROD", &P::ST_PROD, &P::ST_PROD}};
  return both;
}

class StatementStates : public LinePanel<ctlESTRATTI> {
 public:
  void let(const State& state, const Variant& value) { (*panel.*state.let)(value); }
  Variant get(const State& state) { return (*panel.*state.get)(); }
  toolkit::ComboBox& of(const State& state) { return list(state.box()); }
  const State& otherThan(const State& state) { return states()[state.property == "ST_COMP" ? 1 : 0]; }
};
QVN_ON_EVERY_PLATFORM(StatementStates);

TEST_P(StatementStates, AreBlackUntilTheyAreReadOrWritten) {
  for (const State& state : states()) EXPECT_EQ(of(state).ForeColor(), kBlack);
}

TEST_P(StatementStates, NothingWrittenIsOpenInRed) {
  for (const State& state : states()) {
    for (const Variant& nothing : {Variant(Null{}), Variant(Empty{}), text("")}) {
      SCOPED_TRACE(state.property + " by " + std::string(kindName(nothing)));
      renew();
      let(state, nothing);
      EXPECT_EQ(of(state).Text(), "ATTIVO");
      EXPECT_EQ(of(state).ForeColor(), kRed);
      EXPECT_EQ(heard(), Strings{state.property});
      EXPECT_EQ(get(state), text(""));
      EXPECT_EQ(of(otherThan(state)).ListIndex(), -1);
      EXPECT_EQ(of(otherThan(state)).ForeColor(), kBlack);
    }
  }
}

TEST_P(StatementStates, AnythingElseIsDischargedInGreenAndReadsAsItsLetter) {
  for (const State& state : states()) {
    for (const Variant& anything : {text("S"), text("N"), text("s"), text(" "), text("ATTIVO"),
                                    Variant(std::int32_t{0}), Variant(false), Variant(Date()), Variant(12.5)}) {
      SCOPED_TRACE(state.property + " by " + std::string(kindName(anything)));
      renew();
      let(state, anything);
      EXPECT_EQ(of(state).Text(), "SCARICATO");
      EXPECT_EQ(of(state).ForeColor(), kGreen);
      EXPECT_EQ(heard(), Strings{state.property});
      EXPECT_EQ(get(state), text("S"));
      EXPECT_EQ(of(otherThan(state)).ListIndex(), -1);
      EXPECT_EQ(of(otherThan(state)).ForeColor(), kBlack);
    }
  }
}

TEST_P(StatementStates, WhatHasNoTextIsRefusedWithNothingDone) {
  for (const State& state : states()) {
    EXPECT_FAILURE(let(state, CurrencyArray{}), FailureKind::TypeMismatch, state.box());
    EXPECT_FAILURE(let(state, Globale::Eventi()), FailureKind::TypeMismatch, state.box());
    EXPECT_EQ(of(state).ListIndex(), -1);
    EXPECT_EQ(of(state).ForeColor(), kBlack);
  }
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(StatementStates, OneThatIsShownIsNotSelectedAgainButColoured) {
  for (const State& state : states()) {
    SCOPED_TRACE(state.property);
    let(state, text("S"));
    of(state).ForeColor(kBlack);
    forget();
    let(state, text("X"));
    EXPECT_THAT(heard(), IsEmpty());
    EXPECT_EQ(of(state).ForeColor(), kGreen);
    let(state, Null{});
    of(state).ForeColor(kBlack);
    forget();
    let(state, Empty{});
    EXPECT_THAT(heard(), IsEmpty());
    EXPECT_EQ(of(state).ForeColor(), kRed);
  }
}

TEST_P(StatementStates, ReadingPaintsWhatIsShown) {
  for (const State& state : states()) {
    SCOPED_TRACE(state.property);
    EXPECT_EQ(get(state), text(""));  // nothing is shown
    EXPECT_EQ(of(state).ForeColor(), kRed);
    EXPECT_EQ(of(otherThan(state)).ForeColor(), kBlack);
    of(state).ListIndex(0);
    EXPECT_EQ(of(state).ForeColor(), kRed);
    EXPECT_EQ(getByName(*panel, state.property), text("S"));
    EXPECT_EQ(of(state).ForeColor(), kGreen);
    of(state).ListIndex(1);
    EXPECT_EQ(of(state).ForeColor(), kGreen);
    EXPECT_EQ(get(state), text(""));
    EXPECT_EQ(of(state).ForeColor(), kRed);
    EXPECT_EQ(heard(), (Strings{state.property, state.property}));  // of the two selections
    renew();
  }
}

TEST_P(StatementStates, TheOperatorsPickIsAnnouncedAndKeepsTheColourUntilTheHostReads) {
  panel->COD_PROD("P1");
  for (const State& state : states()) {
    SCOPED_TRACE(state.property);
    let(state, text(""));
    panel->Attiva();
    forget();
    hands().choose(of(state), "SCARICATO");
    EXPECT_EQ(heard(), Strings{state.property});
    hands().leave();
    EXPECT_EQ(of(state).ForeColor(), kRed);
    EXPECT_EQ(get(state), text("S"));
    EXPECT_EQ(of(state).ForeColor(), kGreen);
    hands().choose(of(state), "ATTIVO");
    EXPECT_EQ(of(state).ForeColor(), kGreen);
    EXPECT_EQ(get(state), text(""));
    EXPECT_EQ(of(state).ForeColor(), kRed);
  }
}

TEST_P(StatementStates, TheColourFollowsTheSelectionOnceItIsAnnounced) {
  for (const State& state : states()) {
    let(state, text(""));
    std::string shown;
    std::uint32_t colour = kBlack;
    container().onNotice = [&](toolkit::Surface&, std::string_view) {
      shown = of(state).Text();
      colour = of(state).ForeColor();
    };
    let(state, text("S"));
    container().onNotice = {};
    EXPECT_EQ(shown, "SCARICATO");
    EXPECT_EQ(colour, kRed);
    EXPECT_EQ(of(state).ForeColor(), kGreen);
  }
}

TEST_P(StatementStates, AnAnnouncementThatFailsLeavesTheSelectionWithoutItsColour) {
  for (const State& state : states()) {
    let(state, text(""));
    container().onNotice = [](toolkit::Surface&, std::string_view) {
      throw Failure(FailureKind::InvalidCall, "the host refuses");
    };
    EXPECT_FAILURE(let(state, text("S")), FailureKind::InvalidCall, "the host refuses");
    container().onNotice = {};
    EXPECT_EQ(of(state).Text(), "SCARICATO");
    EXPECT_EQ(of(state).ForeColor(), kRed);
  }
}

TEST_P(StatementStates, AreWrittenWhileTheyAreDisabled) {
  panel->Attiva();
  EXPECT_FALSE(list("CmbST_PROD").Enabled());
  panel->ST_PROD(text("S"));
  EXPECT_EQ(list("CmbST_PROD").Text(), "SCARICATO");
  EXPECT_EQ(list("CmbST_PROD").ForeColor(), kGreen);
  panel->Disattiva();
  panel->ST_COMP(text("S"));
  EXPECT_EQ(panel->ST_COMP(), text("S"));
}

TEST_P(StatementStates, FocusAndFreezingLeaveTheColourOfTheText) {
  panel->COD_PROD("P1");
  panel->ST_COMP(text("S"));
  panel->ST_PROD(text(""));
  panel->Attiva();
  hands().focus(list("CmbST_COMP"));
  hands().focus(list("CmbST_PROD"));
  panel->Disattiva();
  EXPECT_EQ(list("CmbST_COMP").ForeColor(), kGreen);
  EXPECT_EQ(list("CmbST_PROD").ForeColor(), kRed);
}

}  // namespace
}  // namespace qvn::test
