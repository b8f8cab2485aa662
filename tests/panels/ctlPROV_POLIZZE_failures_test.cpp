// What fails, where it stops, what stays, and who hears of it.
#include <gtest/gtest.h>

#include "tests/panels/commission_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CommissionFailures : public CommissionPanel {};
QVN_ON_EVERY_PLATFORM(CommissionFailures);

TEST_P(CommissionFailures, AStatementThatFailsLeavesTheSumsAndStopsBeforeTheWithholding) {
  everybody();
  panel->PN_UFF(money("5"));
  panel->PN_PROD(money("100"));
  forget();
  for (const std::size_t number : {1U, 2U}) {
    SCOPED_TRACE(number);
    statements.failAt(number);
    EXPECT_FAILURE(panel->TOTALI(), FailureKind::Database, rateSql(number == 1 ? "P1" : "P2"));
    EXPECT_EQ(statements.count(), number);
    EXPECT_EQ(caption("PROVV_ATTIVE"), "€ 5,00");
    EXPECT_EQ(caption("PROVV_PASSIVE"), "€ 100,00");
    EXPECT_EQ(caption("RIT_ACCONTO"), "€ 0,00");
  }
  statements.failAt(0);
  panel->TOTALI();
  EXPECT_EQ(caption("RIT_ACCONTO"), "€ 23,00");
}

TEST_P(CommissionFailures, NamesWhatCouldNotBeShown) {
  everybody();
  statements.failAt(1);
  EXPECT_FAILURE(callByName(*panel, "TOTALI", {}), FailureKind::Database, "provv.TOTALI: RIT_ACCONTO: ");
}

TEST_P(CommissionFailures, TheAlternatesBaseLeftFailsAtEachOfItsFourStatements) {
  everybody();
  premiums("1000", "0");
  panel->setCombo();
  panel->P_PN_PROD_ALT(percent("10"));
  for (std::size_t number = 1; number <= 4; ++number) {
    SCOPED_TRACE(number);
    statements.failAt(0);
    box("TxtPN_PROD_ALT").Text("0,00");
    label("PROVV_PASSIVE").Caption("€ 0,00");
    label("RIT_ACCONTO").Caption("€ 0,00");
    hands().focus(list("CmbCALCOLO_PROD_ALT"));
    forget();
    statements.failAt(number);
    hands().leave();
    EXPECT_EQ(statements.count(), number);
    const ReportedFailure failure = onlyReported();
    EXPECT_EQ(failure.widget, "CmbCALCOLO_PROD_ALT");
    EXPECT_EQ(failure.event, "LostFocus");
    EXPECT_EQ(failure.kind, FailureKind::Database);
    EXPECT_NE(failure.message.find("RIT_ACCONTO"), std::string::npos) << failure.message;
    EXPECT_EQ(text("TxtPN_PROD_ALT"), "€ 100,00");
    EXPECT_EQ(caption("PROVV_PASSIVE"), "€ 100,00");
    EXPECT_EQ(caption("RIT_ACCONTO"), number <= 2 ? "€ 0,00" : "€ 23,00");
    EXPECT_EQ(list("CmbCALCOLO_PROD_ALT").BackColor(), 16777215U);
    EXPECT_EQ(focused(), "");
  }
}

TEST_P(CommissionFailures, TheProducersBaseLeftFailsAtEachOfItsTwoStatements) {
  everybody();
  for (std::size_t number = 1; number <= 2; ++number) {
    statements.failAt(0);
    hands().focus(list("CmbCALCOLO_PROD"));
    statements.failAt(number);
    hands().leave();
    EXPECT_EQ(statements.count(), number);
    EXPECT_EQ(onlyReported().widget, "CmbCALCOLO_PROD");
  }
}

TEST_P(CommissionFailures, AChainOfRulesStopsAtEachStatementThatFails) {
  // The quota, its percents, the office's AQ, the summary behind it; then the rest of the quota and the summary asked
  // for.
  const auto start = [&] {
    panel = another("provv");
    everybody();
    panel->CALC_PROD(2);
    panel->CALC_PROD_ALT(2);
    panel->P_AQ_UFF(percent("10"));
    panel->P_AQ_PROD(percent("50"));
    panel->P_AQ_PROD_ALT(percent("20"));
    panel->VALORI(figures({"1000", "0", "0", "0", "0", "0"}));
    label("LblQUOTA").Change = {};
    panel->QUOTA(1000);
    forget();
    container().failures.clear();
  };
  start();
  statements.failAt(0);
  panel->TOTALI();
  const std::size_t whole = statements.count();
  EXPECT_EQ(whole, 4U);
  EXPECT_EQ(caption("RIT_ACCONTO"), "€ 16,10");
  for (std::size_t number = 1; number <= whole; ++number) {
    SCOPED_TRACE(number);
    statements.failAt(0);
    start();
    statements.failAt(number);
    EXPECT_FAILURE(panel->TOTALI(), FailureKind::Database, "RIT_ACCONTO: ");
    EXPECT_EQ(statements.count(), number);
    EXPECT_EQ(text("TxtAQ_UFF"), "€ 100,00");  // written before it failed
    EXPECT_EQ(text("TxtAQ_PROD"), "€ 50,00");
    EXPECT_EQ(caption("PROVV_PASSIVE"), "€ 70,00");
    EXPECT_EQ(caption("RIT_ACCONTO"), number <= 2 ? "€ 0,00" : "€ 16,10");
    const Strings notices = heard();
    // Behind the inner summary the rest of the outer quota announces the producers' percents once more.
    EXPECT_EQ(std::ranges::count(notices, "P_AQ_PROD"), number <= 2 ? 1 : 2);
    EXPECT_THAT(container().failures, IsEmpty());  // it is the host's own call
  }
}

TEST_P(CommissionFailures, TypingTheOfficesAQFailsAtTheKeyAndGoesOnAtTheNext) {
  everybody();
  premiums("1000", "0");
  hands().focus(box("TxtP_AQ_UFF"));
  for (std::size_t number = 1; number <= 4; ++number) {
    SCOPED_TRACE(number);
    statements.failAt(number);
    hands().type("12");
    const ReportedFailure failure = onlyReported();
    EXPECT_EQ(failure.panel, "provv");
    EXPECT_EQ(failure.widget, "TxtP_AQ_UFF");
    EXPECT_EQ(failure.event, "Change");
    EXPECT_EQ(statements.count(), number <= 2 ? number + 2 : number);
    EXPECT_EQ(text("TxtP_AQ_UFF"), "12");
    EXPECT_EQ(text("TxtAQ_UFF"), "€ 120,00");
    EXPECT_EQ(caption("PROVV_ATTIVE"), "€ 120,00");
    statements.failAt(0);
    hands().caret(0, 2);
    hands().type("0");
    hands().caret(0, 1);
  }
}

TEST_P(CommissionFailures, AClosedConnectionAsksForTheDatabaseAndFails) {
  everybody();
  panel->PN_UFF(money("5"));
  Globale::DB().Close();
  int asks = 0;
  const Subscription subscription = Globale::Eventi()->MancaDB.subscribe([&] { ++asks; });
  EXPECT_FAILURE(panel->TOTALI(), FailureKind::Database, "RIT_ACCONTO");
  EXPECT_EQ(asks, 1);
  EXPECT_EQ(caption("PROVV_ATTIVE"), "€ 5,00");
  EXPECT_FAILURE(panel->COD_PRODUTTORE("P3"), FailureKind::Database, "");
  EXPECT_EQ(asks, 2);
  panel->COD_PRODUTTORE("");
  panel->COD_PRODUTTORE_ALT("");
  asks = 0;
  panel->TOTALI();  // asks even for the empty codes, and runs no statement
  EXPECT_EQ(asks, 2);
}

TEST_P(CommissionFailures, ANullRateFails) {
  producer("Q4", "NULLO", std::int32_t{0}, Null{});
  panel->COD_PRODUTTORE("Q4");
  EXPECT_FAILURE(panel->TOTALI(), FailureKind::InvalidUseOfNull, "R_ACC");
}

TEST_P(CommissionFailures, ALoneCommaInAnAmountFailsTheSummary) {
  everybody();
  for (const CommissionCell& cell : cells()) {
    if (cell.amount == "AQ_UFF") continue;
    SCOPED_TRACE(cell.amount);
    hands().focus(box(cell.amountBox()));
    hands().type("5,{Home}{Delete}");
    EXPECT_EQ(text(cell.amountBox()), ",");
    EXPECT_THAT(container().failures, IsEmpty());
    forget();
    hands().leave();
    const ReportedFailure failure = onlyReported();
    EXPECT_EQ(failure.widget, cell.amountBox());
    EXPECT_EQ(failure.event, "LostFocus");
    EXPECT_EQ(failure.kind, FailureKind::TypeMismatch);
    EXPECT_NE(failure.message.find(cell.amountBox()), std::string::npos) << failure.message;
    EXPECT_EQ(text(cell.amountBox()), ",");
    EXPECT_EQ(box(cell.amountBox()).BackColor(), 16777215U);
    EXPECT_THAT(asked(), IsEmpty());
    box(cell.amountBox()).Text("0,00");
  }
}

TEST_P(CommissionFailures, ALoneCommaInTheOfficesAQFailsAtTheKey) {
  everybody();
  hands().focus(box("TxtAQ_UFF"));
  hands().type("5,{Home}");
  container().failures.clear();
  hands().type("{Delete}");
  const ReportedFailure failure = onlyReported();
  EXPECT_EQ(failure.widget, "TxtAQ_UFF");
  EXPECT_EQ(failure.event, "Change");
  EXPECT_EQ(failure.kind, FailureKind::TypeMismatch);
  EXPECT_EQ(text("TxtAQ_UFF"), ",");
}

TEST_P(CommissionFailures, ALoneCommaInAPercentFailsItsRuleAndNotTheSummary) {
  everybody();
  premiums("1000", "1000");
  panel->setCombo();
  panel->CALC_PROD(1);
  for (const CommissionCell& cell : cells()) {
    SCOPED_TRACE(cell.amount);
    hands().focus(box(cell.percentBox()));
    hands().type("5,{Home}");
    EXPECT_THAT(container().failures, IsEmpty());
    hands().type("{Delete}");
    const ReportedFailure failure = onlyReported();
    EXPECT_EQ(failure.widget, cell.percentBox());
    EXPECT_EQ(failure.event, "Change");
    EXPECT_EQ(failure.kind, FailureKind::TypeMismatch);
    EXPECT_EQ(amount(cell), money("50"));  // as before the comma stood alone
    forget();
    hands().leave();
    EXPECT_THAT(container().failures, IsEmpty());
    EXPECT_EQ(asked().size(), 2U);
    box(cell.percentBox()).Text("0,00");
  }
}

TEST_P(CommissionFailures, ASumStopsAtTheBoxThatIsNoNumberAndKeepsTheSumBefore) {
  everybody();
  panel->PN_UFF(money("5"));
  box("TxtPN_PROD").Text("");
  EXPECT_EQ(text("TxtPN_PROD"), "0,00");
  box("TxtACC_PROD").Text("niente");
  forget();
  EXPECT_FAILURE(panel->TOTALI(), FailureKind::TypeMismatch, "PROVV_PASSIVE: TxtACC_PROD: ");
  EXPECT_EQ(caption("PROVV_ATTIVE"), "€ 5,00");
  EXPECT_EQ(caption("PROVV_PASSIVE"), "€ 0,00");
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(CommissionFailures, TheQuotaStopsAtAnOfficeAmountThatIsNoNumber) {
  everybody();
  for (const CommissionCell& cell : cells()) {
    if (cell.party() != "UFF") percentOf(cell, percent("10"));
  }
  box("TxtACC_UFF").Text(",");
  forget();
  EXPECT_FAILURE(panel->VALORI(figures({"1000", "0", "100", "0", "10", "0"})), FailureKind::TypeMismatch,
                 "TxtACC_PROD: TxtACC_UFF: ");
  EXPECT_THAT(heard(), ElementsAre("P_PN_PROD", "P_ACC_PROD"));
}

TEST_P(CommissionFailures, AQuotaThatIsNoNumberFailsBeforeAnyPremium) {
  EXPECT_FAILURE(label("LblQUOTA").Caption("tutto"), FailureKind::TypeMismatch, "LblPN: LblQUOTA: ");
  EXPECT_EQ(caption("LblQUOTA"), "tutto");
  EXPECT_EQ(caption("LblPN"), "€ 0,00");
}

TEST_P(CommissionFailures, AQuotaThatFailedStaysAndIsNotAppliedAgain) {
  everybody();
  panel->P_PN_PROD(percent("10"));
  box("TxtPN_UFF").Text(",");
  EXPECT_FAILURE(panel->QUOTA(600), FailureKind::TypeMismatch, "TxtPN_PROD: TxtPN_UFF: ");
  EXPECT_EQ(panel->QUOTA(), 600);
  EXPECT_EQ(caption("LblQUOTA"), "600");
  panel->QUOTA(600);
}

constexpr std::string_view kHuge = "900000000000000";

TEST_P(CommissionFailures, APremiumBeyondMoneyFailsAndLeavesThoseBefore) {
  everybody();
  panel->VALORI(figures({"1000", "0", kHuge, "0", "1000", "0"}));
  EXPECT_FAILURE(panel->QUOTA(2000), FailureKind::Overflow, "LblACC: ");
  EXPECT_EQ(caption("LblPN"), "€ 2.000,00");
  EXPECT_EQ(caption("LblACC"), "€ 0,00");
  EXPECT_EQ(caption("LblPL"), "€ 0,00");
  EXPECT_EQ(panel->QUOTA(), 2000);
  forget();
  EXPECT_FAILURE(panel->TOTALI(), FailureKind::Overflow, "LblACC: ");
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(CommissionFailures, APremiumOfTheLeadBeyondMoneyFailsAndLeavesThoseBefore) {
  panel->VALORI(figures({"1000", "1", kHuge, "0", "1000", "1"}));
  panel->DELEGATARIA(true);
  EXPECT_FAILURE(panel->QUOTA(2000), FailureKind::Overflow, "LblACC: ");
  EXPECT_EQ(caption("LblPN"), "€ 2.001,00");
  EXPECT_EQ(caption("LblACC"), "€ 0,00");
  EXPECT_EQ(caption("LblPL"), "€ 0,00");
  EXPECT_EQ(panel->QUOTA(), 2000);
}

TEST_P(CommissionFailures, ThePremiumAndWhatGoesToTheLeadFailTogetherToo) {
  panel->DELEGATARIA(true);
  panel->QUOTA(1000);
  EXPECT_FAILURE(panel->VALORI(figures({kHuge, kHuge, "0", "0", "0", "0"})), FailureKind::Overflow, "LblPN: ");
}

TEST_P(CommissionFailures, AnAmountBeyondMoneyFailsAndStaysAsItWas) {
  everybody();
  premiums(kHuge, "0");
  panel->P_PN_UFF(percent("100"));
  EXPECT_FAILURE(panel->P_PN_UFF(percent("200")), FailureKind::Overflow, "TxtPN_UFF: ");
  EXPECT_EQ(text("TxtP_PN_UFF"), "200,00");
  EXPECT_EQ(text("TxtPN_UFF"), "€ 900.000.000.000.000,00");
}

TEST_P(CommissionFailures, AWithholdingBeyondMoneyFailsAndTheSumsStand) {
  producer("P9", "CARO", std::int32_t{0}, std::int32_t{150});
  panel->COD_PRODUTTORE("P9");
  panel->PN_PROD(money(kHuge));
  EXPECT_FAILURE(panel->TOTALI(), FailureKind::Overflow, "RIT_ACCONTO: ");
  EXPECT_EQ(caption("PROVV_PASSIVE"), "€ 900.000.000.000.000,00");
  EXPECT_EQ(caption("RIT_ACCONTO"), "€ 0,00");
}

TEST_P(CommissionFailures, ASumBeyondMoneyFailsAndTheOtherStays) {
  everybody();
  panel->PN_UFF(money("5"));
  panel->PN_PROD(money(kHuge));
  panel->PN_PROD_ALT(money(kHuge));
  forget();
  EXPECT_FAILURE(panel->TOTALI(), FailureKind::Overflow, "PROVV_PASSIVE: ");
  EXPECT_EQ(caption("PROVV_ATTIVE"), "€ 5,00");
  EXPECT_EQ(caption("PROVV_PASSIVE"), "€ 0,00");
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(CommissionFailures, APercentBeyondMoneyFailsItsRule) {
  everybody();
  EXPECT_FAILURE(panel->P_PN_UFF(percent("1000000000000000")), FailureKind::Overflow, "TxtP_PN_UFF: ");
  EXPECT_EQ(panel->P_PN_UFF(), percent("1000000000000000"));  // which money could not hold
  EXPECT_EQ(text("TxtPN_UFF"), "0,00");
}

TEST_P(CommissionFailures, AHostThatThrowsAtAnAnnouncementHearsOfItAndStopsTheRule) {
  everybody();
  premiums("1000", "0");
  container().onNotice = [](toolkit::Surface&, std::string_view name) {
    if (name == "P_PN_UFF") throw Failure(FailureKind::Database, "the host's own");
  };
  EXPECT_FAILURE(panel->P_PN_UFF(percent("10")), FailureKind::Database, "the host's own");
  EXPECT_EQ(text("TxtP_PN_UFF"), "10,00");
  EXPECT_EQ(text("TxtPN_UFF"), "0,00");
}

}  // namespace
}  // namespace qvn::test
