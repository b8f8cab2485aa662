#include "platforms/memory/turns.h"

#include "platforms/memory/surface.h"
#include "qvn/shared/failure.h"

namespace qvn::memory {

namespace {
constexpr int kDeepest = 400;  // far beyond what panels nest, far below what the stack holds
}

Turns& Turns::withRoom() {
  if (depth_ >= kDeepest) throw Failure(FailureKind::InvalidCall, "handlers call each other without end");
  return *this;
}

void Turns::end() noexcept {
  if (--depth_ > 0) return;
  while (dropped_ != nullptr) {
    Surface& surface = *dropped_;
    dropped_ = surface.droppedBefore_;
    surface.destroy();
  }
}

void Turns::drop(Surface& surface) noexcept {
  if (depth_ == 0) {
    surface.destroy();
    return;
  }
  surface.droppedBefore_ = dropped_;
  dropped_ = &surface;
}

}  // namespace qvn::memory
