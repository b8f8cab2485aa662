// What becomes of changes that are not stored.
#pragma once

#include <QString>
#include <QWidget>
#include <cstdint>
#include <functional>

namespace qvn::ufficio {

enum class Unsaved : std::uint8_t {
  Save,     ///< store them, and go on
  Discard,  ///< go on without them
  Stay,     ///< go on with nothing
};

/// Asks the operator about the changes of the record of that text.
using AskUnsaved = std::function<Unsaved(const QString& record)>;

/// By a window before all others: "Salva", "Non salvare", "Continua a modificare".
Unsaved askInWindow(QWidget& parent, const QString& record);

}  // namespace qvn::ufficio
