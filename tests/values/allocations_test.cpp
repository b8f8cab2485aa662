// Writing and reading numbers takes no memory.
#include "tests/allocations.h"

#include <compare>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include "qvn/shared/conversions.h"
#include "qvn/shared/patterns.h"

namespace qvn {
namespace {

const Locale kItalian;

template <class Work>
std::int64_t allocationsOf(const Work& work) {
  const std::int64_t before = test::allocationCount();
  work();
  return test::allocationCount() - before;
}

TEST(Allocations, AreCounted) {
  volatile std::size_t size = 100;  // so that no compiler does without the text
  std::string text;
  EXPECT_EQ(allocationsOf([&] { text = std::string(size, 'x'); }), 1);
  EXPECT_EQ(allocationsOf([&] { text.front() = 'y'; }), 0);
  EXPECT_EQ(text.size(), 100U);
}

TEST(Allocations, FormattingMakesNone) {
  const std::vector<double> doubles{0,
                                    -0.0,
                                    1,
                                    12.5,
                                    -1234.565,
                                    0.1 + 0.2,
                                    1e-15,
                                    1e15,
                                    1.5e20,
                                    1e300,
                                    std::numeric_limits<double>::lowest(),
                                    std::numeric_limits<double>::denorm_min()};
  const std::vector<std::int64_t> counts{
      0, 1, -50, 12'345'600, std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()};
  const Decimal decimal = Decimal::of({0xFFFF'FFFF, 0xFFFF'FFFF, 0xFFFF'FFFF}, 3, true);
  std::size_t written = 0;
  EXPECT_EQ(allocationsOf([&] {
              for (Pattern pattern : {Pattern::General, Pattern::Currency, Pattern::TwoDecimals}) {
                for (double value : doubles) written += format(value, pattern, kItalian).view().size();
                for (std::int64_t count : counts) {
                  written += format(Currency::fromTenThousandths(count), pattern, kItalian).view().size();
                }
                written += format(decimal, pattern, kItalian).view().size();
                written += format(1234567, pattern, kItalian).view().size();
              }
              for (Pattern pattern : {Pattern::General, Pattern::DayMonthYear, Pattern::MonthYear, Pattern::Year}) {
                written += format(Date::fromDays(46'000), pattern).view().size();
              }
            }),
            0);
  EXPECT_GT(written, 1'000U);
}

TEST(Allocations, ReadingMakesNone) {
  const std::string many = "0," + std::string(5'000, '3');
  const std::vector<std::string_view> texts{"0", "1.234,56", "€ 1.234,56", "(€ 99,5)", "1,5E+1", "12,345678", many};
  double sum = 0;
  EXPECT_EQ(allocationsOf([&] {
              for (std::string_view text : texts) {
                sum += toDouble(text, kItalian) + toInt16(text, kItalian) + toInt32(text, kItalian);
                sum += toDouble(toCurrency(text, kItalian)) + toDecimal(text, kItalian).scale();
                sum += toDouble(toCurrency(leadingNumber(text))) + toInt16(12.5) + toInt32(12.5);
                sum += isNumber(text, kItalian) ? 1 : 0;
              }
              sum += isNumber("no number", kItalian) ? 1 : 0;
              sum += dateOf("15/11/2026")->day();
            }),
            0);
  EXPECT_GT(sum, 1'000.0);
}

TEST(Allocations, ConvertingVariantsOfNumbersMakesNone) {
  const std::vector<Variant> values{Empty{},           true,
                                    std::uint8_t{7},   12.5,
                                    Currency::of(7),   Decimal::of(std::int64_t{7}),
                                    Date::fromDays(7), std::string("€ 7,50")};
  double sum = 0;
  EXPECT_EQ(allocationsOf([&] {
              for (const Variant& value : values) {
                sum += as<double>(value, kItalian) + as<std::int16_t>(value, kItalian);
                sum += toDouble(as<Currency>(value, kItalian)) + as<Decimal>(value, kItalian).scale();
                for (const Variant& other : values) sum += std::is_lt(compare(value, other)) ? 1 : 0;
              }
            }),
            0);
  EXPECT_GT(sum, 50.0);
}

}  // namespace
}  // namespace qvn
