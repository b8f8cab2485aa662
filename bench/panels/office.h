// The library as a benchmark of panels finds it: on the memory platform, with a host that listens and does nothing, and
// with a database that answers at once.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platforms/memory/platform.h"
#include "qvn/shared/Globale.h"
#include "qvn/toolkit/database.h"
#include "qvn/toolkit/panel.h"

namespace qvn::bench {

class Host final : public toolkit::Container {
 public:
  void PropertyChanged(toolkit::Surface& panel, std::string_view name) override;
  void handlerFailed(toolkit::Surface& panel, toolkit::Widget& widget, std::string_view event,
                     const Failure& failure) noexcept override;

  std::int64_t failures = 0;
};

/// A database without work of its own: whatever is asked for is found, and every producer has a withholding tax of 23
/// percent.
class AnsweringAtOnce final : public toolkit::Driver {
 public:
  std::string_view head() const override { return "at once:"; }
  std::unique_ptr<toolkit::Session> open(const toolkit::Opening& opening) override;

  std::int64_t answered = 0;
};

struct Office {
  Office();
  ~Office();
  Office(const Office&) = delete;
  Office& operator=(const Office&) = delete;

  template <class Panel>
  std::unique_ptr<Panel> panel() {
    return std::make_unique<Panel>(PanelSite{.container = host, .name = "panel"});
  }

  memory::Platform platform;
  Host host;
  AnsweringAtOnce database;
};

}  // namespace qvn::bench
