#include "platforms/qt/colours.h"

#include <QColor>

#include "qvn/toolkit/layout.h"

namespace qvn::qt {

namespace {

QColor colourOf(std::uint32_t bgr) {
  return {static_cast<int>(bgr & 0xFFU), static_cast<int>((bgr >> 8U) & 0xFFU), static_cast<int>((bgr >> 16U) & 0xFFU)};
}

bool isDark(const QColor& colour) { return qGray(colour.rgb()) < 128; }

/// A colour that can be read on a back: what is dark on dark becomes light, in its own hue.
QColor readable(const QColor& text, const QColor& back) {
  if (!isDark(text) || !isDark(back)) return text;
  constexpr int kLight = 180;
  constexpr int kWhite = 255;
  const QColor hue = text.toHsl();
  return QColor::fromHsl(hue.hslHue(), hue.hslSaturation(), hue.lightness() == 0 ? kWhite : kLight);
}

QColor between(const QColor& a, const QColor& b) {
  return {(a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2};
}

}  // namespace

QPalette fieldColours(const QPalette& desktop, std::uint32_t back, std::uint32_t fore) {
  const bool plain = back == toolkit::kWhite;
  const QColor base = plain ? desktop.color(QPalette::Active, QPalette::Base) : colourOf(back);
  const QColor text = plain && fore == toolkit::kBlack ? desktop.color(QPalette::Active, QPalette::Text)
                                                       : readable(colourOf(fore), base);
  QPalette palette = desktop;
  for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Button}) palette.setColor(role, base);
  for (const QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, text);
    palette.setColor(QPalette::Disabled, role, between(text, base));
  }
  return palette;
}

QPalette textColours(const QPalette& desktop, std::uint32_t fore) {
  QPalette palette = desktop;
  if (fore == toolkit::kBlack) return palette;
  const QColor text = readable(colourOf(fore), desktop.color(QPalette::Active, QPalette::Window));
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::ButtonText}) palette.setColor(role, text);
  return palette;
}

}  // namespace qvn::qt
