// SQLite files as databases of the library: "sqlite:" and a path.
#pragma once

#include "qvn/toolkit/database.h"

namespace qvn::sqlite {

/// The driver for connection strings "sqlite:PATH", PATH being a file's path in UTF-8, relative ones from the working
/// directory; it is taken as a path whatever it looks like ("sqlite:file:x", "sqlite::memory:"). Lives as long as the
/// program.
///
/// What it opens is read and never written: no statement changes the file, and nothing is created or deleted beside it.
/// Opening fails with "database" if the path names no readable database: missing, a folder, another kind of file, left
/// in the middle of a change by a program that broke off, or locked by a writer for longer than kBusyMilliseconds
/// (guards.h). A file of no bytes is a database without tables. One that is in the journal mode WAL opens where its
/// "-wal" and "-shm" files lie beside it, as they do while its host has it open; without them it cannot be opened, as
/// they would have to be created.
///
/// The statements' dialect:
/// - A division gives a fraction, whatever the columns hold, in statements that reach the driver; views keep their own.
/// - Like disregards the case of ASCII letters and of the accented letters of western Europe (U+00C0 to U+00DE), in
///   statements that reach the driver; in views of ASCII letters alone. A beginning in ASCII ("abc%") is found by an
///   index on a text column that disregards case (NOCASE). Regexp is another word for Like. Comparisons by "=" follow
///   the column's own collation.
/// - Columns are named without regard to case; of two with the same name the first counts.
/// - Integers come as 32-bit integers where they fit and as decimals beyond, reals as doubles, texts as texts, Null as
///   Null. A binary value fails with "database" when it is read.
/// - A statement may name the functions that compute from their arguments alone; parameters have no value to take and
///   are refused, as are virtual tables.
toolkit::Driver& driver();

}  // namespace qvn::sqlite
