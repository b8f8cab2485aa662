// The bases of the two producers, and the alternate's share of the producer's percents.
#include <gtest/gtest.h>

#include "tests/panels/commission_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CommissionProducers : public CommissionPanel {
 public:
  void SetUp() override {
    everybody();
    premiums("1000", "100");
    panel->PN_UFF(money("200"));
    panel->ACC_UFF(money("40"));
    panel->AQ_UFF(money("60"));
    forget();
  }
};
QVN_ON_EVERY_PLATFORM(CommissionProducers);

TEST_P(CommissionProducers, AClickOnABaseIsAnnouncedAndComputesNothing) {
  panel->P_PN_PROD(percent("10"));
  const auto before = shown();
  hands().focus(list("CmbCALCOLO_PROD"));
  forget();
  hands().choose(list("CmbCALCOLO_PROD"), 0);
  EXPECT_THAT(heard(), ElementsAre("CALCOLO_PROD"));
  EXPECT_THAT(asked(), IsEmpty());
  EXPECT_EQ(text("TxtPN_PROD"), before.at("TxtPN_PROD"));
  hands().choose(list("CmbCALCOLO_PROD"), 0);  // a click on what is chosen already is a click
  EXPECT_THAT(heard(), ElementsAre("CALCOLO_PROD"));
  hands().focus(list("CmbCALCOLO_PROD_ALT"));
  forget();
  hands().choose(list("CmbCALCOLO_PROD_ALT"), "2 - Provv. Ufficio");
  EXPECT_THAT(heard(), ElementsAre("CALCOLO_PROD_ALT"));
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(CommissionProducers, AListIsColouredWhileItHasTheFocus) {
  for (const auto name : {"CmbCALCOLO_PROD", "CmbCALCOLO_PROD_ALT"}) {
    hands().focus(list(name));
    EXPECT_EQ(list(name).BackColor(), 16776960U) << name;
    std::uint32_t atStatement = 0;
    statements.onStatement = [&](std::string_view) { atStatement = list(name).BackColor(); };
    hands().leave();
    statements.onStatement = {};
    EXPECT_EQ(atStatement, 16777215U) << name;
    EXPECT_EQ(list(name).BackColor(), 16777215U) << name;
  }
}

TEST_P(CommissionProducers, LeavingTheProducersBaseRunsTheSummaryOnceAndTheAlternatesTwice) {
  hands().focus(list("CmbCALCOLO_PROD"));
  forget();
  hands().leave();
  EXPECT_THAT(asked(), ElementsAre(rateSql("P1"), rateSql("P2")));
  hands().focus(list("CmbCALCOLO_PROD_ALT"));
  forget();
  hands().leave();
  EXPECT_THAT(asked(), ElementsAre(rateSql("P1"), rateSql("P2"), rateSql("P1"), rateSql("P2")));
}

TEST_P(CommissionProducers, LeavingABaseComputesItsPartyAnew) {
  for (const CommissionCell& cell : cells()) {
    if (cell.party() != "UFF") percentOf(cell, percent("10"));
  }
  hands().choose(list("CmbCALCOLO_PROD"), 0);
  forget();
  hands().choose(list("CmbCALCOLO_PROD_ALT"), 1);  // leaves the other
  EXPECT_EQ(texts({"TxtPN_PROD", "TxtACC_PROD", "TxtAQ_PROD"}), (Strings{"€ 100,00", "€ 10,00", "€ 100,00"}));
  EXPECT_EQ(texts({"TxtPN_PROD_ALT", "TxtACC_PROD_ALT", "TxtAQ_PROD_ALT"}), (Strings{"€ 20,00", "€ 4,00", "€ 6,00"}));
  EXPECT_THAT(heard(), ElementsAre("PN_PROD", "ACC_PROD", "AQ_PROD",  // then the quota, before the summary
                                   "P_PN_PROD", "P_ACC_PROD", "P_AQ_PROD", "P_PN_PROD_ALT", "P_ACC_PROD_ALT",
                                   "P_AQ_PROD_ALT", "P_PASSIVE", "CALCOLO_PROD_ALT"));
  hands().choose(list("CmbCALCOLO_PROD_ALT"), 0);
  forget();
  hands().leave();
  EXPECT_EQ(texts({"TxtPN_PROD_ALT", "TxtACC_PROD_ALT", "TxtAQ_PROD_ALT"}),
            (Strings{"€ 100,00", "€ 10,00", "€ 100,00"}));
  EXPECT_THAT(heard(), ElementsAre("PN_PROD_ALT", "ACC_PROD_ALT", "AQ_PROD_ALT",  // then two summaries
                                   "P_PN_PROD", "P_ACC_PROD", "P_AQ_PROD", "P_PN_PROD_ALT", "P_ACC_PROD_ALT",
                                   "P_AQ_PROD_ALT", "P_PASSIVE", "P_PN_PROD", "P_ACC_PROD", "P_AQ_PROD",
                                   "P_PN_PROD_ALT", "P_ACC_PROD_ALT", "P_AQ_PROD_ALT"));
}

TEST_P(CommissionProducers, LeavingABaseComputesEvenAPercentThatBeginsWithZero) {
  panel->P_PN_PROD(percent("0,5"));
  panel->P_PN_PROD_ALT(percent("0,5"));
  EXPECT_EQ(text("TxtPN_PROD"), "€ 1,00");
  panel->CALC_PROD(1);
  panel->CALC_PROD_ALT(1);
  panel->TOTALI();
  EXPECT_EQ(text("TxtPN_PROD"), "€ 1,00");  // the quota passes over it
  EXPECT_EQ(text("TxtPN_PROD_ALT"), "€ 1,00");
  hands().focus(list("CmbCALCOLO_PROD"));
  hands().leave();
  EXPECT_EQ(text("TxtPN_PROD"), "€ 5,00");
  EXPECT_EQ(text("TxtPN_PROD_ALT"), "€ 1,00");
  hands().focus(list("CmbCALCOLO_PROD_ALT"));
  hands().leave();
  EXPECT_EQ(text("TxtPN_PROD_ALT"), "€ 5,00");
}

TEST_P(CommissionProducers, LeavingABaseTouchesNoPercentAndNoOtherParty) {
  for (const CommissionCell& cell : cells()) box(cell.percentBox()).Text("0,5");
  for (const CommissionCell& cell : cells()) amount(cell, money("9"));
  hands().focus(list("CmbCALCOLO_PROD_ALT"));
  hands().leave();
  for (const CommissionCell& cell : cells()) {
    EXPECT_EQ(text(cell.percentBox()), "0,5");
    EXPECT_EQ(text(cell.amountBox()), cell.party() == "PROD_ALT" ? "€ 0,05" : "€ 9,00") << cell.amount;
  }
}

TEST_P(CommissionProducers, TheBaseOfADisabledPartyComputesNothingWhenItIsLeft) {
  panel->P_PN_PROD(percent("10"));
  EXPECT_EQ(text("TxtPN_PROD"), "€ 20,00");
  hands().choose(list("CmbCALCOLO_PROD"), 0);
  forget();
  panel->COD_PRODUTTORE("");  // disables the frame, which takes the focus
  EXPECT_EQ(focused(), "");
  EXPECT_EQ(text("TxtPN_PROD"), "€ 20,00");
  EXPECT_THAT(asked(), ElementsAre(rateSql("P2")));
}

TEST_P(CommissionProducers, EnterAndOtherKeysDoNotLeaveAList) {
  hands().focus(list("CmbCALCOLO_PROD"));
  const auto before = beeps();
  hands().type("{Enter}x{Escape}");
  EXPECT_EQ(focused(), "CmbCALCOLO_PROD");
  EXPECT_EQ(list("CmbCALCOLO_PROD").ListIndex(), -1);
  EXPECT_EQ(beeps(), before);
  hands().type("2");
  EXPECT_EQ(panel->CALC_PROD(), 2);
}

class CommissionPercAlt : public CommissionPanel {
 public:
  Strings alternates() { return texts({"TxtP_PN_PROD_ALT", "TxtP_ACC_PROD_ALT", "TxtP_AQ_PROD_ALT"}); }
};
QVN_ON_EVERY_PLATFORM(CommissionPercAlt);

TEST_P(CommissionPercAlt, TakesItsShareFromTheAlternatesCaption) {
  const std::vector<std::pair<std::string, std::string>> shares{
      {"P2 - BIANCHI (30%)", "3,00"},
      {"P2 - BIANCHI ( 30%)", "3,00"},
      {"P2 - BIANCHI (SNC) (30%)", "0,00"},  // the first bracket counts
      {"P2 - BIANCHI (7 SNC) (30%)", "0,70"},
      {"00120 - NERI", "12,00"},  // no bracket: the caption's own beginning
      {"12.5 - NERI", "1,20"},
      {"NERI 50", "0,00"},
      {"", "0,00"},
      {"P2 - BIANCHI (%)", "0,00"},
      {"P2 - BIANCHI (", "0,00"},
      {"(12.5%)", "1,20"},  // ties to even
      {"(13.5%)", "1,40"},
      {"(0.5%)", "0,00"},
      {"(12,9%)", "1,20"},  // ends at the comma
      {"(-20%)", "-2,00"},
      {"(32767%)", "3276,70"},
      {"(100)", "10,00"},
  };
  panel->P_PN_PROD(percent("10"));
  for (const auto& [shownAs, share] : shares) {
    SCOPED_TRACE(shownAs);
    label("LblPRODUTTORE_ALT").Caption(shownAs);
    box("TxtP_PN_PROD_ALT").Text("99");
    panel->percAlt();
    EXPECT_EQ(text("TxtP_PN_PROD_ALT"), share);
  }
}

TEST_P(CommissionPercAlt, TakesItsShareOfEachPercentOfTheProducer) {
  producer("Q1", "MEZZO", 50.0, std::int32_t{0});
  panel->COD_PRODUTTORE_ALT("Q1");
  panel->Disattiva();
  panel->P_PN_PROD(percent("12,5"));
  panel->P_ACC_PROD(percent("33,33"));
  panel->P_AQ_PROD(percent("0,5"));
  forget();
  panel->percAlt();
  EXPECT_EQ(alternates(), (Strings{"6,25", "16,67", "0,25"}));  // 16.665 away from zero
  EXPECT_THAT(heard(), ElementsAre("P_PN_PROD_ALT", "P_ACC_PROD_ALT", "P_AQ_PROD_ALT"));
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(CommissionPercAlt, OfANullShareIsNothing) {
  producer("Q2", "NULLO", Null{}, std::int32_t{0});
  panel->COD_PRODUTTORE_ALT("Q2");
  panel->P_PN_PROD(percent("12,5"));
  panel->P_PN_PROD_ALT(percent("5"));
  panel->percAlt();
  EXPECT_EQ(alternates(), (Strings{"0,00", "0,00", "0,00"}));
}

TEST_P(CommissionPercAlt, ReadsAPercentInFullPrecision) {
  label("LblPRODUTTORE_ALT").Caption("(32767%)");
  box("TxtP_PN_PROD").Text("0,00005");  // 0.0163835, not the 0 that money would read
  panel->percAlt();
  EXPECT_EQ(text("TxtP_PN_PROD_ALT"), "0,02");
}

TEST_P(CommissionPercAlt, LetsTheAmountsFollowWhereThePartyIsEnabled) {
  everybody();
  premiums("1000", "100");
  panel->setCombo();
  panel->P_PN_PROD(percent("10"));
  panel->P_ACC_PROD(percent("20"));
  panel->P_AQ_PROD(percent("30"));
  forget();
  panel->percAlt();
  EXPECT_EQ(alternates(), (Strings{"3,00", "6,00", "9,00"}));
  EXPECT_EQ(texts({"TxtPN_PROD_ALT", "TxtACC_PROD_ALT", "TxtAQ_PROD_ALT"}), (Strings{"€ 30,00", "€ 6,00", "€ 90,00"}));
  EXPECT_THAT(heard(), ElementsAre("P_PN_PROD_ALT", "PN_PROD_ALT", "P_ACC_PROD_ALT", "ACC_PROD_ALT", "P_AQ_PROD_ALT",
                                   "AQ_PROD_ALT"));
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(CommissionPercAlt, IsNeverRunByThePanelItself) {
  everybody();
  premiums("1000", "100");
  panel->P_PN_PROD(percent("10"));
  panel->TOTALI();
  panel->COD_PRODUTTORE_ALT("P3");
  EXPECT_EQ(alternates(), (Strings{"0,00", "0,00", "0,00"}));
}

TEST_P(CommissionPercAlt, ShareBeyondSixteenBitsFailsNamingTheCaptionAndWritesNothing) {
  panel->P_PN_PROD(percent("10"));
  for (const auto beyond : {"(32768%)", "(-32769%)", "99999"}) {
    label("LblPRODUTTORE_ALT").Caption(beyond);
    EXPECT_FAILURE(panel->percAlt(), FailureKind::Overflow, "LblPRODUTTORE_ALT: ");
    EXPECT_EQ(alternates(), (Strings{"0,00", "0,00", "0,00"}));
  }
}

TEST_P(CommissionPercAlt, StopsAtAPercentThatIsNoNumber) {
  label("LblPRODUTTORE_ALT").Caption("(50%)");
  panel->P_PN_PROD(percent("10"));
  box("TxtP_ACC_PROD").Text(",");
  panel->P_AQ_PROD(percent("10"));
  EXPECT_FAILURE(panel->percAlt(), FailureKind::TypeMismatch, "TxtP_ACC_PROD: ");
  EXPECT_EQ(alternates(), (Strings{"5,00", "0,00", "0,00"}));
}

}  // namespace
}  // namespace qvn::test
