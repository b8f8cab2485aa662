// The pick lists and viewers over answers laid down beforehand, with all that happens in one log.
#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "qvn/shared/Globale.h"
#include "tests/fake_database.h"
#include "tests/loaded_forms.h"
#include "tests/platforms.h"
#include "tests/recording_container.h"

namespace qvn::test {

/// What happens to forms and statements, in one order, and what a test does at such a moment.
class ListLog final : public Watcher {
 public:
  using Moment = std::function<void()>;

  std::vector<std::string> entries;
  /// Run once, when an entry of that text is made.
  void at(std::string entry, Moment moment) { moments_.emplace_back(std::move(entry), std::move(moment)); }

  void add(const std::string& entry) {
    entries.push_back(entry);
    for (std::size_t i = 0; i < moments_.size(); ++i) {
      if (moments_[i].first != entry) continue;
      const Moment moment = std::move(moments_[i].second);
      moments_.erase(moments_.begin() + static_cast<std::ptrdiff_t>(i));
      moment();
      return;
    }
  }
  std::vector<std::string> take() { return std::exchange(entries, {}); }

  void lostFocus(const toolkit::Widget& widget) override { add("lost " + std::string(widget.Name())); }
  void gotFocus(const toolkit::Widget& widget) override { add("got " + std::string(widget.Name())); }
  void beeped() override { add("beep"); }
  void formLoaded(std::string_view form) override { add("load " + std::string(form)); }
  void formShown(std::string_view form) override { add("modal " + std::string(form)); }
  void formHidden(std::string_view form) override { add("hide " + std::string(form)); }
  void formUnloaded(std::string_view form) override { add("unload " + std::string(form)); }
  void viewerRuns(std::string_view form, std::string_view sql) override {
    add("viewer " + std::string(form) + ": " + std::string(sql));
  }

 private:
  std::vector<std::pair<std::string, Moment>> moments_;
};

/// Enters openings and statements of the shared connection into a log, and passes them on to the laid down answers.
class LoggedDriver final : public toolkit::Driver {
 public:
  LoggedDriver(FakeDriver& driver, ListLog& log) : driver_(driver), log_(log) {}
  std::string_view head() const override { return "logged:"; }
  std::unique_ptr<toolkit::Session> open(const toolkit::Opening& opening) override {
    if (opening.viewer.empty()) log_.add("open");
    return std::make_unique<LoggedSession>(driver_.open(opening), opening.viewer.empty() ? &log_ : nullptr);
  }

 private:
  class LoggedSession final : public toolkit::Session {
   public:
    LoggedSession(std::unique_ptr<toolkit::Session> session, ListLog* log) : session_(std::move(session)), log_(log) {}
    std::unique_ptr<toolkit::Rows> run(const toolkit::Statement& statement) override {
      if (log_ != nullptr) log_->add("sql");
      return session_->run(statement);
    }

   private:
    std::unique_ptr<toolkit::Session> session_;
    ListLog* log_;
  };

  FakeDriver& driver_;
  ListLog& log_;
};

class ListBench : public testing::TestWithParam<PlatformMaker> {
 public:
  ListBench() {
    platform().drivers().add(driver_);
    platform().drivers().add(logged_);
    Globale::install(platform());
    Globale::Eventi()->ImpostaDB("logged:ufficio");
    hands().takePictures(true);
    log_.entries.clear();
    under_->watch(&log_);
  }
  ~ListBench() override {
    Globale::uninstall();
    under_->watch(nullptr);
  }
  void SetUp() override { ASSERT_TRUE(platform().capabilities().modalForms); }
  void TearDown() override { under_->expectShown(); }

  toolkit::Platform& platform() { return under_->platform(); }
  Operator& hands() { return under_->hands(); }
  RecordingContainer& container() { return container_; }
  FakeDriver& driver() { return driver_; }
  std::int64_t beeps() const { return under_->beeps(); }
  ListLog& log() { return log_; }

  void answer(std::string_view sql, std::vector<std::string> columns, std::vector<std::vector<Variant>> rows) {
    driver().answers[std::string(sql)] = {std::move(columns), std::move(rows)};
  }
  /// What the operator does at the next showing of the list.
  void atLista(std::vector<Act> acts) { hands().layDown("Lista", std::move(acts)); }

  /// The names of the loaded forms, in load order.
  std::vector<std::string> loadedForms() { return namesOfLoadedForms(platform()); }
  /// A form that is loaded; fails the test if it is not.
  toolkit::Form* loadedForm(std::string_view name) {
    for (std::int32_t i = 0; i < platform().forms().count(); ++i) {
      if (platform().forms().at(i).Name() == name) return &platform().forms().at(i);
    }
    ADD_FAILURE() << name << " is not loaded";
    return nullptr;
  }

 private:
  FakeDriver driver_;
  ListLog log_;
  LoggedDriver logged_{driver_, log_};
  RecordingContainer container_;
  std::unique_ptr<PlatformUnderTest> under_ = GetParam().make();
};

inline Variant text(std::string_view value) { return std::string(value); }

/// The cells of a picture, row by row.
inline std::vector<std::vector<std::string>> rowsOf(const FormPicture& picture) {
  std::vector<std::vector<std::string>> rows;
  rows.reserve(picture.rowCount());
  for (std::size_t row = 0; row < picture.rowCount(); ++row) {
    std::vector<std::string> cells;
    cells.reserve(picture.columns.size());
    for (std::size_t column = 0; column < picture.columns.size(); ++column) cells.push_back(picture.cell(row, column));
    rows.push_back(std::move(cells));
  }
  return rows;
}

}  // namespace qvn::test
