// The locale that texts are read and written in where a test names none.
#pragma once

#include "qvn/shared/locale.h"

namespace qvn {

inline const Locale kItalian;

}  // namespace qvn
