// What a window is to have again when the program is started the next time.
#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>

namespace qvn::ufficio {

struct WindowState {
  QByteArray geometry;
  QByteArray parts;  ///< where its parts are divided
  QString screen;    ///< the name of the one that was shown last; empty for none
  bool dark = false;
};

/// What is not there, or of another kind, is as in a new WindowState.
WindowState stateIn(const QSettings& settings);
void keep(const WindowState& state, QSettings& settings);

}  // namespace qvn::ufficio
