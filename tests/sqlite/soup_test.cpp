// Statements put together by chance.
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <string_view>

#include "platforms/sqlite/statement_template.h"
#include "platforms/sqlite/tokens.h"
#include "tests/sqlite/scratch.h"

namespace qvn::test {
namespace {

constexpr std::string_view kPieces[]{
    "Select",
    "From",
    "Where",
    "Having",
    "Group By",
    "Order By",
    "Union",
    "Insert Into",
    "Update",
    "Delete",
    "Drop Table",
    "Create",
    "Temp",
    "Table",
    "Attach",
    "Pragma",
    "Begin",
    "Vacuum",
    "Into",
    "With",
    "As",
    "And",
    "Or",
    "Not",
    "Like",
    "Is Null",
    "In",
    "Between",
    "Values",
    "Set",
    "Limit",
    "*",
    "MASTRI",
    "MASTRO",
    "DESCRIZIONE",
    "TIPI_IVA",
    "COD_IVA",
    "IVA",
    "[MASTRO]",
    "\"IVA\"",
    "`IVA`",
    "1",
    "0",
    "42",
    "1.5",
    "0x1F",
    "99999999999999999999",
    "'x'",
    "'01'",
    "''",
    "'it''s'",
    "x'00'",
    "NULL",
    "=",
    "<>",
    "<",
    ">",
    "<=",
    ">=",
    "==",
    "!=",
    "/",
    "+",
    "-",
    "||",
    "->>",
    ">>",
    "(",
    ")",
    ",",
    ";",
    "--",
    "/*",
    "*/",
    "'",
    "\"",
    "[",
    "]",
    "`",
    "?",
    "?1",
    ":a",
    ".",
    "\n",
    "Sum(",
    "Count(*)",
    "abs(",
    "load_extension(",
    "è",
    "\xFF",
    "\x01",
    "1e",
    "12ab",
    "^",
    "!",
};

/// A statement of chance; every second one has a beginning that may well make it one.
std::string soup(std::mt19937& random) {
  const auto upTo = [&](std::size_t bound) { return static_cast<std::size_t>(random() % bound); };
  std::string sql = upTo(2) == 0 ? "Select IVA From TIPI_IVA Where COD_IVA =" : "";
  for (std::size_t left = 1 + upTo(14); left > 0; --left) {
    sql += kPieces[upTo(std::size(kPieces))];
    if (upTo(4) != 0) sql += ' ';
  }
  return sql;
}

/// The statement that a template was made of.
std::string putBack(const sqlite::StatementTemplate& statement) {
  constexpr std::string_view kDivision = "*1e0/";
  constexpr std::string_view kLike = "rEgExP";
  const std::string_view text = statement.text();
  std::string sql;
  auto literal = statement.literals().begin();
  for (std::size_t at = 0; at < text.size();) {
    const auto [kind, end] = sqlite::tokenAt(text, at);
    if (kind == sqlite::TokenKind::Parameter) {
      sql += (literal++)->source;
      at = end;
    } else if (text.substr(at).starts_with(kDivision)) {
      sql += '/';
      at += kDivision.size();
    } else if (text.substr(at, end - at) == kLike) {
      sql += "Like";
      at = end;
    } else {
      sql += text.substr(at, end - at);
      at = end;
    }
  }
  return sql;
}

bool isUnderstood(std::string_view sql) {
  for (std::size_t at = 0; at < sql.size();) {
    const auto [kind, end] = sqlite::tokenAt(sql, at);
    if (kind == sqlite::TokenKind::Unknown || kind == sqlite::TokenKind::Parameter) return false;
    at = end;
  }
  return true;
}

TEST(Soup, ComesBackOutOfItsTemplate) {
  std::mt19937 random(1961);
  sqlite::StatementTemplate statement;
  int understood = 0;
  int bound = 0;
  for (int i = 0; i < 20'000; ++i) {
    const std::string sql = soup(random);
    statement.read(sql);
    if (isUnderstood(sql)) {
      ++understood;
      bound += statement.literals().empty() ? 0 : 1;
      EXPECT_EQ(putBack(statement), sql);
    } else {
      EXPECT_EQ(statement.text(), sql);
      EXPECT_TRUE(statement.literals().empty());
    }
  }
  EXPECT_GT(understood, 2'000);
  EXPECT_GT(bound, 300);
}

TEST(Soup, DoesNoHarm) {
  const ScratchFolder folder;
  const std::string file = officeFile(folder);
  const auto before = folder.contents();
  const auto session = opened(file);
  std::mt19937 random(1999);
  int failed = 0;
  int answered = 0;
  for (int i = 0; i < 5'000; ++i) {
    const std::string sql = soup(random);
    const std::string failure = databaseFailureOf([&] {
      for (auto rows = session->run({.sql = sql}); !rows->atEnd();) rows->next();
    });
    ++(failure.empty() ? answered : failed);
    if (i % 100 == 0) {
      ASSERT_EQ(folder.contents(), before) << sql;
    }
  }
  EXPECT_EQ(folder.contents(), before);
  EXPECT_GT(failed, 1'000);
  EXPECT_GT(answered, 30);
  EXPECT_EQ(answerOf(*session, "Select IVA From TIPI_IVA Where COD_IVA = 1", {"IVA"}), (Answer{{"i 22"}}));
}

}  // namespace
}  // namespace qvn::test
