// From panel to panel by the keyboard, past the fields between and to those that are not in view.
#pragma once

#include <QWidget>
#include <span>

#include "platforms/qt/platform.h"
#include "qvn/toolkit/panel.h"

namespace qvn::ufficio {

/// The first field of a panel that can be typed into; null where there is none.
QWidget* firstFieldOf(qt::Platform& platform, const Panel& panel);

/// The panel around a widget; null where there is none.
const Panel* panelAround(qt::Platform& platform, std::span<Panel* const> panels, const QWidget* widget);

/// The first field of the panel that follows, or stands before, the one around a widget, of those that can be typed
/// into; from outside of all, the first panel follows. Null where there is none.
QWidget* fieldOfNeighbour(qt::Platform& platform, std::span<Panel* const> panels, const QWidget* from, bool forwards);

}  // namespace qvn::ufficio
