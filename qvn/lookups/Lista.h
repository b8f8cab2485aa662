// The form that shows the rows of a pick list.
#pragma once

#include <cstdint>

#include "qvn/lookups/shared_form.h"
#include "qvn/toolkit/list_view.h"

namespace qvn::lookups {

/// Sorted rows with the buttons "&OK" and "Annulla". A confirmed choice hides the form and leaves it loaded; Annulla
/// and the window's frame unload it. A click on a column's head sorts by it, and clicked again turns the direction
/// round.
class Lista {
 public:
  Lista();

  toolkit::Form& form() const { return form_.form(); }
  /// The rows, anew at each load. "invalid call" while the form is not loaded.
  toolkit::ListView& list() const;
  /// Makes the first row in the order shown the selected one, if there are rows.
  void selectFirst();

  /// As SharedForm does.
  void requireNotShown() const { form_.requireNotShown(); }
  void load() { form_.load(); }
  void show() { form_.show(); }

 private:
  void wire();
  void sortBy(std::int16_t column);

  std::int16_t clicked_ = 0;  // the column clicked last, from 1; unloading the form leaves it
  SharedForm form_;
};

}  // namespace qvn::lookups
