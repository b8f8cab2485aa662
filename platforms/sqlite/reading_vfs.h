// The operating system's files as SQLite sees them through the driver: there to be read.
#pragma once

namespace qvn::sqlite {

/// The name of the file layer, which is made known to SQLite at the first call. It opens nothing for writing, creates
/// nothing and deletes nothing, whatever SQLite asks for.
const char* readingVfs();

}  // namespace qvn::sqlite
