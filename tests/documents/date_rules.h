// What holds for every date field of these panels.
#pragma once

#include <gtest/gtest.h>
#include <string>

#include "tests/documents/line_bench.h"

namespace qvn::test {

/// A date of a panel: its property and the field behind it.
template <class P>
struct DateProperty {
  std::string name;
  Variant (P::*get)() const;
  void (P::*let)(const Variant&);
  std::string field() const { return "Txt" + name; }
};

template <class P>
class LineDates : public LinePanel<P> {
 public:
  using Property = DateProperty<P>;

  void let(const Property& date, const Variant& value) { (*this->panel.*date.let)(value); }
  Variant get(const Property& date) { return (*this->panel.*date.get)(); }
  toolkit::DateControl& of(const Property& date) { return this->date(date.field()); }

  void showsWhatIsWritten(const Property& date) {
    EXPECT_TRUE(isNull(get(date)));
    let(date, day(5, 3, 2026));
    EXPECT_EQ(of(date).Text(), "05/03/2026");
    EXPECT_EQ(get(date), text("05/03/2026"));
    EXPECT_EQ(getByName(*this->panel, date.name), text("05/03/2026"));
    EXPECT_EQ(this->heard(), Strings{date.name});
    let(date, text("06/03/2026"));
    EXPECT_EQ(get(date), text("06/03/2026"));
    EXPECT_EQ(this->heard(), Strings{date.name});
  }

  void keepsTheSameOne(const Property& date) {
    start(date);
    this->panel->Attiva();
    this->hands().focus(of(date));
    this->hands().caret(3, 2);
    let(date, day(5, 3, 2026));
    let(date, text("05/03/2026"));
    EXPECT_EQ(this->heard(), Strings{});
    EXPECT_EQ(of(date).SelStart(), 3);
    EXPECT_EQ(of(date).SelLength(), 2);
  }

  void isBlankedByTheNoDateMark(const Property& date) {
    for (const Variant& mark : {text("0.00.00"), Variant(Date()), Variant(std::int32_t{0}), Variant(Empty{})}) {
      SCOPED_TRACE(kindName(mark));
      start(date);
      let(date, mark);
      EXPECT_EQ(of(date).Text(), "##/##/####");
      EXPECT_TRUE(isNull(get(date)));
      EXPECT_EQ(this->heard(), Strings{date.name});
      let(date, mark);
      EXPECT_EQ(this->heard(), Strings{});
    }
  }

  void staysAtANull(const Property& date) {
    start(date);
    let(date, Null{});
    EXPECT_EQ(get(date), text("05/03/2026"));
    let(date, text("0.00.00"));
    this->forget();
    let(date, Null{});
    EXPECT_TRUE(isNull(get(date)));
    EXPECT_EQ(this->heard(), Strings{});
  }

  void takesATextThatIsANumberForItsDay(const Property& date) {
    start(date);
    let(date, text("46087"));
    EXPECT_EQ(get(date), text("06/03/2026"));
    EXPECT_EQ(this->heard(), Strings{date.name});
    let(date, text("46087"));
    EXPECT_EQ(this->heard(), Strings{});
  }

  void refusesWhatIsNoDate(const Property& date) {
    start(date);
    EXPECT_FAILURE(let(date, text("domani")), FailureKind::TypeMismatch, date.field());
    EXPECT_FAILURE(let(date, text("domani")), FailureKind::TypeMismatch, "domani");
    EXPECT_FAILURE(let(date, CurrencyArray{}), FailureKind::TypeMismatch, date.field());
    EXPECT_EQ(get(date), text("05/03/2026"));
    EXPECT_EQ(this->heard(), Strings{});
  }

  void readsAndReplacesAPartlyTypedOne(const Property& date) {
    of(date).Text("12/##/####");
    this->forget();
    EXPECT_EQ(get(date), text("12/##/####"));
    let(date, day(12, 11, 2026));
    EXPECT_EQ(get(date), text("12/11/2026"));
    EXPECT_EQ(this->heard(), Strings{date.name});
    of(date).Text("12/##/####");
    this->forget();
    let(date, text("0.00.00"));
    EXPECT_TRUE(isNull(get(date)));
    EXPECT_EQ(this->heard(), Strings{date.name});
  }

  void isTypedOverItsMask(const Property& date) {
    this->today(*Date::of(15, 11, 2026));
    this->panel->Attiva();
    this->hands().focus(of(date));
    EXPECT_EQ(of(date).BackColor(), kCyan);
    EXPECT_TRUE(wholeSelected(of(date)));
    this->forget();
    this->hands().type("3x1");
    EXPECT_EQ(of(date).Text(), "31/##/####");
    EXPECT_EQ(this->heard(), (Strings{date.name, date.name}));
    this->hands().type("122026");
    EXPECT_EQ(get(date), text("31/12/2026"));
    this->hands().leave();
    EXPECT_EQ(of(date).BackColor(), toolkit::kWhite);
  }

  void isCompletedByEnterAndKeepsTheFocus(const Property& date) {
    struct Completion {
      std::string_view typed;
      std::string_view completed;
    };
    this->today(*Date::of(15, 11, 2026));
    this->panel->Attiva();
    for (const Completion each : {Completion{"##/##/####", "15/11/2026"},
                                  {"3#/##/####", "03/11/2026"},
                                  {"12/03/98##", "12/03/1998"},
                                  {"32/01/2026", "32/01/2026"}}) {
      SCOPED_TRACE(each.typed);
      of(date).Text(each.typed);
      this->hands().focus(of(date));
      this->forget();
      this->hands().caret(0, 0);
      this->hands().type("{Enter}");
      EXPECT_EQ(of(date).Text(), each.completed);
      EXPECT_EQ(this->heard(), each.typed == each.completed ? Strings{} : Strings{date.name});
      EXPECT_EQ(this->focused(), date.field());
      EXPECT_TRUE(wholeSelected(of(date)));
      this->hands().caret(0, 0);
      this->hands().type("{Enter}");  // completed, it stays where it is
      EXPECT_EQ(of(date).Text(), each.completed);
      EXPECT_EQ(this->focused(), date.field());
      EXPECT_TRUE(wholeSelected(of(date)));
    }
    EXPECT_EQ(this->container().failures.size(), 0U);
  }

  void leavesEveryKeyToTheField(const Property& date) {
    for (const std::int16_t key : {std::int16_t{13}, std::int16_t{'?'}, std::int16_t{'7'}, std::int16_t{8}}) {
      std::int16_t pressed = key;
      of(date).KeyPress(pressed);
      EXPECT_EQ(pressed, key);
    }
  }

 private:
  /// Shows a date and forgets that it was announced.
  void start(const Property& date) {
    let(date, day(5, 3, 2026));
    this->forget();
  }
};

}  // namespace qvn::test
