// The panels of a screen, one below the other, as they stand in the window.
#pragma once

#include <QWidget>

#include "hosts/ufficio/screen.h"
#include "platforms/qt/platform.h"

namespace qvn::ufficio {

/// Without a parent, for the window to place. The panels' widgets go with it or with the screen, whichever goes first.
QWidget* makePage(qt::Platform& platform, const Screen& screen);

/// Places the panels that the screen has added since, each where it stands in its order.
void placeAdded(qt::Platform& platform, QWidget& page, const Screen& screen);

/// Scrolls the page that a field stands on until the field is in view, and its whole panel where there is room; under a
/// pressed mouse no further than the field asks for. Does nothing to a field that stands on no such page.
void bringIntoView(QWidget& field);

/// A page over the lines of its screen.
QWidget* placeOver(QWidget* page, QWidget* lines);

}  // namespace qvn::ufficio
