// Captions in the places that are laid out for them.
#pragma once

#include <QFont>
#include <QPainter>
#include <QString>
#include <QWidget>
#include <cstdint>

#include "qvn/toolkit/widget.h"

namespace qvn::qt {

/// How many pixels wide a caption is in a font, the marks of its shortcut not counted.
int widthOf(const QString& caption, const QFont& font);

/// Gives the widget letters so narrow that the caption fits into so many pixels, down to two thirds of their own width;
/// letters of their own width where that is enough.
void fitCaption(QWidget& widget, const QString& caption, int room);

/// What a label lacks on either side, in twips: the part that fields cover over which it is laid out, the part outside
/// of what surrounds it, and some air to both.
struct Covered {
  std::int32_t left = 0;
  std::int32_t right = 0;
};

/// Of a label without a border; its caption keeps to what is left.
Covered coveredPart(const toolkit::Widget& label);

/// Draws a thin line just inside a box, along whole dots of the screen at every scale.
void drawLineAround(const QRect& box, const QColor& colour, QPainter& painter);

}  // namespace qvn::qt
