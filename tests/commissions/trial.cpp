#include "tests/commissions/trial.h"

#include <algorithm>
#include <utility>

#include "tests/commissions/shrink.h"

namespace qvn::test {

namespace {

/// The model after the step; nothing where the rules do not decide it.
std::optional<CommissionsModel> modelAfter(const CommissionsModel& before, const Step& step) {
  std::optional<CommissionsModel> model(before);
  try {
    model->play(step);
  } catch (const Undecided&) {
    model.reset();
  }
  return model;
}

std::string joined(const std::vector<std::string>& keys) {
  std::string text;
  for (const std::string& key : keys) text.append(key);
  return text;
}

std::size_t sizeOf(const Session& session) {
  std::size_t size = session.steps.size();
  for (const Step& step : session.steps) size += step.text.size();
  return size;
}

bool anyFailure(const Seen& seen) {
  return !seen.failure.empty() ||
         std::ranges::any_of(seen.events, [](const std::string& event) { return event.starts_with("failed "); });
}

}  // namespace

std::optional<std::string> Trial::compare(const CommissionsModel& model) {
  const Seen wanted = model.seen();
  const Seen found = bench_.seen();
  count_.failures += anyFailure(found) ? 1 : 0;
  count_.statements += static_cast<std::size_t>(
      std::ranges::count_if(found.events, [](const std::string& event) { return event.starts_with("sql "); }));
  if (found == wanted) return std::nullopt;
  return differences(found, wanted);
}

std::optional<Difference> Trial::play(const Session& session) {
  Session done{.connected = session.connected, .visible = session.visible};
  CommissionsModel model(rules_, session.connected, session.visible);
  bench_.begin(session);
  if (auto what = compare(model)) return Difference{.session = std::move(done), .what = std::move(*what)};
  for (const Step& step : session.steps) {
    std::optional<CommissionsModel> after = modelAfter(model, step);
    if (!after) {
      ++count_.undecided;
      continue;
    }
    model = std::move(*after);
    bench_.play(step);
    ++count_.steps;
    done.steps.push_back(step);
    if (auto what = compare(model)) return Difference{.session = std::move(done), .what = std::move(*what)};
  }
  return std::nullopt;
}

std::optional<Difference> Trial::random(std::uint64_t seed, std::size_t steps, std::size_t length) {
  StepMaker maker(seed);
  const std::size_t end = count_.steps + steps;
  while (count_.steps < end) {
    Session session = maker.session();
    while (session.steps.size() < length) session.steps.push_back(maker.step());
    if (auto difference = play(session)) return difference;
  }
  return std::nullopt;
}

Difference Trial::shortened(const Difference& difference) {
  Session session = difference.session;
  const auto with = [&](std::vector<Step> steps) {
    return Session{.connected = session.connected, .visible = session.visible, .steps = std::move(steps)};
  };
  // Steps that lack keys may make others needless.
  for (bool shorter = true; shorter;) {
    const std::size_t before = sizeOf(session);
    session.steps = shrunk(session.steps, [&](const std::vector<Step>& steps) { return differs(with(steps)); });
    for (std::size_t i = 0; i < session.steps.size(); ++i) {
      if (session.steps[i].what != Step::Do::Type) continue;
      std::vector<Step> steps = session.steps;
      const auto differsWith = [&](const std::vector<std::string>& keys) {
        steps[i].text = joined(keys);
        return differs(with(steps));
      };
      session.steps[i].text = joined(shrunk(keysOf(session.steps[i].text), differsWith));
    }
    shorter = sizeOf(session) < before;
  }
  return play(session).value();
}

}  // namespace qvn::test
