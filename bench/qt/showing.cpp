// What the commission panel costs to be made and shown, beside the same widgets of plain Qt.
#include <QApplication>
#include <QWidget>
#include <benchmark/benchmark.h>

#include "bench/qt/comparison.h"
#include "bench/qt/paints.h"
#include "bench/qt/plain_panel.h"
#include "bench/qt/screens.h"
#include "qvn/panels/commissions/ctlPROV_POLIZZE.h"

namespace qvn::bench {
namespace {

/// From before a panel is made until it is painted.
void showingAPanel(benchmark::State& state) {
  AnsweringAtOnce database;
  ScreenOffice office(database, std::string(database.head()));
  const PanelSite site{.container = office.host, .name = "panel"};

  PlainPanel written;
  {
    const PaintedWidgets painted;
    const ctlPROV_POLIZZE panel(site);
    QWidget window;
    showIn(window, office.platform.widgetOf(panel.surface()));
    written = writtenDown(office.platform, panel.surface());
    QWidget plainWindow;
    const PlainTwin twin(written);
    showIn(plainWindow, twin.inside());
    if (!painted.haveAllOf(window) || !painted.haveAllOf(plainWindow)) state.SkipWithError("not all was painted");
  }

  Comparison comparison;
  for (auto _ : state) {
    double plain = 0;
    {
      QWidget window;
      const ProcessorTime time;
      const PlainTwin twin(written);
      showIn(window, twin.inside());
      plain = time.seconds();
    }
    double ours = 0;
    {
      QWidget window;
      const ProcessorTime time;
      const ctlPROV_POLIZZE panel(site);
      showIn(window, office.platform.widgetOf(panel.surface()));
      ours = time.seconds();
    }
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    comparison.add(ours, plain);
    state.SetIterationTime(ours);
  }
  comparison.report(state);
  state.counters["widgets"] = static_cast<double>(written.widgets.size());
}
BENCHMARK(showingAPanel)->UseManualTime()->MinTime(2)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qvn::bench
