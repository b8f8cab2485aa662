// The lead coinsurer of a policy and its producer, which follow from its number.
#include <gtest/gtest.h>

#include "tests/documents/search_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

class PolicyLeads : public PolicyFound {};
QVN_ON_EVERY_PLATFORM(PolicyLeads);

TEST_P(PolicyLeads, OneNumberBringsAllFourByFourLookUpsInOrder) {
  panel->PROT(std::int32_t{7});
  EXPECT_EQ(caption("LblPROT"), "7");
  EXPECT_EQ(leads(), (Strings{"C1", "GENERALE", "P1", "ROSSI"}));
  EXPECT_EQ(driver().ran, (std::vector<Ran>{{leadCompanySql("7"), 2, 3, -1},
                                            {companySql("C1"), 2, 3, -1},
                                            {leadProducerSql("7"), 2, 3, -1},
                                            {producerSql("P1"), 2, 3, -1}}));
}

TEST_P(PolicyLeads, TheSameNumberIsNotLookedUpAgain) {
  panel->PROT(std::int32_t{7});
  asked();
  panel->PROT(std::int32_t{7});
  panel->PROT(text("7"));
  panel->PROT(7.0);
  EXPECT_THAT(asked(), IsEmpty());
  panel->PROT(text("7,0"));
  EXPECT_EQ(asked(), (Strings{leadCompanySql("7"), leadProducerSql("7")}));
}

TEST_P(PolicyLeads, ALeadThatStaysIsNotDescribedAgain) {
  panel->PROT(std::int32_t{7});
  asked();
  panel->PROT(std::int32_t{9});
  EXPECT_EQ(leads(), (Strings{"C1", "GENERALE", "P2", "BIANCHI"}));
  EXPECT_EQ(asked(), (Strings{leadCompanySql("9"), leadProducerSql("9"), producerSql("P2")}));
  panel->PROT(std::int32_t{8});
  EXPECT_EQ(leads(), (Strings{"C2", "ALPINA", "P2", "BIANCHI"}));
  EXPECT_EQ(asked(), (Strings{leadCompanySql("8"), companySql("C2"), leadProducerSql("8")}));
}

TEST_P(PolicyLeads, APolicyWithoutALeadEmptiesAllFourAndDescribesNothing) {
  panel->PROT(std::int32_t{7});
  asked();
  panel->PROT(std::int32_t{99});
  EXPECT_EQ(leads(), (Strings{"", "", "", ""}));
  EXPECT_EQ(asked(), (Strings{leadCompanySql("99"), leadProducerSql("99")}));
  // They are empty already: nothing runs but what finds them.
  panel->PROT(std::int32_t{98});
  EXPECT_EQ(asked(), (Strings{leadCompanySql("98"), leadProducerSql("98")}));
}

TEST_P(PolicyLeads, EmptyLeadsAskForAMissingDatabaseAsTheyEmpty) {
  panel->PROT(std::int32_t{7});
  Globale::unload();
  int asks = 0;
  const Subscription subscription = Globale::Eventi()->MancaDB.subscribe([&] { ++asks; });
  panel->PROT(std::int32_t{0});
  EXPECT_EQ(leads(), (Strings{"", "", "", ""}));
  EXPECT_EQ(asks, 4);
  panel->PROT(text("-0,4"));  // the same policy, and no lead changes
  EXPECT_EQ(asks, 6);
}

TEST_P(PolicyLeads, APolicyOfZeroIsNotLookedUp) {
  panel->PROT(std::int32_t{7});
  asked();
  panel->PROT(std::int32_t{0});
  EXPECT_EQ(leads(), (Strings{"", "", "", ""}));
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(PolicyLeads, UnknownLeadsHaveNoNames) {
  panel->PROT(std::int32_t{7});
  leads("10", "C9", "P9");
  panel->PROT(std::int32_t{10});
  EXPECT_EQ(leads(), (Strings{"C9", "", "P9", ""}));
}

TEST_P(PolicyLeads, TheProducersNameHasNoPercent) {
  panel->PROT(std::int32_t{8});
  EXPECT_EQ(caption("LblDESC_PROD_DEL"), "BIANCHI");
}

TEST_P(PolicyLeads, ACodeIsLookedUpWithoutItsQuotesAndShownWithThem) {
  leads("10", "C'1", "'P1'");
  panel->PROT(std::int32_t{10});
  EXPECT_EQ(leads(), (Strings{"C'1", "GENERALE", "'P1'", "ROSSI"}));
  EXPECT_EQ(asked(), (Strings{leadCompanySql("10"), companySql("C1"), leadProducerSql("10"), producerSql("P1")}));
}

TEST_P(PolicyLeads, NumbersReachToTheEndsOfTheirRange) {
  panel->PROT(text("2147483647"));
  panel->PROT(text("-2147483648"));
  EXPECT_EQ(asked(), (Strings{leadCompanySql("2147483647"), leadProducerSql("2147483647"),
                              leadCompanySql("-2147483648"), leadProducerSql("-2147483648")}));
}

TEST_P(PolicyLeads, NumbersAreReadInTheOfficesFormAndRoundedWithTiesToEven) {
  panel->PROT(text("6,5"));
  EXPECT_EQ(caption("LblPROT"), "6,5");
  EXPECT_EQ(asked(), (Strings{leadCompanySql("6"), leadProducerSql("6")}));
  panel->PROT(text(" 1.007 "));
  EXPECT_EQ(caption("LblPROT"), " 1.007 ");
  EXPECT_EQ(asked(), (Strings{leadCompanySql("1007"), leadProducerSql("1007")}));
}

TEST_P(PolicyLeads, WhatIsNoNumberFailsBeforeAnyLookUpAndStaysWritten) {
  panel->PROT(std::int32_t{7});
  Globale::unload();
  int asks = 0;
  const Subscription subscription = Globale::Eventi()->MancaDB.subscribe([&] { ++asks; });
  asked();
  EXPECT_FAILURE(panel->PROT(text("sette")), FailureKind::TypeMismatch, "LblPROT: ");
  EXPECT_EQ(caption("LblPROT"), "sette");
  EXPECT_FAILURE(panel->PROT(text("")), FailureKind::TypeMismatch, "LblPROT: ");
  EXPECT_EQ(caption("LblPROT"), "");
  EXPECT_FAILURE(panel->PROT(text("2147483648")), FailureKind::Overflow, "LblPROT: ");
  EXPECT_EQ(caption("LblPROT"), "2147483648");
  EXPECT_FAILURE(panel->PROT(Empty{}), FailureKind::TypeMismatch, "LblPROT: ");
  EXPECT_EQ(caption("LblPROT"), "");
  EXPECT_FAILURE(letByName(*panel, "prot", text("otto")), FailureKind::TypeMismatch, "polizza.PROT");
  EXPECT_EQ(leads(), (Strings{"C1", "GENERALE", "P1", "ROSSI"}));
  EXPECT_THAT(asked(), IsEmpty());
  EXPECT_EQ(asks, 0);
}

TEST_P(PolicyLeads, ALookUpThatFailsLeavesWhatStandsBehindIt) {
  const std::vector<Strings> left{{"C1", "GENERALE", "P1", "ROSSI"},
                                  {"C2", "GENERALE", "P1", "ROSSI"},
                                  {"C2", "ALPINA", "P1", "ROSSI"},
                                  {"C2", "ALPINA", "P2", "ROSSI"}};
  const Strings failing{leadCompanySql("8"), companySql("C2"), leadProducerSql("8"), producerSql("P2")};
  for (std::size_t i = 0; i < left.size(); ++i) {
    SCOPED_TRACE(failing[i]);
    panel = another();
    panel->PROT(std::int32_t{7});
    asked();
    statements.failAt(i + 1);
    EXPECT_FAILURE(panel->PROT(std::int32_t{8}), FailureKind::Database, failing[i]);
    EXPECT_EQ(statements.count(), i + 1);
    EXPECT_EQ(caption("LblPROT"), "8");
    EXPECT_EQ(leads(), left[i]);
    statements.failAt(0);
  }
}

TEST_P(PolicyLeads, ANullFailsAndLeavesWhatStandsBehindIt) {
  leads("10", "C3", "P3");
  answer(leadCompanySql("10"), "COD_COMP", Null{});
  EXPECT_FAILURE(panel->PROT(std::int32_t{10}), FailureKind::InvalidUseOfNull, "COD_COMP");
  EXPECT_EQ(leads(), (Strings{"", "", "", ""}));
  leads("11", "C1", "P3");
  answer(leadProducerSql("11"), "COD_PROD", Null{});
  EXPECT_FAILURE(panel->PROT(std::int32_t{11}), FailureKind::InvalidUseOfNull, "COD_PROD");
  EXPECT_EQ(leads(), (Strings{"C1", "GENERALE", "", ""}));
  leads("12", "C1", "P4");
  driver().answers[producerSql("P4")] = {{"DENOMINAZIONE", "PERCALT"}, {{Null{}, Null{}}}};
  EXPECT_FAILURE(panel->PROT(std::int32_t{12}), FailureKind::InvalidUseOfNull, "Denominazione");
  EXPECT_EQ(leads(), (Strings{"C1", "GENERALE", "P4", ""}));
}

TEST_P(PolicyLeads, AnyChangeOfACaptionRunsTheChain) {
  label("LblCOD_PROD_DEL").Caption("P2");
  label("LblCOD_COMP_DEL").Caption("C2");
  EXPECT_EQ(leads(), (Strings{"C2", "ALPINA", "P2", "BIANCHI"}));
  label("LblPROT").Caption("7");
  EXPECT_EQ(leads(), (Strings{"C1", "GENERALE", "P1", "ROSSI"}));
}

TEST_P(PolicyLeads, TheNumberIsReadAnewForTheProducer) {
  statements.onStatement = [&](std::string_view sql) {
    if (sql != companySql("C1")) return;
    statements.onStatement = {};
    label("LblPROT").Change = {};
    label("LblPROT").Caption("8");
  };
  panel->PROT(std::int32_t{7});
  EXPECT_EQ(leads(), (Strings{"C1", "GENERALE", "P2", "BIANCHI"}));
  EXPECT_EQ(asked(), (Strings{leadCompanySql("7"), companySql("C1"), leadProducerSql("8"), producerSql("P2")}));
}

TEST_P(PolicyLeads, ANumberThatIsNoneByThenFailsAheadOfTheProducer) {
  statements.onStatement = [&](std::string_view sql) {
    if (sql != companySql("C1")) return;
    label("LblPROT").Change = {};
    label("LblPROT").Caption("x");
  };
  EXPECT_FAILURE(panel->PROT(std::int32_t{7}), FailureKind::TypeMismatch, "LblPROT: ");
  EXPECT_EQ(leads(), (Strings{"C1", "GENERALE", "", ""}));
}

TEST_P(PolicyLeads, AMissingDatabaseIsAskedForOnceWhereTheHostGivesIt) {
  int asks = 0;
  const auto subscription = whenAskedForTheDatabase([&] { ++asks; });
  panel->PROT(std::int32_t{7});
  EXPECT_EQ(asks, 1);
  EXPECT_EQ(leads(), (Strings{"C1", "GENERALE", "P1", "ROSSI"}));
}

TEST_P(PolicyLeads, EachFirstLookUpFailsWithoutADatabase) {
  Globale::unload();
  int asks = 0;
  const Subscription subscription = Globale::Eventi()->MancaDB.subscribe([&] { ++asks; });
  EXPECT_FAILURE(panel->PROT(std::int32_t{7}), FailureKind::Database, "closed");
  EXPECT_EQ(asks, 1);
  EXPECT_EQ(caption("LblPROT"), "7");
  EXPECT_EQ(leads(), (Strings{"", "", "", ""}));
}

TEST_P(PolicyLeads, OtherPropertiesLookNothingUp) {
  panel->CLIENTE(text("x"));
  panel->QUOTA(std::int32_t{1000});
  panel->PL(Currency());
  panel->DATA_RATA(day(1, 1, 2026));
  panel->N_POLIZZA(text("x"));
  panel->COD_GR(text("CA"));
  panel->DESC_SRAMO(text("x"));
  panel->TIPO_RATA(text("x"));
  panel->GRUPPO(text("x"));
  panel->INT_ASS(text("x"));
  EXPECT_THAT(asked(), IsEmpty());
}

}  // namespace
}  // namespace qvn::test
