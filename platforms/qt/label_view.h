// A label on the screen.
#pragma once

#include <QLabel>

#include "platforms/qt/view.h"

namespace qvn::qt {

/// A caption that is wider than its place is drawn in narrower letters. Where they do not help it ends in dots, and the
/// tooltip tells it whole.
class LabelView final : public QLabel, public View {
 public:
  LabelView(Screen& screen, toolkit::Label& model, QWidget& parent);
  QWidget& widget() override { return *this; }
  /// What an assistive program says before the value of a label that shows one.
  void call(const QString& spokenName) { spokenName_ = spokenName; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void showContent() override;
  QPalette paletteFor(std::uint32_t back, std::uint32_t fore) const override;
  /// The caption as there is room for it.
  QString shownText() const;

  bool bordered_;
  QString spokenName_;
};

/// What stands for a data control, which shows nothing of its own.
class DataControlView final : public QLabel, public View {
 public:
  DataControlView(Screen& screen, toolkit::Widget& model, QWidget& parent);
  QWidget& widget() override { return *this; }

 private:
  void showContent() override {}
};

}  // namespace qvn::qt
