#include "platforms/qt/captions.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "qvn/toolkit/surface.h"

namespace qvn::qt {

namespace {

using toolkit::Align;
using toolkit::Place;
using toolkit::WidgetKind;
using toolkit::WidgetLayout;

constexpr int kNarrowest = 66;     // in hundredths of the letters' own width
constexpr std::int32_t kAir = 45;  // in twips, between a caption and what stands beside it

std::int32_t rightOf(const Place& place) { return place.left + place.width; }
std::int32_t bottomOf(const Place& place) { return place.top + place.height; }

bool overlap(const Place& a, const Place& b) {
  return a.left < rightOf(b) && b.left < rightOf(a) && a.top < bottomOf(b) && b.top < bottomOf(a);
}

/// With what stands free beside a field.
Place withAir(const Place& place) {
  return {.left = place.left - kAir, .top = place.top, .width = place.width + 2 * kAir, .height = place.height};
}

bool isBeside(const WidgetLayout& row, const WidgetLayout& label) {
  const bool solid = row.kind != WidgetKind::Label || row.bordered;
  return solid && row.visible && row.name != label.name && row.frame == label.frame && row.name != label.frame;
}

/// Whether a field stands before the label's text, and not behind it.
bool liesLeft(const Place& field, const WidgetLayout& label) {
  constexpr std::int32_t kAbout = 60;
  if (label.align == Align::Right) return rightOf(field) < rightOf(label.place) - kAbout;
  if (label.align == Align::Left) return field.left <= label.place.left + kAbout;
  return field.left + field.width / 2 < label.place.left + label.place.width / 2;
}

}  // namespace

int widthOf(const QString& caption, const QFont& font) {
  return QFontMetrics(font).size(Qt::TextSingleLine | Qt::TextShowMnemonic, caption).width();
}

void fitCaption(QWidget& widget, const QString& caption, int room) {
  QFont font = widget.font();
  font.setStretch(QFont::Unstretched);
  const int needed = widthOf(caption, font);
  if (needed > room) {
    int stretch = std::max(kNarrowest, 100 * std::max(room, 0) / needed);
    font.setStretch(stretch);
    // Letters are rounded to the dots of the screen one by one.
    while (stretch > kNarrowest && widthOf(caption, font) > room) font.setStretch(--stretch);
  }
  if (font.stretch() != widget.font().stretch()) widget.setFont(font);
}

Covered coveredPart(const toolkit::Widget& label) {
  const WidgetLayout& own = label.layout();
  const std::int32_t inside =
      label.frame() != nullptr ? label.frame()->layout().place.width : label.owner().layout().width;
  Covered covered{.left = std::max(kAir - own.place.left, 0), .right = std::max(rightOf(own.place) + kAir - inside, 0)};
  for (const WidgetLayout& row : label.owner().layout().widgets) {
    const Place place = withAir(row.place);
    if (!isBeside(row, own) || !overlap(place, own.place)) continue;
    if (liesLeft(row.place, own)) {
      covered.left = std::max(covered.left, rightOf(place) - own.place.left);
    } else {
      covered.right = std::max(covered.right, rightOf(own.place) - place.left);
    }
  }
  return covered.left + covered.right < own.place.width ? covered : Covered{};
}

void drawLineAround(const QRect& box, const QColor& colour, QPainter& painter) {
  const QTransform toDots = painter.deviceTransform();
  const QRectF dots = toDots.mapRect(QRectF(box));
  const QPointF first(std::round(dots.left()), std::round(dots.top()));
  const QPointF last(std::round(dots.right()), std::round(dots.bottom()));
  const QRectF whole = toDots.inverted().mapRect(QRectF(first, last));
  const double line = std::max(1.0, std::floor(toDots.m11())) / toDots.m11();
  painter.fillRect(QRectF(whole.left(), whole.top(), whole.width(), line), colour);
  painter.fillRect(QRectF(whole.left(), whole.bottom() - line, whole.width(), line), colour);
  painter.fillRect(QRectF(whole.left(), whole.top(), line, whole.height()), colour);
  painter.fillRect(QRectF(whole.right() - line, whole.top(), line, whole.height()), colour);
}

}  // namespace qvn::qt
