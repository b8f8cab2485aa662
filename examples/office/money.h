// Amounts of the sample: whole cents, so that a figure is the same however the database stores it.
#pragma once

#include <cstdint>

namespace office {

struct Money {
  std::int64_t cents = 0;

  friend constexpr Money operator+(Money a, Money b) { return {a.cents + b.cents}; }
  friend constexpr Money operator-(Money a, Money b) { return {a.cents - b.cents}; }
  friend constexpr Money operator-(Money a) { return {-a.cents}; }
};

constexpr Money euros(std::int64_t whole) { return {whole * 100}; }

/// `amount` times `parts` over `of`, to the cent, ties away from zero. `of` is above 0.
constexpr Money portion(Money amount, std::int64_t parts, std::int64_t of) {
  const std::int64_t product = amount.cents * parts;
  return {(product + (product < 0 ? -of : of) / 2) / of};
}

}  // namespace office
