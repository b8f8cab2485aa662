// The wrapper that lets one statement fail.
#include "tests/failing_query.h"

#include <gtest/gtest.h>

#include "tests/failure_matchers.h"
#include "tests/fake_database.h"

namespace qvn::test {
namespace {

class FailingStatement : public testing::Test {
 public:
  FailingStatement() { drivers.add(failing); }

  FakeDriver fake;
  FailingQuery failing{fake};
  toolkit::Drivers drivers;
  toolkit::Connection connection{drivers};
};

TEST_F(FailingStatement, OpensTheDatabaseBehind) {
  connection.Open("failing:fake:ufficio");
  ASSERT_EQ(fake.openings.size(), 1U);
  EXPECT_EQ(fake.openings[0].connectionString, "fake:ufficio");
  EXPECT_EQ(fake.openings[0].rest, "ufficio");
}

TEST_F(FailingStatement, RefusesAnotherDatabaseThanTheOneBehind) {
  EXPECT_FAILURE(connection.Open("failing:sqlite:ufficio"), FailureKind::Database, "sqlite:ufficio");
  EXPECT_TRUE(fake.openings.empty());
}

TEST_F(FailingStatement, IsTheOneOfItsNumberAndNoOther) {
  fake.answers["Select 1"] = {{"A"}, {{std::int32_t{1}}}};
  connection.Open("failing:fake:ufficio");
  for (std::size_t number = 0; number <= 3; ++number) {
    fake.ran.clear();
    failing.failAt(number);
    for (std::size_t i = 1; i <= 3; ++i) {
      if (i == number) {
        EXPECT_FAILURE(connection.run({.sql = "Select 1"}), FailureKind::Database, "Select 1");
      } else {
        EXPECT_EQ(connection.run({.sql = "Select 1"})->value("a"), Variant(std::int32_t{1}));
      }
    }
    EXPECT_EQ(failing.count(), 3U);
    EXPECT_EQ(fake.ran.size(), number == 0 ? 3U : 2U);
  }
}

TEST_F(FailingStatement, IsHeardBeforeItRuns) {
  connection.Open("failing:fake:ufficio");
  std::string heard;
  failing.onStatement = [&](std::string_view sql) { heard.append(sql).append(std::to_string(fake.ran.size())); };
  connection.run({.sql = "Select 2"});
  EXPECT_EQ(heard, "Select 20");
}

}  // namespace
}  // namespace qvn::test
