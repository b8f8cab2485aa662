#include "platforms/memory/turns.h"

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
    Lasting& last = *dropped_;
    dropped_ = last.droppedBefore_;
    last.destroy();
  }
}

void Turns::drop(Lasting& dropped) noexcept {
  if (depth_ == 0) {
    dropped.destroy();
    return;
  }
  dropped.droppedBefore_ = dropped_;
  dropped_ = &dropped;
}

}  // namespace qvn::memory
