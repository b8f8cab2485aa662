// A database for fuzzing: it opens anything and finds two rows for every statement.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "qvn/toolkit/database.h"

namespace qvn::fuzz {

/// Each column that is asked for holds a text that is a number too, so that every lookup finds what it takes.
class AnsweringDriver final : public toolkit::Driver {
 public:
  std::string_view head() const override { return "fuzz:"; }
  std::unique_ptr<toolkit::Session> open(const toolkit::Opening&) override { return std::make_unique<Session>(); }

 private:
  class Rows final : public toolkit::Rows {
   public:
    std::span<const std::string> columns() const override {
      static const std::array<std::string, 2> names{"COD_COMP", "PL"};
      return names;
    }
    bool atEnd() const override { return row_ == kTexts.size(); }
    void next() override { ++row_; }
    Variant value(std::string_view) const override { return std::string(kTexts.at(row_)); }

   private:
    static constexpr std::array<std::string_view, 2> kTexts{"22", "4"};
    std::size_t row_ = 0;
  };

  class Session final : public toolkit::Session {
   public:
    std::unique_ptr<toolkit::Rows> run(const toolkit::Statement&) override { return std::make_unique<Rows>(); }
  };
};

}  // namespace qvn::fuzz
