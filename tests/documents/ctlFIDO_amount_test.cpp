// The amount and the date of a credit line.
#include <gtest/gtest.h>

#include "tests/documents/credit_bench.h"
#include "tests/documents/date_rules.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CreditAmount : public CreditPanel {
 public:
  /// A panel ready for typing with the amount written, and the focus there.
  void into(std::string_view value) {
    panel->FIDO(money(value));
    panel->Attiva();
    hands().focus(amountBox());
    forget();
  }
};
QVN_ON_EVERY_PLATFORM(CreditAmount);

TEST_P(CreditAmount, TheFirstOneWrittenDiffersFromTheDesignTextEvenIfItIsZero) {
  EXPECT_EQ(panel->FIDO(), money("0,0001"));
  panel->FIDO(Currency());
  EXPECT_EQ(amountBox().Text(), "€ 0,00");
  EXPECT_EQ(panel->FIDO(), Currency());
  EXPECT_THAT(heard(), ElementsAre("FIDO"));
}

TEST_P(CreditAmount, ShowsUnderCurrencyAndReadsWhatIsShown) {
  panel->FIDO(money("1234567,895"));
  EXPECT_EQ(amountBox().Text(), "€ 1.234.567,90");
  EXPECT_EQ(panel->FIDO(), money("1234567,9"));
  panel->FIDO(money("-3"));  // the host may write what the operator cannot type
  EXPECT_EQ(amountBox().Text(), "-€ 3,00");
  letByName(*panel, "fido", text("7,5"));
  EXPECT_EQ(getByName(*panel, "FIDO"), Variant(money("7,5")));
  EXPECT_THAT(heard(), ElementsAre("FIDO", "FIDO", "FIDO"));
}

TEST_P(CreditAmount, OneThatIsThereLeavesTheTextAndItsSelection) {
  into("12,5");
  hands().caret(1, 2);
  panel->FIDO(money("12,5"));
  EXPECT_EQ(amountBox().Text(), "12,50");
  EXPECT_EQ(amountBox().SelStart(), 1);
  EXPECT_EQ(amountBox().SelLength(), 2);
  EXPECT_THAT(heard(), IsEmpty());
  panel->FIDO(money("12,51"));
  EXPECT_EQ(amountBox().Text(), "€ 12,51");
}

TEST_P(CreditAmount, IsPlainAndSelectedWithTheFocusAndCurrencyWithout) {
  panel->FIDO(money("1234,5"));
  panel->Attiva();
  forget();
  hands().focus(amountBox());
  EXPECT_EQ(amountBox().Text(), "1234,50");
  EXPECT_TRUE(wholeSelected(amountBox()));
  EXPECT_THAT(heard(), ElementsAre("FIDO"));
  hands().leave();
  EXPECT_EQ(amountBox().Text(), "€ 1.234,50");
  EXPECT_THAT(heard(), ElementsAre("FIDO"));
}

TEST_P(CreditAmount, TakesTwoDecimalsAndNoSign) {
  into("0");
  const std::int64_t before = beeps();
  hands().type("-1.2x-345");
  EXPECT_EQ(amountBox().Text(), "1,23");
  EXPECT_EQ(beeps(), before + 5);
  hands().type("{Home}-");
  EXPECT_EQ(amountBox().Text(), "1,23");
  EXPECT_EQ(beeps(), before + 6);
}

TEST_P(CreditAmount, OneThatIsEmptiedBecomesAFormattedZeroSelectedAndIsAnnouncedTwice) {
  into("7");
  Strings seen;
  container().onNotice = [&](toolkit::Surface&, std::string_view name) {
    seen.push_back(
        std::string(name).append("=").append(amountBox().Text()).append(wholeSelected(amountBox()) ? " selected" : ""));
  };
  hands().type("{Backspace}");
  container().onNotice = {};
  EXPECT_EQ(amountBox().Text(), "€ 0,00");
  EXPECT_TRUE(wholeSelected(amountBox()));
  // By the zero as it is written, and then by the emptied field, which is filled and selected by then.
  EXPECT_EQ(seen, (Strings{"FIDO=€ 0,00", "FIDO=€ 0,00 selected"}));
  hands().type("5");
  EXPECT_EQ(amountBox().Text(), "5");
}

TEST_P(CreditAmount, ANumberIsAnnouncedOnceAKey) {
  into("7");
  hands().type("12");
  EXPECT_THAT(heard(), ElementsAre("FIDO", "FIDO"));
  EXPECT_EQ(panel->FIDO(), money("12"));
}

TEST_P(CreditAmount, ATextThatIsNoAmountFailsWhereItIsReadAndWritten) {
  amountBox().Text("abc");
  forget();
  EXPECT_FAILURE(panel->FIDO(), FailureKind::TypeMismatch, "TxtIMPORTO");
  EXPECT_FAILURE(panel->FIDO(), FailureKind::TypeMismatch, "abc");
  EXPECT_FAILURE(panel->FIDO(money("1")), FailureKind::TypeMismatch, "TxtIMPORTO");
  EXPECT_FAILURE(getByName(*panel, "FIDO"), FailureKind::TypeMismatch, "riga.FIDO");
  EXPECT_EQ(amountBox().Text(), "abc");
  EXPECT_THAT(heard(), IsEmpty());
  panel->Attiva();
  hands().focus(amountBox());
  hands().leave();
  EXPECT_EQ(amountBox().Text(), "abc");
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(CreditAmount, HoldsUpToTheLargestOfItsTypeAndNoMore) {
  panel->FIDO(money("922337203685477,58"));
  EXPECT_EQ(panel->FIDO(), money("922337203685477,58"));
  amountBox().Text("922337203685477,59");
  EXPECT_FAILURE(panel->FIDO(), FailureKind::Overflow, "TxtIMPORTO");
  EXPECT_FAILURE(panel->FIDO(money("1")), FailureKind::Overflow, "TxtIMPORTO");
}

TEST_P(CreditAmount, IsNotComparedWithTheExposure) {
  panel->COD_CLIENTE("K1");
  panel->COD_COMP("C1");
  into("0");
  forget();
  const std::int64_t before = beeps();
  hands().type("1{Enter}");
  EXPECT_EQ(panel->FIDO(), money("1"));
  EXPECT_EQ(shown(), (Strings{"GENERALE", "€ 1.234,57"}));
  EXPECT_EQ(beeps(), before);
  EXPECT_THAT(asked(), IsEmpty());
  EXPECT_THAT(container().failures, IsEmpty());
}

class CreditDate : public LineDates<ctlFIDO> {
 public:
  const Property date{"DATA_FIDO", &ctlFIDO::DATA_FIDO, &ctlFIDO::DATA_FIDO};
};
QVN_ON_EVERY_PLATFORM(CreditDate);

TEST_P(CreditDate, ShowsWhatIsWrittenAndGivesItBack) { showsWhatIsWritten(date); }
TEST_P(CreditDate, TheSameOneWrittenAgainChangesNothing) { keepsTheSameOne(date); }
TEST_P(CreditDate, TheNoDateMarkBlanks) { isBlankedByTheNoDateMark(date); }
TEST_P(CreditDate, ANullLeavesTheDateThatIsShown) { staysAtANull(date); }
TEST_P(CreditDate, ATextThatIsANumberIsTakenForItsDay) { takesATextThatIsANumberForItsDay(date); }
TEST_P(CreditDate, WhatIsNoDateFailsNamingTheField) { refusesWhatIsNoDate(date); }
TEST_P(CreditDate, APartlyTypedOneIsReadAsItStands) { readsAndReplacesAPartlyTypedOne(date); }
TEST_P(CreditDate, IsTypedOverItsMask) { isTypedOverItsMask(date); }
TEST_P(CreditDate, EnterCompletesAndStays) { isCompletedByEnterAndKeepsTheFocus(date); }
TEST_P(CreditDate, EnterReachesTheFieldItself) { leavesEveryKeyToTheField(date); }

}  // namespace
}  // namespace qvn::test
