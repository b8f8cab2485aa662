// An event that hosts subscribe to.
#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "qvn/shared/failure.h"

namespace qvn {

/// Keeps a handler subscribed for as long as it lives; it may outlive the event, and may go away while it is raised.
using Subscription = std::shared_ptr<const std::function<void()>>;

/// An event without arguments. Handlers run in the order of their subscription, inside raise().
class Event {
 public:
  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  [[nodiscard]] Subscription subscribe(std::function<void()> handler) {
    auto subscription = std::make_shared<const std::function<void()>>(std::move(handler));
    forgetGone();
    handlers_.push_back(subscription);
    return subscription;
  }

  /// Runs the handlers subscribed at this moment. What one throws passes to the caller, and those after it do not run.
  /// Fails with "invalid call" where handlers raise the event again without end.
  void raise() {
    constexpr int kDeepest = 100;
    if (*depth_ == kDeepest) {
      throw Failure(FailureKind::InvalidCall, "a handler of the event raises it again without end");
    }
    const Raising raising(depth_);
    forgetGone();
    const auto now = handlers_;
    for (const auto& handler : now) {
      const Subscription subscription = handler.lock();
      if (subscription && *subscription) (*subscription)();
    }
  }

 private:
  class Raising {
   public:
    explicit Raising(std::shared_ptr<int> depth) : depth_(std::move(depth)) { ++*depth_; }
    ~Raising() { --*depth_; }
    Raising(const Raising&) = delete;
    Raising& operator=(const Raising&) = delete;

   private:
    std::shared_ptr<int> depth_;
  };

  void forgetGone() {
    std::erase_if(handlers_, [](const auto& handler) { return handler.expired(); });
  }

  std::shared_ptr<int> depth_ = std::make_shared<int>(0);  // outlives an event that its handler drops
  std::vector<std::weak_ptr<const std::function<void()>>> handlers_;
};

}  // namespace qvn
