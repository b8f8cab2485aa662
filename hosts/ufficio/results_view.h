// The page of a screen of results: its records one below the other, however many there are.
#pragma once

#include <QAbstractScrollArea>
#include <cstddef>
#include <exception>
#include <functional>

#include "hosts/ufficio/result_screen.h"
#include "hosts/ufficio/store.h"
#include "platforms/qt/platform.h"

namespace qvn::ufficio {

/// Places the panels of the records that are in view. The marked record has a bar at its left. What the constructor
/// takes must outlive all its events; the panels' widgets go with it or with the screen, whichever goes first.
class ResultsView final : public QAbstractScrollArea {
 public:
  /// `failed` hears of records that cannot be shown.
  ResultsView(qt::Platform& platform, Store& store, ResultScreen& screen,
              std::function<void(const std::exception&)> failed);
  ~ResultsView() override;

  /// Shows what the screen has taken, from its beginning.
  void renew();
  /// Scrolls as far as it takes to have the marked record wholly in view.
  void showMarked();

 protected:
  void scrollContentsBy(int dx, int dy) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  /// Home and End, beside the keys that scroll of themselves.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  std::size_t firstInView() const;
  std::size_t endInView() const;
  void measure();
  void lay();
  /// The panel that the focus has gone to comes wholly into view.
  void followFocus(const QWidget* now);
  void leaveWhatGoes(std::size_t first, std::size_t end);
  void bringIntoView(std::size_t place);
  QRect placeOf(std::size_t place) const;
  /// The panel that shows that record; null if none does.
  QWidget* panelAt(std::size_t place) const;

  qt::Platform& platform_;
  Store& store_;
  ResultScreen& screen_;
  std::function<void(const std::exception&)> failed_;
  QSize panel_;
  bool laying_ = false;
};

}  // namespace qvn::ufficio
