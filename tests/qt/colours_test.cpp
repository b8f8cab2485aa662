// The library's colours on a light and on a dark desktop.
#include "platforms/qt/colours.h"

#include <QColor>
#include <gtest/gtest.h>

#include "qvn/toolkit/layout.h"

namespace qvn::test {
namespace {

constexpr std::uint32_t kCyan = 0xFFFF00;  // red is the low byte

QPalette desktop(bool dark) {
  const QColor back(dark ? 0x20 : 0xF8, dark ? 0x20 : 0xF8, dark ? 0x20 : 0xF8);
  const QColor text = dark ? Qt::white : Qt::black;
  QPalette palette;
  for (const auto role : {QPalette::Base, QPalette::Window}) palette.setColor(role, back);
  for (const auto role : {QPalette::Text, QPalette::WindowText}) palette.setColor(role, text);
  return palette;
}

int brightness(const QPalette& palette, QPalette::ColorRole role) { return qGray(palette.color(role).rgb()); }

int contrast(const QPalette& palette, QPalette::ColorRole text, QPalette::ColorRole back) {
  return std::abs(brightness(palette, text) - brightness(palette, back));
}

class QtColours : public testing::TestWithParam<bool> {};

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

TEST_P(QtColours, TextsStandOutAndThoseSwitchedOffLess) {
  for (const std::uint32_t fore : {toolkit::kBlack, toolkit::kBlue, toolkit::kRed}) {
    const QPalette field = qt::fieldColours(desktop(GetParam()), toolkit::kWhite, fore);
    EXPECT_GT(contrast(field, QPalette::Text, QPalette::Base), 80) << fore;
    const QPalette label = qt::textColours(desktop(GetParam()), fore);
    EXPECT_GT(contrast(label, QPalette::WindowText, QPalette::Window), 80) << fore;
    EXPECT_NE(field.color(QPalette::Disabled, QPalette::Text), field.color(QPalette::Active, QPalette::Text));
  }
}

INSTANTIATE_TEST_SUITE_P(Desktops, QtColours, testing::Bool(),
                         [](const auto& dark) { return std::string(dark.param ? "dark" : "light"); });

}  // namespace
}  // namespace qvn::test
