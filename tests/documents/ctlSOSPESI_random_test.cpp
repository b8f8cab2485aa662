// Hosts and operators at random against a model of what a title offers. QVN_SEED and QVN_STEPS, both numbers, take it
// through others.
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

#include "tests/documents/title_bench.h"

namespace qvn::test {
namespace {

constexpr int kNone = -1;

/// What stands in the list, which item is current, and what is announced, worked out from the rules alone.
struct Model {
  char state = ' ';
  Strings items = {};
  int current = kNone;
  bool enabled = false;
  std::size_t notices = 0;

  std::string shown() const { return current == kNone ? "" : items[static_cast<std::size_t>(current)]; }
  int placeOf(const std::string& item) const {
    for (std::size_t i = 0; i < items.size(); ++i) {
      if (items[i] == item) return static_cast<int>(i);
    }
    return kNone;
  }
  void select(int place) {
    current = place;
    ++notices;
  }

  void STATO(const std::string& letter) {
    if (letter.size() == 1 && std::string("AICSN").find(letter) != std::string::npos) state = letter[0];
  }
  /// Whether it goes well.
  bool N_STATO(const std::string& letter) {
    items.clear();
    current = kNone;
    if (state != ' ') items.emplace_back("");
    if (state == 'S') items.emplace_back("COPRI");
    if (state == 'S' || state == 'C') {
      items.emplace_back("INCASSA");
      items.emplace_back("ANNULLA");
    }
    if (state == 'A') items.emplace_back("RIATTIVA");
    if (letter.size() != 1 || std::string("ARIC").find(letter) == std::string::npos) return true;
    for (std::size_t i = 0; i < items.size(); ++i) {
      if (!items[i].starts_with(letter)) continue;
      select(static_cast<int>(i));
      return true;
    }
    return false;
  }
  void Attiva(bool authorised) {
    enabled = true;
    if (authorised || shown() == "ANNULLA") return;
    const std::string kept = shown();
    const int cancel = placeOf("ANNULLA");
    if (cancel != kNone) {
      notices += static_cast<std::size_t>(cancel) + 1;
      items.erase(items.begin() + cancel);
      current = kNone;
    } else {
      notices += items.size();
      current = static_cast<int>(items.size()) - 1;
    }
    if (placeOf(kept) != kNone && current != placeOf(kept)) select(placeOf(kept));
  }
  bool pick(int place) {
    if (!enabled || place >= static_cast<int>(items.size())) return false;
    select(place);
    return true;
  }
};

std::uint64_t fromEnvironment(const char* name, std::uint64_t otherwise) {
  const char* text = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): nothing sets it
  return text == nullptr ? otherwise : std::stoull(text);
}

class RandomTitles : public TitlePanel {
 public:
  template <class Work>
  bool goesWell(Work work) {
    try {
      work();
      return true;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.kind(), FailureKind::InvalidCall) << failure.what();
      return false;
    }
  }
};
QVN_ON_EVERY_PLATFORM(RandomTitles);

TEST_P(RandomTitles, StayInStepWithTheModel) {
  constexpr std::size_t kSessionLength = 40;
  const std::uint64_t seed = fromEnvironment("QVN_SEED", 20'261'115);
  const std::uint64_t steps = fromEnvironment("QVN_STEPS", 40'000);
  std::mt19937_64 random(seed);
  const auto any = [&](std::size_t count) { return static_cast<std::size_t>(random() % count); };
  const Strings states{"A", "I", "C", "S", "S", "C", "N", "", "X", "s"};
  const Strings letters{"A", "R", "I", "C", "", "a", "S", "AA"};

  Model model;
  std::string told;
  std::size_t withdrawn = 0;
  std::size_t refused = 0;
  for (std::uint64_t step = 0; step < steps; ++step) {
    if (step % kSessionLength == 0) {
      panel = another("titolo");
      model = Model{};
      told = "new\n";
    }
    const std::size_t itemsBefore = model.items.size();
    bool expected = true;
    bool found = true;
    switch (any(6)) {
      case 0: {
        const std::string& letter = states[any(states.size())];
        told.append("STATO ").append(letter).append("\n");
        model.STATO(letter);
        panel->STATO(text(letter));
        break;
      }
      case 1:
      case 2: {
        const std::string& letter = letters[any(letters.size())];
        told.append("N_STATO ").append(letter).append("\n");
        expected = model.N_STATO(letter);
        found = goesWell([&] { panel->N_STATO(text(letter)); });
        break;
      }
      case 3: {
        const bool authorised = any(3) == 0;
        told.append(authorised ? "Attiva true\n" : "Attiva false\n");
        model.Attiva(authorised);
        panel->Attiva(authorised);
        if (model.items.size() < itemsBefore) ++withdrawn;
        break;
      }
      case 4: {
        const auto place = static_cast<std::int32_t>(any(5));
        told.append("pick ").append(std::to_string(place)).append("\n");
        expected = model.pick(place);
        found = goesWell([&] { hands().choose(actions(), place); });
        break;
      }
      default:
        told.append("Disattiva\n");
        model.enabled = false;
        panel->Disattiva();
    }
    refused += expected ? 0 : 1;
    ASSERT_EQ(found, expected) << told;
    ASSERT_EQ(items(), model.items) << told;
    ASSERT_EQ(actions().ListIndex(), model.current) << told;
    ASSERT_EQ(panel->N_STATO(), text(model.shown().substr(0, 1))) << told;
    ASSERT_EQ(actions().Enabled(), model.enabled) << told;
    ASSERT_EQ(heard(), Strings(std::exchange(model.notices, 0), "N_STATO")) << told;
    ASSERT_TRUE(container().failures.empty()) << told;
  }
  // The sessions go where something is withdrawn, and where something is refused.
  EXPECT_GT(withdrawn * 100, steps);
  EXPECT_GT(refused * 20, steps);
}

}  // namespace
}  // namespace qvn::test
