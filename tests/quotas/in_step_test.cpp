// A host that keeps the quota panel and the commission panel of one participant in step: neither knows of the other.
#include <gtest/gtest.h>

#include "qvn/panels/commissions/ctlPROV_POLIZZE.h"
#include "tests/quotas/quota_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;

/// Hands quota and lead flag from the quota panel to the commission panel, at each announcement.
class InStepHost final : public toolkit::Container {
 public:
  void PropertyChanged(toolkit::Surface& /*panel*/, std::string_view name) override {
    heard.emplace_back(name);
    ASSERT_LT(heard.size(), 100U) << "the panels call each other without end";
    if (quota == nullptr || commission == nullptr) return;
    if (name == "QUOTA") {
      commission->QUOTA(quota->QUOTA());
    } else if (name == "DELEGATARIA") {
      commission->DELEGATARIA(quota->DELEGATARIA());
    } else if (name == "P_ATTIVE" && backwards) {
      quota->QUOTA(commission->QUOTA());
      quota->DELEGATARIA(commission->DELEGATARIA());
    }
  }
  void handlerFailed(toolkit::Surface& /*panel*/, toolkit::Widget& /*widget*/, std::string_view /*event*/,
                     const Failure& failure) noexcept override {
    ADD_FAILURE() << failure.what();
  }

  Strings heard;
  ctlQ_POLIZZE* quota = nullptr;
  ctlPROV_POLIZZE* commission = nullptr;
  bool backwards = false;
};

class InStep : public QuotaBench {
 public:
  InStep() {
    host.quota = &quotas;
    host.commission = &commissions;
    // One array for both: the second family stands in the column behind those of the commission.
    const CurrencyArray figures = ofPolicy({"1000", "10", "800", "100", "50", "90", "1265", "50", "1000"});
    quotas.Imposta_VALORI(figures);
    commissions.VALORI(figures);
    commissions.P_PN_UFF(Variant(money("10")));
    commissions.Attiva();
    quotas.Attiva();
    host.heard.clear();
  }

  InStepHost host;
  ctlQ_POLIZZE quotas{PanelSite{host, "quota"}};
  ctlPROV_POLIZZE commissions{PanelSite{host, "provv"}};

  Strings firstFamily() {
    const Strings all = columnsOf(quotas.surface());
    return {all.begin(), all.begin() + 3};
  }
  Strings premiums() {
    const toolkit::Surface& surface = commissions.surface();
    return {surface.label("LblPN").Caption(), surface.label("LblACC").Caption(), surface.label("LblPL").Caption()};
  }
};
QVN_ON_EVERY_PLATFORM(InStep);

TEST_P(InStep, ATypedQuotaGivesBothTheSameFigures) {
  for (const std::string digit : {"2", "5", "0"}) {
    hands().type(digit);
    EXPECT_EQ(commissions.QUOTA(), quotas.QUOTA());
    EXPECT_EQ(premiums(), firstFamily());
  }
  EXPECT_THAT(firstFamily(), ElementsAre("€ 250,00", "€ 25,00", "€ 316,25"));
  EXPECT_EQ(commissions.PN_UFF(), money("25"));
}

TEST_P(InStep, ACorrectedQuotaIsHandedOnAsItStands) {
  hands().type("9999");
  EXPECT_EQ(quotas.QUOTA(), 1000);
  EXPECT_EQ(commissions.QUOTA(), 1000);
  EXPECT_EQ(premiums(), firstFamily());
  hands().type("{Backspace}");
  EXPECT_EQ(commissions.QUOTA(), 0);
  EXPECT_EQ(premiums(), firstFamily());
}

TEST_P(InStep, ATickedFlagTellsWithTheNextQuotaOnBoth) {
  hands().type("250");
  host.heard.clear();
  hands().click(quotas.surface().checkBox("ChkDELEGATARIA"));
  EXPECT_THAT(host.heard, ElementsAre("DELEGATARIA"));
  EXPECT_TRUE(commissions.DELEGATARIA());
  EXPECT_THAT(firstFamily(), ElementsAre("€ 250,00", "€ 25,00", "€ 316,25"));
  EXPECT_EQ(premiums(), firstFamily());
  hands().focus(quotas.surface().textBox("TxtQUOTA"));
  hands().type("600");
  EXPECT_THAT(firstFamily(), ElementsAre("€ 610,00", "€ 110,00", "€ 809,00"));
  EXPECT_EQ(premiums(), firstFamily());
}

TEST_P(InStep, BothWaysTheyComeToRest) {
  host.backwards = true;
  hands().type("250");
  commissions.TOTALI();
  EXPECT_EQ(quotas.QUOTA(), 250);
  host.heard.clear();
  host.commission->QUOTA(600);
  commissions.TOTALI();  // whose announcement hands the quota back
  EXPECT_EQ(quotas.QUOTA(), 600);
  EXPECT_EQ(commissions.QUOTA(), 600);
  EXPECT_EQ(premiums(), firstFamily());
  EXPECT_LT(host.heard.size(), 20U);
}

}  // namespace
}  // namespace qvn::test
