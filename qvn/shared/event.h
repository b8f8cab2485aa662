// An event that hosts subscribe to.
#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace qvn {

/// Keeps a handler subscribed for as long as it lives; it may outlive the event, and may go away while it is raised.
using Subscription = std::shared_ptr<const std::function<void()>>;

/// An event without arguments. Handlers run in the order of their subscription, inside raise().
class Event {
 public:
  [[nodiscard]] Subscription subscribe(std::function<void()> handler) {
    auto subscription = std::make_shared<const std::function<void()>>(std::move(handler));
    handlers_.push_back(subscription);
    return subscription;
  }

  /// Runs the handlers subscribed at this moment. A failure of one passes to the caller, and those after it do not run.
  void raise() {
    std::erase_if(handlers_, [](const auto& handler) { return handler.expired(); });
    const auto now = handlers_;
    for (const auto& handler : now) {
      if (const Subscription subscription = handler.lock()) (*subscription)();
    }
  }

 private:
  std::vector<std::weak_ptr<const std::function<void()>>> handlers_;
};

}  // namespace qvn
