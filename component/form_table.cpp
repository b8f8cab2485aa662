#include "component/form_table.h"

#include "qvn/shared/failure.h"
#include "qvn/toolkit/surface.h"

namespace qvn::component {

FormTable::FormTable(const toolkit::Form& form) : form_(form.Name()) {
  for (const toolkit::Widget* widget : form.surface().widgets()) {
    if (widget->Kind() == toolkit::WidgetKind::ListView && list_ == nullptr) {
      list_ = static_cast<const toolkit::ListView*>(widget);
    } else if (widget->Kind() == toolkit::WidgetKind::DataGrid && grid_ == nullptr) {
      grid_ = static_cast<const toolkit::DataGrid*>(widget);
    }
  }
}

std::int32_t FormTable::rowCount() const {
  if (list_ != nullptr) return list_->rowCount();
  return grid_ != nullptr ? grid_->rowCount() : 0;
}

std::int32_t FormTable::columnCount() const {
  if (list_ != nullptr) return list_->columnCount();
  return grid_ != nullptr ? grid_->columnCount() : 0;
}

std::string FormTable::head(std::int32_t column) const {
  if (list_ != nullptr) return list_->columnCaption(column);
  if (grid_ != nullptr) return grid_->column(column).caption;
  throw Failure(FailureKind::SubscriptOutOfRange, std::string("the form ").append(form_).append(" has no columns"));
}

std::string FormTable::text(std::int32_t row, std::int32_t column) const {
  if (list_ != nullptr) return list_->text(row, column);
  if (grid_ != nullptr) return grid_->text(row, column);
  throw Failure(FailureKind::SubscriptOutOfRange, std::string("the form ").append(form_).append(" has no rows"));
}

}  // namespace qvn::component
