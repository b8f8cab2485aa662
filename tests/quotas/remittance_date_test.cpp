// The date of the remittance of a policy's participant.
#include <gtest/gtest.h>

#include "tests/quotas/quota_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Variant dateText(std::string_view value) { return std::string(value); }

class RemittanceDate : public QuotaBench {
 public:
  RemittanceDate() { today(Date::of(15, 11, 2026).value()); }

  ctlQ_POLIZZE& made = make<ctlQ_POLIZZE>();
  toolkit::DateControl& date = made.surface().date("TxtD_RIMESSA");

  /// Makes the panel ready and goes to the date.
  void enter() {
    made.Attiva();
    hands().focus(date);
    forget();
  }
};
QVN_ON_EVERY_PLATFORM(RemittanceDate);

TEST_P(RemittanceDate, StartsBlank) {
  EXPECT_EQ(date.Text(), "##/##/####");
  EXPECT_EQ(made.D_RIMESSA(), Variant(Null{}));
}

TEST_P(RemittanceDate, IsWrittenInAnyFormAndAnnouncedOnce) {
  made.D_RIMESSA(Date::of(7, 3, 2026).value());
  EXPECT_EQ(date.Text(), "07/03/2026");
  EXPECT_EQ(made.D_RIMESSA(), dateText("07/03/2026"));
  EXPECT_THAT(heard(), ElementsAre("D_RIMESSA"));
  made.D_RIMESSA(dateText("07/03/2026"));
  made.D_RIMESSA(Date::of(7, 3, 2026).value());
  EXPECT_THAT(heard(), IsEmpty());
  made.D_RIMESSA(dateText("31/12/2026"));
  EXPECT_EQ(made.D_RIMESSA(), dateText("31/12/2026"));
  EXPECT_THAT(heard(), ElementsAre("D_RIMESSA"));
}

TEST_P(RemittanceDate, ANullLeavesItAndTheNoDateMarkBlanksIt) {
  made.D_RIMESSA(dateText("07/03/2026"));
  forget();
  made.D_RIMESSA(Null{});
  EXPECT_EQ(made.D_RIMESSA(), dateText("07/03/2026"));
  EXPECT_THAT(heard(), IsEmpty());
  for (const Variant& mark : {dateText("0.00.00"), Variant(Date())}) {
    made.D_RIMESSA(dateText("07/03/2026"));
    forget();
    made.D_RIMESSA(mark);
    EXPECT_EQ(made.D_RIMESSA(), Variant(Null{}));
    EXPECT_EQ(date.Text(), "##/##/####");
    EXPECT_THAT(heard(), ElementsAre("D_RIMESSA"));
    made.D_RIMESSA(mark);
    EXPECT_THAT(heard(), IsEmpty());
  }
}

TEST_P(RemittanceDate, WhatIsNoDateFailsAndLeavesIt) {
  made.D_RIMESSA(dateText("07/03/2026"));
  forget();
  EXPECT_FAILURE(made.D_RIMESSA(dateText("domani")), FailureKind::TypeMismatch, "TxtD_RIMESSA");
  EXPECT_EQ(made.D_RIMESSA(), dateText("07/03/2026"));
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(RemittanceDate, ReadsNoDateWhileItIsTypedInPart) {
  date.Text("07/03/####");
  EXPECT_NE(made.D_RIMESSA(), Variant(Null{}));
  EXPECT_NE(made.D_RIMESSA(), dateText("07/03/2026"));
  EXPECT_THAT(heard(), ElementsAre("D_RIMESSA"));
}

TEST_P(RemittanceDate, IsCyanAndSelectedWithTheFocus) {
  made.D_RIMESSA(dateText("07/03/2026"));
  enter();
  EXPECT_EQ(date.BackColor(), kCyan);
  EXPECT_TRUE(wholeSelected(date));
  hands().leave();
  EXPECT_EQ(date.BackColor(), toolkit::kWhite);
}

TEST_P(RemittanceDate, EnterOnABlankOneGivesTodayAndTheFocusStays) {
  enter();
  hands().type("{Enter}");
  EXPECT_EQ(made.D_RIMESSA(), dateText("15/11/2026"));
  EXPECT_TRUE(wholeSelected(date));
  EXPECT_EQ(focused(), "TxtD_RIMESSA");
  EXPECT_THAT(heard(), ElementsAre("D_RIMESSA"));
  hands().caret(3, 0);
  hands().type("{Enter}");
  EXPECT_EQ(made.D_RIMESSA(), dateText("15/11/2026"));
  EXPECT_TRUE(wholeSelected(date));
  EXPECT_EQ(focused(), "TxtD_RIMESSA");
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(RemittanceDate, EnterIsCancelledAndNoOtherKeyIs) {
  enter();
  std::int16_t key = 13;
  date.KeyPress(key);
  EXPECT_EQ(key, 0);
  EXPECT_EQ(date.Text(), "15/11/2026");
  hands().caret(4, 0);
  for (const std::int16_t other : {std::int16_t{8}, std::int16_t{27}, std::int16_t{'5'}, std::int16_t{'?'}}) {
    key = other;
    date.KeyPress(key);
    EXPECT_EQ(key, other);
  }
  EXPECT_EQ(date.SelStart(), 4);
  EXPECT_EQ(date.Text(), "15/11/2026");
}

TEST_P(RemittanceDate, IsTypedDigitByDigitAndCompleted) {
  enter();
  hands().type("0703");
  EXPECT_EQ(heard().size(), 4U);
  hands().type("{Enter}");
  EXPECT_EQ(made.D_RIMESSA(), dateText("07/03/2026"));
  EXPECT_THAT(heard(), ElementsAre("D_RIMESSA"));
}

}  // namespace
}  // namespace qvn::test
