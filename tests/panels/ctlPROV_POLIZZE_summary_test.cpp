// The first texts of a new panel, the premiums handed in by the host, and the summary.
#include <gtest/gtest.h>
#include <limits>

#include "tests/panels/commission_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CommissionFill : public CommissionPanel {};
QVN_ON_EVERY_PLATFORM(CommissionFill);

TEST_P(CommissionFill, ShowsZeroEverywhere) {
  for (const CommissionCell& cell : cells()) {
    EXPECT_EQ(text(cell.percentBox()), "0,00");
    EXPECT_EQ(text(cell.amountBox()), "0,00");
    EXPECT_EQ(amount(cell), money("0"));
    EXPECT_EQ(percentOf(cell), percent("0"));
  }
  for (const auto name : {"LblPN", "LblACC", "LblPL", "PROVV_ATTIVE", "PROVV_PASSIVE", "RIT_ACCONTO"}) {
    EXPECT_EQ(caption(name), "€ 0,00") << name;
  }
  EXPECT_EQ(caption("LblQUOTA"), "0");
  EXPECT_EQ(caption("LblCOMPAGNIA"), "");
  EXPECT_EQ(panel->QUOTA(), 0);
  EXPECT_EQ(panel->COD_COMPAGNIA(), "");
  EXPECT_EQ(panel->COD_PRODUTTORE(), "");
  EXPECT_EQ(panel->COD_PRODUTTORE_ALT(), "");
  EXPECT_FALSE(panel->DELEGATARIA());
  EXPECT_EQ(panel->P_ATTIVE(), Variant(money("0")));
}

TEST_P(CommissionFill, GoesFromTheOfficeToTheAlternateWithTheSummaryBehindTheOfficesAQ) {
  const auto second = another("altro");
  EXPECT_EQ(heard(), (Strings{"P_PN_UFF",    "PN_UFF",         "P_ACC_UFF",    "ACC_UFF",       "P_AQ_UFF",
                              "AQ_UFF",      "P_ATTIVE",       "P_PASSIVE",    "P_PN_PROD",     "PN_PROD",
                              "P_ACC_PROD",  "ACC_PROD",       "P_AQ_PROD",    "AQ_PROD",       "P_PN_PROD_ALT",
                              "PN_PROD_ALT", "P_ACC_PROD_ALT", "ACC_PROD_ALT", "P_AQ_PROD_ALT", "AQ_PROD_ALT"}));
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(CommissionFill, AsksForTheDatabaseWhileThePanelIsMade) {
  Globale::unload();
  int asks = 0;
  const Subscription unanswered = Globale::Eventi()->MancaDB.subscribe([&] { ++asks; });
  const auto second = another("altro");
  EXPECT_EQ(asks, 2);  // one for each of the two percents of withholding
  const Subscription answered = Globale::Eventi()->MancaDB.subscribe([] { Globale::Eventi()->ImpostaDB("fake:"); });
  const auto third = another("terzo");
  EXPECT_EQ(asks, 3);
  const auto fourth = another("quarto");
  EXPECT_EQ(asks, 3);
  EXPECT_THAT(asked(), IsEmpty());
}

class CommissionSummary : public CommissionPanel {
 public:
  Strings summary() { return {caption("PROVV_ATTIVE"), caption("PROVV_PASSIVE"), caption("RIT_ACCONTO")}; }
  /// Amounts 1, 2, 4 … 256, so that each sum tells what is in it.
  void powersOfTwo() {
    std::int64_t euro = 1;
    for (const CommissionCell& cell : cells()) {
      amount(cell, Currency::of(euro));
      euro *= 2;
    }
    forget();
  }
};
QVN_ON_EVERY_PLATFORM(CommissionSummary);

TEST_P(CommissionSummary, SumsTheOfficeAndBothProducersApart) {
  powersOfTwo();
  panel->TOTALI();
  EXPECT_EQ(summary(), (Strings{"€ 7,00", "€ 504,00", "€ 0,00"}));
  EXPECT_THAT(heard(), ElementsAre("P_PASSIVE"));  // what the office earns was summed with its AQ
}

TEST_P(CommissionSummary, AnnouncesOnlyASumThatChanges) {
  panel->PN_UFF(money("5"));
  forget();
  panel->TOTALI();
  EXPECT_THAT(heard(), ElementsAre("P_ATTIVE"));
  panel->TOTALI();
  EXPECT_THAT(heard(), IsEmpty());
  panel->PN_PROD(money("5"));
  forget();
  panel->TOTALI();
  EXPECT_THAT(heard(), ElementsAre("P_PASSIVE"));
}

TEST_P(CommissionSummary, WithholdsFromEachProducerByHisOwnRate) {
  producer("R1", "UNO", std::int32_t{0}, std::int32_t{10});
  producer("R2", "DUE", std::int32_t{0}, 2.5);
  powersOfTwo();
  panel->COD_PRODUTTORE("R1");
  panel->COD_PRODUTTORE_ALT("R2");
  forget();
  panel->TOTALI();
  EXPECT_THAT(asked(), ElementsAre(rateSql("R1"), rateSql("R2")));
  EXPECT_EQ(caption("RIT_ACCONTO"), "€ 16,80");  // (8+16+32) 10% + (64+128+256) 2.5%
  EXPECT_THAT(heard(), ElementsAre("P_PASSIVE"));
  panel->COD_PRODUTTORE("");
  forget();
  panel->TOTALI();
  EXPECT_THAT(asked(), ElementsAre(rateSql("R2")));
  EXPECT_EQ(caption("RIT_ACCONTO"), "€ 11,20");
  panel->COD_PRODUTTORE("R1");
  panel->COD_PRODUTTORE_ALT("");
  forget();
  panel->TOTALI();
  EXPECT_THAT(asked(), ElementsAre(rateSql("R1")));
  EXPECT_EQ(caption("RIT_ACCONTO"), "€ 5,60");
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(CommissionSummary, WithholdsNothingWithoutAProducerOrFromOneThatIsNotInTheTable) {
  powersOfTwo();
  panel->TOTALI();
  EXPECT_THAT(asked(), IsEmpty());
  EXPECT_EQ(caption("RIT_ACCONTO"), "€ 0,00");
  panel->COD_PRODUTTORE("P9");
  panel->COD_PRODUTTORE_ALT("P8");
  forget();
  panel->TOTALI();
  EXPECT_THAT(asked(), ElementsAre(rateSql("P9"), rateSql("P8")));
  EXPECT_EQ(caption("RIT_ACCONTO"), "€ 0,00");
}

TEST_P(CommissionSummary, AsksTheDatabaseEachTimeWhateverChanged) {
  everybody();
  panel->TOTALI();
  panel->TOTALI();
  EXPECT_EQ(asked().size(), 4U);
}

TEST_P(CommissionSummary, RoundsTheWithholdingOnceAndAwayFromZero) {
  producer("R1", "UNO", std::int32_t{0}, std::int32_t{50});
  panel->COD_PRODUTTORE("R1");
  panel->COD_PRODUTTORE_ALT("R1");
  panel->PN_PROD(money("0,01"));
  panel->PN_PROD_ALT(money("0,01"));
  panel->TOTALI();
  EXPECT_EQ(caption("RIT_ACCONTO"), "€ 0,01");  // 0.005 twice; rounded one by one it would show 0,02
  panel->PN_PROD(money("-0,01"));
  panel->PN_PROD_ALT(money("0"));
  panel->TOTALI();
  EXPECT_EQ(caption("RIT_ACCONTO"), "-€ 0,01");
}

TEST_P(CommissionSummary, SumsWhatTheBoxesHoldToFourDecimals) {
  for (const auto name : {"TxtPN_UFF", "TxtACC_UFF", "TxtAQ_UFF", "TxtPN_PROD", "TxtACC_PROD", "TxtAQ_PROD_ALT"}) {
    box(name).Text("0,004");
  }
  panel->TOTALI();
  EXPECT_EQ(panel->P_ATTIVE(), Variant(money("0,01")));  // 0.012
  EXPECT_EQ(panel->P_PASSIVE(), Variant(money("0,01")));
}

TEST_P(CommissionSummary, AppliesTheQuotaFirst) {
  everybody();
  panel->VALORI(figures({"1000", "0", "0", "0", "0", "0"}));
  panel->QUOTA(500);
  panel->P_PN_UFF(percent("10"));
  panel->CALC_PROD(2);
  panel->P_PN_PROD(percent("50"));
  box("TxtPN_UFF").Text("1");
  box("TxtPN_PROD").Text("1");
  label("LblPN").Caption("€ 9,00");
  forget();
  panel->TOTALI();
  EXPECT_EQ(caption("LblPN"), "€ 500,00");
  EXPECT_EQ(texts({"TxtPN_UFF", "TxtPN_PROD"}), (Strings{"€ 50,00", "€ 25,00"}));
  EXPECT_EQ(summary(), (Strings{"€ 50,00", "€ 25,00", "€ 5,75"}));
  EXPECT_THAT(heard(), ElementsAre("P_PN_UFF", "PN_UFF", "P_PN_PROD", "PN_PROD", "P_ATTIVE", "P_PASSIVE"));
}

TEST_P(CommissionSummary, OfADisabledPanelSumsItsAmountsAsTheyStand) {
  panel->VALORI(figures({"1000", "0", "0", "0", "0", "0"}));
  panel->QUOTA(1000);
  for (const CommissionCell& cell : cells()) {
    amount(cell, money("3"));
    percentOf(cell, percent("10"));
  }
  panel->TOTALI();
  for (const CommissionCell& cell : cells()) EXPECT_EQ(text(cell.amountBox()), "€ 3,00");
  EXPECT_EQ(summary(), (Strings{"€ 9,00", "€ 18,00", "€ 0,00"}));
}

class CommissionValori : public CommissionPanel {
 public:
  /// The six figures that the panel has stored, as a quota of the whole shows them.
  Strings stored() {
    Strings all;
    panel->DELEGATARIA(false);
    panel->QUOTA(0);
    panel->QUOTA(1000);
    for (const auto name : {"LblPN", "LblACC", "LblPL"}) all.push_back(caption(name));
    panel->DELEGATARIA(true);
    panel->QUOTA(0);
    for (const auto name : {"LblPN", "LblACC", "LblPL"}) all.push_back(caption(name));
    panel->DELEGATARIA(false);
    return all;
  }
  static CurrencyArray array(std::vector<std::size_t> extents, const std::vector<std::string_view>& values) {
    CurrencyArray made{.extents = std::move(extents), .values = {}};
    made.values.reserve(values.size());
    for (const std::string_view value : values) made.values.push_back(money(value));
    return made;
  }
  const Strings kBefore{"€ 1,00", "€ 2,00", "€ 3,00", "€ 4,00", "€ 5,00", "€ 6,00"};
  void before() { panel->VALORI(figures({"1", "4", "2", "5", "3", "6"})); }
};
QVN_ON_EVERY_PLATFORM(CommissionValori);

TEST_P(CommissionValori, TakesEachFigureFromItsElement) {
  before();
  EXPECT_EQ(stored(), kBefore);
  const CurrencyArray larger = array({4, 3}, {"11", "14", "0", "12", "15", "0", "13", "16", "0", "99", "99", "99"});
  panel->VALORI(larger);
  EXPECT_EQ(stored(), (Strings{"€ 11,00", "€ 12,00", "€ 13,00", "€ 14,00", "€ 15,00", "€ 16,00"}));
}

TEST_P(CommissionValori, RoundsToTheMoneysDecimalsOnReceipt) {
  panel->VALORI(figures({"10,005", "10,0049", "-10,005", "0,005", "1000,995", "-0,0049"}));
  EXPECT_EQ(stored(), (Strings{"€ 10,01", "-€ 10,01", "€ 1.001,00", "€ 10,00", "€ 0,01", "€ 0,00"}));
  panel->VALORI(figures({"10,005", "0", "0", "0", "0", "0"}));
  panel->QUOTA(500);
  EXPECT_EQ(caption("LblPN"), "€ 5,01");  // half of 10,01 is 5.005, where half of 10.005 would show 5,00
}

TEST_P(CommissionValori, AppliesTheQuotaAndRunsNoSummary) {
  everybody();
  panel->QUOTA(1000);
  panel->P_PN_UFF(percent("10"));
  forget();
  panel->VALORI(figures({"1000", "0", "100", "0", "1265", "0"}));
  EXPECT_EQ(caption("LblPN"), "€ 1.000,00");
  EXPECT_EQ(caption("LblPL"), "€ 1.265,00");
  EXPECT_EQ(text("TxtPN_UFF"), "€ 100,00");
  EXPECT_EQ(caption("PROVV_ATTIVE"), "€ 0,00");
  EXPECT_THAT(asked(), IsEmpty());
  EXPECT_THAT(heard(), ElementsAre("P_PN_UFF", "PN_UFF"));
  panel->TOTALI();
  EXPECT_EQ(caption("PROVV_ATTIVE"), "€ 100,00");
}

TEST_P(CommissionValori, ThePremiumGrossOfAllIsShownAndTakesPartInNothing) {
  everybody();
  premiums("0", "0");
  panel->CALC_PROD(1);
  panel->setCombo();
  panel->VALORI(figures({"0", "0", "0", "0", "1265", "0"}));
  for (const CommissionCell& cell : cells()) percentOf(cell, percent("10"));
  panel->TOTALI();
  for (const CommissionCell& cell : cells()) EXPECT_EQ(amount(cell), money("0")) << cell.amount;
}

struct TooSmall {
  std::string name;
  std::vector<std::size_t> extents;
  std::vector<std::string_view> values;
  Strings stored;
};

TEST_P(CommissionValori, OfTooFewElementsKeepsThoseBeforeTheFirstThatIsMissing) {
  const std::vector<TooSmall> arrays{
      {"none", {0, 0}, {}, kBefore},
      {"one dimension", {6}, {"11", "12", "13", "14", "15", "16"}, kBefore},
      {"one row", {1, 2}, {"11", "14"}, {"€ 11,00", "€ 2,00", "€ 3,00", "€ 4,00", "€ 5,00", "€ 6,00"}},
      {"two rows", {2, 2}, {"11", "14", "12", "15"}, {"€ 11,00", "€ 12,00", "€ 3,00", "€ 4,00", "€ 5,00", "€ 6,00"}},
      {"one column", {3, 1}, {"11", "12", "13"}, {"€ 11,00", "€ 12,00", "€ 13,00", "€ 4,00", "€ 5,00", "€ 6,00"}},
  };
  for (const TooSmall& small : arrays) {
    SCOPED_TRACE(small.name);
    before();
    panel->QUOTA(1000);
    const auto shownBefore = shown();
    EXPECT_FAILURE(panel->VALORI(array(small.extents, small.values)), FailureKind::SubscriptOutOfRange, "Importi: ");
    EXPECT_EQ(shown(), shownBefore);  // the quota was not applied
    EXPECT_EQ(stored(), small.stored);
  }
}

TEST_P(CommissionValori, HoldsTheLargestMoney) {
  panel->VALORI({.extents = {3, 2},
                 .values = std::vector(6, Currency::fromTenThousandths(std::numeric_limits<std::int64_t>::min()))});
  panel->QUOTA(1);
  EXPECT_EQ(caption("LblPN"), "-€ 922.337.203.685,48");
}

}  // namespace
}  // namespace qvn::test
