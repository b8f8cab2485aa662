// The pages of a printed journal.
#pragma once

#include <QPainter>
#include <cstddef>
#include <span>
#include <string>

#include "hosts/ufficio/journal/balance.h"

namespace qvn::ufficio::journal {

/// What is told at the head of every page.
struct PrintedJournal {
  std::string from;  ///< the first day and the last, "dd/mm/yyyy"
  std::string to;
  bool definitive = false;
  std::size_t lines = 0;
};

struct PrintedLine {
  std::size_t number = 0;  ///< in the journal, from 1
  std::string reference;
  std::string day;
  std::string account;
  std::string description;
  std::string side;
  Currency amount;
};

/// Draws the pages one after the other, each a sheet A4. Both sides are carried from page to page: a page begins with
/// what was carried to it and ends with what it carries on, the last one with the totals.
class JournalPages {
 public:
  static constexpr std::size_t kLinesAPage = 28;
  /// What the painter's device must have, so that a millimetre has ten dots.
  static constexpr int kDotsAnInch = 254;

  JournalPages(PrintedJournal journal, Balance carried) : journal_(std::move(journal)), sums_(carried) {}

  /// One at least.
  std::size_t count() const;
  /// Draws the next page with its lines, kLinesAPage of them but for the last.
  void draw(QPainter& painter, std::span<const PrintedLine> lines);

 private:
  PrintedJournal journal_;
  Balance sums_;
  std::size_t drawn_ = 0;
};

}  // namespace qvn::ufficio::journal
