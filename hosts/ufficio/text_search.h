// What the statements that find records look for texts with.
#pragma once

#include <sqlite3.h>

namespace qvn::ufficio {

/// Gives a connection the function holds(TEXT, PART): whether the part stands somewhere in the text, without regard to
/// the case of any letter, those with an accent among them. False where either is Null. A result code of SQLite.
int addHolds(sqlite3& database);

}  // namespace qvn::ufficio
