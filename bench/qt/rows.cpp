// What a list of found policies costs, 1,000 panels of them in one scrolled window, beside the same rows made by hand
// of plain labels and buttons.
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <benchmark/benchmark.h>
#include <cstddef>
#include <malloc.h>
#include <memory>
#include <stdexcept>
#include <vector>

#include "bench/qt/comparison.h"
#include "bench/qt/screens.h"
#include "qvn/panels/documents/ctlRICERCA.h"

namespace qvn::bench {
namespace {

constexpr int kRows = 1000;
constexpr double kKibibyte = 1024;

/// One widget as it is written down by hand.
struct Written {
  toolkit::WidgetKind kind;
  bool inFrame;
  QRect place;
  QString text;
  Qt::Alignment alignment;
  QFont font;
  QPalette colours;
};

std::vector<Written> writtenDown(qt::Platform& platform, const toolkit::Surface& panel) {
  std::vector<Written> rows;
  rows.reserve(panel.widgets().size());
  for (const toolkit::Widget* model : panel.widgets()) {
    const QWidget& widget = *platform.widgetOf(*model);
    Written& row = rows.emplace_back(Written{.kind = model->Kind(),
                                             .inFrame = model->frame() != nullptr,
                                             .place = widget.geometry(),
                                             .text = {},
                                             .alignment = {},
                                             .font = widget.font(),
                                             .colours = widget.palette()});
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) row.alignment = label->alignment();
    if (const auto* button = qobject_cast<const QPushButton*>(&widget)) row.text = button->text();
    if (const auto* frame = qobject_cast<const QGroupBox*>(&widget)) row.text = frame->title();
  }
  return rows;
}

QWidget* made(const Written& row, QWidget* parent) {
  switch (row.kind) {
    case toolkit::WidgetKind::Frame:
      return new QGroupBox(row.text, parent);
    case toolkit::WidgetKind::CommandButton:
      return new QPushButton(row.text, parent);
    case toolkit::WidgetKind::Label: {
      auto* label = new QLabel(parent);
      label->setTextFormat(Qt::PlainText);
      label->setAlignment(row.alignment);
      label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
      return label;
    }
    default:
      throw std::logic_error("a search row holds no such widget");
  }
}

std::unique_ptr<QWidget> byHand(const std::vector<Written>& rows) {
  auto panel = std::make_unique<QWidget>();
  QWidget* frame = panel.get();
  for (const Written& row : rows) {
    QWidget* widget = made(row, row.inFrame ? frame : panel.get());
    widget->setGeometry(row.place);
    widget->setFont(row.font);
    widget->setPalette(row.colours);
    if (row.kind == toolkit::WidgetKind::Frame) frame = widget;
  }
  return panel;
}

/// A window that scrolls over rows standing one below the other.
class Scrolled {
 public:
  explicit Scrolled(QSize row) : row_(row) {
    auto* content = new QWidget;  // the area owns it
    content->setFixedSize(row.width(), row.height() * kRows);
    area_.setWidget(content);
    area_.resize(row.width() + 40, 600);
  }
  void put(QWidget& row, int number) {
    row.setParent(area_.widget());
    row.setGeometry(0, number * row_.height(), row_.width(), row_.height());
    row.show();
  }
  void show() {
    area_.show();
    QApplication::processEvents();
  }

 private:
  QSize row_;
  QScrollArea area_;
};

double heapInUse() { return static_cast<double>(mallinfo2().uordblks); }

/// From before the rows are made until they are on the screen, and what they take of the heap then.
struct Cost {
  double seconds;
  double bytes;
};

template <class Make>
Cost costOf(QSize size, const Make& make) {
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  const double before = heapInUse();
  const ProcessorTime time;
  Scrolled window(size);
  [[maybe_unused]] const auto rows = make(window);  // until it is measured
  window.show();
  return {.seconds = time.seconds(), .bytes = heapInUse() - before};
}

void aThousandPolicies(benchmark::State& state) {
  AnsweringAtOnce database;
  ScreenOffice office(database, std::string(database.head()));
  const PanelSite site{.container = office.host, .name = "panel"};
  const ctlRICERCA first(site);
  office.platform.settle();
  const QSize size = office.platform.widgetOf(first.surface()).size();
  const std::vector<Written> written = writtenDown(office.platform, first.surface());

  const auto panels = [&](Scrolled& window) {
    std::vector<std::unique_ptr<ctlRICERCA>> all;
    all.reserve(kRows);
    for (int i = 0; i < kRows; ++i) {
      const auto& panel = all.emplace_back(std::make_unique<ctlRICERCA>(site));
      window.put(office.platform.widgetOf(panel->surface()), i);
    }
    return all;
  };
  const auto plainRows = [&](Scrolled& window) {
    for (int i = 0; i < kRows; ++i) window.put(*byHand(written).release(), i);  // the window owns it from here
    return kRows;
  };

  costOf(size, panels);  // what is made once for all is not counted
  costOf(size, plainRows);
  Comparison comparison;
  Cost ours{};
  Cost plain{};
  for (auto _ : state) {
    plain = costOf(size, plainRows);
    ours = costOf(size, panels);
    comparison.add(ours.seconds, plain.seconds);
    state.SetIterationTime(ours.seconds);
  }
  comparison.report(state, kRows);
  state.counters["ours_KiB"] = ours.bytes / kKibibyte / kRows;
  state.counters["plain_KiB"] = plain.bytes / kKibibyte / kRows;
  state.counters["beyond_KiB"] = (ours.bytes - plain.bytes) / kKibibyte / kRows;
}
BENCHMARK(aThousandPolicies)->UseManualTime()->MinTime(2)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qvn::bench
