// The line of a movement: debit on red and credit on green, its descriptions, and the two forms of its amount.
#include "qvn/panels/accounting/ctlINS_MOVIMENTI.h"

#include "tests/accounting/movement_bench.h"
#include "tests/refusing_platform.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MovementLine : public MovementBench {
 public:
  MovementLine() { ready(kEntry); }

  toolkit::ComboBox& side() { return list("cmbTIPO"); }
  toolkit::TextBox& amount() { return box("TxtIMPORTO"); }
  static Currency money(std::string_view text) { return toCurrency(text, Locale{}); }
  Currency importo() { return std::get<Currency>(getByName(*panel, "IMPORTO")); }
  void expectSide(std::string_view letter, std::string_view item, std::uint32_t colour) {
    EXPECT_EQ(read("TIPO"), letter);
    EXPECT_EQ(side().Text(), item);
    EXPECT_EQ(side().BackColor(), colour);
  }
};
QVN_ON_EVERY_PLATFORM(MovementLine);

TEST_P(MovementLine, ADebitIsRedAndACreditGreen) {
  write("TIPO", "D");
  expectSide("D", "DARE", kRedBack);
  EXPECT_THAT(heard(), ElementsAre("TIPO"));
  write("TIPO", "A");
  expectSide("A", "AVERE", kGreen);
  EXPECT_THAT(heard(), ElementsAre("TIPO"));
}

TEST_P(MovementLine, AnotherTextChangesNeitherListNorColour) {
  for (const std::string other : {"X", "", "a", "d", "AVERE", "DARE", "DA", " D"}) {
    for (const std::string shown : {"A", "D"}) {
      write("TIPO", shown);
      forget();
      side().BackColor(kCyan);
      write("TIPO", other);
      EXPECT_EQ(read("TIPO"), shown);
      EXPECT_EQ(side().BackColor(), kCyan) << other;
      EXPECT_THAT(heard(), IsEmpty());
    }
  }
}

TEST_P(MovementLine, TheSideThatIsShownIsNotWrittenAgainButPaintedAgain) {
  write("TIPO", "D");
  side().BackColor(toolkit::kWhite);
  forget();
  write("TIPO", "D");
  expectSide("D", "DARE", kRedBack);
  EXPECT_THAT(heard(), IsEmpty());
  write("TIPO", "A");
  side().BackColor(toolkit::kWhite);
  forget();
  write("TIPO", "A");
  expectSide("A", "AVERE", kGreen);
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(MovementLine, ThePickOfTheOperatorIsAnnouncedOnceAndPainted) {
  hands().choose(side(), "DARE");
  expectSide("D", "DARE", kRedBack);
  EXPECT_THAT(heard(), ElementsAre("TIPO"));
  hands().choose(side(), 0);
  expectSide("A", "AVERE", kGreen);
  EXPECT_THAT(heard(), ElementsAre("TIPO"));
}

TEST_P(MovementLine, TheListKeepsItsColourWithTheFocus) {
  for (const auto& [letter, colour] : {std::pair{"A", kGreen}, {"D", kRedBack}}) {
    write("TIPO", letter);
    hands().focus(side());
    EXPECT_EQ(focused(), "cmbTIPO");
    EXPECT_EQ(side().BackColor(), colour);
    hands().leave();
    EXPECT_EQ(side().BackColor(), colour);
  }
}

TEST_P(MovementLine, AFieldBesideTheKeyIsColouredBeforeItIsSelected) {
  for (const std::string field : {"TxtDESC_1", "TxtDESC_2"}) {
    EXPECT_THAT(writesOf(kEntry, [&] { box(field).GotFocus(); }),
                ElementsAre(field + ".BackColor 16776960", field + ".SelStart 0", field + ".SelLength 0"));
  }
  EXPECT_THAT(writesOf(kEntry, [&] { box("TxtIMPORTO").GotFocus(); }),
              ElementsAre("TxtIMPORTO.BackColor 16776960", "TxtIMPORTO.Text 0,00", "TxtIMPORTO.SelStart 0",
                          "TxtIMPORTO.SelLength 4"));
}

TEST_P(MovementLine, ASideIsAnnouncedBeforeItIsPainted) {
  std::uint32_t seen = 0;
  std::string letter;
  container().onNotice = [&](toolkit::Surface&, std::string_view) {
    seen = side().BackColor();
    letter = read("TIPO");
  };
  hands().choose(side(), "DARE");
  container().onNotice = {};
  EXPECT_EQ(letter, "D");
  EXPECT_EQ(seen, kGreen);
}

TEST_P(MovementLine, AWrittenSideIsPaintedLastOfAll) {
  container().onNotice = [&](toolkit::Surface&, std::string_view) { write("TIPO", "A"); };
  write("TIPO", "D");
  container().onNotice = {};
  expectSide("A", "AVERE", kRedBack);  // of what was written, whatever the host did meanwhile
}

TEST_P(MovementLine, AListThatShowsNeitherSideReadsEmptyAndKeepsItsColour) {
  side().AddItem("ALTRO");
  for (const auto& [letter, colour] : {std::pair{"A", kGreen}, {"D", kRedBack}}) {
    write("TIPO", letter);
    forget();
    side().ListIndex(-1);
    expectSide("", "", colour);
    EXPECT_THAT(heard(), ElementsAre("TIPO"));
    hands().choose(side(), "ALTRO");
    expectSide("", "ALTRO", colour);
    EXPECT_THAT(heard(), ElementsAre("TIPO"));
  }
}

TEST_P(MovementLine, AHostThatFailsAtTheAnnouncementKeepsTheColour) {
  container().onNotice = [](toolkit::Surface&, std::string_view) {
    throw Failure(FailureKind::InvalidCall, "the host refuses");
  };
  EXPECT_FAILURE(write("TIPO", "D"), FailureKind::InvalidCall, "refuses");
  container().onNotice = {};
  expectSide("D", "DARE", kGreen);
}

TEST_P(MovementLine, TwoLinesKeepTheirOwnSides) {
  ctlINS_MOVIMENTI other(PanelSite{container(), "altra"});
  write("TIPO", "D");
  EXPECT_EQ(other.TIPO(), "A");
  EXPECT_EQ(other.surface().comboBox("cmbTIPO").BackColor(), kGreen);
}

TEST_P(MovementLine, AllButTheDescriptionOfTheKeyIsWrittenOnlyWhereItDiffers) {
  const auto load = [this] {
    write("Mastro", "20");
    write("Conto", "002");
    write("DESC_CONTO", "a mano");
    write("TIPO", "D");
    write("DESC_1", "UNO");
    write("DESC_2", "DUE");
    let("IMPORTO", money("3"));
  };
  EXPECT_THAT(
      writesOf(kEntry, load),
      ElementsAre("txtMASTRO.Text 20", "TxtCONTO.Text 002", "LblDESC_CONTO.Caption a mano", "cmbTIPO.Text DARE",
                  "cmbTIPO.BackColor 255", "TxtDESC_1.Text UNO", "TxtDESC_2.Text DUE", "TxtIMPORTO.Text € 3,00"));
  EXPECT_THAT(writesOf(kEntry, load, load), ElementsAre("LblDESC_CONTO.Caption a mano", "cmbTIPO.BackColor 255"));
}

TEST_P(MovementLine, AttivaSelectsTheLedgerBeforeItGoesThere) {
  EXPECT_THAT(
      writesOf(
          kEntry, [this] { call("Attiva"); }, [this] { write("Mastro", "20"); }),
      ElementsAre("Frame1.Enabled true", "txtMASTRO.SelStart 0", "txtMASTRO.SelLength 2", "txtMASTRO.SetFocus "));
}

TEST_P(MovementLine, TheColourIsThatOfWhatTheListShowsBehindTheAnnouncement) {
  bool once = true;
  container().onNotice = [&](toolkit::Surface&, std::string_view) {
    if (std::exchange(once, false)) write("TIPO", "A");
  };
  hands().choose(side(), "DARE");
  container().onNotice = {};
  expectSide("A", "AVERE", kGreen);
}

// The lines of description.

TEST_P(MovementLine, DescriptionsAreWrittenAnnouncedAndNotWrittenTwice) {
  for (const std::string name : {"DESC_1", "DESC_2"}) {
    SCOPED_TRACE(name);
    forget();
    write(name, "Incasso 12/è");
    EXPECT_EQ(read(name), "Incasso 12/è");
    EXPECT_EQ(box("Txt" + name).Text(), "Incasso 12/è");
    EXPECT_THAT(heard(), ElementsAre(name));
    write(name, "Incasso 12/è");
    EXPECT_THAT(heard(), IsEmpty());
    write(name, "INCASSO 12/è");
    EXPECT_THAT(heard(), ElementsAre(name));
    write(name, "");
    EXPECT_EQ(read(name), "");
    EXPECT_THAT(heard(), ElementsAre(name));
    EXPECT_THAT(asked(), IsEmpty());
  }
  write("DESC_1", "uno");
  EXPECT_EQ(read("DESC_2"), "");
}

TEST_P(MovementLine, DescriptionsTakeFiftyCharactersInCapitals) {
  for (const std::string name : {"DESC_1", "DESC_2"}) {
    SCOPED_TRACE(name);
    toolkit::TextBox& text = box("Txt" + name);
    hands().focus(text);
    forget();
    const std::int64_t before = beeps();
    hands().type("ab?à" + std::string(46, 'x'));
    EXPECT_EQ(beeps(), before);
    EXPECT_EQ(read(name), "AB?à" + std::string(46, 'X'));
    EXPECT_EQ(heard(), Strings(50, name));
    hands().type("yz");
    EXPECT_EQ(beeps(), before + 2);
    EXPECT_EQ(read(name), "AB?à" + std::string(46, 'X'));
    EXPECT_THAT(asked(), IsEmpty());  // "?" is a character like others
  }
}

TEST_P(MovementLine, DescriptionsAreCyanAndSelectedWithTheFocus) {
  for (const std::string name : {"TxtDESC_1", "TxtDESC_2"}) {
    box(name).Text("Premî");
    hands().focus(box(name));
    EXPECT_EQ(box(name).BackColor(), kCyan);
    EXPECT_TRUE(wholeSelected(box(name)));
    hands().leave();
    EXPECT_EQ(box(name).BackColor(), toolkit::kWhite);
  }
}

TEST_P(MovementLine, DescriptionsAndAmountAreColouredBeforeTheyAreSelected) {
  panel.reset();
  RefusingPlatform refusing(platform());
  refusing.refusing = {"TxtDESC_1", "TxtDESC_2", "TxtIMPORTO"};
  Globale::install(refusing);
  make(kEntry);
  for (const std::string name : {"TxtDESC_1", "TxtDESC_2", "TxtIMPORTO"}) {
    EXPECT_FAILURE(box(name).GotFocus(), FailureKind::InvalidCall, name);
    EXPECT_EQ(box(name).BackColor(), kCyan);
  }
  EXPECT_EQ(amount().Text(), "0,00");  // and rewritten before it is selected
  panel.reset();
  Globale::install(platform());
}

// The amount.

TEST_P(MovementLine, TheFirstAmountIsWrittenZeroToo) {
  let("IMPORTO", Currency());
  EXPECT_EQ(amount().Text(), "€ 0,00");
  EXPECT_EQ(importo(), Currency());
  EXPECT_THAT(heard(), ElementsAre("IMPORTO"));
  let("IMPORTO", Currency());
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(MovementLine, AnAmountIsShownAsCurrencyAndReadBack) {
  for (const auto& [given, shown, readBack] :
       {std::tuple{"1234,5", "€ 1.234,50", "1234,5"},
        {"2,345", "€ 2,35", "2,35"},
        {"-2,345", "-€ 2,35", "-2,35"},
        {"922337203685477,5807", "€ 922.337.203.685.477,58", "922337203685477,58"},
        {"-922337203685477,5808", "-€ 922.337.203.685.477,58", "-922337203685477,58"}}) {
    let("IMPORTO", money(given));
    EXPECT_EQ(amount().Text(), shown);
    EXPECT_EQ(importo(), money(readBack));
    EXPECT_THAT(heard(), ElementsAre("IMPORTO"));
  }
}

TEST_P(MovementLine, AnEqualAmountLeavesTheTextInItsForm) {
  amount().Text("12,5");
  forget();
  let("IMPORTO", money("12,50"));
  EXPECT_EQ(amount().Text(), "12,5");
  EXPECT_THAT(heard(), IsEmpty());
  let("IMPORTO", money("12,51"));
  EXPECT_EQ(amount().Text(), "€ 12,51");
}

TEST_P(MovementLine, AnAmountIsPlainWhileItIsTypedAndCurrencyAtRest) {
  let("IMPORTO", money("1234,5"));
  forget();
  hands().focus(amount());
  EXPECT_EQ(amount().Text(), "1234,50");
  EXPECT_EQ(amount().BackColor(), kCyan);
  EXPECT_TRUE(wholeSelected(amount()));
  EXPECT_THAT(heard(), ElementsAre("IMPORTO"));
  EXPECT_EQ(importo(), money("1234,5"));
  hands().leave();
  EXPECT_EQ(amount().Text(), "€ 1.234,50");
  EXPECT_EQ(amount().BackColor(), toolkit::kWhite);
  EXPECT_THAT(heard(), ElementsAre("IMPORTO"));
}

TEST_P(MovementLine, TheAmountOfANewLineBecomesZeroWhenItIsVisited) {
  hands().focus(amount());
  EXPECT_EQ(amount().Text(), "0,00");
  hands().leave();
  EXPECT_EQ(amount().Text(), "€ 0,00");
  EXPECT_THAT(heard(), ElementsAre("IMPORTO", "IMPORTO"));
}

TEST_P(MovementLine, ARewritingThatChangesNothingIsNotAnnounced) {
  amount().Text("5,00");
  forget();
  hands().focus(amount());
  EXPECT_EQ(amount().Text(), "5,00");
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(MovementLine, TheAmountIsColouredBeforeItIsRewritten) {
  std::vector<std::uint32_t> seen;
  container().onNotice = [&](toolkit::Surface&, std::string_view) { seen.push_back(amount().BackColor()); };
  hands().focus(amount());
  hands().leave();
  container().onNotice = {};
  EXPECT_THAT(seen, ElementsAre(kCyan, toolkit::kWhite));
}

TEST_P(MovementLine, TheAmountTakesTwoDecimalsAndNoSign) {
  hands().focus(amount());
  forget();
  const std::int64_t before = beeps();
  hands().type(",-1.2,34x?");
  EXPECT_EQ(amount().Text(), "1,23");
  EXPECT_EQ(beeps(), before + 6);
  EXPECT_EQ(heard(), Strings(4, "IMPORTO"));
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(MovementLine, AnEmptiedAmountStaysEmptyAndCannotBeReadNorWritten) {
  hands().focus(amount());
  forget();
  hands().type("{Backspace}");
  EXPECT_EQ(amount().Text(), "");
  EXPECT_THAT(heard(), ElementsAre("IMPORTO"));
  EXPECT_FAILURE(importo(), FailureKind::TypeMismatch, "riga.IMPORTO: TxtIMPORTO: ");
  EXPECT_FAILURE(let("IMPORTO", money("1")), FailureKind::TypeMismatch, "riga.IMPORTO: TxtIMPORTO: ");
  hands().leave();
  EXPECT_EQ(amount().Text(), "");
  EXPECT_EQ(amount().BackColor(), toolkit::kWhite);
  hands().focus(amount());
  EXPECT_EQ(amount().Text(), "");
  EXPECT_THAT(heard(), IsEmpty());
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(MovementLine, AnAmountThatIsNoNumberOrTooLargeFailsWhereItIsRead) {
  amount().Text("12x");
  EXPECT_FAILURE(importo(), FailureKind::TypeMismatch, "\"12x\"");
  EXPECT_FAILURE(let("IMPORTO", Currency()), FailureKind::TypeMismatch, "\"12x\"");
  EXPECT_EQ(amount().Text(), "12x");
  amount().Text("922337203685477,59");
  EXPECT_FAILURE(importo(), FailureKind::Overflow, "TxtIMPORTO: ");
  EXPECT_FAILURE(let("IMPORTO", Currency()), FailureKind::Overflow, "TxtIMPORTO: ");
}

TEST_P(MovementLine, APropertyWritesNoOtherField) {
  write("Mastro", "M");
  write("Conto", "C");
  write("DESC_1", "UNO");
  write("DESC_2", "DUE");
  let("IMPORTO", money("3"));
  EXPECT_EQ(read("Mastro"), "M");
  EXPECT_EQ(read("Conto"), "C");
  EXPECT_EQ(read("DESC_1"), "UNO");
  EXPECT_EQ(read("DESC_2"), "DUE");
  EXPECT_EQ(importo(), money("3"));
  EXPECT_THAT(heard(), ElementsAre("MASTRO", "CONTO", "DESC_1", "DESC_2", "IMPORTO"));
}

}  // namespace
}  // namespace qvn::test
