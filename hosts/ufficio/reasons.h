// Why something did not work, for the operator.
#pragma once

#include <QString>
#include <exception>

#include "qvn/shared/failure.h"

namespace qvn::ufficio {

/// A clause in Italian; the library's own words stand in it as they are, in brackets.
QString reasonOf(const std::exception& failure);
/// The same of a failure of the library, by its kind and its words.
QString reasonOf(FailureKind kind, const QString& words);

/// What an operator calls the event of a field.
QString spokenEvent(const QString& event);

}  // namespace qvn::ufficio
