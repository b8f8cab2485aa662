// Rows of short texts by the thousand, in the order of one of their columns. What a list view on any platform shows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace qvn {

/// Keeps rows close together, a few bytes beside their texts, and sorts them when their order is first looked at. A
/// row's number is that of its coming, from 0.
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
  /// The numbers of the rows in that order, until the next change.
  std::span<const std::uint32_t> order() const;

 private:
  /// Rows from one on that have the same count of texts.
  struct Batch {
    std::uint32_t first;
    std::size_t texts;
  };

  char* room(std::size_t bytes);
  std::size_t textsOf(std::uint32_t row) const;
  void sort() const;
  /// Sorts rows whose texts begin with the same byte.
  void sort(std::span<std::uint32_t> numbers) const;

  std::vector<std::unique_ptr<char[]>> chunks_;
  std::size_t capacity_ = 0;  // of the last chunk
  std::size_t used_ = 0;
  std::vector<std::uint32_t> places_;  // of each row, its chunk and where it begins there
  std::vector<Batch> batches_;
  std::size_t column_ = 0;
  bool descending_ = false;
  mutable std::vector<std::uint32_t> order_;
  mutable bool ordered_ = true;
};

}  // namespace qvn
