// From twips to the pixels of a screen.
#pragma once

#include <QRect>
#include <QWidget>
#include <cmath>
#include <cstdint>

#include "qvn/toolkit/layout.h"

namespace qvn::qt {

inline constexpr double kTwipsPerInch = 1440;

inline int pixels(std::int32_t twips, int dotsPerInch) {
  return static_cast<int>(std::lround(twips * static_cast<double>(dotsPerInch) / kTwipsPerInch));
}

inline std::int32_t twips(int pixels, int dotsPerInch) {
  return static_cast<std::int32_t>(std::lround(pixels * kTwipsPerInch / dotsPerInch));
}

/// Edges are rounded and not sizes, so that what touches in twips touches in pixels.
inline QRect pixels(const toolkit::Place& place, const QWidget& on) {
  const int x = on.logicalDpiX();
  const int y = on.logicalDpiY();
  const QPoint first(pixels(place.left, x), pixels(place.top, y));
  const QPoint behind(pixels(place.left + place.width, x), pixels(place.top + place.height, y));
  return {first, QSize(behind.x() - first.x(), behind.y() - first.y())};
}

}  // namespace qvn::qt
