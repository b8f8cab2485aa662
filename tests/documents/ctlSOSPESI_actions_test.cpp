// The state of a title, and the actions that it offers.
#include <gtest/gtest.h>

#include "tests/documents/title_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

class TitleActions : public TitlePanel {
 public:
  struct State {
    std::string letter;
    std::string caption;
    Strings items;
  };
  static const std::vector<State>& states() {
    static const std::vector<State> all{
        {"A", "ANNULLATA", {"", "RIATTIVA"}},
        {"I", "INCASSATA", {""}},
        {"C", "COPERTA", {"", "INCASSA", "ANNULLA"}},
        {"S", "SOSPESA", {"", "COPRI", "INCASSA", "ANNULLA"}},
        {"N", "NON INCASSABILE", {""}},
    };
    return all;
  }
  struct Action {
    std::string letter;
    std::string item;
  };
  static const std::vector<Action>& all() {
    static const std::vector<Action> actions{{"A", "ANNULLA"}, {"R", "RIATTIVA"}, {"I", "INCASSA"}, {"C", "COPRI"}};
    return actions;
  }
};
QVN_ON_EVERY_PLATFORM(TitleActions);

TEST_P(TitleActions, EachStateIsToldInWordsAndOffersItsActionsInOrder) {
  for (const State& state : states()) {
    SCOPED_TRACE(state.caption);
    panel->STATO(text(state.letter));
    EXPECT_EQ(caption("LblSTATO"), state.caption);
    panel->N_STATO(text(""));
    EXPECT_EQ(items(), state.items);
    EXPECT_EQ(actions().ListIndex(), -1);
    EXPECT_EQ(panel->N_STATO(), text(""));
  }
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(TitleActions, EachLetterSelectsItsActionWhereTheStateOffersIt) {
  for (const State& state : states()) {
    for (const Action& action : all()) {
      SCOPED_TRACE(state.caption + " " + action.item);
      panel->STATO(text(state.letter));
      panel->N_STATO(text(""));
      forget();
      const auto place = std::ranges::find(state.items, action.item);
      if (place != state.items.end()) {
        panel->N_STATO(text(action.letter));
        EXPECT_EQ(actions().ListIndex(), place - state.items.begin());
        EXPECT_EQ(panel->N_STATO(), text(action.letter));
        EXPECT_EQ(heard(), Strings{"N_STATO"});
      } else {
        EXPECT_FAILURE(panel->N_STATO(text(action.letter)), FailureKind::InvalidCall, action.item);
        EXPECT_EQ(actions().ListIndex(), -1);
        EXPECT_EQ(panel->N_STATO(), text(""));
        EXPECT_THAT(heard(), IsEmpty());
      }
      EXPECT_EQ(items(), state.items);
    }
  }
}

TEST_P(TitleActions, AnActionThatIsNotOnOfferNamesTheList) {
  title("I", "");
  EXPECT_FAILURE(panel->N_STATO(text("A")), FailureKind::InvalidCall, "CmbTIPO_CONT");
  EXPECT_FAILURE(letByName(*panel, "n_stato", text("A")), FailureKind::InvalidCall, "titolo.N_STATO");
}

TEST_P(TitleActions, AnotherLetterLeavesTheStateThatIsShown) {
  for (const Variant& other : {text("X"), text(""), text("s"), text("a"), text("S "), text("SOSPESA"), Variant(Null{}),
                               Variant(Empty{}), Variant(std::int32_t{1}), Variant(CurrencyArray{})}) {
    SCOPED_TRACE(kindName(other));
    title("C", "");
    panel->STATO(other);
    EXPECT_EQ(caption("LblSTATO"), "COPERTA");
    panel->N_STATO(text(""));
    EXPECT_EQ(items(), (Strings{"", "INCASSA", "ANNULLA"}));
  }
}

TEST_P(TitleActions, AnotherValueSelectsNoAction) {
  for (const Variant& other : {text("a"), text("X"), text("S"), text("ANNULLA"), text("A "), Variant(Null{}),
                               Variant(Empty{}), Variant(std::int32_t{0}), Variant(CurrencyArray{})}) {
    SCOPED_TRACE(kindName(other));
    title("S", "I");
    panel->N_STATO(other);
    EXPECT_EQ(items(), (Strings{"", "COPRI", "INCASSA", "ANNULLA"}));
    EXPECT_EQ(actions().ListIndex(), -1);
    EXPECT_EQ(panel->N_STATO(), text(""));
    EXPECT_THAT(heard(), IsEmpty());
  }
}

TEST_P(TitleActions, WithoutAStateNothingIsOnOffer) {
  panel->N_STATO(text(""));
  EXPECT_EQ(actions().ListCount(), 0);
  for (const Action& action : all()) {
    EXPECT_FAILURE(panel->N_STATO(text(action.letter)), FailureKind::InvalidCall, action.item);
  }
  EXPECT_EQ(actions().ListCount(), 0);
}

TEST_P(TitleActions, AStateThatIsNoneOfThePanelsEmptiesTheList) {
  title("S", "");
  label("LblSTATO").Caption("sospesa");
  panel->N_STATO(text(""));
  EXPECT_EQ(actions().ListCount(), 0);
}

TEST_P(TitleActions, TheListWaitsForN_STATO) {
  title("S", "C");
  panel->STATO(text("A"));
  EXPECT_EQ(caption("LblSTATO"), "ANNULLATA");
  EXPECT_EQ(items(), (Strings{"", "COPRI", "INCASSA", "ANNULLA"}));
  EXPECT_EQ(panel->N_STATO(), text("C"));
  panel->N_STATO(text("R"));
  EXPECT_EQ(items(), (Strings{"", "RIATTIVA"}));
  EXPECT_EQ(panel->N_STATO(), text("R"));
}

TEST_P(TitleActions, WritingTheSameActionAgainBuildsTheListAnewAndAnnouncesIt) {
  title("S", "A");
  panel->Attiva(false);
  EXPECT_EQ(items().size(), 4U);
  forget();
  panel->N_STATO(text("A"));
  EXPECT_EQ(heard(), Strings{"N_STATO"});
  EXPECT_EQ(items(), (Strings{"", "COPRI", "INCASSA", "ANNULLA"}));
}

TEST_P(TitleActions, TheOperatorsPickIsAnnouncedAndRead) {
  title("S", "");
  panel->Attiva(true);
  forget();
  const Strings letters{"", "C", "I", "A"};
  for (std::int32_t i = 0; i < 4; ++i) {
    hands().choose(actions(), i);
    EXPECT_EQ(panel->N_STATO(), text(letters[static_cast<std::size_t>(i)]));
    EXPECT_EQ(heard(), Strings{"N_STATO"});
  }
  hands().choose(actions(), "COPRI");
  EXPECT_EQ(panel->N_STATO(), text("C"));
}

TEST_P(TitleActions, TheFirstCharacterIsReadWhateverTheItem) {
  title("S", "");
  actions().AddItem("x altro");
  actions().ListIndex(4);
  EXPECT_EQ(panel->N_STATO(), text("x"));
}

TEST_P(TitleActions, TheListIsCyanWithTheFocusAndWhiteWithout) {
  title("S", "");
  panel->Attiva(true);
  hands().focus(actions());
  EXPECT_EQ(actions().BackColor(), kCyan);
  hands().leave();
  EXPECT_EQ(actions().BackColor(), toolkit::kWhite);
}

TEST_P(TitleActions, EnterOnTheListDoesNothing) {
  title("S", "I");
  panel->Attiva(true);
  hands().focus(actions());
  forget();
  hands().type("{Enter}");
  EXPECT_EQ(focused(), "CmbTIPO_CONT");
  EXPECT_EQ(panel->N_STATO(), text("I"));
  EXPECT_THAT(heard(), IsEmpty());
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(TitleActions, TabGoesFromTheFirstDateToTheSecondToTheList) {
  title("S", "");
  panel->Attiva(true);
  EXPECT_EQ(focused(), "TxtDATA_C");
  Strings path;
  for (int i = 0; i < 6; ++i) {
    hands().type("{Tab}");
    path.push_back(focused());
  }
  EXPECT_EQ(path, (Strings{"TxtDATA_DOC", "CmbTIPO_CONT", "CmdCOMPAGNIE", "CmdPRODUTTORI", "CmdPRODUTTORI_ALT",
                           "TxtDATA_C"}));
}

}  // namespace
}  // namespace qvn::test
