// Numbers as whole counts of decimal units, and their Italian texts, in plain integer arithmetic. Shares no code with
// the library.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qvn::test {

__extension__ using Whole = __int128;

/// Why rules stop.
enum class ModelFailure : std::uint8_t {
  TypeMismatch,
  Overflow,
  SubscriptOutOfRange,
  InvalidUseOfNull,
  InvalidCall,
  Database
};

std::string_view nameOf(ModelFailure kind);

/// A rule has stopped; what it had written stays.
struct ModelFailed {
  ModelFailure kind;
};

/// The rules do not decide what comes out: the result hangs on bits of a double that no decimal tells, or has more
/// digits than are counted here.
struct Undecided {};

/// count / 10^scale.
struct Exact {
  Whole count = 0;
  int scale = 0;
};

enum class Ties : std::uint8_t { ToEven, AwayFromZero };

/// The value as a count of 10^-decimals.
Whole rounded(const Exact& value, int decimals, Ties ties);
bool equal(const Exact& a, const Exact& b);

/// The text as a number of the office: "12,5", "€ 1.234,56", "-€ 1,00". Nothing where it is none.
std::optional<Exact> numberOf(std::string_view text);
/// A number with a point as its decimal sign, as the program spells it.
Exact pointed(std::string_view text);
/// The number that the text begins with, the point being the decimal sign; 0 where it begins with none.
Exact leading(std::string_view text);

/// In ten-thousandths, ties to even; throw ModelFailed.
std::int64_t currencyOf(const Exact& value);
std::int64_t currencyOf(std::string_view text);
/// As the 96-bit decimal of a percent; where its digits are too many to be held exactly, Undecided.
Exact decimalOf(std::string_view text);
std::int64_t sumOf(std::int64_t a, std::int64_t b);
inline Exact amount(std::int64_t tenThousandths) { return {.count = tenThousandths, .scale = 4}; }

/// The two forms of a box, ties away from zero, and a number without a form.
std::string plainForm(const Exact& value);
std::string currencyForm(const Exact& value, Ties ties = Ties::AwayFromZero);
std::string generalForm(const Exact& value);
/// A text that is no number stays as it is.
std::string plainForm(std::string_view text);
std::string currencyForm(std::string_view text);

/// What a few operations on doubles make of an exact value: it, within some units of its scale on either side.
class Computed {
 public:
  /// The exact product of two, divided by a power of ten.
  static Computed product(const Exact& a, const Exact& b, int divisor);
  friend Computed operator+(const Computed& a, const Computed& b);

  /// What a use gives of the double's 15 digits, where every double within the error gives the same.
  template <class Use>
  auto decided(Use use) const {
    auto low = use(fifteenDigits({.count = value_.count - error_, .scale = value_.scale}));
    const auto high = use(fifteenDigits({.count = value_.count + error_, .scale = value_.scale}));
    if (low != high) throw Undecided();
    return low;
  }

 private:
  static Exact fifteenDigits(const Exact& value);

  Exact value_;
  Whole error_ = 0;
};

}  // namespace qvn::test
