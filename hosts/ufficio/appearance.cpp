#include "hosts/ufficio/appearance.h"

#include <QApplication>
#include <QColor>

namespace qvn::ufficio {

namespace {

QPalette darkPalette() {
  const QColor window(0x3A, 0x3C, 0x40);
  const QColor base(0x1E, 0x20, 0x22);
  const QColor text(0xEC, 0xEC, 0xEC);
  const QColor faint(0xB0, 0xB2, 0xB6);
  QPalette palette(QColor(0x48, 0x4B, 0x50), window);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, text);
    palette.setColor(QPalette::Disabled, role, faint);
  }
  palette.setColor(QPalette::Base, base);
  palette.setColor(QPalette::AlternateBase, window);
  palette.setColor(QPalette::ToolTipBase, base);
  palette.setColor(QPalette::PlaceholderText, faint);
  palette.setColor(QPalette::Highlight, QColor(0x1F, 0x6F, 0xC4));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(0x6C, 0xB2, 0xFF));
  return palette;
}

}  // namespace

void wear(Appearance appearance) {
  static const QPalette desktop = QApplication::palette();
  QApplication::setPalette(appearance == Appearance::Dark ? darkPalette() : desktop);
}

}  // namespace qvn::ufficio
