// The company of a credit line, with its name and what the client has open with it.
#include <gtest/gtest.h>

#include "tests/documents/credit_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CreditCompany : public CreditPanel {};
QVN_ON_EVERY_PLATFORM(CreditCompany);

TEST_P(CreditCompany, BringsItsNameAndTheExposureOfTheClient) {
  panel->COD_CLIENTE("K1");
  EXPECT_THAT(asked(), IsEmpty());
  panel->COD_COMP("C1");
  EXPECT_EQ(panel->COD_COMP(), "C1");
  EXPECT_EQ(shown(), (Strings{"GENERALE", "€ 1.234,57"}));
  EXPECT_THAT(heard(), ElementsAre("COD_COMP"));
  EXPECT_THAT(asked(), ElementsAre(companySql("C1"), exposureSql("K1", "C1")));
}

TEST_P(CreditCompany, ThatIsThereIsNotWrittenAgain) {
  panel->COD_CLIENTE("K1");
  panel->COD_COMP("C1");
  forget();
  panel->COD_COMP("C1");
  EXPECT_THAT(heard(), IsEmpty());
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(CreditCompany, WrittenBeforeTheClientShowsNoExposureNorDoesTheClientThen) {
  panel->COD_COMP("C1");
  EXPECT_EQ(shown(), (Strings{"GENERALE", ""}));
  EXPECT_THAT(asked(), ElementsAre(companySql("C1")));
  panel->COD_CLIENTE("K1");
  panel->COD_COMP("C1");
  EXPECT_EQ(shown(), (Strings{"GENERALE", ""}));
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(CreditCompany, KeepsTheExposureWhenTheClientAloneChanges) {
  panel->COD_CLIENTE("K1");
  panel->COD_COMP("C1");
  panel->COD_CLIENTE("K2");
  EXPECT_EQ(shown(), (Strings{"GENERALE", "€ 1.234,57"}));
  panel->COD_COMP("C2");
  EXPECT_EQ(shown(), (Strings{"ALPINA", ""}));
  panel->COD_COMP("C1");
  EXPECT_EQ(shown(), (Strings{"GENERALE", "€ 5,00"}));
}

TEST_P(CreditCompany, WithoutLivePoliciesOfTheClientShowsNothing) {
  EXPECT_EQ(caption("ESPOSIZIONE"), "0");
  panel->COD_CLIENTE("K1");
  panel->COD_COMP("C3");
  EXPECT_EQ(shown(), (Strings{"RIUNIONE", ""}));
}

TEST_P(CreditCompany, WithoutANameShowsTheExposureAllTheSame) {
  exposure("K1", "C9", 7.5);
  panel->COD_CLIENTE("K1");
  panel->COD_COMP("C9");
  EXPECT_EQ(shown(), (Strings{"", "€ 7,50"}));
}

TEST_P(CreditCompany, EmptiedShowsNothingAndAsksNothing) {
  panel->COD_CLIENTE("K1");
  panel->COD_COMP("C1");
  forget();
  panel->COD_COMP("");
  EXPECT_EQ(shown(), (Strings{"", ""}));
  EXPECT_THAT(heard(), ElementsAre("COD_COMP"));
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(CreditCompany, ShowsAnExposureOfAnyKindUnderCurrency) {
  struct Sum {
    Variant stored;
    std::string shown;
  };
  panel->COD_CLIENTE("K1");
  for (const Sum& sum : {Sum{std::int32_t{0}, "€ 0,00"}, Sum{0.005, "€ 0,01"}, Sum{-12.345, "-€ 12,35"},
                         Sum{money("1000000,5"), "€ 1.000.000,50"}, Sum{123456789012.5, "€ 123.456.789.012,50"},
                         Sum{1.5e20, "€ 150.000.000.000.000.000.000,00"}}) {
    SCOPED_TRACE(sum.shown);
    exposure("K1", "C3", sum.stored);
    panel->COD_COMP("");
    panel->COD_COMP("C3");
    EXPECT_EQ(caption("ESPOSIZIONE"), sum.shown);
  }
}

TEST_P(CreditCompany, EachLetterIsAnnouncedAndLookedUp) {
  panel->COD_CLIENTE("K1");
  panel->Attiva();
  forget();
  hands().type("c1");
  EXPECT_EQ(shown(), (Strings{"GENERALE", "€ 1.234,57"}));
  EXPECT_THAT(heard(), ElementsAre("COD_COMP", "COD_COMP"));
  EXPECT_THAT(asked(), ElementsAre(companySql("C"), exposureSql("K1", "C"), companySql("C1"), exposureSql("K1", "C1")));
  hands().type("x{Backspace}");
  EXPECT_EQ(shown(), (Strings{"GENERALE", "€ 1.234,57"}));
}

TEST_P(CreditCompany, TakesFiveCharactersInCapitals) {
  panel->Attiva();
  const std::int64_t before = beeps();
  hands().type("a-!9bzz");
  EXPECT_EQ(panel->COD_COMP(), "A-!9B");
  EXPECT_EQ(beeps(), before + 2);
}

TEST_P(CreditCompany, IsLookedUpOnceItIsAnnounced) {
  panel->COD_CLIENTE("K1");
  panel->COD_COMP("C2");
  forget();
  Strings before;
  container().onNotice = [&](toolkit::Surface&, std::string_view) {
    before = shown();
    EXPECT_THAT(asked(), IsEmpty());
  };
  panel->COD_COMP("C1");
  container().onNotice = {};
  EXPECT_EQ(before, (Strings{"ALPINA", "€ 2.000.000,00"}));
  EXPECT_EQ(shown(), (Strings{"GENERALE", "€ 1.234,57"}));
}

TEST_P(CreditCompany, TheNameIsShownBeforeTheExposureIsAsked) {
  panel->COD_CLIENTE("K1");
  Strings between;
  statements.onStatement = [&](std::string_view sql) {
    if (sql == exposureSql("K1", "C1")) between = shown();
  };
  panel->COD_COMP("C1");
  EXPECT_EQ(between, (Strings{"GENERALE", "0"}));
}

TEST_P(CreditCompany, BothCodesAreReadAgainForTheExposure) {
  panel->COD_CLIENTE("K2");
  Globale::unload();
  // The host answers the first look-up's question for the database, and writes the client late.
  const Subscription host = Globale::Eventi()->MancaDB.subscribe([&] {
    panel->COD_CLIENTE("K1");
    Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
  });
  panel->COD_COMP("C1");
  EXPECT_EQ(shown(), (Strings{"GENERALE", "€ 1.234,57"}));
  EXPECT_THAT(asked(), ElementsAre(companySql("C1"), exposureSql("K1", "C1")));
}

TEST_P(CreditCompany, WhatTheHostWritesOnceItIsAskedForTheDatabaseIsTheExposuresCompany) {
  panel->COD_CLIENTE("K1");
  Globale::unload();
  bool first = true;
  const Subscription host = Globale::Eventi()->MancaDB.subscribe([&] {
    Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
    if (std::exchange(first, false)) panel->COD_COMP("C2");
  });
  panel->COD_COMP("C1");
  EXPECT_EQ(panel->COD_COMP(), "C2");
  // The name is still of the company that was written first.
  EXPECT_EQ(shown(), (Strings{"GENERALE", "€ 2.000.000,00"}));
  EXPECT_THAT(asked(),
              ElementsAre(companySql("C2"), exposureSql("K1", "C2"), companySql("C1"), exposureSql("K1", "C2")));
}

TEST_P(CreditCompany, AQuoteStaysInTheFieldAndReachesTheExposureAlone) {
  panel->COD_CLIENTE("K1");
  panel->COD_COMP("C'1");
  EXPECT_EQ(panel->COD_COMP(), "C'1");
  EXPECT_THAT(asked(), ElementsAre(companySql("C1"), exposureSql("K1", "C'1")));
  panel->COD_CLIENTE("K'1");
  panel->COD_COMP("C2");
  EXPECT_THAT(asked(), ElementsAre(companySql("C2"), exposureSql("K'1", "C2")));
}

TEST_P(CreditCompany, ANameThatCannotBeLookedUpLeavesBothLabels) {
  panel->COD_CLIENTE("K1");
  panel->COD_COMP("C2");
  forget();
  statements.failAt(1);
  EXPECT_FAILURE(panel->COD_COMP("C1"), FailureKind::Database, companySql("C1"));
  EXPECT_EQ(panel->COD_COMP(), "C1");
  EXPECT_EQ(shown(), (Strings{"ALPINA", "€ 2.000.000,00"}));
  EXPECT_THAT(heard(), ElementsAre("COD_COMP"));
  EXPECT_EQ(statements.count(), 1U);
}

TEST_P(CreditCompany, AnExposureThatCannotBeLookedUpStaysBesideTheNewName) {
  panel->COD_CLIENTE("K1");
  panel->COD_COMP("C2");
  forget();
  statements.failAt(2);
  EXPECT_FAILURE(panel->COD_COMP("C1"), FailureKind::Database, exposureSql("K1", "C1"));
  EXPECT_EQ(shown(), (Strings{"GENERALE", "€ 2.000.000,00"}));
  EXPECT_THAT(heard(), ElementsAre("COD_COMP"));
  statements.failAt(0);
  panel->COD_COMP("C2");
  exposure("K1", "C1", Null{});
  EXPECT_FAILURE(panel->COD_COMP("C1"), FailureKind::InvalidUseOfNull, "esp");
  EXPECT_EQ(shown(), (Strings{"GENERALE", "€ 2.000.000,00"}));
}

TEST_P(CreditCompany, AFailureUnderTheHandsReachesTheContainer) {
  panel->Attiva();
  statements.failAt(1);
  hands().type("x");
  statements.failAt(0);
  const ReportedFailure failure = onlyReported();
  EXPECT_EQ(failure.panel, "riga");
  EXPECT_EQ(failure.widget, "TxtCOD_COMP");
  EXPECT_EQ(failure.event, "Change");
  EXPECT_EQ(failure.kind, FailureKind::Database);
  EXPECT_EQ(panel->COD_COMP(), "X");
}

TEST_P(CreditCompany, AFailingAnnouncementEndsTheChangeBeforeAnythingIsAsked) {
  panel->COD_CLIENTE("K1");
  container().onNotice = [](toolkit::Surface&, std::string_view) {
    throw Failure(FailureKind::InvalidCall, "the host refuses");
  };
  EXPECT_FAILURE(panel->COD_COMP("C1"), FailureKind::InvalidCall, "the host refuses");
  container().onNotice = {};
  EXPECT_EQ(shown(), (Strings{"", "0"}));
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(CreditCompany, AClosedConnectionIsAskedForByBothLookUpsWhateverTheCodes) {
  panel->COD_COMP("C1");
  Globale::unload();
  int asks = 0;
  const Subscription host = Globale::Eventi()->MancaDB.subscribe([&] { ++asks; });
  panel->COD_COMP("");
  EXPECT_EQ(asks, 2);
  EXPECT_FAILURE(panel->COD_COMP("C1"), FailureKind::Database, "closed");
  EXPECT_EQ(asks, 3);
}

TEST_P(CreditCompany, TheClientIsKeptUnseenAndReadsAsTheEmptyText) {
  panel->COD_CLIENTE("K1");
  EXPECT_EQ(caption("LblCOD_CLIENTE"), "K1");
  EXPECT_EQ(panel->COD_CLIENTE(), "");
  EXPECT_FALSE(label("LblCOD_CLIENTE").Visible());
  EXPECT_EQ(getByName(*panel, "COD_CLIENTE"), text(""));
  int changes = 0;
  label("LblCOD_CLIENTE").Change = [&] { ++changes; };
  panel->COD_CLIENTE("K1");
  EXPECT_EQ(changes, 0);
  panel->COD_CLIENTE("");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(caption("LblCOD_CLIENTE"), "");
  EXPECT_THAT(heard(), IsEmpty());
}

class CreditCompanyList : public CreditPanel {
 public:
  const std::string all = "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE";
  /// The focus in the field, with the caret behind what it holds.
  void into(std::string_view company) {
    panel->COD_CLIENTE("K1");
    panel->COD_COMP(company);
    panel->Attiva();
    hands().caret(99, 0);
    forget();
  }
  void offer(const std::string& sql) {
    driver().answers[sql] = {
        {"DESC_COMPAGNIA", "COD_COMP"},
        {{std::string("GENERALE"), std::string("C1")}, {std::string("ALPINA"), std::string("C2 ")}}};
  }
};
QVN_ON_EVERY_PLATFORM(CreditCompanyList);

TEST_P(CreditCompanyList, OffersTheCompaniesWhoseCodesBeginAsTheField) {
  const std::string sql = all + " Where COD_COMP  Like 'C1%'";
  into("C1");
  offer(sql);
  hands().layDown("Lista", {Act::row(0), Act::click("CmdOK")});
  hands().takePictures(true);
  hands().type("?");
  const auto pictures = hands().shown();
  ASSERT_EQ(pictures.size(), 1U);
  EXPECT_EQ(pictures[0].caption, "Elenco COMPAGNIE");
  EXPECT_EQ(panel->COD_COMP(), "C2");
  EXPECT_TRUE(wholeSelected(companyBox()));
  EXPECT_EQ(shown(), (Strings{"ALPINA", "€ 2.000.000,00"}));
  EXPECT_THAT(heard(), ElementsAre("COD_COMP"));
  EXPECT_THAT(asked(), ElementsAre(sql, companySql("C2"), exposureSql("K1", "C2")));
}

TEST_P(CreditCompanyList, CancelledItChangesNothing) {
  into("C1");
  offer(all + " Where COD_COMP  Like 'C1%'");
  const std::int64_t before = beeps();
  for (const Act& act : {Act::click("CmdAbort"), Act::key("{Escape}"), Act::close()}) {
    hands().layDown("Lista", {act});
    hands().type("?");
  }
  EXPECT_EQ(panel->COD_COMP(), "C1");
  EXPECT_EQ(companyBox().SelStart(), 2);
  EXPECT_EQ(companyBox().SelLength(), 0);
  EXPECT_EQ(beeps(), before);
  EXPECT_THAT(heard(), IsEmpty());
  EXPECT_EQ(asked().size(), 3U);
}

TEST_P(CreditCompanyList, SearchesTheNamesBehindAMarkAndOffersAllToAnEmptyField) {
  into("!AL");
  hands().type("?");
  EXPECT_THAT(asked(), ElementsAre(all + " Where DESC_COMPAGNIA Like 'AL%'"));
  EXPECT_EQ(panel->COD_COMP(), "!AL");
  into("");
  hands().type("?");
  EXPECT_THAT(asked(), ElementsAre(all));
  EXPECT_EQ(panel->COD_COMP(), "");
}

TEST_P(CreditCompanyList, AFailingLookUpLeavesThePickedCode) {
  into("");
  offer(all);
  statements.failAt(2);
  hands().layDown("Lista", {Act::row(1), Act::click("CmdOK")});
  hands().type("?");
  statements.failAt(0);
  EXPECT_EQ(onlyReported().kind, FailureKind::Database);
  EXPECT_EQ(panel->COD_COMP(), "C1");
  EXPECT_THAT(heard(), ElementsAre("COD_COMP"));
}

TEST_P(CreditCompany, WhatTheHostWritesInTheAnnouncementIsLookedUp) {
  panel->COD_CLIENTE("K1");
  bool first = true;
  container().onNotice = [&](toolkit::Surface&, std::string_view) {
    if (std::exchange(first, false)) panel->COD_COMP("C2");
  };
  panel->COD_COMP("C1");
  container().onNotice = {};
  EXPECT_EQ(shown(), (Strings{"ALPINA", "€ 2.000.000,00"}));
  EXPECT_THAT(asked(),
              ElementsAre(companySql("C2"), exposureSql("K1", "C2"), companySql("C2"), exposureSql("K1", "C2")));
}

}  // namespace
}  // namespace qvn::test
