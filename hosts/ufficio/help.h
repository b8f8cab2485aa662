// What F1 tells about a screen.
#pragma once

#include <QMenuBar>
#include <QString>
#include <QWidget>
#include <string_view>

namespace qvn::ufficio {

/// What a screen is for and what its fields take, as rich text; empty for one that is not of the register.
QString helpOn(std::string_view screen);

/// The keys of all commands of a window's menus, as rich text.
QString keysOf(const QMenuBar& menus);

/// Shows a text in a window of its own before the parent. Escape closes it.
void showHelp(QWidget& parent, const QString& title, const QString& text);

}  // namespace qvn::ufficio
