#include "platforms/qt/frame_view.h"

#include <QApplication>
#include <QPainter>

#include "platforms/qt/captions.h"
#include "platforms/qt/colours.h"
#include "platforms/qt/texts.h"

namespace qvn::qt {

FrameView::FrameView(Screen& screen, toolkit::Frame& model, QWidget& parent)
    : QGroupBox(&parent), View(screen, model) {}

void FrameView::showContent() {
  const QString caption = shown(static_cast<toolkit::Frame&>(*subject()).Caption());
  if (title() != caption) setTitle(caption);
  fitCaption(*this, caption, width() - 2 * titleRect().left());
}

QRect FrameView::titleRect() const {
  const QFontMetrics metrics = fontMetrics();
  return {metrics.averageCharWidth() + 2, 0, widthOf(title(), font()) + 4, metrics.height()};
}

void FrameView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QRect caption = titleRect();
  const int middle = title().isEmpty() ? 0 : caption.height() / 2;
  if (!title().isEmpty()) painter.setClipRegion(QRegion(rect()) - QRegion(caption));
  drawLineAround(rect().adjusted(0, middle, 0, 0), lineColour(QApplication::palette()), painter);
  painter.setClipping(false);
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  painter.drawText(caption, Qt::AlignCenter | Qt::TextShowMnemonic, title());
}

}  // namespace qvn::qt
