#include "hosts/ufficio/bound_panel.h"

#include <compare>
#include <string>

#include "hosts/ufficio/reasons.h"
#include "hosts/ufficio/store_failure.h"
#include "qvn/shared/failure.h"

namespace qvn::ufficio {

namespace {

/// "A = ?1, B = ?2": the columns, each with the sign and the next parameter.
std::string listed(std::span<const std::string> columns, std::string_view sign, std::string_view between, int& place) {
  std::string text;
  for (const std::string& column : columns) {
    if (!text.empty()) text.append(between);
    text.append(column).append(sign).append("?").append(std::to_string(++place));
  }
  return text;
}

bool same(const Variant& a, const Variant& b) {
  if (isNull(a) || isNull(b)) return isNull(a) && isNull(b);
  return compare(a, b) == std::partial_ordering::equivalent;
}

void update(Store& store, std::string_view table, const Row& before, const Row& after) {
  std::vector<std::string> columns;
  std::vector<Value> parameters;
  for (std::size_t i = 0; i < after.columns.size(); ++i) {
    if (after.values[i] == before.values[i]) continue;
    columns.push_back(after.columns[i]);
    parameters.push_back(after.values[i]);
  }
  if (columns.empty()) {  // what stands there is written once more, to find out whether it still does
    columns.push_back(after.columns.front());
    parameters.push_back(after.values.front());
  }
  parameters.insert(parameters.end(), before.values.begin(), before.values.end());
  int place = 0;
  std::string sql = std::string("UPDATE ").append(table).append(" SET ");
  sql.append(listed(columns, " = ", ", ", place));
  sql.append(" WHERE ").append(listed(before.columns, " IS ", " AND ", place));
  if (store.run(sql, parameters) == 0) throw ChangedByOthers();
}

}  // namespace

BoundPanel::Reading BoundPanel::read(const Field& field) const {
  try {
    return {.value = getByName(*panel_, field.property), .failure = {}};
  } catch (const Failure& failure) {
    return {.value = {}, .failure = failure.what()};
  }
}

void BoundPanel::clear() {
  row_.reset();
  removed_ = false;
}

void BoundPanel::forget() {
  clear();
  panel_->surface().Visible(false);
}

void BoundPanel::show(const Row& row, std::span<const Field> fields) {
  clear();
  for (const Field& field : fields) letByName(*panel_, field.property, shown(row.at(field.column), field.kind));
  fields_ = fields;
  asShown_.clear();
  asShown_.reserve(fields.size());
  for (const Field& field : fields) asShown_.push_back(read(field));
  row_ = row;
}

bool BoundPanel::differs(std::size_t field) const {
  const Reading now = read(fields_[field]);
  return now.failure != asShown_[field].failure || !same(now.value, asShown_[field].value);
}

bool BoundPanel::changed() const {
  if (!row_) return false;
  if (removed_) return !row_->isNew;
  for (std::size_t field = 0; field < fields_.size(); ++field) {
    if (differs(field)) return true;
  }
  return false;
}

Row BoundPanel::toBeStored() const {
  Row written = row_.value();
  for (std::size_t field = 0; field < fields_.size(); ++field) {
    if (!differs(field)) continue;
    const Field& its = fields_[field];
    try {
      written.at(its.column) = stored(getByName(*panel_, its.property), its.kind);
    } catch (const Failure& failure) {
      const QString name = QString::fromUtf8(its.property).replace('_', ' ');
      const QString reason = QString("campo «%1», %2").arg(name, reasonOf(failure.kind()));
      throw StoreFailure(reason.toStdString(), failure.what());
    }
  }
  return written;
}

void BoundPanel::write(Store& store, std::string_view table) const {
  const Row written = toBeStored();
  if (written.isNew) return addRow(store, table, written);
  update(store, table, row_.value(), written);
}

void BoundPanel::erase(Store& store, std::string_view table) const {
  const Row& read = row_.value();
  int place = 0;
  const std::string which = listed(read.columns, " IS ", " AND ", place);
  if (store.run(std::string("DELETE FROM ").append(table).append(" WHERE ").append(which), read.values) == 0) {
    throw ChangedByOthers();
  }
}

void addRow(Store& store, std::string_view table, const Row& row) {
  std::string names;
  std::string places;
  for (const std::string& column : row.columns) {
    names.append(names.empty() ? "" : ", ").append(column);
    places.append(places.empty() ? "?" : ", ?");
  }
  std::string sql = std::string("INSERT INTO ").append(table);
  sql.append(" (").append(names).append(") VALUES (").append(places).append(")");
  store.run(sql, row.values);
}

}  // namespace qvn::ufficio
