// What a quota is worth: the figures that the host hands over, and the shares in them.
#include <gtest/gtest.h>
#include <limits>

#include "tests/noting_platform.h"
#include "tests/quotas/quota_bench.h"

namespace qvn::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class QuotaFigures : public QuotaBench {
 public:
  /// A policy's panel with nine figures that all differ, frozen, and a quota of 100.
  ctlQ_POLIZZE& policy() {
    auto& made = make<ctlQ_POLIZZE>();
    made.QUOTA(100);
    made.Imposta_VALORI(ofPolicy({"1000", "1", "2000", "3000", "2", "4000", "5000", "3", "6000"}));
    forget();
    return made;
  }
  Strings columns() { return columnsOf(surface()); }
  Strings claim() { return {caption("STIMATO"), caption("LIQUIDATO")}; }
};
QVN_ON_EVERY_PLATFORM(QuotaFigures);

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();

TEST_P(QuotaFigures, TheWorkedExampleOfAPolicy) {
  auto& made = make<ctlQ_POLIZZE>();
  made.Imposta_VALORI(ofPolicy({"1000", "50", "800", "0", "0", "0", "0", "0", "0"}));
  made.Calcola_QUOTA(250);
  EXPECT_EQ(caption("TAF(0)"), "€ 250,00");
  EXPECT_EQ(caption("TRF(0)"), "€ 200,00");
  made.Calcola_QUOTA_DELEGATARIA(250);
  EXPECT_EQ(caption("TAF(0)"), "€ 300,00");
  EXPECT_EQ(caption("TRF(0)"), "€ 250,00");
}

TEST_P(QuotaFigures, TheWorkedExampleOfAClaim) {
  auto& made = make<ctlQ_SINISTRI>();
  made.Imposta_VALORI(ofClaim({"10000", "4000", "0"}));
  made.Calcola_QUOTA(333);
  EXPECT_THAT(claim(), ElementsAre("€ 3.330,00", "€ 1.332,00"));
}

TEST_P(QuotaFigures, EachFigureOfAPolicyHasItsLabel) {
  auto& made = policy();
  EXPECT_THAT(columns(), ElementsAre("€ 100,00", "€ 300,00", "€ 500,00", "€ 200,00", "€ 400,00", "€ 600,00"));
  made.Calcola_QUOTA_DELEGATARIA(100);
  EXPECT_THAT(columns(), ElementsAre("€ 101,00", "€ 302,00", "€ 503,00", "€ 201,00", "€ 402,00", "€ 603,00"));
  made.Calcola_QUOTA(10);
  EXPECT_THAT(columns(), ElementsAre("€ 10,00", "€ 30,00", "€ 50,00", "€ 20,00", "€ 40,00", "€ 60,00"));
  EXPECT_THAT(heard(), IsEmpty());
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(QuotaFigures, TheLabelsAreWrittenFromTheTopColumnByColumn) {
  NotingPlatform noting(platform());
  Globale::install(noting);
  const auto written = [&](std::string_view className, std::string_view method) {
    make(className);
    quota(100);
    noting.notes.clear();
    std::vector<Variant> args{std::int16_t{10}};
    callByName(*panel, method, args);
    panel.reset();
    Strings labels;
    labels.reserve(noting.notes.size());
    for (const std::string& note : noting.notes) labels.push_back(note.substr(0, note.find('.')));
    return labels;
  };
  const Strings columns{"TAF(0)", "TAF(1)", "TAF(2)", "TRF(0)", "TRF(1)", "TRF(2)"};
  EXPECT_EQ(written("ctlQ_POLIZZE", "Calcola_QUOTA"), columns);
  EXPECT_EQ(written("ctlQ_POLIZZE", "Calcola_QUOTA_DELEGATARIA"), columns);
  EXPECT_EQ(written("ctlQ_SINISTRI", "Calcola_QUOTA"), (Strings{"STIMATO", "LIQUIDATO"}));
  Globale::install(platform());
}

TEST_P(QuotaFigures, TheArgumentIsAppliedAndTheFieldLeftAlone) {
  auto& made = policy();
  const std::int16_t thousandths = 500;
  made.Calcola_QUOTA(thousandths);
  EXPECT_EQ(caption("TAF(0)"), "€ 500,00");
  EXPECT_EQ(made.QUOTA(), 100);
  made.Calcola_QUOTA_DELEGATARIA(thousandths);
  EXPECT_EQ(caption("TAF(0)"), "€ 501,00");
  EXPECT_EQ(made.QUOTA(), 100);
  EXPECT_EQ(thousandths, 500);
  auto& claims = make<ctlQ_SINISTRI>();
  claims.QUOTA(100);
  claims.Imposta_VALORI(ofClaim({"10", "20", "30"}));
  claims.Calcola_QUOTA(thousandths);
  EXPECT_THAT(claim(), ElementsAre("€ 5,00", "€ 10,00"));
  EXPECT_EQ(claims.QUOTA(), 100);
}

TEST_P(QuotaFigures, NeitherRuleLooksAtTheCheckBox) {
  auto& made = policy();
  made.DELEGATARIA(true);
  made.Calcola_QUOTA(100);
  EXPECT_EQ(caption("TAF(0)"), "€ 100,00");
  made.DELEGATARIA(false);
  made.Calcola_QUOTA_DELEGATARIA(100);
  EXPECT_EQ(caption("TAF(0)"), "€ 101,00");
}

TEST_P(QuotaFigures, TheQuotasRuleLooksAtTheCheckBox) {
  auto& made = policy();
  made.Attiva();
  hands().click(lead());
  EXPECT_EQ(caption("TAF(0)"), "€ 100,00");  // until the quota changes
  made.QUOTA(200);
  EXPECT_THAT(columns(), ElementsAre("€ 201,00", "€ 602,00", "€ 1.003,00", "€ 401,00", "€ 802,00", "€ 1.203,00"));
  hands().click(lead());
  EXPECT_EQ(caption("TAF(0)"), "€ 201,00");
  hands().focus(box("TxtQUOTA"));
  hands().type("300");
  EXPECT_THAT(columns(), ElementsAre("€ 300,00", "€ 900,00", "€ 1.500,00", "€ 600,00", "€ 1.200,00", "€ 1.800,00"));
}

TEST_P(QuotaFigures, NewFiguresAreAppliedByTheCheckBoxThoughThePanelIsFrozen) {
  auto& made = policy();
  made.DELEGATARIA(true);
  made.Imposta_VALORI(ofPolicy({"10", "5", "20", "0", "0", "0", "0", "0", "0"}));
  EXPECT_THAT(columns(), ElementsAre("€ 6,00", "€ 0,00", "€ 0,00", "€ 7,00", "€ 0,00", "€ 0,00"));
  made.DELEGATARIA(false);
  made.Imposta_VALORI(ofPolicy({"10", "5", "20", "0", "0", "0", "0", "0", "0"}));
  EXPECT_EQ(caption("TAF(0)"), "€ 1,00");
}

TEST_P(QuotaFigures, AQuotaOfZeroShowsNothingOrWhatGoesToTheLeadCoinsurer) {
  auto& made = policy();
  made.Calcola_QUOTA(0);
  EXPECT_THAT(columns(), Each("€ 0,00"));
  made.Calcola_QUOTA_DELEGATARIA(0);
  EXPECT_THAT(columns(), ElementsAre("€ 1,00", "€ 2,00", "€ 3,00", "€ 1,00", "€ 2,00", "€ 3,00"));
}

TEST_P(QuotaFigures, WithoutFiguresEveryQuotaIsWorthZero) {
  withBoth([&](std::string_view className) {
    make(className);
    call("Attiva");
    hands().type("250");
    EXPECT_THAT(shares(), Each("€ 0,00"));
  });
  auto& made = make<ctlQ_POLIZZE>();
  made.Calcola_QUOTA_DELEGATARIA(1000);
  EXPECT_THAT(columns(), Each("€ 0,00"));
}

TEST_P(QuotaFigures, AClaimsThirdFigureAndItsCheckBoxShowNowhere) {
  auto& made = make<ctlQ_SINISTRI>();
  made.Attiva();
  made.QUOTA(1000);
  for (const auto third : {"0", "999"}) {
    for (const bool lead : {false, true}) {
      made.DELEGATARIA(lead);
      made.Imposta_VALORI(ofClaim({"10", "20", third}));
      EXPECT_THAT(claim(), ElementsAre("€ 10,00", "€ 20,00"));
      made.QUOTA(500);
      EXPECT_THAT(claim(), ElementsAre("€ 5,00", "€ 10,00"));
      made.QUOTA(1000);
    }
  }
}

TEST_P(QuotaFigures, FiguresOnANewPanelFillTheQuotaWithAZero) {
  withBoth([&](std::string_view className) {
    make(className);
    figures();
    EXPECT_EQ(text("TxtQUOTA"), "0");
    EXPECT_EQ(box("TxtQUOTA").SelLength(), 0);
    EXPECT_THAT(shares(), Each("€ 0,00"));
    EXPECT_THAT(heard(), ElementsAre("QUOTA"));
    figures();
    EXPECT_THAT(heard(), IsEmpty());
  });
}

TEST_P(QuotaFigures, AnEmptyFieldIsFilledBeforeTheArgumentIsApplied) {
  const auto filledBy = [&](std::string_view className, const std::string& method) {
    make(className);
    call("Attiva");
    Strings seen;
    container().onNotice = [&](toolkit::Surface&, std::string_view name) {
      seen.push_back(std::string(name).append(" ").append(shares().front()));
    };
    std::vector<Variant> args{std::int16_t{500}};
    callByName(*panel, method, args);
    container().onNotice = {};
    EXPECT_EQ(text("TxtQUOTA"), "0");
    EXPECT_THAT(seen, ElementsAre("QUOTA € 0,00"));  // its change is applied, as the field is enabled
    EXPECT_THAT(shares(), Each("€ 0,00"));
  };
  filledBy("ctlQ_POLIZZE", "Calcola_QUOTA");
  filledBy("ctlQ_POLIZZE", "Calcola_QUOTA_DELEGATARIA");
  filledBy("ctlQ_SINISTRI", "Calcola_QUOTA");
}

TEST_P(QuotaFigures, TheArgumentIsReadAgainAfterTheAnnouncementOfTheZero) {
  std::int16_t thousandths = 0;
  const auto changeInside = [&](const std::function<void()>& figures) {
    thousandths = 500;
    container().onNotice = [&, figures](toolkit::Surface&, std::string_view) {
      figures();
      thousandths = 250;
    };
  };
  auto& claims = make<ctlQ_SINISTRI>();
  changeInside([&] { claims.Imposta_VALORI(ofClaim({"100", "200", "0"})); });
  claims.Calcola_QUOTA(thousandths);
  EXPECT_THAT(claim(), ElementsAre("€ 25,00", "€ 50,00"));
  for (const bool lead : {false, true}) {
    container().onNotice = {};
    auto& policies = make<ctlQ_POLIZZE>();
    changeInside([&] { policies.Imposta_VALORI(ofPolicy({"100", "1", "200", "0", "0", "0", "0", "0", "0"})); });
    if (lead) {
      policies.Calcola_QUOTA_DELEGATARIA(thousandths);
    } else {
      policies.Calcola_QUOTA(thousandths);
    }
    EXPECT_EQ(caption("TAF(0)"), lead ? "€ 26,00" : "€ 25,00");
    EXPECT_EQ(caption("TRF(0)"), lead ? "€ 51,00" : "€ 50,00");
  }
  container().onNotice = {};
}

TEST_P(QuotaFigures, SharesShowTheirCentsAwayFromZero) {
  auto& made = make<ctlQ_POLIZZE>();
  made.Imposta_VALORI(ofPolicy({"0,01", "0", "-0,01", "33,33", "0", "0", "600,04", "0", "0"}));
  made.Calcola_QUOTA(500);
  EXPECT_EQ(caption("TAF(0)"), "€ 0,01");
  EXPECT_EQ(caption("TRF(0)"), "-€ 0,01");
  made.Calcola_QUOTA(499);
  EXPECT_EQ(caption("TAF(0)"), "€ 0,00");
  EXPECT_EQ(caption("TRF(0)"), "€ 0,00");
  made.Calcola_QUOTA(333);
  EXPECT_EQ(caption("TAF(1)"), "€ 11,10");
  made.Calcola_QUOTA(125);
  EXPECT_EQ(caption("TAF(2)"), "€ 75,01");  // 75,005
}

TEST_P(QuotaFigures, TheLeadCoinsurersShareIsRoundedToMoneyBeforeTheRestIsAdded) {
  auto& made = make<ctlQ_POLIZZE>();
  made.Imposta_VALORI(ofPolicy({"0,015", "0", "0,015", "0,05", "0,0049", "0,15", "0", "0", "0"}));
  made.Calcola_QUOTA(333);
  EXPECT_EQ(caption("TAF(0)"), "€ 0,00");  // 0,004995
  made.Calcola_QUOTA_DELEGATARIA(333);
  EXPECT_EQ(caption("TAF(0)"), "€ 0,01");  // 0,0050
  EXPECT_EQ(caption("TRF(0)"), "€ 0,01");
  made.Calcola_QUOTA_DELEGATARIA(1);
  EXPECT_EQ(caption("TAF(1)"), "€ 0,00");  // 0,00005 to the even 0,0000
  EXPECT_EQ(caption("TRF(1)"), "€ 0,01");  // 0,00015 to the even 0,0002
}

TEST_P(QuotaFigures, FiguresAreTakenAsTheyAre) {
  auto& made = make<ctlQ_POLIZZE>();
  made.QUOTA(1000);
  made.DELEGATARIA(true);
  made.Imposta_VALORI(ofPolicy({"0,0049", "0,0001", "0,0048", "0", "0", "0", "0", "0", "0"}));
  EXPECT_EQ(caption("TAF(0)"), "€ 0,01");
  EXPECT_EQ(caption("TRF(0)"), "€ 0,00");
}

TEST_P(QuotaFigures, ASumForTheLeadCoinsurerIsExact) {
  auto& made = make<ctlQ_POLIZZE>();
  CurrencyArray figures{.extents = {3, 3}, .values = std::vector<Currency>(9)};
  figures.values[1] = Currency::fromTenThousandths(kMost - 70'000);
  figures.values[0] = money("7");
  made.Imposta_VALORI(figures);
  made.Calcola_QUOTA_DELEGATARIA(1000);
  EXPECT_EQ(caption("TAF(0)"), "€ 922.337.203.685.477,58");
  EXPECT_EQ(caption("TRF(0)"), "€ 922.337.203.685.470,58");
}

TEST_P(QuotaFigures, TheLeadCoinsurersAmountBeyondMoneyFailsAtItsLabel) {
  auto& made = policy();
  CurrencyArray figures = ofPolicy({"1000", "1", "2000", "3000", "0", "4000", "5000", "3", "6000"});
  figures.values[4] = Currency::fromTenThousandths(kMost);
  made.Imposta_VALORI(figures);
  EXPECT_FAILURE(made.Calcola_QUOTA_DELEGATARIA(1000), FailureKind::Overflow, "TAF(1): ");
  EXPECT_THAT(columns(), ElementsAre("€ 1.001,00", "€ 300,00", "€ 500,00", "€ 200,00", "€ 400,00", "€ 600,00"));
  figures.values[4] = Currency();
  figures.values[5] = Currency::fromTenThousandths(kMost);
  made.Imposta_VALORI(figures);
  EXPECT_FAILURE(made.Calcola_QUOTA_DELEGATARIA(2000), FailureKind::Overflow, "TRF(1): ");
  EXPECT_THAT(columns(), ElementsAre("€ 2.001,00", "€ 6.000,00", "€ 10.003,00", "€ 4.001,00", "€ 92.233.720.368.547,80",
                                     "€ 600,00"));
}

TEST_P(QuotaFigures, AShareOfMoreThanTheWholeIsShownHoweverLarge) {
  auto& made = make<ctlQ_SINISTRI>();
  made.Imposta_VALORI(ofClaim({"900000000000000", "-900000000000000", "0"}));
  made.Calcola_QUOTA(32767);
  EXPECT_THAT(claim(), ElementsAre("€ 29.490.300.000.000.000,00", "-€ 29.490.300.000.000.000,00"));
  made.Calcola_QUOTA(-32768);
  EXPECT_THAT(claim(), ElementsAre("-€ 29.491.200.000.000.000,00", "€ 29.491.200.000.000.000,00"));
  auto& other = make<ctlQ_POLIZZE>();
  other.Imposta_VALORI(ofPolicy({"900000000000000", "0", "0", "0", "0", "0", "0", "0", "0"}));
  other.Calcola_QUOTA(2000);
  EXPECT_EQ(caption("TAF(0)"), "€ 1.800.000.000.000.000,00");
}

TEST_P(QuotaFigures, AnArrayTooShortFailsAtTheFirstMissingElementAndKeepsThoseBeforeIt) {
  struct Short {
    std::vector<std::size_t> extents;
    Strings figures;
    Strings columns;
  };
  for (const Short& one : std::vector<Short>{
           {{3, 1}, {"9000", "9000", "9000"}, {"900", "300", "500", "200", "400", "600"}},
           {{3, 2}, {"9000", "9", "9000", "9", "9000", "9"}, {"900", "300", "500", "200", "400", "600"}},
           {{1, 3}, {"9000", "9", "8000"}, {"900", "300", "500", "800", "400", "600"}},
           {{2, 3}, {"9000", "9", "8000", "7000", "9", "6000"}, {"900", "700", "500", "800", "600", "600"}},
           {{9}, Strings(9, "9000"), {"100", "300", "500", "200", "400", "600"}},
           {{0, 3}, {}, {"100", "300", "500", "200", "400", "600"}},
       }) {
    SCOPED_TRACE(testing::PrintToString(one.extents));
    auto& made = policy();
    EXPECT_FAILURE(made.Imposta_VALORI(amounts(one.extents, one.figures)), FailureKind::SubscriptOutOfRange, "Valore");
    EXPECT_THAT(columns(), ElementsAre("€ 100,00", "€ 300,00", "€ 500,00", "€ 200,00", "€ 400,00", "€ 600,00"));
    made.Calcola_QUOTA(100);
    Strings wanted;
    for (const std::string& whole : one.columns) wanted.push_back(std::string("€ ").append(whole).append(",00"));
    EXPECT_EQ(columns(), wanted);
  }
}

TEST_P(QuotaFigures, OfARowCutShortTheLeadCoinsurersFigureIsKept) {
  auto& made = policy();
  EXPECT_FAILURE(made.Imposta_VALORI(amounts({3, 2}, {"9000", "9", "0", "0", "0", "0"})),
                 FailureKind::SubscriptOutOfRange, "Valore");
  made.Calcola_QUOTA_DELEGATARIA(100);
  EXPECT_THAT(columns(), ElementsAre("€ 909,00", "€ 302,00", "€ 503,00", "€ 209,00", "€ 402,00", "€ 603,00"));
}

TEST_P(QuotaFigures, ALargerArrayIsReadByItsFirstRowsAndColumns) {
  auto& made = make<ctlQ_POLIZZE>();
  made.QUOTA(1000);
  made.Imposta_VALORI(
      amounts({4, 4}, {"1", "0", "2", "99", "3", "0", "4", "99", "5", "0", "6", "99", "99", "99", "99", "99"}));
  EXPECT_THAT(columns(), ElementsAre("€ 1,00", "€ 3,00", "€ 5,00", "€ 2,00", "€ 4,00", "€ 6,00"));
}

TEST_P(QuotaFigures, AClaimsArrayHasOneDimensionAndThreeElements) {
  auto& made = make<ctlQ_SINISTRI>();
  made.QUOTA(100);
  const auto start = [&] { made.Imposta_VALORI(ofClaim({"10", "20", "0"})); };
  start();
  EXPECT_FAILURE(made.Imposta_VALORI(amounts({2}, {"70", "80"})), FailureKind::SubscriptOutOfRange, "Valore");
  EXPECT_THAT(claim(), ElementsAre("€ 1,00", "€ 2,00"));
  made.Calcola_QUOTA(100);
  EXPECT_THAT(claim(), ElementsAre("€ 7,00", "€ 8,00"));
  start();
  EXPECT_FAILURE(made.Imposta_VALORI(amounts({1}, {"70"})), FailureKind::SubscriptOutOfRange, "Valore");
  made.Calcola_QUOTA(100);
  EXPECT_THAT(claim(), ElementsAre("€ 7,00", "€ 2,00"));
  start();
  EXPECT_FAILURE(made.Imposta_VALORI(amounts({3, 3}, Strings(9, "70"))), FailureKind::SubscriptOutOfRange, "Valore");
  EXPECT_FAILURE(made.Imposta_VALORI(CurrencyArray{}), FailureKind::SubscriptOutOfRange, "Valore");
  made.Calcola_QUOTA(100);
  EXPECT_THAT(claim(), ElementsAre("€ 1,00", "€ 2,00"));
  made.Imposta_VALORI(amounts({4}, {"30", "40", "0", "0"}));
  EXPECT_THAT(claim(), ElementsAre("€ 3,00", "€ 4,00"));
}

TEST_P(QuotaFigures, TheirAmountsAreInTheFormOfTheLocale) {
  Locale locale;
  locale.decimalSign = '.';
  locale.groupingSign = ',';
  setLocale(locale);
  auto& made = make<ctlQ_SINISTRI>();
  made.Imposta_VALORI(CurrencyArray{.extents = {3}, .values = {Currency::of(1'234'567), Currency::of(1), {}}});
  made.Calcola_QUOTA(1000);
  EXPECT_THAT(claim(), ElementsAre("€ 1,234,567.00", "€ 1.00"));
}

}  // namespace
}  // namespace qvn::test
