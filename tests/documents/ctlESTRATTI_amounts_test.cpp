// The three amounts of a statement line: one number in two forms.
#include <gtest/gtest.h>

#include "qvn/panels/documents/ctlESTRATTI.h"
#include "tests/documents/line_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

struct Amount {
  std::string name;
  Currency (ctlESTRATTI::*get)() const;
  void (ctlESTRATTI::*let)(Currency);
  std::string field() const { return "Txt" + name; }
};

const std::vector<Amount>& amounts() {
  using P = ctlESTRATTI;
  static const std::vector<Amount> all{{"PREMIO", &P::PREMIO, &P::PREMIO},
                                       {"RIMBORSO", &P::RIMBORSO, &P::RIMBORSO},
                                       {"PROVVIGIONE", &P::PROVVIGIONE, &P::PROVVIGIONE}};
  return all;
}

class StatementAmounts : public LinePanel<ctlESTRATTI> {
 public:
  void let(const Amount& amount, std::string_view value) { (*panel.*amount.let)(money(value)); }
  Currency get(const Amount& amount) { return (*panel.*amount.get)(); }
  toolkit::TextBox& of(const Amount& amount) { return box(amount.field()); }
  /// A panel ready for typing with the amount written, and the focus there.
  void into(const Amount& amount, std::string_view value) {
    renew();
    let(amount, value);
    panel->Attiva();
    hands().focus(of(amount));
    forget();
  }
};
QVN_ON_EVERY_PLATFORM(StatementAmounts);

TEST_P(StatementAmounts, TheFirstOneWrittenDiffersFromTheDesignTextEvenIfItIsZero) {
  for (const Amount& amount : amounts()) {
    SCOPED_TRACE(amount.name);
    renew();
    EXPECT_EQ(get(amount), money("0,0001"));
    let(amount, "0");
    for (const Amount& each : amounts()) {
      EXPECT_EQ(of(each).Text(), each.name == amount.name ? "€ 0,00" : "0,0001") << each.name;
    }
    EXPECT_EQ(get(amount), Currency());
    EXPECT_EQ(heard(), Strings{amount.name});
  }
}

TEST_P(StatementAmounts, ShowUnderCurrencyAndReadWhatIsShown) {
  for (const Amount& amount : amounts()) {
    SCOPED_TRACE(amount.name);
    let(amount, "1234,5");
    EXPECT_EQ(of(amount).Text(), "€ 1.234,50");
    let(amount, "-0,126");
    EXPECT_EQ(of(amount).Text(), "-€ 0,13");
    EXPECT_EQ(get(amount), money("-0,13"));
    EXPECT_EQ(heard(), (Strings{amount.name, amount.name}));
    letByName(*panel, amount.name, text("7,005"));
    EXPECT_EQ(getByName(*panel, amount.name), Variant(money("7,01")));
    heard();
  }
}

TEST_P(StatementAmounts, OneThatIsThereLeavesTheTextAndItsSelection) {
  for (const Amount& amount : amounts()) {
    SCOPED_TRACE(amount.name);
    into(amount, "12,5");
    hands().caret(1, 2);
    let(amount, "12,5");
    EXPECT_EQ(of(amount).Text(), "12,50");
    EXPECT_EQ(of(amount).SelStart(), 1);
    EXPECT_EQ(of(amount).SelLength(), 2);
    EXPECT_THAT(heard(), IsEmpty());
    let(amount, "12,51");  // while the field has the focus, too
    EXPECT_EQ(of(amount).Text(), "€ 12,51");
    EXPECT_EQ(heard(), Strings{amount.name});
  }
}

TEST_P(StatementAmounts, AreComparedToFourDecimals) {
  for (const Amount& amount : amounts()) {
    SCOPED_TRACE(amount.name);
    let(amount, "12,5");
    heard();
    let(amount, "12,5001");
    // Another amount, of the same text: it is written, and nothing comes of that.
    EXPECT_EQ(of(amount).Text(), "€ 12,50");
    EXPECT_EQ(get(amount), money("12,5"));
    EXPECT_THAT(heard(), IsEmpty());
  }
}

TEST_P(StatementAmounts, ArePlainAndSelectedWithTheFocusAndCurrencyWithout) {
  for (const Amount& amount : amounts()) {
    SCOPED_TRACE(amount.name);
    renew();
    let(amount, "-1234,5");
    panel->Attiva();
    forget();
    hands().focus(of(amount));
    EXPECT_EQ(of(amount).Text(), "-1234,50");
    EXPECT_TRUE(wholeSelected(of(amount)));
    EXPECT_EQ(of(amount).BackColor(), kCyan);
    EXPECT_EQ(heard(), Strings{amount.name});
    hands().leave();
    EXPECT_EQ(of(amount).Text(), "-€ 1.234,50");
    EXPECT_EQ(of(amount).BackColor(), toolkit::kWhite);
    EXPECT_EQ(heard(), Strings{amount.name});
    EXPECT_EQ(get(amount), money("-1234,5"));
  }
}

TEST_P(StatementAmounts, TheDesignTextIsZeroOnceTheFocusHasPassed) {
  panel->Attiva();
  for (const Amount& amount : amounts()) {
    hands().focus(of(amount));
    EXPECT_EQ(of(amount).Text(), "0,00");
    hands().leave();
    EXPECT_EQ(of(amount).Text(), "€ 0,00");
    EXPECT_EQ(get(amount), Currency());
  }
}

TEST_P(StatementAmounts, TakeASignAndTwoDecimals) {
  for (const Amount& amount : amounts()) {
    SCOPED_TRACE(amount.name);
    into(amount, "0");
    const std::int64_t before = beeps();
    hands().type("-1.2x-345");
    EXPECT_EQ(of(amount).Text(), "-1,23");
    EXPECT_EQ(beeps(), before + 4);
    EXPECT_EQ(heard(), Strings(5, amount.name));
    hands().type("{Enter}");
    EXPECT_EQ(of(amount).Text(), "-€ 1,23");
    EXPECT_EQ(get(amount), money("-1,23"));
  }
}

TEST_P(StatementAmounts, OneThatIsEmptiedIsAnnouncedAndThenBecomesZeroSelected) {
  for (const Amount& amount : amounts()) {
    SCOPED_TRACE(amount.name);
    into(amount, "7");
    Strings seen;
    container().onNotice = [&](toolkit::Surface&, std::string_view name) {
      seen.push_back(std::string(name).append("=").append(of(amount).Text()));
    };
    hands().type("{Backspace}");
    container().onNotice = {};
    EXPECT_EQ(of(amount).Text(), "0");
    EXPECT_TRUE(wholeSelected(of(amount)));
    // The emptied field is announced before it is filled, and the zero as it is written.
    EXPECT_EQ(seen, (Strings{amount.name + "=", amount.name + "=0"}));
    hands().type("5");
    EXPECT_EQ(of(amount).Text(), "5");
  }
}

TEST_P(StatementAmounts, OneThatTheHostFillsInTheAnnouncementStays) {
  for (const Amount& amount : amounts()) {
    into(amount, "7");
    container().onNotice = [&](toolkit::Surface&, std::string_view) {
      if (of(amount).Text().empty()) of(amount).Text("9");
    };
    hands().type("{Backspace}");
    container().onNotice = {};
    EXPECT_EQ(of(amount).Text(), "9");
  }
}

TEST_P(StatementAmounts, ATextThatIsNoAmountFailsWhereItIsReadAndWritten) {
  for (const Amount& amount : amounts()) {
    SCOPED_TRACE(amount.name);
    of(amount).Text("-");
    forget();
    EXPECT_FAILURE(get(amount), FailureKind::TypeMismatch, amount.field());
    EXPECT_FAILURE(get(amount), FailureKind::TypeMismatch, "\"-\"");
    EXPECT_FAILURE(let(amount, "5"), FailureKind::TypeMismatch, amount.field());
    EXPECT_FAILURE(getByName(*panel, amount.name), FailureKind::TypeMismatch, "riga." + amount.name);
    EXPECT_EQ(of(amount).Text(), "-");
    EXPECT_THAT(heard(), IsEmpty());
  }
}

TEST_P(StatementAmounts, ATextThatIsNoNumberStaysAsItIsWithTheFocusAndWithout) {
  for (const Amount& amount : amounts()) {
    into(amount, "7");
    hands().type("-");
    EXPECT_EQ(of(amount).Text(), "-");
    hands().leave();
    EXPECT_EQ(of(amount).Text(), "-");
    hands().focus(of(amount));
    EXPECT_EQ(of(amount).Text(), "-");
  }
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(StatementAmounts, HoldUpToTheLargestOfTheirTypeAndNoMore) {
  for (const Amount& amount : amounts()) {
    SCOPED_TRACE(amount.name);
    let(amount, "922337203685477,58");
    EXPECT_EQ(get(amount), money("922337203685477,58"));
    EXPECT_EQ(of(amount).Text(), "€ 922.337.203.685.477,58");
    let(amount, "-922337203685477,58");
    EXPECT_EQ(get(amount), money("-922337203685477,58"));
    of(amount).Text("922337203685477,59");
    EXPECT_FAILURE(get(amount), FailureKind::Overflow, amount.field());
    EXPECT_FAILURE(let(amount, "1"), FailureKind::Overflow, amount.field());
  }
}

TEST_P(StatementAmounts, TheColourChangesBeforeTheTextIsRewritten) {
  for (const Amount& amount : amounts()) {
    renew();
    let(amount, "7");
    panel->Attiva();
    std::vector<std::uint32_t> colours;
    container().onNotice = [&](toolkit::Surface&, std::string_view) { colours.push_back(of(amount).BackColor()); };
    hands().focus(of(amount));
    hands().leave();
    container().onNotice = {};
    EXPECT_EQ(colours, (std::vector<std::uint32_t>{kCyan, toolkit::kWhite})) << amount.name;
  }
}

TEST_P(StatementAmounts, AnAnnouncementThatFailsLeavesTheFieldEmpty) {
  for (const Amount& amount : amounts()) {
    into(amount, "7");
    container().onNotice = [](toolkit::Surface&, std::string_view) {
      throw Failure(FailureKind::InvalidCall, "the host refuses");
    };
    hands().type("{Backspace}");
    container().onNotice = {};
    EXPECT_EQ(onlyReported().event, "Change");
    EXPECT_EQ(of(amount).Text(), "") << amount.name;
  }
}

}  // namespace
}  // namespace qvn::test
