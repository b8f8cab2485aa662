// Where the order of operations, the type of a number or the order of two steps tells only in rare figures.
#include "tests/panels/commission_bench.h"

namespace qvn::test {
namespace {

class CommissionLastDigit : public CommissionPanel {};
QVN_ON_EVERY_PLATFORM(CommissionLastDigit);

constexpr std::string_view kLarge = "900000000000000";

TEST_P(CommissionLastDigit, AnAmountDividesByAHundredBeforeItMultiplies) {
  everybody();
  premiums("7191585698,79", "0");
  panel->P_PN_UFF(percent("64,05"));
  EXPECT_EQ(text("TxtPN_UFF"), "€ 4.606.210.640,08");
}

TEST_P(CommissionLastDigit, AQuotaDividesByAThousandBeforeItMultiplies) {
  panel->VALORI(figures({"65975798301,05", "0", "0", "0", "0", "0"}));
  panel->QUOTA(919);
  EXPECT_EQ(caption("LblPN"), "€ 60.631.758.638,66");
}

TEST_P(CommissionLastDigit, AWithholdingIsWorkedOutForEachProducer) {
  producer("PA", "PRIMO", std::int32_t{0}, 11.5);
  producer("PB", "SECONDO", std::int32_t{0}, 23.25);
  panel->COD_PRODUTTORE("PA");
  panel->COD_PRODUTTORE_ALT("PB");
  panel->PN_PROD(money("58942937616,36"));
  panel->PN_PROD_ALT(money("15085687114,94"));
  panel->TOTALI();
  EXPECT_EQ(caption("RIT_ACCONTO"), "€ 10.285.860.080,10");
}

TEST_P(CommissionLastDigit, AnAlternatePercentDividesByAHundredBeforeItMultiplies) {
  producer("PC", "TERZO", std::int32_t{61}, std::int32_t{0});
  panel->COD_PRODUTTORE_ALT("PC");
  panel->Disattiva();
  box("TxtP_PN_PROD").Text("172346712213,45");
  panel->percAlt();
  EXPECT_EQ(text("TxtP_PN_PROD_ALT"), "105131494450,20");
}

TEST_P(CommissionLastDigit, AnAlternateShareMayBeginWithAnExponent) {
  panel->COD_PRODUTTORE_ALT("1E3");  // unknown, so that the caption has no bracket and begins with the code
  panel->Disattiva();
  panel->P_PN_PROD(percent("10"));
  panel->percAlt();
  EXPECT_EQ(text("TxtP_PN_PROD_ALT"), "100,00");
}

TEST_P(CommissionLastDigit, APercentIsComparedAsADecimal) {
  panel->P_PN_UFF(percent("1000000000000000"));  // beyond money
  panel->P_PN_UFF(percent("5"));
  EXPECT_EQ(text("TxtP_PN_UFF"), "5,00");
  box("TxtP_PN_UFF").Text("0,00004");  // nothing to money
  panel->P_PN_UFF(percent("0"));
  EXPECT_EQ(text("TxtP_PN_UFF"), "0,00");
}

TEST_P(CommissionLastDigit, ATextAlwaysDiffersFromTheNumberShown) {
  box("TxtP_PN_UFF").Text("12,5");
  panel->P_PN_UFF(Variant(std::string("12,5")));
  EXPECT_EQ(text("TxtP_PN_UFF"), "12,50");
}

TEST_P(CommissionLastDigit, TheBaseIsReadBeforeThePercent) {
  everybody();
  label("LblPN").Caption("€ 1.800.000.000.000.000,00");
  EXPECT_FAILURE(box("TxtP_PN_UFF").Text(","), FailureKind::Overflow, "LblPN: ");
}

TEST_P(CommissionLastDigit, AnEmptiedAmountIsSelectedBeforeTheSummaryRuns) {
  everybody();
  hands().focus(box("TxtAQ_UFF"));
  hands().type("7");
  statements.failAt(3);  // the summary of the zero has run within; that of the emptying fails
  hands().type("{Backspace}");
  EXPECT_EQ(text("TxtAQ_UFF"), "0,00");
  EXPECT_TRUE(wholeSelected(box("TxtAQ_UFF")));
  EXPECT_EQ(container().failures.size(), 1U);
}

TEST_P(CommissionLastDigit, UnderAPointAFractionIsAppliedAnewByAQuota) {
  Locale point;
  point.decimalSign = '.';
  point.groupingSign = ',';
  setLocale(point);
  panel = another("punto");
  panel->COD_PRODUTTORE("P1");
  panel->Attiva();
  panel->VALORI(figures({"1000", "0", "0", "0", "0", "0"}));
  panel->QUOTA(1000);
  panel->P_PN_UFF(percent("0,5"));
  EXPECT_EQ(panel->PN_UFF(), money("5"));
  panel->QUOTA(500);
  EXPECT_EQ(text("TxtP_PN_UFF"), "0.50");
  EXPECT_EQ(panel->PN_UFF(), money("2,5"));
}

TEST_P(CommissionLastDigit, AttivaSelectsTheFirstPercentBeforeItGivesItTheFocus) {
  box("TxtP_PN_UFF").Text("0,5");
  label("LblPN").Caption("€ 1.800.000.000.000.000,00");  // so that gaining the focus fails as it rewrites the percent
  panel->Attiva();
  EXPECT_TRUE(box("TxtP_PN_UFF").hasFocus());
  EXPECT_EQ(text("TxtP_PN_UFF"), "0,50");
  EXPECT_EQ(box("TxtP_PN_UFF").SelLength(), 0);
}

TEST_P(CommissionLastDigit, TheQuotaShownIsReadAsAnAmount) {
  panel->VALORI(figures({"1000", "0", "0", "0", "0", "0"}));
  label("LblQUOTA").Caption("0,5");
  EXPECT_EQ(caption("LblPN"), "€ 0,50");
  EXPECT_EQ(panel->QUOTA(), 0);  // which is stored, and not what the label shows
}

TEST_P(CommissionLastDigit, AnAmountBaseIsReadAsMoney) {
  everybody();
  panel->CALC_PROD(2);
  box("TxtPN_UFF").Text("900000000000000,0001");  // a digit more than a double's fifteen
  panel->P_PN_PROD(percent("100"));
  EXPECT_EQ(panel->PN_PROD(), money(kLarge));
}

}  // namespace
}  // namespace qvn::test
