#include "platforms/sorted_rows.h"

#include <algorithm>
#include <array>
#include <functional>
#include <limits>
#include <numeric>

#include "qvn/shared/failure.h"

namespace qvn {

namespace {

constexpr unsigned kPlaceBits = 18;  // of a row's place, the rest number its chunk
constexpr std::size_t kLargestChunk = std::size_t{1} << kPlaceBits;
constexpr std::size_t kSmallestChunk = 1024;
constexpr std::size_t kMostChunks = std::size_t{1} << (32 - kPlaceBits);

// A row is the length of its first text in groups of seven bits, the text, the length of the next.
constexpr std::size_t lengthBytes(std::size_t length) {
  std::size_t bytes = 1;
  while ((length >>= 7U) != 0) ++bytes;
  return bytes;
}

char* putLength(char* to, std::size_t length) {
  for (; length >= 0x80; length >>= 7U) *to++ = static_cast<char>(length | 0x80U);
  *to++ = static_cast<char>(length);
  return to;
}

std::string_view takeText(const char*& from) {
  std::size_t length = 0;
  for (unsigned shift = 0;; shift += 7) {
    const auto byte = static_cast<unsigned char>(*from++);
    length |= std::size_t{byte & 0x7FU} << shift;
    if (byte < 0x80) break;
  }
  const std::string_view text(from, length);
  from += length;
  return text;
}

/// The byte of a text in which capitals are small letters; they take as many bytes.
unsigned char folded(std::string_view text, std::size_t at) {
  const auto byte = static_cast<unsigned char>(text[at]);
  const bool plainCapital = byte >= 'A' && byte <= 'Z';
  const bool accentedCapital = byte >= 0x80 && byte <= 0x9E && byte != 0x97 && at > 0 && text[at - 1] == '\xC3';
  return plainCapital || accentedCapital ? byte + 0x20 : byte;
}

constexpr std::size_t kKeyBytes = 7;

/// Seven bytes of a text, folded, and how many more there are, such that keys stand to each other as the texts do.
std::uint64_t keyOf(std::string_view text, std::size_t from) {
  const std::size_t left = text.size() - std::min(from, text.size());
  const std::size_t taken = std::min(left, kKeyBytes);
  std::uint64_t key = 0;
  for (std::size_t i = 0; i < taken; ++i) key = key << 8U | folded(text, from + i);
  key <<= 8 * (kKeyBytes - taken);
  return key << 8U | std::min(left, kKeyBytes + 1);
}

constexpr bool endsText(std::uint64_t key) { return (key & 0xFFU) <= kKeyBytes; }

/// A row with the key that it is sorted by; in three pieces, as it would take four bytes more in two.
class KeyedRow {
 public:
  std::uint32_t row = 0;

  std::uint64_t key() const { return std::uint64_t{high_} << 32U | low_; }
  void key(std::uint64_t key) {
    high_ = static_cast<std::uint32_t>(key >> 32U);
    low_ = static_cast<std::uint32_t>(key);
  }

  friend bool operator<(const KeyedRow& a, const KeyedRow& b) {
    return a.key() != b.key() ? a.key() < b.key() : a.row < b.row;
  }

 private:
  std::uint32_t high_ = 0;
  std::uint32_t low_ = 0;
};

/// Rows whose texts are the same up to a place.
struct Tie {
  std::size_t begin;
  std::size_t end;
  std::size_t from;
};

}  // namespace

char* SortedRows::room(std::size_t bytes) {
  if (used_ == capacity_ || bytes > capacity_ - used_) {
    if (chunks_.size() == kMostChunks) throw Failure(FailureKind::Overflow, "there are too many rows");
    // A row larger than any chunk has one to itself, and fills it: none can begin so far behind.
    const std::size_t next = std::max(std::clamp(capacity_ * 2, kSmallestChunk, kLargestChunk), bytes);
    chunks_.push_back(std::make_unique_for_overwrite<char[]>(next));
    capacity_ = next;
    used_ = 0;
  }
  return chunks_.back().get() + used_;
}

void SortedRows::add(std::span<const std::string_view> texts) {
  if (places_.size() >= std::numeric_limits<std::int32_t>::max()) {
    throw Failure(FailureKind::Overflow, "there are too many rows");
  }
  std::size_t bytes = 0;
  for (const std::string_view text : texts) bytes += lengthBytes(text.size()) + text.size();
  char* to = room(bytes);
  const auto row = static_cast<std::uint32_t>(places_.size());
  if (batches_.empty() || batches_.back().texts != texts.size()) {
    batches_.push_back({.first = row, .texts = texts.size()});
  }
  places_.push_back(static_cast<std::uint32_t>((chunks_.size() - 1) << kPlaceBits | used_));
  for (const std::string_view text : texts) {
    to = putLength(to, text.size());
    to = std::ranges::copy(text, to).out;
  }
  used_ += bytes;
  grouped_ = false;
}

void SortedRows::clear() {
  chunks_.clear();
  capacity_ = 0;
  used_ = 0;
  places_ = std::vector<std::uint32_t>();
  batches_.clear();
  order_ = std::vector<std::uint32_t>();
  grouped_ = false;
}

std::size_t SortedRows::textsOf(std::uint32_t row) const {
  const auto behind = std::ranges::upper_bound(batches_, row, {}, &Batch::first);
  return (behind - 1)->texts;
}

std::string_view SortedRows::text(std::uint32_t row, std::size_t column) const {
  if (column >= textsOf(row)) return {};
  const std::uint32_t place = places_[row];
  const char* from = chunks_[place >> kPlaceBits].get() + (place & (kLargestChunk - 1));
  for (std::size_t i = 0; i < column; ++i) takeText(from);
  return takeText(from);
}

void SortedRows::sortBy(std::size_t column, bool descending) {
  if (column == column_ && descending == descending_) return;
  column_ = column;
  descending_ = descending;
  grouped_ = false;
}

std::size_t SortedRows::groupOf(std::uint32_t row) const {
  const std::string_view shown = text(row, column_);
  const std::size_t group = shown.empty() ? 0 : std::size_t{folded(shown, 0)} + 1;
  return descending_ ? kGroups - 1 - group : group;
}

void SortedRows::group() const {
  if (grouped_) return;
  const auto count = static_cast<std::uint32_t>(size());
  begins_.fill(0);
  for (std::uint32_t row = 0; row < count; ++row) ++begins_[groupOf(row) + 1];
  std::partial_sum(begins_.begin(), begins_.end(), begins_.begin());
  order_.resize(count);
  auto next = begins_;
  for (std::uint32_t row = 0; row < count; ++row) order_[next[groupOf(row)]++] = row;
  sorted_.reset();
  grouped_ = true;
}

std::span<const std::uint32_t> SortedRows::sorted(std::size_t group) const {
  const std::span rows = std::span(order_).subspan(begins_[group], begins_[group + 1] - begins_[group]);
  if (!sorted_[group]) sort(rows);
  sorted_.set(group);
  return rows;
}

std::uint32_t SortedRows::rowAt(std::size_t place) const {
  group();
  const auto behind = std::ranges::upper_bound(begins_, place);
  const auto group = static_cast<std::size_t>(behind - begins_.begin()) - 1;
  return sorted(group)[place - begins_[group]];
}

std::size_t SortedRows::placeOf(std::uint32_t row) const {
  group();
  const std::size_t group = groupOf(row);
  const auto rows = sorted(group);
  return begins_[group] + static_cast<std::size_t>(std::ranges::find(rows, row) - rows.begin());
}

void SortedRows::sort(std::span<std::uint32_t> numbers) const {
  if (numbers.size() < 2) return;
  std::vector<KeyedRow> rows(numbers.size());
  for (std::size_t i = 0; i < rows.size(); ++i) rows[i].row = numbers[i];
  // A descending order is that of the keys turned over, so that equal rows stay as they came.
  const std::uint64_t turn = descending_ ? ~std::uint64_t{0} : 0;
  std::vector<Tie> ties{{.begin = 0, .end = rows.size(), .from = 0}};
  while (!ties.empty()) {
    const Tie tie = ties.back();
    ties.pop_back();
    const std::span tied = std::span(rows).subspan(tie.begin, tie.end - tie.begin);
    for (KeyedRow& row : tied) row.key(keyOf(text(row.row, column_), tie.from) ^ turn);
    if (!std::ranges::is_sorted(tied, std::less<>())) std::ranges::sort(tied, std::less<>());
    for (std::size_t i = 0; i < tied.size();) {
      const std::uint64_t key = tied[i].key();
      std::size_t end = i + 1;
      while (end < tied.size() && tied[end].key() == key) ++end;
      if (end - i > 1 && !endsText(key ^ turn)) {
        ties.push_back({.begin = tie.begin + i, .end = tie.begin + end, .from = tie.from + kKeyBytes});
      }
      i = end;
    }
  }
  std::ranges::transform(rows, numbers.begin(), &KeyedRow::row);
}

}  // namespace qvn
