// Fields in which "?" opens a pick list, on a panel of two keys.
#include "qvn/lookups/field_with_list.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/text_field.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "tests/lookups/list_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::array<toolkit::WidgetLayout, 2> kKeys{{
    {.name = "TxtCOD_COMP", .tabIndex = 0, .place = {100, 100, 600, 315}},
    {.name = "TxtCONTO", .tabIndex = 1, .place = {800, 100, 600, 315}},
}};
constexpr toolkit::PanelLayout kPanel{.name = "Keys", .width = 1500, .height = 500, .widgets = kKeys};

constexpr std::string_view kFromAB = "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where COD_COMP  Like 'AB%'";

class FieldWithList : public ListBench {
 public:
  FieldWithList() {
    toolkit::TextBox& company = box();
    company.Change = [&company] { fields::announce(company, "COD_COMP"); };
    company.KeyPress = [&company](std::int16_t& KeyAscii) {
      lookups::keyOrList(company, KeyAscii, QVN_Ricerche::ListaCOMPAGNIE, Gest_SCHEDE::FiltroTesto, 5);
    };
  }

  toolkit::Surface& panel() { return *panel_; }
  void drop() { panel_.reset(); }
  toolkit::TextBox& box() { return panel_->textBox("TxtCOD_COMP"); }
  toolkit::TextBox& second() { return panel_->textBox("TxtCONTO"); }

  void answerAB() {
    answer(kFromAB, {"DESC_COMPAGNIA", "COD_COMP"}, {{text("Alfa"), text("AB1")}, {text("Beta"), text("AB2")}});
  }
  void fill(std::string_view text) {
    hands().focus(box());
    box().Text(text);
    container().notices.clear();
    log().entries.clear();
  }

 private:
  std::unique_ptr<toolkit::Surface> panel_ = platform().makeSurface(kPanel, container(), "keys");
};
QVN_ON_EVERY_PLATFORM(FieldWithList);

TEST_P(FieldWithList, TakesTheCodeThatIsChosenAndSelectsIt) {
  answerAB();
  fill("AB");
  atLista({Act::row(1), Act::click("CmdOK")});
  hands().type("?");
  EXPECT_EQ(box().Text(), "AB2");
  EXPECT_EQ(box().SelStart(), 0);
  EXPECT_EQ(box().SelLength(), 3);
  EXPECT_THAT(container().notices, ElementsAre("COD_COMP"));
  EXPECT_EQ(driver().ran.back().sql, kFromAB);
  EXPECT_EQ(beeps(), 0);
  EXPECT_TRUE(box().hasFocus());
  EXPECT_THAT(log().take(), ElementsAre("load Ricerca", "sql", "load Lista", "unload Ricerca", "modal Lista",
                                        "hide Lista", "unload Lista"));
  hands().type("x");  // typed over the selection
  EXPECT_EQ(box().Text(), "X");
}

TEST_P(FieldWithList, SelectsTheCodeThatStandsThereAlreadyAndWritesNothing) {
  answer("Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where COD_COMP  Like 'AB1%'", {"DESC_COMPAGNIA", "COD_COMP"},
         {{text("Alfa"), text("AB1")}});
  fill("AB1");
  hands().caret(1, 1);
  atLista({Act::click("CmdOK")});
  hands().type("?");
  EXPECT_EQ(hands().shown().size(), 1U);
  EXPECT_EQ(box().Text(), "AB1");
  EXPECT_EQ(box().SelStart(), 0);
  EXPECT_EQ(box().SelLength(), 3);
  EXPECT_THAT(container().notices, IsEmpty());
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(FieldWithList, KeepsItsTextQuotesAndSelectionWhereNothingIsChosen) {
  answerAB();
  for (const auto& acts : std::vector<std::vector<Act>>{{Act::click("CmdAbort")}, {Act::close()}}) {
    fill("A'B");
    hands().caret(1, 1);
    atLista(acts);
    hands().type("?");
    EXPECT_EQ(box().Text(), "A'B");
    EXPECT_EQ(box().SelStart(), 1);
    EXPECT_EQ(box().SelLength(), 1);
    EXPECT_THAT(container().notices, IsEmpty());
  }
  EXPECT_EQ(hands().shown().size(), 2U);
}

TEST_P(FieldWithList, KeepsItsTextWhereNoRowIsFound) {
  fill("ZZ");
  hands().type("?");
  EXPECT_EQ(box().Text(), "ZZ");
  EXPECT_THAT(container().notices, IsEmpty());
  EXPECT_THAT(container().failures, IsEmpty());
  EXPECT_EQ(beeps(), 0);
}

TEST_P(FieldWithList, GivesEveryOtherKeyToItsFilter) {
  fill("");
  hands().type("!ab'cdef");
  EXPECT_EQ(box().Text(), "!AB'C");
  EXPECT_EQ(beeps(), 3);
  EXPECT_THAT(driver().ran, IsEmpty());
  hands().type("?");  // full, and yet a list is asked for
  EXPECT_EQ(driver().ran.back().sql, "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where DESC_COMPAGNIA Like 'ABC%'");
}

TEST_P(FieldWithList, HandsAFailureOfTheListToThePanelsContainer) {
  fill("AB");
  driver().failingStatement = 1;
  hands().type("?");
  ASSERT_EQ(container().failures.size(), 1U);
  EXPECT_EQ(container().failures[0].panel, "keys");
  EXPECT_EQ(container().failures[0].widget, "TxtCOD_COMP");
  EXPECT_EQ(container().failures[0].event, "KeyPress");
  EXPECT_EQ(container().failures[0].kind, FailureKind::Database);
  EXPECT_EQ(box().Text(), "AB");
}

TEST_P(FieldWithList, WritesNothingOnAPanelThatIsDroppedMeanwhile) {
  answerAB();
  fill("AB");
  log().at("modal Lista", [&] { drop(); });
  atLista({Act::click("CmdOK")});
  hands().type("?");
  EXPECT_THAT(container().notices, IsEmpty());
  EXPECT_THAT(container().failures, IsEmpty());
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(FieldWithList, OutlivesAPanelThatIsDroppedWhereTheHostItselfPressesTheKey) {
  answerAB();
  fill("AB");
  log().at("modal Lista", [&] { drop(); });
  atLista({Act::click("CmdOK")});
  std::int16_t key = '?';
  lookups::keyOrList(box(), key, QVN_Ricerche::ListaCOMPAGNIE, Gest_SCHEDE::FiltroTesto, 5);
  EXPECT_EQ(key, 0);
  EXPECT_THAT(container().notices, IsEmpty());
}

TEST_P(FieldWithList, KeepsTheTextOfAFieldWhosePanelIsDroppedMeanwhile) {
  answerAB();
  fill("AB");
  const toolkit::Surface::Hold hold(panel());
  toolkit::TextBox& field = box();
  log().at("modal Lista", [&] { drop(); });
  atLista({Act::click("CmdOK")});
  const std::string chosen = lookups::picked(field, QVN_Ricerche::ListaCOMPAGNIE);
  EXPECT_EQ(chosen, "AB1");
  EXPECT_FALSE(lookups::writePicked(field, chosen));
  EXPECT_EQ(field.Text(), "AB");
}

TEST_P(FieldWithList, IsDroppedByTheNoticeOfItsNewTextWithoutHarm) {
  answerAB();
  fill("AB");
  container().onNotice = [&](toolkit::Surface&, std::string_view) { drop(); };
  atLista({Act::click("CmdOK")});
  hands().type("?");
  EXPECT_THAT(container().notices, ElementsAre("COD_COMP"));
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(FieldWithList, CancelsNoKeyButTheQuestionMark) {
  std::int16_t key = '?';
  EXPECT_TRUE(lookups::asksForList(key));
  EXPECT_EQ(key, 0);
  for (const int other : {0, 13, 62, 64, 8, 27}) {
    key = static_cast<std::int16_t>(other);
    EXPECT_FALSE(lookups::asksForList(key));
    EXPECT_EQ(key, other);
  }
}

TEST_P(FieldWithList, JoinsTheKeysOfAnAccountAndSplitsTheAnswer) {
  const auto statementFor = [&](std::string_view mastro, std::string_view conto) {
    box().Text(mastro);
    second().Text(conto);
    driver().ran.clear();
    const lookups::Account account = lookups::pickedAccount(box(), second());
    EXPECT_EQ(account.mastro + account.conto, "");
    EXPECT_EQ(box().Text(), mastro);
    return driver().ran.empty() ? "" : driver().ran.back().sql;
  };
  EXPECT_EQ(statementFor("", ""), "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '%'");
  EXPECT_EQ(statementFor("10", ""), "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '10'");
  EXPECT_EQ(statementFor("", "00"),
            "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '%' AND CONTO LIKE '00%'");
  EXPECT_EQ(statementFor("1'0", "0"),
            "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '10' AND CONTO LIKE '0%'");

  const auto chosen = [&](std::string_view mastro, std::string_view conto) {
    box().Text("");
    second().Text("");
    answer("Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '%'", {"DESCRIZIONE", "MASTRO", "CONTO"},
           {{text("Cassa"), text(mastro), text(conto)}});
    atLista({Act::key("{Enter}")});
    const lookups::Account account = lookups::pickedAccount(box(), second());
    return account.mastro + "|" + account.conto;
  };
  EXPECT_EQ(chosen("10", "001"), "10|001");
  EXPECT_EQ(chosen("", "001"), "|001");
  EXPECT_EQ(chosen("10", " "), "10|");
  EXPECT_EQ(chosen("10", "0?1"), "10|0?1");
}

TEST_P(FieldWithList, WritesWhatIsChosenUnlessItIsEmpty) {
  box().Text("AB");
  EXPECT_FALSE(lookups::writePicked(box(), ""));
  EXPECT_EQ(box().Text(), "AB");
  EXPECT_TRUE(lookups::writePicked(box(), "CD"));
  EXPECT_EQ(box().Text(), "CD");
}

}  // namespace
}  // namespace qvn::test
