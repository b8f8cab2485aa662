#include "platforms/qt/announcements.h"

#include "platforms/qt/texts.h"
#include "qvn/toolkit/surface.h"

namespace qvn::qt {

void Announcements::PropertyChanged(toolkit::Surface& panel, std::string_view name) {
  emit changed(shown(panel.name()), shown(name));
}

void Announcements::handlerFailed(toolkit::Surface& panel, toolkit::Widget& widget, std::string_view event,
                                  const Failure& failure) noexcept {
  emit failed(shown(panel.name()), shown(widget.Name()), shown(event), shown(failure.what()), failure.kind());
}

}  // namespace qvn::qt
