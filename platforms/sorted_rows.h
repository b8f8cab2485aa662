// Rows of short texts by the thousand, in the order of one of their columns. What a list view on any platform shows.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace qvn {

/// Keeps rows close together, a few bytes beside their texts. They are sorted as their order is looked at: those that
/// begin with the same letter at the first look at one of them. A row's number is that of its coming, from 0.
class SortedRows {
 public:
  /// Texts are valid UTF-8. "overflow" where the rows grow beyond what can be kept, about 4 GB.
  void add(std::span<const std::string_view> texts);
  void clear();
  std::size_t size() const { return places_.size(); }

  /// The row's text in a column, empty behind its last.
  std::string_view text(std::uint32_t row, std::size_t column) const;

  /// Orders the rows by the texts in a column. Letters compare as small ones as far as U+00DE, and rows that compare
  /// equal stand as they came, in either direction. A column that no row has leaves all as they came.
  void sortBy(std::size_t column, bool descending);
  /// The number of the row that stands at a place of that order, from 0.
  std::uint32_t rowAt(std::size_t place) const;
  /// The place at which a row stands.
  std::size_t placeOf(std::uint32_t row) const;

 private:
  /// Rows from one on that have the same count of texts.
  struct Batch {
    std::uint32_t first;
    std::size_t texts;
  };

  char* room(std::size_t bytes);
  std::size_t textsOf(std::uint32_t row) const;
  /// Which of the groups in their order a row belongs to: that of the byte with which its text begins.
  std::size_t groupOf(std::uint32_t row) const;
  /// Brings the rows of each group together, as they came.
  void group() const;
  /// The rows of a group, sorted.
  std::span<const std::uint32_t> sorted(std::size_t group) const;
  void sort(std::span<std::uint32_t> numbers) const;

  std::vector<std::unique_ptr<char[]>> chunks_;
  std::size_t capacity_ = 0;  // of the last chunk
  std::size_t used_ = 0;
  std::vector<std::uint32_t> places_;  // of each row, its chunk and where it begins there
  std::vector<Batch> batches_;
  std::size_t column_ = 0;
  bool descending_ = false;
  static constexpr std::size_t kGroups = 257;  // no text, and each byte
  mutable std::vector<std::uint32_t> order_;
  mutable std::array<std::uint32_t, kGroups + 1> begins_{};  // of the groups in the order, the last being its end
  mutable std::bitset<kGroups> sorted_;
  mutable bool grouped_ = false;
};

}  // namespace qvn
