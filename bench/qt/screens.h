// The library as a benchmark of the screen finds it: on Qt's own display, with a host that listens and does nothing.
#pragma once

#include <QWidget>
#include <string>

#include "bench/panels/office.h"
#include "platforms/qt/platform.h"

namespace qvn::bench {

struct ScreenOffice {
  /// Before the database of that connection string.
  ScreenOffice(toolkit::Driver& driver, const std::string& connection);
  ~ScreenOffice();
  ScreenOffice(const ScreenOffice&) = delete;
  ScreenOffice& operator=(const ScreenOffice&) = delete;

  QWidget& widgetOf(toolkit::Widget& widget) { return *platform.widgetOf(static_cast<const toolkit::Widget&>(widget)); }

  qt::OffscreenPlatform platform;
  Host host;
};

/// Puts a panel or its like into a window, as a host does, and shows it until all of it is painted.
void showIn(QWidget& window, QWidget& inside);

}  // namespace qvn::bench
