// The panel against its model: sessions at random, and what of a failing one is needed for it to fail.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tests/commissions/model.h"
#include "tests/commissions/panel_on_bench.h"
#include "tests/commissions/steps.h"

namespace qvn::test {

/// Where panel and model part: after the last step of the session.
struct Difference {
  Session session;
  std::string what;
};

/// What was gone through.
struct TrialCount {
  std::size_t steps = 0;      ///< done and compared
  std::size_t undecided = 0;  ///< left out, as the rules do not tell what comes of them
  std::size_t failures = 0;   ///< steps that failed, or had a handler fail
  std::size_t statements = 0;
};

class Trial {
 public:
  Trial(PanelOnBench& bench, const Rules& rules) : bench_(bench), rules_(rules) {}

  /// Plays sessions of `length` random steps until so many steps are done or panel and model differ.
  std::optional<Difference> random(std::uint64_t seed, std::size_t steps, std::size_t length);

  /// Plays the session's steps, those left out that the rules do not decide.
  std::optional<Difference> play(const Session& session);

  /// The same difference in as few steps and keys as it takes.
  Difference shortened(const Difference& difference);

  const TrialCount& count() const { return count_; }

 private:
  std::optional<std::string> compare(const CommissionsModel& model);
  bool differs(const Session& session) { return play(session).has_value(); }

  PanelOnBench& bench_;
  const Rules& rules_;
  TrialCount count_;
};

}  // namespace qvn::test
