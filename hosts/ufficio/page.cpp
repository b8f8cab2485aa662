#include "hosts/ufficio/page.h"

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

}  // namespace

QWidget* makePage(qt::Platform& platform, const Screen& screen) {
  auto* inside = new QWidget;
  auto* layout = new QVBoxLayout(inside);
  layout->setContentsMargins(0, 0, 0, 0);
  if (!screen.heads().empty()) {
    layout->addWidget(makeHeads(platform, screen.panels().front()->surface(), screen.heads()), 0, Qt::AlignLeft);
  }
  layout->addStretch(1);
  auto* page = new QScrollArea;
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
