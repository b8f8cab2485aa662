// From the premiums of the policy and the quota to those of the participant, and on to the amounts.
#include <gtest/gtest.h>
#include <limits>

#include "tests/panels/commission_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CommissionQuota : public CommissionPanel {
 public:
  Strings premiumsShown() { return {caption("LblPN"), caption("LblACC"), caption("LblPL")}; }
};
QVN_ON_EVERY_PLATFORM(CommissionQuota);

TEST_P(CommissionQuota, IsShownInThousandthsAndAppliedAtOnce) {
  panel->VALORI(figures({"1000", "0", "100", "50", "1265", "50"}));
  EXPECT_EQ(panel->QUOTA(), 0);
  EXPECT_EQ(caption("LblQUOTA"), "0");
  panel->QUOTA(600);
  EXPECT_EQ(panel->QUOTA(), 600);
  EXPECT_EQ(caption("LblQUOTA"), "600");
  EXPECT_EQ(premiumsShown(), (Strings{"€ 600,00", "€ 60,00", "€ 759,00"}));
}

TEST_P(CommissionQuota, OfTheSameNumberIsNotAppliedAgain) {
  panel->VALORI(figures({"1000", "0", "0", "0", "0", "0"}));
  panel->QUOTA(600);
  label("LblPN").Caption("altro");
  panel->QUOTA(600);
  EXPECT_EQ(caption("LblPN"), "altro");
  panel->QUOTA(601);
  EXPECT_EQ(caption("LblPN"), "€ 601,00");
  label("LblQUOTA").Caption("5");
  panel->QUOTA(601);  // compared with what is stored, not with what is shown
  EXPECT_EQ(caption("LblQUOTA"), "5");
}

TEST_P(CommissionQuota, AddsWhatGoesToTheLeadExactly) {
  panel->DELEGATARIA(true);
  panel->VALORI(figures({"0", "90000000000000,01", "0", "0", "0", "0"}));  // more digits than a double keeps
  EXPECT_EQ(caption("LblPN"), "€ 90.000.000.000.000,01");
}

TEST_P(CommissionQuota, MayBeAnyNumberOfSixteenBits) {
  panel->VALORI(figures({"1000", "0", "0", "0", "0", "0"}));
  for (const auto& [quota, PN] : std::vector<std::pair<std::int16_t, std::string>>{
           {1500, "€ 1.500,00"}, {-1, "-€ 1,00"}, {32767, "€ 32.767,00"}, {-32768, "-€ 32.768,00"}, {0, "€ 0,00"}}) {
    panel->QUOTA(quota);
    EXPECT_EQ(panel->QUOTA(), quota);
    EXPECT_EQ(caption("LblQUOTA"), std::to_string(quota));
    EXPECT_EQ(caption("LblPN"), PN);
  }
}

TEST_P(CommissionQuota, SharesOutTheFirstColumnAndGivesTheLeadTheSecondInFull) {
  panel->VALORI(figures({"1000", "7", "100", "50", "1265", "60"}));
  panel->QUOTA(600);
  EXPECT_EQ(premiumsShown(), (Strings{"€ 600,00", "€ 60,00", "€ 759,00"}));
  panel->DELEGATARIA(true);
  panel->QUOTA(500);
  EXPECT_EQ(premiumsShown(), (Strings{"€ 507,00", "€ 100,00", "€ 692,50"}));
  panel->QUOTA(0);
  EXPECT_EQ(premiumsShown(), (Strings{"€ 7,00", "€ 50,00", "€ 60,00"}));
  panel->DELEGATARIA(false);
  panel->QUOTA(1);
  EXPECT_EQ(premiumsShown(), (Strings{"€ 1,00", "€ 0,10", "€ 1,27"}));
}

TEST_P(CommissionQuota, RoundsToTheMoneysDecimalsAwayFromZero) {
  panel->VALORI(figures({"333,33", "0", "0,01", "0", "-0,01", "0"}));
  panel->QUOTA(250);
  EXPECT_EQ(premiumsShown(), (Strings{"€ 83,33", "€ 0,00", "€ 0,00"}));
  panel->QUOTA(500);
  EXPECT_EQ(premiumsShown(), (Strings{"€ 166,67", "€ 0,01", "-€ 0,01"}));
}

TEST_P(CommissionQuota, OfTheLeadRoundsToFourDecimalsFirst) {
  panel->VALORI(figures({"0,33", "0", "0", "0", "0", "0"}));
  panel->QUOTA(15);  // 0.00495
  EXPECT_EQ(caption("LblPN"), "€ 0,00");
  panel->DELEGATARIA(true);
  panel->TOTALI();
  EXPECT_EQ(caption("LblPN"), "€ 0,01");
}

TEST_P(CommissionQuota, AloneRunsNoSummary) {
  everybody();
  panel->VALORI(figures({"1000", "0", "100", "0", "0", "0"}));
  panel->P_PN_UFF(percent("10"));
  panel->P_PN_PROD(percent("10"));
  forget();
  panel->QUOTA(500);
  EXPECT_EQ(text("TxtPN_UFF"), "€ 50,00");
  EXPECT_EQ(text("TxtPN_PROD"), "€ 5,00");
  EXPECT_EQ(caption("PROVV_ATTIVE"), "€ 0,00");
  EXPECT_THAT(asked(), IsEmpty());
  EXPECT_THAT(heard(), ElementsAre("P_PN_UFF", "PN_UFF", "P_PN_PROD", "PN_PROD"));
}

TEST_P(CommissionQuota, RunsThePercentsAgainFromTheOfficeToTheAlternate) {
  for (const CommissionCell& cell : cells()) percentOf(cell, percent("10"));
  forget();
  panel->QUOTA(600);
  EXPECT_EQ(heard(), (Strings{"P_PN_UFF", "P_ACC_UFF", "P_AQ_UFF", "P_PN_PROD", "P_ACC_PROD", "P_AQ_PROD",
                              "P_PN_PROD_ALT", "P_ACC_PROD_ALT", "P_AQ_PROD_ALT"}));
}

TEST_P(CommissionQuota, WorksOutAmountsInOrderWithASummaryBehindTheOfficesAQ) {
  for (const CommissionCell& cell : cells()) percentOf(cell, percent("10"));
  everybody();
  panel->VALORI(figures({"1000", "0", "100", "0", "0", "0"}));
  forget();
  panel->QUOTA(1000);
  const Strings outer{"P_PN_UFF", "PN_UFF", "P_ACC_UFF", "ACC_UFF", "P_AQ_UFF", "AQ_UFF"};
  const Strings summary{"P_PN_UFF",    "P_ACC_UFF",      "P_AQ_UFF",     "P_PN_PROD",     "PN_PROD",
                        "P_ACC_PROD",  "ACC_PROD",       "P_AQ_PROD",    "AQ_PROD",       "P_PN_PROD_ALT",
                        "PN_PROD_ALT", "P_ACC_PROD_ALT", "ACC_PROD_ALT", "P_AQ_PROD_ALT", "AQ_PROD_ALT",
                        "P_ATTIVE",    "P_PASSIVE"};
  const Strings rest{"P_PN_PROD", "P_ACC_PROD", "P_AQ_PROD", "P_PN_PROD_ALT", "P_ACC_PROD_ALT", "P_AQ_PROD_ALT"};
  Strings expected = outer;
  expected.insert(expected.end(), summary.begin(), summary.end());
  expected.insert(expected.end(), rest.begin(), rest.end());
  EXPECT_EQ(heard(), expected);
  EXPECT_THAT(asked(), ElementsAre(rateSql("P1"), rateSql("P2")));
  EXPECT_EQ(texts({"TxtPN_UFF", "TxtACC_UFF", "TxtAQ_UFF", "TxtPN_PROD", "TxtACC_PROD", "TxtAQ_PROD"}),
            (Strings{"€ 100,00", "€ 10,00", "€ 100,00", "€ 10,00", "€ 1,00", "€ 10,00"}));
}

TEST_P(CommissionQuota, PassesOverAPercentThatBeginsWithZero) {
  everybody();
  premiums("1000", "1000");
  for (const CommissionCell& cell : cells()) percentOf(cell, percent(cell.amount.starts_with("ACC") ? "1,5" : "0,5"));
  panel->TOTALI();
  EXPECT_EQ(texts({"TxtPN_UFF", "TxtACC_UFF", "TxtAQ_UFF"}), (Strings{"€ 5,00", "€ 15,00", "€ 5,00"}));
  forget();
  panel->QUOTA(500);
  EXPECT_EQ(texts({"TxtPN_UFF", "TxtACC_UFF", "TxtAQ_UFF"}), (Strings{"€ 5,00", "€ 7,50", "€ 5,00"}));
  EXPECT_THAT(heard(), ElementsAre("P_ACC_UFF", "ACC_UFF", "P_ACC_PROD", "ACC_PROD", "P_ACC_PROD_ALT", "ACC_PROD_ALT"));
}

TEST_P(CommissionQuota, RunsANegativePercentAndPassesOverOneWithoutANumber) {
  everybody();
  premiums("1000", "1000");
  panel->P_PN_UFF(percent("-2"));
  EXPECT_EQ(text("TxtPN_UFF"), "-€ 20,00");
  EXPECT_FAILURE(box("TxtP_ACC_UFF").Text(","), FailureKind::TypeMismatch, "TxtP_ACC_UFF");
  forget();
  panel->QUOTA(500);
  EXPECT_EQ(text("TxtPN_UFF"), "-€ 10,00");
  EXPECT_THAT(heard(), ElementsAre("P_PN_UFF", "PN_UFF"));
}

TEST_P(CommissionQuota, LeavesAmountsOfADisabledParty) {
  for (const CommissionCell& cell : cells()) {
    percentOf(cell, percent("10"));
    amount(cell, money("3"));
  }
  panel->COD_PRODUTTORE("P1");  // enables the producer alone
  forget();
  premiums("1000", "1000");
  panel->CALC_PROD(1);
  panel->QUOTA(500);
  for (const CommissionCell& cell : cells()) {
    EXPECT_EQ(text(cell.amountBox()), cell.party() == "PROD" ? "€ 50,00" : "€ 3,00") << cell.amount;
  }
}

TEST_P(CommissionQuota, ReadsTheFlagOfTheLeadOnce) {
  panel->VALORI(figures({"1000", "7", "100", "50", "1265", "60"}));
  panel->DELEGATARIA(true);
  label("LblPN").Change = [&] { panel->DELEGATARIA(false); };
  panel->QUOTA(500);
  EXPECT_EQ(premiumsShown(), (Strings{"€ 507,00", "€ 100,00", "€ 692,50"}));
}

TEST_P(CommissionQuota, FollowsTheFormsOfTheLocale) {
  setLocale({.decimalSign = '.', .groupingSign = ',', .symbol = "CHF", .currencyDecimals = 3});
  const auto swiss = another("swiss");
  swiss->VALORI(figures({"1234,5674", "0", "0", "0", "0", "0"}));
  swiss->QUOTA(1000);
  EXPECT_EQ(swiss->surface().label("LblPN").Caption(), "CHF 1,234.567");
  swiss->Attiva();
  swiss->P_PN_UFF(percent("12,5"));
  EXPECT_EQ(swiss->surface().textBox("TxtP_PN_UFF").Text(), "12.50");
  EXPECT_EQ(swiss->surface().textBox("TxtPN_UFF").Text(), "CHF 154.321");
  swiss->P_ACC_UFF(percent("0,5"));
  swiss->QUOTA(500);
  EXPECT_EQ(swiss->surface().textBox("TxtPN_UFF").Text(), "CHF 77.161");  // 617.284 / 100 * 12.5 = 77.1605
}

}  // namespace
}  // namespace qvn::test
