#include "platforms/qt/form_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>

#include "platforms/qt/key_events.h"
#include "platforms/qt/panel_widget.h"
#include "platforms/qt/screen.h"
#include "platforms/qt/texts.h"
#include "platforms/qt/twips.h"

namespace qvn::qt {

using memory::kFrameHeight;
using memory::kFrameWidth;

FormWindow::FormWindow(Screen& screen, PanelWidget& inside) : screen_(screen) {
  setWindowModality(Qt::ApplicationModal);
  setObjectName(inside.objectName());
  inside.setParent(this);
  setFixedSize(inside.size());
  const toolkit::PanelLayout& layout = inside.surface()->layout();
  place_ = {.width = layout.width + kFrameWidth, .height = layout.height + kFrameHeight};
  inside.show();
}

void FormWindow::stand(memory::Form& form) {
  form_ = &form;
  showForm();
  show();
}

void FormWindow::leave() {
  form_ = nullptr;
  hide();
}

void FormWindow::showForm() {
  if (form_ == nullptr) return;
  setWindowTitle(shown(form_->Caption()));
  const toolkit::Place place = form_->place();
  if (place == place_) return;
  place_ = place;
  setFixedSize(pixels(place.width - kFrameWidth, logicalDpiX()), pixels(place.height - kFrameHeight, logicalDpiY()));
  move(screen()->geometry().topLeft() + QPoint(pixels(place.left, logicalDpiX()), pixels(place.top, logicalDpiY())));
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (form_ != nullptr) screen_.pressAtForm(*form_, keysOf(*event));
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (form_ != nullptr) screen_.closeByFrame(*form_);
}

}  // namespace qvn::qt
