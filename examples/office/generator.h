// Numbers that look drawn and are the same on every machine: the standard's distributions differ between libraries.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace office {

/// One of the outcomes of a draw, and its chances among the others'.
template <typename Value>
struct Chance {
  Value value;
  std::uint32_t weight;
};

/// SplitMix64.
class Generator {
 public:
  explicit Generator(std::uint64_t seed) : state_(seed) {}

  std::uint64_t next() {
    state_ += 0x9e3779b97f4a7c15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30U)) * 0xbf58476d1ce4e5b9U;
    mixed = (mixed ^ (mixed >> 27U)) * 0x94d049bb133111ebU;
    return mixed ^ (mixed >> 31U);
  }

  /// From 0 to `count` - 1. `count` is above 0.
  std::size_t below(std::size_t count) { return static_cast<std::size_t>(next() % count); }

  /// From `low` to `high`, both included.
  int between(int low, int high) { return low + static_cast<int>(below(static_cast<std::size_t>(high - low) + 1)); }

  /// True `percent` times in a hundred.
  bool happens(int percent) { return between(1, 100) <= percent; }

  template <typename List>
  const auto& pick(const List& list) {
    return list[below(std::size(list))];
  }

  template <typename Value, std::size_t count>
  Value draw(const Chance<Value> (&chances)[count]) {
    std::size_t total = 0;
    for (const Chance<Value>& chance : chances) total += chance.weight;
    std::size_t drawn = below(total);
    for (const Chance<Value>& chance : chances) {
      if (drawn < chance.weight) return chance.value;
      drawn -= chance.weight;
    }
    return chances[count - 1].value;
  }

 private:
  std::uint64_t state_;
};

}  // namespace office
