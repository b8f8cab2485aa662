// Requests whose effect no panel of the library shows yet in each case: clicks, choices, results, the clock.
#include <algorithm>
#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "hosts/play/arguments.h"
#include "tests/fake_database.h"
#include "tests/sessions/every_kind.h"
#include "tests/sessions/played_session.h"

namespace qvn::play {
namespace {

class Requests : public PlayedSession {
 protected:
  Requests() : panel_(session_.panels().make("t", EveryKind::panelClass()).surface()) {}

  toolkit::Surface& panel_;
};

TEST_F(Requests, ChooseByItemAndByIndex) {
  toolkit::ComboBox& list = panel_.comboBox("Combo1");
  EXPECT_THAT(play(R"({"do":"choose","panel":"t","widget":"Combo1","item":"AVERE"})"), IsOk());
  EXPECT_EQ(list.Text(), "AVERE");
  EXPECT_TRUE(list.hasFocus());
  EXPECT_THAT(play(R"({"do":"choose","panel":"t","widget":"Combo1","index":0})"), IsOk());
  EXPECT_EQ(list.Text(), "DARE");
  EXPECT_THAT(play(R"({"do":"choose","panel":"t","widget":"Combo1","item":"SALDO"})"),
              FailsAs("invalid call", R"(t.Combo1 has no item "SALDO")"));
  EXPECT_THAT(play(R"({"do":"choose","panel":"t","widget":"Combo1","index":2})"),
              FailsAs("invalid call", "t.Combo1 has no item at 2"));
  EXPECT_THAT(play(R"({"do":"choose","panel":"t","widget":"Combo1"})"),
              FailsAs("bad request", R"(line 5: choose t.Combo1: the field "index" is missing)"));
  EXPECT_THAT(play(R"({"do":"choose","panel":"t","widget":"Combo1","item":"AVERE","index":1})"),
              FailsAs("bad request", R"(line 6: choose t.Combo1: it has an "item" and an "index")"));
  EXPECT_EQ(list.Text(), "DARE");
}

TEST_F(Requests, ClickCheckBoxesAndButtons) {
  toolkit::CheckBox& box = panel_.checkBox("Check2");
  EXPECT_THAT(play(R"({"do":"click","panel":"t","widget":"Check2"})"), IsOk());
  EXPECT_EQ(box.Value(), 1);
  EXPECT_THAT(play(R"({"do":"click","panel":"t","widget":"Check2"})"), IsOk());
  EXPECT_EQ(box.Value(), 0);
  EXPECT_THAT(play(R"({"do":"click","panel":"t","widget":"Button1"})"), IsOk());
  EXPECT_EQ(panel_.textBox("Text1").Text(), "premuto");
  EXPECT_TRUE(panel_.button("Button1").hasFocus());
}

TEST_F(Requests, ShowShowsUnlessItIsToldToHide) {
  EXPECT_THAT(play(R"({"do":"show","panel":"t","visible":false})"), IsOk());
  EXPECT_FALSE(panel_.Visible());
  EXPECT_THAT(play(R"({"do":"show","panel":"t"})"), IsOk());
  EXPECT_TRUE(panel_.Visible());
}

TEST_F(Requests, ShowTellsThePanelThatFailsAsItIsHidden) {
  panel_.textBox("Text1").SetFocus();
  panel_.textBox("Text1").LostFocus = [] { throw Failure(FailureKind::Overflow, "Text1: on leaving"); };
  EXPECT_THAT(play(R"({"do":"show","panel":"t","visible":false})"), FailsAs("overflow", "t: Text1: on leaving"));
  EXPECT_FALSE(panel_.Visible());
}

TEST_F(Requests, CallAddsAValueWhereThereIsOne) {
  EXPECT_EQ(play(R"({"do":"call","panel":"t","name":"somma","args":[2,"3"]})").dump(),
            R"({"ok":true,"value":5,"args":[2,"3"]})");
  EXPECT_EQ(play(R"({"do":"call","panel":"t","name":"Raddoppia","args":["ab"]})").dump(),
            R"({"ok":true,"args":["abab"]})");
  EXPECT_EQ(play(R"({"do":"call","panel":"t","name":"Totale","args":[["2,50"]]})").dump(),
            R"({"ok":true,"value":{"currency":"2.5000"},"args":[[{"currency":"2.5000"}]]})");
}

TEST_F(Requests, NameWhatDoesNotConvertAndWhere) {
  EXPECT_THAT(play(R"({"do":"let","panel":"t","name":"Quote","value":[1,"tre"]})"),
              FailsAs("type mismatch", R"(t.Quote: [1]: the text "tre" is no number)"));
  EXPECT_THAT(play(R"({"do":"call","panel":"t","name":"Totale","args":[[[1],["tre"]]]})"),
              FailsAs("type mismatch", R"(t.Totale: argument 1: [1][0]: the text "tre" is no number)"));
  EXPECT_THAT(play(R"({"do":"lookup","name":"CercaIVA","args":["1",["tre"],0]})"),
              FailsAs("type mismatch", R"(CercaIVA: argument 2: [0]: the text "tre" is no number)"));
  EXPECT_THAT(play(R"({"do":"call","panel":"t","name":"Somma","args":[1,"tre"]})"),
              FailsAs("type mismatch", R"(t.Somma: argument 2: the text "tre" is no number)"));
  EXPECT_THAT(play(R"({"do":"call","panel":"t","name":"Somma","args":[1,{}]})"),
              FailsAs("bad request", "line 5: call t.Somma: argument 2: no value of the protocol: {}"));
}

TEST_F(Requests, ShowArgumentsThatDoNotConvertAsTheyWereGiven) {
  EXPECT_EQ(play(R"({"do":"call","panel":"t","name":"Totale","args":[[1,"tre"]]})")["args"].dump(), R"([[1,"tre"]])");
  EXPECT_EQ(play(R"({"do":"lookup","name":"CercaIVA","args":[{"currency":"1.5"},["tre"],{"none":1}]})")["args"].dump(),
            R"([{"currency":"1.5000"},["tre"],{"none":1}])");
  EXPECT_FALSE(play(R"({"do":"lookup","name":"CercaIVA","args":[{"none":1},["tre"],0]})").contains("args"));
}

TEST_F(Requests, SurviveWhatIsThrownAndIsNoFailure) {
  EXPECT_THAT(play(R"({"do":"get","panel":"t","name":"Rotto"})"), FailsAs("invalid call", "get t.Rotto: unforeseen"));
  const Answer clicked = play(R"({"do":"click","panel":"t","widget":"Check1"})");
  EXPECT_THAT(clicked, FailsAs("invalid call", "click t.Check1: std::bad_alloc"));
  EXPECT_EQ(clicked["beeps"], 0);
  EXPECT_FALSE(session_.anyBadRequest());
  EXPECT_THAT(play(R"({"do":"get","panel":"t","name":"Quote"})"), IsOk());
}

TEST_F(Requests, TodaySetsTheClock) {
  const toolkit::Clock& clock = toolkit_->platform().clock();
  EXPECT_THAT(play(R"({"do":"today","date":"2026-11-15"})"), IsOk());
  EXPECT_EQ(clock.today(), *Date::of(15, 11, 2026));
  EXPECT_THAT(play(R"({"do":"today","date":"2024-02-29"})"), IsOk());
  EXPECT_EQ(clock.today(), *Date::of(29, 2, 2024));
}

TEST(CommandLine, SetsTheClock) {
  std::array<std::string, 4> words{"--strict", "--today", "2026-11-15", "a.session"};
  std::array<char*, 4> pointers{};
  std::ranges::transform(words, pointers.begin(), [](std::string& word) { return word.data(); });
  const Arguments arguments = argumentsOf(pointers);
  EXPECT_EQ(arguments.file, "a.session");
  EXPECT_TRUE(arguments.strict);
  const std::unique_ptr<Toolkit> toolkit = makeToolkit(arguments.toolkit, arguments.today);
  EXPECT_EQ(toolkit->platform().clock().today(), *Date::of(15, 11, 2026));
}

}  // namespace
}  // namespace qvn::play
