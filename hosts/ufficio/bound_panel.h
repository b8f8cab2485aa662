// A panel and the row that it shows.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "hosts/ufficio/field.h"
#include "hosts/ufficio/store.h"
#include "qvn/toolkit/panel.h"

namespace qvn::ufficio {

/// A panel that shows rows, one after the other. What the operator has changed is known by comparing what the panel
/// gives now with what it gave when the row had been shown: so what a panel shows otherwise than it is stored, rounded
/// for one, counts as no change and is not written.
class BoundPanel {
 public:
  explicit BoundPanel(std::unique_ptr<Panel> panel) : panel_(std::move(panel)) {}

  Panel& panel() const { return *panel_; }
  /// The row shown; none before show() and after clear().
  const std::optional<Row>& row() const { return row_; }

  /// Writes the row's values into the panel's properties, in the order of the fields, which must outlive the panel.
  /// What a property fails with passes, naming panel and property.
  void show(const Row& row, std::span<const Field> fields);
  /// The panel shows no row; what stands in its fields stays there.
  void clear();
  /// The panel shows no row and is not to be seen.
  void forget();

  /// Marks the row as one to be erased. A change, if the table has it.
  void remove() { removed_ = true; }
  bool removed() const { return removed_; }
  bool changed() const;

  /// The row with what the panel gives in its changed fields. Fails with the library's Failure where one of them
  /// cannot be read.
  Row toBeStored() const;
  /// Writes that row into the table: a new one is added, any other takes the place of what was read. StoreFailure if
  /// the table's row is no longer in every column what was read.
  void write(Store& store, std::string_view table) const;
  /// Deletes from the table what was read. StoreFailure as by write().
  void erase(Store& store, std::string_view table) const;

 private:
  /// What a property gave, or why it gave nothing.
  struct Reading {
    Variant value;
    std::string failure;
  };

  Reading read(const Field& field) const;
  bool differs(std::size_t field) const;

  std::unique_ptr<Panel> panel_;
  std::span<const Field> fields_;
  std::optional<Row> row_;
  bool removed_ = false;
  std::vector<Reading> asShown_;
};

/// Adds a row to a table.
void addRow(Store& store, std::string_view table, const Row& row);

}  // namespace qvn::ufficio
