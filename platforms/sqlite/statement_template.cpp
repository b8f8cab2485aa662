#include "platforms/sqlite/statement_template.h"

#include <algorithm>
#include <charconv>
#include <system_error>

#include "platforms/sqlite/guards.h"
#include "platforms/sqlite/tokens.h"
#include "qvn/shared/names.h"

namespace qvn::sqlite {

namespace {

struct Replacement {
  std::string_view written;
  std::string_view by;  ///< spelled so that no statement is likely to hold it
};

/// Multiplies by a real one before it divides.
constexpr Replacement kDivision{"/", "*1e0/"};
constexpr Replacement kLike{"Like", "rEgExP"};

/// The first token from a place on that is no blank.
Token behindBlanks(std::string_view sql, std::size_t at) {
  Token token = tokenAt(sql, at);
  while (token.kind == TokenKind::Blank) token = tokenAt(sql, token.end);
  return token;
}

/// Whether the pattern at a place is a literal of ASCII that says how a text begins or what it is, and nothing more.
bool isPlainPattern(std::string_view sql, std::size_t at) {
  const Token pattern = behindBlanks(sql, at);
  if (pattern.kind != TokenKind::Text) return false;
  switch (behindBlanks(sql, pattern.end).kind) {
    case TokenKind::End:
    case TokenKind::Close:
    case TokenKind::Semicolon:
    case TokenKind::Word:
      break;
    default:
      return false;  // the literal may be but a part of it
  }
  const std::string_view text = sql.substr(at, pattern.end - 1 - at);
  const auto* const special =
      std::ranges::find_if(text, [](char c) { return c == '%' || c == '_' || static_cast<unsigned char>(c) >= 0x80; });
  return special == text.end() || (*special == '%' && special + 1 == text.end());
}

/// Takes a literal to be bound; false if it has to stay where it is.
bool take(std::string_view source, TokenKind kind, std::vector<Literal>& literals) {
  if (literals.size() == static_cast<std::size_t>(kMostBound)) return false;
  Literal literal{.source = source};
  if (kind == TokenKind::Text) {
    if (literal.text().find('\'') != std::string_view::npos) return false;
  } else if (std::from_chars(source.data(), source.data() + source.size(), literal.number).ec != std::errc()) {
    return false;
  }
  literals.push_back(literal);
  return true;
}

}  // namespace

void StatementTemplate::read(std::string_view sql, bool binding) {
  text_.clear();
  literals_.clear();
  renames_ = false;
  if (rewrite(sql, binding)) return;
  text_ = sql;
  literals_.clear();
  renames_ = false;
}

bool StatementTemplate::rewrite(std::string_view sql, bool binding) {
  std::size_t copied = 0;
  const auto replace = [&](std::size_t begin, std::size_t end, std::string_view by) {
    text_.append(sql, copied, begin - copied).append(by);
    copied = end;
  };

  TokenKind before = TokenKind::Other;
  int depth = 0;
  bool filters = false;
  for (std::size_t begin = 0;;) {
    const auto [kind, end] = tokenAt(sql, begin);
    switch (kind) {
      case TokenKind::End:
        text_.append(sql, copied);
        return true;
      case TokenKind::Unknown:
      case TokenKind::Parameter:
        return false;
      case TokenKind::Open:
        ++depth;
        break;
      case TokenKind::Close:
        --depth;
        break;
      case TokenKind::Word: {
        const std::string_view word = sql.substr(begin, end - begin);
        if (binding && depth == 0 && !filters) filters = sameName(word, "where") || sameName(word, "having");
        if (sameName(word, kLike.written) && !isPlainPattern(sql, end)) {
          replace(begin, end, kLike.by);
          renames_ = true;
        }
        break;
      }
      case TokenKind::Division:
        replace(begin, end, kDivision.by);
        renames_ = true;
        break;
      case TokenKind::Text:
      case TokenKind::Integer:
        // Digits behind it would become the parameter's number.
        if (filters && !(end < sql.size() && sql[end] >= '0' && sql[end] <= '9') && before == TokenKind::Comparison &&
            take(sql.substr(begin, end - begin), kind, literals_))
          replace(begin, end, "?");
        break;
      default:
        break;
    }
    if (kind != TokenKind::Blank) before = kind;
    begin = end;
  }
}

std::string StatementTemplate::asWritten(std::string_view said) const {
  std::string all(said);
  if (!renames_) return all;
  for (const auto& [written, by] : {kDivision, kLike}) {
    for (auto at = all.find(by); at != std::string::npos; at = all.find(by, at + written.size()))
      all.replace(at, by.size(), written);
  }
  return all;
}

bool isBare(std::string_view text) {
  std::size_t at = 0;
  while (true) {
    const auto [kind, end] = tokenAt(text, at);
    if (kind == TokenKind::End) return true;
    if (kind != TokenKind::Blank && kind != TokenKind::Semicolon) return false;
    at = end;
  }
}

}  // namespace qvn::sqlite
