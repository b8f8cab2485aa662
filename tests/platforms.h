// The platforms that tests run on. A suite says QVN_ON_EVERY_PLATFORM(Suite) and each of its tests runs on all of them.
#pragma once

#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <type_traits>

#include "platforms/memory/platform.h"
#include "platforms/operator.h"
#include "qvn/toolkit/platform.h"
#ifdef QVN_QT
#include "tests/qt/seen_platform.h"
#endif

namespace qvn::test {

/// A platform with the host's side of it: its operator, its clock's setting, and what it tells a watcher.
class PlatformUnderTest {
 public:
  virtual ~PlatformUnderTest() = default;
  virtual toolkit::Platform& platform() = 0;
  virtual Operator& hands() = 0;
  virtual void watch(Watcher* watcher) = 0;
  virtual void today(Date date) = 0;
  virtual void setLocale(const Locale& locale) = 0;
  virtual std::int64_t beeps() const = 0;
  /// On a platform with a screen, what stands there is what the widgets of all panels and loaded forms say. It looks by
  /// itself after each act of the hands, when a panel is made and goes, and when a form comes, is drawn and goes.
  virtual void expectShown() = 0;
};

template <class P>
class UnderTest final : public PlatformUnderTest {
 public:
  /// An act that a test lays down and that cannot be done must not pass for one that was.
  ~UnderTest() override {
    for (const FailedAct& failed : hands().failedActs()) ADD_FAILURE() << failed.form << ": " << failed.failure.what();
  }

  toolkit::Platform& platform() override { return platform_; }
  Operator& hands() override { return platform_.hands(); }
  void watch(Watcher* watcher) override { platform_.watch(watcher); }
  void today(Date date) override { platform_.today(date); }
  void setLocale(const Locale& locale) override { platform_.setLocale(locale); }
  std::int64_t beeps() const override { return platform_.beeps(); }
  void expectShown() override {
    if constexpr (!std::is_same_v<P, memory::Platform>) platform_.expectShown();  // that one has no screen
  }

 private:
  P platform_;
};

/// A platform by name, and how to make one.
struct PlatformMaker {
  std::string_view name;
  std::unique_ptr<PlatformUnderTest> (*make)();
};

inline std::ostream& operator<<(std::ostream& out, const PlatformMaker& maker) { return out << maker.name; }

template <class P>
constexpr PlatformMaker platformOf(std::string_view name) {
  return {.name = name,
          .make = []() -> std::unique_ptr<PlatformUnderTest> { return std::make_unique<UnderTest<P>>(); }};
}

/// Every platform that is tested; a new one is one more line here, and its library one in tests/CMakeLists.txt.
inline constexpr std::array kPlatforms{
    platformOf<memory::Platform>("memory"),
#ifdef QVN_QT
    platformOf<SeenPlatform>("qt"),
#endif
};

}  // namespace qvn::test

/// Runs a suite of TEST_P, whose parameter is a PlatformMaker, on every platform: "Prefix/Suite.Test/memory".
#define QVN_ON_EVERY_PLATFORM_AS(Prefix, Suite)                                                       \
  INSTANTIATE_TEST_SUITE_P(Prefix, Suite, ::testing::ValuesIn(::qvn::test::kPlatforms),               \
                           [](const ::testing::TestParamInfo<::qvn::test::PlatformMaker>& platform) { \
                             return std::string(platform.param.name);                                 \
                           })
#define QVN_ON_EVERY_PLATFORM(Suite) QVN_ON_EVERY_PLATFORM_AS(Platforms, Suite)
