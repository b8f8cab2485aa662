// The commission panel goes through random sessions in step with its model. QVN_SEED and QVN_STEPS, both numbers, take
// it through others.
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

#include "tests/commissions/trial.h"
#include "tests/on_platform.h"

namespace qvn::test {
namespace {

constexpr std::size_t kSessionLength = 60;

class RandomSessions : public testing::TestWithParam<PlatformMaker> {
 public:
  PanelOnBench bench{GetParam()};
};
QVN_ON_EVERY_PLATFORM(RandomSessions);

std::uint64_t fromEnvironment(const char* name, std::uint64_t otherwise) {
  const char* text = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): nothing sets it
  return text == nullptr ? otherwise : std::stoull(text);
}

/// Tells a difference with the requests that show it.
testing::AssertionResult inStep(Trial& trial, const std::optional<Difference>& difference) {
  if (!difference) return testing::AssertionSuccess();
  const Difference shortest = trial.shortened(*difference);
  return testing::AssertionFailure() << "panel and model part after\n" << requestsOf(shortest.session) << shortest.what;
}

TEST_P(RandomSessions, StayInStepWithTheModel) {
  const std::uint64_t seed = fromEnvironment("QVN_SEED", 20'261'115);
  const std::size_t steps = fromEnvironment("QVN_STEPS", 120'000);
  const Rules rules;
  Trial trial(bench, rules);
  ASSERT_TRUE(inStep(trial, trial.random(seed, steps, kSessionLength)));
  const TrialCount& count = trial.count();
  RecordProperty("steps", std::to_string(count.steps));
  RecordProperty("undecided", std::to_string(count.undecided));
  RecordProperty("failures", std::to_string(count.failures));
  RecordProperty("statements", std::to_string(count.statements));
  // Most of what is tried is decided, and the sessions go where panels fail and ask.
  EXPECT_LT(count.undecided * 50, count.steps);
  EXPECT_GT(count.failures * 100, count.steps);
  EXPECT_GT(count.statements * 5, count.steps);
}

/// A model with one rule wrong.
struct WrongRules {
  std::string name;
  Rules rules;
};

template <class Spoil>
WrongRules wrong(std::string name, Spoil spoil) {
  WrongRules result{.name = std::move(name), .rules = {}};
  spoil(result.rules);
  return result;
}

std::vector<WrongRules> wrongModels() {
  return {
      wrong("the bare zero of AQ percents evened out", [](Rules& r) { r.emptyPercent[kOffice][kAQ] = "0,00"; }),
      wrong("another empty form of the alternate AQ", [](Rules& r) { r.emptyPercent[kAlternate][kAQ] = "0"; }),
      wrong("a change of PN_UFF runs the totals", [](Rules& r) { r.amountRunsTotals[kOffice][kPN] = true; }),
      wrong("a change of AQ_UFF runs none", [](Rules& r) { r.amountRunsTotals[kOffice][kAQ] = false; }),
      wrong("a change of AQ_PROD runs the totals", [](Rules& r) { r.amountRunsTotals[kProducer][kAQ] = true; }),
      wrong("AQ on the premium of ACC", [](Rules& r) { r.premium[kAQ] = kLblACC; }),
      wrong("the producer's list runs the totals twice", [](Rules& r) { r.listRunsTotalsItself[kProducer] = true; }),
      wrong("the alternate's list runs them once", [](Rules& r) { r.listRunsTotalsItself[kAlternate] = false; }),
      wrong("the producer's caption has a percent", [](Rules& r) { r.captionHasPercent[kProducer] = true; }),
      wrong("a list announces its public name", [](Rules& r) { r.listNotice[kProducer] = "CALC_PROD"; }),
      wrong("the quota rule reads 0,50 as a number", [](Rules& r) { r.quotaReadsLeadingNumber = false; }),
      wrong("half a cent to the even one", [](Rules& r) { r.amountTies = Ties::ToEven; }),
      wrong("one rate for both producers", [](Rules& r) { r.summaryReadsBothRates = false; }),
  };
}

TEST_P(RandomSessions, EachWrongRuleIsFoundAndToldInFewSteps) {
  constexpr std::size_t kFewSteps = 6;
  for (const WrongRules& one : wrongModels()) {
    SCOPED_TRACE(one.name);
    Trial trial(bench, one.rules);
    const auto found = trial.random(7, 20'000, kSessionLength);
    ASSERT_TRUE(found);
    const Difference shortest = trial.shortened(*found);
    EXPECT_LE(shortest.session.steps.size(), kFewSteps) << requestsOf(shortest.session);
    EXPECT_NE(shortest.what, "");
    // Nothing is left in it that it does without.
    for (std::size_t i = 0; i < shortest.session.steps.size(); ++i) {
      Session less = shortest.session;
      less.steps.erase(less.steps.begin() + static_cast<std::ptrdiff_t>(i));
      EXPECT_FALSE(trial.play(less)) << requestsOf(shortest.session);
    }
    // And the true model has no quarrel with it.
    const Rules rules;
    Trial honest(bench, rules);
    EXPECT_FALSE(honest.play(shortest.session));
  }
}

TEST_P(RandomSessions, TheSameSeedGivesTheSameSession) {
  StepMaker one(11);
  StepMaker same(11);
  StepMaker other(12);
  std::string first;
  std::string second;
  std::string third;
  for (int i = 0; i < 200; ++i) {
    first.append(requestOf(one.step())).append("\n");
    second.append(requestOf(same.step())).append("\n");
    third.append(requestOf(other.step())).append("\n");
  }
  EXPECT_EQ(first, second);
  EXPECT_NE(first, third);
}

TEST(PrintedSession, IsWhatTheSessionPlayerTakes) {
  using Do = Step::Do;
  using Kind = Given::Kind;
  const Session session{
      .connected = true,
      .visible = false,
      .steps = {
          {.what = Do::Show, .number = 1},
          {.what = Do::Let, .name = "AQ_UFF", .given = {{.kind = Kind::Currency, .text = "12.5"}}},
          {.what = Do::Let, .name = "P_AQ_UFF", .given = {{.kind = Kind::Decimal, .text = "7.25"}}},
          {.what = Do::Let, .name = "P_PN_UFF", .given = {{.kind = Kind::Null}}},
          {.what = Do::Let, .name = "P_PN_UFF", .given = {{.kind = Kind::Empty}}},
          {.what = Do::Let, .name = "DELEGATARIA", .given = {{.kind = Kind::Boolean, .text = "true"}}},
          {.what = Do::Let, .name = "COD_PRODUTTORE", .given = {{.kind = Kind::Text, .text = "a\"b\\c"}}},
          {.what = Do::Call, .name = "VALORI", .given = {{.kind = Kind::Array, .figures = {{"1", "2"}, {"3", "4"}}}}},
          {.what = Do::Call, .name = "VALORI", .given = {{.kind = Kind::Array, .figures = {{"1", "2"}}, .flat = true}}},
          {.what = Do::Call, .name = "Attiva"},
          {.what = Do::Get, .name = "QUOTA"},
          {.what = Do::Focus, .name = "TxtPN_UFF"},
          {.what = Do::Type, .text = "1{Backspace}è"},
          {.what = Do::Caret, .number = 1, .length = 2},
          {.what = Do::Paste, .text = "€ 1,00"},
          {.what = Do::Choose, .name = "CmbCALCOLO_PROD", .number = 1},
          {.what = Do::Leave},
          {.what = Do::Answer},
          {.what = Do::Answer, .text = "null"},
          {.what = Do::Disconnect},
      }};
  const std::string lines = requestsOf(session);
  EXPECT_EQ(lines.substr(lines.find('{')), R"({"do":"connect","string":"sqlite:provvigioni.db"}
{"do":"new","panel":"p","class":"ctlPROV_POLIZZE","visible":false}
{"do":"show","panel":"p","visible":true}
{"do":"let","panel":"p","name":"AQ_UFF","value":{"currency":"12.5"}}
{"do":"let","panel":"p","name":"P_AQ_UFF","value":{"decimal":"7.25"}}
{"do":"let","panel":"p","name":"P_PN_UFF","value":null}
{"do":"let","panel":"p","name":"P_PN_UFF","value":{"empty":true}}
{"do":"let","panel":"p","name":"DELEGATARIA","value":true}
{"do":"let","panel":"p","name":"COD_PRODUTTORE","value":"a\"b\\c"}
{"do":"call","panel":"p","name":"VALORI","args":[[[{"currency":"1"},{"currency":"2"}],[{"currency":"3"},{"currency":"4"}]]]}
{"do":"call","panel":"p","name":"VALORI","args":[[{"currency":"1"},{"currency":"2"}]]}
{"do":"call","panel":"p","name":"Attiva"}
{"do":"get","panel":"p","name":"QUOTA"}
{"do":"focus","panel":"p","widget":"TxtPN_UFF"}
{"do":"type","keys":"1{Backspace}è"}
{"do":"caret","start":1,"length":2}
{"do":"paste","text":"€ 1,00"}
{"do":"choose","panel":"p","widget":"CmbCALCOLO_PROD","index":1}
{"do":"leave"}
{"do":"answer","string":"sqlite:provvigioni.db"}
{"do":"answer","string":null}
{"do":"disconnect"}
)");
}

}  // namespace
}  // namespace qvn::test
