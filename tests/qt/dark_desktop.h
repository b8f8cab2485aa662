// A desktop whose windows are dark.
#pragma once

#include <QPalette>

namespace qvn::test {

inline QPalette darkDesktop() {
  QPalette palette(QColor(0x35, 0x35, 0x35), QColor(0x2A, 0x2A, 0x2A));
  palette.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
  palette.setColor(QPalette::Highlight, QColor(0x2A, 0x82, 0xDA));
  return palette;
}

}  // namespace qvn::test
