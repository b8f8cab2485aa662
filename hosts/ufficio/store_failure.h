// What goes wrong with the office's own reading and writing.
#pragma once

#include <stdexcept>

namespace qvn::ufficio {

/// Its message is for the operator: in Italian, a clause that begins with a small letter and ends without a stop.
class StoreFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Where a row is no longer what was read.
class ChangedByOthers : public StoreFailure {
 public:
  ChangedByOthers() : StoreFailure("nel frattempo il record è stato modificato o eliminato da altri") {}
};

}  // namespace qvn::ufficio
