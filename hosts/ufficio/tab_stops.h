// The order in which the Tab key goes through panels.
#pragma once

#include <QWidget>
#include <span>

#include "platforms/qt/platform.h"
#include "qvn/toolkit/panel.h"

namespace qvn::ufficio {

/// Lets the panels' widgets follow each other and, where one is given, a widget that stands before them. All of them
/// are in the same window.
void followInOrder(qt::Platform& platform, QWidget* before, std::span<Panel* const> panels);

}  // namespace qvn::ufficio
