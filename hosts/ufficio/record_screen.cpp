#include "hosts/ufficio/record_screen.h"

#include <algorithm>
#include <cstddef>
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
  if (rows.empty()) throw StoreFailure("il record non c'è più: è stato eliminato da altri");
  if (description_.panels != kAllRows && rows.size() > panels_.size()) {
    throw StoreFailure("il record ha più righe di quante la schermata ne mostra");
  }
  return rows;
}

void RecordScreen::show(Store& /*store*/, BoundPanel& panel, const Row& row) { panel.show(row, description_.fields); }

void RecordScreen::load(Store& store, const Key& key) {
  const std::vector<Row> rows = read(store, key);
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

bool RecordScreen::changed() const { return std::ranges::any_of(panels_, &BoundPanel::changed); }

void RecordScreen::write(Store& store, const BoundPanel& panel) const { panel.write(store, description_.table); }

Key RecordScreen::save(Store& store) {
  Key key;
  Store::Transaction transaction(store);
  for (const BoundPanel& bound : panels_) {
    if (bound.changed()) write(store, bound);
  }
  const Row first = panels_.front().toBeStored();
  key.reserve(description_.key.size());
  for (const std::string_view column : description_.key) key.push_back(first.at(column));
  transaction.commit();
  return key;
}

}  // namespace qvn::ufficio
