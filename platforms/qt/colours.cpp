#include "platforms/qt/colours.h"

#include <QColor>
#include <algorithm>
#include <array>
#include <cmath>

#include "qvn/toolkit/layout.h"

namespace qvn::qt {

namespace {

QColor colourOf(std::uint32_t bgr) {
  return {static_cast<int>(bgr & 0xFFU), static_cast<int>((bgr >> 8U) & 0xFFU), static_cast<int>((bgr >> 16U) & 0xFFU)};
}

/// The light that one of the three colours gives, of 1.
double lightOf(int channel) {
  static const auto lights = [] {
    std::array<double, 256> all{};
    for (std::size_t i = 0; i < all.size(); ++i) {
      const double share = static_cast<double>(i) / 255.0;
      all.at(i) = share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    }
    return all;
  }();
  return lights.at(static_cast<std::size_t>(channel));
}

double luminance(const QColor& colour) {
  return 0.2126 * lightOf(colour.red()) + 0.7152 * lightOf(colour.green()) + 0.0722 * lightOf(colour.blue());
}

/// The colour itself if it can be read on that back, or else the nearest one of its hue that can.
QColor readable(const QColor& text, const QColor& back) {
  const QColor hue = text.toHsl();
  const int step = contrast(Qt::white, back) > contrast(Qt::black, back) ? 1 : -1;
  QColor found = text;
  for (int lightness = hue.lightness(); contrast(found, back) < kReadable && lightness >= 0 && lightness <= 255;
       lightness += step) {
    found = QColor::fromHsl(hue.hslHue(), hue.hslSaturation(), lightness).toRgb();
  }
  return found;
}

/// What stands between two colours, that many hundredths of the way to the second.
QColor between(const QColor& from, const QColor& to, int hundredths) {
  const auto channel = [hundredths](int a, int b) { return a + (b - a) * hundredths / 100; };
  return {channel(from.red(), to.red()), channel(from.green(), to.green()), channel(from.blue(), to.blue())};
}

QColor switchedOff(const QColor& text, const QColor& back) {
  constexpr int kPaler = 45;
  return readable(between(text, back, kPaler), back);
}

void setText(QPalette& palette, QPalette::ColorRole role, const QColor& text, const QColor& back,
             const QColor& backOff) {
  palette.setColor(role, readable(text, back));
  palette.setColor(QPalette::Disabled, role, switchedOff(text, backOff));
}

}  // namespace

double contrast(const QColor& text, const QColor& back) {
  const auto [darker, lighter] = std::minmax({luminance(text), luminance(back)});
  return (lighter + 0.05) / (darker + 0.05);
}

QPalette fieldColours(const QPalette& desktop, std::uint32_t back, std::uint32_t fore) {
  const bool plain = back == toolkit::kWhite;
  const QColor base = plain ? desktop.color(QPalette::Active, QPalette::Base) : colourOf(back);
  const QColor baseOff = plain ? desktop.color(QPalette::Active, QPalette::Window) : base;
  const QColor text =
      plain && fore == toolkit::kBlack ? desktop.color(QPalette::Active, QPalette::Text) : colourOf(fore);
  QPalette palette = desktop;
  for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Button}) {
    palette.setColor(role, base);
    palette.setColor(QPalette::Disabled, role, baseOff);
  }
  for (const QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText}) {
    setText(palette, role, text, base, baseOff);
  }
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
    const QColor selected = desktop.color(group, QPalette::HighlightedText);
    palette.setColor(group, QPalette::Highlight, readable(desktop.color(group, QPalette::Highlight), selected));
  }
  return palette;
}

QPalette labelColours(const QPalette& desktop, std::uint32_t back, std::uint32_t fore) {
  QPalette palette = fieldColours(desktop, back, fore);
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    palette.setColor(group, QPalette::Window, palette.color(group, QPalette::Base));
    palette.setColor(group, QPalette::WindowText, palette.color(group, QPalette::Text));
  }
  return palette;
}

QColor lineColour(const QPalette& desktop) {
  constexpr int kFaint = 30;
  return between(desktop.color(QPalette::Active, QPalette::Window),
                 desktop.color(QPalette::Active, QPalette::WindowText), kFaint);
}

QPalette textColours(const QPalette& desktop, std::uint32_t fore) {
  QPalette palette = desktop;
  const QColor window = desktop.color(QPalette::Active, QPalette::Window);
  const QColor text = fore == toolkit::kBlack ? desktop.color(QPalette::Active, QPalette::WindowText) : colourOf(fore);
  setText(palette, QPalette::WindowText, text, window, window);
  const QColor button = desktop.color(QPalette::Active, QPalette::Button);
  const QColor onButton =
      fore == toolkit::kBlack ? desktop.color(QPalette::Active, QPalette::ButtonText) : colourOf(fore);
  setText(palette, QPalette::ButtonText, onButton, button, button);
  return palette;
}

}  // namespace qvn::qt
