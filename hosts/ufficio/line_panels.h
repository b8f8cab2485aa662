// The panels of a record of several lines, among them empty ones for lines to come.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "hosts/ufficio/bound_panel.h"
#include "hosts/ufficio/screen.h"
#include "hosts/ufficio/store.h"

namespace qvn::ufficio {

/// What it refers to must outlive the panels.
struct LinesDescription {
  std::string_view panelClass;
  std::string_view table;
  std::string_view key;     ///< the column that tells its record
  std::string_view number;  ///< the column of a line's place in its record, from 1
  std::span<const Field> fields;
  /// Whether nothing stands in a line, so that it is none.
  bool (*empty)(const Row& line);
};

/// One panel a line. Lines that the operator empties, or never writes into, are not stored.
class LinePanels {
 public:
  /// The empty lines behind the others, at least, and the fewest lines in all.
  static constexpr std::size_t kSpare = 2;
  static constexpr std::size_t kFewest = 4;

  LinePanels(const LinesDescription& description, const ScreenSite& site);

  /// From top to bottom; there is one at least.
  std::vector<Panel*> panels() const;
  std::span<const BoundPanel> bound() const { return panels_; }

  /// Shows lines and behind them empty ones like `empty`, all of them numbered by their place, in frozen panels.
  void show(std::vector<Row> lines, Row empty);
  /// Shows no lines.
  void forget();
  void Attiva();
  void Disattiva();
  bool changed() const;

  /// The lines to be stored. Fails with the library's Failure where a panel's field cannot be read.
  std::vector<Row> lines() const;
  /// The table's lines of a record, by their numbers.
  std::vector<Row> read(Store& store, const Value& record) const;
  /// ChangedByOthers if the table does not hold the lines that are shown any more as they were read.
  void requireUnchanged(Store& store, const Value& record) const;
  /// Writes lines as those of the record, in the place of those that are shown and were read. ChangedByOthers if the
  /// table does not hold them any more as they were read.
  void write(Store& store, const Value& record, std::span<const Row> lines) const;

 private:
  void add();

  LinesDescription description_;
  ScreenSite site_;
  std::vector<BoundPanel> panels_;
};

}  // namespace qvn::ufficio
