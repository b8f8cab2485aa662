// The eighteen boxes under the operator's hand, and how an amount follows its percent.
#include <gtest/gtest.h>

#include "tests/noting_platform.h"
#include "tests/panels/commission_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

constexpr std::uint32_t kCyan = 16776960;
constexpr std::uint32_t kPlain = 16777215;

class CommissionPercents : public CommissionPanel {
 public:
  void SetUp() override { everybody(); }
};
QVN_ON_EVERY_PLATFORM(CommissionPercents);

struct Based {
  std::string cell;
  std::string onPremium;
  std::string onOffice;
};

TEST_P(CommissionPercents, EachAmountHasItsBase) {
  const std::vector<Based> table{
      {"PN_UFF", "€ 500,00", "€ 500,00"},    {"ACC_UFF", "€ 50,00", "€ 50,00"},
      {"AQ_UFF", "€ 500,00", "€ 500,00"},    {"PN_PROD", "€ 500,00", "€ 1,00"},
      {"ACC_PROD", "€ 50,00", "€ 2,00"},     {"AQ_PROD", "€ 500,00", "€ 3,00"},
      {"PN_PROD_ALT", "€ 500,00", "€ 1,00"}, {"ACC_PROD_ALT", "€ 50,00", "€ 2,00"},
      {"AQ_PROD_ALT", "€ 500,00", "€ 3,00"},
  };
  premiums("1000", "100");
  for (const std::uint8_t PROD : std::array<std::uint8_t, 3>{0, 1, 2}) {
    for (const std::uint8_t PROD_ALT : std::array<std::uint8_t, 3>{0, 1, 2}) {
      SCOPED_TRACE(std::to_string(PROD) + std::to_string(PROD_ALT));
      list("CmbCALCOLO_PROD").ListIndex(PROD - 1);
      list("CmbCALCOLO_PROD_ALT").ListIndex(PROD_ALT - 1);
      for (std::size_t i = 0; i < table.size(); ++i) {
        const CommissionCell& cell = cells()[i];
        ASSERT_EQ(cell.amount, table[i].cell);
        for (const CommissionCell& each : cells()) percentOf(each, percent("0"));
        panel->PN_UFF(money("2"));
        panel->ACC_UFF(money("4"));
        panel->AQ_UFF(money("6"));
        percentOf(cell, percent("50"));
        const bool onPremium = cell.party() == "UFF" || (cell.party() == "PROD" ? PROD : PROD_ALT) == 1;
        EXPECT_EQ(text(cell.amountBox()), onPremium ? table[i].onPremium : table[i].onOffice) << cell.amount;
      }
    }
  }
}

TEST_P(CommissionPercents, OnlyABaseThatBeginsWithOneIsThePremium) {
  premiums("1000", "0");
  panel->PN_UFF(money("2"));
  for (const auto& [item, expected] : std::vector<std::pair<std::string, std::string>>{
           {"3 - Altro", "€ 1,00"}, {"Premi 1", "€ 1,00"}, {"1", "€ 500,00"}, {"12", "€ 500,00"}}) {
    list("CmbCALCOLO_PROD").AddItem(item);
    list("CmbCALCOLO_PROD").Text(item);
    panel->P_PN_PROD(percent("0"));
    panel->P_PN_PROD(percent("50"));
    EXPECT_EQ(text("TxtPN_PROD"), expected) << item;
  }
}

TEST_P(CommissionPercents, AnAmountOfADisabledPartyStays) {
  premiums("1000", "100");
  panel->setCombo();
  panel->CALC_PROD(1);
  panel->Disattiva();
  for (const CommissionCell& cell : cells()) {
    amount(cell, money("7"));
    percentOf(cell, percent("50"));
    EXPECT_EQ(text(cell.amountBox()), "€ 7,00") << cell.amount;
  }
  for (const CommissionCell& cell : cells()) {
    frame(cell.frame()).Enabled(true);
    percentOf(cell, percent("60"));
    EXPECT_NE(text(cell.amountBox()), "€ 7,00") << cell.amount;
    frame(cell.frame()).Enabled(false);
  }
}

TEST_P(CommissionPercents, APercentIsCutToFourDecimalsBeforeItIsUsed) {
  premiums("1000000", "0");
  box("TxtP_PN_UFF").Text("0,00015");  // to even: 0.0002
  EXPECT_EQ(text("TxtPN_UFF"), "€ 2,00");
  box("TxtP_PN_UFF").Text("0,00005");
  EXPECT_EQ(text("TxtPN_UFF"), "€ 0,00");
}

TEST_P(CommissionPercents, AnAmountRoundsAwayFromZeroByTheLedgersDigits) {
  premiums("600,04", "83,33");
  panel->P_PN_UFF(percent("12,5"));
  EXPECT_EQ(text("TxtPN_UFF"), "€ 75,01");  // 75.005
  panel->P_ACC_UFF(percent("15"));
  EXPECT_EQ(text("TxtACC_UFF"), "€ 12,50");  // 12.4995
  panel->P_PN_UFF(percent("-12,5"));
  EXPECT_EQ(text("TxtPN_UFF"), "-€ 75,01");
}

TEST_P(CommissionPercents, APercentMayBeAnyNumber) {
  premiums("1000", "0");
  panel->P_PN_UFF(percent("150"));
  EXPECT_EQ(text("TxtPN_UFF"), "€ 1.500,00");
  panel->P_PN_UFF(percent("0"));
  EXPECT_EQ(text("TxtPN_UFF"), "€ 0,00");
}

TEST_P(CommissionPercents, TheAmountFollowsKeyByKey) {
  premiums("600", "0");
  hands().focus(box("TxtP_PN_UFF"));
  forget();
  Strings amounts;
  for (const auto key : {"1", "2", ".", "5"}) {
    hands().type(key);
    amounts.push_back(text("TxtPN_UFF"));
  }
  EXPECT_EQ(text("TxtP_PN_UFF"), "12,5");
  EXPECT_EQ(amounts, (Strings{"€ 6,00", "€ 72,00", "€ 72,00", "€ 75,00"}));
  EXPECT_EQ(heard(), (Strings{"P_PN_UFF", "PN_UFF", "P_PN_UFF", "PN_UFF", "P_PN_UFF", "P_PN_UFF", "PN_UFF"}));
  EXPECT_THAT(asked(), IsEmpty());
  EXPECT_EQ(caption("PROVV_ATTIVE"), "€ 0,00");
}

TEST_P(CommissionPercents, TheSummaryFollowsKeyByKeyOnTheOfficesAQAlone) {
  premiums("600", "0");
  for (const CommissionCell& cell : cells()) {
    SCOPED_TRACE(cell.amount);
    panel->CALC_PROD(1);
    panel->CALC_PROD_ALT(1);
    hands().focus(box(cell.percentBox()));
    forget();
    hands().type("5");
    EXPECT_EQ(text(cell.amountBox()), cell.amount.starts_with("ACC") ? "€ 0,00" : "€ 30,00");
    EXPECT_EQ(asked().size(), cell.amount == "AQ_UFF" ? 2U : 0U);
    hands().type("{Backspace}");
    hands().leave();
  }
}

TEST_P(CommissionPercents, GainingTheFocusShowsThePlainNumberThenColoursThenSelects) {
  for (const CommissionCell& cell : cells()) {
    for (const bool isPercent : {true, false}) {
      const std::string name = isPercent ? cell.percentBox() : cell.amountBox();
      SCOPED_TRACE(name);
      toolkit::TextBox& field = box(name);
      field.Text("€ 1.234,5");
      std::string seen;
      container().onNotice = [&](toolkit::Surface&, std::string_view) {
        seen = field.Text() + (field.BackColor() == kPlain && field.SelLength() == 0 ? " before" : " behind");
      };
      hands().focus(field);
      container().onNotice = {};
      EXPECT_EQ(field.Text(), "1234,50");
      EXPECT_EQ(seen, "1234,50 before");
      EXPECT_EQ(field.BackColor(), kCyan);
      EXPECT_TRUE(wholeSelected(field));
      hands().leave();
      field.Text("0,00");
      EXPECT_THAT(container().failures, IsEmpty());
    }
  }
}

TEST_P(CommissionPercents, GainingTheFocusColoursABoxBeforeItIsSelected) {
  NotingPlatform noting(platform());
  Globale::install(noting);
  auto noted = another("annotata");
  for (const CommissionCell& cell : cells()) {
    for (const std::string& name : {cell.percentBox(), cell.amountBox()}) {
      noting.notes.clear();
      noted->surface().textBox(name).GotFocus();
      EXPECT_EQ(noting.notes, (Notes{name + ".Text 0,00", name + ".BackColor 16776960", name + ".SelStart 0",
                                     name + ".SelLength 4"}));
    }
  }
  noted.reset();
  Globale::install(platform());
}

TEST_P(CommissionPercents, LosingTheFocusShowsItsFormThenColoursThenRunsTheSummary) {
  for (const CommissionCell& cell : cells()) {
    for (const bool isPercent : {true, false}) {
      const std::string name = isPercent ? cell.percentBox() : cell.amountBox();
      SCOPED_TRACE(name);
      toolkit::TextBox& field = box(name);
      hands().focus(field);
      hands().type("0.5");
      const std::string form = isPercent ? "0,50" : "€ 0,50";
      std::uint32_t colourAtNotice = 0;
      std::vector<std::string> atStatements;
      container().onNotice = [&](toolkit::Surface&, std::string_view property) {
        if ("Txt" + std::string(property) == name) colourAtNotice = field.BackColor();
      };
      statements.onStatement = [&](std::string_view) {
        if (field.BackColor() == kPlain) atStatements.push_back(field.Text());
      };
      forget();
      hands().leave();
      container().onNotice = {};
      statements.onStatement = {};
      EXPECT_EQ(field.Text(), form);
      EXPECT_EQ(colourAtNotice, kCyan);
      EXPECT_EQ(field.BackColor(), kPlain);
      EXPECT_EQ(atStatements, (Strings{form, form}));
      field.Text("0,00");
      if (!isPercent) continue;
      box(cell.amountBox()).Text("0,00");
    }
  }
}

TEST_P(CommissionPercents, LosingTheFocusRunsTheSummaryEvenIfNothingWasTyped) {
  for (const CommissionCell& cell : cells()) {
    for (const std::string& name : {cell.percentBox(), cell.amountBox()}) {
      hands().focus(box(name));
      forget();
      hands().leave();
      Strings expected{rateSql("P1"), rateSql("P2")};
      if (name == "TxtAQ_UFF") expected.insert(expected.end(), {rateSql("P1"), rateSql("P2")});  // back to money's form
      EXPECT_EQ(asked(), expected) << name;
    }
  }
}

TEST_P(CommissionPercents, TheBoxLeftIsDoneBeforeTheBoxEnteredBegins) {
  box("TxtPN_UFF").Text("5");
  box("TxtACC_UFF").Text("6");
  hands().focus(box("TxtPN_UFF"));
  forget();
  Strings order;
  container().onNotice = [&](toolkit::Surface&, std::string_view name) { order.emplace_back(name); };
  statements.onStatement = [&](std::string_view) { order.emplace_back("?"); };
  hands().focus(box("TxtACC_UFF"));
  statements.onStatement = {};
  EXPECT_EQ(order, (Strings{"PN_UFF", "P_ATTIVE", "?", "?", "ACC_UFF"}));
}

TEST_P(CommissionPercents, EveryBoxTakesANumberOfTwoDecimalsWithoutASign) {
  for (const CommissionCell& cell : cells()) {
    for (const std::string& name : {cell.percentBox(), cell.amountBox()}) {
      SCOPED_TRACE(name);
      hands().focus(box(name));
      const auto before = beeps();
      hands().type("-1a2.,345");
      EXPECT_EQ(box(name).Text(), "12,34");
      EXPECT_EQ(beeps() - before, 4);
      hands().leave();
      box(cell.percentBox()).Text("0,00");
      box(cell.amountBox()).Text("0,00");
    }
  }
}

TEST_P(CommissionPercents, EnterGoesThroughTheBoxesAndStopsAtTheLists) {
  hands().focus(box("TxtP_PN_UFF"));
  Strings order;
  for (int i = 0; i < 7; ++i) {
    hands().type("{Enter}");
    order.push_back(focused());
  }
  EXPECT_EQ(order, (Strings{"TxtPN_UFF", "TxtP_ACC_UFF", "TxtACC_UFF", "TxtP_AQ_UFF", "TxtAQ_UFF", "CmbCALCOLO_PROD",
                            "CmbCALCOLO_PROD"}));
  hands().focus(box("TxtAQ_PROD_ALT"));
  hands().type("{Enter}");
  EXPECT_EQ(focused(), "TxtP_PN_UFF");
}

TEST_P(CommissionPercents, AnEmptiedPercentShowsItsEmptyFormSelected) {
  premiums("1000", "100");
  panel->CALC_PROD(1);
  panel->CALC_PROD_ALT(1);
  for (const CommissionCell& cell : cells()) {
    SCOPED_TRACE(cell.amount);
    toolkit::TextBox& field = box(cell.percentBox());
    hands().focus(field);
    hands().type("5");
    EXPECT_NE(amount(cell), money("0"));
    forget();
    hands().type("{Backspace}");
    const bool bare = cell.amount == "AQ_UFF" || cell.amount == "AQ_PROD";
    EXPECT_EQ(field.Text(), bare ? "0" : "0,00");
    EXPECT_TRUE(wholeSelected(field));
    EXPECT_EQ(amount(cell), money("0"));
    const Strings notices = heard();
    EXPECT_EQ(std::ranges::count(notices, cell.percent()), 2);
    EXPECT_EQ(std::ranges::count(notices, cell.amount), 1);
    hands().type("7");  // replaces it
    EXPECT_EQ(field.Text(), "7");
    hands().type("{Backspace}");
    hands().leave();
    EXPECT_EQ(field.Text(), "0,00");
  }
}

TEST_P(CommissionPercents, AnEmptiedAmountShowsTwoDecimalsSelected) {
  for (const CommissionCell& cell : cells()) {
    SCOPED_TRACE(cell.amount);
    toolkit::TextBox& field = box(cell.amountBox());
    hands().focus(field);
    hands().type("5");
    forget();
    hands().type("{Backspace}");
    EXPECT_EQ(field.Text(), "0,00");
    EXPECT_TRUE(wholeSelected(field));
    EXPECT_EQ(std::ranges::count(container().notices, cell.amount), 2);
    EXPECT_EQ(asked().size(), cell.amount == "AQ_UFF" ? 4U : 0U);  // once for the empty text, once for the zero
    hands().type("7");
    EXPECT_EQ(field.Text(), "7");
    hands().type("{Backspace}");
    hands().leave();
  }
}

TEST_P(CommissionPercents, AHandTypedAmountStaysWhileItsPercentBeginsWithZero) {
  premiums("1000", "1000");
  for (const CommissionCell& cell : cells()) {
    SCOPED_TRACE(cell.amount);
    percentOf(cell, percent("0,5"));
    hands().focus(box(cell.amountBox()));
    hands().type("7.5");
    EXPECT_EQ(text(cell.amountBox()), "7,5");
    hands().leave();
    EXPECT_EQ(text(cell.amountBox()), "€ 7,50");
    EXPECT_EQ(percentOf(cell), percent("0,5"));
  }
  EXPECT_EQ(caption("PROVV_ATTIVE"), "€ 22,50");
  EXPECT_EQ(caption("PROVV_PASSIVE"), "€ 45,00");
}

TEST_P(CommissionPercents, AHandTypedAmountIsReplacedOnLeavingUnderAnyOtherPercent) {
  premiums("1000", "1000");
  panel->CALC_PROD(1);
  panel->CALC_PROD_ALT(1);
  for (const CommissionCell& cell : cells()) {
    if (cell.amount == "AQ_UFF") continue;
    SCOPED_TRACE(cell.amount);
    percentOf(cell, percent("1,5"));
    hands().focus(box(cell.amountBox()));
    hands().type("7");
    EXPECT_EQ(text(cell.amountBox()), "7");
    hands().leave();
    EXPECT_EQ(text(cell.amountBox()), "€ 15,00");
  }
}

TEST_P(CommissionPercents, TheOfficesAQCannotBeTypedUnderAPercent) {
  premiums("1000", "0");
  panel->P_AQ_UFF(percent("3"));
  hands().focus(box("TxtAQ_UFF"));
  EXPECT_EQ(text("TxtAQ_UFF"), "€ 30,00");  // even the plain form is replaced at once
  EXPECT_EQ(box("TxtAQ_UFF").BackColor(), kCyan);
  hands().type("9");
  EXPECT_EQ(text("TxtAQ_UFF"), "€ 30,00");
  EXPECT_EQ(caption("PROVV_ATTIVE"), "€ 30,00");
  hands().leave();
  EXPECT_EQ(text("TxtAQ_UFF"), "€ 30,00");
}

TEST_P(CommissionPercents, TheOfficesAQIsSummedKeyByKeyWithoutAPercent) {
  hands().focus(box("TxtAQ_UFF"));
  forget();
  hands().type("95");
  EXPECT_EQ(text("TxtAQ_UFF"), "95");
  EXPECT_EQ(caption("PROVV_ATTIVE"), "€ 95,00");
  EXPECT_EQ(heard(), (Strings{"AQ_UFF", "P_ATTIVE", "AQ_UFF", "P_ATTIVE"}));
  EXPECT_EQ(asked().size(), 4U);
}

TEST_P(CommissionPercents, AnAmountNeverChangesAPercentNorAnotherAmount) {
  premiums("1000", "1000");
  for (const CommissionCell& cell : cells()) percentOf(cell, percent("0,5"));
  panel->TOTALI();
  for (const CommissionCell& cell : cells()) {
    const auto before = shown();
    amount(cell, money("77"));
    for (const CommissionCell& other : cells()) {
      EXPECT_EQ(text(other.percentBox()), "0,50");
      if (other.amount == cell.amount) continue;
      EXPECT_EQ(text(other.amountBox()), before.at(other.amountBox()));
    }
  }
}

TEST_P(CommissionPercents, ANewOfficeAmountReachesAProducerOnItWithTheNextQuota) {
  premiums("1000", "0");
  panel->CALC_PROD(2);
  panel->P_PN_PROD(percent("50"));
  EXPECT_EQ(text("TxtPN_PROD"), "€ 0,00");
  hands().focus(box("TxtP_PN_UFF"));
  hands().type("10");
  EXPECT_EQ(text("TxtPN_UFF"), "€ 100,00");
  EXPECT_EQ(text("TxtPN_PROD"), "€ 0,00");
  hands().leave();
  EXPECT_EQ(text("TxtPN_PROD"), "€ 50,00");
}

}  // namespace
}  // namespace qvn::test
