// A handler that fails under the operator's hand: the container hears of it, and the operator goes on.
#include "tests/contract/contract_panel.h"

namespace qvn::test {
namespace {

class ReportedFailures : public ContractPanel {
 public:
  /// "panel.widget event: words" of each failure that the container was told of.
  std::vector<std::string> reported() {
    std::vector<std::string> lines;
    for (const ReportedFailure& each : container().failures) {
      EXPECT_EQ(each.kind, FailureKind::Overflow);
      lines.push_back(each.panel + "." + each.widget + " " + each.event + ": " + each.message);
    }
    return lines;
  }
};
QVN_ON_EVERY_PLATFORM_AS(Contract, ReportedFailures);

TEST_P(ReportedFailures, OfKeyPressLeaveTheKeyAsItStands) {
  box().SetFocus();
  box().KeyPress = [](std::int16_t& code) {
    if (code == '2') throw Failure(FailureKind::Overflow, "prima");
    if (code == '3') {
      code = 0;
      throw Failure(FailureKind::Overflow, "annullato");
    }
    if (code == '4') {
      code = 'x';
      throw Failure(FailureKind::Overflow, "cambiato");
    }
  };
  hands().type("12345");
  EXPECT_EQ(box().Text(), "12x5");
  EXPECT_THAT(reported(),
              ElementsAre("panel.A KeyPress: prima", "panel.A KeyPress: annullato", "panel.A KeyPress: cambiato"));
}

TEST_P(ReportedFailures, OfChangeLeaveTheTextAsTyped) {
  box().SetFocus();
  box().Change = fails("cambio");
  hands().type("1{Backspace}2{Home}{Delete}");
  EXPECT_EQ(box().Text(), "");
  EXPECT_THAT(reported(), ElementsAre("panel.A Change: cambio", "panel.A Change: cambio", "panel.A Change: cambio",
                                      "panel.A Change: cambio"));
}

TEST_P(ReportedFailures, OfAMoveAreEachReported) {
  box("A").SetFocus();
  box("A").LostFocus = fails("perso");
  box("B").GotFocus = fails("preso");
  hands().focus(box("B"));
  EXPECT_TRUE(box("B").hasFocus());
  EXPECT_THAT(reported(), ElementsAre("panel.A LostFocus: perso", "panel.B GotFocus: preso"));
}

TEST_P(ReportedFailures, OfTabAndLeavingAreReported) {
  box("A").SetFocus();
  box("A").LostFocus = fails("perso");
  hands().type("{Tab}");
  EXPECT_TRUE(box("B").hasFocus());
  box("B").LostFocus = fails("perso di nuovo");
  hands().leave();
  EXPECT_EQ(platform().focused(), nullptr);
  EXPECT_THAT(reported(), ElementsAre("panel.A LostFocus: perso", "panel.B LostFocus: perso di nuovo"));
}

TEST_P(ReportedFailures, GoToEachPanelsOwnContainer) {
  RecordingContainer elsewhere;
  const auto other = platform().makeSurface(kContractLayout, elsewhere, "other");
  box("A").SetFocus();
  box("A").LostFocus = fails("perso");
  other->textBox("A").GotFocus = fails("preso");
  hands().focus(other->textBox("A"));
  EXPECT_THAT(reported(), ElementsAre("panel.A LostFocus: perso"));
  ASSERT_EQ(elsewhere.failures.size(), 1U);
  EXPECT_EQ(elsewhere.failures[0].panel, "other");
  EXPECT_EQ(elsewhere.failures[0].event, "GotFocus");
}

TEST_P(ReportedFailures, OfClicksAndPicksAreReported) {
  check().Click = fails("casella");
  button().Click = fails("pulsante");
  list().Click = fails("elenco");
  hands().click(check());
  hands().click(button());
  hands().choose(list(), 1);
  hands().type("{Down}");
  EXPECT_EQ(check().Value(), 1);
  EXPECT_EQ(list().ListIndex(), 2);
  EXPECT_THAT(reported(), ElementsAre("panel.Check Click: casella", "panel.Button Click: pulsante",
                                      "panel.List Click: elenco", "panel.List Click: elenco"));
}

TEST_P(ReportedFailures, BearTheEventThatTheHandStarted) {
  box("A").SetFocus();
  box("A").KeyPress = [this](std::int16_t& code) {
    code = 0;
    box("B").SetFocus();
  };
  box("B").GotFocus = fails("annidato");
  hands().type("1");
  EXPECT_THAT(reported(), ElementsAre("panel.A KeyPress: annidato"));
  container().failures.clear();

  box("B").GotFocus = nullptr;
  box("A").KeyPress = nullptr;
  box("A").SetFocus();
  box("A").Change = [this] { label().Caption("nuova"); };
  label().Change = fails("etichetta");
  hands().type("1");
  EXPECT_THAT(reported(), ElementsAre("panel.A Change: etichetta"));
}

TEST_P(ReportedFailures, DoNotStopTheMoveBeforeAClick) {
  box("A").SetFocus();
  box("A").LostFocus = fails("perso");
  hands().click(check());
  EXPECT_EQ(check().Value(), 1);
  EXPECT_THAT(reported(), ElementsAre("panel.A LostFocus: perso"));
}

TEST_P(ReportedFailures, AHandlerThatCatchesItsFailureReportsNothing) {
  box("A").SetFocus();
  box("A").KeyPress = [this](std::int16_t&) {
    try {
      box("Off").SetFocus();
    } catch (const Failure&) {
      heard.emplace_back("caught");
    }
  };
  heard.clear();
  hands().type("1");
  EXPECT_EQ(box("A").Text(), "1");
  EXPECT_THAT(heard, ElementsAre("caught"));
  EXPECT_THAT(reported(), IsEmpty());
}

}  // namespace
}  // namespace qvn::test
