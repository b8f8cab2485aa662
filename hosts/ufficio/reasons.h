// Why something did not work, for the operator.
#pragma once

#include <QString>
#include <exception>

#include "qvn/shared/failure.h"

namespace qvn::ufficio {

/// A clause in Italian.
QString reasonOf(const std::exception& failure);
/// The same of a failure of the library, by its kind.
QString reasonOf(FailureKind kind);
/// What the library or the database themselves said, for who looks after them. May be empty.
QString wordsOf(const std::exception& failure);

/// What an operator calls the event of a field.
QString spokenEvent(const QString& event);

}  // namespace qvn::ufficio
