// What an assistive program calls widgets.
#pragma once

#include <QString>
#include <string_view>
#include <unordered_map>

#include "qvn/toolkit/layout.h"

namespace qvn::qt {

using SpokenNames = std::unordered_map<std::string_view, QString>;

/// Each widget's, by its own name: the captions beside it and over it, its tooltip, or what it is called in the
/// program, the last with the caption of its frame in front, as have those that would be called alike. Empty for a
/// frame without a caption.
SpokenNames spokenNames(const toolkit::PanelLayout& panel);

}  // namespace qvn::qt
