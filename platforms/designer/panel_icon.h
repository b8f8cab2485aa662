// The icon of a panel in a palette.
#pragma once

#include <QIcon>
#include <QString>
#include <string_view>

#include "qvn/toolkit/layout.h"

namespace qvn::designer {

/// A card in the colour of its room, with the mark on it and, below, the fields of the panel's first row. It stands out
/// on light and dark palettes alike.
QIcon panelIcon(const toolkit::PanelLayout& layout, std::string_view room, const QString& mark);

}  // namespace qvn::designer
