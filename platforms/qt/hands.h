// An operator's hands on widgets that stand on a screen.
#pragma once

#include "platforms/guarded_hands.h"
#include "platforms/qt/screen.h"

namespace qvn::qt {

/// Shows what was done, and what was done before it failed.
class Showing {
 public:
  explicit Showing(Screen& screen) : screen_(screen) {}
  ~Showing() { screen_.settle(); }
  Showing(const Showing&) = delete;
  Showing& operator=(const Showing&) = delete;

 private:
  Screen& screen_;
};

/// The hands on the widgets in memory; what each thing that they do has come to is on the screen when it returns.
using Hands = GuardedHands<Showing, Screen>;

}  // namespace qvn::qt
