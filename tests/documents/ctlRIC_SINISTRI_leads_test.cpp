// The lead coinsurer of a claim, which follows from its number, and the producer, which the host gives.
#include <gtest/gtest.h>

#include "tests/documents/search_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

class ClaimLeads : public ClaimFound {};
QVN_ON_EVERY_PLATFORM(ClaimLeads);

TEST_P(ClaimLeads, TheNumberBringsTheCompanyAlone) {
  panel->PROT(text("S/1"));
  EXPECT_EQ(caption("LblPROT"), "S/1");
  EXPECT_EQ(leads(), (Strings{"C1", "GENERALE", "", ""}));
  EXPECT_EQ(driver().ran, (std::vector<Ran>{{leadCompanySql("S/1"), 2, 3, -1}, {companySql("C1"), 2, 3, -1}}));
}

TEST_P(ClaimLeads, TheProducersCodeBringsTheName) {
  panel->PROT(text("S/1"));
  asked();
  panel->COD_PROD("P2");
  EXPECT_EQ(leads(), (Strings{"C1", "GENERALE", "P2", "BIANCHI"}));
  EXPECT_EQ(driver().ran, (std::vector<Ran>{{producerSql("P2"), 2, 3, -1}}));
  asked();
  panel->COD_PROD("P2");
  EXPECT_THAT(asked(), IsEmpty());
  panel->PROT(text("S/2"));
  EXPECT_EQ(leads(), (Strings{"C2", "ALPINA", "P2", "BIANCHI"}));
}

TEST_P(ClaimLeads, TheSameNumberIsNotLookedUpAgain) {
  panel->PROT(text("S/1"));
  asked();
  panel->PROT(text("S/1"));
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(ClaimLeads, AClaimWithoutALeadEmptiesTheCompany) {
  panel->PROT(text("S/1"));
  panel->COD_PROD("P1");
  asked();
  panel->PROT(text("S/9"));
  EXPECT_EQ(leads(), (Strings{"", "", "P1", "ROSSI"}));
  EXPECT_EQ(asked(), Strings{leadCompanySql("S/9")});
}

TEST_P(ClaimLeads, AnyTextIsANumber) {
  for (const std::string number : {"sette", "2147483648", "7,5", "007", " ", "%"}) {
    panel->PROT(text(number));
    EXPECT_EQ(asked(), Strings{leadCompanySql(number)});
    EXPECT_EQ(leads(), (Strings{"", "", "", ""}));
  }
  panel->PROT(std::int32_t{7});
  EXPECT_EQ(asked(), Strings{leadCompanySql("7")});
}

TEST_P(ClaimLeads, AnEmptiedNumberIsNotLookedUpAndHasNoCompany) {
  answer(leadCompanySql(""), "COD_COMP", text("C2"));
  for (const char* empty : {"", "'", "''"}) {
    panel->PROT(text("S/1"));
    asked();
    panel->PROT(text(empty));
    EXPECT_EQ(leads(), (Strings{"", "", "", ""}));
    EXPECT_THAT(asked(), IsEmpty());
  }
}

TEST_P(ClaimLeads, AnEmptyNumberOnANewPanelChangesNoCaption) {
  panel->PROT(text(""));
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(ClaimLeads, TheClaimZeroAloneIsNotLookedUp) {
  panel->PROT(text("S/1"));
  asked();
  panel->PROT(text("0"));
  EXPECT_EQ(leads(), (Strings{"", "", "", ""}));
  EXPECT_THAT(asked(), IsEmpty());
  panel->PROT(text("00"));
  EXPECT_EQ(asked(), Strings{leadCompanySql("00")});
}

TEST_P(ClaimLeads, ANumberIsLookedUpWithoutItsQuotesAndShownWithThem) {
  panel->PROT(text("S'/'1"));
  EXPECT_EQ(caption("LblPROT"), "S'/'1");
  EXPECT_EQ(leads(), (Strings{"C1", "GENERALE", "", ""}));
  EXPECT_EQ(asked(), (Strings{leadCompanySql("S/1"), companySql("C1")}));
  panel->PROT(text("'0'"));
  EXPECT_EQ(leads(), (Strings{"", "", "", ""}));
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(ClaimLeads, ALookUpThatFailsLeavesWhatStandsBehindIt) {
  panel->PROT(text("S/1"));
  panel->COD_PROD("P1");
  statements.failAt(2);
  EXPECT_FAILURE(panel->PROT(text("S/2")), FailureKind::Database, companySql("C2"));
  EXPECT_EQ(leads(), (Strings{"C2", "GENERALE", "P1", "ROSSI"}));
  statements.failAt(1);
  EXPECT_FAILURE(panel->PROT(text("S/1")), FailureKind::Database, leadCompanySql("S/1"));
  EXPECT_EQ(caption("LblPROT"), "S/1");
  EXPECT_EQ(leads(), (Strings{"C2", "GENERALE", "P1", "ROSSI"}));
  statements.failAt(1);
  EXPECT_FAILURE(panel->COD_PROD("P2"), FailureKind::Database, producerSql("P2"));
  EXPECT_EQ(leads(), (Strings{"C2", "GENERALE", "P2", "ROSSI"}));
}

TEST_P(ClaimLeads, ANullFails) {
  answer(leadCompanySql("S/3"), "COD_COMP", Null{});
  EXPECT_FAILURE(panel->PROT(text("S/3")), FailureKind::InvalidUseOfNull, "COD_COMP");
  EXPECT_EQ(caption("LblPROT"), "S/3");
  EXPECT_EQ(leads(), (Strings{"", "", "", ""}));
}

TEST_P(ClaimLeads, AnUnknownProducerHasNoNameAndAQuotedOneIsFound) {
  panel->COD_PROD("P9");
  EXPECT_EQ(leads(), (Strings{"", "", "P9", ""}));
  panel->COD_PROD("P'1");
  EXPECT_EQ(leads(), (Strings{"", "", "P'1", "ROSSI"}));
}

TEST_P(ClaimLeads, EachLookUpAsksForAMissingDatabase) {
  panel->PROT(text("S/1"));
  Globale::unload();
  int asks = 0;
  const Subscription subscription = Globale::Eventi()->MancaDB.subscribe([&] { ++asks; });
  panel->PROT(text("0"));  // the number, and the company that goes
  EXPECT_EQ(asks, 2);
  panel->PROT(text(""));
  EXPECT_EQ(asks, 3);
  EXPECT_FAILURE(panel->PROT(text("S/2")), FailureKind::Database, "closed");
  EXPECT_FAILURE(panel->COD_PROD("P1"), FailureKind::Database, "closed");
  EXPECT_EQ(asks, 5);
}

TEST_P(ClaimLeads, TheNumberIsReadBeforeTheDatabaseIsAskedFor) {
  const auto subscription = whenAskedForTheDatabase([&] {
    label("LblPROT").Change = {};
    label("LblPROT").Caption("S/2");
  });
  panel->PROT(text("S/1"));
  EXPECT_EQ(asked(), (Strings{leadCompanySql("S/1"), companySql("C1")}));
}

TEST_P(ClaimLeads, OtherPropertiesLookNothingUp) {
  panel->CLIENTE(text("x"));
  panel->QUOTA(std::int32_t{1000});
  panel->DANNO(text("x"));
  panel->DATA_SINISTRO(day(1, 1, 2026));
  panel->N_POLIZZA(text("x"));
  panel->COD_GR(text("CA"));
  panel->DESC_SRAMO(text("x"));
  panel->CONTROPARTE(text("x"));
  panel->INT_ASS(text("x"));
  EXPECT_THAT(asked(), IsEmpty());
}

}  // namespace
}  // namespace qvn::test
