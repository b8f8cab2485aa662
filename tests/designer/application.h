// The Qt application of tests that have no platform of their own.
#pragma once

#include <QApplication>

namespace qvn::test {

/// On Qt's own display, which nobody sees.
inline QApplication& application() {
  static const bool offscreen = qputenv("QT_QPA_PLATFORM", "offscreen");
  static_cast<void>(offscreen);
  static int count = 1;
  static char program[] = "qvn_designer_plugin_test";
  static char* words[] = {program, nullptr};
  static QApplication& instance = *new QApplication(count, words);
  return instance;
}

}  // namespace qvn::test
