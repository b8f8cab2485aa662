// The date field.
#include "tests/contract/contract_panel.h"

namespace qvn::test {
namespace {

QVN_CONTRACT(DateControl);

Variant text(std::string_view value) { return std::string(value); }

TEST_P(DateControl, StartsBlank) {
  EXPECT_EQ(date().Text(), "##/##/####");
  EXPECT_TRUE(isNull(date().Value()));
}

TEST_P(DateControl, ShowsAWrittenValue) {
  date().Change = [this] { heard.push_back(date().Text()); };
  date().Value(text("15/11/2026"));
  EXPECT_EQ(date().Text(), "15/11/2026");
  EXPECT_EQ(date().Value(), text("15/11/2026"));
  EXPECT_THAT(heard, ElementsAre("15/11/2026"));
}

TEST_P(DateControl, NullBlanksIt) {
  date().Value(text("15/11/2026"));
  date().Change = [this] { heard.push_back(date().Text()); };
  date().Value(Null{});
  EXPECT_TRUE(isNull(date().Value()));
  EXPECT_THAT(heard, ElementsAre("##/##/####"));
}

TEST_P(DateControl, WhatIsShownAlreadyRaisesNothing) {
  date().Change = hears("change");
  date().Value(Null{});
  date().Text("##/##/####");
  EXPECT_THAT(heard, IsEmpty());
  date().Value(text("15/11/2026"));
  heard.clear();
  date().Value(text("15/11/2026"));
  date().Text("15/11/2026");
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(DateControl, TakesItsTextToo) {
  date().Change = [this] { heard.push_back(date().Text()); };
  date().Text("03/11/2026");
  EXPECT_EQ(date().Value(), text("03/11/2026"));
  EXPECT_THAT(heard, ElementsAre("03/11/2026"));
}

TEST_P(DateControl, APartlyFilledTextIsNoDate) {
  date().Text("12/3#/2026");
  EXPECT_EQ(date().Text(), "12/3#/2026");
  ASSERT_FALSE(isNull(date().Value()));
  EXPECT_FALSE(dateOf(std::get<std::string>(date().Value())).has_value());
}

TEST_P(DateControl, ADayThatTheCalendarHasNotIsNoDate) {
  date().Text("32/13/2026");
  EXPECT_EQ(date().Text(), "32/13/2026");
  ASSERT_FALSE(isNull(date().Value()));
  EXPECT_FALSE(dateOf(std::get<std::string>(date().Value())).has_value());
  date().Value(text("29/02/2027"));
  EXPECT_EQ(date().Text(), "29/02/2027");
}

TEST_P(DateControl, WhatDoesNotFitTheMaskFails) {
  date().Value(text("15/11/2026"));
  date().Change = hears("change");
  for (const std::string_view wrong :
       {"", "15/11/26", "15-11-2026", "1a/11/2026", "15/11/20266", "0.00.00", "2026/11/15"}) {
    EXPECT_FAILURE(date().Text(wrong), FailureKind::TypeMismatch, wrong);
    EXPECT_FAILURE(date().Value(text(wrong)), FailureKind::TypeMismatch, "Date");
  }
  EXPECT_EQ(date().Text(), "15/11/2026");
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(DateControl, AValueHasAllItsDigits) {
  EXPECT_FAILURE(date().Value(text("12/3#/2026")), FailureKind::TypeMismatch, "12/3#/2026");
  EXPECT_FAILURE(date().Value(text("##/##/####")), FailureKind::TypeMismatch, "Date");
}

TEST_P(DateControl, AValueIsATextOrNull) {
  EXPECT_FAILURE(date().Value(Empty{}), FailureKind::TypeMismatch, "Date");
  EXPECT_FAILURE(date().Value(std::int32_t{15112026}), FailureKind::TypeMismatch, "Date");
  EXPECT_FAILURE(date().Value(Date{}), FailureKind::TypeMismatch, "Date");
  EXPECT_TRUE(isNull(date().Value()));
}

TEST_P(DateControl, AFailureOfChangePassesToTheWriterAndTheDateStays) {
  date().Change = fails("data");
  EXPECT_FAILURE(date().Value(text("15/11/2026")), FailureKind::Overflow, "data");
  EXPECT_EQ(date().Text(), "15/11/2026");
}

TEST_P(DateControl, IsSelectedLikeAnyField) {
  date().SelStart(0);
  date().SelLength(10);
  EXPECT_EQ(selection(date()), sel(0, 10));
  date().Value(text("15/11/2026"));
  EXPECT_EQ(selection(date()), sel(0, 0));
  date().SelStart(8);
  date().SelLength(5);
  EXPECT_EQ(selection(date()), sel(8, 2));
}

TEST_P(DateControl, EnterReachesItWithoutHarm) {
  date().Value(text("15/11/2026"));
  date().SetFocus();
  date().SelLength(10);
  hearKeys(date());
  date().Change = hears("change");
  heard.clear();
  hands().type("{Enter}");
  EXPECT_THAT(heard, ElementsAre("key 13"));
  EXPECT_EQ(date().Text(), "15/11/2026");
  EXPECT_EQ(selection(date()), sel(0, 10));
  EXPECT_TRUE(date().hasFocus());
}

TEST_P(DateControl, KeysRaiseKeyPress) {
  date().SetFocus();
  hearKeys(date());
  heard.clear();
  hands().type("1/{Backspace}{Escape}");
  EXPECT_THAT(heard, ElementsAre("key 49", "key 47", "key 8", "key 27"));
}

class TypedDates : public ContractPanel {
 protected:
  void typeFresh(std::string_view keys) {
    date().Value(Null{});
    date().SetFocus();
    hands().caret(0, 10);
    hands().type(keys);
  }
};
QVN_ON_EVERY_PLATFORM_AS(Contract, TypedDates);

TEST_P(TypedDates, DigitsGoOverTheMaskAndTheSlashesStand) {
  date().Change = [this] { heard.push_back(date().Text()); };
  date().SetFocus();
  heard.clear();
  hands().type("15112");
  EXPECT_THAT(heard, ElementsAre("1#/##/####", "15/##/####", "15/1#/####", "15/11/####", "15/11/2###"));
  EXPECT_EQ(selection(date()), sel(7, 0));
  hands().type("026");
  EXPECT_EQ(date().Value(), text("15/11/2026"));
}

TEST_P(TypedDates, ADigitTakesThePlaceOfTheSelection) {
  typeFresh("15112026");
  hands().caret(0, 10);
  hands().type("3");
  EXPECT_EQ(date().Text(), "3#/##/####");
  EXPECT_EQ(selection(date()), sel(1, 0));
}

TEST_P(TypedDates, ASlashEndsADayOrMonthOfOneDigit) {
  typeFresh("5/3/2026");
  EXPECT_EQ(date().Text(), "05/03/2026");
}

TEST_P(TypedDates, BackspaceAndDeleteLeaveThePlaceholder) {
  typeFresh("15112026{Backspace}");
  EXPECT_EQ(date().Text(), "15/11/202#");
  hands().type("{Home}{Delete}");
  EXPECT_EQ(date().Text(), "#5/11/202#");
  hands().caret(0, 10);
  hands().type("{Delete}");
  EXPECT_TRUE(isNull(date().Value()));
}

TEST_P(TypedDates, ArrowsHomeAndEndMoveTheCaretPastTheSlashes) {
  typeFresh("1511");
  EXPECT_EQ(selection(date()), sel(6, 0));
  hands().type("{Left}");
  EXPECT_EQ(selection(date()), sel(4, 0));
  hands().type("{Home}");
  EXPECT_EQ(selection(date()), sel(0, 0));
  hands().type("{Right}{Right}");
  EXPECT_EQ(selection(date()), sel(3, 0));
  hands().type("{End}");
  EXPECT_EQ(selection(date()), sel(6, 0));
}

TEST_P(TypedDates, WhatTheMaskRefusesBeepsAndChangesNothing) {
  typeFresh("15112026");
  date().Change = hears("change");
  heard.clear();
  hands().type("7");
  hands().caret(0, 0);
  hands().type("x");
  EXPECT_THAT(heard, ElementsAre("beep", "beep"));
  EXPECT_EQ(date().Text(), "15/11/2026");
}

TEST_P(TypedDates, AKeyThatChangesNothingRaisesNoChange) {
  typeFresh("15112026");
  date().Change = hears("change");
  heard.clear();
  hands().caret(0, 0);
  hands().type("1{Backspace}");
  EXPECT_THAT(heard, ElementsAre("change"));
  EXPECT_EQ(date().Text(), "#5/11/2026");
  heard.clear();
  hands().type("{Backspace}{Delete}{Enter}{Escape}");
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(TypedDates, KeyPressMayDropOrReplaceAKey) {
  date().KeyPress = [](std::int16_t& code) { code = code == '7' ? std::int16_t{0} : std::int16_t{'4'}; };
  typeFresh("71");
  EXPECT_EQ(date().Text(), "4#/##/####");
}

TEST_P(TypedDates, APastedWholeDateReplacesWhatIsThere) {
  for (const std::string_view form :
       {"05/03/2026", "5/3/2026", "5.3.2026", "05032026", "2026-03-05", " 05-03-2026\n"}) {
    typeFresh("15112026");
    hands().caret(3, 1);
    hands().paste(form);
    EXPECT_EQ(date().Text(), "05/03/2026") << form;
  }
}

TEST_P(TypedDates, AnyOtherPasteGoesInAsIfTyped) {
  typeFresh("15");
  hands().paste("3/26");
  EXPECT_EQ(date().Text(), "15/03/26##");
  hearKeys(date());
  heard.clear();
  hands().paste("7x8");
  EXPECT_EQ(date().Text(), "15/03/267#");
  EXPECT_THAT(heard, ElementsAre("key 55", "key 120", "beep"));
}

TEST_P(TypedDates, AFieldThatIsOffTakesNothing) {
  date().Enabled(false);
  EXPECT_FAILURE(hands().focus(date()), FailureKind::InvalidCall, "Date");
  EXPECT_FAILURE(date().SetFocus(), FailureKind::InvalidCall, "Date");
}

}  // namespace
}  // namespace qvn::test
