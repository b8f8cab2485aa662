// Two policies to the cent: typed by the operator, and loaded by the host.
#include <gtest/gtest.h>

#include "qvn/shared/patterns.h"
#include "tests/panels/commission_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

class CommissionExamples : public CommissionPanel {
 public:
  Strings percents() { return columns(&CommissionCell::percentBox); }
  Strings amounts() { return columns(&CommissionCell::amountBox); }
  Strings labels() {
    Strings all;
    for (const auto name : {"LblPN", "LblACC", "LblPL", "PROVV_ATTIVE", "PROVV_PASSIVE", "RIT_ACCONTO"}) {
      all.push_back(caption(name));
    }
    return all;
  }

  /// The lead coinsurer of six tenths; the producer works on the premium, the alternate on the office's commission.
  void lead() {
    panel->COD_COMPAGNIA("C1");
    panel->COD_PRODUTTORE("P1");
    panel->COD_PRODUTTORE_ALT("P2");
    panel->DELEGATARIA(true);
    panel->VALORI(figures({"1000,00", "0", "100,00", "50,00", "1265,00", "50,00"}));
    panel->QUOTA(600);
    panel->CALC_PROD(1);
    panel->CALC_PROD_ALT(2);
  }
  const Strings kLeadPercents{"12,50", "10,00", "5,00", "8,00", "5,00", "2,00", "30,00", "30,00", "30,00"};
  const Strings kLeadAmounts{"€ 75,00", "€ 11,00", "€ 30,00", "€ 48,00", "€ 5,50",
                             "€ 12,00", "€ 22,50", "€ 3,30",  "€ 9,00"};
  const Strings kLeadLabels{"€ 600,00", "€ 110,00", "€ 809,00", "€ 116,00", "€ 100,30", "€ 23,07"};

  /// A participant of a quarter that is not the lead; the producer works on the office's commission.
  void follower() {
    panel->COD_PRODUTTORE("P3");
    panel->VALORI(figures({"2000,00", "5", "333,33", "50,00", "2800,00", "60"}));
    panel->QUOTA(250);
    panel->CALC_PROD(2);
  }
  const Strings kFollowerPercents{"15,00", "15,00", "0,00", "40,00", "40,00", "40,00", "0,00", "0,00", "0,00"};
  const Strings kFollowerAmounts{"€ 75,00", "€ 12,50", "€ 0,00", "€ 30,00", "€ 5,00",
                                 "€ 0,00",  "€ 0,00",  "€ 0,00", "€ 0,00"};
  const Strings kFollowerLabels{"€ 500,00", "€ 83,33", "€ 700,00", "€ 87,50", "€ 35,00", "€ 7,00"};

  void expectAmounts(const Strings& money_) {
    Strings read;
    read.reserve(money_.size());
    for (const CommissionCell& cell : cells()) read.push_back(format(amount(cell), Pattern::Currency, Locale{}).str());
    EXPECT_EQ(read, money_);
  }

 private:
  Strings columns(std::string (CommissionCell::*name)() const) {
    Strings all;
    all.reserve(cells().size());
    for (const CommissionCell& cell : cells()) all.push_back(text((cell.*name)()));
    return all;
  }
};
QVN_ON_EVERY_PLATFORM(CommissionExamples);

TEST_P(CommissionExamples, TheLeadTypedOnTheNumericPad) {
  lead();
  panel->Attiva();
  hands().type("12.5{Enter}{Enter}10{Enter}{Enter}5{Enter}{Enter}");
  EXPECT_EQ(focused(), "CmbCALCOLO_PROD");
  hands().type("{Tab}8{Enter}{Enter}5{Enter}{Enter}2{Enter}{Enter}");
  EXPECT_EQ(focused(), "CmbCALCOLO_PROD_ALT");
  hands().type("{Tab}30{Enter}{Enter}30{Enter}{Enter}30{Enter}{Enter}");
  EXPECT_EQ(focused(), "TxtP_PN_UFF");
  hands().leave();
  EXPECT_EQ(percents(), kLeadPercents);
  EXPECT_EQ(amounts(), kLeadAmounts);
  EXPECT_EQ(labels(), kLeadLabels);
  expectAmounts(kLeadAmounts);
  EXPECT_EQ(panel->P_ATTIVE(), Variant(money("116")));
  EXPECT_EQ(panel->P_PASSIVE(), Variant(money("100,30")));
  EXPECT_THAT(container().failures, IsEmpty());
  EXPECT_EQ(beeps(), 0);
}

TEST_P(CommissionExamples, TheLeadLoadedByTheHost) {
  lead();
  for (std::size_t i = 0; i < cells().size(); ++i) {
    amount(cells()[i], money(kLeadAmounts[i]));
    percentOf(cells()[i], percent(kLeadPercents[i]));
  }
  panel->TOTALI();
  EXPECT_EQ(percents(), kLeadPercents);
  EXPECT_EQ(amounts(), kLeadAmounts);
  EXPECT_EQ(labels(), kLeadLabels);
  panel->Attiva();
  panel->TOTALI();
  EXPECT_EQ(amounts(), kLeadAmounts);
  EXPECT_EQ(labels(), kLeadLabels);
  panel->Disattiva();
  EXPECT_EQ(amounts(), kLeadAmounts);
  EXPECT_EQ(labels(), kLeadLabels);
}

TEST_P(CommissionExamples, TheLeadByPercentsAloneOnAPanelThatIsReady) {
  lead();
  panel->Attiva();
  for (std::size_t i = 0; i < cells().size(); ++i) percentOf(cells()[i], percent(kLeadPercents[i]));
  EXPECT_EQ(amounts(), kLeadAmounts);
  panel->TOTALI();
  EXPECT_EQ(labels(), kLeadLabels);
}

TEST_P(CommissionExamples, TheFollowerTypedOnTheNumericPad) {
  follower();
  panel->Attiva();
  hands().type("15{Enter}{Enter}15{Enter}{Enter}{Enter}{Enter}{Tab}40{Enter}{Enter}40{Enter}{Enter}40{Enter}");
  EXPECT_EQ(focused(), "TxtAQ_PROD");
  hands().leave();
  EXPECT_EQ(percents(), kFollowerPercents);
  EXPECT_EQ(labels(), kFollowerLabels);
  expectAmounts(kFollowerAmounts);
  EXPECT_EQ(frame("FrmPROD_ALT").Enabled(), false);
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(CommissionExamples, TheFollowerLoadedByTheHost) {
  follower();
  for (std::size_t i = 0; i < cells().size(); ++i) {
    amount(cells()[i], money(kFollowerAmounts[i]));
    percentOf(cells()[i], percent(kFollowerPercents[i]));
  }
  panel->TOTALI();
  EXPECT_EQ(percents(), kFollowerPercents);
  EXPECT_EQ(labels(), kFollowerLabels);
  expectAmounts(kFollowerAmounts);
}

TEST_P(CommissionExamples, AStoredAmountBesideItsPercentStaysUntilTheOperatorWorks) {
  lead();
  panel->Disattiva();
  panel->PN_UFF(money("70"));
  panel->P_PN_UFF(percent("12,5"));
  panel->TOTALI();
  EXPECT_EQ(text("TxtPN_UFF"), "€ 70,00");
  EXPECT_EQ(caption("PROVV_ATTIVE"), "€ 70,00");
  panel->Attiva();
  EXPECT_EQ(text("TxtPN_UFF"), "€ 70,00");
  hands().type("{Enter}");
  EXPECT_EQ(text("TxtPN_UFF"), "75,00");
  EXPECT_EQ(caption("PROVV_ATTIVE"), "€ 75,00");
}

TEST_P(CommissionExamples, TheAlternateByHisShareOfTheProducer) {
  lead();
  panel->Attiva();
  for (std::size_t i = 0; i < 6; ++i) percentOf(cells()[i], percent(kLeadPercents[i]));
  panel->percAlt();  // 30 in a hundred of 8, 5 and 2, on the office's commission
  panel->TOTALI();
  EXPECT_EQ(texts({"TxtP_PN_PROD_ALT", "TxtP_ACC_PROD_ALT", "TxtP_AQ_PROD_ALT"}), (Strings{"2,40", "1,50", "0,60"}));
  EXPECT_EQ(texts({"TxtPN_PROD_ALT", "TxtACC_PROD_ALT", "TxtAQ_PROD_ALT"}), (Strings{"€ 1,80", "€ 0,17", "€ 0,18"}));
  EXPECT_EQ(caption("PROVV_PASSIVE"), "€ 67,65");
}

}  // namespace
}  // namespace qvn::test
