// Removing records and rows.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "hosts/ufficio/record_desk.h"

namespace qvn::ufficio {

/// Asks the operator whether to go on with what cannot be undone.
using AskToGoOn = std::function<bool(const QString& question)>;

/// By a window before all others: "Elimina", "Annulla".
bool askToRemoveInWindow(QWidget& parent, const QString& question);

/// Removes what can be removed at the screen: the record that is shown, or the row that the focus is in. False where it
/// came to nothing, as the notice tells, or the operator has not wanted to go on.
bool removeAt(RecordDesk& desk, const AskToGoOn& ask);

}  // namespace qvn::ufficio
