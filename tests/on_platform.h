// The library on a platform under test: a container that records, an operator's hands, and a database laid down.
#pragma once

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>

#include "qvn/shared/Globale.h"
#include "tests/fake_database.h"
#include "tests/platforms.h"
#include "tests/recording_container.h"

namespace qvn::test {

/// Whether all of the text that stands in a field is selected; false where none does.
inline bool wholeSelected(const toolkit::EditableText& field) {
  const std::string text = field.Text();
  const auto characters = std::ranges::count_if(text, [](char c) { return (c & 0xC0) != 0x80; });
  return characters > 0 && field.SelStart() == 0 && field.SelLength() == characters;
}

class OnPlatform : public testing::TestWithParam<PlatformMaker> {
 public:
  OnPlatform() {
    platform().drivers().add(driver_);
    Globale::install(platform());
  }
  ~OnPlatform() override { Globale::uninstall(); }
  void TearDown() override { under_->expectShown(); }

  toolkit::Platform& platform() { return under_->platform(); }
  Operator& hands() { return under_->hands(); }
  RecordingContainer& container() { return container_; }
  FakeDriver& driver() { return driver_; }
  void watch(Watcher* watcher) { under_->watch(watcher); }
  std::int64_t beeps() const { return under_->beeps(); }
  void today(Date date) { under_->today(date); }
  void setLocale(const Locale& locale) { under_->setLocale(locale); }

  /// The announcements since it was last asked, in order.
  Strings heard() { return std::exchange(container_.notices, {}); }
  /// The one failure that the container was told of since it was last asked; fails the test if there are more or none.
  ReportedFailure onlyReported() {
    const auto failures = std::exchange(container_.failures, {});
    EXPECT_EQ(failures.size(), 1U);
    return failures.empty() ? ReportedFailure{} : failures.front();
  }
  /// The name of the widget that has the focus; empty where none has.
  std::string focused() { return platform().focused() == nullptr ? "" : std::string(platform().focused()->Name()); }

 private:
  FakeDriver driver_;
  RecordingContainer container_;
  std::unique_ptr<PlatformUnderTest> under_ = GetParam().make();
};

}  // namespace qvn::test
