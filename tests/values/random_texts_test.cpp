// Random texts, many digits long and often half-way between two roundings, against the model.
#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <random>
#include <string>

#include "qvn/shared/conversions.h"
#include "tests/failure_matchers.h"
#include "tests/values/decimal_model.h"
#include "tests/values/italian.h"

namespace qvn {
namespace {

using test::Exact;
using test::ModelTies;

std::string randomDigits(std::mt19937_64& random, std::size_t most) {
  std::string digits(static_cast<std::size_t>(random() % (most + 1)), '0');
  for (char& digit : digits) digit = static_cast<char>('0' + random() % 10);
  return digits;
}

/// What often stands behind the place that is rounded to: a tie, just beside one, or anything.
std::string randomRest(std::mt19937_64& random) {
  std::string many(static_cast<std::size_t>(random() % 60), random() % 2 == 0 ? '0' : '9');
  switch (random() % 5) {
    case 0:
      return std::string("5").append(many.size(), '0');
    case 1:
      return std::string("5").append(many.size(), '0') + "1";
    case 2:
      return std::string("4").append(many).append("9");
    case 3:
      return many;
    default:
      return randomDigits(random, 60);
  }
}

struct Sample {
  std::string text;
  Exact value;
};

/// A number with a rest behind so many decimals: plain, grouped, under a symbol or with an exponent.
Sample randomSample(std::mt19937_64& random, std::size_t decimals, std::size_t mostWhole) {
  const std::string whole = std::to_string(1 + random() % 9) + randomDigits(random, mostWhole - 1);
  std::string fraction = randomDigits(random, decimals);
  if (random() % 4 != 0) {
    fraction.resize(decimals, '7');
    fraction += randomRest(random);
  }
  const bool negative = random() % 2 == 0;
  const Exact value{negative, whole + fraction, -static_cast<int>(fraction.size())};
  const std::string sign = negative ? "-" : "";
  const std::string behind = fraction.empty() ? "" : std::string(",").append(fraction);
  switch (random() % 4) {
    case 0:
      return {sign + whole + behind, value};
    case 1:
      return {sign + "€ " + test::written(whole, 0, true) + behind, value};
    case 2:
      return {whole + behind + (negative ? "-" : "") + " €", value};
    default:
      return {sign + whole + fraction + "E-" + std::to_string(fraction.size()), value};
  }
}

TEST(RandomTexts, AsCurrencyAgreeWithTheModel) {
  std::mt19937_64 random(58'075);
  int overflows = 0;
  for (int i = 0; i < 30'000; ++i) {
    const Sample sample = randomSample(random, 4, 15);
    const std::string& text = sample.text;
    const std::string units = test::inUnits(sample.value, 4, ModelTies::ToEven);
    if (test::fits64Bits(units)) {
      ASSERT_EQ(std::to_string(toCurrency(text, kItalian).tenThousandths()), units) << text;
    } else {
      ++overflows;
      ASSERT_TRUE(test::failsWith(FailureKind::Overflow, "does not fit", [&] { (void)toCurrency(text, kItalian); }))
          << text;
    }
  }
  EXPECT_GT(overflows, 100);
}

TEST(RandomTexts, AsIntegersAgreeWithTheModel) {
  std::mt19937_64 random(32'767);
  int fitting = 0;
  for (int i = 0; i < 30'000; ++i) {
    const Sample sample = randomSample(random, 0, 10);
    const std::string& text = sample.text;
    const std::string whole = test::inUnits(sample.value, 0, ModelTies::ToEven);
    const long long number = std::stoll(whole);
    if (number >= INT32_MIN && number <= INT32_MAX) {
      ASSERT_EQ(toInt32(text, kItalian), number) << text;
    } else {
      ASSERT_TRUE(test::failsWith(FailureKind::Overflow, "32-bit", [&] { (void)toInt32(text, kItalian); })) << text;
    }
    if (number >= INT16_MIN && number <= INT16_MAX) {
      ++fitting;
      ASSERT_EQ(toInt16(text, kItalian), number) << text;
    } else {
      ASSERT_TRUE(test::failsWith(FailureKind::Overflow, "16-bit", [&] { (void)toInt16(text, kItalian); })) << text;
    }
  }
  EXPECT_GT(fitting, 1'000);
}

struct ModelDecimal {
  std::string magnitude;
  int scale;
};

/// With as many decimals as the text has and 96 bits hold.
std::optional<ModelDecimal> modelDecimal(const Exact& value) {
  const std::string most = "79228162514264337593543950335";
  const Exact magnitude{false, value.digits, value.exponent};
  for (int scale = std::clamp(-value.exponent, 0, 28); scale >= 0; --scale) {
    const std::string units = test::inUnits(magnitude, scale, ModelTies::ToEven);
    if (units.size() < most.size() || (units.size() == most.size() && units <= most)) return ModelDecimal{units, scale};
  }
  return std::nullopt;
}

TEST(RandomTexts, AsDecimalAgreeWithTheModel) {
  std::mt19937_64 random(96);
  int overflows = 0;
  for (int i = 0; i < 20'000; ++i) {
    const Sample sample = randomSample(random, static_cast<std::size_t>(random() % 30), 31);
    const std::string& text = sample.text;
    if (const auto expected = modelDecimal(sample.value)) {
      const Decimal read = toDecimal(text, kItalian);
      ASSERT_EQ(test::wholeNumber(read.magnitude()), expected->magnitude) << text;
      ASSERT_EQ(read.scale(), expected->scale) << text;
      ASSERT_EQ(read.negative(), sample.value.negative && expected->magnitude != "0") << text;
    } else {
      ++overflows;
      ASSERT_TRUE(test::failsWith(FailureKind::Overflow, "a decimal", [&] { (void)toDecimal(text, kItalian); }))
          << text;
    }
  }
  EXPECT_GT(overflows, 500);
}

}  // namespace
}  // namespace qvn
