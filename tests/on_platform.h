// The library on a platform under test: a container that records, an operator's hands, and a database laid down.
#pragma once

#include <gtest/gtest.h>
#include <memory>

#include "qvn/shared/Globale.h"
#include "tests/fake_database.h"
#include "tests/platforms.h"
#include "tests/recording_container.h"

namespace qvn::test {

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

 private:
  FakeDriver driver_;
  RecordingContainer container_;
  std::unique_ptr<PlatformUnderTest> under_ = GetParam().make();
};

}  // namespace qvn::test
