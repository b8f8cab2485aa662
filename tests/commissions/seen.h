// What a step leaves behind and what happened in it, of the panel or of its model.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tests/commissions/widget_names.h"

namespace qvn::test {

struct SeenField {
  std::string text = {};
  std::size_t selStart = 0;
  std::size_t selLength = 0;
  std::uint32_t back = 0;

  friend bool operator==(const SeenField&, const SeenField&) = default;
};

struct Seen {
  std::array<SeenField, kFieldCount> fields;
  std::array<std::string, kLabels.size()> captions;
  std::array<bool, kFrames.size()> enabled{};
  std::string focus;                ///< empty where nothing has it
  std::string failure;              ///< of the step itself, by its kind
  std::string value;                ///< that a get gave
  std::vector<std::string> events;  ///< announcements, moves of the focus, beeps, statements, reported failures

  friend bool operator==(const Seen&, const Seen&) = default;
};

/// One line for each thing that differs; empty where nothing does.
std::string differences(const Seen& panel, const Seen& model);

}  // namespace qvn::test
