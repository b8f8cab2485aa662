// Where a print goes to, and how far it is.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "hosts/ufficio/printing.h"

namespace qvn::ufficio {

/// Asks the operator for the file of a print, with a name to begin with; empty where there is to be none.
using AskFile = std::function<QString(const QString& name)>;

/// By a window before all others.
QString askFileInWindow(QWidget& parent, const QString& name);

/// Prints with a bar that shows how far it is and a button that stops it. As Printing::print().
bool printWithBar(QWidget& parent, Printing& printing, Store& store, const QString& file);

}  // namespace qvn::ufficio
