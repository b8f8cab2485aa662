#include "hosts/play/journal.h"

#include <utility>

#include "hosts/play/place_of.h"

namespace qvn::play {

namespace {

template <class... Fields>
Answer entry(Fields&&... fields) {
  Answer result = Answer::object();
  (result.emplace(fields.first, fields.second), ...);
  return result;
}

}  // namespace

void Journal::notice(std::string_view panel, std::string_view name) {
  entries_.push_back(entry(std::pair("notice", name), std::pair("panel", panel)));
}

void Journal::mancaDB() { entries_.push_back(entry(std::pair("mancadb", true))); }

void Journal::open(std::string_view connectionString, std::int32_t cursorLocation) {
  entries_.push_back(entry(std::pair("open", connectionString), std::pair("cursor_location", cursorLocation)));
}

void Journal::sql(std::string_view text, std::int32_t cursor, std::int32_t lock, std::int32_t options) {
  entries_.push_back(entry(std::pair("sql", text), std::pair("cursor", cursor), std::pair("lock", lock),
                           std::pair("options", options)));
}

void Journal::lostFocus(const toolkit::Widget& widget) {
  entries_.push_back(entry(std::pair("lost", placeOf(widget))));
}

void Journal::gotFocus(const toolkit::Widget& widget) { entries_.push_back(entry(std::pair("got", placeOf(widget)))); }

void Journal::beeped() {
  ++beeps_;
  entries_.push_back(entry(std::pair("beep", true)));
}

void Journal::formLoaded(std::string_view form) { entries_.push_back(entry(std::pair("load", form))); }
void Journal::formShown(std::string_view form) { entries_.push_back(entry(std::pair("modal", form))); }
void Journal::formHidden(std::string_view form) { entries_.push_back(entry(std::pair("hide", form))); }
void Journal::formUnloaded(std::string_view form) { entries_.push_back(entry(std::pair("unload", form))); }

void Journal::viewerRuns(std::string_view form, std::string_view sql) {
  entries_.push_back(entry(std::pair("sql", sql), std::pair("viewer", form)));
}

Answer Journal::take() { return std::exchange(entries_, Answer::array()); }

}  // namespace qvn::play
