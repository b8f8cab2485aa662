// A widget as it looks, in JSON.
#pragma once

#include "hosts/play/values.h"
#include "qvn/toolkit/widget.h"

namespace qvn::play {

/// What every widget has, then what its kind adds.
Answer pictureOf(const toolkit::Widget& widget);

}  // namespace qvn::play
