// The lead coinsurer and its producer, which follow from the codes and numbers of the title.
#include <gtest/gtest.h>

#include "tests/documents/title_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

class TitleLeads : public TitlePanel {};
QVN_ON_EVERY_PLATFORM(TitleLeads);

TEST_P(TitleLeads, TheCompanysCodeBringsItsName) {
  panel->COD_COMP_DEL(text("C1"));
  EXPECT_EQ(leads(), (Strings{"C1", "GENERALE", "", ""}));
  EXPECT_EQ(asked(), Strings{companySql("C1")});
  panel->COD_COMP_DEL(text("C2"));
  EXPECT_EQ(leads(), (Strings{"C2", "ALPINA", "", ""}));
}

TEST_P(TitleLeads, AnUnknownOrEmptyCompanyHasNoName) {
  panel->COD_COMP_DEL(text("C1"));
  panel->COD_COMP_DEL(text("??"));
  EXPECT_EQ(leads(), (Strings{"??", "", "", ""}));
  panel->COD_COMP_DEL(text("C1"));
  asked();
  panel->COD_COMP_DEL(text(""));
  EXPECT_EQ(leads(), (Strings{"", "", "", ""}));
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(TitleLeads, ACodeIsAskedForWithoutItsQuotesAndShownWithThem) {
  panel->COD_COMP_DEL(text("'C'1"));
  EXPECT_EQ(leads(), (Strings{"'C'1", "GENERALE", "", ""}));
  EXPECT_EQ(asked(), Strings{companySql("C1")});
}

TEST_P(TitleLeads, TheSameCodeIsNotAskedForAgain) {
  panel->COD_COMP_DEL(text("C1"));
  asked();
  panel->COD_COMP_DEL(text("C1"));
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(TitleLeads, TheTitlesNumbersBringTheProducerInEitherOrder) {
  panel->PROT(std::int32_t{7});
  EXPECT_THAT(asked(), IsEmpty());
  panel->PROG(std::int16_t{1});
  EXPECT_EQ(leads(), (Strings{"", "", "P1", "ROSSI"}));
  EXPECT_EQ(asked(), (Strings{leadProducerSql("7", "1"), producerSql("P1")}));
  panel = another("titolo");
  panel->PROG(std::int16_t{2});
  EXPECT_THAT(asked(), IsEmpty());
  panel->PROT(std::int32_t{7});
  EXPECT_EQ(leads(), (Strings{"", "", "P2", "BIANCHI"}));
  EXPECT_EQ(asked(), (Strings{leadProducerSql("7", "2"), producerSql("P2")}));
}

TEST_P(TitleLeads, TheProducersQueriesAreOpenedAsEachIsToBe) {
  panel->PROT(std::int32_t{7});
  panel->PROG(std::int16_t{1});
  EXPECT_EQ(driver().ran, (std::vector<Ran>{{leadProducerSql("7", "1"), 3, 1, -1}, {producerSql("P1"), 2, 3, -1}}));
}

TEST_P(TitleLeads, NothingIsAskedWhileOneOfTheNumbersIsMissing) {
  panel->PROG(text("1"));
  panel->PROG(text("2"));
  panel->PROG(text(""));
  panel->PROT(text("7"));
  panel->PROT(text("8"));
  EXPECT_THAT(asked(), IsEmpty());
  panel->PROG(text("2"));
  EXPECT_EQ(asked(), Strings{leadProducerSql("8", "2")});
  panel->PROT(text(""));
  panel->PROG(text(""));
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(TitleLeads, EmptiedNumbersLeaveTheProducer) {
  panel->PROT(std::int32_t{7});
  panel->PROG(std::int16_t{1});
  panel->PROT(text(""));
  panel->PROG(text(""));
  EXPECT_EQ(leads(), (Strings{"", "", "P1", "ROSSI"}));
}

TEST_P(TitleLeads, TheSameNumbersAreNotAskedForAgain) {
  panel->PROT(std::int32_t{7});
  panel->PROG(std::int16_t{1});
  asked();
  panel->PROT(text("7"));
  panel->PROG(1.0);
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(TitleLeads, AProducerThatStaysIsNotLookedUpAgain) {
  leadProducer("9", "1", text("P1"));
  panel->PROG(std::int16_t{1});
  panel->PROT(std::int32_t{7});
  asked();
  panel->PROT(std::int32_t{9});
  EXPECT_EQ(asked(), Strings{leadProducerSql("9", "1")});
  EXPECT_EQ(leads(), (Strings{"", "", "P1", "ROSSI"}));
}

TEST_P(TitleLeads, ATitleWithoutAProducerEmptiesTheProducer) {
  panel->PROG(std::int16_t{2});
  panel->PROT(std::int32_t{7});
  panel->PROT(std::int32_t{8});  // its lead row has none
  EXPECT_EQ(leads(), (Strings{"", "", "", ""}));
  panel->PROT(std::int32_t{7});
  panel->PROT(std::int32_t{99});  // there is no such title
  EXPECT_EQ(leads(), (Strings{"", "", "", ""}));
}

TEST_P(TitleLeads, APolicyOfZeroIsNotAskedFor) {
  panel->PROG(std::int16_t{1});
  panel->PROT(std::int32_t{7});
  asked();
  panel->PROT(std::int32_t{0});
  EXPECT_EQ(leads(), (Strings{"", "", "", ""}));
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(TitleLeads, ATitleOfZeroIsAskedFor) {
  panel->PROT(std::int32_t{7});
  panel->PROG(std::int16_t{0});
  EXPECT_EQ(asked(), Strings{leadProducerSql("7", "0")});
}

TEST_P(TitleLeads, TheProducersNameHasNoPercent) {
  panel->PROT(std::int32_t{7});
  panel->PROG(std::int16_t{1});
  EXPECT_EQ(caption("LblDESC_PROD_DEL"), "ROSSI");
}

TEST_P(TitleLeads, NumbersReachToTheEndsOfTheirRanges) {
  panel->PROG(text("32767"));
  panel->PROT(text("2147483647"));
  EXPECT_EQ(asked(), Strings{leadProducerSql("2147483647", "32767")});
  panel->PROG(text("-32768"));
  panel->PROT(text("-2147483648"));
  EXPECT_EQ(asked(), (Strings{leadProducerSql("2147483647", "-32768"), leadProducerSql("-2147483648", "-32768")}));
}

TEST_P(TitleLeads, NumbersAreRoundedWithTiesToEven) {
  panel->PROG(text("2,5"));
  panel->PROT(text("6,5"));
  EXPECT_EQ(asked(), Strings{leadProducerSql("6", "2")});
  EXPECT_EQ(caption("LblPROT"), "6,5");
}

TEST_P(TitleLeads, APolicyThatIsNoNumberFailsAndStaysWritten) {
  panel->PROG(std::int16_t{1});
  panel->PROT(std::int32_t{7});
  asked();
  EXPECT_FAILURE(panel->PROT(text("sette")), FailureKind::TypeMismatch, "LblPROT: ");
  EXPECT_EQ(caption("LblPROT"), "sette");
  EXPECT_FAILURE(letByName(*panel, "PROT", text("otto")), FailureKind::TypeMismatch, "titolo.PROT");
  EXPECT_FAILURE(panel->PROT(text("2147483648")), FailureKind::Overflow, "LblPROT: ");
  EXPECT_EQ(caption("LblPROT"), "2147483648");
  EXPECT_EQ(leads(), (Strings{"", "", "P1", "ROSSI"}));
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(TitleLeads, ATitleThatIsNoNumberFailsAndStaysWritten) {
  panel->PROT(std::int32_t{7});
  EXPECT_FAILURE(panel->PROG(text("x")), FailureKind::TypeMismatch, "LblPROG: ");
  EXPECT_EQ(caption("LblPROG"), "x");
  EXPECT_FAILURE(panel->PROG(text("32768")), FailureKind::Overflow, "LblPROG: ");
  EXPECT_EQ(caption("LblPROG"), "32768");
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(TitleLeads, ThePolicyIsReadBeforeTheTitle) {
  panel->PROT(text("x"));
  EXPECT_FAILURE(panel->PROG(text("y")), FailureKind::TypeMismatch, "LblPROT: ");
}

TEST_P(TitleLeads, ANumberThatIsNoneIsHarmlessAlone) {
  panel->PROT(text("x"));
  EXPECT_EQ(caption("LblPROT"), "x");
  panel = another("titolo");
  panel->PROG(text("x"));
  EXPECT_EQ(caption("LblPROG"), "x");
}

TEST_P(TitleLeads, ALookUpThatFailsLeavesWhatWasShownBefore) {
  panel->COD_COMP_DEL(text("C1"));
  panel->PROG(std::int16_t{1});
  panel->PROT(std::int32_t{7});
  statements.failAt(1);
  EXPECT_FAILURE(panel->COD_COMP_DEL(text("C2")), FailureKind::Database, companySql("C2"));
  EXPECT_EQ(leads(), (Strings{"C2", "GENERALE", "P1", "ROSSI"}));
  statements.failAt(1);
  EXPECT_FAILURE(panel->PROG(std::int16_t{2}), FailureKind::Database, leadProducerSql("7", "2"));
  EXPECT_EQ(caption("LblPROG"), "2");
  EXPECT_EQ(leads(), (Strings{"C2", "GENERALE", "P1", "ROSSI"}));
  panel->PROG(std::int16_t{1});
  statements.failAt(2);
  EXPECT_FAILURE(panel->PROG(std::int16_t{2}), FailureKind::Database, producerSql("P2"));
  EXPECT_EQ(leads(), (Strings{"C2", "GENERALE", "P2", "ROSSI"}));
}

TEST_P(TitleLeads, ANullNameFails) {
  driver().answers[companySql("C1")] = {{"DESC_COMPAGNIA"}, {{Null{}}}};
  EXPECT_FAILURE(panel->COD_COMP_DEL(text("C1")), FailureKind::InvalidUseOfNull, "DESC_COMPAGNIA");
  driver().answers[producerSql("P1")] = {{"DENOMINAZIONE", "PERCALT"}, {{Null{}, std::int32_t{1}}}};
  panel->PROT(std::int32_t{7});
  EXPECT_FAILURE(panel->PROG(std::int16_t{1}), FailureKind::InvalidUseOfNull, "Denominazione");
  EXPECT_EQ(leads(), (Strings{"C1", "", "P1", ""}));
}

TEST_P(TitleLeads, AnyChangeOfACaptionRunsTheChain) {
  label("LblCOD_PROD_DEL").Caption("P2");
  EXPECT_EQ(leads(), (Strings{"", "", "P2", "BIANCHI"}));
  label("LblCOD_COMP_DEL").Caption("C2");
  EXPECT_EQ(leads(), (Strings{"C2", "ALPINA", "P2", "BIANCHI"}));
  label("LblPROT").Caption("7");
  label("LblPROG").Caption("1");
  EXPECT_EQ(leads(), (Strings{"C2", "ALPINA", "P1", "ROSSI"}));
}

TEST_P(TitleLeads, EachLookUpAsksForAMissingDatabase) {
  Globale::unload();
  int asks = 0;
  const Subscription subscription = Globale::Eventi()->MancaDB.subscribe([&] { ++asks; });
  panel->PROT(std::int32_t{7});
  EXPECT_EQ(asks, 0);
  EXPECT_FAILURE(panel->PROG(std::int16_t{1}), FailureKind::Database, "closed");
  EXPECT_EQ(asks, 1);
  EXPECT_FAILURE(panel->COD_COMP_DEL(text("C1")), FailureKind::Database, "closed");
  EXPECT_EQ(asks, 2);
  panel->COD_COMP_DEL(text(""));  // nothing is to be found, and it is asked for all the same
  EXPECT_EQ(asks, 3);
  panel->PROT(std::int32_t{0});
  EXPECT_EQ(asks, 4);
  EXPECT_EQ(leads(), (Strings{"", "", "", ""}));
}

TEST_P(TitleLeads, ADatabaseGivenAtTheAskingIsUsedAtOnce) {
  Globale::unload();
  const Subscription subscription =
      Globale::Eventi()->MancaDB.subscribe([] { Globale::Eventi()->ImpostaDB("failing:fake:altra"); });
  panel->PROT(std::int32_t{7});
  panel->PROG(std::int16_t{1});
  EXPECT_EQ(leads(), (Strings{"", "", "P1", "ROSSI"}));
}

}  // namespace
}  // namespace qvn::test
