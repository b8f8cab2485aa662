#include "hosts/ufficio/result_screen.h"

#include <algorithm>
#include <string>
#include <utility>

#include "hosts/ufficio/finding.h"
#include "qvn/panels/classes.h"

namespace qvn::ufficio {

ResultScreen::ResultScreen(const ResultDescription& description, const ScreenSite& site)
    : description_(description), site_(site) {
  add();
}

ResultScreen::Slot& ResultScreen::add() {
  const std::string name = site_.name + std::to_string(slots_.size() + 1);
  Slot& slot = slots_.emplace_back(
      Slot{.panel = panelClass(description_.panelClass).make({.container = site_.container, .name = name})});
  slot.panel->surface().Visible(false);
  return slot;
}

std::vector<Panel*> ResultScreen::panels() const {
  std::vector<const Slot*> shown;
  shown.reserve(slots_.size());
  for (const Slot& slot : slots_) {
    if (slot.shows) shown.push_back(&slot);
  }
  if (shown.empty()) return {&anyPanel()};
  std::ranges::sort(shown, {}, [](const Slot* slot) { return *slot->place; });
  std::vector<Panel*> panels;
  panels.reserve(shown.size());
  for (const Slot* slot : shown) panels.push_back(slot->panel.get());
  return panels;
}

std::vector<Found> ResultScreen::find(Store& store, std::string_view filter, int most) const {
  return findBy(description_.find, store, filter, most);
}

Row ResultScreen::read(Store& store, const Key& key) const {
  std::vector<Row> rows = store.rows(std::string(description_.read), key);
  if (rows.empty()) throw RecordGone();
  return std::move(rows.front());
}

void ResultScreen::write(Panel& panel, const Row& row) const {
  for (const Field& field : description_.fields) {
    letByName(panel, field.property, shown(row.at(field.column), field.kind));
  }
}

void ResultScreen::clear(Slot& slot, std::optional<std::size_t> place) {
  slot.place = place;
  slot.shows = false;
  slot.panel->surface().Visible(false);
}

void ResultScreen::fill(Slot& slot, std::size_t place, const Row& row) {
  clear(slot, place);  // until all of the record stands there
  write(*slot.panel, row);
  slot.panel->surface().Visible(true);
  slot.shows = true;
}

std::optional<std::size_t> ResultScreen::placeOf(const Key& key) const {
  const auto found = std::ranges::find(records_, key);
  if (found == records_.end()) return {};
  return static_cast<std::size_t>(found - records_.begin());
}

ResultScreen::Slot* ResultScreen::slotOf(std::optional<std::size_t> place) {
  const auto found = std::ranges::find(slots_, place, &Slot::place);
  return found == slots_.end() ? nullptr : &*found;
}

Panel* ResultScreen::panelAt(std::size_t place) const {
  const auto found =
      std::ranges::find_if(slots_, [place](const Slot& slot) { return slot.shows && slot.place == place; });
  return found == slots_.end() ? nullptr : found->panel.get();
}

void ResultScreen::take(std::span<const Found> found) {
  const Key before = key();
  records_.clear();
  records_.reserve(found.size());
  for (const Found& record : found) records_.push_back(record.key);
  for (Slot& slot : slots_) slot = {.panel = std::move(slot.panel)};
  marked_ = before.empty() ? std::nullopt : placeOf(before);
}

void ResultScreen::load(Store& store, const Key& key) {
  const Row row = read(store, key);
  marked_.reset();
  const std::size_t place = placeOf(key).value_or(records_.size());
  Slot* const its = slotOf(place);
  fill(its == nullptr ? slots_.front() : *its, place, row);
  if (place == records_.size()) records_.push_back(key);
  marked_ = place;
}

void ResultScreen::show(Store& store, std::size_t first, std::size_t end,
                        const std::function<void(const std::exception&)>& failed) {
  for (Slot& slot : slots_) {
    if (slot.place && (*slot.place < first || *slot.place >= end)) slot = {.panel = std::move(slot.panel)};
  }
  for (std::size_t place = first; place < end; ++place) {
    if (slotOf(place) != nullptr) continue;
    Slot* const idle = slotOf({});
    Slot& slot = idle == nullptr ? add() : *idle;
    clear(slot, place);
    try {
      fill(slot, place, read(store, records_[place]));
    } catch (const std::exception& failure) {
      failed(failure);
    }
  }
  for (Slot& slot : slots_) {
    if (!slot.place) clear(slot, {});
  }
}

}  // namespace qvn::ufficio
