#include "hosts/ufficio/line_panels.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "qvn/panels/classes.h"

namespace qvn::ufficio {

namespace {

/// Whether a panel's line is one of the record's.
bool isLine(const BoundPanel& bound) { return bound.row() && (!bound.row()->isNew || bound.changed()); }

}  // namespace

LinePanels::LinePanels(const LinesDescription& description, const ScreenSite& site)
    : description_(description), site_(site) {
  add();
}

void LinePanels::add() {
  const std::string name = site_.name + std::to_string(panels_.size() + 1);
  panels_.emplace_back(panelClass(description_.panelClass).make({.container = site_.container, .name = name}));
  callByName(panels_.back().panel(), "Disattiva", {});
}

std::vector<Panel*> LinePanels::panels() const {
  std::vector<Panel*> panels;
  panels.reserve(panels_.size());
  for (const BoundPanel& bound : panels_) panels.push_back(&bound.panel());
  return panels;
}

void LinePanels::show(std::vector<Row> lines, Row empty) {
  empty.isNew = true;
  lines.resize(std::max(lines.size() + kSpare, kFewest), empty);
  while (panels_.size() < lines.size()) add();
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    panels_[i].clear();
    panels_[i].panel().surface().Visible(i < lines.size());
  }
  Disattiva();
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (lines[i].isNew) lines[i].at(description_.number) = static_cast<std::int64_t>(i + 1);
    panels_[i].show(lines[i], description_.fields);
  }
}

void LinePanels::forget() {
  for (BoundPanel& bound : panels_) bound.forget();
}

void LinePanels::Attiva() {
  // Each takes the focus, and the first is to have it in the end.
  std::for_each(panels_.rbegin(), panels_.rend(), [](const BoundPanel& bound) {
    if (bound.row()) callByName(bound.panel(), "Attiva", {});
  });
}

void LinePanels::Disattiva() {
  for (const BoundPanel& bound : panels_) callByName(bound.panel(), "Disattiva", {});
}

bool LinePanels::changed() const { return std::ranges::any_of(panels_, &BoundPanel::changed); }

std::vector<Row> LinePanels::lines() const {
  std::vector<Row> lines;
  lines.reserve(panels_.size());
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    if (!isLine(panels_[i])) continue;
    Row line = panels_[i].toBeStored();
    if (description_.empty(line)) continue;
    line.at(description_.number) = static_cast<std::int64_t>(i + 1);
    lines.push_back(std::move(line));
  }
  return lines;
}

std::vector<Row> LinePanels::read(Store& store, const Value& record) const {
  std::string sql = std::string("SELECT * FROM ").append(description_.table);
  sql.append(" WHERE ").append(description_.key).append(" = ?1 ORDER BY ").append(description_.number);
  return store.rows(sql, std::array{record});
}

void LinePanels::requireUnchanged(Store& store, const Value& record) const {
  std::vector<std::vector<Value>> before;
  before.reserve(panels_.size());
  for (const BoundPanel& bound : panels_) {
    if (bound.row() && !bound.row()->isNew) before.push_back(bound.row()->values);
  }
  if (!std::ranges::equal(read(store, record), before, {}, &Row::values)) throw ChangedByOthers();
}

void LinePanels::write(Store& store, const Value& record, std::span<const Row> lines) const {
  requireUnchanged(store, record);
  store.run(
      std::string("DELETE FROM ").append(description_.table).append(" WHERE ").append(description_.key).append(" = ?1"),
      std::array{record});
  for (Row line : lines) {
    line.at(description_.key) = record;
    addRow(store, description_.table, line);
  }
}

}  // namespace qvn::ufficio
