// The three dates of a title: two that the operator types, and one that is only shown.
#include <gtest/gtest.h>

#include "tests/documents/title_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

class TitleDates : public TitlePanel {
 public:
  struct Field {
    std::string name;
    Variant (ctlSOSPESI::*get)() const;
    void (ctlSOSPESI::*let)(const Variant&);
    std::string box() const { return "Txt" + name; }
  };
  static const std::vector<Field>& fields() {
    using P = ctlSOSPESI;
    static const std::vector<Field> both{{"DATA_C", &P::DATA_C, &P::DATA_C}, {"DATA_DOC", &P::DATA_DOC, &P::DATA_DOC}};
    return both;
  }
  void let(const Field& field, const Variant& value) { (*panel.*field.let)(value); }
  Variant get(const Field& field) { return (*panel.*field.get)(); }
  /// Shows a date and forgets that it was announced.
  void start(const Field& field) {
    let(field, day(5, 3, 2026));
    forget();
  }
};
QVN_ON_EVERY_PLATFORM(TitleDates);

TEST_P(TitleDates, ShowWhatIsWrittenAndGiveItBack) {
  for (const Field& field : fields()) {
    SCOPED_TRACE(field.name);
    EXPECT_TRUE(isNull(get(field)));
    let(field, day(5, 3, 2026));
    EXPECT_EQ(date(field.box()).Text(), "05/03/2026");
    EXPECT_EQ(get(field), text("05/03/2026"));
    EXPECT_EQ(heard(), Strings{field.name});
    let(field, text("06/03/2026"));
    EXPECT_EQ(get(field), text("06/03/2026"));
    EXPECT_EQ(heard(), Strings{field.name});
  }
  EXPECT_EQ(panel->DATA_C(), text("06/03/2026"));
  EXPECT_EQ(panel->DATA_DOC(), text("06/03/2026"));
}

TEST_P(TitleDates, TheSameOneWrittenAgainChangesNothing) {
  for (const Field& field : fields()) {
    SCOPED_TRACE(field.name);
    start(field);
    panel->Attiva(true);
    hands().focus(date(field.box()));
    hands().caret(3, 2);
    let(field, day(5, 3, 2026));
    let(field, text("05/03/2026"));
    EXPECT_THAT(heard(), IsEmpty());
    EXPECT_EQ(date(field.box()).SelStart(), 3);
    EXPECT_EQ(date(field.box()).SelLength(), 2);
  }
}

TEST_P(TitleDates, TheNoDateMarkBlanksInWhateverKindItComes) {
  for (const Field& field : fields()) {
    for (const Variant& mark : {text("0.00.00"), Variant(Date()), Variant(std::int32_t{0}), Variant(Empty{})}) {
      SCOPED_TRACE(field.name + " by " + std::string(kindName(mark)));
      start(field);
      let(field, mark);
      EXPECT_EQ(date(field.box()).Text(), "##/##/####");
      EXPECT_TRUE(isNull(get(field)));
      EXPECT_EQ(heard(), Strings{field.name});
      let(field, mark);  // once more, with no harm
      EXPECT_EQ(date(field.box()).Text(), "##/##/####");
      EXPECT_THAT(heard(), IsEmpty());
    }
  }
}

TEST_P(TitleDates, ANullLeavesTheDateThatIsShown) {
  for (const Field& field : fields()) {
    SCOPED_TRACE(field.name);
    start(field);
    let(field, Null{});
    EXPECT_EQ(get(field), text("05/03/2026"));
    let(field, text("0.00.00"));
    forget();
    let(field, Null{});
    EXPECT_TRUE(isNull(get(field)));
    EXPECT_THAT(heard(), IsEmpty());
  }
}

TEST_P(TitleDates, WhatIsNoDateFailsNamingTheField) {
  for (const Field& field : fields()) {
    SCOPED_TRACE(field.name);
    start(field);
    EXPECT_FAILURE(let(field, text("domani")), FailureKind::TypeMismatch, field.box());
    EXPECT_FAILURE(let(field, text("domani")), FailureKind::TypeMismatch, "domani");
    EXPECT_FAILURE(let(field, CurrencyArray{}), FailureKind::TypeMismatch, field.box());
    EXPECT_EQ(get(field), text("05/03/2026"));
    EXPECT_THAT(heard(), IsEmpty());
  }
}

TEST_P(TitleDates, APartlyTypedOneIsReadAsItStandsAndReplaced) {
  for (const Field& field : fields()) {
    SCOPED_TRACE(field.name);
    date(field.box()).Text("12/##/####");
    forget();
    EXPECT_EQ(get(field), text("12/##/####"));
    let(field, day(12, 11, 2026));
    EXPECT_EQ(get(field), text("12/11/2026"));
    EXPECT_EQ(heard(), Strings{field.name});
    date(field.box()).Text("12/##/####");
    forget();
    let(field, text("0.00.00"));
    EXPECT_TRUE(isNull(get(field)));
    EXPECT_EQ(heard(), Strings{field.name});
  }
}

TEST_P(TitleDates, TakeTheFirstAndTheLastDay) {
  for (const Field& field : fields()) {
    let(field, day(1, 1, 100));
    EXPECT_EQ(get(field), text("01/01/0100"));
    let(field, day(31, 12, 9999));
    EXPECT_EQ(get(field), text("31/12/9999"));
  }
}

TEST_P(TitleDates, AreCyanAndSelectedWithTheFocusAndWhiteWithout) {
  panel->Attiva(true);
  for (const Field& field : fields()) {
    SCOPED_TRACE(field.name);
    hands().focus(date(field.box()));
    EXPECT_EQ(date(field.box()).BackColor(), kCyan);
    EXPECT_TRUE(wholeSelected(date(field.box())));
    hands().leave();
    EXPECT_EQ(date(field.box()).BackColor(), toolkit::kWhite);
  }
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(TitleDates, EnterOnABlankOneGivesTodayAndStays) {
  today(*Date::of(15, 11, 2026));
  panel->Attiva(true);
  for (const Field& field : fields()) {
    SCOPED_TRACE(field.name);
    hands().focus(date(field.box()));
    hands().type("{Enter}");
    EXPECT_EQ(get(field), text("15/11/2026"));
    EXPECT_EQ(heard(), Strings{field.name});
    EXPECT_EQ(focused(), field.box());
    EXPECT_TRUE(wholeSelected(date(field.box())));
    hands().caret(0, 0);
    hands().type("{Enter}");  // the date stands: nothing is completed and the focus does not move
    EXPECT_EQ(focused(), field.box());
    EXPECT_TRUE(wholeSelected(date(field.box())));
    EXPECT_THAT(heard(), IsEmpty());
  }
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(TitleDates, EnterCompletesWhatIsPartlyTyped) {
  today(*Date::of(15, 11, 2026));
  panel->Attiva(true);
  for (const Field& field : fields()) {
    SCOPED_TRACE(field.name);
    date(field.box()).Text("3#/##/####");
    hands().focus(date(field.box()));
    forget();
    hands().type("{Enter}");
    EXPECT_EQ(get(field), text("03/11/2026"));
    EXPECT_EQ(heard(), Strings{field.name});
    EXPECT_EQ(focused(), field.box());
  }
}

TEST_P(TitleDates, EachTypedDigitIsAnnouncedAndEnterAddsTheYear) {
  today(*Date::of(15, 11, 2026));
  panel->Attiva(true);
  for (const Field& field : fields()) {
    SCOPED_TRACE(field.name);
    hands().focus(date(field.box()));
    forget();
    hands().type("0503");
    EXPECT_EQ(heard(), Strings(4, field.name));
    EXPECT_EQ(get(field), text("05/03/####"));
    hands().type("{Enter}");
    EXPECT_EQ(get(field), text("05/03/2026"));
    EXPECT_EQ(heard(), Strings{field.name});
    EXPECT_EQ(focused(), field.box());
  }
}

TEST_P(TitleDates, EnterLeavesADayThatTheCalendarDoesNotHave) {
  panel->Attiva(true);
  for (const Field& field : fields()) {
    SCOPED_TRACE(field.name);
    date(field.box()).Text("32/01/2026");
    hands().focus(date(field.box()));
    forget();
    hands().caret(0, 0);
    hands().type("{Enter}");
    EXPECT_EQ(date(field.box()).Text(), "32/01/2026");
    EXPECT_TRUE(wholeSelected(date(field.box())));
    EXPECT_EQ(focused(), field.box());
    EXPECT_THAT(heard(), IsEmpty());
  }
}

TEST_P(TitleDates, EnterReachesTheFieldItself) {
  panel->Attiva(true);
  for (const Field& field : fields()) {
    std::int16_t key = 13;
    date(field.box()).KeyPress(key);
    EXPECT_EQ(key, 13) << field.name;
  }
}

TEST_P(TitleDates, OtherKeysAreTheFieldsOwn) {
  panel->Attiva(true);
  for (const Field& field : fields()) {
    for (std::int16_t code : {std::int16_t{'5'}, std::int16_t{'?'}, std::int16_t{8}, std::int16_t{27}}) {
      std::int16_t key = code;
      date(field.box()).KeyPress(key);
      EXPECT_EQ(key, code) << field.name;
    }
    EXPECT_EQ(date(field.box()).Text(), "##/##/####");
  }
}

TEST_P(TitleDates, DATA_ECShowsDayMonthAndYear) {
  panel->DATA_EC(day(5, 3, 2026));
  EXPECT_EQ(caption("LblDATA_EC"), "05/03/2026");
  panel->DATA_EC(text("06/03/2026"));
  EXPECT_EQ(caption("LblDATA_EC"), "06/03/2026");
  panel->DATA_EC(std::int32_t{46086});
  EXPECT_EQ(caption("LblDATA_EC"), "05/03/2026");
}

TEST_P(TitleDates, DATA_ECShowsNothingForNoDate) {
  for (const Variant& none :
       {text("0.00.00"), Variant(Date()), Variant(std::int32_t{0}), Variant(Empty{}), Variant(Null{}), text("")}) {
    SCOPED_TRACE(kindName(none));
    panel->DATA_EC(day(5, 3, 2026));
    panel->DATA_EC(none);
    EXPECT_EQ(caption("LblDATA_EC"), "");
  }
}

TEST_P(TitleDates, DATA_ECShowsATextThatIsNoDateAsItIs) {
  panel->DATA_EC(text("da definire"));
  EXPECT_EQ(caption("LblDATA_EC"), "da definire");
  EXPECT_FAILURE(panel->DATA_EC(CurrencyArray{}), FailureKind::TypeMismatch, "LblDATA_EC");
  EXPECT_EQ(caption("LblDATA_EC"), "da definire");
}

}  // namespace
}  // namespace qvn::test
