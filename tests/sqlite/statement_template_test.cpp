#include "platforms/sqlite/statement_template.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "platforms/sqlite/tokens.h"

namespace qvn::sqlite {
namespace {

struct Parting {
  std::string_view sql;
  std::string_view text;
  std::vector<std::string_view> literals;
};

std::vector<std::string_view> sourcesOf(const StatementTemplate& statement) {
  std::vector<std::string_view> sources;
  for (const Literal& literal : statement.literals()) sources.push_back(literal.source);
  return sources;
}

TEST(StatementTemplate, TakesOutWhatIsComparedWith) {
  const Parting cases[]{
      {"Select A From T Where B = 'X'", "Select A From T Where B = ?", {"'X'"}},
      {"Select A From T Where B='X' AND C=12", "Select A From T Where B=? AND C=?", {"'X'", "12"}},
      {"Select A From T Where B<>1 And C<2 And D>3 And E<=4 And F>=5",
       "Select A From T Where B<>? And C<? And D>? And "
       "E<=? And F>=?",
       {"1", "2", "3", "4", "5"}},
      {"Select A From T Where B = /* key */ 'X'", "Select A From T Where B = /* key */ ?", {"'X'"}},
      {"Select A From T Group By A HAVING ((A)='')", "Select A From T Group By A HAVING ((A)=?)", {"''"}},
      {"Select A From T Where B In (Select C From U Where D = 'x')",
       "Select A From T Where B In (Select C From U Where D = ?)",
       {"'x'"}},
      // Patterns, other operands and what stands before the filter stay.
      {"Select A From T Where B Like 'X%'", "Select A From T Where B Like 'X%'", {}},
      {"Select A From T Where 'X' = B", "Select A From T Where 'X' = B", {}},
      {"Select A = 'X' From T", "Select A = 'X' From T", {}},
      {"Select (Select A From T Where B = 'X') From T", "Select (Select A From T Where B = 'X') From T", {}},
      {"Select A From T Where B = -1", "Select A From T Where B = -1", {}},
      {"Select A From T Where B = 1.0 Or B = 1e3 Or B = 0x1F Or B = x'31'",
       "Select A From T Where B = 1.0 Or B = 1e3 Or B = 0x1F Or B = x'31'",
       {}},
      {"Select A From T Where B = 9223372036854775808", "Select A From T Where B = 9223372036854775808", {}},
      {"Select A From T Where B = 9223372036854775807", "Select A From T Where B = ?", {"9223372036854775807"}},
      {"Select A From T Where B = 'X'1", "Select A From T Where B = 'X'1", {}},
      {"Select A From T Where B = 'it''s'", "Select A From T Where B = 'it''s'", {}},
      {"Select A From T Where B ->> 'x' And B -> 'y' And B >> 1",
       "Select A From T Where B ->> 'x' And B -> 'y' And B >> "
       "1",
       {}},
      {"Select A From T Where [B = 'x'] = \"C = 'x'\"", "Select A From T Where [B = 'x'] = \"C = 'x'\"", {}},
      {"Select A From T Where B -- = 'x'\n = 'x'", "Select A From T Where B -- = 'x'\n = ?", {"'x'"}},
      // Divisions.
      {"Select A/1000 From T", "Select A*1e0/1000 From T", {}},
      {"Select 'a/b', [a/b], \"a/b\" /* / */ From T -- /", "Select 'a/b', [a/b], \"a/b\" /* / */ From T -- /", {}},
      {"Select A From T Where B = 5/2", "Select A From T Where B = ?*1e0/2", {"5"}},
      // A pattern that the database's own Like takes as the driver's does, and others.
      {"Select A From T Where B lIKE /* % */'X%'", "Select A From T Where B rEgExP /* % */'X%'", {}},
      {"Select A From T Where (B like 'it''s a%') Or B Like'' And C Like '%' Or B Like 'X';",
       "Select A From T Where (B like 'it''s a%') Or B Like'' And C Like '%' Or B Like 'X';",
       {}},
      {"Select A From T Where B like 'X_%' Or B Like '%X' Or B Like 'X%%' Or B Not Like 'è%' Or B Like C Or B Like 1",
       "Select A From T Where B rEgExP 'X_%' Or B rEgExP '%X' Or B rEgExP 'X%%' Or B Not rEgExP 'è%' Or B rEgExP C Or "
       "B rEgExP 1",
       {}},
      {"Select A From T Where B Like 'X' || 'è' Or B Like ('X%') Or like('X%', B)",
       "Select A From T Where B rEgExP 'X' || 'è' Or B rEgExP ('X%') Or rEgExP('X%', B)",
       {}},
      {"Select [Like], \"Like\", 'Like', Likely From T", "Select [Like], \"Like\", 'Like', Likely From T", {}},
      // What is not understood stays whole.
      {"Select A/2 From T Where B = 'X", "Select A/2 From T Where B = 'X", {}},
      {"Select A/2 From T Where B = 'X' And C = ?", "Select A/2 From T Where B = 'X' And C = ?", {}},
      {"Select A/2 From T Where B = 12x", "Select A/2 From T Where B = 12x", {}},
      {"Select A/2 From T Where B = 'X' And [C", "Select A/2 From T Where B = 'X' And [C", {}},
      {"Select A/2 From T Where B = 'X' ^ 1", "Select A/2 From T Where B = 'X' ^ 1", {}},
      {"", "", {}},
  };
  StatementTemplate statement;
  for (const auto& [sql, text, literals] : cases) {
    statement.read(sql);
    EXPECT_EQ(statement.text(), text) << sql;
    EXPECT_EQ(sourcesOf(statement), literals) << sql;
  }
}

TEST(StatementTemplate, SharesItsTextAmongStatementsOfOneKind) {
  StatementTemplate one;
  StatementTemplate other;
  one.read("Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP = 'A'");
  other.read("Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP = 'a much longer code'");
  EXPECT_EQ(one.text(), other.text());
  other.read("Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP <> 'A'");
  EXPECT_NE(one.text(), other.text());
}

TEST(StatementTemplate, TakesOutNoMoreThanCanBeBound) {
  std::string sql = "Select A From T Where A = 0";
  for (int i = 1; i < 100; ++i) sql += " Or A = " + std::to_string(i);
  StatementTemplate statement;
  statement.read(sql);
  EXPECT_EQ(statement.literals().size(), 32U);
  EXPECT_TRUE(statement.text().ends_with("A = ? Or A = 32 Or A = 33" + sql.substr(sql.find(" Or A = 34"))));
}

TEST(StatementTemplate, LeavesLiteralsWhereToldSo) {
  StatementTemplate statement;
  statement.read("Select A From T Where B/2 = 'X'", false);
  EXPECT_EQ(statement.text(), "Select A From T Where B*1e0/2 = 'X'");
  EXPECT_TRUE(statement.literals().empty());
}

TEST(StatementTemplate, TakesBackItsOwnSpellingAlone) {
  StatementTemplate statement;
  statement.read("Select A/2 From T Where B Like '_x'", true);
  EXPECT_EQ(statement.asWritten(statement.text()), "Select A/2 From T Where B Like '_x'");
  statement.read("Select rEgExP From T", true);
  EXPECT_EQ(statement.asWritten("no such column: rEgExP"), "no such column: rEgExP");
}

TEST(Tokens, FollowEachOtherWithoutGaps) {
  struct Part {
    TokenKind kind;
    std::string_view text;
  };
  const Part parts[]{
      {TokenKind::Word, "Select"},
      {TokenKind::Blank, " \t\r\n\f"},
      {TokenKind::QuotedName, "\"a\"\"b\""},
      {TokenKind::QuotedName, "[a'b]"},
      {TokenKind::QuotedName, "`a``b`"},
      {TokenKind::Text, "'a''b'"},
      {TokenKind::Other, "+"},
      {TokenKind::Integer, "12"},
      {TokenKind::Blank, " "},
      {TokenKind::Number, "12."},
      {TokenKind::Blank, " "},
      {TokenKind::Number, ".5e-3"},
      {TokenKind::Comparison, "<>"},
      {TokenKind::Number, "0xAf"},
      {TokenKind::Comparison, "<="},
      {TokenKind::Number, "1E5"},
      {TokenKind::Comparison, "=="},
      {TokenKind::Open, "("},
      {TokenKind::Close, ")"},
      {TokenKind::Comparison, "!="},
      {TokenKind::Word, "però_1$"},
      {TokenKind::Other, "->>"},
      {TokenKind::Other, "->"},
      {TokenKind::Other, "-"},
      {TokenKind::Blank, " "},
      {TokenKind::Blank, "-- x = 'y'\n"},
      {TokenKind::Division, "/"},
      {TokenKind::Blank, "/* / */"},
      {TokenKind::Other, "X'0A'"},
      {TokenKind::Other, "|"},
      {TokenKind::Other, "|"},
      {TokenKind::Parameter, "?12"},
      {TokenKind::Comparison, ">"},
      {TokenKind::Parameter, ":name"},
      {TokenKind::Other, ">>"},
      {TokenKind::Other, "<<"},
      {TokenKind::Comparison, "<"},
      {TokenKind::Semicolon, ";"},
      {TokenKind::Unknown, "^"},
      {TokenKind::Unknown, "12ab"},
      {TokenKind::Other, "."},
      {TokenKind::Word, "x"},
      {TokenKind::Blank, "/* open"},
  };
  std::string text;
  for (const auto& part : parts) text += part.text;
  std::size_t at = 0;
  for (const auto& part : parts) {
    const auto [kind, end] = tokenAt(text, at);
    EXPECT_EQ(text.substr(at, end - at), part.text);
    EXPECT_EQ(kind, part.kind) << part.text;
    at = end;
  }
  EXPECT_EQ(tokenAt(text, at).kind, TokenKind::End);
}

}  // namespace
}  // namespace qvn::sqlite
