// Who shares in the commission: company, producer, alternate producer; and when the operator may type.
#include <functional>
#include <gtest/gtest.h>

#include "tests/noting_platform.h"
#include "tests/panels/commission_bench.h"
#include "tests/refusing_platform.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CommissionCodes : public CommissionPanel {
 public:
  /// Which of the three parties' frames are enabled.
  std::string enabled() {
    std::string names;
    for (const auto name : {"FrmUFF", "FrmPROD", "FrmPROD_ALT"}) {
      if (frame(name).Enabled()) names.append(name).append(" ");
    }
    return names;
  }
};
QVN_ON_EVERY_PLATFORM(CommissionCodes);

TEST_P(CommissionCodes, TheCompanyIsShownWithItsName) {
  panel->COD_COMPAGNIA("C1");
  EXPECT_EQ(panel->COD_COMPAGNIA(), "C1");
  EXPECT_EQ(caption("LblCOMPAGNIA"), "C1 - GENERALE");
  EXPECT_THAT(asked(), ElementsAre(companySql("C1")));
  EXPECT_EQ(enabled(), "");
  EXPECT_THAT(heard(), IsEmpty());
  panel->COD_COMPAGNIA("C9");  // is not in the table
  EXPECT_EQ(caption("LblCOMPAGNIA"), "C9 - ");
}

TEST_P(CommissionCodes, TheSameCompanyIsNotLookedUpAgain) {
  panel->COD_COMPAGNIA("");
  EXPECT_EQ(caption("LblCOMPAGNIA"), "");
  panel->COD_COMPAGNIA("C1");
  label("LblCOMPAGNIA").Caption("altro");
  forget();
  panel->COD_COMPAGNIA("C1");
  EXPECT_EQ(caption("LblCOMPAGNIA"), "altro");
  EXPECT_THAT(asked(), IsEmpty());
  panel->COD_COMPAGNIA("c1");  // another code
  EXPECT_EQ(caption("LblCOMPAGNIA"), "c1 - ");
}

TEST_P(CommissionCodes, AnEmptiedCompanyKeepsTheDash) {
  panel->COD_COMPAGNIA("C1");
  forget();
  panel->COD_COMPAGNIA("");
  EXPECT_EQ(panel->COD_COMPAGNIA(), "");
  EXPECT_EQ(caption("LblCOMPAGNIA"), " - ");
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(CommissionCodes, TheProducerIsShownWithHisNameAndTheAlternateWithHisPercentToo) {
  panel->COD_PRODUTTORE("P1");
  EXPECT_EQ(panel->COD_PRODUTTORE(), "P1");
  EXPECT_EQ(caption("LblPRODUTTORE"), "P1 - ROSSI");
  EXPECT_EQ(caption("LblPRODUTTORE_ALT"), "");
  EXPECT_EQ(panel->COD_PRODUTTORE_ALT(), "");
  EXPECT_EQ(enabled(), "FrmPROD ");
  panel->COD_PRODUTTORE_ALT("P1");
  EXPECT_EQ(panel->COD_PRODUTTORE_ALT(), "P1");
  EXPECT_EQ(caption("LblPRODUTTORE"), "P1 - ROSSI");
  EXPECT_EQ(caption("LblPRODUTTORE_ALT"), "P1 - ROSSI (40%)");
  EXPECT_EQ(enabled(), "FrmPROD FrmPROD_ALT ");
  EXPECT_THAT(asked(), ElementsAre(producerSql("P1"), producerSql("P1")));
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(CommissionCodes, TheAlternatesPercentIsShownAsItStandsInTheTable) {
  producer("Q1", "MEZZO", 12.5, std::int32_t{0});
  producer("Q2", "NULLO", Null{}, std::int32_t{0});
  panel->COD_PRODUTTORE_ALT("Q1");
  EXPECT_EQ(caption("LblPRODUTTORE_ALT"), "Q1 - MEZZO (12,5%)");
  panel->COD_PRODUTTORE_ALT("Q2");
  EXPECT_EQ(caption("LblPRODUTTORE_ALT"), "Q2 - NULLO (%)");
}

TEST_P(CommissionCodes, TheProducerIsNamedBeforeHisFrameIsSwitched) {
  NotingPlatform noting(platform());
  Globale::install(noting);
  Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
  auto noted = another("annotata");
  const auto writesOf = [&](const std::function<void()>& act) {
    noting.notes.clear();
    act();
    return noting.notes;
  };
  EXPECT_EQ(writesOf([&] { noted->COD_PRODUTTORE("P1"); }),
            (Notes{"LblPRODUTTORE.Caption P1 - ROSSI", "FrmPROD.Enabled true"}));
  EXPECT_EQ(writesOf([&] { noted->COD_PRODUTTORE(""); }), (Notes{"LblPRODUTTORE.Caption ", "FrmPROD.Enabled false"}));
  EXPECT_EQ(writesOf([&] { noted->COD_PRODUTTORE_ALT("P2"); }),
            (Notes{"LblPRODUTTORE_ALT.Caption P2 - BIANCHI (30%)", "FrmPROD_ALT.Enabled true"}));
  EXPECT_EQ(writesOf([&] { noted->COD_PRODUTTORE_ALT(""); }),
            (Notes{"LblPRODUTTORE_ALT.Caption ", "FrmPROD_ALT.Enabled false"}));
  noted.reset();
  Globale::install(platform());
}

TEST_P(CommissionCodes, AnUnknownProducerIsEntitledAllTheSame) {
  panel->COD_PRODUTTORE("P9");
  panel->COD_PRODUTTORE_ALT("P9");
  EXPECT_EQ(caption("LblPRODUTTORE"), "P9 - ");
  EXPECT_EQ(caption("LblPRODUTTORE_ALT"), "P9 - ");
  EXPECT_EQ(enabled(), "FrmPROD FrmPROD_ALT ");
}

TEST_P(CommissionCodes, TheSameProducerIsNotLookedUpAgainNorEnabled) {
  everybody();
  panel->Disattiva();
  forget();
  panel->COD_PRODUTTORE("P1");
  panel->COD_PRODUTTORE_ALT("P2");
  EXPECT_EQ(enabled(), "");
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(CommissionCodes, AnotherProducerIsEnabledAloneEvenOnAFrozenPanel) {
  everybody();
  panel->Disattiva();
  panel->COD_PRODUTTORE("P3");
  EXPECT_EQ(enabled(), "FrmPROD ");
  panel->Disattiva();
  panel->COD_PRODUTTORE_ALT("P3");
  EXPECT_EQ(enabled(), "FrmPROD_ALT ");
}

TEST_P(CommissionCodes, AnEmptiedProducerIsDisabledAndHisAmountsStay) {
  everybody();
  for (const CommissionCell& cell : cells()) amount(cell, money("10"));
  panel->COD_PRODUTTORE("");
  EXPECT_EQ(panel->COD_PRODUTTORE(), "");
  EXPECT_EQ(caption("LblPRODUTTORE"), "");
  EXPECT_EQ(caption("LblPRODUTTORE_ALT"), "P2 - BIANCHI (30%)");
  EXPECT_EQ(enabled(), "FrmUFF FrmPROD_ALT ");
  panel->COD_PRODUTTORE_ALT("");
  EXPECT_EQ(caption("LblPRODUTTORE_ALT"), "");
  EXPECT_EQ(enabled(), "FrmUFF ");
  for (const CommissionCell& cell : cells()) EXPECT_EQ(text(cell.amountBox()), "€ 10,00") << cell.amount;
  panel->TOTALI();
  EXPECT_EQ(panel->P_PASSIVE(), Variant(money("60")));
}

TEST_P(CommissionCodes, QuotesAreTakenOutOfACode) {
  panel->COD_COMPAGNIA("C'1");
  panel->COD_PRODUTTORE("'P1'");
  panel->COD_PRODUTTORE_ALT("P''2");
  EXPECT_THAT(asked(), ElementsAre(companySql("C1"), producerSql("P1"), producerSql("P2")));
  EXPECT_EQ(panel->COD_COMPAGNIA(), "C1");
  EXPECT_EQ(panel->COD_PRODUTTORE(), "P1");
  EXPECT_EQ(panel->COD_PRODUTTORE_ALT(), "P2");
  EXPECT_TRUE(caption("LblCOMPAGNIA").ends_with(" - GENERALE"));
  EXPECT_TRUE(caption("LblPRODUTTORE").ends_with(" - ROSSI"));
  EXPECT_TRUE(caption("LblPRODUTTORE_ALT").ends_with(" - BIANCHI (30%)"));
}

TEST_P(CommissionCodes, ALookupThatFailsLeavesCaptionAndFrameAndIsNotRepeated) {
  statements.failAt(1);
  EXPECT_FAILURE(panel->COD_COMPAGNIA("C1"), FailureKind::Database, companySql("C1"));
  EXPECT_EQ(panel->COD_COMPAGNIA(), "C1");
  EXPECT_EQ(caption("LblCOMPAGNIA"), "");
  statements.failAt(1);
  EXPECT_FAILURE(panel->COD_PRODUTTORE("P1"), FailureKind::Database, producerSql("P1"));
  statements.failAt(1);
  EXPECT_FAILURE(panel->COD_PRODUTTORE_ALT("P2"), FailureKind::Database, producerSql("P2"));
  EXPECT_EQ(panel->COD_PRODUTTORE(), "P1");
  EXPECT_EQ(panel->COD_PRODUTTORE_ALT(), "P2");
  EXPECT_EQ(caption("LblPRODUTTORE"), "");
  EXPECT_EQ(caption("LblPRODUTTORE_ALT"), "");
  EXPECT_EQ(enabled(), "");
  statements.failAt(0);
  panel->COD_COMPAGNIA("C1");
  panel->COD_PRODUTTORE("P1");
  panel->COD_PRODUTTORE_ALT("P2");
  EXPECT_EQ(statements.count(), 0U);
}

TEST_P(CommissionCodes, AProducerWithoutANameFails) {
  driver().answers[producerSql("Q3")] = {{"DENOMINAZIONE", "PERCALT"}, {{Null{}, std::int32_t{1}}}};
  EXPECT_FAILURE(panel->COD_PRODUTTORE("Q3"), FailureKind::InvalidUseOfNull, "Denominazione");
  EXPECT_EQ(enabled(), "");
}

TEST_P(CommissionCodes, AttivaEnablesTheOfficeAndWhoHasACode) {
  panel->Attiva();
  EXPECT_EQ(enabled(), "FrmUFF ");
  panel->Disattiva();
  panel->COD_PRODUTTORE("P1");
  panel->Disattiva();
  panel->Attiva();
  EXPECT_EQ(enabled(), "FrmUFF FrmPROD ");
  panel->COD_PRODUTTORE("");
  panel->COD_PRODUTTORE_ALT("P2");
  panel->Disattiva();
  panel->Attiva();
  EXPECT_EQ(enabled(), "FrmUFF FrmPROD_ALT ");
}

TEST_P(CommissionCodes, AttivaPutsTheFocusOnTheFirstPercentSelected) {
  panel->P_PN_UFF(percent("12,5"));
  panel->Attiva();
  panel->Attiva();
  EXPECT_EQ(focused(), "TxtP_PN_UFF");
  EXPECT_EQ(text("TxtP_PN_UFF"), "12,50");
  EXPECT_TRUE(wholeSelected(box("TxtP_PN_UFF")));
  EXPECT_EQ(box("TxtP_PN_UFF").BackColor(), 16776960U);
}

TEST_P(CommissionCodes, AttivaOnAHiddenPanelEnablesAndSelectsAllTheSame) {
  panel->COD_PRODUTTORE("P1");
  panel->COD_PRODUTTORE_ALT("P2");
  panel->Disattiva();
  surface().Visible(false);
  panel->Attiva();
  EXPECT_EQ(enabled(), "FrmUFF FrmPROD FrmPROD_ALT ");
  EXPECT_TRUE(wholeSelected(box("TxtP_PN_UFF")));
  EXPECT_EQ(focused(), "");
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(CommissionCodes, AttivaPassesOverAFailureOfTheFieldThatLosesTheFocus) {
  everybody();
  hands().focus(box("TxtPN_PROD"));
  box("TxtPN_PROD").Text(",");
  panel->Attiva();
  EXPECT_EQ(focused(), "TxtP_PN_UFF");
  EXPECT_EQ(box("TxtPN_PROD").BackColor(), 16777215U);
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(CommissionCodes, AttivaPassesOverEachStepThatFails) {
  RefusingPlatform refusing(platform());
  const std::vector<std::pair<std::string, std::string>> steps{{"FrmUFF", "FrmPROD FrmPROD_ALT "},
                                                               {"FrmPROD", "FrmUFF FrmPROD_ALT "},
                                                               {"FrmPROD_ALT", "FrmUFF FrmPROD "},
                                                               {"TxtP_PN_UFF", "FrmUFF FrmPROD FrmPROD_ALT "}};
  for (const auto& [refuses, expected] : steps) {
    SCOPED_TRACE(refuses);
    panel.reset();
    refusing.refusing = {};
    Globale::install(refusing);
    Globale::Eventi()->ImpostaDB("fake:");
    refusing.refusing = {refuses};
    panel = another("provv");
    // A refusing frame fails the codes' own lets too, once the code is stored.
    using Let = void (P::*)(std::string_view);
    for (const Let let : std::array<Let, 2>{&P::COD_PRODUTTORE, &P::COD_PRODUTTORE_ALT}) {
      try {
        (*panel.*let)("P1");
      } catch (const Failure& failure) {
        EXPECT_EQ(failure.kind(), FailureKind::InvalidCall);
      }
    }
    for (const auto name : {"FrmPROD", "FrmPROD_ALT"}) {
      if (name != refuses) frame(name).Enabled(false);
    }
    panel->Attiva();
    EXPECT_EQ(enabled(), expected);
    EXPECT_EQ(focused(), refuses == "FrmUFF" ? "" : "TxtP_PN_UFF");  // its frame stayed disabled
    EXPECT_EQ(wholeSelected(box("TxtP_PN_UFF")), refuses != "TxtP_PN_UFF");
    EXPECT_THAT(container().failures, IsEmpty());
  }
  panel.reset();
  Globale::install(platform());
}

TEST_P(CommissionCodes, DisattivaFreezesAllThreeAndClearsNothing) {
  everybody();
  for (const CommissionCell& cell : cells()) amount(cell, money("10"));
  const auto before = shown();
  panel->Disattiva();
  panel->Disattiva();
  EXPECT_EQ(enabled(), "");
  EXPECT_TRUE(frame("FrmQUOTA").Enabled());
  EXPECT_TRUE(frame("FrmRIEPILOGO").Enabled());
  EXPECT_EQ(shown(), before);
  EXPECT_FAILURE(hands().focus(box("TxtPN_UFF")), FailureKind::InvalidCall, "TxtPN_UFF");
}

TEST_P(CommissionCodes, DisattivaGoesFromTheOfficeToTheProducerToTheAlternate) {
  const std::vector<std::pair<std::string, std::string>> enabledWhenLeft{
      {"TxtPN_UFF", "FrmPROD FrmPROD_ALT "}, {"TxtPN_PROD", "FrmPROD_ALT "}, {"TxtPN_PROD_ALT", ""}};
  for (const auto& [holder, expected] : enabledWhenLeft) {
    SCOPED_TRACE(holder);
    everybody();
    hands().focus(box(holder));
    std::string seen = "not left";
    statements.onStatement = [&](std::string_view) { seen = enabled(); };
    panel->Disattiva();
    statements.onStatement = {};
    EXPECT_EQ(seen, expected);
    EXPECT_EQ(enabled(), "");
    EXPECT_EQ(focused(), "");
  }
}

TEST_P(CommissionCodes, DisattivaStopsWhereTheFieldThatIsLeftFails) {
  everybody();
  hands().focus(box("TxtPN_UFF"));
  box("TxtPN_UFF").Text(",");
  EXPECT_FAILURE(panel->Disattiva(), FailureKind::TypeMismatch, "TxtPN_UFF");
  EXPECT_EQ(enabled(), "FrmPROD FrmPROD_ALT ");
}

TEST_P(CommissionCodes, EnterCannotReachAPartyThatIsDisabled) {
  panel->Attiva();
  hands().focus(box("TxtAQ_UFF"));
  hands().type("{Enter}");
  EXPECT_EQ(focused(), "TxtAQ_UFF");
  ASSERT_EQ(container().failures.size(), 1U);
  EXPECT_EQ(container().failures[0].widget, "TxtAQ_UFF");
  EXPECT_EQ(container().failures[0].event, "KeyPress");
  EXPECT_EQ(container().failures[0].kind, FailureKind::InvalidCall);
  EXPECT_NE(container().failures[0].message.find("CmbCALCOLO_PROD"), std::string::npos);
}

}  // namespace
}  // namespace qvn::test
