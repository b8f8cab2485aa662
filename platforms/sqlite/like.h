// Like as the statements expect it: accented letters match without regard to case too.
#pragma once

#include <sqlite3.h>
#include <string_view>

namespace qvn::sqlite {

/// Whether a text matches a pattern, in which "%" stands for any run of characters and "_" for any one. Letters match
/// without regard to case, as far as U+00DE. A character behind the escape stands for itself; '\0' is no escape.
bool isLike(std::string_view text, std::string_view pattern, char32_t escape = 0);

/// Makes it known to a database as the operator Regexp, which stands in expressions as Like does. The database's own
/// Like stays, since no other finds a text's beginning by an index.
void addRegexp(sqlite3& database);

}  // namespace qvn::sqlite
