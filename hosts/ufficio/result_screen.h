// A screen of what a search has found: each record in a panel of its own, as far as it is in view.
#pragma once

#include <cstddef>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "hosts/ufficio/field.h"
#include "hosts/ufficio/screen.h"

namespace qvn::ufficio {

/// What it refers to must outlive the screen.
struct ResultDescription {
  std::string_view panelClass;  ///< of a panel that only shows
  std::string_view find;        ///< as findBy() takes it
  /// The statement that reads a record's row, ?1, ?2, … being the values of its key.
  std::string_view read;
  /// Which property shows which of the row's columns, in the order of writing.
  std::span<const Field> fields;
};

/// There are no more panels than are in view at once: one whose record goes out of view shows another.
class ResultScreen : public Screen {
 public:
  /// The most records that one search gives.
  static constexpr int kMost = 2000;

  ResultScreen(const ResultDescription& description, const ScreenSite& site);

  /// Those in view, from top to bottom; one at least. Scrolling changes them.
  std::vector<Panel*> panels() const override;
  ResultScreen* results() override { return this; }
  std::vector<Found> find(Store& store, std::string_view filter, int most) const override;
  /// Marks a record among those found, with its panel written anew. One that was not found comes behind them.
  void load(Store& store, const Key& key) override;
  Key key() const override { return marked_ ? records_[*marked_] : Key(); }
  bool editable() const override { return false; }
  void Attiva() override {}
  void Disattiva() override {}
  bool changed() const override { return false; }
  Key save(Store& /*store*/) override { return key(); }
  /// Marks none. What was found stays.
  void forget() override { marked_.reset(); }

  /// Takes what was found in the place of what was found before. The marked record stays so if it is among it.
  void take(std::span<const Found> found);
  std::size_t count() const { return records_.size(); }
  /// Where the marked record stands among those found.
  std::optional<std::size_t> marked() const { return marked_; }

  /// Shows the records from `first` to before `end` and no others. A record that cannot be shown leaves its place empty
  /// for as long as that is in view; why is given to `failed`, once.
  void show(Store& store, std::size_t first, std::size_t end, const std::function<void(const std::exception&)>& failed);
  /// The panel in view that shows the record of that place; null if none does.
  Panel* panelAt(std::size_t place) const;
  /// The row of a record among those found, as it is now. StoreFailure if it is gone.
  Row rowAt(Store& store, std::size_t place) const { return read(store, records_.at(place)); }
  /// Any of the panels, which are all of one size.
  Panel& anyPanel() const { return *slots_.front().panel; }

 protected:
  /// Writes a row into a panel.
  virtual void write(Panel& panel, const Row& row) const;

 private:
  /// A panel and the place of the record that it is for.
  struct Slot {
    std::unique_ptr<Panel> panel;
    std::optional<std::size_t> place = {};
    bool shows = false;  ///< not where the record could not be shown
  };

  Slot& add();
  /// The one that is kept for the place, or for none; null if there is none.
  Slot* slotOf(std::optional<std::size_t> place);
  std::optional<std::size_t> placeOf(const Key& key) const;
  Row read(Store& store, const Key& key) const;
  /// The panel shows nothing, for the place that it is kept for or for none.
  static void clear(Slot& slot, std::optional<std::size_t> place);
  void fill(Slot& slot, std::size_t place, const Row& row);

  const ResultDescription description_;
  const ScreenSite site_;
  std::vector<Slot> slots_;
  std::vector<Key> records_;
  std::optional<std::size_t> marked_;
};

}  // namespace qvn::ufficio
