#include "hosts/ufficio/record_screen.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>

#include "hosts/ufficio/finding.h"
#include "qvn/panels/classes.h"
#include "qvn/shared/names.h"

namespace qvn::ufficio {

namespace {

bool hasMember(const Panel& panel, std::string_view name) {
  return std::ranges::any_of(panel.members(), [&](const Member& member) { return sameName(member.name, name); });
}

}  // namespace

RecordScreen::RecordScreen(const RecordDescription& description, const ScreenSite& site)
    : description_(description), site_(site) {
  for (int i = 0; i < std::max(description_.panels, 1); ++i) addPanel();
  editable_ = hasMember(panels_.front().panel(), "Attiva");
}

void RecordScreen::addPanel() {
  const std::string number = description_.panels == 1 ? std::string() : std::to_string(panels_.size() + 1);
  panels_.emplace_back(
      panelClass(description_.panelClass).make({.container = site_.container, .name = site_.name + number}));
}

std::vector<Panel*> RecordScreen::panels() const {
  std::vector<Panel*> panels;
  panels.reserve(panels_.size());
  for (const BoundPanel& bound : panels_) panels.push_back(&bound.panel());
  return panels;
}

std::vector<Found> RecordScreen::find(Store& store, std::string_view filter, int most) const {
  return findBy(description_.find, store, filter, most);
}

std::vector<Row> RecordScreen::read(Store& store, const Key& key) const {
  std::string sql = std::string("SELECT * FROM ").append(description_.table);
  for (std::size_t i = 0; i < description_.key.size(); ++i) {
    sql.append(i == 0 ? " WHERE " : " AND ").append(description_.key[i]).append(" = ?").append(std::to_string(i + 1));
  }
  if (!description_.order.empty()) sql.append(" ORDER BY ").append(description_.order);
  if (description_.panels != kAllRows) sql.append(" LIMIT ").append(std::to_string(description_.panels + 1));
  std::vector<Row> rows = store.rows(sql, key);
  if (rows.empty() && description_.adding != Reach::Row) throw RecordGone();
  if (description_.panels != kAllRows && rows.size() > panels_.size()) {
    throw StoreFailure("il record ha più righe di quante la schermata ne mostra");
  }
  return rows;
}

void RecordScreen::show(Store& /*store*/, BoundPanel& panel, const Row& row) { panel.show(row, description_.fields); }

void RecordScreen::load(Store& store, const Key& key) {
  const bool begins = description_.adding == Reach::Record && key == newKey();
  const std::vector<Row> rows = begins ? std::vector{newRow(key)} : read(store, key);
  key_.clear();
  while (panels_.size() < rows.size()) addPanel();
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    panels_[i].clear();
    panels_[i].panel().surface().Visible(i < rows.size());
  }
  if (editable_) Disattiva();
  for (std::size_t i = 0; i < rows.size(); ++i) show(store, panels_[i], rows[i]);
  key_ = key;
}

void RecordScreen::forget() {
  key_.clear();
  for (BoundPanel& bound : panels_) bound.forget();
}

void RecordScreen::activate(Panel& panel) { callByName(panel, "Attiva", {}); }

void RecordScreen::Attiva() {
  // Each takes the focus, and the first is to have it in the end.
  std::for_each(panels_.rbegin(), panels_.rend(), [this](const BoundPanel& bound) {
    if (bound.row()) activate(bound.panel());
  });
}

void RecordScreen::Disattiva() {
  for (const BoundPanel& bound : panels_) callByName(bound.panel(), "Disattiva", {});
}

bool RecordScreen::changed() const {
  return std::ranges::any_of(panels_, [this](const BoundPanel& bound) { return changedIn(bound); });
}

void RecordScreen::write(Store& store, const BoundPanel& panel) const {
  if (!description_.needed.column.empty()) {
    const Row row = panel.toBeStored();
    const Value& needed = row.at(description_.needed.column);
    const bool untouched = !row.isNew && needed == panel.row()->at(description_.needed.column);
    if (textOf(needed).find_first_not_of(' ') == std::string::npos ||
        (!untouched && needed == Value(std::int64_t{0}))) {
      throw StoreFailure("manca " + std::string(description_.needed.called));
    }
  }
  if (!panel.row()->isNew && keyOf(panel.toBeStored()) != keyOf(*panel.row())) requireUnused(store);
  panel.write(store, description_.table);
}

void RecordScreen::erase(Store& store, const BoundPanel& panel) const { panel.erase(store, description_.table); }

Row RecordScreen::newRow(const Key& record) const {
  Row row{.columns = {description_.key.begin(), description_.key.end()}, .values = record, .isNew = true};
  for (const Field& field : description_.fields) {
    if (std::ranges::find(description_.key, field.column) != description_.key.end()) continue;
    row.columns.emplace_back(field.column);
    row.values.push_back(blank(field.kind));
  }
  for (const std::string_view column : description_.others) {
    row.columns.emplace_back(column);
    row.values.push_back(blank(Kind::Amount));
  }
  return row;
}

Key RecordScreen::newKey() const {
  Key key;
  key.reserve(description_.key.size());
  for (const std::string_view column : description_.key) {
    const auto field = std::ranges::find(description_.fields, column, &Field::column);
    key.push_back(field == description_.fields.end() ? Value() : blank(field->kind));
  }
  return key;
}

Panel* RecordScreen::beginRow(Store& store) {
  auto free = std::ranges::find_if(
      panels_, [](const BoundPanel& bound) { return bound.row() && bound.row()->isNew && !bound.changed(); });
  if (free == panels_.end()) {
    free = std::ranges::find_if(panels_, [](const BoundPanel& bound) { return !bound.row(); });
    if (free == panels_.end()) {
      if (description_.panels != kAllRows) throw StoreFailure("la schermata non ha posto per altre righe");
      addPanel();
      free = std::prev(panels_.end());
    }
    callByName(free->panel(), "Disattiva", {});
    show(store, *free, newRow(key_));
    free->panel().surface().Visible(true);
  }
  activate(free->panel());
  return &free->panel();
}

void RecordScreen::removeRow(const Panel& panel) {
  const auto its = std::ranges::find_if(panels_, [&](const BoundPanel& bound) { return &bound.panel() == &panel; });
  if (its == panels_.end() || !its->row()) return;
  its->panel().surface().Visible(false);
  if (its->row()->isNew) return its->clear();
  its->remove();
}

Key RecordScreen::keyOf(const Row& row) const {
  Key key;
  key.reserve(description_.key.size());
  for (const std::string_view column : description_.key) key.push_back(row.at(column));
  return key;
}

void RecordScreen::requireUnused(Store& store) const {
  for (const Use& use : description_.uses) {
    if (!store.hasTable(use.table)) continue;
    std::string sql = std::string("SELECT 1 FROM ").append(use.table).append(" WHERE ").append(use.column);
    if (store.rows(sql.append(" = ?1 LIMIT 1"), key_).empty()) continue;
    throw StoreFailure(std::string("il record è ancora usato da ").append(use.called));
  }
}

void RecordScreen::remove(Store& store) {
  Store::Transaction transaction(store);
  requireUnused(store);
  erase(store, panels_.front());
  transaction.commit();
  forget();
}

Key RecordScreen::save(Store& store) {
  Store::Transaction transaction(store);
  // What goes makes room for what comes with its code.
  for (const BoundPanel& bound : panels_) {
    if (bound.removed()) erase(store, bound);
  }
  for (const BoundPanel& bound : panels_) {
    if (!bound.removed() && changedIn(bound)) write(store, bound);
  }
  if (!panels_.front().row()) {
    transaction.commit();
    return key_;
  }
  const BoundPanel& front = panels_.front();
  Key key = keyOf(front.removed() ? front.row().value() : front.toBeStored());
  transaction.commit();
  return key;
}

}  // namespace qvn::ufficio
