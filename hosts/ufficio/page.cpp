#include "hosts/ufficio/page.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include "platforms/qt/texts.h"

namespace qvn::ufficio {

namespace {

/// The captions over the columns of a panel, each as wide as its widget.
QWidget* makeHeads(qt::Platform& platform, toolkit::Surface& surface, std::span<const Head> heads) {
  auto* row = new QWidget;
  const QWidget& panel = platform.widgetOf(surface);
  row->setFont(panel.font());
  const int height = row->fontMetrics().lineSpacing();
  row->setFixedSize(panel.width(), height);
  for (const Head& head : heads) {
    const QWidget* under = platform.widgetOf(static_cast<const toolkit::Widget&>(surface.widget(head.widget)));
    auto* caption = new QLabel(qt::shown(head.caption), row);
    caption->setAlignment(Qt::AlignCenter);
    caption->setGeometry(QRect(under->mapTo(&panel, QPoint()), QSize(under->width(), height)));
    caption->move(caption->x(), 0);
  }
  return row;
}

/// Keeps in view what has the focus when a row is added, or when a notice or a remark below takes some of its room.
class Page final : public QScrollArea {
 protected:
  void resizeEvent(QResizeEvent* event) override {
    QScrollArea::resizeEvent(event);
    showFocus();
  }
  bool event(QEvent* event) override {
    const bool known = QScrollArea::event(event);
    if (event->type() == QEvent::LayoutRequest) showFocus();
    return known;
  }

 private:
  void showFocus() const {
    QWidget* const focus = QApplication::focusWidget();
    if (focus != nullptr && isAncestorOf(focus)) bringIntoView(*focus);
  }
};

void scrollTo(QScrollArea& page, const QWidget& widget) {
  const QPoint centre = widget.mapTo(page.widget(), QPoint(widget.width() / 2, widget.height() / 2));
  page.ensureVisible(centre.x(), centre.y(), (widget.width() + 1) / 2, (widget.height() + 1) / 2);
}

}  // namespace

QWidget* makePage(qt::Platform& platform, const Screen& screen) {
  auto* inside = new QWidget;
  auto* layout = new QVBoxLayout(inside);
  layout->setContentsMargins(0, 0, 0, 0);
  if (!screen.heads().empty()) {
    layout->addWidget(makeHeads(platform, screen.panels().front()->surface(), screen.heads()), 0, Qt::AlignLeft);
  }
  layout->addStretch(1);
  auto* page = new Page;
  page->setFrameStyle(QFrame::NoFrame);
  page->setWidgetResizable(true);
  page->setWidget(inside);
  placeAdded(platform, *page, screen);
  return page;
}

void placeAdded(qt::Platform& platform, QWidget& page, const Screen& screen) {
  QWidget& inside = *static_cast<QScrollArea&>(page).widget();
  auto& layout = static_cast<QBoxLayout&>(*inside.layout());
  const std::vector<Panel*> panels = screen.panels();
  int place = screen.heads().empty() ? 0 : 1;
  for (const Panel* panel : panels) {
    QWidget& widget = platform.widgetOf(panel->surface());
    if (widget.parentWidget() != &inside) layout.insertWidget(place, &widget, 0, Qt::AlignLeft);
    ++place;
  }
}

void bringIntoView(QWidget& field) {
  QWidget* around = &field;
  while (around != nullptr && qobject_cast<QScrollArea*>(around) == nullptr) around = around->parentWidget();
  auto* page = qobject_cast<QScrollArea*>(around);
  if (page == nullptr || !page->widget()->isAncestorOf(&field)) return;
  QWidget* panel = &field;
  while (panel->parentWidget() != page->widget()) panel = panel->parentWidget();
  if (QApplication::mouseButtons() == Qt::NoButton) scrollTo(*page, *panel);
  scrollTo(*page, field);
}

QWidget* placeOver(QWidget* page, QWidget* lines) {
  page->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  auto* both = new QWidget;
  auto* layout = new QVBoxLayout(both);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(page);
  layout->addWidget(lines, 1);
  return both;
}

}  // namespace qvn::ufficio
