#include "platforms/sqlite/like.h"

#include <gtest/gtest.h>
#include <string>

#include "tests/sqlite/scratch.h"

namespace qvn::sqlite {
namespace {

struct Case {
  std::string_view text;
  std::string_view pattern;
  bool matches;
};

constexpr Case kCases[]{
    {"", "", true},
    {"", "%", true},
    {"", "_", false},
    {"a", "", false},
    {"Genova", "gen%", true},
    {"Genova", "%OVA", true},
    {"Genova", "%n%v%", true},
    {"Genova", "gen", false},
    {"Genova", "g_n_v_", true},
    {"Genova", "g_n_v__", false},
    {"aab", "%ab", true},
    {"aaab", "%aab", true},
    {"abcabd", "%abd", true},
    {"abcabd", "%abc", false},
    {"ab", "%%%", true},
    {"ab", "%_%_%", true},
    {"a", "%_%_%", false},
    {"NICCOLÒ", "niccolò", true},
    {"perché", "PERCHÉ", true},
    {"perché", "PERCHE", false},
    {"perù", "per_", true},
    {"€", "_", true},
    {"𝄞", "_", true},
    {"×", "÷", false},
    {"[a]", "[a]", true},
    {"a", "[a]", false},
    {"\xFF", "_", true},
    {"\xFF", "\xFE", false},
    {"\xC3", "_", true},
};

TEST(Like, Matches) {
  for (const auto& [text, pattern, matches] : kCases)
    EXPECT_EQ(isLike(text, pattern), matches) << text << " like " << pattern;
}

TEST(Like, TakesTheCharacterBehindTheEscapeForItself) {
  EXPECT_TRUE(isLike("10%", "10!%", U'!'));
  EXPECT_FALSE(isLike("10x", "10!%", U'!'));
  EXPECT_TRUE(isLike("a_b", "a!_b", U'!'));
  EXPECT_FALSE(isLike("axb", "a!_b", U'!'));
  EXPECT_TRUE(isLike("a!b", "A!!B", U'!'));
  EXPECT_FALSE(isLike("a!", "a!", U'!'));
  EXPECT_TRUE(isLike("a%", "a%%", U'%'));
  EXPECT_FALSE(isLike("a", "a%%", U'%'));
}

// A pattern that makes a careless comparison try every way to divide the text.
TEST(Like, EndsSoonOnManyRuns) {
  std::string pattern;
  for (int i = 0; i < 400; ++i) pattern += "%a";
  EXPECT_FALSE(isLike(std::string(2'000, 'a'), pattern + "b"));
}

/// On ASCII texts it is SQLite's own, value for value, Nulls and binary values included.
TEST(Like, AnswersAsTheDatabaseDoes) {
  const test::ScratchFolder folder;
  const std::string file = folder.file("like.db");
  test::Host host(file);
  host.exec(
      "CREATE TABLE T (V);"
      "INSERT INTO T VALUES ('abc'), ('ABC'), ('a'), (''), ('a%c'), ('a_c'), (12), (1.5), (NULL), (x'616263'), ('ab')");
  const auto session = test::opened(file);
  for (const std::string pattern :
       {"'abc'", "'A%'", "'%c'", "'a_c'", "'_'", "'%'", "''", "'1%'", "NULL", "12", "x'616263'", "'%b%'"}) {
    for (const std::string operation : {" Like ", " Not Like "}) {
      for (const std::string& escape : {std::string(), std::string(" Escape '!'"), std::string(" Escape 'b'")}) {
        const std::string sql = "Select V" + operation + pattern + escape + " AS R From T";
        EXPECT_EQ(test::answerOf(*session, sql, {"R"}), test::plainAnswerOf(host.database(), sql)) << sql;
      }
    }
  }
}

TEST(Like, FindsABeginningByAnIndex) {
  const test::ScratchFolder folder;
  const std::string file = folder.file("like.db");
  test::Host(file).exec(
      "CREATE TABLE T (V TEXT); CREATE INDEX T_V ON T (V COLLATE NOCASE);"
      "INSERT INTO T VALUES ('Rossi'), ('ROSSINI'), ('Rossò'), ('rosa'), ('Bianchi'), ('ÀBaco'), ('àbaco')");
  const auto session = test::opened(file);
  const auto planOf = [&](const std::string& pattern) {
    return test::answerOf(*session, "Explain Query Plan Select V From T Where V Like " + pattern, {"detail"});
  };
  const auto found = [&](const std::string& pattern) {
    return test::answerOf(*session, "Select V From T Where V Like " + pattern + " Order By rowid", {"V"});
  };
  const test::Answer byIndex{{"t SEARCH T USING COVERING INDEX T_V (V>? AND V<?)"}};
  EXPECT_EQ(planOf("'ross%'"), byIndex);
  EXPECT_EQ(planOf("'ROSSI'"), byIndex);
  EXPECT_NE(planOf("'rossò%'"), byIndex);
  EXPECT_NE(planOf("'ross_%'"), byIndex);
  EXPECT_EQ(found("'ross%'"), (test::Answer{{"t Rossi"}, {"t ROSSINI"}, {"t Rossò"}}));
  EXPECT_EQ(found("'ROSSI'"), (test::Answer{{"t Rossi"}}));
  EXPECT_EQ(found("'ROSSÒ%'"), (test::Answer{{"t Rossò"}}));
  EXPECT_EQ(found("'àb%'"), (test::Answer{{"t ÀBaco"}, {"t àbaco"}}));
}

TEST(Like, RefusesWhatItHasNoTimeFor) {
  const test::ScratchFolder folder;
  const auto session = test::opened(test::officeFile(folder));
  const auto failureOf = [&](const std::string& sql) {
    return test::databaseFailureOf([&] { session->run({.sql = sql}); });
  };
  EXPECT_NE(failureOf("Select 'x' Like '" + std::string(1'001, 'x') + "'"), "");
  EXPECT_EQ(failureOf("Select 'x' Like '" + std::string(1'000, 'x') + "'"), "");
  EXPECT_NE(failureOf("Select hex(zeroblob(300000)) Like '%" + std::string(900, '0') + "1'"), "");
  for (const char* escape : {"ab", "èè", ""}) {
    EXPECT_NE(failureOf(std::string("Select 'x' Like 'x' Escape '").append(escape).append("'")), "") << escape;
    EXPECT_NE(failureOf(std::string("Select 'x' Like '_' Escape '").append(escape).append("'")), "") << escape;
  }
}

}  // namespace
}  // namespace qvn::sqlite
