// The colours of the library as Qt's.
#pragma once

#include <QPalette>
#include <cstdint>

namespace qvn::qt {

/// How well a text of one colour stands out on a back of another, by the rule of the web's guidelines for content that
/// all can read: from 1, not at all, to 21, black on white.
double contrast(const QColor& text, const QColor& back);

/// The contrast that every text of a panel has at least, those that are switched off among them.
inline constexpr double kReadable = 4.5;

/// The palette of a field in these colours: white and black, which fields have of themselves, are the desktop's own
/// colours of a field and its text, light or dark; any other back is as told, and any other text in its own hue, as
/// light or as dark as can be read on it. One that is switched off is paler.
QPalette fieldColours(const QPalette& desktop, std::uint32_t back, std::uint32_t fore);

/// The palette of a label with a back of its own, in the colours that a field has.
QPalette labelColours(const QPalette& desktop, std::uint32_t back, std::uint32_t fore);

/// The palette of a text on the desktop's window.
QPalette textColours(const QPalette& desktop, std::uint32_t fore);

/// The colour of the lines around frames and labels, which are seen on every window and take no eye from the texts.
QColor lineColour(const QPalette& desktop);

}  // namespace qvn::qt
