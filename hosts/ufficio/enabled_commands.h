// Which commands can be given.
#pragma once

#include "hosts/ufficio/commands.h"
#include "hosts/ufficio/record_desk.h"

namespace qvn::ufficio {

/// Enables those that come to something as the desk stands, and disables the others.
void enable(const Commands& commands, const RecordDesk& desk);

}  // namespace qvn::ufficio
