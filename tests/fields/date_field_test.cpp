// What date fields have alike.
#include "qvn/fields/date_field.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "qvn/fields/Gest_SCHEDE.h"
#include "tests/failure_matchers.h"
#include "tests/fields/field_bench.h"
#include "tests/fields/stub_field.h"

namespace qvn::test {
namespace {

using fields::EnterKey;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t kCyan = 16776960;
constexpr std::uint32_t kWhite = 16777215;

Variant text(std::string_view value) { return std::string(value); }
Variant day(int day, int month, int year) { return Date::of(day, month, year).value(); }

class DateFields : public FieldBench {
 public:
  DateFields() {
    today(Date::of(15, 11, 2026).value());
    fields::wire(date(), "DATA", EnterKey::LeftToTheField);
  }

  const std::vector<std::string>& notices() { return container().notices; }
  std::pair<std::int32_t, std::int32_t> selection() { return {date().SelStart(), date().SelLength()}; }
};
QVN_ON_EVERY_PLATFORM(DateFields);

TEST_P(DateFields, AnnounceEachChange) {
  date().Value(text("01/02/2026"));
  EXPECT_THAT(notices(), ElementsAre("DATA"));
  date().SetFocus();
  hands().type("3");
  EXPECT_THAT(notices(), ElementsAre("DATA", "DATA"));
}

TEST_P(DateFields, AreColouredAndSelectedWithTheFocus) {
  date().Value(text("01/02/2026"));
  hands().focus(date());
  EXPECT_EQ(date().BackColor(), kCyan);
  EXPECT_EQ(selection(), std::pair(0, 10));
  hands().leave();
  EXPECT_EQ(date().BackColor(), kWhite);
}

TEST_P(DateFields, EnterCompletesAndSelectsAndTheFocusStays) {
  hands().focus(date());
  hands().type("12{Enter}");
  EXPECT_EQ(date().Text(), "12/11/2026");
  EXPECT_EQ(selection(), std::pair(0, 10));
  hands().caret(3, 0);
  hands().type("{Enter}");
  EXPECT_EQ(date().Text(), "12/11/2026");
  EXPECT_EQ(selection(), std::pair(0, 10));
  EXPECT_TRUE(date().hasFocus());
}

TEST_P(DateFields, EnterOnABlankFieldGivesTodayOnce) {
  hands().focus(date());
  hands().type("{Enter}{Enter}");
  EXPECT_EQ(date().Value(), text("15/11/2026"));
  EXPECT_THAT(notices(), ElementsAre("DATA"));
}

TEST_P(DateFields, WhatCannotBeCompletedStaysSelected) {
  hands().focus(date());
  hands().type("32132026{Enter}");
  EXPECT_EQ(date().Text(), "32/13/2026");
  EXPECT_EQ(selection(), std::pair(0, 10));
}

TEST_P(DateFields, OtherKeysCompleteNothing) {
  hands().focus(date());
  hands().type("12{Escape}");
  EXPECT_EQ(date().Text(), "12/##/####");
  EXPECT_EQ(selection(), std::pair(3, 0));
}

TEST_P(DateFields, TheEnterIsLeftToTheFieldOrCancelledAsWired) {
  std::int16_t key = 13;
  date().KeyPress(key);
  EXPECT_EQ(key, 13);
  EXPECT_EQ(date().Text(), "15/11/2026");
  fields::wire(date(), "DATA", EnterKey::Cancelled);
  date().Value(Null{});
  date().KeyPress(key);
  EXPECT_EQ(key, 0);
  EXPECT_EQ(date().Text(), "15/11/2026");
  key = '7';
  date().KeyPress(key);
  EXPECT_EQ(key, '7');
}

TEST_P(DateFields, ShowADateAsDateOrText) {
  fields::showDate(date(), day(5, 3, 2026));
  EXPECT_EQ(date().Text(), "05/03/2026");
  fields::showDate(date(), text("06/03/2026"));
  EXPECT_EQ(date().Text(), "06/03/2026");
  EXPECT_THAT(notices(), ElementsAre("DATA", "DATA"));
}

TEST_P(DateFields, TheSameDateIsNotWrittenAgain) {
  fields::showDate(date(), day(5, 3, 2026));
  hands().focus(date());
  hands().caret(3, 2);
  fields::showDate(date(), day(5, 3, 2026));
  fields::showDate(date(), text("05/03/2026"));
  EXPECT_THAT(notices(), ElementsAre("DATA"));
  EXPECT_EQ(selection(), std::pair(3, 2));
}

TEST_P(DateFields, NullLeavesWhatIsShown) {
  fields::showDate(date(), Null{});
  EXPECT_TRUE(isNull(date().Value()));
  fields::showDate(date(), day(5, 3, 2026));
  fields::showDate(date(), Null{});
  EXPECT_EQ(date().Text(), "05/03/2026");
  date().Text("12/##/####");
  fields::showDate(date(), Null{});
  EXPECT_EQ(date().Text(), "12/##/####");
}

TEST_P(DateFields, TheNoDateMarkBlanksThem) {
  for (const Variant& mark :
       {Variant(Date()), text("0.00.00"), Variant(std::int32_t{0}), Variant(0.0), Variant(Empty())}) {
    date().Value(text("05/03/2026"));
    container().notices.clear();
    fields::showDate(date(), mark);
    EXPECT_TRUE(isNull(date().Value())) << kindName(mark);
    EXPECT_EQ(date().Text(), "##/##/####");
    EXPECT_THAT(notices(), ElementsAre("DATA"));
  }
}

TEST_P(DateFields, TheNoDateMarkOnABlankFieldChangesNothing) {
  fields::showDate(date(), Date());
  EXPECT_TRUE(isNull(date().Value()));
  EXPECT_THAT(notices(), IsEmpty());
}

TEST_P(DateFields, TheNoDateMarkBlanksWhatIsHalfTyped) {
  date().Text("12/##/####");
  fields::showDate(date(), Date());
  EXPECT_TRUE(isNull(date().Value()));
}

TEST_P(DateFields, ADateTakesThePlaceOfWhatIsHalfTyped) {
  date().Text("05/03/202#");
  fields::showDate(date(), day(5, 3, 2026));
  EXPECT_EQ(date().Text(), "05/03/2026");
}

TEST_P(DateFields, WhatIsNoDateFailsAndTheDateStays) {
  fields::showDate(date(), day(5, 3, 2026));
  for (const std::string_view wrong : {"domani", "5/3/2026", "2026-03-05", "", "0.00.0"}) {
    EXPECT_FAILURE(fields::showDate(date(), text(wrong)), FailureKind::TypeMismatch, wrong);
    EXPECT_FAILURE(fields::showDate(date(), text(wrong)), FailureKind::TypeMismatch, "Date");
  }
  EXPECT_FAILURE(fields::showDate(date(), CurrencyArray{}), FailureKind::TypeMismatch, "Date");
  EXPECT_EQ(date().Text(), "05/03/2026");
  EXPECT_THAT(notices(), ElementsAre("DATA"));
}

TEST_P(DateFields, ADayBeyondTheCalendarIsShownAsWritten) {
  fields::showDate(date(), text("31/02/2026"));
  EXPECT_EQ(date().Text(), "31/02/2026");
}

TEST(NoDate, IsTheDateOfZeroOrItsText) {
  EXPECT_TRUE(fields::isNoDate(Date()));
  EXPECT_TRUE(fields::isNoDate(std::string("0.00.00")));
  EXPECT_FALSE(fields::isNoDate(Date::of(31, 12, 1899).value()));
  for (const std::string_view other : {"", "0", "0.00.0", "00.00.00", "30/12/1899"}) {
    EXPECT_FALSE(fields::isNoDate(std::string(other))) << other;
  }
  EXPECT_FALSE(fields::isNoDate(Null{}));
  EXPECT_FALSE(fields::isNoDate(CurrencyArray{}));
}

TEST_P(DateFields, AnEnterIsCancelledBeforeTheDateIsCompleted) {
  fields::wire(date(), "DATA", EnterKey::Cancelled);
  container().onNotice = [](toolkit::Surface&, std::string_view) {
    throw Failure(FailureKind::InvalidCall, "the host refuses");
  };
  std::int16_t key = 13;
  EXPECT_FAILURE(date().KeyPress(key), FailureKind::InvalidCall, "the host refuses");
  EXPECT_EQ(key, 0);
}

TEST_P(DateFields, AreComparedBeforeTheyAreWritten) {
  StubDate stub(panel(), date().layout());
  stub.value = text("05/03/2026");
  fields::showDate(stub, day(5, 3, 2026));
  fields::showDate(stub, Null{});
  EXPECT_EQ(stub.valueWrites + stub.textWrites, 0);
  stub.value = Null{};
  fields::showDate(stub, Date());
  EXPECT_EQ(stub.valueWrites, 1);  // Null again
  stub.value = text("30/12/1899");
  fields::showDate(stub, Date());
  EXPECT_EQ(stub.valueWrites, 1);
}

}  // namespace
}  // namespace qvn::test
