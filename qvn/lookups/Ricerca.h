// The wait form of the pick lists.
#pragma once

#include "qvn/lookups/shared_form.h"

namespace qvn::lookups {

/// Loaded while a pick list asks the database and fills its rows; never shown by the library itself.
class Ricerca {
 public:
  Ricerca();

  /// Loads the form and draws it.
  void load();
  void unload() { form_.form().unload(); }

 private:
  SharedForm form_;
};

}  // namespace qvn::lookups
