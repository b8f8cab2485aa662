// Handlers of a host, and the objects that keep them subscribed.
#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "component/object.h"

namespace qvn::component {

/// Keeps a handler subscribed as long as it has references; it may outlive what the handler hears of.
class SubscriptionObject final : public Object {
 public:
  explicit SubscriptionObject(std::shared_ptr<const void> kept) : kept_(std::move(kept)) {}
  std::string_view className() const override { return "subscription"; }

 private:
  void drop() noexcept override { kept_.reset(); }

  std::shared_ptr<const void> kept_;
};

/// Handlers in the order of their subscription.
template <class... Args>
class Handlers {
 public:
  using Handler = std::function<void(Args...)>;

  std::shared_ptr<const void> subscribe(Handler handler) {
    auto kept = std::make_shared<const Handler>(std::move(handler));
    std::erase_if(handlers_, [](const auto& one) { return one.expired(); });
    handlers_.push_back(kept);
    return kept;
  }

  /// Calls those that are subscribed now and still are when their turn comes, as long as `goesOn` says so. What one
  /// throws passes on.
  template <class GoesOn>
  void call(GoesOn goesOn, Args... args) const {
    if (handlers_.empty()) return;
    const auto now = handlers_;
    for (const auto& one : now) {
      const std::shared_ptr<const Handler> handler = one.lock();
      if (handler != nullptr && goesOn()) (*handler)(args...);
    }
  }

 private:
  std::vector<std::weak_ptr<const Handler>> handlers_;
};

}  // namespace qvn::component
