// The lists behind "?" in the two parts of an account's key: which one opens for what, which part is written first, and
// what is selected afterwards.
#include "tests/accounting/movement_bench.h"
#include "tests/loaded_forms.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kAllLedgers = "Select DESCRIZIONE, MASTRO From Mastri";

class AccountLists : public MovementBench {
 public:
  void atMastro(std::string_view className, std::string mastro, std::string conto) {
    ready(className, std::move(mastro), std::move(conto));
    hands().focus(this->mastro());
  }
  void atConto(std::string_view className, std::string mastro, std::string conto) {
    ready(className, std::move(mastro), std::move(conto));
    hands().focus(this->conto());
  }
  Strings key() { return {read("Mastro"), read("Conto")}; }
  static void expectSelected(const toolkit::TextBox& field, std::int32_t start, std::int32_t length) {
    EXPECT_EQ(field.SelStart(), start);
    EXPECT_EQ(field.SelLength(), length);
  }
  /// What the one list that the key opens is called.
  std::string openedBy(std::string_view keys) {
    hands().takePictures(true);
    hands().type(keys);
    const auto pictures = hands().shown();
    hands().takePictures(false);
    EXPECT_EQ(pictures.size(), 1U);
    return pictures.empty() ? "" : pictures.front().caption;
  }
};
QVN_ON_EVERY_PLATFORM(AccountLists);

// In the ledger, with no account: both panels list the ledgers.

TEST_P(AccountLists, ALedgerWithoutAnAccountIsTakenFromTheLedgers) {
  withBoth([&](std::string_view className) {
    atMastro(className, "1", "");
    hands().caret(1, 0);
    listedLedger(ledgersSql("1"), "20");
    takeTheFirst();
    EXPECT_EQ(openedBy("?"), "Elenco MASTRI");
    EXPECT_THAT(key(), ElementsAre("20", ""));
    EXPECT_TRUE(wholeSelected(mastro()));
    EXPECT_EQ(description(), "BANCHE");
    EXPECT_THAT(heard(), ElementsAre("MASTRO"));
    EXPECT_THAT(asked(), ElementsAre(ledgersSql("1"), ledgerSql("20")));
    EXPECT_EQ(focused(), "txtMASTRO");
  });
}

TEST_P(AccountLists, AnEmptyLedgerWithoutAnAccountHasAllLedgersAndBehindAnExclamationMarkThoseOfAName) {
  withBoth([&](std::string_view className) {
    atMastro(className, "", "");
    hands().type("?");
    EXPECT_THAT(asked(), ElementsAre(kAllLedgers));
    hands().type("!ca");
    asked();
    hands().type("?");
    EXPECT_THAT(asked(), ElementsAre("Select DESCRIZIONE, MASTRO From Mastri Where DESCRIZIONE Like 'CA%'"));
    EXPECT_EQ(read("Mastro"), "!CA");
  });
}

TEST_P(AccountLists, TheQuestionMarkIsNeverTypedNorRefused) {
  withBoth([&](std::string_view className) {
    atMastro(className, "1234", "567890");
    const std::int64_t before = beeps();
    hands().type("?");
    hands().focus(conto());
    hands().type("?");
    EXPECT_EQ(beeps(), before);
    EXPECT_THAT(key(), ElementsAre("1234", "567890"));
    EXPECT_EQ(asked().size(), 2U);
    EXPECT_THAT(heard(), IsEmpty());
    EXPECT_THAT(container().failures, IsEmpty());
  });
}

// In the ledger, with an account: the accounts for the line of a movement, the ledgers for that of a template.

TEST_P(AccountLists, AMovementsLedgerWithAnAccountIsTakenFromTheAccountsAndTheAccountIsWrittenFirst) {
  atMastro(kEntry, "10", "0");
  hands().caret(2, 0);
  listedAccount(accountsSql("10", "0"), "20", "002");
  takeTheFirst();
  EXPECT_EQ(openedBy("?"), "Elenco CONTI");
  EXPECT_THAT(key(), ElementsAre("20", "002"));
  EXPECT_TRUE(wholeSelected(mastro()));
  EXPECT_THAT(heard(), ElementsAre("CONTO", "MASTRO"));
  EXPECT_THAT(asked(), ElementsAre(accountsSql("10", "0"), accountSql("10", "002"), accountSql("20", "002")));
  EXPECT_EQ(description(), "CONTO PREMI");
}

TEST_P(AccountLists, AMovementsEmptyLedgerWithAnAccountStandsForAny) {
  atMastro(kEntry, "", "00");
  hands().type("?");
  EXPECT_THAT(asked(), ElementsAre(accountsSql("%", "00")));
}

TEST_P(AccountLists, ATemplatesLedgerIsTakenFromTheLedgersWhateverTheAccount) {
  atMastro(kTemplate, "1", "001");
  listedLedger(ledgersSql("1"), "20");
  takeTheFirst();
  EXPECT_EQ(openedBy("?"), "Elenco MASTRI");
  EXPECT_THAT(key(), ElementsAre("20", "001"));
  EXPECT_TRUE(wholeSelected(mastro()));
  EXPECT_THAT(heard(), ElementsAre("MASTRO"));
  EXPECT_THAT(asked(), ElementsAre(ledgersSql("1"), accountSql("20", "001")));
  EXPECT_EQ(description(), "CONTO CORRENTE");
}

TEST_P(AccountLists, AMovementsLedgerIsSelectedWhateverTheListGave) {
  for (const std::string account : {"", "001"}) {
    for (const Act& act : {Act::click("CmdAbort"), Act::key("{Escape}"), Act::close()}) {
      SCOPED_TRACE(account);
      atMastro(kEntry, "10", account);
      listedLedger(ledgersSql("10"), "20");
      listedAccount(accountsSql("10", "001"), "20", "002");
      hands().caret(1, 0);
      hands().layDown("Lista", {act});
      openedBy("?");
      EXPECT_THAT(key(), ElementsAre("10", account));
      EXPECT_TRUE(wholeSelected(mastro()));
    }
    hands().caret(1, 0);
    driver().answers.clear();
    hands().type("?");  // no row, and so no list
    EXPECT_TRUE(wholeSelected(mastro()));
  }
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(AccountLists, ATemplatesLedgerKeepsItsSelectionWhereNothingIsChosen) {
  for (const Act& act : {Act::click("CmdAbort"), Act::key("{Escape}"), Act::close()}) {
    atMastro(kTemplate, "1'0", "001");
    listedLedger(ledgersSql("10"), "20");
    hands().caret(1, 1);
    hands().layDown("Lista", {act});
    EXPECT_EQ(openedBy("?"), "Elenco MASTRI");
    EXPECT_THAT(key(), ElementsAre("1'0", "001"));
    expectSelected(mastro(), 1, 1);
  }
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(AccountLists, ALedgerThatIsChosenAgainIsSelectedAndNotAnnounced) {
  withBoth([&](std::string_view className) {
    atMastro(className, "10", "");
    listedLedger(ledgersSql("10"), "10");
    hands().caret(2, 0);
    takeTheFirst();
    hands().type("?");
    EXPECT_TRUE(wholeSelected(mastro()));
    EXPECT_THAT(heard(), IsEmpty());
  });
}

// In the account: both panels list the accounts.

TEST_P(AccountLists, AnAccountIsTakenFromTheAccountsAndTheLedgerIsWrittenFirst) {
  withBoth([&](std::string_view className) {
    atConto(className, "10", "0");
    hands().caret(1, 0);
    listedAccount(accountsSql("10", "0"), "20", "002");
    takeTheFirst();
    EXPECT_EQ(openedBy("?"), "Elenco CONTI");
    EXPECT_THAT(key(), ElementsAre("20", "002"));
    EXPECT_TRUE(wholeSelected(conto()));
    expectSelected(mastro(), 0, 0);
    EXPECT_THAT(heard(), ElementsAre("MASTRO", "CONTO"));
    EXPECT_THAT(asked(), ElementsAre(accountsSql("10", "0"), accountSql("20", "0"), accountSql("20", "002")));
    EXPECT_EQ(description(), "CONTO PREMI");
    EXPECT_EQ(focused(), "TxtCONTO");
  });
}

TEST_P(AccountLists, AnEmptyPartOfTheKeyStandsForAny) {
  withBoth([&](std::string_view className) {
    atConto(className, "", "");
    hands().type("?");
    EXPECT_THAT(asked(), ElementsAre(accountsSql("%")));
    atConto(className, "10", "");
    hands().type("?");
    EXPECT_THAT(asked(), ElementsAre(accountsSql("10")));
    atConto(className, "", "00");
    hands().type("?");
    EXPECT_THAT(asked(), ElementsAre(accountsSql("%", "00")));
    atConto(className, "1'0", "0'0");
    hands().type("?");
    EXPECT_THAT(asked(), ElementsAre(accountsSql("10", "00")));
    EXPECT_THAT(key(), ElementsAre("1'0", "0'0"));
  });
}

TEST_P(AccountLists, AnAccountKeepsItsSelectionWhereNothingIsChosen) {
  withBoth([&](std::string_view className) {
    for (const Act& act : {Act::click("CmdAbort"), Act::key("{Escape}"), Act::close()}) {
      atConto(className, "10", "001");
      listedAccount(accountsSql("10", "001"), "20", "002");
      hands().caret(1, 1);
      hands().layDown("Lista", {act});
      EXPECT_EQ(openedBy("?"), "Elenco CONTI");
      EXPECT_THAT(key(), ElementsAre("10", "001"));
      expectSelected(conto(), 1, 1);
    }
    driver().answers.erase(accountsSql("10", "001"));
    hands().type("?");
    expectSelected(conto(), 1, 1);
    EXPECT_THAT(heard(), IsEmpty());
  });
}

TEST_P(AccountLists, AnAccountThatIsChosenAgainIsSelectedAndNotAnnounced) {
  withBoth([&](std::string_view className) {
    atConto(className, "10", "001");
    listedAccount(accountsSql("10", "001"), "10", "001");
    hands().caret(2, 0);
    takeTheFirst();
    hands().type("?");
    EXPECT_TRUE(wholeSelected(conto()));
    EXPECT_THAT(heard(), IsEmpty());
  });
}

// A part that the row leaves empty.

TEST_P(AccountLists, AnEmptyPartOfTheChoiceIsNotWritten) {
  withBoth([&](std::string_view className) {
    atConto(className, "10", "001");
    listedAccount(accountsSql("10", "001"), " ", "002");
    takeTheFirst();
    hands().type("?");
    EXPECT_THAT(key(), ElementsAre("10", "002"));
    EXPECT_THAT(heard(), ElementsAre("CONTO"));
    EXPECT_TRUE(wholeSelected(conto()));

    atConto(className, "10", "001");
    listedAccount(accountsSql("10", "001"), "20", " ");
    hands().caret(1, 1);
    takeTheFirst();
    hands().type("?");
    EXPECT_THAT(key(), ElementsAre("20", "001"));
    EXPECT_THAT(heard(), ElementsAre("MASTRO"));
    expectSelected(conto(), 1, 1);
  });
}

TEST_P(AccountLists, AnEmptyPartOfTheChoiceIsNotWrittenFromAMovementsLedgerEither) {
  atMastro(kEntry, "10", "001");
  listedAccount(accountsSql("10", "001"), " ", "002");
  takeTheFirst();
  hands().type("?");
  EXPECT_THAT(key(), ElementsAre("10", "002"));
  EXPECT_THAT(heard(), ElementsAre("CONTO"));

  atMastro(kEntry, "10", "001");
  listedAccount(accountsSql("10", "001"), "20", " ");
  takeTheFirst();
  hands().type("?");
  EXPECT_THAT(key(), ElementsAre("20", "001"));
  EXPECT_THAT(heard(), ElementsAre("MASTRO"));
}

// Failures.

TEST_P(AccountLists, AListThatCannotBeAskedForReachesTheContainerAndSelectsNothing) {
  withBoth([&](std::string_view className) {
    for (const std::string field : {"txtMASTRO", "TxtCONTO"}) {
      SCOPED_TRACE(field);
      ready(className, "10", "001");
      hands().focus(box(field));
      hands().caret(1, 1);
      statements.failAt(1);
      hands().type("?");
      statements.failAt(0);
      const ReportedFailure failure = onlyReported();
      EXPECT_EQ(failure.widget, field);
      EXPECT_EQ(failure.event, "KeyPress");
      EXPECT_EQ(failure.kind, FailureKind::Database);
      EXPECT_THAT(key(), ElementsAre("10", "001"));
      expectSelected(box(field), 1, 1);
      EXPECT_THAT(namesOfLoadedForms(platform()), ElementsAre("Ricerca"));
    }
  });
  // The next list comes over the wait form.
  atConto(kEntry, "10", "001");
  listedAccount(accountsSql("10", "001"), "20", "002");
  takeTheFirst();
  hands().type("?");
  EXPECT_THAT(key(), ElementsAre("20", "002"));
  EXPECT_THAT(namesOfLoadedForms(platform()), IsEmpty());
}

TEST_P(AccountLists, ALookUpThatFailsBetweenTheTwoWritesKeepsTheSecondFromBeingMade) {
  for (const std::string field : {"txtMASTRO", "TxtCONTO"}) {
    SCOPED_TRACE(field);
    ready(kEntry, "10", "001");
    hands().focus(box(field));
    hands().caret(1, 0);
    listedAccount(accountsSql("10", "001"), "20", "002");
    takeTheFirst();
    statements.failAt(2);
    hands().type("?");
    statements.failAt(0);
    const ReportedFailure failure = onlyReported();
    EXPECT_EQ(failure.widget, field);
    EXPECT_EQ(failure.event, "KeyPress");
    if (field == "txtMASTRO") {
      EXPECT_THAT(key(), ElementsAre("10", "002"));
      EXPECT_THAT(heard(), ElementsAre("CONTO"));
    } else {
      EXPECT_THAT(key(), ElementsAre("20", "001"));
      EXPECT_THAT(heard(), ElementsAre("MASTRO"));
    }
    expectSelected(box(field), 1, 0);
  }
}

TEST_P(AccountLists, ALookUpThatFailsBehindTheSecondWriteKeepsItFromBeingSelected) {
  for (const std::string field : {"txtMASTRO", "TxtCONTO"}) {
    SCOPED_TRACE(field);
    ready(kEntry, "10", "001");
    hands().focus(box(field));
    listedAccount(accountsSql("10", "001"), "20", "002");
    takeTheFirst();
    statements.failAt(3);
    hands().type("?");
    statements.failAt(0);
    EXPECT_EQ(onlyReported().widget, field);
    EXPECT_THAT(key(), ElementsAre("20", "002"));
    expectSelected(box(field), 0, 0);
  }
}

TEST_P(AccountLists, ANullInARowFails) {
  withBoth([&](std::string_view className) {
    atConto(className, "10", "001");
    driver().answers[accountsSql("10", "001")] = {{"DESCRIZIONE", "MASTRO", "CONTO"},
                                                  {{std::string("SENZA CONTO"), std::string("10"), Null{}}}};
    hands().type("?");
    EXPECT_EQ(onlyReported().kind, FailureKind::InvalidUseOfNull);
    EXPECT_THAT(key(), ElementsAre("10", "001"));
    EXPECT_THAT(namesOfLoadedForms(platform()), ElementsAre("Ricerca", "Lista"));
    listedAccount(accountsSql("10", "001"), "20", "002");
    takeTheFirst();
    hands().type("?");
    EXPECT_THAT(key(), ElementsAre("20", "002"));
    driver().answers.erase(accountsSql("10", "001"));
  });
}

TEST_P(AccountLists, APastedQuestionMarkOpensTheListToo) {
  atConto(kEntry, "", "");
  listedAccount(accountsSql("%", "A"), "20", "002");
  takeTheFirst();
  hands().paste("a?b");
  EXPECT_THAT(key(), ElementsAre("20", "002"));
}

}  // namespace
}  // namespace qvn::test
