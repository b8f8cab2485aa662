// What the values of a column come as.
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <variant>

#include "tests/sqlite/scratch.h"

namespace qvn::test {
namespace {

class Values : public testing::Test {
 protected:
  Variant valueOf(const std::string& expression) {
    return session_->run({.sql = "Select " + expression + " AS V"})->value("V");
  }

  const ScratchFolder folder_;
  const std::unique_ptr<toolkit::Session> session_ = opened(officeFile(folder_));
};

TEST_F(Values, IntegersAreIntegersAsLongAsTheyFit) {
  EXPECT_EQ(std::get<std::int32_t>(valueOf("0")), 0);
  EXPECT_EQ(std::get<std::int32_t>(valueOf("2147483647")), 2147483647);
  EXPECT_EQ(std::get<std::int32_t>(valueOf("-2147483648")), -2147483647 - 1);
  EXPECT_EQ(std::get<Decimal>(valueOf("2147483648")), Decimal::of(2147483648));
  EXPECT_EQ(std::get<Decimal>(valueOf("-2147483649")), Decimal::of(-2147483649));
  EXPECT_EQ(std::get<Decimal>(valueOf("9223372036854775807")), Decimal::of(9223372036854775807));
  EXPECT_EQ(std::get<Decimal>(valueOf("-9223372036854775807-1")), Decimal::of(-9223372036854775807 - 1));
}

TEST_F(Values, OthersComeAsStored) {
  EXPECT_EQ(std::get<double>(valueOf("12.5")), 12.5);
  EXPECT_EQ(std::get<double>(valueOf("1.0")), 1.0);
  EXPECT_EQ(std::get<std::string>(valueOf("'Niccolò'")), "Niccolò");
  EXPECT_EQ(std::get<std::string>(valueOf("''")), "");
  EXPECT_EQ(std::get<std::string>(valueOf("'12'")), "12");
  EXPECT_EQ(std::get<std::string>(valueOf("'a'||char(0)||'b'")), std::string("a\0b", 3));
  EXPECT_TRUE(isNull(valueOf("NULL")));
}

TEST_F(Values, BinaryOnesFailWhereTheyAreRead) {
  const auto rows = session_->run({.sql = "Select x'00FF' AS B, 5 AS I"});
  EXPECT_EQ(databaseFailureOf([&] { rows->value("b"); }), "the column \"b\" holds a binary value");
  EXPECT_EQ(std::get<std::int32_t>(rows->value("I")), 5);
}

TEST_F(Values, OfALongTextComeWhole) {
  const ScratchFolder folder;
  const std::string file = folder.file("long.db");
  Host(file).exec(
      "CREATE TABLE T (X TEXT, B, Y TEXT); INSERT INTO T VALUES (hex(zeroblob(250000)), zeroblob(3000000), 'y')");
  const auto session = opened(file);
  const auto rows = session->run({.sql = "Select X, Y From T"});
  EXPECT_EQ(std::get<std::string>(rows->value("X")), std::string(500'000, '0'));
  EXPECT_EQ(std::get<std::string>(rows->value("Y")), "y");
  EXPECT_EQ(databaseFailureOf([&] { session->run({.sql = "Select B From T"}); }),
            "the statement cannot be run: string or blob too big; Select B From T");
}

TEST_F(Values, OfUtf16DatabasesAreUtf8) {
  const ScratchFolder folder;
  const std::string file = folder.file("wide.db");
  Host(file).exec(
      "PRAGMA encoding = 'UTF-16le'; CREATE TABLE T (COD TEXT PRIMARY KEY, X TEXT);"
      "INSERT INTO T VALUES ('perù', '€ 1,00')");
  const auto session = opened(file);
  EXPECT_EQ(answerOf(*session, "Select X From T Where COD = 'perù'", {"X"}), (Answer{{"t € 1,00"}}));
  EXPECT_EQ(answerOf(*session, "Select X From T Where COD Like 'PER_'", {"X"}), (Answer{{"t € 1,00"}}));
}

TEST_F(Values, OfColumnsWithOneNameAreTheFirst) {
  const auto rows = session_->run({.sql = "Select 1 AS A, 2 AS a"});
  EXPECT_EQ(std::get<std::int32_t>(rows->value("a")), 1);
}

TEST_F(Values, OfNoSuchColumnFail) {
  const auto rows = session_->run({.sql = "Select IVA, DESCRIZIONE From TIPI_IVA"});
  EXPECT_EQ(databaseFailureOf([&] { rows->value("ALIQUOTA"); }),
            "the answer has no column \"ALIQUOTA\"; it has: \"IVA\" \"DESCRIZIONE\"");
}

TEST_F(Values, OfNoRowFail) {
  const auto rows = session_->run({.sql = "Select IVA From TIPI_IVA Where COD_IVA = 9"});
  EXPECT_TRUE(rows->atEnd());
  EXPECT_EQ(databaseFailureOf([&] { rows->value("IVA"); }), "there is no row to read the column \"IVA\" of");
  EXPECT_EQ(databaseFailureOf([&] { rows->next(); }), "there is no row behind the last one");
}

}  // namespace
}  // namespace qvn::test
