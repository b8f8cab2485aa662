// A connection on which one statement fails, whatever database stands behind it.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "qvn/shared/failure.h"
#include "qvn/toolkit/database.h"

namespace qvn::test {

/// Stands before another driver and hands every statement on to it, but for the one that is to fail. A connection
/// string is the other driver's behind "failing:", as in "failing:sqlite:ufficio.db".
class FailingQuery final : public toolkit::Driver {
 public:
  explicit FailingQuery(toolkit::Driver& inner) : inner_(inner) {}

  std::string_view head() const override { return "failing:"; }

  std::unique_ptr<toolkit::Session> open(const toolkit::Opening& opening) override {
    if (!opening.rest.starts_with(inner_.head())) {
      throw Failure(FailureKind::Database,
                    std::string(opening.rest).append(" does not begin with ").append(inner_.head()));
    }
    toolkit::Opening behind = opening;
    behind.connectionString = opening.rest;
    behind.rest.remove_prefix(inner_.head().size());
    return std::make_unique<Behind>(*this, inner_.open(behind));
  }

  /// Counts anew: the statement of that number from now on fails with "database", from 1; none does for 0.
  void failAt(std::size_t number) {
    failing_ = number;
    count_ = 0;
  }

  /// Statements since failAt() was last called, the one that failed among them.
  std::size_t count() const { return count_; }

  /// Hears of each statement before it is run; empty for nothing.
  std::function<void(std::string_view sql)> onStatement;

 private:
  class Behind final : public toolkit::Session {
   public:
    Behind(FailingQuery& before, std::unique_ptr<toolkit::Session> session)
        : before_(before), session_(std::move(session)) {}

    std::unique_ptr<toolkit::Rows> run(const toolkit::Statement& statement) override {
      if (before_.onStatement) before_.onStatement(statement.sql);
      if (++before_.count_ == before_.failing_) {
        throw Failure(FailureKind::Database, std::string("the connection was lost at: ").append(statement.sql));
      }
      return session_->run(statement);
    }

   private:
    FailingQuery& before_;
    std::unique_ptr<toolkit::Session> session_;
  };

  toolkit::Driver& inner_;
  std::size_t failing_ = 0;
  std::size_t count_ = 0;
};

}  // namespace qvn::test
