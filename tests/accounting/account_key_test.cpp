// The two parts of an account's key on both panels: what a change announces and looks up, keys, focus and the way of
// Enter.
#include "tests/accounting/movement_bench.h"
#include "tests/refusing_platform.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct KeyField {
  std::string property;
  std::string field;
  std::string notice;
  std::size_t limit;
};

const std::vector<KeyField>& keyFields() {
  static const std::vector<KeyField> both{{"Mastro", "txtMASTRO", "MASTRO", 4}, {"Conto", "TxtCONTO", "CONTO", 6}};
  return both;
}

class AccountKeys : public MovementBench {
 public:
  /// Does so with each field of either panel, each time on a panel of its own that holds the account 10, 001.
  void withEach(const std::function<void(const KeyField& field)>& act) {
    withBoth([&](std::string_view className) {
      for (const KeyField& field : keyFields()) {
        SCOPED_TRACE(field.field);
        ready(className, "10", "001");
        hands().focus(box(field.field));
        act(field);
        container().onNotice = {};
        container().failures.clear();
        statements.failAt(0);
      }
    });
  }
};
QVN_ON_EVERY_PLATFORM(AccountKeys);

TEST_P(AccountKeys, ALedgerAloneShowsItsDescriptionAndWithAnAccountTheAccounts) {
  withBoth([&](std::string_view className) {
    make(className);
    write("Mastro", "20");
    EXPECT_EQ(description(), "BANCHE");
    EXPECT_THAT(heard(), ElementsAre("MASTRO"));
    EXPECT_THAT(asked(), ElementsAre(ledgerSql("20")));
    write("Conto", "002");
    EXPECT_EQ(description(), "CONTO PREMI");
    EXPECT_THAT(heard(), ElementsAre("CONTO"));
    EXPECT_THAT(asked(), ElementsAre(accountSql("20", "002")));
    EXPECT_EQ(read("Mastro"), "20");
    EXPECT_EQ(read("Conto"), "002");
  });
}

TEST_P(AccountKeys, AnAccountWithAnEmptiedLedgerShowsNothingAndIsNotAsked) {
  withBoth([&](std::string_view className) {
    ready(className, "10", "001");
    EXPECT_EQ(description(), "CASSA CONTANTI");
    write("Mastro", "");
    EXPECT_EQ(description(), "");
    EXPECT_EQ(read("Conto"), "001");
    EXPECT_THAT(heard(), ElementsAre("MASTRO"));
    EXPECT_THAT(asked(), IsEmpty());
  });
}

TEST_P(AccountKeys, AnEmptiedAccountShowsTheLedgerAgain) {
  withBoth([&](std::string_view className) {
    ready(className, "10", "001");
    write("Conto", "");
    EXPECT_EQ(description(), "CASSA");
    EXPECT_THAT(asked(), ElementsAre(ledgerSql("10")));
  });
}

TEST_P(AccountKeys, AnUnknownKeyShowsNothing) {
  withBoth([&](std::string_view className) {
    ready(className, "10", "001");
    write("Conto", "9");
    EXPECT_EQ(description(), "");
    write("Conto", "");
    write("Mastro", "99");
    EXPECT_EQ(description(), "");
    EXPECT_EQ(read("Mastro"), "99");
  });
}

TEST_P(AccountKeys, EachKeystrokeIsAnnouncedAndLookedUp) {
  withBoth([&](std::string_view className) {
    ready(className);
    hands().type("20{Enter}00{Backspace}");
    EXPECT_THAT(heard(), ElementsAre("MASTRO", "MASTRO", "CONTO", "CONTO", "CONTO"));
    EXPECT_THAT(asked(), ElementsAre(ledgerSql("2"), ledgerSql("20"), accountSql("20", "0"), accountSql("20", "00"),
                                     accountSql("20", "0")));
  });
}

TEST_P(AccountKeys, WhatIsThereAlreadyIsNotWrittenAgain) {
  withEach([&](const KeyField& field) {
    hands().caret(1, 1);
    write(field.property, read(field.property));
    EXPECT_THAT(heard(), IsEmpty());
    EXPECT_THAT(asked(), IsEmpty());
    EXPECT_EQ(box(field.field).SelStart(), 1);
    EXPECT_EQ(box(field.field).SelLength(), 1);
  });
}

TEST_P(AccountKeys, TextsAreComparedExactly) {
  withEach([&](const KeyField& field) {
    write(field.property, "ab");
    write(field.property, "AB");
    write(field.property, "AB ");
    EXPECT_EQ(read(field.property), "AB ");
    EXPECT_EQ(heard(), Strings(3, field.notice));
  });
}

TEST_P(AccountKeys, TheHostMayWriteMoreThanAHandMayType) {
  withEach([&](const KeyField& field) {
    write(field.property, "città 1234567890");
    EXPECT_EQ(read(field.property), "città 1234567890");
  });
}

TEST_P(AccountKeys, AQuoteStaysInTheFieldAndIsNotAsked) {
  withBoth([&](std::string_view className) {
    make(className);
    write("Mastro", "2'0");
    write("Conto", "'002");
    EXPECT_EQ(read("Mastro"), "2'0");
    EXPECT_EQ(read("Conto"), "'002");
    EXPECT_EQ(description(), "CONTO PREMI");
    EXPECT_THAT(asked(), ElementsAre(ledgerSql("20"), accountSql("20", "002")));
  });
}

TEST_P(AccountKeys, TheDescriptionIsLookedUpAfterTheAnnouncement) {
  withEach([&](const KeyField& field) {
    std::string shown;
    Strings askedBefore{"not announced"};
    container().onNotice = [&](toolkit::Surface&, std::string_view) {
      shown = description();
      askedBefore = asked();
    };
    write(field.property, "20");
    EXPECT_EQ(shown, "CASSA CONTANTI");
    EXPECT_THAT(askedBefore, IsEmpty());
    EXPECT_EQ(asked().size(), 1U);
    EXPECT_EQ(description(), field.notice == "MASTRO" ? "CONTO CORRENTE" : "");
  });
}

TEST_P(AccountKeys, WhatTheHostWritesInTheAnnouncementIsLookedUp) {
  withBoth([&](std::string_view className) {
    ready(className, "10", "001");
    container().onNotice = [&](toolkit::Surface&, std::string_view name) {
      if (name == "MASTRO") write("Conto", "002");
    };
    write("Mastro", "20");
    container().onNotice = {};
    EXPECT_EQ(description(), "CONTO PREMI");
    EXPECT_THAT(asked(), ElementsAre(accountSql("20", "002"), accountSql("20", "002")));
  });
}

TEST_P(AccountKeys, AFailingLookUpPassesToTheWriterAndLeavesTheDescription) {
  withEach([&](const KeyField& field) {
    forget();
    statements.failAt(1);
    EXPECT_FAILURE(write(field.property, "20"), FailureKind::Database, std::string("riga.") + field.property);
    EXPECT_EQ(read(field.property), "20");
    EXPECT_EQ(description(), "CASSA CONTANTI");
    EXPECT_THAT(heard(), ElementsAre(field.notice));
  });
}

TEST_P(AccountKeys, AFailingLookUpUnderTheHandsReachesTheContainer) {
  withEach([&](const KeyField& field) {
    statements.failAt(1);
    hands().type("2");
    const ReportedFailure failure = onlyReported();
    EXPECT_EQ(failure.panel, "riga");
    EXPECT_EQ(failure.widget, field.field);
    EXPECT_EQ(failure.event, "Change");
    EXPECT_EQ(failure.kind, FailureKind::Database);
    EXPECT_EQ(read(field.property), "2");
    EXPECT_EQ(description(), "CASSA CONTANTI");
  });
}

TEST_P(AccountKeys, ANullDescriptionFails) {
  driver().answers[ledgerSql("N")] = {{"DESCRIZIONE"}, {{Null{}}}};
  driver().answers[accountSql("10", "N")] = {{"DESCRIZIONE"}, {{Null{}}}};
  withBoth([&](std::string_view className) {
    ready(className, "10");
    EXPECT_FAILURE(write("Conto", "N"), FailureKind::InvalidUseOfNull, "riga.Conto");
    ready(className);
    EXPECT_FAILURE(write("Mastro", "N"), FailureKind::InvalidUseOfNull, "riga.Mastro");
  });
}

TEST_P(AccountKeys, AClosedConnectionIsAskedForWhateverTheKey) {
  withBoth([&](std::string_view className) {
    ready(className, "10");
    Globale::unload();
    int asks = 0;
    const Subscription host = Globale::Eventi()->MancaDB.subscribe([&] {
      if (++asks == 3) Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
    });
    write("Mastro", "");
    EXPECT_EQ(asks, 1);
    EXPECT_FAILURE(write("Mastro", "20"), FailureKind::Database, "");
    EXPECT_EQ(asks, 2);
    write("Conto", "001");
    EXPECT_EQ(asks, 3);
    EXPECT_EQ(description(), "CONTO CORRENTE");
  });
}

TEST_P(AccountKeys, TakesSoManyCharactersInCapitals) {
  withEach([&](const KeyField& field) {
    const std::int64_t before = beeps();
    hands().type("a!ò-1xyz");
    const std::string all("A!ò-1XYZ");  // the accented letter is two bytes
    EXPECT_EQ(read(field.property), all.substr(0, field.limit + 1));
    EXPECT_EQ(beeps(), before + static_cast<std::int64_t>(8 - field.limit));
    hands().type("{Backspace}");
    EXPECT_EQ(read(field.property), all.substr(0, field.limit));
  });
}

TEST_P(AccountKeys, TheFocusIsYellowAndSelectsTheWhole) {
  withEach([&](const KeyField& field) {
    hands().leave();
    toolkit::TextBox& text = box(field.field);
    EXPECT_EQ(text.BackColor(), toolkit::kWhite);
    write(field.property, "città");
    hands().focus(text);
    EXPECT_EQ(text.BackColor(), kYellow);
    EXPECT_TRUE(wholeSelected(text));
    hands().leave();
    EXPECT_EQ(text.BackColor(), toolkit::kWhite);
  });
}

TEST_P(AccountKeys, TheFocusSelectsBeforeItColours) {
  withBoth([&](std::string_view className) {
    RefusingPlatform refusing(platform());
    refusing.refusing = {"txtMASTRO", "TxtCONTO"};
    Globale::install(refusing);
    make(className);
    for (const KeyField& field : keyFields()) {
      EXPECT_FAILURE(box(field.field).GotFocus(), FailureKind::InvalidCall, field.field);
      EXPECT_EQ(box(field.field).BackColor(), toolkit::kWhite);
    }
    panel.reset();
    Globale::install(platform());
  });
}

TEST_P(AccountKeys, ADescriptionOfTheHostStandsUntilTheKeyChanges) {
  withEach([&](const KeyField& field) {
    write("DESC_CONTO", "a mano");
    EXPECT_EQ(description(), "a mano");
    write("DESC_CONTO", "a mano");
    EXPECT_EQ(description(), "a mano");
    write(field.property, read(field.property));
    EXPECT_EQ(description(), "a mano");
    EXPECT_THAT(heard(), IsEmpty());
    EXPECT_THAT(asked(), IsEmpty());
    hands().type("2");
    EXPECT_EQ(description(), "");
    EXPECT_EQ(asked().size(), 1U);
  });
}

TEST_P(AccountKeys, TheDescriptionCannotBeRead) {
  withBoth([&](std::string_view className) {
    make(className);
    EXPECT_FAILURE(getByName(*panel, "DESC_CONTO"), FailureKind::NoSuchMember, "riga.DESC_CONTO");
  });
}

TEST_P(AccountKeys, EnterGoesThroughTheLineOfAMovement) {
  ready(kEntry);
  for (const auto next : {"TxtCONTO", "TxtDESC_1", "TxtDESC_2", "cmbTIPO"}) {
    hands().type("{Enter}");
    EXPECT_EQ(focused(), next);
  }
  hands().type("{Enter}");  // the list takes no key of the panel
  EXPECT_EQ(focused(), "cmbTIPO");
  hands().focus(box("TxtIMPORTO"));
  hands().type("{Enter}");
  EXPECT_EQ(focused(), "txtMASTRO");
}

TEST_P(AccountKeys, EnterGoesThroughTheLineOfATemplateToItsFirstCheckBox) {
  ready(kTemplate);
  hands().type("{Enter}");
  EXPECT_EQ(focused(), "TxtCONTO");
  hands().type("{Enter}");
  EXPECT_EQ(focused(), "ChkRIPETI");
}

TEST_P(AccountKeys, EnterInAFullFieldOnlyGoesOn) {
  withBoth([&](std::string_view className) {
    ready(className, "1234");
    const std::int64_t before = beeps();
    hands().type("{Enter}");
    EXPECT_EQ(read("Mastro"), "1234");
    EXPECT_EQ(focused(), "TxtCONTO");
    EXPECT_EQ(beeps(), before);
    EXPECT_THAT(heard(), IsEmpty());
  });
}

}  // namespace
}  // namespace qvn::test
