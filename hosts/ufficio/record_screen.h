// A screen over one table: a record is one row, or several rows that share the first columns of their key.
#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "hosts/ufficio/bound_panel.h"
#include "hosts/ufficio/screen.h"

namespace qvn::ufficio {

constexpr int kAllRows = 0;

/// A column that no row may be stored without, and what the operator calls it.
struct Needed {
  std::string_view column;
  std::string_view called;
};

/// A column of another table that says the record's key, and what the operator calls that table's rows.
struct Use {
  std::string_view table;
  std::string_view column;
  std::string_view called;
};

/// All that the common screen is. What it refers to must outlive the screen.
struct RecordDescription {
  std::string_view panelClass;
  std::string_view find;  ///< as findBy() takes it
  std::string_view table;
  /// The columns of the table that the chosen key's values are those of.
  std::span<const std::string_view> key;
  /// What orders the rows of a record, for "ORDER BY"; empty where there is one row.
  std::string_view order = {};
  std::span<const Field> fields;
  /// How many rows of a record are shown, each in a panel of its own; kAllRows for as many as there are.
  int panels = 1;
  std::span<const Head> heads = {};
  /// What "Nuovo" and "Elimina" do here: of records where a record is one row, of rows where it is several.
  Reach adding = Reach::Nothing;
  Needed needed = {};
  /// The columns of a new row that are no key's and no field's, all of them amounts.
  std::span<const std::string_view> others = {};
  /// Where a record is referred to, which is not deleted then, and keeps its code.
  std::span<const Use> uses = {};
};

/// Enough by itself where a row's columns are a panel's properties. A screen that has to tell its panel more than its
/// own row overrides show(); one whose rows are not just those of the table, read().
class RecordScreen : public Screen {
 public:
  RecordScreen(const RecordDescription& description, const ScreenSite& site);

  std::vector<Panel*> panels() const override;
  std::span<const Head> heads() const override { return description_.heads; }
  std::vector<Found> find(Store& store, std::string_view filter, int most) const override;
  void load(Store& store, const Key& key) override;
  Key key() const override { return key_; }
  bool editable() const override { return editable_; }
  void Attiva() override;
  void Disattiva() override;
  bool changed() const override;
  Key save(Store& store) override;

  Reach adding() const override { return description_.adding; }
  Key newKey() const override;
  Panel* beginRow(Store& store) override;
  Reach removing() const override { return description_.adding; }
  void remove(Store& store) override;
  void removeRow(const Panel& panel) override;
  void forget() override;

 protected:
  /// A record's rows. StoreFailure if there are none, unless the operator can add some.
  virtual std::vector<Row> read(Store& store, const Key& key) const;
  /// Shows one of them in a panel that is frozen, and leaves it frozen.
  virtual void show(Store& store, BoundPanel& panel, const Row& row);
  /// Lets the operator type into one of them, and gives it the focus.
  virtual void activate(Panel& panel);
  /// Whether one of them is to be written back.
  virtual bool changedIn(const BoundPanel& panel) const { return panel.changed(); }
  /// Writes one of them back, within the transaction of save().
  virtual void write(Store& store, const BoundPanel& panel) const;
  /// Deletes one of them, within a transaction.
  virtual void erase(Store& store, const BoundPanel& panel) const;
  /// A row of that record in which nothing is written yet.
  Row newRow(const Key& record) const;

  const RecordDescription& description() const { return description_; }

 private:
  void addPanel();
  Key keyOf(const Row& row) const;
  /// StoreFailure if other tables refer to the record that is shown.
  void requireUnused(Store& store) const;

  const RecordDescription description_;
  const ScreenSite site_;
  std::vector<BoundPanel> panels_;
  bool editable_ = false;
  Key key_;
};

}  // namespace qvn::ufficio
