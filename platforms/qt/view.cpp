#include "platforms/qt/view.h"

#include <QApplication>

#include "platforms/qt/colours.h"
#include "platforms/qt/key_events.h"
#include "platforms/qt/screen.h"
#include "platforms/qt/twips.h"

namespace qvn::qt {

void View::showSubject() {
  if (subject_ == nullptr) return;
  QWidget& self = widget();
  const toolkit::Place place = subject_->place();
  if (!lookShown_ || place != place_) {
    place_ = place;
    self.setGeometry(pixels(place, self));
  }
  const std::uint32_t back = subject_->BackColor();
  const std::uint32_t fore = subject_->ForeColor();
  if (!lookShown_ || back != back_ || fore != fore_) {
    back_ = back;
    fore_ = fore;
    self.setPalette(paletteFor(back, fore));
  }
  lookShown_ = true;
  showContent();
  if (self.testAttribute(Qt::WA_ForceDisabled) == subject_->Enabled()) self.setEnabled(subject_->Enabled());
  if (self.isHidden() == subject_->Visible()) self.setVisible(subject_->Visible());
}

QPalette View::paletteFor(std::uint32_t /*back*/, std::uint32_t fore) const {
  return textColours(QApplication::palette(), fore);
}

bool View::byPerson() const { return subject_ != nullptr && !screen_.settling(); }

bool View::press(const QKeyEvent& event) {
  if (!byPerson()) return false;
  const std::vector<memory::Key> keys = keysOf(event);
  screen_.press(*subject_, keys);
  return !keys.empty();
}

View* viewAround(QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    if (auto* view = dynamic_cast<View*>(widget)) return view;
  }
  return nullptr;
}

}  // namespace qvn::qt
