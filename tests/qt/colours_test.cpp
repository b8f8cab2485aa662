// The library's colours on a light and on a dark desktop.
#include "platforms/qt/colours.h"

#include <QColor>
#include <array>
#include <gtest/gtest.h>
#include <string>

#include "qvn/toolkit/layout.h"

namespace qvn::test {
namespace {

constexpr std::uint32_t kCyan = 0xFFFF00;  // red is the low byte
constexpr std::uint32_t kYellow = 0x00FFFF;
constexpr std::uint32_t kGreen = 0x00FF00;
constexpr std::uint32_t kPaleGreen = 0x00C000;
constexpr std::uint32_t kDarkRed = 0x000080;
constexpr std::array kBacks{toolkit::kWhite, kCyan, kYellow};
constexpr std::array kTexts{toolkit::kBlack, toolkit::kBlue, toolkit::kRed, kGreen, kPaleGreen, kDarkRed};

QPalette desktop(bool dark) {
  const QColor back(dark ? 0x20 : 0xF8, dark ? 0x20 : 0xF8, dark ? 0x20 : 0xF8);
  const QColor text = dark ? Qt::white : Qt::black;
  QPalette palette;
  for (const auto role : {QPalette::Base, QPalette::Window, QPalette::Button}) palette.setColor(role, back);
  for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) palette.setColor(role, text);
  return palette;
}

class QtColours : public testing::TestWithParam<bool> {};

TEST(QtContrast, GoesFromOneToTwentyOne) {
  EXPECT_NEAR(qt::contrast(Qt::black, Qt::white), 21, 0.001);
  EXPECT_NEAR(qt::contrast(Qt::white, Qt::black), 21, 0.001);
  EXPECT_NEAR(qt::contrast(Qt::red, Qt::red), 1, 0.001);
  EXPECT_NEAR(qt::contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.005);
}

TEST_P(QtColours, APlainFieldIsTheDesktopsOwn) {
  const QPalette given = desktop(GetParam());
  const QPalette field = qt::fieldColours(given, toolkit::kWhite, toolkit::kBlack);
  EXPECT_EQ(field.color(QPalette::Base), given.color(QPalette::Base));
  EXPECT_EQ(field.color(QPalette::Text), given.color(QPalette::Text));
}

TEST_P(QtColours, AFieldWithAColourHasThatColourOnEveryDesktop) {
  const QPalette field = qt::fieldColours(desktop(GetParam()), kCyan, toolkit::kBlack);
  EXPECT_EQ(field.color(QPalette::Base), QColor(Qt::cyan));
  EXPECT_EQ(field.color(QPalette::Text), QColor(Qt::black));
}

TEST_P(QtColours, EveryTextOfAFieldCanBeReadOnEveryBack) {
  for (const std::uint32_t back : kBacks) {
    for (const std::uint32_t fore : kTexts) {
      const QPalette field = qt::fieldColours(desktop(GetParam()), back, fore);
      for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        EXPECT_GE(qt::contrast(field.color(group, QPalette::Text), field.color(group, QPalette::Base)), qt::kReadable)
            << back << ' ' << fore << ' ' << group;
        EXPECT_GE(qt::contrast(field.color(group, QPalette::ButtonText), field.color(group, QPalette::Button)),
                  qt::kReadable)
            << back << ' ' << fore << ' ' << group;
      }
    }
  }
}

TEST_P(QtColours, ALabelWithABackHasTheColoursOfAField) {
  const QPalette field = qt::fieldColours(desktop(GetParam()), toolkit::kWhite, toolkit::kRed);
  const QPalette label = qt::labelColours(desktop(GetParam()), toolkit::kWhite, toolkit::kRed);
  EXPECT_EQ(label.color(QPalette::Window), field.color(QPalette::Base));
  EXPECT_EQ(label.color(QPalette::WindowText), field.color(QPalette::Text));
}

TEST_P(QtColours, WhatIsSelectedCanBeRead) {
  const QPalette field = qt::fieldColours(desktop(GetParam()), kCyan, toolkit::kBlack);
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    EXPECT_GE(qt::contrast(field.color(group, QPalette::HighlightedText), field.color(group, QPalette::Highlight)),
              qt::kReadable);
  }
}

TEST_P(QtColours, EveryCaptionCanBeReadOnTheWindow) {
  for (const std::uint32_t fore : kTexts) {
    const QPalette label = qt::textColours(desktop(GetParam()), fore);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
      EXPECT_GE(qt::contrast(label.color(group, QPalette::WindowText), label.color(group, QPalette::Window)),
                qt::kReadable)
          << fore << ' ' << group;
    }
  }
}

TEST_P(QtColours, LinesAreSeenOnTheWindow) {
  const QPalette given = desktop(GetParam());
  EXPECT_GT(qt::contrast(qt::lineColour(given), given.color(QPalette::Window)), 1.5);
}

TEST_P(QtColours, AColouredTextKeepsItsHue) {
  for (const std::uint32_t fore : {toolkit::kBlue, toolkit::kRed, kGreen, kPaleGreen, kDarkRed}) {
    const int hue = QColor(static_cast<int>(fore & 0xFFU), static_cast<int>((fore >> 8U) & 0xFFU),
                           static_cast<int>((fore >> 16U) & 0xFFU))
                        .hslHue();
    EXPECT_EQ(qt::fieldColours(desktop(GetParam()), toolkit::kWhite, fore).color(QPalette::Text).hslHue(), hue);
    EXPECT_EQ(qt::textColours(desktop(GetParam()), fore).color(QPalette::WindowText).hslHue(), hue);
  }
}

TEST_P(QtColours, ATextThatIsSwitchedOffIsPaler) {
  const QPalette field = qt::fieldColours(desktop(GetParam()), toolkit::kWhite, toolkit::kBlack);
  EXPECT_LT(
      qt::contrast(field.color(QPalette::Disabled, QPalette::Text), field.color(QPalette::Disabled, QPalette::Base)),
      qt::contrast(field.color(QPalette::Active, QPalette::Text), field.color(QPalette::Active, QPalette::Base)) / 2);
}

INSTANTIATE_TEST_SUITE_P(Desktops, QtColours, testing::Bool(),
                         [](const auto& dark) { return std::string(dark.param ? "dark" : "light"); });

}  // namespace
}  // namespace qvn::test
