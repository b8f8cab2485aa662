// What an assistive program calls a widget.
#pragma once

#include <QString>

#include "qvn/toolkit/widget.h"

namespace qvn::qt {

/// The widget's caption. For a field, and for a label that shows a value: the label before it in its row, with that
/// above it at the head of its column; else its tooltip; else its name without the mark of its kind.
QString spokenName(const toolkit::Widget& widget);

}  // namespace qvn::qt
