// What an assistive program calls a widget.
#pragma once

#include <QString>

#include "qvn/toolkit/widget.h"

namespace qvn::qt {

/// The widget's caption; for a field, that of the label before it in its row, or its tooltip; else its name.
QString spokenName(const toolkit::Widget& widget);

}  // namespace qvn::qt
