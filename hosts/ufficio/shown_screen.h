// One of the window's screens, and where it stands.
#pragma once

#include <QString>
#include <QWidget>
#include <memory>

#include "hosts/ufficio/notice.h"
#include "hosts/ufficio/results_view.h"
#include "hosts/ufficio/screen.h"
#include "platforms/qt/platform.h"

namespace qvn::ufficio {

/// What screens are shown with. All of it must outlive them.
struct ShownSite {
  qt::Platform& platform;
  Store& store;
  toolkit::Container& container;
  const Settings& settings;
  Notice& notice;  ///< warns of results that cannot be shown
};

struct ShownScreen {
  const ScreenClass* made = nullptr;
  std::unique_ptr<Screen> screen;  ///< none before make()
  QWidget* page = nullptr;
  std::unique_ptr<ResultsView> results;  ///< the page, where it is one; goes before its screen
  std::unique_ptr<ResultsView> lines;    ///< below the panels, where there are some
  QString record;                        ///< the text of the record that it shows
  Key before;                            ///< the record that it showed before one to come

  /// Makes screen and page, which is without a parent, for the window to place. What a panel fails with passes; there
  /// is no screen then.
  void make(const ShownSite& site);

  bool loaded() const { return screen != nullptr && !screen->key().empty(); }
  /// Whether the record that is shown is one to come.
  bool isNew() const;
  /// What stands over the page.
  QString heading() const;
  /// Brings what the screen has loaded onto the page.
  void placeLoaded(qt::Platform& platform);
  /// Shows no record.
  void forget();
};

}  // namespace qvn::ufficio
