#include "platforms/sqlite/like.h"

#include "platforms/sqlite/guards.h"
#include "qvn/shared/characters.h"

namespace qvn::sqlite {

namespace {

/// The character that begins at a place, which moves behind it. A byte that begins none counts as a character by
/// itself.
char32_t take(std::string_view text, std::size_t& at) {
  const auto lead = static_cast<unsigned char>(text[at++]);
  if (lead < 0x80) return lead;
  const std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
  char32_t character = more == 0 ? lead | 0x80000000U : lead & (0x3FU >> more);
  for (std::size_t i = 0; i < more && at < text.size() && continuesCharacter(text[at]); ++i)
    character = character << 6 | (static_cast<unsigned char>(text[at++]) & 0x3FU);
  return character;
}

constexpr char32_t folded(char32_t c) {
  const bool isUpper = (c >= U'A' && c <= U'Z') || (c >= U'\u00C0' && c <= U'\u00DE' && c != U'\u00D7');
  return isUpper ? c + 0x20 : c;
}

std::string_view textOf(sqlite3_value* value) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return text == nullptr ? std::string_view()
                         : std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value)));
}

/// regexp(pattern, text) or regexp(pattern, text, escape), which is how the operator is called.
void regexp(sqlite3_context* context, int count, sqlite3_value** arguments) {
  if (sqlite3_value_type(arguments[0]) == SQLITE_BLOB || sqlite3_value_type(arguments[1]) == SQLITE_BLOB)
    return sqlite3_result_int(context, 0);
  for (int i = 0; i < count; ++i) {
    if (sqlite3_value_type(arguments[i]) == SQLITE_NULL) return;
  }

  const std::string_view pattern = textOf(arguments[0]);
  const std::string_view text = textOf(arguments[1]);
  if (pattern.size() > static_cast<std::size_t>(kLongestPattern) || pattern.size() * text.size() > kMostCompared)
    return sqlite3_result_error(context, "LIKE pattern too long", -1);
  char32_t escape = 0;
  if (count == 3) {
    const std::string_view sign = textOf(arguments[2]);
    if (characterCount(sign) != 1)
      return sqlite3_result_error(context, "ESCAPE expression must be a single character", -1);
    std::size_t at = 0;
    escape = take(sign, at);
  }
  sqlite3_result_int(context, isLike(text, pattern, escape) ? 1 : 0);
}

}  // namespace

bool isLike(std::string_view text, std::string_view pattern, char32_t escape) {
  constexpr auto kNone = std::string_view::npos;
  std::size_t inText = 0;
  std::size_t inPattern = 0;
  // Where to go on if what follows the last "%" does not match: one more character of the text goes to the "%".
  std::size_t behindRun = kNone;
  std::size_t runEnd = 0;
  while (inText < text.size()) {
    if (inPattern < pattern.size()) {
      std::size_t patternNext = inPattern;
      char32_t wanted = take(pattern, patternNext);
      const bool escaped = escape != 0 && wanted == escape;
      if (escaped) {
        if (patternNext == pattern.size()) return false;
        wanted = take(pattern, patternNext);
      }
      if (!escaped && wanted == U'%') {
        behindRun = inPattern = patternNext;
        runEnd = inText;
        continue;
      }
      std::size_t textNext = inText;
      const char32_t found = take(text, textNext);
      if ((!escaped && wanted == U'_') || folded(wanted) == folded(found)) {
        inPattern = patternNext;
        inText = textNext;
        continue;
      }
    }
    if (behindRun == kNone) return false;
    take(text, runEnd);
    inText = runEnd;
    inPattern = behindRun;
  }
  return escape == U'%' ? inPattern == pattern.size() : pattern.find_first_not_of('%', inPattern) == kNone;
}

void addRegexp(sqlite3& database) {
  for (const int count : {2, 3}) {
    sqlite3_create_function(&database, "regexp", count, SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS, nullptr,
                            regexp, nullptr, nullptr);
  }
}

}  // namespace qvn::sqlite
