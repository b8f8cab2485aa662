// The dates of a statement line: two that the operator types, and one that is only shown.
#include <gtest/gtest.h>

#include "qvn/panels/documents/ctlESTRATTI.h"
#include "tests/documents/date_rules.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

class StatementDates : public LineDates<ctlESTRATTI> {
 public:
  void withBoth(void (StatementDates::*rule)(const Property&)) {
    using P = ctlESTRATTI;
    for (const Property& date :
         {Property{"DATA_EC", &P::DATA_EC, &P::DATA_EC}, Property{"DATA_QUIET", &P::DATA_QUIET, &P::DATA_QUIET}}) {
      SCOPED_TRACE(date.name);
      renew();
      (this->*rule)(date);
      EXPECT_TRUE(isNull(date.name == "DATA_EC" ? panel->DATA_QUIET() : panel->DATA_EC()));
    }
  }
};
QVN_ON_EVERY_PLATFORM(StatementDates);

TEST_P(StatementDates, ShowWhatIsWrittenAndGiveItBack) { withBoth(&StatementDates::showsWhatIsWritten); }
TEST_P(StatementDates, TheSameOneWrittenAgainChangesNothing) { withBoth(&StatementDates::keepsTheSameOne); }
TEST_P(StatementDates, TheNoDateMarkBlanks) { withBoth(&StatementDates::isBlankedByTheNoDateMark); }
TEST_P(StatementDates, ANullLeavesTheDateThatIsShown) { withBoth(&StatementDates::staysAtANull); }
TEST_P(StatementDates, ATextThatIsANumberIsTakenForItsDay) {
  withBoth(&StatementDates::takesATextThatIsANumberForItsDay);
}
TEST_P(StatementDates, WhatIsNoDateFailsNamingTheField) { withBoth(&StatementDates::refusesWhatIsNoDate); }
TEST_P(StatementDates, APartlyTypedOneIsReadAsItStands) { withBoth(&StatementDates::readsAndReplacesAPartlyTypedOne); }
TEST_P(StatementDates, AreTypedOverTheirMask) { withBoth(&StatementDates::isTypedOverItsMask); }
TEST_P(StatementDates, EnterCompletesAndStays) { withBoth(&StatementDates::isCompletedByEnterAndKeepsTheFocus); }
TEST_P(StatementDates, EnterReachesTheFieldItself) { withBoth(&StatementDates::leavesEveryKeyToTheField); }

TEST_P(StatementDates, DATA_REGIsShownAndReadsAsEmpty) {
  panel->DATA_REG(day(5, 3, 2026));
  EXPECT_EQ(caption("LblDATA_REG"), "05/03/2026");
  EXPECT_TRUE(isEmpty(panel->DATA_REG()));
  panel->DATA_REG(text("06/03/2026"));
  EXPECT_EQ(caption("LblDATA_REG"), "06/03/2026");
  for (const Variant& none :
       {text("0.00.00"), Variant(Date()), Variant(std::int32_t{0}), Variant(Empty{}), Variant(Null{}), text("")}) {
    SCOPED_TRACE(kindName(none));
    panel->DATA_REG(day(5, 3, 2026));
    panel->DATA_REG(none);
    EXPECT_EQ(caption("LblDATA_REG"), "");
  }
  EXPECT_FAILURE(panel->DATA_REG(CurrencyArray{}), FailureKind::TypeMismatch, "LblDATA_REG");
  EXPECT_THAT(heard(), IsEmpty());
}

}  // namespace
}  // namespace qvn::test
