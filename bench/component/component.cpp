// What the C interface costs beyond the library itself: a panel made by its class's name beside the panel made by C++,
// and members by name beside the member functions. Each pair takes turns, on panels of their own.
#include <array>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <ctime>
#include <memory>
#include <string_view>

#include "component/qvn.h"
#include "platforms/memory/platform.h"
#include "qvn/panels/commissions/ctlPROV_POLIZZE.h"
#include "qvn/panels/master/ctlIVA.h"
#include "qvn/shared/Globale.h"

namespace qvn::bench {
namespace {

class Silent final : public toolkit::Container {
  void PropertyChanged(toolkit::Surface& /*panel*/, std::string_view /*name*/) override {}
  void handlerFailed(toolkit::Surface& /*panel*/, toolkit::Widget& /*widget*/, std::string_view /*event*/,
                     const Failure& /*failure*/) noexcept override {}
};

/// The library as C++ has it.
struct Direct {
  Direct() { Globale::install(platform); }
  ~Direct() { Globale::uninstall(); }
  Direct(const Direct&) = delete;
  Direct& operator=(const Direct&) = delete;

  template <class Panel>
  std::unique_ptr<Panel> make() {
    return std::make_unique<Panel>(PanelSite{.container = host, .name = "panel"});
  }

  memory::Platform platform;
  Silent host;
};

/// The library as C has it, with one panel.
struct ByName {
  explicit ByName(const char* className) {
    well = qvn_screen_create(&screen) == QVN_OK;
    panel = make(className);
  }
  ~ByName() {
    qvn_release(panel);
    qvn_release(screen);
  }
  ByName(const ByName&) = delete;
  ByName& operator=(const ByName&) = delete;

  qvn_object* make(const char* className) {
    void* panels = nullptr;
    qvn_object* made = nullptr;
    well = DllGetClassObject(className, QVN_CLASS_INTERFACE, &panels) == QVN_S_OK && well;
    well = qvn_create(static_cast<qvn_object*>(panels), screen, "panel", &made) == QVN_OK && well;
    qvn_release(static_cast<qvn_object*>(panels));
    return made;
  }

  qvn_object* screen = nullptr;
  qvn_object* panel = nullptr;
  bool well = true;
};

/// What some work takes of the processor, whatever else the machine does meanwhile.
template <class Work>
double nanosecondsOf(std::int64_t times, const Work& work) {
  const std::clock_t start = std::clock();
  for (std::int64_t i = 0; i < times; ++i) work(i);
  return static_cast<double>(std::clock() - start) * 1e9 / CLOCKS_PER_SEC;
}

/// Both in turns; the time is that by name, and "beyond_ns" what it takes more than the direct one.
template <class ByNameWork, class DirectWork>
void inTurns(benchmark::State& state, const ByNameWork& byName, const DirectWork& direct) {
  constexpr std::int64_t kTurn = 1024;
  double named = 0;
  double directly = 0;
  while (state.KeepRunningBatch(kTurn)) {
    const double took = nanosecondsOf(kTurn, byName);
    directly += nanosecondsOf(kTurn, direct);
    named += took;
    state.SetIterationTime(took / 1e9);
  }
  const auto all = static_cast<double>(state.iterations());
  state.counters["direct_ns"] = directly / all;
  state.counters["beyond_ns"] = (named - directly) / all;
}

/// Making and dropping a panel. To stay under 10 µs beyond.
template <class Panel>
void making(benchmark::State& state, const char* className) {
  Direct cpp;
  ByName c(className);
  inTurns(
      state, [&](std::int64_t) { qvn_release(c.make(className)); },
      [&](std::int64_t) { benchmark::DoNotOptimize(cpp.make<Panel>()); });
  if (!c.well) state.SkipWithError("a panel was not made");
}

qvn_value int32(std::int32_t number) {
  qvn_value value{};
  value.kind = QVN_INT32;
  value.as.int32 = number;
  return value;
}

/// Reading a property that holds 22. To stay under 200 ns beyond, as the following.
template <class Panel, class Get>
void reading(benchmark::State& state, const char* className, const char* name, Get get) {
  Direct cpp;
  ByName c(className);
  const auto panel = cpp.make<Panel>();
  const qvn_value first = int32(22);
  c.well = qvn_let(c.panel, name, &first) == QVN_OK && c.well;
  letByName(*panel, name, std::int32_t{22});
  inTurns(
      state,
      [&](std::int64_t) {
        qvn_value value{};
        c.well = qvn_get(c.panel, name, &value) == QVN_OK && c.well;
        qvn_value_clear(&value);
      },
      [&](std::int64_t) {
        auto value = get(*panel);
        benchmark::DoNotOptimize(value);
      });
  if (!c.well) state.SkipWithError("the property was not read");
}

/// Writing a property: another value each time, with the rules of its box.
template <class Panel, class Let>
void writing(benchmark::State& state, const char* className, const char* name, Let let) {
  Direct cpp;
  ByName c(className);
  const auto panel = cpp.make<Panel>();
  inTurns(
      state,
      [&](std::int64_t i) {
        const qvn_value value = int32(10 + static_cast<std::int32_t>(i % 2));
        c.well = qvn_let(c.panel, name, &value) == QVN_OK && c.well;
      },
      [&](std::int64_t i) { let(*panel, 10 + static_cast<std::int32_t>(i % 2)); });
  if (!c.well) state.SkipWithError("the property was not written");
}

/// Calling a method without arguments.
template <class Panel, class Call>
void calling(benchmark::State& state, const char* className, const char* name, Call call) {
  Direct cpp;
  ByName c(className);
  const auto panel = cpp.make<Panel>();
  inTurns(
      state, [&](std::int64_t) { c.well = qvn_call(c.panel, name, nullptr, 0, nullptr) == QVN_OK && c.well; },
      [&](std::int64_t) { call(*panel); });
  if (!c.well) state.SkipWithError("the method was not called");
}

/// Calling with a table of figures.
void handingOver(benchmark::State& state) {
  constexpr std::array<std::int64_t, 6> kFigures{10'000'000, 0, 1'000'000, 500'000, 12'650'000, 500'000};
  Direct cpp;
  ByName c("ctlPROV_POLIZZE");
  const auto panel = cpp.make<ctlPROV_POLIZZE>();
  CurrencyArray figures{.extents = {3, 2}, .values = {}};
  for (const std::int64_t figure : kFigures) figures.values.push_back(Currency::fromTenThousandths(figure));
  qvn_value argument{};
  argument.kind = QVN_ARRAY;
  argument.as.array = {.values = kFigures.data(), .rows = 3, .columns = 2};
  inTurns(
      state, [&](std::int64_t) { c.well = qvn_call(c.panel, "VALORI", &argument, 1, nullptr) == QVN_OK && c.well; },
      [&](std::int64_t) { panel->VALORI(figures); });
  if (!c.well) state.SkipWithError("the figures were not taken");
}

template <class Work>
void add(const char* name, Work work) {
  benchmark::RegisterBenchmark(name, work)->UseManualTime();
}

const bool kAdded = [] {
  add("making/ctlIVA", [](benchmark::State& state) { making<ctlIVA>(state, "ctlIVA"); });
  add("making/ctlPROV_POLIZZE", [](benchmark::State& state) { making<ctlPROV_POLIZZE>(state, "ctlPROV_POLIZZE"); });

  add("reading/ctlIVA.IVA", [](benchmark::State& state) {
    reading<ctlIVA>(state, "ctlIVA", "IVA", [](const ctlIVA& panel) { return panel.IVA(); });
  });
  add("reading/ctlIVA.DESCRIZIONE", [](benchmark::State& state) {
    reading<ctlIVA>(state, "ctlIVA", "DESCRIZIONE", [](const ctlIVA& panel) { return panel.DESCRIZIONE(); });
  });
  add("reading/ctlPROV_POLIZZE.AQ_UFF", [](benchmark::State& state) {
    reading<ctlPROV_POLIZZE>(state, "ctlPROV_POLIZZE", "AQ_UFF", [](const ctlPROV_POLIZZE& p) { return p.AQ_UFF(); });
  });
  add("reading/ctlPROV_POLIZZE.QUOTA", [](benchmark::State& state) {
    reading<ctlPROV_POLIZZE>(state, "ctlPROV_POLIZZE", "QUOTA", [](const ctlPROV_POLIZZE& p) { return p.QUOTA(); });
  });
  add("reading/ctlPROV_POLIZZE.P_PASSIVE", [](benchmark::State& state) {
    reading<ctlPROV_POLIZZE>(state, "ctlPROV_POLIZZE", "P_PASSIVE",
                             [](const ctlPROV_POLIZZE& p) { return p.P_PASSIVE(); });
  });

  add("writing/ctlIVA.IVA", [](benchmark::State& state) {
    writing<ctlIVA>(state, "ctlIVA", "IVA",
                    [](ctlIVA& panel, std::int32_t value) { panel.IVA(static_cast<std::uint8_t>(value)); });
  });
  add("writing/ctlPROV_POLIZZE.AQ_PROD_ALT", [](benchmark::State& state) {
    writing<ctlPROV_POLIZZE>(state, "ctlPROV_POLIZZE", "AQ_PROD_ALT",
                             [](ctlPROV_POLIZZE& p, std::int32_t value) { p.AQ_PROD_ALT(Currency::of(value)); });
  });

  add("calling/ctlIVA.Disattiva", [](benchmark::State& state) {
    calling<ctlIVA>(state, "ctlIVA", "Disattiva", [](ctlIVA& panel) { panel.Disattiva(); });
  });
  add("calling/ctlPROV_POLIZZE.Disattiva", [](benchmark::State& state) {
    calling<ctlPROV_POLIZZE>(state, "ctlPROV_POLIZZE", "Disattiva", [](ctlPROV_POLIZZE& p) { p.Disattiva(); });
  });
  add("calling/ctlPROV_POLIZZE.VALORI", handingOver);
  return true;
}();

}  // namespace
}  // namespace qvn::bench
