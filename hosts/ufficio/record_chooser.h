// A filter to type into, and the records that it finds.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QWidget>
#include <span>
#include <vector>

#include "hosts/ufficio/screen.h"

namespace qvn::ufficio {

class RecordChooser final : public QWidget {
  Q_OBJECT

 public:
  /// The most records that it shows where nothing else is said.
  static constexpr int kMost = 200;

  explicit RecordChooser(QWidget* parent = nullptr);

  QString filter() const { return filter_->text(); }
  /// Empties the filter without a word about it.
  void clearFilter();
  void filterBy(const QString& text) { filter_->setText(text); }
  /// The records that the filter has found; so many of them are shown.
  void show(std::vector<Found> found, int most = kMost);
  /// Shows none, without a word about it.
  void clear();
  /// Marks the record of that key, if it is among those shown.
  void mark(const Key& key);
  std::span<const Found> records() const { return found_; }

  void focusFilter();
  void focusRecords() { records_->setFocus(); }
  /// The same, with the first record marked where none is.
  void focusFirst();

 signals:
  void filterChanged();
  /// The operator wants this record.
  void chosen(const qvn::ufficio::Found& record);

 protected:
  /// Goes from the filter down to the records.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void choose(int row);

  QLineEdit* filter_;
  QListWidget* records_;
  QLabel* more_;
  std::vector<Found> found_;
};

}  // namespace qvn::ufficio
