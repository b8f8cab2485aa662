// What an operator saw of a form, as answers show it.
#pragma once

#include "hosts/play/values.h"
#include "platforms/operator.h"

namespace qvn::play {

/// Of a list its columns, rows and selected row; of a grid its columns and rows; of any other form its caption alone.
Answer pictureOf(const FormPicture& seen);

}  // namespace qvn::play
