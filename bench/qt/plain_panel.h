// A panel as a program without this library would write it down in Qt.
#pragma once

#include <QFont>
#include <QPalette>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "platforms/qt/platform.h"

namespace qvn::bench {

/// One widget: what is told of it by hand, and nothing where Qt's own is what is wanted.
struct PlainWidget {
  enum class Kind : std::uint8_t { Field, Label, List, Frame };

  Kind kind;
  int frame = -1;  ///< which of the rows before it this one lies in; -1 for none
  QRect place = {};
  QString text = {};
  bool enabled = true;
  Qt::Alignment alignment = {};
  bool wraps = false;
  bool bordered = false;
  QStringList items = {};
  int item = -1;
  std::optional<QFont> font = {};
  std::optional<QPalette> colours = {};
};

struct PlainPanel {
  QSize size;
  QFont font;
  std::vector<PlainWidget> widgets;
};

/// What a panel shows on the screen, as it would be written down.
PlainPanel writtenDown(qt::Platform& platform, toolkit::Surface& panel);

/// The same widgets of plain Qt.
class PlainTwin {
 public:
  explicit PlainTwin(const PlainPanel& panel);

  QWidget& inside() const { return *inside_; }
  /// The widget of a row.
  QWidget& widget(std::size_t row) const { return *widgets_[row]; }

 private:
  std::unique_ptr<QWidget> inside_;
  std::vector<QWidget*> widgets_;
};

}  // namespace qvn::bench
