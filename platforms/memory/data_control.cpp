#include "platforms/memory/data_control.h"

#include <algorithm>

#include "platforms/memory/platform.h"
#include "platforms/memory/usable.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/names.h"

namespace qvn::memory {

DataControl::DataControl(const Making& making)
    : Common(making, toolkit::kFaceGray), connection_(making.surface.platform().drivers(), making.surface.name()) {
  connection_.CursorLocation(toolkit::adUseClient);
}

void DataControl::Refresh() {
  tell();
  fields_.clear();
  values_.clear();
  rowCount_ = 0;
  connection_.Close();
  try {
    run();
  } catch (const Failure& failure) {
    fields_.clear();
    values_.clear();
    rowCount_ = 0;
    throw failure.within(fullName(*this));
  }
}

void DataControl::run() {
  connection_.Open(connectionString_);
  if (Watcher* watcher = surface().watcher()) watcher->viewerRuns(surface().name(), recordSource_);
  const auto rows =
      connection_.run({.sql = recordSource_, .cursorType = toolkit::adOpenStatic, .lockType = toolkit::adLockReadOnly});
  fields_.assign(rows->columns().begin(), rows->columns().end());
  for (; !rows->atEnd(); rows->next()) {
    for (const std::string& field : fields_) values_.push_back(rows->value(field));
    ++rowCount_;
  }
}

const Variant* DataControl::value(std::int32_t row, std::string_view field) const {
  const auto found = std::ranges::find_if(fields_, [&](const std::string& name) { return sameName(name, field); });
  if (found == fields_.end()) return nullptr;
  const auto column = static_cast<std::size_t>(found - fields_.begin());
  return &values_[static_cast<std::size_t>(row) * fields_.size() + column];
}

}  // namespace qvn::memory
