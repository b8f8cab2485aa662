// Why something did not work, for the operator.
#pragma once

#include <QString>
#include <exception>

namespace qvn::ufficio {

/// A clause in Italian; the library's own words stand in it as they are, in brackets.
QString reasonOf(const std::exception& failure);

/// What an operator calls the event of a field.
QString spokenEvent(const QString& event);

}  // namespace qvn::ufficio
