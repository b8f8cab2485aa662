// The public members of the commission panel: what they are, what they compare, what they announce.
#include <gtest/gtest.h>
#include <limits>

#include "tests/panels/commission_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CommissionMembers : public CommissionPanel {};
QVN_ON_EVERY_PLATFORM(CommissionMembers);

TEST_P(CommissionMembers, StandInInterfaceOrder) {
  std::string members;
  int count = 0;
  for (const Member& member : panel->members()) {
    members.append(member.name).append(" ").append(nameOf(member.kind)).append(" ").append(member.type).append("\n");
    count += member.kind == MemberKind::GetLet ? 2 : 1;
  }
  EXPECT_EQ(count, 60);
  EXPECT_EQ(members,
            "AQ_UFF get/let currency\n"
            "P_AQ_UFF get/let variant\n"
            "percAlt method \n"
            "PN_UFF get/let currency\n"
            "P_PN_UFF get/let variant\n"
            "ACC_UFF get/let currency\n"
            "P_ACC_UFF get/let variant\n"
            "AQ_PROD get/let currency\n"
            "P_AQ_PROD get/let variant\n"
            "PN_PROD get/let currency\n"
            "P_PN_PROD get/let variant\n"
            "ACC_PROD get/let currency\n"
            "P_ACC_PROD get/let variant\n"
            "AQ_PROD_ALT get/let currency\n"
            "P_AQ_PROD_ALT get/let variant\n"
            "PN_PROD_ALT get/let currency\n"
            "P_PN_PROD_ALT get/let variant\n"
            "ACC_PROD_ALT get/let currency\n"
            "P_ACC_PROD_ALT get/let variant\n"
            "setCombo method \n"
            "TOTALI method \n"
            "VALORI method \n"
            "CALC_PROD get/let 8-bit unsigned integer\n"
            "CALC_PROD_ALT get/let 8-bit unsigned integer\n"
            "QUOTA get/let 16-bit integer\n"
            "COD_COMPAGNIA get/let text\n"
            "COD_PRODUTTORE get/let text\n"
            "Attiva method \n"
            "Disattiva method \n"
            "COD_PRODUTTORE_ALT get/let text\n"
            "DELEGATARIA get/let boolean\n"
            "P_ATTIVE get/let variant\n"
            "P_PASSIVE get/let variant\n");
}

TEST_P(CommissionMembers, AnAmountIsShownAsMoneyInItsOwnBoxAndAnnounced) {
  std::int64_t euro = 100;
  for (const CommissionCell& cell : cells()) {
    SCOPED_TRACE(cell.amount);
    const auto before = shown();
    amount(cell, Currency::of(++euro));
    EXPECT_EQ(text(cell.amountBox()), "€ " + std::to_string(euro) + ",00");
    EXPECT_EQ(amount(cell), Currency::of(euro));
    ASSERT_FALSE(container().notices.empty());
    EXPECT_EQ(heard().front(), cell.amount);
    for (const auto& [name, old] : before) {
      if (name == cell.amountBox() || !name.starts_with("Txt")) continue;
      EXPECT_EQ(text(name), old) << name;
    }
  }
}

TEST_P(CommissionMembers, OnlyTheOfficesAQRunsTheSummaryWhenItsAmountIsWritten) {
  everybody();
  for (const CommissionCell& cell : cells()) {
    SCOPED_TRACE(cell.amount);
    forget();
    amount(cell, money("7"));
    if (cell.amount == "AQ_UFF") {
      EXPECT_THAT(asked(), ElementsAre(rateSql("P1"), rateSql("P2")));
      EXPECT_EQ(caption("PROVV_ATTIVE"), "€ 21,00");
      EXPECT_THAT(heard(), ElementsAre("AQ_UFF", "P_ATTIVE"));
    } else {
      EXPECT_THAT(asked(), IsEmpty());
      EXPECT_THAT(heard(), ElementsAre(cell.amount));
    }
  }
  EXPECT_EQ(caption("PROVV_PASSIVE"), "€ 0,00");
}

TEST_P(CommissionMembers, AnAmountThatIsShownAlreadyLeavesItsForm) {
  for (const CommissionCell& cell : cells()) {
    SCOPED_TRACE(cell.amount);
    amount(cell, money("0"));
    EXPECT_EQ(text(cell.amountBox()), "0,00");
    box(cell.amountBox()).Text("75,5");
    forget();
    amount(cell, money("75,50"));
    EXPECT_EQ(text(cell.amountBox()), "75,5");
    EXPECT_THAT(heard(), IsEmpty());
  }
}

TEST_P(CommissionMembers, AnAmountRoundsToTheMoneysDecimalsAwayFromZero) {
  panel->PN_UFF(money("12,345"));
  EXPECT_EQ(text("TxtPN_UFF"), "€ 12,35");
  EXPECT_EQ(panel->PN_UFF(), money("12,35"));
  panel->PN_UFF(money("-12,345"));
  EXPECT_EQ(text("TxtPN_UFF"), "-€ 12,35");
  EXPECT_EQ(panel->PN_UFF(), money("-12,35"));
  forget();
  panel->PN_UFF(money("-12,3451"));  // differs from what is shown, and shows the same
  EXPECT_THAT(heard(), IsEmpty());
  panel->PN_UFF(Currency::fromTenThousandths(std::numeric_limits<std::int64_t>::max()));
  EXPECT_EQ(text("TxtPN_UFF"), "€ 922.337.203.685.477,58");
}

TEST_P(CommissionMembers, APercentIsShownWithTwoDecimalsInItsOwnBoxAndAnnounced) {
  int whole = 10;
  for (const CommissionCell& cell : cells()) {
    SCOPED_TRACE(cell.amount);
    const auto before = shown();
    percentOf(cell, percent(std::to_string(++whole) + ",5"));
    EXPECT_EQ(text(cell.percentBox()), std::to_string(whole) + ",50");
    EXPECT_EQ(percentOf(cell), percent(std::to_string(whole) + ",5"));
    EXPECT_TRUE(std::holds_alternative<Decimal>(percentOf(cell)));
    EXPECT_EQ(heard(), Strings{cell.percent()});
    for (const auto& [name, old] : before) {
      if (name == cell.percentBox()) continue;
      EXPECT_EQ(shown()[name], old) << name;
    }
  }
}

TEST_P(CommissionMembers, APercentThatIsShownAlreadyLeavesItsForm) {
  for (const CommissionCell& cell : cells()) {
    SCOPED_TRACE(cell.amount);
    box(cell.percentBox()).Text("12,5");
    forget();
    percentOf(cell, percent("12,500"));
    percentOf(cell, 12.5);
    percentOf(cell, money("12,5"));
    EXPECT_EQ(text(cell.percentBox()), "12,5");
    EXPECT_THAT(heard(), IsEmpty());
  }
}

TEST_P(CommissionMembers, APercentTakesAnyKindOfValue) {
  const std::vector<std::pair<Variant, std::string>> values{
      {std::string("12,5"), "12,50"},
      {std::string("€ 1.012,5"), "1012,50"},
      {true, "-1,00"},
      {std::uint8_t{7}, "7,00"},
      {std::int16_t{-3}, "-3,00"},
      {std::int32_t{100}, "100,00"},
      {12.345, "12,35"},
      {money("33,3333"), "33,33"},
      {percent("0,005"), "0,01"},
      {std::string("dieci"), "dieci"},  // no number: as it is
  };
  for (const auto& [value, shownAs] : values) {
    SCOPED_TRACE(shownAs);
    panel->P_PN_UFF(value);
    EXPECT_EQ(text("TxtP_PN_UFF"), shownAs);
  }
  EXPECT_FAILURE(panel->P_PN_UFF(), FailureKind::TypeMismatch, "TxtP_PN_UFF");
  box("TxtP_PN_UFF").Text("5");
  EXPECT_FAILURE(panel->P_PN_UFF(figures({"1", "1", "1", "1", "1", "1"})), FailureKind::TypeMismatch, "TxtP_PN_UFF");
  EXPECT_EQ(text("TxtP_PN_UFF"), "5");
}

TEST_P(CommissionMembers, NullLeavesAPercentAndEmptyTakesItAway) {
  for (const CommissionCell& cell : cells()) {
    SCOPED_TRACE(cell.amount);
    percentOf(cell, Null{});
    EXPECT_EQ(text(cell.percentBox()), "0,00");
    percentOf(cell, Empty{});  // compares as the 0 that is shown
    EXPECT_EQ(text(cell.percentBox()), "0,00");
    EXPECT_THAT(heard(), IsEmpty());
    percentOf(cell, percent("5"));
    forget();
    percentOf(cell, Null{});
    EXPECT_EQ(text(cell.percentBox()), "5,00");
    EXPECT_THAT(heard(), IsEmpty());
    percentOf(cell, Empty{});
    EXPECT_EQ(text(cell.percentBox()), cell.amount == "AQ_UFF" || cell.amount == "AQ_PROD" ? "0" : "0,00");
    EXPECT_EQ(heard(), (Strings{cell.percent(), cell.percent()}));
  }
}

TEST_P(CommissionMembers, ATextThatIsNoNumberFailsInGetAndLetNamingItsBox) {
  for (const CommissionCell& cell : cells()) {
    SCOPED_TRACE(cell.amount);
    const bool atOnce = cell.amount == "AQ_UFF";  // its change works out the summary, which reads it
    if (atOnce) {
      EXPECT_FAILURE(box(cell.amountBox()).Text(","), FailureKind::TypeMismatch, "PROVV_ATTIVE: TxtAQ_UFF: ");
    } else {
      box(cell.amountBox()).Text(",");
    }
    box(cell.percentBox()).Text(",");
    EXPECT_FAILURE(amount(cell), FailureKind::TypeMismatch, cell.amountBox() + ": ");
    EXPECT_FAILURE(amount(cell, money("5")), FailureKind::TypeMismatch, cell.amountBox() + ": ");
    EXPECT_FAILURE(percentOf(cell), FailureKind::TypeMismatch, cell.percentBox() + ": ");
    EXPECT_FAILURE(percentOf(cell, percent("5")), FailureKind::TypeMismatch, cell.percentBox() + ": ");
    EXPECT_EQ(text(cell.amountBox()), ",");
    EXPECT_EQ(text(cell.percentBox()), ",");
    box(cell.percentBox()).Text("0");
    box(cell.amountBox()).Text("0");
  }
}

TEST_P(CommissionMembers, ABaseIsChosenByItsNumberAndReadBack) {
  EXPECT_EQ(panel->CALC_PROD(), 0);
  EXPECT_EQ(panel->CALC_PROD_ALT(), 0);
  panel->CALC_PROD(1);
  EXPECT_EQ(list("CmbCALCOLO_PROD").Text(), "1 - Premi Polizza");
  EXPECT_EQ(panel->CALC_PROD(), 1);
  EXPECT_EQ(panel->CALC_PROD_ALT(), 0);
  EXPECT_THAT(heard(), ElementsAre("CALCOLO_PROD"));
  panel->CALC_PROD_ALT(2);
  EXPECT_EQ(list("CmbCALCOLO_PROD_ALT").Text(), "2 - Provv. Ufficio");
  EXPECT_EQ(panel->CALC_PROD_ALT(), 2);
  EXPECT_EQ(panel->CALC_PROD(), 1);
  EXPECT_THAT(heard(), ElementsAre("CALCOLO_PROD_ALT"));
  panel->CALC_PROD(2);
  panel->CALC_PROD_ALT(1);
  EXPECT_EQ(panel->CALC_PROD(), 2);
  EXPECT_EQ(panel->CALC_PROD_ALT(), 1);
}

TEST_P(CommissionMembers, ABaseThatIsChosenAlreadyOrUnknownIsLeft) {
  panel->CALC_PROD(1);
  panel->CALC_PROD_ALT(2);
  forget();
  for (const std::uint8_t base : std::array<std::uint8_t, 3>{0, 3, 255}) {
    panel->CALC_PROD(base);
    panel->CALC_PROD_ALT(base);
  }
  panel->CALC_PROD(1);
  panel->CALC_PROD_ALT(2);
  EXPECT_EQ(panel->CALC_PROD(), 1);
  EXPECT_EQ(panel->CALC_PROD_ALT(), 2);
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(CommissionMembers, ABaseWrittenByTheHostRecomputesNothing) {
  everybody();
  premiums("1000", "100");
  panel->P_PN_PROD(percent("10"));
  panel->P_PN_PROD_ALT(percent("10"));
  forget();
  panel->CALC_PROD(1);
  panel->CALC_PROD_ALT(1);
  EXPECT_EQ(text("TxtPN_PROD"), "€ 0,00");
  EXPECT_EQ(text("TxtPN_PROD_ALT"), "€ 0,00");
  EXPECT_THAT(heard(), ElementsAre("CALCOLO_PROD", "CALCOLO_PROD_ALT"));
  EXPECT_THAT(asked(), IsEmpty());
  panel->QUOTA(500);  // the next run of the quota works on the new base
  EXPECT_EQ(text("TxtPN_PROD"), "€ 50,00");
  EXPECT_EQ(text("TxtPN_PROD_ALT"), "€ 50,00");
}

TEST_P(CommissionMembers, ABaseWithoutANumberFailsToBeRead) {
  list("CmbCALCOLO_PROD").AddItem("altro");
  list("CmbCALCOLO_PROD").ListIndex(2);
  EXPECT_FAILURE(panel->CALC_PROD(), FailureKind::TypeMismatch, "CmbCALCOLO_PROD: ");
}

TEST_P(CommissionMembers, SetComboChoosesThePremiumsForTheAlternateProducerAlone) {
  panel->setCombo();
  EXPECT_EQ(list("CmbCALCOLO_PROD_ALT").ListIndex(), 0);
  EXPECT_EQ(list("CmbCALCOLO_PROD").ListIndex(), -1);
  EXPECT_THAT(heard(), ElementsAre("CALCOLO_PROD_ALT"));
  panel->CALC_PROD_ALT(2);
  panel->setCombo();
  EXPECT_EQ(panel->CALC_PROD_ALT(), 1);
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(CommissionMembers, DelegatariaIsStoredAndTakesEffectWithTheNextQuota) {
  EXPECT_FALSE(panel->DELEGATARIA());
  panel->VALORI(figures({"1000", "10", "100", "20", "1265", "30"}));
  panel->QUOTA(1000);
  const auto before = shown();
  forget();
  panel->DELEGATARIA(true);
  EXPECT_TRUE(panel->DELEGATARIA());
  EXPECT_EQ(shown(), before);
  EXPECT_THAT(heard(), IsEmpty());
  EXPECT_THAT(asked(), IsEmpty());
  panel->TOTALI();
  EXPECT_EQ(caption("LblPN"), "€ 1.010,00");
  panel->DELEGATARIA(false);
  EXPECT_EQ(caption("LblPN"), "€ 1.010,00");
  panel->TOTALI();
  EXPECT_EQ(caption("LblPN"), "€ 1.000,00");
}

TEST_P(CommissionMembers, TheSumsAreReadAsShownAndNeverWritten) {
  panel->ACC_UFF(money("12,5"));
  panel->PN_PROD_ALT(money("-3"));
  EXPECT_EQ(panel->P_ATTIVE(), Variant(money("0")));
  panel->TOTALI();
  EXPECT_EQ(panel->P_ATTIVE(), Variant(money("12,5")));
  EXPECT_EQ(panel->P_PASSIVE(), Variant(money("-3")));
  forget();
  panel->P_ATTIVE(money("99"));
  panel->P_PASSIVE(money("99"));
  panel->P_ATTIVE(Null{});
  panel->P_PASSIVE(std::string("niente"));
  EXPECT_EQ(panel->P_ATTIVE(), Variant(money("12,5")));
  EXPECT_EQ(panel->P_PASSIVE(), Variant(money("-3")));
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(CommissionMembers, AreReachedByNameInAnyCase) {
  letByName(*panel, "pn_uff", std::string("€ 1.234,50"));
  EXPECT_EQ(getByName(*panel, "PN_UFF"), Variant(money("1234,50")));
  letByName(*panel, "P_PN_UFF", 12.5);
  EXPECT_EQ(getByName(*panel, "p_pn_uff"), percent("12,5"));
  letByName(*panel, "quota", std::int32_t{250});
  EXPECT_EQ(getByName(*panel, "QUOTA"), Variant(std::int16_t{250}));
  letByName(*panel, "Delegataria", std::int16_t{-1});
  EXPECT_EQ(getByName(*panel, "DELEGATARIA"), Variant(true));
  letByName(*panel, "cod_produttore", std::string("P1"));
  EXPECT_EQ(getByName(*panel, "COD_PRODUTTORE"), Variant(std::string("P1")));
  std::vector<Variant> args{figures({"1000", "0", "0", "0", "0", "0"})};
  callByName(*panel, "valori", args);
  EXPECT_EQ(caption("LblPN"), "€ 250,00");
  EXPECT_EQ(args[0], Variant(figures({"1000", "0", "0", "0", "0", "0"})));
  EXPECT_FAILURE(letByName(*panel, "QUOTA", std::int32_t{32768}), FailureKind::Overflow, "provv.QUOTA");
  EXPECT_FAILURE(letByName(*panel, "PN_UFF", Null{}), FailureKind::InvalidUseOfNull, "provv.PN_UFF");
  EXPECT_FAILURE(letByName(*panel, "CALC_PROD", std::int32_t{256}), FailureKind::Overflow, "provv.CALC_PROD");
  EXPECT_FAILURE(getByName(*panel, "RIT_ACCONTO"), FailureKind::NoSuchMember, "provv.RIT_ACCONTO");
  EXPECT_FAILURE(getByName(*panel, "Events"), FailureKind::NoSuchMember, "provv.Events");
}

TEST_P(CommissionMembers, TwoPanelsKeepTheirOwnValues) {
  const auto other = another("altro");
  panel->PN_UFF(money("1"));
  other->PN_UFF(money("2"));
  panel->COD_PRODUTTORE("P1");
  panel->QUOTA(10);
  EXPECT_EQ(panel->PN_UFF(), money("1"));
  EXPECT_EQ(other->PN_UFF(), money("2"));
  EXPECT_EQ(other->COD_PRODUTTORE(), "");
  EXPECT_EQ(other->QUOTA(), 0);
}

}  // namespace
}  // namespace qvn::test
