// A panel of one field in which "?" opens the list of clients, on the memory platform, before an office's database.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platforms/memory/platform.h"
#include "platforms/operator.h"
#include "qvn/toolkit/container.h"
#include "qvn/toolkit/list_view.h"

namespace qvn::bench {

class Desk final : toolkit::Container, Watcher {
 public:
  /// What is done when the list stands modally, before the operator acts at it.
  using AtShowing = std::function<void(toolkit::ListView& list)>;

  /// Shows the list of the clients in a database file.
  explicit Desk(const std::string& database);
  ~Desk() override;
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  /// Presses "?" in the empty field and, when the list stands, does this and then the acts.
  void openList(AtShowing atShowing, std::vector<Act> acts = {Act::click("CmdOK")});

  /// The code chosen last.
  std::string chosen() const;
  /// Whether a handler failed or an act could not be done.
  bool failed() { return failures_ != 0 || !platform_.hands().failedActs().empty(); }

 private:
  void PropertyChanged(toolkit::Surface& /*panel*/, std::string_view /*name*/) override {}
  void handlerFailed(toolkit::Surface& panel, toolkit::Widget& widget, std::string_view event,
                     const Failure& failure) noexcept override;
  void lostFocus(const toolkit::Widget& /*widget*/) override {}
  void gotFocus(const toolkit::Widget& /*widget*/) override {}
  void beeped() override {}
  void formShown(std::string_view form) override;

  memory::Platform platform_;
  std::int64_t failures_ = 0;
  AtShowing atShowing_;
  std::unique_ptr<toolkit::Surface> panel_;
};

}  // namespace qvn::bench
