// The way of the Enter key through the fields of a panel.
#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/shared/failure.h"
#include "qvn/toolkit/surface.h"

namespace qvn::Gest_SCHEDE {

namespace {

using toolkit::Widget;
using toolkit::WidgetKind;

/// No field with this TabIndex or a higher one is ever chosen.
constexpr std::int16_t kBeyondAllFields = 10000;

bool takesEnter(const Widget& widget) {
  switch (widget.Kind()) {
    case WidgetKind::TextBox:
    case WidgetKind::ComboBox:
    case WidgetKind::CheckBox:
    case WidgetKind::DateControl:
      return true;
    default:
      return false;
  }
}

/// The candidate with the smallest TabIndex above the given one, the first in the list of several, or null. The own
/// flag of a field counts, not that of its frame.
Widget* nextBehind(const toolkit::Surface& panel, std::int16_t tabIndex) {
  Widget* best = nullptr;
  std::int16_t bestIndex = kBeyondAllFields;
  for (Widget* widget : panel.widgets()) {
    const std::int16_t index = widget->TabIndex();
    if (index > tabIndex && index < bestIndex && takesEnter(*widget) && widget->Enabled() && widget->Visible()) {
      best = widget;
      bestIndex = index;
    }
  }
  return best;
}

std::string fullName(const Widget& widget) {
  return std::string(widget.owner().name()).append(".").append(widget.Name());
}

}  // namespace

void ProssimoCampo(Widget& control) {
  switch (control.Kind()) {
    case WidgetKind::TextBox:
    case WidgetKind::ComboBox:
      break;
    case WidgetKind::CheckBox:
      throw Failure(FailureKind::InvalidCall, fullName(control).append(": Enter does not leave a check box"));
    default:
      return;
  }
  const toolkit::Surface& panel = control.owner();
  Widget* next = nextBehind(panel, control.TabIndex());
  if (next == nullptr) next = nextBehind(panel, 0);
  if (next == nullptr) {
    throw Failure(FailureKind::InvalidCall, fullName(control).append(": no field of the panel can take the focus"));
  }
  next->SetFocus();
}

}  // namespace qvn::Gest_SCHEDE
