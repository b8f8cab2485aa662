// The standard library's money, with the punctuation of an Italian locale, on streams that allocate nothing themselves.
#include <array>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <iomanip>
#include <istream>
#include <locale>
#include <ostream>
#include <streambuf>
#include <string>
#include <vector>

#include "bench/values/allocations.h"
#include "bench/values/samples.h"

namespace qvn::bench {
namespace {

class ItalianMoney : public std::moneypunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
  std::string do_curr_symbol() const override { return "€"; }
  std::string do_negative_sign() const override { return "-"; }
  int do_frac_digits() const override { return 2; }
  pattern do_pos_format() const override { return {{sign, symbol, space, value}}; }
  pattern do_neg_format() const override { return {{sign, symbol, space, value}}; }
};

class Room : public std::streambuf {
 public:
  void write() { setp(text_.data(), text_.data() + text_.size()); }
  void read(std::string& text) { setg(text.data(), text.data(), text.data() + text.size()); }
  std::string written() const { return {pbase(), pptr()}; }

 private:
  std::array<char, 128> text_{};
};

std::locale italian() { return {std::locale::classic(), new ItalianMoney}; }  // owned by the locale

void putMoney(benchmark::State& state) {
  cents();
  Room room;
  std::ostream out(&room);
  out.imbue(italian());
  Turn turn;
  const Counting counting(state);
  for ([[maybe_unused]] auto _ : state) {
    room.write();
    out << std::showbase << std::put_money(static_cast<long double>(cents()[turn.next()]));
    benchmark::ClobberMemory();
  }
}
BENCHMARK(putMoney);

void getMoney(benchmark::State& state) {
  std::vector<std::string> texts;
  Room room;
  std::ostream out(&room);
  out.imbue(italian());
  for (std::int64_t amount : cents()) {
    room.write();
    out << std::showbase << std::put_money(static_cast<long double>(amount));
    texts.push_back(room.written());
  }
  std::istream in(&room);
  in.imbue(italian());
  Turn turn;
  const Counting counting(state);
  for ([[maybe_unused]] auto _ : state) {
    in.clear();
    room.read(texts[turn.next()]);
    long double amount = 0;
    in >> std::showbase >> std::get_money(amount);
    if (in.fail()) std::abort();
    benchmark::DoNotOptimize(amount);
  }
}
BENCHMARK(getMoney);

}  // namespace
}  // namespace qvn::bench
