// A database for tests: answers laid down beforehand, every opening and statement recorded.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "qvn/shared/failure.h"
#include "qvn/shared/names.h"
#include "qvn/toolkit/database.h"

namespace qvn::test {

/// What a statement gives: the columns' names and the rows.
struct FakeAnswer {
  std::vector<std::string> columns;
  std::vector<std::vector<Variant>> rows;
  std::size_t failingRow = 0;  ///< the number of the row that cannot be read, from 1
};

struct Ran {
  std::string sql;
  std::int32_t cursorType;
  std::int32_t lockType;
  std::int32_t options;

  friend bool operator==(const Ran&, const Ran&) = default;
};

struct Opened {
  std::string connectionString;
  std::string rest;
  std::string user;
  std::string password;
  std::int32_t options;
  std::int32_t cursorLocation;
  std::string viewer = {};

  friend bool operator==(const Opened&, const Opened&) = default;
};

class FakeDriver final : public toolkit::Driver {
 public:
  std::string_view head() const override { return "fake:"; }

  std::unique_ptr<toolkit::Session> open(const toolkit::Opening& opening) override {
    openings.push_back({std::string(opening.connectionString), std::string(opening.rest), std::string(opening.user),
                        std::string(opening.password), opening.options, opening.cursorLocation,
                        std::string(opening.viewer)});
    if (opening.rest == "refused") throw Failure(FailureKind::Database, "the database \"refused\" cannot be opened");
    return std::make_unique<FakeSession>(*this);
  }

  std::vector<Opened> openings;
  std::vector<Ran> ran;
  std::map<std::string, FakeAnswer, std::less<>> answers;  ///< by statement; one that is not here gives no rows
  std::size_t failingStatement = 0;                        ///< the number of the statement that fails, from 1

 private:
  class FakeRows final : public toolkit::Rows {
   public:
    explicit FakeRows(FakeAnswer answer) : answer_(std::move(answer)) {}
    std::span<const std::string> columns() const override { return answer_.columns; }
    bool atEnd() const override { return row_ >= answer_.rows.size(); }
    void next() override { ++row_; }
    Variant value(std::string_view column) const override {
      if (row_ + 1 == answer_.failingRow) throw Failure(FailureKind::Database, "the row cannot be read");
      for (std::size_t i = 0; i < answer_.columns.size(); ++i) {
        if (sameName(answer_.columns[i], column)) return answer_.rows.at(row_).at(i);
      }
      throw Failure(FailureKind::Database, "the answer has no column \"" + std::string(column) + "\"");
    }

   private:
    FakeAnswer answer_;
    std::size_t row_ = 0;
  };

  class FakeSession final : public toolkit::Session {
   public:
    explicit FakeSession(FakeDriver& driver) : driver_(driver) {}
    std::unique_ptr<toolkit::Rows> run(const toolkit::Statement& statement) override {
      driver_.ran.push_back({std::string(statement.sql), statement.cursorType, statement.lockType, statement.options});
      if (driver_.ran.size() == driver_.failingStatement) {
        throw Failure(FailureKind::Database, "the statement cannot be run: " + std::string(statement.sql));
      }
      const auto found = driver_.answers.find(statement.sql);
      return std::make_unique<FakeRows>(found == driver_.answers.end() ? FakeAnswer{} : found->second);
    }

   private:
    FakeDriver& driver_;
  };
};

}  // namespace qvn::test
