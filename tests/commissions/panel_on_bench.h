// The real panel under the steps of a session: each is done as the session player would, and all is looked at.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platforms/operator.h"
#include "qvn/panels/commissions/ctlPROV_POLIZZE.h"
#include "qvn/shared/event.h"
#include "qvn/toolkit/container.h"
#include "tests/commissions/seen.h"
#include "tests/commissions/steps.h"
#include "tests/fake_database.h"
#include "tests/platforms.h"

namespace qvn::test {

/// Writes down what happens, in order.
class BenchJournal final : public toolkit::Container, public Watcher {
 public:
  explicit BenchJournal(const FakeDriver& driver) : driver_(driver) {}

  void clear();
  /// What has happened since then.
  std::vector<std::string> events();
  void mancaDB() { add("mancadb"); }

  void PropertyChanged(toolkit::Surface& panel, std::string_view name) override;
  void handlerFailed(toolkit::Surface& panel, toolkit::Widget& widget, std::string_view event,
                     const Failure& failure) noexcept override;
  void lostFocus(const toolkit::Widget& widget) override { add("lost ", widget.Name()); }
  void gotFocus(const toolkit::Widget& widget) override { add("got ", widget.Name()); }
  void beeped() override { add("beep"); }

 private:
  void add(std::string_view what, std::string_view name = {});
  void addStatements();

  const FakeDriver& driver_;
  std::size_t statements_ = 0;  // of the driver, that are written down or forgotten
  std::vector<std::string> events_;
};

class PanelOnBench {
 public:
  /// A platform of its own, with the library on it.
  explicit PanelOnBench(const PlatformMaker& maker);
  ~PanelOnBench();
  PanelOnBench(const PanelOnBench&) = delete;
  PanelOnBench& operator=(const PanelOnBench&) = delete;

  /// Unloads the library and makes a new panel.
  void begin(const Session& session);
  void play(const Step& step);
  /// What the last step left and did; of begin(), what the making did.
  Seen seen();

 private:
  void carryOut(const Step& step);
  void answerMancaDB(bool answered);

  std::unique_ptr<PlatformUnderTest> under_;
  FakeDriver driver_;
  BenchJournal journal_{driver_};
  bool answered_ = false;
  Subscription host_;
  std::optional<ctlPROV_POLIZZE> panel_;
  std::string failure_;
  std::string value_;
};

}  // namespace qvn::test
