// What the office's window asks of each of its screens.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "hosts/ufficio/row.h"
#include "hosts/ufficio/settings.h"
#include "hosts/ufficio/store.h"
#include "qvn/toolkit/container.h"
#include "qvn/toolkit/panel.h"

namespace qvn::ufficio {

class Printing;
class ResultScreen;

/// A record that the operator may choose.
struct Found {
  Key key;
  std::string text;  ///< what tells it to the operator, on one line
};

/// A caption over the column of a widget, on a screen whose panels have none.
struct Head {
  std::string_view widget;
  std::string_view caption;
};

/// What a command adds or takes away at a screen.
enum class Reach : std::uint8_t {
  Nothing,
  Record,  ///< a record
  Row,     ///< a row of the record that is shown, for save() to store
};

/// One or several panels, and the records that go into them. Where the database does not do what it is asked to, its
/// members fail with StoreFailure; where a panel or a look-up fails, with the library's Failure.
class Screen {
 public:
  virtual ~Screen() = default;
  Screen() = default;
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  /// The panels, as they stand from top to bottom, one at least. They stay for as long as the screen lives, and loading
  /// a record may add more; one that has nothing to show at the moment hides itself (Surface::Visible).
  virtual std::vector<Panel*> panels() const = 0;
  /// Itself where it shows all records that were found, as a search does; null where it shows one of them.
  virtual ResultScreen* results() { return nullptr; }
  /// The lines of the record that is shown, which stand below the panels; null where there are none. Loading takes them
  /// anew.
  virtual ResultScreen* lines() { return nullptr; }
  /// What prints the record that is shown; null where it cannot be printed.
  virtual Printing* printing() { return nullptr; }
  /// What stands over the first of the panels. Lives as long as the screen.
  virtual std::span<const Head> heads() const { return {}; }
  /// What is to be told about the panels as they stand, on one line below them; mostly nothing. Never fails.
  virtual std::string remark() const { return {}; }

  /// The records whose text holds the filter, without regard to the case of any
  /// letter, at most so many; all of them for an empty filter.
  virtual std::vector<Found> find(Store& store, std::string_view filter, int most) const = 0;

  /// Shows a record and freezes the panels. Reads first: where that fails, the screen stays as it was. Where showing
  /// fails, it has no record.
  virtual void load(Store& store, const Key& key) = 0;
  /// The record that is shown. Empty where there is none, and the panels' contents then mean nothing.
  virtual Key key() const = 0;

  /// Whether the operator can change records here. Where not, the four below are never called.
  virtual bool editable() const = 0;
  virtual void Attiva() = 0;
  virtual void Disattiva() = 0;
  /// Whether what would be stored is other than what was loaded.
  virtual bool changed() const = 0;
  /// Stores what was changed, all or nothing, unless another has changed the record since it was loaded; the key of the
  /// record as it is now. What the panels show stays, whatever happens.
  virtual Key save(Store& store) = 0;

  /// What can be added here. A record: load() of this key shows one that is not stored yet, and save() stores it. A
  /// row: beginRow(), between Attiva and Disattiva, shows an empty one in a panel that it lets the operator type into.
  virtual Reach adding() const { return Reach::Nothing; }
  virtual Key newKey() const { return {}; }
  virtual Panel* beginRow(Store& /*store*/) { return nullptr; }
  /// Where records to be begun are found among the others, the filter that finds them.
  virtual std::string_view newFilter() const { return {}; }

  /// What can be taken away here. A record: remove() deletes the one that is shown, unless another has changed it or
  /// other tables refer to it, and shows none. A row: removeRow(), between Attiva and Disattiva, hides that of a panel.
  virtual Reach removing() const { return Reach::Nothing; }
  virtual void remove(Store& /*store*/) {}
  virtual void removeRow(const Panel& /*panel*/) {}

  /// Shows no record: nothing of it is to be seen in the panels. Of results, which stay, none is marked.
  virtual void forget() = 0;
};

/// What a screen is made with. Container and settings must outlive it.
struct ScreenSite {
  toolkit::Container& container;
  const Settings& settings;
  std::string name;  ///< the screen's, for its panels' names
};

/// One of the office's screens.
struct ScreenClass {
  std::string_view name;   ///< for the command line and for files
  std::string_view title;  ///< for the operator
  std::unique_ptr<Screen> (*make)(const ScreenSite& site);
};

}  // namespace qvn::ufficio
