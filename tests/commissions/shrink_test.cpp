// What is left of a failing list is what it needs to fail.
#include "tests/commissions/shrink.h"

#include <gtest/gtest.h>
#include <numeric>

namespace qvn::test {
namespace {

std::vector<int> upTo(int end) {
  std::vector<int> numbers(static_cast<std::size_t>(end));
  std::iota(numbers.begin(), numbers.end(), 0);
  return numbers;
}

bool holds(const std::vector<int>& numbers, int number) {
  return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

TEST(Shrunk, KeepsWhatTheFailureNeedsInItsOrder) {
  const auto needsThree = [](const std::vector<int>& some) {
    return holds(some, 3) && holds(some, 58) && holds(some, 97);
  };
  EXPECT_EQ(shrunk(upTo(100), needsThree), (std::vector<int>{3, 58, 97}));
}

TEST(Shrunk, FindsASmallOneWhereAnyOfSeveralWillDo) {
  const auto anyFive = [](const std::vector<int>& some) { return some.size() >= 5; };
  EXPECT_EQ(shrunk(upTo(64), anyFive).size(), 5U);
}

TEST(Shrunk, LeavesNothingOfWhatFailsWithoutAnyItem) {
  EXPECT_TRUE(shrunk(upTo(7), [](const std::vector<int>&) { return true; }).empty());
}

TEST(Shrunk, LeavesAllOfWhatNeedsAll) {
  EXPECT_EQ(shrunk(upTo(9), [](const std::vector<int>& some) { return some.size() == 9; }), upTo(9));
}

TEST(Shrunk, AsksForFewTrialsOfALongList) {
  int trials = 0;
  const auto needsOne = [&](const std::vector<int>& some) {
    ++trials;
    return holds(some, 731);
  };
  EXPECT_EQ(shrunk(upTo(1000), needsOne), (std::vector<int>{731}));
  EXPECT_LT(trials, 60);
}

}  // namespace
}  // namespace qvn::test
