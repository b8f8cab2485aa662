#include "platforms/sqlite/statement_template.h"

#include <charconv>
#include <system_error>

#include "platforms/sqlite/guards.h"
#include "platforms/sqlite/tokens.h"
#include "qvn/shared/names.h"

namespace qvn::sqlite {

namespace {

/// Multiplies by a real one before it divides. Spelled so that no statement is likely to hold it.
constexpr std::string_view kDivision = "*1e0/";

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
  divides_ = false;
  if (rewrite(sql, binding)) return;
  text_ = sql;
  literals_.clear();
  divides_ = false;
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
      case TokenKind::Word:
        if (binding && depth == 0 && !filters) {
          const std::string_view word = sql.substr(begin, end - begin);
          filters = sameName(word, "where") || sameName(word, "having");
        }
        break;
      case TokenKind::Division:
        replace(begin, end, kDivision);
        divides_ = true;
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

std::string StatementTemplate::columnName(std::string_view name) const {
  std::string written;
  while (divides_) {
    const auto division = name.find(kDivision);
    if (division == std::string_view::npos) break;
    written.append(name.substr(0, division)).append("/");
    name.remove_prefix(division + kDivision.size());
  }
  return written.append(name);
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
