// The two forms that show how a document divides among its companies or its producers.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "qvn/lookups/shared_form.h"
#include "qvn/toolkit/data_grid.h"

namespace qvn::lookups {

/// A form with a grid, for the caller to open: it fires MancaDB, then loads, fills and shows the form, and changes the
/// layout before or after the filling as the caller's rules say:
///
///     fireMancaDB();
///     const auto viewer = producersViewer();
///     viewer->load();
///     viewer->extendCaption(" Alt.");
///     viewer->connect();
///     viewer->fill(sql);
///     viewer->dataField(0, "COD_PROD_ALT");
///     viewer->show();
///
/// A failure on the way leaves the form loaded and not shown. All but load() fail with "invalid call" before it.
class Viewer final {
 public:
  explicit Viewer(const toolkit::FormLayout& layout);

  toolkit::Form& form() const { return form_.form(); }
  toolkit::DataGrid& grid() const;
  toolkit::DataControl& data() const { return grid().DataSource(); }

  /// Loads the form as it is laid out, also where a failure has left it loaded with changes. "invalid call" while it is
  /// shown.
  void load();

  void extendCaption(std::string_view ending);
  /// What a column is headed with, and which field of the answer it shows; columns from 0. "subscript out of range"
  /// outside.
  void heading(std::int32_t column, std::string_view caption);
  void dataField(std::int32_t column, std::string_view field);

  /// Gives the form the shared connection's string, for a connection of its own.
  void connect();
  /// Gives it the statement and runs it. "database" if the string cannot be opened or the statement cannot be run.
  void fill(std::string_view sql);

  /// Shows the form until the operator closes it.
  void show() { form_.show(); }

 private:
  void layOutAnew();

  const toolkit::FormLayout& layout_;
  SharedForm form_;
};

/// The viewer `FrmVIS_COMPAGNIE` with the columns COD_COMP, DESC_COMPAGNIA, PL and PA, and `FrmVIS_PRODUTTORI` with
/// COD_PROD, DENOMINAZIONE, PP and RA. "invalid call" on a platform without forms.
std::shared_ptr<Viewer> companiesViewer();
std::shared_ptr<Viewer> producersViewer();

}  // namespace qvn::lookups
