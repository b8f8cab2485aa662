// Heights in twips gathered into lines of text.
#pragma once

#include <cstdint>
#include <vector>

namespace qvn::play {

/// From a column up to, but not including, another.
struct Columns {
  int from = 0;
  int to = 0;

  bool meets(const Columns& other) const { return from < other.to && other.from < to; }
};

/// Something that needs a line of its own or shares one: how far down it lies, and where its line's number goes.
struct Mark {
  std::int32_t twips = 0;
  Columns columns = {};
  int* row = nullptr;
};

/// Numbers the lines from 0 down. What lies at about the same height shares a line; what meets something in the line
/// from further above gets the next one.
void giveRows(std::vector<Mark> marks);

}  // namespace qvn::play
