#include "hosts/play/canvas.h"

#include "qvn/shared/characters.h"

namespace qvn::play {

std::vector<std::string> charactersOf(std::string_view text) {
  std::vector<std::string> characters;
  for (const char byte : text) {
    const auto code = static_cast<unsigned char>(byte);
    if (continuesCharacter(byte) && !characters.empty()) {
      characters.back() += byte;
    } else if (code < 0x20U || code == 0x7FU) {
      characters.emplace_back("·");
    } else {
      characters.emplace_back(1, byte);
    }
  }
  return characters;
}

std::string& Canvas::cell(std::size_t row, std::size_t column) {
  if (rows_.size() <= row) rows_.resize(row + 1);
  std::vector<std::string>& cells = rows_[row];
  if (cells.size() <= column) cells.resize(column + 1);
  return cells[column];
}

void Canvas::put(int row, int column, std::string_view character) {
  if (row < 0 || column < 0) return;
  cell(static_cast<std::size_t>(row), static_cast<std::size_t>(column)) = character;
}

void Canvas::write(int row, int column, const std::vector<std::string>& characters) {
  for (const std::string& one : characters) put(row, column++, one);
}

void Canvas::writeBehind(int row, int column, const std::vector<std::string>& characters) {
  for (const std::string& one : characters) {
    if (row >= 0 && column >= 0 && one != " ") {
      std::string& target = cell(static_cast<std::size_t>(row), static_cast<std::size_t>(column));
      if (target.empty()) target = one;
    }
    ++column;
  }
}

std::vector<std::string> Canvas::lines() const {
  std::vector<std::string> lines;
  for (const auto& cells : rows_) {
    std::string line;
    for (const std::string& one : cells) line += one.empty() ? " " : one;
    line.erase(line.find_last_not_of(' ') + 1);
    lines.push_back(std::move(line));
  }
  return lines;
}

}  // namespace qvn::play
