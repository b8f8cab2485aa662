// A host's side of a panel that keeps what it is told.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "qvn/toolkit/container.h"
#include "qvn/toolkit/surface.h"

namespace qvn::test {

using Strings = std::vector<std::string>;

/// One failure that a container was told of.
struct ReportedFailure {
  std::string panel;
  std::string widget;
  std::string event;
  FailureKind kind;
  std::string message;
};

inline std::ostream& operator<<(std::ostream& out, const ReportedFailure& failure) {
  return out << failure.panel << "." << failure.widget << " " << failure.event << ": " << nameOf(failure.kind) << ": "
             << failure.message;
}

/// Keeps what panels tell, in the order they tell it. Outlives the panels placed in it.
class RecordingContainer final : public toolkit::Container {
 public:
  /// Names of the properties announced as changed, as the panels wrote them.
  Strings notices;
  std::vector<ReportedFailure> failures;
  /// What the host does on a notice, after it was kept; empty for nothing.
  std::function<void(toolkit::Surface& panel, std::string_view name)> onNotice;

  void PropertyChanged(toolkit::Surface& panel, std::string_view name) override {
    notices.emplace_back(name);
    if (onNotice) onNotice(panel, name);
  }

  void handlerFailed(toolkit::Surface& panel, toolkit::Widget& widget, std::string_view event,
                     const Failure& failure) noexcept override {
    failures.push_back({.panel = std::string(panel.name()),
                        .widget = std::string(widget.Name()),
                        .event = std::string(event),
                        .kind = failure.kind(),
                        .message = failure.what()});
  }
};

}  // namespace qvn::test
