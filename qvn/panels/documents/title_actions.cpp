#include "qvn/panels/documents/title_actions.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "qvn/fields/skip_failing.h"
#include "qvn/shared/names.h"

namespace qvn::documents {

namespace {

/// A letter that the host exchanges with the panel, and what the operator reads in its place.
struct Word {
  std::string_view letter;
  std::string_view text;
};

constexpr std::string_view kCancel = "ANNULLA";

constexpr std::array<Word, 5> kStates{{
    {"A", "ANNULLATA"},
    {"I", "INCASSATA"},
    {"C", "COPERTA"},
    {"S", "SOSPESA"},
    {"N", "NON INCASSABILE"},
}};

constexpr std::array<Word, 4> kActions{{
    {"A", kCancel},
    {"R", "RIATTIVA"},
    {"I", "INCASSA"},
    {"C", "COPRI"},
}};

constexpr std::array<std::string_view, 4> kOfPending{"", "COPRI", "INCASSA", kCancel};
constexpr std::array<std::string_view, 3> kOfCovered{"", "INCASSA", kCancel};
constexpr std::array<std::string_view, 2> kOfCancelled{"", "RIATTIVA"};
constexpr std::array<std::string_view, 1> kOfFinal{""};

struct Offer {
  std::string_view state;
  std::span<const std::string_view> items;
};

constexpr std::array<Offer, 5> kOffers{{
    {"SOSPESA", kOfPending},
    {"COPERTA", kOfCovered},
    {"ANNULLATA", kOfCancelled},
    {"INCASSATA", kOfFinal},
    {"NON INCASSABILE", kOfFinal},
}};

/// The word of a letter, or null. Nothing equals a Null.
const Word* find(std::span<const Word> words, const Variant& letter) {
  const auto found = std::ranges::find_if(words, [&](const Word& word) {
    return compare(letter, std::string(word.letter)) == std::partial_ordering::equivalent;
  });
  return found == words.end() ? nullptr : &*found;
}

bool isCancel(const toolkit::ComboBox& actions) { return sameName(actions.Text(), kCancel); }

}  // namespace

void showState(toolkit::Label& state, const Variant& letter) {
  if (const Word* word = find(kStates, letter)) state.Caption(word->text);
}

void offerActions(toolkit::ComboBox& actions, const toolkit::Label& state, const Variant& letter) {
  actions.Clear();
  const auto offer = std::ranges::find(kOffers, state.Caption(), &Offer::state);
  if (offer != kOffers.end()) {
    for (const std::string_view item : offer->items) actions.AddItem(item);
  }
  if (const Word* action = find(kActions, letter)) actions.Text(action->text);
}

std::string chosenAction(const toolkit::ComboBox& actions) { return actions.Text().substr(0, 1); }

void withdrawCancelling(toolkit::ComboBox& actions) {
  if (isCancel(actions)) return;
  const std::string chosen = actions.Text();
  const std::int32_t count = actions.ListCount();
  for (std::int32_t i = 0; i < count; ++i) {
    fields::skipFailing([&] { actions.ListIndex(i); });
    if (!isCancel(actions)) continue;
    fields::skipFailing([&] { actions.RemoveItem(i); });
    break;
  }
  fields::skipFailing([&] { actions.Text(chosen); });
}

}  // namespace qvn::documents
