// ICU with its Italian locale, its formatters made once.
#include <array>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <memory>
#include <string>
#include <unicode/unum.h>
#include <vector>

#include "bench/values/allocations.h"
#include "bench/values/samples.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/patterns.h"

namespace qvn::bench {
namespace {

using Formatter = std::unique_ptr<UNumberFormat, decltype(&unum_close)>;
using Text = std::array<UChar, 128>;

void must(UErrorCode error) {
  if (U_FAILURE(error)) std::abort();
}

Formatter italian() {
  UErrorCode error = U_ZERO_ERROR;
  Formatter formatter(unum_open(UNUM_CURRENCY, nullptr, 0, "it_IT", nullptr, &error), &unum_close);
  must(error);
  return formatter;
}

void icuFormatDouble(benchmark::State& state) {
  const Formatter formatter = italian();
  doubles();
  Text text{};
  Turn turn;
  const Counting counting(state);
  for ([[maybe_unused]] auto _ : state) {
    UErrorCode error = U_ZERO_ERROR;
    benchmark::DoNotOptimize(
        unum_formatDouble(formatter.get(), doubles()[turn.next()], text.data(), text.size(), nullptr, &error));
    must(error);
  }
}
BENCHMARK(icuFormatDouble);

/// From the amount's digits, as ICU takes a decimal.
void icuFormatDecimal(benchmark::State& state) {
  const Formatter formatter = italian();
  const Locale plain{.decimalSign = '.', .groupingSign = ','};
  std::vector<std::string> decimals;
  for (Currency amount : amounts()) decimals.push_back(format(amount, Pattern::General, plain).str());
  Text text{};
  Turn turn;
  const Counting counting(state);
  for ([[maybe_unused]] auto _ : state) {
    UErrorCode error = U_ZERO_ERROR;
    const std::string& decimal = decimals[turn.next()];
    benchmark::DoNotOptimize(unum_formatDecimal(formatter.get(), decimal.data(), static_cast<int>(decimal.size()),
                                                text.data(), text.size(), nullptr, &error));
    must(error);
  }
}
BENCHMARK(icuFormatDecimal);

std::vector<std::u16string> writtenBy(const Formatter& formatter) {
  std::vector<std::u16string> texts;
  Text text{};
  for (double value : doubles()) {
    UErrorCode error = U_ZERO_ERROR;
    const auto size = unum_formatDouble(formatter.get(), value, text.data(), text.size(), nullptr, &error);
    must(error);
    texts.emplace_back(text.data(), static_cast<std::size_t>(size));
  }
  return texts;
}

void icuParseDouble(benchmark::State& state) {
  const Formatter formatter = italian();
  const std::vector<std::u16string> texts = writtenBy(formatter);
  Turn turn;
  const Counting counting(state);
  for ([[maybe_unused]] auto _ : state) {
    UErrorCode error = U_ZERO_ERROR;
    const std::u16string& text = texts[turn.next()];
    benchmark::DoNotOptimize(
        unum_parseDouble(formatter.get(), text.data(), static_cast<int>(text.size()), nullptr, &error));
    must(error);
  }
}
BENCHMARK(icuParseDouble);

/// To the amount's digits, without a double between.
void icuParseDecimal(benchmark::State& state) {
  const Formatter formatter = italian();
  const std::vector<std::u16string> texts = writtenBy(formatter);
  std::array<char, 128> decimal{};
  Turn turn;
  const Counting counting(state);
  for ([[maybe_unused]] auto _ : state) {
    UErrorCode error = U_ZERO_ERROR;
    const std::u16string& text = texts[turn.next()];
    benchmark::DoNotOptimize(unum_parseDecimal(formatter.get(), text.data(), static_cast<int>(text.size()), nullptr,
                                               decimal.data(), decimal.size(), &error));
    must(error);
  }
}
BENCHMARK(icuParseDecimal);

}  // namespace
}  // namespace qvn::bench
