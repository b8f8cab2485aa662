// Numbers read from texts.
#include <algorithm>

#include "qvn/shared/digits.h"

namespace qvn {

namespace {

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

class Reader {
 public:
  explicit Reader(std::string_view text) : at_(text.data()), end_(text.data() + text.size()) {}

  bool atEnd() const { return at_ == end_; }
  bool atDigit() const { return at_ != end_ && isDigit(*at_); }
  bool at(char c) const { return at_ != end_ && *at_ == c; }
  const char* place() const { return at_; }

  bool take(char c) {
    if (!at(c)) return false;
    ++at_;
    return true;
  }

  bool take(std::string_view word) {
    if (word.empty() || !std::string_view(at_, static_cast<std::size_t>(end_ - at_)).starts_with(word)) return false;
    at_ += word.size();
    return true;
  }

  /// A blank, a tab, a no-break blank or a narrow one.
  bool takeBlank() { return take(' ') || take('\t') || take("\u00A0") || take("\u202F"); }

  /// The digits that stand here; how many.
  std::ptrdiff_t takeDigits(Digits& digits, bool fraction) {
    const char* begin = at_;
    for (; atDigit(); ++at_) digits.take(at_, fraction);
    return at_ - begin;
  }

  /// Behind digits: groups of three, each behind a grouping sign; false if one has another length.
  bool takeGroups(Digits& digits, char groupingSign, std::ptrdiff_t before) {
    if (!atGroup(groupingSign)) return true;
    if (before > 3 || at_[-before] == '0') return false;
    while (atGroup(groupingSign)) {
      ++at_;
      if (takeDigits(digits, false) != 3) return false;
    }
    grouped_ = true;
    return true;
  }

  /// An exponent, "E+20"; leaves alone what is none.
  void takeExponent(Digits& digits) {
    const Reader before = *this;
    if (grouped_ || (!take('E') && !take('e'))) return;
    const bool below = at('-');
    if (!take('-')) take('+');
    if (!atDigit()) {
      *this = before;
      return;
    }
    constexpr std::int64_t kFar = 1'000'000'000'000'000;
    std::int64_t exponent = 0;
    for (; atDigit(); ++at_) exponent = std::min(kFar, exponent * 10 + (*at_ - '0'));
    digits.exponent += below ? -exponent : exponent;
  }

 private:
  bool atGroup(char groupingSign) const {
    return groupingSign != '\0' && at(groupingSign) && end_ - at_ > 1 && isDigit(at_[1]);
  }

  const char* at_;
  const char* end_;
  bool grouped_ = false;
};

/// What stands around the digits: one symbol, one sign or a pair of brackets, and blanks.
class Frame {
 public:
  Frame(Reader& reader, std::string_view symbol) : reader_(reader), symbol_(symbol) {}

  bool negative() const { return negative_; }

  void takeFront() {
    while (takeSymbolOrSign() || takeOpening()) {
    }
  }
  void takeBack() {
    while (takeSymbolOrSign() || takeClosing()) {
    }
  }
  bool isOpen() const { return open_; }

 private:
  bool takeSymbolOrSign() {
    if (reader_.atEnd() || reader_.atDigit()) return false;
    if (reader_.takeBlank()) return true;
    if (!symbolTaken_ && reader_.take(symbol_)) return symbolTaken_ = true;
    if (signTaken_) return false;
    negative_ = reader_.at('-');
    return signTaken_ = reader_.take('-') || reader_.take('+');
  }
  bool takeOpening() {
    if (signTaken_ || !reader_.take('(')) return false;
    return negative_ = signTaken_ = open_ = true;
  }
  bool takeClosing() {
    if (!open_ || !reader_.take(')')) return false;
    open_ = false;
    return true;
  }

  Reader& reader_;
  std::string_view symbol_;
  bool symbolTaken_ = false;
  bool signTaken_ = false;
  bool negative_ = false;
  bool open_ = false;
};

}  // namespace

std::optional<Digits> digitsOf(std::string_view text, const Locale& locale) {
  Reader reader(text);
  Frame frame(reader, locale.symbol);
  frame.takeFront();

  Digits digits;
  const std::ptrdiff_t whole = reader.takeDigits(digits, false);
  if (whole > 0 && !reader.takeGroups(digits, locale.groupingSign, whole)) return std::nullopt;
  std::ptrdiff_t fraction = 0;
  if (reader.take(locale.decimalSign)) fraction = reader.takeDigits(digits, true);
  if (whole + fraction == 0) return std::nullopt;
  digits.endAt(reader.place());
  reader.takeExponent(digits);

  frame.takeBack();
  if (!reader.atEnd() || frame.isOpen()) return std::nullopt;
  digits.negative = frame.negative();
  return digits;
}

std::optional<Digits> leadingDigits(std::string_view text) {
  Reader reader(text);
  while (reader.takeBlank()) {
  }
  Digits digits;
  digits.negative = reader.at('-');
  if (!reader.take('-')) reader.take('+');
  std::ptrdiff_t taken = reader.takeDigits(digits, false);
  if (reader.take('.')) taken += reader.takeDigits(digits, true);
  if (taken == 0) return std::nullopt;
  digits.endAt(reader.place());
  reader.takeExponent(digits);
  return digits;
}

}  // namespace qvn
