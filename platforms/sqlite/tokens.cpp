#include "platforms/sqlite/tokens.h"

#include <algorithm>
#include <array>

namespace qvn::sqlite {

namespace {

constexpr bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\f' || c == '\r'; }
constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

constexpr std::array<bool, 256> kNameBytes = [] {
  std::array<bool, 256> bytes{};
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    bytes.at(i) =
        (i >= '0' && i <= '9') || (i >= 'A' && i <= 'Z') || (i >= 'a' && i <= 'z') || i == '_' || i == '$' || i >= 0x80;
  }
  return bytes;
}();
bool isNameByte(char c) { return kNameBytes[static_cast<unsigned char>(c)]; }

/// The byte at a place, '\0' behind the end.
char at(std::string_view text, std::size_t place) { return place < text.size() ? text[place] : '\0'; }

std::size_t behindName(std::string_view text, std::size_t place) {
  while (place < text.size() && isNameByte(text[place])) ++place;
  return place;
}

std::size_t behindDigits(std::string_view text, std::size_t place) {
  while (isDigit(at(text, place))) ++place;
  return place;
}

Token quoted(TokenKind kind, std::string_view text, std::size_t begin) {
  const char quote = text[begin];
  for (std::size_t close = text.find(quote, begin + 1); close != std::string_view::npos;
       close = text.find(quote, close + 2)) {
    if (at(text, close + 1) != quote) return {kind, close + 1};
  }
  return {TokenKind::Unknown, text.size()};
}

Token upTo(TokenKind kind, TokenKind unfinished, std::string_view text, std::size_t from, std::string_view close) {
  const std::size_t end = text.find(close, from);
  return end == std::string_view::npos ? Token{unfinished, text.size()} : Token{kind, end + close.size()};
}

Token number(std::string_view text, std::size_t begin) {
  if (text[begin] == '0' && (at(text, begin + 1) == 'x' || at(text, begin + 1) == 'X'))
    return {TokenKind::Number, behindName(text, begin)};
  TokenKind kind = TokenKind::Integer;
  std::size_t end = behindDigits(text, begin);
  if (at(text, end) == '.') {
    kind = TokenKind::Number;
    end = behindDigits(text, end + 1);
  }
  if (at(text, end) == 'e' || at(text, end) == 'E') {
    const bool isSigned = at(text, end + 1) == '+' || at(text, end + 1) == '-';
    if (const std::size_t digits = end + (isSigned ? 2 : 1); isDigit(at(text, digits))) {
      kind = TokenKind::Number;
      end = behindDigits(text, digits);
    }
  }
  if (end < text.size() && isNameByte(text[end])) return {TokenKind::Unknown, behindName(text, end)};
  return {kind, end};
}

}  // namespace

Token tokenAt(std::string_view text, std::size_t begin) {
  if (begin >= text.size()) return {TokenKind::End, text.size()};
  const char first = text[begin];
  const char second = at(text, begin + 1);
  switch (first) {
    case ' ':
    case '\t':
    case '\n':
    case '\f':
    case '\r': {
      std::size_t end = begin + 1;
      while (end < text.size() && isBlank(text[end])) ++end;
      return {TokenKind::Blank, end};
    }
    case '\'':
      return quoted(TokenKind::Text, text, begin);
    case '"':
    case '`':
      return quoted(TokenKind::QuotedName, text, begin);
    case '[':
      return upTo(TokenKind::QuotedName, TokenKind::Unknown, text, begin, "]");
    case '-':
      if (second == '-') return upTo(TokenKind::Blank, TokenKind::Blank, text, begin, "\n");
      // The arrows must not be taken for a minus and a comparison.
      if (second == '>') return {TokenKind::Other, begin + (at(text, begin + 2) == '>' ? 3U : 2U)};
      return {TokenKind::Other, begin + 1};
    case '/':
      if (second != '*') return {TokenKind::Division, begin + 1};
      if (begin + 2 >= text.size()) return {TokenKind::Unknown, text.size()};
      return upTo(TokenKind::Blank, TokenKind::Blank, text, begin + 2, "*/");
    case '=':
      return {TokenKind::Comparison, begin + (second == '=' ? 2U : 1U)};
    case '<':
      if (second == '<') return {TokenKind::Other, begin + 2};
      return {TokenKind::Comparison, begin + (second == '=' || second == '>' ? 2U : 1U)};
    case '>':
      if (second == '>') return {TokenKind::Other, begin + 2};
      return {TokenKind::Comparison, begin + (second == '=' ? 2U : 1U)};
    case '!':
      if (second == '=') return {TokenKind::Comparison, begin + 2};
      return {TokenKind::Unknown, begin + 1};
    case '(':
      return {TokenKind::Open, begin + 1};
    case ')':
      return {TokenKind::Close, begin + 1};
    case ';':
      return {TokenKind::Semicolon, begin + 1};
    case '*':
    case '+':
    case ',':
    case '%':
    case '&':
    case '|':
    case '~':
      return {TokenKind::Other, begin + 1};
    case '?':
      return {TokenKind::Parameter, behindDigits(text, begin + 1)};
    case ':':
    case '@':
    case '#':
    case '$':
      return {TokenKind::Parameter, behindName(text, begin + 1)};
    case '.':
      return isDigit(second) ? number(text, begin) : Token{TokenKind::Other, begin + 1};
    case 'x':
    case 'X':
      if (second == '\'') return {TokenKind::Other, quoted(TokenKind::Other, text, begin + 1).end};
      break;
    default:
      break;
  }
  if (isDigit(first)) return number(text, begin);
  if (isNameByte(first)) return {TokenKind::Word, behindName(text, begin)};
  return {TokenKind::Unknown, begin + 1};
}

}  // namespace qvn::sqlite
