// Lines of characters to draw on.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qvn::play {

/// A text's characters, each as its own UTF-8 text; control characters show as "·".
std::vector<std::string> charactersOf(std::string_view text);

/// Rows of cells, free at first, that grow as they are drawn on. A free cell shows as a blank. What falls to the left
/// of column 0 is cut.
class Canvas {
 public:
  void put(int row, int column, std::string_view character);
  /// From that column on, one character a cell.
  void write(int row, int column, const std::vector<std::string>& characters);
  /// The same on free cells only, where a blank leaves the cell free.
  void writeBehind(int row, int column, const std::vector<std::string>& characters);

  /// Without the blanks at the ends of the lines.
  std::vector<std::string> lines() const;

 private:
  std::string& cell(std::size_t row, std::size_t column);

  std::vector<std::vector<std::string>> rows_;
};

}  // namespace qvn::play
