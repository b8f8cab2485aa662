// Statements that are skipped where they fail.
#pragma once

#include "qvn/shared/failure.h"

namespace qvn::fields {

/// Runs the statements one after the other; one that fails is skipped and the next runs. A panel is made ready in this
/// way, since the host may not show it yet and then it cannot take the focus. What is no Failure is the host's own and
/// passes to it.
template <class... Statements>
void skipFailing(Statements&&... statements) {
  const auto attempt = [](auto&& statement) {
    try {
      statement();
    } catch (const Failure&) {  // NOLINT(bugprone-empty-catch): skipped on purpose
    }
  };
  (attempt(statements), ...);
}

}  // namespace qvn::fields
