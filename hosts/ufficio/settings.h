// What the office lets its operator do.
#pragma once

namespace qvn::ufficio {

/// Holds from the next Modifica on.
struct Settings {
  bool mayCancel = false;  ///< cancel an outstanding title
};

}  // namespace qvn::ufficio
