// What statements have in common that differ only in the values that they compare with.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qvn::sqlite {

/// A literal that was taken out of a statement.
struct Literal {
  std::string_view source;  ///< as it stands in the statement, quotes included
  std::int64_t number = 0;  ///< what it says, if it is no text

  bool isText() const { return source.front() == '\''; }
  std::string_view text() const { return source.substr(1, source.size() - 2); }
};

/// A statement's text made ready for the database, its buffers used again from one statement to the next.
///
/// - A division becomes one that gives a fraction.
/// - Like becomes Regexp (like.h), but not before a beginning ('abc%') or a whole text that is a literal of ASCII:
/// there
///   the database's own gives the same answer, and may give it by an index.
/// - A text or an integer right behind a comparison becomes a parameter, so that statements that differ in nothing else
///   share their text. This holds behind the first Where or Having outside of brackets only: what stands before may
///   name a column of the answer.
/// - A text that cannot be told apart into tokens, or that has parameters of its own, stays as it is.
class StatementTemplate {
 public:
  /// Takes a statement in. The literals point into it. Without binding no literal is taken out.
  void read(std::string_view sql, bool binding = true);

  const std::string& text() const { return text_; }
  const std::vector<Literal>& literals() const { return literals_; }

  /// What the database says, a column's name or a reason, as it follows from the statement as it was written.
  std::string asWritten(std::string_view said) const;

 private:
  bool rewrite(std::string_view sql, bool binding);

  std::string text_;
  std::vector<Literal> literals_;
  bool renames_ = false;  ///< what the database says may quote what was put in
};

/// Whether a text holds no statement: blanks, comments and semicolons at most.
bool isBare(std::string_view text);

}  // namespace qvn::sqlite
