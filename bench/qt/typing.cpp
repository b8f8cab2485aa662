// What a key costs in a field with its filter, beside a field of plain Qt with a validator.
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <array>
#include <benchmark/benchmark.h>
#include <stdexcept>

#include "bench/qt/comparison.h"
#include "bench/qt/plain_panel.h"
#include "bench/qt/screens.h"
#include "qvn/panels/master/ctlIVA.h"

namespace qvn::bench {
namespace {

constexpr std::array kDigits{Qt::Key_1, Qt::Key_0, Qt::Key_0};

void press(QWidget& field, int key) {
  const QString text = QChar(key);
  QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(&field, &down);
  QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
  QApplication::sendEvent(&field, &up);
}

/// Types all digits; where they are to be seen, each is painted before the next.
double secondsOfTyping(QWidget& field, bool seen) {
  const WallTime time;
  for (const int key : kDigits) {
    press(field, key);
    if (seen) QApplication::processEvents();
  }
  return time.seconds();
}

QLineEdit& fieldAt(const QRect& place, const QWidget& panel) {
  for (QLineEdit* field : panel.findChildren<QLineEdit*>()) {
    if (field->geometry() == place) return *field;
  }
  throw std::logic_error("the plain panel has no such field");
}

/// Lets a field take keys.
void enter(QWidget& field) {
  QApplication::setActiveWindow(field.window());
  field.setFocus();
  QApplication::processEvents();
}

/// A digit into the rate of a VAT code: filter, text, notice and range rule; beside it the panel's plain twin, with a
/// validator of one to three digits. The argument is 1 where the field is painted after each key.
void typingIntoAField(benchmark::State& state) {
  const bool seen = state.range(0) != 0;
  AnsweringAtOnce database;
  ScreenOffice office(database, std::string(database.head()));
  ctlIVA panel({.container = office.host, .name = "panel"});
  QWidget window;
  showIn(window, office.platform.widgetOf(panel.surface()));
  panel.Attiva();
  QApplication::processEvents();
  toolkit::TextBox& box = panel.surface().textBox("TxtIVA");
  auto& ours = dynamic_cast<QLineEdit&>(office.widgetOf(box));

  QWidget plainWindow;
  const PlainTwin twin(writtenDown(office.platform, panel.surface()));
  showIn(plainWindow, twin.inside());
  QLineEdit& plain = fieldAt(ours.geometry(), twin.inside());
  plain.setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]{1,3}"), &plain));

  Comparison comparison;
  for (auto _ : state) {
    plain.clear();
    enter(plain);
    const double plainTook = secondsOfTyping(plain, seen);
    box.Text("");
    enter(ours);
    const double took = secondsOfTyping(ours, seen);
    if (ours.text() != "100" || plain.text() != "100") return state.SkipWithError("the digits did not go in");
    comparison.add(took, plainTook);
    state.SetIterationTime(took);
  }
  comparison.report(state, kDigits.size());
  if (box.Text() != "100" || office.host.failures != 0) state.SkipWithError("the panel did not take the digits");
}
BENCHMARK(typingIntoAField)
    ->Arg(0)
    ->Arg(1)
    ->ArgName("painted")
    ->UseManualTime()
    ->Iterations(2000)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace qvn::bench
