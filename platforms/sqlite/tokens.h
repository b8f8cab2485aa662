// The parts of a statement's text, as SQLite divides it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace qvn::sqlite {

enum class TokenKind : std::uint8_t {
  End,         ///< nothing is left
  Blank,       ///< blanks or a comment
  Word,        ///< a keyword or a bare name
  QuotedName,  ///< in double quotes, backquotes or brackets
  Text,        ///< in single quotes, quotes within doubled
  Integer,     ///< decimal digits alone
  Number,      ///< any other number
  Comparison,  ///< = == <> != < <= > >=
  Division,    ///< /
  Open,        ///< (
  Close,       ///< )
  Semicolon,
  Other,      ///< another operator, or a binary literal
  Parameter,  ///< ?, ?1, :name, @name, $name
  Unknown,    ///< what SQLite does not know, or does not find the end of
};

struct Token {
  TokenKind kind;
  std::size_t end;  ///< the place behind it
};

/// The token that begins at a place of the text. Tokens follow each other without gaps.
Token tokenAt(std::string_view text, std::size_t at);

}  // namespace qvn::sqlite
