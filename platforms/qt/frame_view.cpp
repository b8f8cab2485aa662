#include "platforms/qt/frame_view.h"

#include <QPainter>

#include "platforms/qt/texts.h"

namespace qvn::qt {

FrameView::FrameView(Screen& screen, toolkit::Frame& model, QWidget& parent)
    : QGroupBox(&parent), View(screen, model) {}

void FrameView::showContent() {
  const QString caption = shown(static_cast<toolkit::Frame&>(*subject()).Caption());
  if (title() != caption) setTitle(caption);
}

void FrameView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QFontMetrics metrics = fontMetrics();
  const int middle = title().isEmpty() ? 0 : metrics.height() / 2;
  constexpr double kHalfLine = 0.5;
  const QRectF line = QRectF(rect()).adjusted(kHalfLine, middle + kHalfLine, -kHalfLine, -kHalfLine);
  const QRect caption(metrics.averageCharWidth() + 2, 0, metrics.horizontalAdvance(title()) + 4, metrics.height());
  if (!title().isEmpty()) painter.setClipRegion(QRegion(rect()) - QRegion(caption));
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRoundedRect(line, 2, 2);
  painter.setClipping(false);
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  painter.drawText(caption, Qt::AlignCenter | Qt::TextShowMnemonic, title());
}

}  // namespace qvn::qt
