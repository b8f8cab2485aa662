#include "hosts/ufficio/results_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <utility>

namespace qvn::ufficio {

namespace {

constexpr int kBar = 4;   ///< the width of the bar beside the marked record
constexpr int kLeft = 6;  ///< where the panels begin
constexpr int kBetween = 4;
constexpr int kOfTheNext = 20;    ///< what shows of the records around the one that is brought into view
constexpr int kStepsARecord = 3;  ///< so that a notch of the wheel, which is three steps, goes on by a record

}  // namespace

ResultsView::ResultsView(qt::Platform& platform, Store& store, ResultScreen& screen,
                         std::function<void(const std::exception&)> failed)
    : platform_(platform),
      store_(store),
      screen_(screen),
      failed_(std::move(failed)),
      panel_(platform.widgetOf(screen.anyPanel().surface()).size()) {
  platform_.widgetOf(screen_.anyPanel().surface()).setParent(viewport());
  setObjectName("risultati");
  setAccessibleName("Record trovati");
  setFrameStyle(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  viewport()->setBackgroundRole(QPalette::Window);
  verticalScrollBar()->setSingleStep((panel_.height() + kBetween + kStepsARecord - 1) / kStepsARecord);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*before*/, QWidget* now) { followFocus(now); });
}

// A panel that has the focus gives it away as it goes, when this is no view any more.
ResultsView::~ResultsView() { disconnect(qApp, nullptr, this, nullptr); }

std::size_t ResultsView::firstInView() const {
  return static_cast<std::size_t>(verticalScrollBar()->value() / (panel_.height() + kBetween));
}

std::size_t ResultsView::endInView() const {
  const int pitch = panel_.height() + kBetween;
  const int end = (verticalScrollBar()->value() + viewport()->height() + pitch - 1) / pitch;
  return std::min(static_cast<std::size_t>(end), screen_.count());
}

QRect ResultsView::placeOf(std::size_t place) const {
  const int top = static_cast<int>(place) * (panel_.height() + kBetween) - verticalScrollBar()->value();
  return {QPoint(kLeft - horizontalScrollBar()->value(), top), panel_};
}

QWidget* ResultsView::panelAt(std::size_t place) const {
  const auto* const panel = screen_.panelAt(place);
  return panel == nullptr ? nullptr : &platform_.widgetOf(panel->surface());
}

void ResultsView::measure() {
  const int all = static_cast<int>(screen_.count()) * (panel_.height() + kBetween) - kBetween;
  verticalScrollBar()->setPageStep(viewport()->height());
  verticalScrollBar()->setRange(0, std::max(all - viewport()->height(), 0));
  horizontalScrollBar()->setPageStep(viewport()->width());
  horizontalScrollBar()->setRange(0, std::max(kLeft + panel_.width() - viewport()->width(), 0));
}

void ResultsView::renew() {
  verticalScrollBar()->setValue(0);
  measure();
  lay();
  viewport()->update();
}

void ResultsView::showMarked() {
  measure();  // it may have come behind the others
  if (const auto marked = screen_.marked()) bringIntoView(*marked);
  lay();
  viewport()->update();
}

void ResultsView::bringIntoView(std::size_t place) {
  const QRect at = placeOf(place).adjusted(0, -kOfTheNext, 0, kOfTheNext);
  QScrollBar& bar = *verticalScrollBar();
  if (at.top() < 0) {
    bar.setValue(bar.value() + at.top());
  } else if (at.bottom() >= viewport()->height()) {
    bar.setValue(bar.value() + std::min(at.top(), at.bottom() + 1 - viewport()->height()));
  }
}

void ResultsView::lay() {
  if (laying_) return;
  const QScopedValueRollback<bool> laying(laying_, true);
  const std::size_t first = firstInView();
  const std::size_t end = endInView();
  leaveWhatGoes(first, end);
  screen_.show(store_, first, end, failed_);
  for (std::size_t place = first; place < end; ++place) {
    QWidget* const panel = panelAt(place);
    if (panel == nullptr) continue;
    if (panel->parentWidget() != viewport()) panel->setParent(viewport());
    panel->move(placeOf(place).topLeft());
    panel->show();
  }
  platform_.settle();
}

void ResultsView::leaveWhatGoes(std::size_t first, std::size_t end) {
  const QWidget* const focus = QApplication::focusWidget();
  if (focus == nullptr || focus == this || !isAncestorOf(focus)) return;
  for (std::size_t place = first; place < end; ++place) {
    const QWidget* const panel = panelAt(place);
    if (panel != nullptr && panel->isAncestorOf(focus)) return;
  }
  setFocus();
}

void ResultsView::scrollContentsBy(int dx, int dy) {
  viewport()->scroll(dx, dy);
  lay();
}

void ResultsView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  measure();
  lay();
}

void ResultsView::paintEvent(QPaintEvent* /*event*/) {
  const auto marked = screen_.marked();
  if (!marked) return;
  const QRect at = placeOf(*marked);
  QPainter(viewport())
      .fillRect(QRect(at.left() - kLeft, at.top(), kBar, at.height()), palette().color(QPalette::Highlight));
}

void ResultsView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Home:
      verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
      return;
    case Qt::Key_End:
      verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum);
      return;
    default:
      QAbstractScrollArea::keyPressEvent(event);
  }
}

void ResultsView::followFocus(const QWidget* now) {
  if (now == nullptr || !viewport()->isAncestorOf(now)) return;
  for (std::size_t place = firstInView(); place < endInView(); ++place) {
    const QWidget* const panel = panelAt(place);
    if (panel != nullptr && panel->isAncestorOf(now)) return bringIntoView(place);
  }
}

}  // namespace qvn::ufficio
