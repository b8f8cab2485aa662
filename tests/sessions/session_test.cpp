// Lines that no session would hold on purpose, and what a session leaves behind.
#include "hosts/play/session.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

#include "tests/fake_database.h"
#include "tests/sessions/played_session.h"

namespace qvn::play {
namespace {

using testing::HasSubstr;

TEST_F(PlayedSession, SurvivesWhatIsNoText) {
  const std::string nul("{\"do\":\0\"classes\"}", 17);
  const std::array<std::string, 7> lines{
      nul,
      std::string(1, '\0'),
      "\xFF\xFE",
      "{\"do\":\"\xC3\"}",
      "{\"do\":\"\xED\xA0\x80\"}",
      R"({"do":"\ud800"})",
      R"({"do":1e400})",
  };
  for (const std::string& line : lines) {
    const Answer answer = play(line);
    EXPECT_THAT(answer, IsBadRequest()) << answer;
  }
  EXPECT_TRUE(session_.anyBadRequest());
  EXPECT_THAT(play(R"({"do":"classes"})"), IsOk());
}

TEST_F(PlayedSession, SurvivesEndlessNesting) {
  for (const std::string& open : {std::string("["), std::string("{\"do\":")}) {
    std::string line;
    for (int i = 0; i < 100'000; ++i) line += open;
    EXPECT_THAT(play(line), IsBadRequest());
  }
  EXPECT_THAT(play(std::string(66, '[') + std::string(66, ']')),
              FailsAs("bad request", "line 3: no JSON object: nested too deeply"));
  const std::string nested = std::string(60, '[') + std::string(60, ']');
  EXPECT_THAT(play(R"({"do":"new","panel":"p","class":"ctlIVA"})"), IsOk());
  EXPECT_THAT(play(R"({"do":"let","panel":"p","name":"IVA","value":)" + nested + "}"), IsBadRequest());
}

TEST_F(PlayedSession, TakesVeryLongLinesAndAnswersThemBriefly) {
  const std::string eightMegabytes(std::size_t{8} << 20U, 'a');
  const Answer refused = play(R"({"do":")" + eightMegabytes + "\"}");
  EXPECT_THAT(refused, IsBadRequest());
  EXPECT_LT(refused["message"].get<std::string>().size(), 1000U);
  EXPECT_LT(play(eightMegabytes)["message"].get<std::string>().size(), 1000U);

  ASSERT_THAT(play(R"({"do":"new","panel":"p","class":"ctlIVA"})"), IsOk());
  EXPECT_THAT(play(R"({"do":"let","panel":"p","name":"DESCRIZIONE","value":")" + eightMegabytes + "\"}"), IsOk());
  EXPECT_EQ(play(R"({"do":"get","panel":"p","name":"DESCRIZIONE"})")["value"], eightMegabytes);
}

TEST_F(PlayedSession, CountsFailuresAndBadRequestsApart) {
  EXPECT_THAT(play(R"({"do":"classes"})"), IsOk());
  EXPECT_FALSE(session_.anyFailed());
  EXPECT_EQ(play(R"({"do":"members","class":"ctlNONE"})")["failure"], "no such member");
  EXPECT_TRUE(session_.anyFailed());
  EXPECT_FALSE(session_.anyBadRequest());
  EXPECT_THAT(play("{}"), IsBadRequest());
  EXPECT_TRUE(session_.anyBadRequest());
}

TEST_F(PlayedSession, TellsTheLineOfABadRequestCountingThoseWithoutAnAnswer) {
  EXPECT_THAT(play(R"({"do":"classes"})"), IsOk());
  session_.passOver();
  EXPECT_THAT(play(R"({"do":"dance"})"), FailsAs("bad request", R"(line 3: there is no request "dance")"));
  EXPECT_THAT(play("dance"), FailsAs("bad request", "line 4: no JSON object, from byte 1 on: dance"));
}

TEST_F(PlayedSession, KeepsFailedOpeningsAndStatementsInTheJournal) {
  driver_.failingStatement = 1;
  EXPECT_THAT(play(R"({"do":"connect","string":"fake:ufficio"})"), IsOk());
  EXPECT_EQ(play(R"({"do":"lookup","name":"CercaSIGLA","args":["7"]})")["failure"], "database");
  EXPECT_THAT(play(R"({"do":"unload"})"), IsOk());
  EXPECT_EQ(play(R"({"do":"connect","string":"fake:refused"})")["failure"], "database");
  EXPECT_EQ(play(R"({"do":"journal"})")["journal"].dump(),
            R"([{"open":"fake:ufficio","cursor_location":3},)"
            R"({"sql":"Select sigla From SOTTORAMI Where COD_SRAMO = 7","cursor":2,"lock":3,"options":-1},)"
            R"({"open":"fake:refused","cursor_location":3}])");
}

TEST_F(PlayedSession, AnswersWithTextThatIsNoUtf8AsFarAsItCan) {
  driver_.answers["Select sigla From SOTTORAMI Where COD_SRAMO = 7"] = {{"sigla"}, {{std::string("A\xE8")}}};
  ASSERT_THAT(play(R"({"do":"connect","string":"fake:ufficio"})"), IsOk());
  const Answer answer = play(R"({"do":"lookup","name":"CercaSIGLA","args":["7"]})");
  EXPECT_EQ(answer.dump(-1, ' ', false, Answer::error_handler_t::replace),
            "{\"ok\":true,\"value\":\"A\xEF\xBF\xBD\",\"args\":[\"7\"]}");
}

TEST_F(PlayedSession, ReportsWhatHandlersLetPassAndGoesOn) {
  ASSERT_THAT(play(R"({"do":"new","panel":"p","class":"ctlIVA"})"), IsOk());
  ASSERT_THAT(play(R"({"do":"call","panel":"p","name":"Attiva"})"), IsOk());
  ASSERT_THAT(play(R"({"do":"focus","panel":"p","widget":"TxtIVA"})"), IsOk());
  // No key types this text, and Change cannot read it as a number.
  EXPECT_EQ(play(R"({"do":"let","panel":"p","name":"IVA","value":7})")["ok"], true);
  auto& field = session_.panels().at("p").surface().textBox("TxtIVA");
  EXPECT_THROW(field.Text("7x"), Failure);
  const Answer answer = play(R"({"do":"type","keys":"{End}1"})");
  EXPECT_THAT(answer, IsOk());
  EXPECT_EQ(answer["beeps"], 0);
  ASSERT_EQ(answer["failures"].size(), 1U);
  const Answer& failure = answer["failures"][0];
  EXPECT_EQ(failure["panel"], "p");
  EXPECT_EQ(failure["widget"], "TxtIVA");
  EXPECT_EQ(failure["event"], "Change");
  EXPECT_EQ(failure["failure"], "type mismatch");
  EXPECT_THAT(failure["message"].get<std::string>(), testing::StartsWith("p.TxtIVA: "));
  EXPECT_THAT(failure["message"].get<std::string>(), HasSubstr("7x1"));
  EXPECT_TRUE(play(R"({"do":"type","keys":"{Home}"})")["failures"].empty());
}

TEST(SessionAfterSession, StartsWithNothingOfTheOneBefore) {
  const std::unique_ptr<Toolkit> toolkit = makeToolkit("memory");
  for (int i = 0; i < 2; ++i) {
    test::FakeDriver driver;
    const std::array<toolkit::Driver*, 1> drivers{&driver};
    Session session(*toolkit, drivers);
    EXPECT_THAT(session.answer(R"({"do":"focused"})")["panel"], testing::Eq(nullptr));
    EXPECT_THAT(session.answer(R"({"do":"new","panel":"p","class":"ctlIVA"})"), IsOk());
    EXPECT_THAT(session.answer(R"({"do":"call","panel":"p","name":"Attiva"})"), IsOk());
    EXPECT_THAT(session.answer(R"({"do":"connect","string":"fake:ufficio"})"), IsOk());
    EXPECT_EQ(driver.openings.size(), 1U);
    EXPECT_EQ(session.answer(R"({"do":"journal"})")["journal"].size(), 2U);
  }
}

TEST(ToolkitByName, IsOneOfThoseBuiltIn) {
  EXPECT_NE(makeToolkit("memory"), nullptr);
  EXPECT_EQ(makeToolkit("Memory"), nullptr);
  EXPECT_EQ(makeToolkit(""), nullptr);
  EXPECT_THAT(toolkitNames(), HasSubstr("memory"));
  std::istringstream names(toolkitNames());
  for (std::string name; std::getline(names >> std::ws, name, ',');) {
    const std::unique_ptr<Toolkit> toolkit = makeToolkit(name);
    ASSERT_NE(toolkit, nullptr) << name;
    EXPECT_EQ(toolkit->platform().name(), name);
  }
}

}  // namespace
}  // namespace qvn::play
