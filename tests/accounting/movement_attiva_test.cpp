// The two panels made ready and frozen, shown or not.
#include "tests/accounting/movement_bench.h"
#include "tests/refusing_platform.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MovementAttiva : public MovementBench {};
QVN_ON_EVERY_PLATFORM(MovementAttiva);

TEST_P(MovementAttiva, AttivaEnablesAndGoesToTheLedger) {
  withBoth([&](std::string_view className) {
    make(className);
    frame().Enabled(false);
    write("Mastro", "città");
    forget();
    call("Attiva");
    EXPECT_TRUE(frame().Enabled());
    EXPECT_EQ(focused(), "txtMASTRO");
    EXPECT_TRUE(wholeSelected(mastro()));
    EXPECT_EQ(mastro().BackColor(), kYellow);
    EXPECT_THAT(heard(), IsEmpty());
    EXPECT_THAT(asked(), IsEmpty());
  });
}

TEST_P(MovementAttiva, AttivaSelectsAgainWhereTheLedgerHasTheFocus) {
  withBoth([&](std::string_view className) {
    ready(className, "1234");
    hands().caret(2, 0);
    call("Attiva");
    EXPECT_TRUE(wholeSelected(mastro()));
  });
}

TEST_P(MovementAttiva, AMovementsLineCanBeTypedIntoWithoutAttiva) {
  make(kEntry);
  hands().focus(conto());
  hands().type("a1");
  EXPECT_EQ(read("Conto"), "A1");
}

TEST_P(MovementAttiva, ATemplatesLineCannotBeTypedIntoBeforeAttiva) {
  make(kTemplate);
  EXPECT_FAILURE(hands().focus(conto()), FailureKind::InvalidCall, "TxtCONTO");
  hands().click(surface().checkBox("ChkRIPETI"));
  EXPECT_FALSE(flag("RIPETI"));
}

TEST_P(MovementAttiva, AttivaOnAHiddenPanelEnablesAndSelectsAllTheSame) {
  withBoth([&](std::string_view className) {
    make(className);
    frame().Enabled(false);
    write("Mastro", "10");
    surface().Visible(false);
    call("Attiva");
    EXPECT_TRUE(frame().Enabled());
    EXPECT_TRUE(wholeSelected(mastro()));
    EXPECT_EQ(focused(), "");
  });
}

TEST_P(MovementAttiva, AttivaSkipsAFrameThatCannotBeEnabled) {
  withBoth([&](std::string_view className) {
    RefusingPlatform refusing(platform());
    refusing.refusing = {"Frame1"};
    Globale::install(refusing);
    Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
    make(className);
    write("Mastro", "10");
    call("Attiva");
    EXPECT_TRUE(wholeSelected(mastro()));
    EXPECT_EQ(focused(), className == kEntry ? "txtMASTRO" : "");
    EXPECT_FAILURE(call("Disattiva"), FailureKind::InvalidCall, "Frame1 refuses");
    panel.reset();
    Globale::install(platform());
  });
}

TEST_P(MovementAttiva, AttivaSkipsASelectionThatCannotBeMade) {
  withBoth([&](std::string_view className) {
    RefusingPlatform refusing(platform());
    refusing.refusing = {"txtMASTRO"};
    Globale::install(refusing);
    make(className);
    call("Attiva");
    EXPECT_TRUE(frame().Enabled());
    EXPECT_EQ(focused(), "txtMASTRO");
    panel.reset();
    Globale::install(platform());
  });
}

TEST_P(MovementAttiva, DisattivaFreezesAndKeepsTheValues) {
  withBoth([&](std::string_view className) {
    ready(className, "10", "001");
    call("Disattiva");
    EXPECT_FALSE(frame().Enabled());
    EXPECT_EQ(focused(), "");
    EXPECT_EQ(mastro().BackColor(), toolkit::kWhite);
    EXPECT_EQ(read("Mastro"), "10");
    EXPECT_EQ(description(), "CASSA CONTANTI");
    EXPECT_THAT(heard(), IsEmpty());
    write("Conto", "");
    EXPECT_EQ(description(), "CASSA");
    call("Disattiva");
    call("Attiva");
    call("Attiva");
    EXPECT_TRUE(frame().Enabled());
    EXPECT_EQ(focused(), "txtMASTRO");
  });
}

TEST_P(MovementAttiva, DisattivaLeavesAnAmountThatIsBeingTyped) {
  ready(kEntry);
  hands().focus(box("TxtIMPORTO"));
  hands().type("1234");
  forget();
  call("Disattiva");
  EXPECT_EQ(box("TxtIMPORTO").Text(), "€ 1.234,00");
  EXPECT_EQ(box("TxtIMPORTO").BackColor(), toolkit::kWhite);
  EXPECT_THAT(heard(), ElementsAre("IMPORTO"));
}

TEST_P(MovementAttiva, DisattivaPassesOnWhatTheHostFailsWithAsTheAmountIsLeft) {
  ready(kEntry);
  hands().focus(box("TxtIMPORTO"));
  hands().type("1234");
  container().onNotice = [](toolkit::Surface&, std::string_view) {
    throw Failure(FailureKind::InvalidCall, "the host refuses");
  };
  EXPECT_FAILURE(call("Disattiva"), FailureKind::InvalidCall, "the host refuses");
  container().onNotice = {};
  EXPECT_FALSE(frame().Enabled());
  EXPECT_EQ(focused(), "");
}

TEST_P(MovementAttiva, AFrozenListStillTakesTheLettersOfTheHost) {
  withBoth([&](std::string_view className) {
    make(className);
    call("Disattiva");
    write("TIPO", "D");
    EXPECT_EQ(read("TIPO"), "D");
    EXPECT_FAILURE(hands().choose(list("cmbTIPO"), "AVERE"), FailureKind::InvalidCall, "cmbTIPO");
    EXPECT_EQ(read("TIPO"), "D");
  });
}

TEST_P(MovementAttiva, OnlyTheListOfAMovementKeepsItsColourWhenItIsFrozen) {
  withBoth([&](std::string_view className) {
    ready(className);
    hands().focus(list("cmbTIPO"));
    call("Disattiva");
    EXPECT_EQ(list("cmbTIPO").BackColor(), className == kEntry ? kGreen : toolkit::kWhite);
    EXPECT_EQ(focused(), "");
  });
}

}  // namespace
}  // namespace qvn::test
