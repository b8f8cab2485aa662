// What is painted, and when.
#pragma once

#include <QObject>
#include <QSet>
#include <QWidget>
#include <functional>

namespace qvn::bench {

/// Does something as soon as the window is painted in which the rows of a list are painted for the first time.
class FirstPaint final : public QObject {
 public:
  explicit FirstPaint(std::function<void()> then);

  bool eventFilter(QObject* on, QEvent* event) override;

 private:
  std::function<void()> then_;
  bool seen_ = false;
};

/// Keeps an eye on all widgets that are painted.
class PaintedWidgets final : public QObject {
 public:
  PaintedWidgets();

  bool eventFilter(QObject* on, QEvent* event) override;
  /// Whether a widget was painted, with all that it shows inside.
  bool haveAllOf(const QWidget& widget) const;

 private:
  QSet<const QObject*> painted_;
};

}  // namespace qvn::bench
