// Making the title panel ready, with and without the right to cancel, and freezing it.
#include <gtest/gtest.h>

#include "tests/documents/title_bench.h"
#include "tests/noting_platform.h"
#include "tests/refusing_platform.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

class TitleAttiva : public TitlePanel {
 public:
  Strings visits(std::size_t count) { return Strings(count, "N_STATO"); }
  bool allEnabled() { return date("TxtDATA_C").Enabled() && date("TxtDATA_DOC").Enabled() && actions().Enabled(); }
  bool noneEnabled() { return !date("TxtDATA_C").Enabled() && !date("TxtDATA_DOC").Enabled() && !actions().Enabled(); }
};
QVN_ON_EVERY_PLATFORM(TitleAttiva);

TEST_P(TitleAttiva, EnablesDatesAndActionsAndGoesToTheFirstDate) {
  title("S", "");
  panel->DATA_C(day(5, 3, 2026));
  forget();
  panel->Attiva(true);
  EXPECT_TRUE(allEnabled());
  EXPECT_EQ(focused(), "TxtDATA_C");
  EXPECT_TRUE(wholeSelected(date("TxtDATA_C")));
  EXPECT_EQ(date("TxtDATA_C").BackColor(), kCyan);
  EXPECT_THAT(heard(), IsEmpty());
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(TitleAttiva, SelectsTheDateThatHasTheFocusAlready) {
  panel->Attiva(true);
  panel->DATA_C(day(5, 3, 2026));
  hands().caret(2, 1);
  panel->Attiva(true);
  EXPECT_TRUE(wholeSelected(date("TxtDATA_C")));
}

TEST_P(TitleAttiva, WithTheRightLeavesTheActionsAsTheyStand) {
  for (const std::string action : {"", "C", "I", "A"}) {
    title("S", action);
    const std::int32_t current = actions().ListIndex();
    panel->Attiva(true);
    EXPECT_EQ(items(), (Strings{"", "COPRI", "INCASSA", "ANNULLA"}));
    EXPECT_EQ(actions().ListIndex(), current);
    EXPECT_THAT(heard(), IsEmpty());
  }
}

TEST_P(TitleAttiva, WithoutTheRightCancellingGoesAndThePendingActionStays) {
  title("S", "I");
  panel->Attiva(false);
  EXPECT_EQ(items(), (Strings{"", "COPRI", "INCASSA"}));
  EXPECT_EQ(actions().ListIndex(), 2);
  EXPECT_EQ(panel->N_STATO(), text("I"));
  // Each of the four is visited, and what was pending selected again.
  EXPECT_EQ(heard(), visits(5));
  EXPECT_EQ(focused(), "TxtDATA_C");
}

TEST_P(TitleAttiva, EachActionIsSelectedOnTheWay) {
  title("C", "I");
  Strings seen;
  container().onNotice = [&](toolkit::Surface&, std::string_view) { seen.push_back(actions().Text()); };
  panel->Attiva(false);
  EXPECT_EQ(seen, (Strings{"", "INCASSA", "ANNULLA", "INCASSA"}));
  EXPECT_EQ(items(), (Strings{"", "INCASSA"}));
}

TEST_P(TitleAttiva, DatesAndActionsAreEnabledBeforeTheFirstVisit) {
  title("C", "I");
  bool enabled = true;
  container().onNotice = [&](toolkit::Surface&, std::string_view) { enabled = enabled && allEnabled(); };
  panel->Attiva(false);
  EXPECT_TRUE(enabled);
}

TEST_P(TitleAttiva, TheFocusMovesAfterTheLastVisit) {
  title("C", "I");
  Strings holders;
  container().onNotice = [&](toolkit::Surface&, std::string_view) { holders.push_back(focused()); };
  panel->Attiva(false);
  EXPECT_EQ(holders, Strings(4, ""));
  EXPECT_EQ(focused(), "TxtDATA_C");
}

TEST_P(TitleAttiva, APendingCancellingStaysForAnybody) {
  for (const std::string state : {"S", "C"}) {
    title(state, "A");
    const Strings before = items();
    panel->Attiva(false);
    EXPECT_EQ(items(), before);
    EXPECT_EQ(panel->N_STATO(), text("A"));
    EXPECT_THAT(heard(), IsEmpty());
    EXPECT_EQ(focused(), "TxtDATA_C");
  }
}

TEST_P(TitleAttiva, CancellingIsKnownInAnyCase) {
  title("I", "");
  for (const std::string_view item : {"annulla", "COPRI", "Annulla"}) actions().AddItem(item);
  panel->Attiva(false);
  EXPECT_EQ(items(), (Strings{"", "COPRI", "Annulla"}));  // only the first goes
  forget();
  actions().ListIndex(2);
  forget();
  panel->Attiva(false);  // pending in any case
  EXPECT_EQ(items(), (Strings{"", "COPRI", "Annulla"}));
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(TitleAttiva, ReactivatingIsOpenToAnybody) {
  title("A", "R");
  panel->Attiva(false);
  EXPECT_EQ(items(), (Strings{"", "RIATTIVA"}));
  EXPECT_EQ(panel->N_STATO(), text("R"));
  // Both are visited; the last is the pending one, and so it is not selected again.
  EXPECT_EQ(heard(), visits(2));
}

TEST_P(TitleAttiva, WithNothingPendingCancellingGoesAndTheBlankItemIsSelected) {
  title("S", "");
  panel->Attiva(false);
  EXPECT_EQ(items(), (Strings{"", "COPRI", "INCASSA"}));
  EXPECT_EQ(panel->N_STATO(), text(""));
  EXPECT_EQ(actions().ListIndex(), 0);
  EXPECT_EQ(heard(), visits(5));
}

TEST_P(TitleAttiva, WithNothingPendingAndNothingToWithdrawTheBlankItemIsSelected) {
  title("A", "");
  panel->Attiva(false);
  EXPECT_EQ(items(), (Strings{"", "RIATTIVA"}));
  EXPECT_EQ(actions().ListIndex(), 0);
  EXPECT_EQ(panel->N_STATO(), text(""));
  EXPECT_EQ(heard(), visits(3));
}

TEST_P(TitleAttiva, FinalStatesHaveTheirBlankItemVisited) {
  for (const std::string state : {"I", "N"}) {
    title(state, "");
    panel->Attiva(false);
    EXPECT_EQ(items(), Strings{""});
    EXPECT_EQ(actions().ListIndex(), 0);
    EXPECT_EQ(heard(), visits(1));
  }
}

TEST_P(TitleAttiva, AnEmptyListHasNothingVisited) {
  panel->Attiva(false);
  EXPECT_EQ(actions().ListCount(), 0);
  EXPECT_THAT(heard(), IsEmpty());
  EXPECT_EQ(focused(), "TxtDATA_C");
}

TEST_P(TitleAttiva, ASecondOneFindsNothingToWithdraw) {
  title("S", "I");
  panel->Attiva(false);
  forget();
  panel->Attiva(false);
  EXPECT_EQ(items(), (Strings{"", "COPRI", "INCASSA"}));
  EXPECT_EQ(panel->N_STATO(), text("I"));
  EXPECT_EQ(heard(), visits(3));
}

TEST_P(TitleAttiva, WhatWentComesBackWithN_STATOAlone) {
  title("S", "C");
  panel->Attiva(false);
  panel->Disattiva();
  panel->Attiva(true);
  EXPECT_EQ(items(), (Strings{"", "COPRI", "INCASSA"}));
  panel->N_STATO(text("C"));
  EXPECT_EQ(items(), (Strings{"", "COPRI", "INCASSA", "ANNULLA"}));
}

TEST_P(TitleAttiva, TakesItsRightByNameAndGivesItBackUnchanged) {
  title("S", "I");
  std::vector<Variant> args{Variant(false)};
  callByName(*panel, "attiva", args);
  EXPECT_EQ(args, std::vector<Variant>{Variant(false)});
  EXPECT_EQ(items().size(), 3U);
  panel->N_STATO(text("I"));
  args = {Variant(std::int32_t{-1})};
  callByName(*panel, "Attiva", args);
  EXPECT_EQ(items().size(), 4U);
  EXPECT_FAILURE(callByName(*panel, "Attiva", {}), FailureKind::InvalidCall, "titolo.Attiva");
}

TEST_P(TitleAttiva, OnAHiddenPanelEnablesAndWithdrawsAllTheSame) {
  title("S", "I");
  panel->DATA_C(day(5, 3, 2026));
  surface().Visible(false);
  panel->Attiva(false);
  EXPECT_TRUE(allEnabled());
  EXPECT_EQ(items(), (Strings{"", "COPRI", "INCASSA"}));
  EXPECT_EQ(panel->N_STATO(), text("I"));
  EXPECT_TRUE(wholeSelected(date("TxtDATA_C")));
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(TitleAttiva, PassesOverEachAnnouncementThatFails) {
  title("S", "I");
  container().onNotice = [](toolkit::Surface&, std::string_view) {
    throw Failure(FailureKind::InvalidCall, "the host refuses");
  };
  panel->Attiva(false);
  EXPECT_EQ(items(), (Strings{"", "COPRI", "INCASSA"}));
  EXPECT_EQ(panel->N_STATO(), text("I"));
  EXPECT_EQ(heard(), visits(5));
  EXPECT_EQ(focused(), "TxtDATA_C");
}

TEST_P(TitleAttiva, PassesOverWhatTheHostHasMadeImpossible) {
  title("S", "I");
  container().onNotice = [&](toolkit::Surface&, std::string_view) { actions().Clear(); };
  panel->Attiva(false);
  EXPECT_EQ(actions().ListCount(), 0);
  EXPECT_EQ(heard(), visits(1));  // there are no further items, and what was pending is gone
  EXPECT_EQ(focused(), "TxtDATA_C");
}

TEST_P(TitleAttiva, VisitsNoItemThatTheHostAddsMeanwhile) {
  title("A", "R");
  container().onNotice = [&](toolkit::Surface&, std::string_view) {
    if (actions().ListCount() == 2) actions().AddItem("ALTRO");
  };
  panel->Attiva(false);
  EXPECT_EQ(items(), (Strings{"", "RIATTIVA", "ALTRO"}));
  EXPECT_EQ(panel->N_STATO(), text("R"));
  EXPECT_EQ(heard(), visits(2));
}

TEST_P(TitleAttiva, PassesOverAnItemThatTheHostHasMoved) {
  title("S", "I");
  bool moved = false;
  container().onNotice = [&](toolkit::Surface&, std::string_view) {
    if (moved || actions().Text() != "ANNULLA") return;
    moved = true;
    panel->STATO(text("C"));
    panel->N_STATO(text("A"));  // in a shorter list
  };
  panel->Attiva(false);
  EXPECT_TRUE(moved);
  EXPECT_EQ(items(), (Strings{"", "INCASSA", "ANNULLA"}));  // none stands where it stood
  EXPECT_EQ(panel->N_STATO(), text("I"));
  EXPECT_EQ(focused(), "TxtDATA_C");
}

TEST_P(TitleAttiva, PassesOverAFieldThatCannotTakeTheFocus) {
  title("S", "");
  date("TxtDATA_C").Visible(false);
  panel->Attiva(true);
  EXPECT_TRUE(allEnabled());
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(TitleAttiva, LetsTheHostsOwnExceptionPass) {
  title("S", "I");
  container().onNotice = [](toolkit::Surface&, std::string_view) { throw std::runtime_error("the host's own"); };
  EXPECT_THROW(panel->Attiva(false), std::runtime_error);
}

TEST_P(TitleAttiva, DisattivaFreezesDatesAndActionsAndClearsNothing) {
  title("S", "I");
  panel->DATA_C(day(5, 3, 2026));
  panel->DATA_DOC(day(6, 3, 2026));
  panel->Attiva(true);
  forget();
  panel->Disattiva();
  EXPECT_TRUE(noneEnabled());
  EXPECT_EQ(platform().focused(), nullptr);
  EXPECT_EQ(date("TxtDATA_C").BackColor(), toolkit::kWhite);
  EXPECT_EQ(panel->DATA_C(), text("05/03/2026"));
  EXPECT_EQ(panel->DATA_DOC(), text("06/03/2026"));
  EXPECT_EQ(panel->N_STATO(), text("I"));
  EXPECT_EQ(items(), (Strings{"", "COPRI", "INCASSA", "ANNULLA"}));
  EXPECT_THAT(heard(), IsEmpty());
  EXPECT_FAILURE(hands().focus(date("TxtDATA_C")), FailureKind::InvalidCall, "TxtDATA_C");
  EXPECT_FAILURE(hands().choose(actions(), 0), FailureKind::InvalidCall, "CmbTIPO_CONT");
}

TEST_P(TitleAttiva, DisattivaLeavesButtonsFramesAndLabelsAsTheyAre) {
  panel->Attiva(true);
  panel->Disattiva();
  for (toolkit::Widget* widget : surface().widgets()) {
    const bool frozen = widget->Name() == "TxtDATA_C" || widget->Name() == "TxtDATA_DOC" || widget == &actions();
    EXPECT_EQ(widget->Enabled(), !frozen) << widget->Name();
  }
}

TEST_P(TitleAttiva, AFrozenPanelIsWrittenAllTheSame) {
  panel->Disattiva();
  title("S", "C");
  panel->DATA_C(day(5, 3, 2026));
  EXPECT_EQ(panel->N_STATO(), text("C"));
  EXPECT_EQ(panel->DATA_C(), text("05/03/2026"));
  EXPECT_TRUE(noneEnabled());
}

TEST_P(TitleAttiva, BothGoInAnyOrderAnyNumberOfTimes) {
  panel->Disattiva();
  panel->Attiva(true);
  panel->Attiva(true);
  EXPECT_TRUE(allEnabled());
  panel->Disattiva();
  panel->Disattiva();
  EXPECT_TRUE(noneEnabled());
  panel->Attiva(false);
  EXPECT_TRUE(allEnabled());
}

TEST_P(TitleAttiva, EachStepOfAttivaAndDisattivaInOrder) {
  NotingPlatform noting(platform());
  Globale::install(noting);
  panel = another("titolo");
  noting.notes.clear();
  panel->Attiva(true);
  EXPECT_EQ(noting.notes, (Notes{"TxtDATA_C.Enabled true", "TxtDATA_DOC.Enabled true", "CmbTIPO_CONT.Enabled true",
                                 "TxtDATA_C.SelStart 0", "TxtDATA_C.SelLength 10", "TxtDATA_C.SetFocus "}));
  noting.notes.clear();
  panel->Disattiva();
  EXPECT_EQ(noting.notes,
            (Notes{"TxtDATA_C.Enabled false", "TxtDATA_DOC.Enabled false", "CmbTIPO_CONT.Enabled false"}));
  panel.reset();
  Globale::install(platform());
}

TEST_P(TitleAttiva, SkipsEachStepThatIsRefused) {
  for (const std::string name : {"TxtDATA_C", "TxtDATA_DOC"}) {
    RefusingPlatform refusing(platform());
    refusing.refusingToBeEnabled = {name};
    Globale::install(refusing);
    panel = another("titolo");
    panel->Attiva(true);
    for (const std::string other : {"TxtDATA_C", "TxtDATA_DOC"}) EXPECT_EQ(date(other).Enabled(), other != name);
    EXPECT_TRUE(actions().Enabled());
    EXPECT_FAILURE(panel->Disattiva(), FailureKind::InvalidCall, name);
    EXPECT_TRUE(actions().Enabled());
    panel.reset();
    Globale::install(platform());
  }
  RefusingPlatform refusing(platform());
  refusing.refusing = {"TxtDATA_C"};
  Globale::install(refusing);
  panel = another("titolo");
  panel->Attiva(true);
  EXPECT_EQ(focused(), "TxtDATA_C");
  panel.reset();
  Globale::install(platform());
}

}  // namespace
}  // namespace qvn::test
