// The operator's side of the model: focus, keys, the lists.
#include <algorithm>

#include "tests/commissions/model.h"

namespace qvn::test {

template <class Act>
void CommissionsModel::byHand(std::size_t field, std::string_view event, Act act) {
  try {
    act();
  } catch (const ModelFailed& failed) {
    happened("failed ", std::string(kFields[field]).append(" ").append(event).append(" ").append(nameOf(failed.kind)));
  }
}

/// The move has happened before its events are raised, and a failure of the first does not keep off the second.
template <class OnFailure>
void CommissionsModel::move(std::optional<std::size_t> to, OnFailure onFailure) {
  const std::optional<std::size_t> from = focus_;
  focus_ = to;
  if (from) {
    happened("lost ", kFields[*from]);
    try {
      lostFocus(*from);
    } catch (const ModelFailed& failed) {
      onFailure(*from, "LostFocus", failed.kind);
    }
  }
  if (to) {
    happened("got ", kFields[*to]);
    try {
      gotFocus(*to);
    } catch (const ModelFailed& failed) {
      onFailure(*to, "GotFocus", failed.kind);
    }
  }
}

void CommissionsModel::moveByProgram(std::optional<std::size_t> to) {
  std::optional<ModelFailure> first;
  move(to, [&](std::size_t, std::string_view, ModelFailure kind) {
    if (!first) first = kind;
  });
  if (first) throw ModelFailed{*first};
}

void CommissionsModel::moveByHand(std::optional<std::size_t> to) {
  move(to, [this](std::size_t field, std::string_view event, ModelFailure kind) {
    byHand(field, event, [kind] { throw ModelFailed{kind}; });
  });
}

void CommissionsModel::setFocus(std::size_t field) {
  if (!usable(field)) throw ModelFailed{ModelFailure::InvalidCall};
  if (focus_ != field) moveByProgram(field);
}

void CommissionsModel::focusByHand(const std::string& widget) {
  const auto* const found = std::ranges::find(kFields, widget);
  const auto field = static_cast<std::size_t>(found - kFields.begin());
  if (found == kFields.end() || !usable(field)) throw ModelFailed{ModelFailure::InvalidCall};
  if (focus_ != field) moveByHand(field);
}

std::size_t CommissionsModel::focusedBox() const {
  if (!focus_ || isList(*focus_)) throw ModelFailed{ModelFailure::InvalidCall};
  return *focus_;
}

void CommissionsModel::type(const std::string& keys) {
  if (!focus_) throw ModelFailed{ModelFailure::InvalidCall};
  for (const std::string& key : keysOf(keys)) {
    if (!focus_) throw ModelFailed{ModelFailure::InvalidCall};
    press(*focus_, key);
  }
}

void CommissionsModel::press(std::size_t field, const std::string& key) {
  if (key == "{Tab}" || key == "{ShiftTab}") return tab(field, key == "{ShiftTab}");
  if (isList(field)) return pressInList(field, key);
  TextFieldModel& box = fields_[field];
  if (key == "{Left}") return box.left();
  if (key == "{Right}") return box.right();
  if (key == "{Home}") return box.caret(0);
  if (key == "{End}") return box.caret(box.text.size());
  if (key == "{Up}" || key == "{Down}") return;
  if (key == "{Delete}") {
    if (box.erase()) byHand(field, "Change", [&] { changed(field); });
    return;
  }
  if (key == "{Enter}") {
    typeInto(field, U'\r');
  } else if (key == "{Backspace}") {
    typeInto(field, kBackspaceKey);
  } else if (key == "{Escape}") {
    typeInto(field, kEscapeKey);
  } else {
    typeInto(field, decoded(key).front());
  }
}

void CommissionsModel::pressInList(std::size_t list, const std::string& key) {
  const int current = modes_[partyOf(list)];
  int wanted = current;
  const int last = static_cast<int>(kModes.size()) - 1;
  if (key == "{Up}") wanted = current > 0 ? current - 1 : current;
  if (key == "{Down}") wanted = std::min(current + 1, last);
  if (key == "{Home}" || key == "1") wanted = 0;
  if (key == "{End}" || key == "2") wanted = last;
  if (wanted != current) byHand(list, "Click", [&] { select(list, wanted); });
}

void CommissionsModel::tab(std::size_t from, bool backwards) {
  std::size_t next = from;
  do {
    next = (next + (backwards ? kFieldCount - 1 : 1)) % kFieldCount;
  } while (next != from && !usable(next));
  if (next != from) moveByHand(next);
}

bool CommissionsModel::typeInto(std::size_t field, char32_t key) {
  byHand(field, "KeyPress", [&] { keyPress(field, key); });
  if (key == 0) return false;
  TextFieldModel& box = fields_[field];
  if (key == kBackspaceKey) {
    if (!box.backspace()) return true;
  } else if (key == kEscapeKey) {
    return true;
  } else {
    box.replace(std::u32string(1, key));
  }
  byHand(field, "Change", [&] { changed(field); });
  return true;
}

void CommissionsModel::paste(const std::string& text) {
  const std::size_t field = focusedBox();
  for (const char32_t character : decoded(text)) {
    if (!typeInto(field, character)) return;
  }
}

void CommissionsModel::choose(const std::string& list, int item) {
  if (item < 0 || item >= static_cast<int>(kModes.size())) throw ModelFailed{ModelFailure::InvalidCall};
  focusByHand(list);
  const auto field = static_cast<std::size_t>(std::ranges::find(kFields, list) - kFields.begin());
  byHand(field, "Click", [&] { select(field, item); });
}

}  // namespace qvn::test
