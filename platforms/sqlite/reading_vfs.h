// The operating system's files as SQLite sees them through the driver: there to be read.
#pragma once

namespace qvn::sqlite {

/// The name of the file layer, which is made known to SQLite at the first call. It opens nothing for writing, creates
/// nothing and deletes nothing, whatever SQLite asks for. Fails with std::bad_alloc where SQLite cannot be had for want
/// of memory.
const char* readingVfs();

}  // namespace qvn::sqlite
