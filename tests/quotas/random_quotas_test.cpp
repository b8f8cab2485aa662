// Both panels of a quota go through random steps in step with their model. QVN_SEED and QVN_STEPS, both numbers, take
// them through others.
#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <variant>

#include "qvn/panels/classes.h"
#include "qvn/shared/Globale.h"
#include "tests/commissions/shrink.h"
#include "tests/platforms.h"
#include "tests/quotas/quota_model.h"

namespace qvn::test {
namespace {

constexpr std::size_t kSessionLength = 40;

/// Writes down what happens, in order.
class Heard final : public toolkit::Container, public Watcher {
 public:
  std::vector<std::string> events;

  void PropertyChanged(toolkit::Surface& /*panel*/, std::string_view name) override { add("notice ", name); }
  void handlerFailed(toolkit::Surface& /*panel*/, toolkit::Widget& /*widget*/, std::string_view /*event*/,
                     const Failure& failure) noexcept override {
    add("failed ", nameOf(failure.kind()));
  }
  void lostFocus(const toolkit::Widget& /*widget*/) override {}
  void gotFocus(const toolkit::Widget& /*widget*/) override {}
  void beeped() override { add("beep", ""); }

 private:
  void add(std::string_view what, std::string_view name) { events.push_back(std::string(what).append(name)); }
};

/// The real panel under the steps.
class QuotaOnBench {
 public:
  explicit QuotaOnBench(const PlatformMaker& maker) : under_(maker.make()) {
    Globale::install(under_->platform());
    under_->watch(&heard_);
  }
  ~QuotaOnBench() {
    panel_.reset();
    under_->watch(nullptr);
    Globale::uninstall();
  }
  QuotaOnBench(const QuotaOnBench&) = delete;
  QuotaOnBench& operator=(const QuotaOnBench&) = delete;

  void begin(bool ofPolicy) {
    panel_.reset();
    panel_ = panelClass(ofPolicy ? "ctlQ_POLIZZE" : "ctlQ_SINISTRI").make(PanelSite{heard_, "p"});
    ofPolicy_ = ofPolicy;
  }

  void play(const QuotaStep& step) {
    heard_.events.clear();
    failure_.clear();
    value_.clear();
    try {
      carryOut(step);
    } catch (const Failure& failure) {
      failure_ = nameOf(failure.kind());
    }
  }

  QuotaSeen seen() {
    toolkit::Surface& surface = panel_->surface();
    const toolkit::TextBox& field = surface.textBox("TxtQUOTA");
    QuotaSeen seen{.text = field.Text(),
                   .selStart = static_cast<std::size_t>(field.SelStart()),
                   .selLength = static_cast<std::size_t>(field.SelLength()),
                   .focused = field.hasFocus(),
                   .lead = surface.checkBox("ChkDELEGATARIA").Value() != 0,
                   .failure = failure_,
                   .value = value_,
                   .events = heard_.events};
    const auto show = [&](std::string_view label) { seen.captions.push_back(surface.label(label).Caption()); };
    if (ofPolicy_) {
      for (const auto label : {"TAF(0)", "TAF(1)", "TAF(2)", "TRF(0)", "TRF(1)", "TRF(2)"}) show(label);
    } else {
      for (const auto label : {"STIMATO", "LIQUIDATO"}) show(label);
    }
    return seen;
  }

 private:
  void carryOut(const QuotaStep& step) {
    using Do = QuotaStep::Do;
    toolkit::Surface& surface = panel_->surface();
    toolkit::TextBox& field = surface.textBox("TxtQUOTA");
    Operator& hands = under_->hands();
    switch (step.what) {
      case Do::Focus:
        return hands.focus(field);
      case Do::Leave:
        return hands.leave();
      case Do::Caret:
        hands.focus(field);
        return hands.caret(step.number, step.length);
      case Do::Type:
        hands.focus(field);
        return hands.type(step.text);
      case Do::Paste:
        hands.focus(field);
        return hands.paste(step.text);
      case Do::Tick:
        return hands.click(surface.checkBox("ChkDELEGATARIA"));
      case Do::Write:
        return field.Text(step.text);
      case Do::LetQuota:
        return letByName(*panel_, "QUOTA", step.number);
      case Do::GetQuota:
        value_ = std::to_string(std::get<std::int16_t>(getByName(*panel_, "QUOTA")));
        return;
      case Do::LetLead:
        return letByName(*panel_, "DELEGATARIA", step.number != 0);
      case Do::Figures:
        return call("Imposta_VALORI", array(step));
      case Do::Apply:
        return call("Calcola_QUOTA", step.number);
      case Do::ApplyOfLead:
        return call("Calcola_QUOTA_DELEGATARIA", step.number);
      case Do::Attiva:
        callByName(*panel_, "Attiva", {});
        return;
      case Do::Disattiva:
        callByName(*panel_, "Disattiva", {});
        return;
      case Do::Show:
        return surface.Visible(step.number != 0);
    }
  }
  void call(std::string_view method, Variant argument) { callByName(*panel_, method, std::span(&argument, 1)); }
  static CurrencyArray array(const QuotaStep& step) {
    CurrencyArray array{.extents = step.extents, .values = {}};
    array.values.reserve(step.figures.size());
    for (const std::int64_t figure : step.figures) array.values.push_back(Currency::fromTenThousandths(figure));
    return array;
  }

  std::unique_ptr<PlatformUnderTest> under_;
  Heard heard_;
  std::unique_ptr<Panel> panel_;
  bool ofPolicy_ = true;
  std::string failure_;
  std::string value_;
};

using QuotaSession = std::vector<QuotaStep>;

struct QuotaCount {
  std::size_t steps = 0;
  std::size_t undecided = 0;
  std::size_t failures = 0;
};

class QuotaTrial {
 public:
  QuotaTrial(QuotaOnBench& bench, const QuotaRules& rules, bool ofPolicy)
      : bench_(bench), rules_(rules), ofPolicy_(ofPolicy) {}

  QuotaCount count;

  /// What panel and model part in, empty where they do not. Steps that the rules do not decide are left out.
  std::string difference(const QuotaSession& session) {
    QuotaModel model(rules_, ofPolicy_);
    bench_.begin(ofPolicy_);
    for (const QuotaStep& step : session) {
      QuotaModel after = model;
      try {
        after.play(step);
      } catch (const Undecided&) {
        ++count.undecided;
        continue;
      }
      model = after;
      bench_.play(step);
      ++count.steps;
      const QuotaSeen wanted = model.seen();
      const QuotaSeen found = bench_.seen();
      count.failures += found.failure.empty() ? 0 : 1;
      if (found != wanted) {
        return toldInWords(step) + "\npanel: " + toldInWords(found) + "model: " + toldInWords(wanted);
      }
    }
    return {};
  }

  /// Random sessions until so many steps are done or panel and model part; then the shortest one that shows it.
  std::optional<QuotaSession> random(std::uint64_t seed, std::size_t steps) {
    QuotaSteps maker(seed, ofPolicy_);
    while (count.steps < steps) {
      QuotaSession session(kSessionLength);
      for (QuotaStep& step : session) step = maker.next();
      if (!difference(session).empty()) {
        return shrunk(session, [&](const QuotaSession& some) { return !difference(some).empty(); });
      }
    }
    return std::nullopt;
  }

 private:
  QuotaOnBench& bench_;
  const QuotaRules& rules_;
  bool ofPolicy_;
};

std::string told(QuotaTrial& trial, const QuotaSession& session) {
  std::string all;
  for (const QuotaStep& step : session) all.append(toldInWords(step)).append("\n");
  return all.append("part at ").append(trial.difference(session));
}

std::uint64_t fromEnvironment(const char* name, std::uint64_t otherwise) {
  const char* text = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): nothing sets it
  return text == nullptr ? otherwise : std::stoull(text);
}

class RandomQuotas : public testing::TestWithParam<PlatformMaker> {
 public:
  QuotaOnBench bench{GetParam()};
};
QVN_ON_EVERY_PLATFORM(RandomQuotas);

TEST_P(RandomQuotas, StayInStepWithTheModel) {
  const std::uint64_t seed = fromEnvironment("QVN_SEED", 20'261'115);
  const std::size_t steps = fromEnvironment("QVN_STEPS", 20'000);
  const QuotaRules rules;
  for (const bool ofPolicy : {true, false}) {
    SCOPED_TRACE(ofPolicy ? "policy" : "claim");
    QuotaTrial trial(bench, rules, ofPolicy);
    const auto parted = trial.random(seed, steps);
    ASSERT_FALSE(parted) << told(trial, *parted);
    RecordProperty(ofPolicy ? "policy_undecided" : "claim_undecided", std::to_string(trial.count.undecided));
    // Most of what is tried is decided, and the sessions go where panels fail.
    EXPECT_LT(trial.count.undecided * 20, trial.count.steps);
    EXPECT_GT(trial.count.failures * 50, trial.count.steps);
  }
}

/// A model with one rule wrong, and the panels that tell.
struct WrongQuotaRules {
  std::string_view name;
  QuotaRules rules;
  bool ofPolicyAlone = false;
};

std::vector<WrongQuotaRules> wrongModels() {
  return {
      {"the whole is too much", {.most = 999}},
      {"a disabled field is applied", {.disabledIsApplied = true}},
      {"a tick is applied", {.tickIsApplied = true}},
      {"the second family is not the lead coinsurer's", {.leadAddsToBothFamilies = false}, true},
      {"the lead coinsurer's share is added unrounded", {.leadIsRoundedFirst = false}, true},
      {"a correction is announced once", {.correctionIsAnnouncedTwice = false}},
      {"a correction is not selected", {.correctionIsSelected = false}},
      {"an empty field stays empty", {.figuresFillTheField = false}},
      {"the field's quota is applied", {.argumentIsApplied = false}},
      {"a short array changes nothing", {.shortArrayKeepsItsHead = false}},
      {"an empty field reads nothing", {.emptyReadsZero = false}},
      {"ties away from zero", {.leadTies = Ties::AwayFromZero}, true},
  };
}

TEST_P(RandomQuotas, EachWrongRuleIsFoundAndToldInFewSteps) {
  constexpr std::size_t kFewSteps = 5;
  const QuotaRules right;
  for (const WrongQuotaRules& one : wrongModels()) {
    for (const bool ofPolicy : {true, false}) {
      if (one.ofPolicyAlone && !ofPolicy) continue;
      SCOPED_TRACE(std::string(one.name).append(ofPolicy ? ", policy" : ", claim"));
      QuotaTrial trial(bench, one.rules, ofPolicy);
      const auto parted = trial.random(7, 60'000);
      ASSERT_TRUE(parted);
      EXPECT_LE(parted->size(), kFewSteps) << told(trial, *parted);
      QuotaTrial honest(bench, right, ofPolicy);
      EXPECT_EQ(honest.difference(*parted), "");
    }
  }
}

}  // namespace
}  // namespace qvn::test
