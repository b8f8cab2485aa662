#include "hosts/play/rows.h"

#include <algorithm>

namespace qvn::play {

namespace {
constexpr std::int32_t kNextLine = 113;   // half the distance of the closest lines that panels have
constexpr std::int32_t kSameHeight = 60;  // fields and captions of one line differ by less
}  // namespace

void giveRows(std::vector<Mark> marks) {
  std::ranges::stable_sort(marks, {}, &Mark::twips);
  int row = -1;
  std::int32_t top = 0;
  std::vector<Columns> taken;
  for (const Mark& mark : marks) {
    const std::int32_t below = mark.twips - top;
    const auto isMet = [&](const Columns& columns) { return columns.meets(mark.columns); };
    if (row < 0 || below >= kNextLine || (below >= kSameHeight && std::ranges::any_of(taken, isMet))) {
      ++row;
      top = mark.twips;
      taken.clear();
    }
    *mark.row = row;
    taken.push_back(mark.columns);
  }
}

}  // namespace qvn::play
