#include "platforms/memory/data_control.h"

#include <algorithm>
#include <utility>

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
  answer_ = {};
  connection_.Close();
  answer_ = placed(fullName(*this), [this] { return ask(); });
}

DataControl::Answer DataControl::ask() {
  connection_.Open(connectionString_);
  if (Watcher* watcher = surface().watcher()) watcher->viewerRuns(surface().name(), recordSource_);
  const auto rows =
      connection_.run({.sql = recordSource_, .cursorType = toolkit::adOpenStatic, .lockType = toolkit::adLockReadOnly});
  Answer answer{.fields = {rows->columns().begin(), rows->columns().end()}};
  for (; !rows->atEnd(); rows->next()) {
    for (const std::string& field : answer.fields) answer.values.push_back(rows->value(field));
    ++answer.rowCount;
  }
  return answer;
}

const Variant* DataControl::value(std::int32_t row, std::string_view field) const {
  const auto& fields = answer_.fields;
  const auto found = std::ranges::find_if(fields, [&](const std::string& name) { return sameName(name, field); });
  if (found == fields.end()) return nullptr;
  const auto column = static_cast<std::size_t>(found - fields.begin());
  return &answer_.values[static_cast<std::size_t>(row) * fields.size() + column];
}

}  // namespace qvn::memory
