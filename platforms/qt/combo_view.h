// A closed list on the screen.
#pragma once

#include <QComboBox>

#include "platforms/qt/view.h"

namespace qvn::qt {

class ComboView final : public QComboBox, public View {
 public:
  ComboView(Screen& screen, toolkit::ComboBox& model, QWidget& parent);
  QWidget& widget() override { return *this; }

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  /// Rolls the panel on, and never picks an item unseen.
  void wheelEvent(QWheelEvent* event) override;

 private:
  void showContent() override;
  /// Draws the items in letters so narrow that the widest of them fits.
  void fitItems();
  QPalette paletteFor(std::uint32_t back, std::uint32_t fore) const override;
  toolkit::ComboBox& list() const { return static_cast<toolkit::ComboBox&>(*subject()); }
};

}  // namespace qvn::qt
