#include "platforms/memory/hands.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platforms/memory/by_hand.h"
#include "platforms/memory/combo_box.h"
#include "platforms/memory/date_control.h"
#include "platforms/memory/list_view.h"
#include "platforms/memory/platform.h"
#include "platforms/memory/text_box.h"
#include "platforms/memory/usable.h"
#include "platforms/memory/utf8.h"
#include "qvn/fields/date_mask.h"
#include "qvn/shared/failure.h"

namespace qvn::memory {

namespace {

constexpr char32_t kBackspace = 8;
/// The key code of a character whose own does not fit; left unchanged, the character itself is typed.
constexpr std::int16_t kBeyondKeyCodes = std::numeric_limits<std::int16_t>::max();

std::int16_t keyCodeOf(char32_t character) {
  return character < kBeyondKeyCodes ? static_cast<std::int16_t>(character) : kBeyondKeyCodes;
}

bool isControl(char32_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0); }

bool isField(const toolkit::Widget& widget) {
  return widget.Kind() == toolkit::WidgetKind::TextBox || widget.Kind() == toolkit::WidgetKind::DateControl;
}

/// The row that an arrow, Home or End leads to; nothing for another key.
std::optional<std::int32_t> rowByKey(KeyName key, std::int32_t current, std::int32_t last) {
  switch (key) {
    case KeyName::Up:
      return current > 0 ? current - 1 : current;
    case KeyName::Down:
      return std::min(current + 1, last);
    case KeyName::Home:
      return std::min(0, last);
    case KeyName::End:
      return last;
    default:
      return std::nullopt;
  }
}

/// Does a key without a character at a text that is edited. True if the text is another now.
template <class Entry>
bool pressAt(Entry& entry, KeyName key) {
  switch (key) {
    case KeyName::Left:
      entry.left();
      return false;
    case KeyName::Right:
      entry.right();
      return false;
    case KeyName::Home:
      entry.home();
      return false;
    case KeyName::End:
      entry.end();
      return false;
    case KeyName::Delete:
      return entry.erase();
    default:
      return false;
  }
}

/// Lets a hand edit the field's text. True if it shows another now, for which Change is still to be raised.
template <class Edit>
bool edit(toolkit::EditableText& field, Edit byHand) {
  const bool isDate = field.Kind() == toolkit::WidgetKind::DateControl;
  const bool changed =
      isDate ? static_cast<DateControl&>(field).edit(byHand) : byHand(static_cast<TextBox&>(field).buffer());
  surfaceOf(field).tell(field);
  return changed;
}

}  // namespace

void Hands::own(const toolkit::Widget& widget) const {
  if (&widget.owner().platform() == &platform_) return;
  throw Failure(FailureKind::InvalidCall, fullName(widget).append(" is a widget of another platform"));
}

toolkit::Widget& Hands::held() const {
  if (toolkit::Widget* holder = platform_.focused()) return *holder;
  throw Failure(FailureKind::InvalidCall, "nothing has the focus");
}

toolkit::EditableText& Hands::heldField() const {
  toolkit::Widget& holder = held();
  if (isField(holder)) return static_cast<toolkit::EditableText&>(holder);
  throw Failure(FailureKind::InvalidCall, fullName(holder).append(" has the focus and is no field with a text"));
}

void Hands::focus(toolkit::Widget& widget) {
  own(widget);
  platform_.focus().giveByHand(widget);
}

void Hands::leave() { platform_.focus().leaveByHand(); }

void Hands::type(std::string_view keys) {
  if (platform_.focus().front() == nullptr) held();
  KeyReader reader(keys);
  while (const std::optional<Key> key = reader.next()) press(*key);
}

void Hands::caret(std::int32_t start, std::int32_t length) {
  toolkit::EditableText& field = heldField();
  field.SelStart(start);
  field.SelLength(length);
}

void Hands::paste(std::string_view text) {
  toolkit::EditableText& field = heldField();
  const Turn turn(platform_.turns());
  const auto date = field.Kind() == toolkit::WidgetKind::DateControl ? fields::digitsOfWholeDate(text) : std::nullopt;
  if (date) {
    text = *date;
    caret(0, static_cast<std::int32_t>(fields::kBlankDate.size()));
  }
  while (!text.empty() && platform_.focused() == &field) {
    if (!typeInto(field, utf8::takeFirst(text))) return;
  }
}

void Hands::press(Key key) {
  const Turn turn(platform_.turns());
  Surface* form = platform_.focus().front();
  const bool atFormAlone = form != nullptr && platform_.focused() == nullptr;
  const bool goesOn = atFormAlone || pressIn(held(), key);
  if (form != nullptr && goesOn) pressOnForm(*form, key);
}

bool Hands::pressIn(toolkit::Widget& widget, Key key) {
  if (key.name == KeyName::Tab || key.name == KeyName::ShiftTab) {
    tab(widget, key.name == KeyName::ShiftTab);
    return false;
  }
  switch (widget.Kind()) {
    case toolkit::WidgetKind::TextBox:
    case toolkit::WidgetKind::DateControl:
      return pressInField(static_cast<toolkit::EditableText&>(widget), key);
    case toolkit::WidgetKind::ListView:
      return pressInListView(static_cast<ListView&>(widget), key);
    case toolkit::WidgetKind::ComboBox:
      pressInList(static_cast<ComboBox&>(widget), key);
      return true;
    case toolkit::WidgetKind::CommandButton:
      if (key.name == KeyName::Enter || key.character == U' ') push(widget);
      return key.name != KeyName::Enter;
    case toolkit::WidgetKind::CheckBox:
      if (key.character == U' ') push(widget);
      return true;
    default:
      return true;
  }
}

bool Hands::pressInField(toolkit::EditableText& field, Key key) {
  if (key.character != 0) return typeInto(field, key.character) == key.character;
  changeIf(field, edit(field, [key](auto& entry) { return pressAt(entry, key.name); }));
  return true;
}

bool Hands::pressInListView(ListView& list, Key key) {
  const std::int32_t last = list.rowCount() - 1;
  const bool entersFromBelow = key.name == KeyName::Up && list.selected() < 0;
  const auto wanted = entersFromBelow ? last : rowByKey(key.name, list.selected(), last);
  if (!wanted) return key.character == 0 || keyPress(list, key.character) == key.character;
  if (*wanted >= 0) list.select(*wanted);
  return true;
}

template <class Keyed>
std::optional<char32_t> Hands::keyPress(Keyed& widget, char32_t character) {
  const std::int16_t given = keyCodeOf(character);
  std::int16_t code = given;
  byHand(widget, "KeyPress", [&] { surfaceOf(widget).raise(widget.KeyPress, code); });
  if (code == 0 || !obstacle(widget).empty()) return std::nullopt;
  if (code == given) return character;
  return code > 0 ? static_cast<char32_t>(code) : 0;
}

std::optional<char32_t> Hands::typeInto(toolkit::EditableText& field, char32_t character) {
  const std::optional<char32_t> left = keyPress(field, character);
  if (!left || take(field, *left)) return left;
  platform_.beep();
  return std::nullopt;
}

bool Hands::take(toolkit::EditableText& field, char32_t character) {
  if (isControl(character) && character != kBackspace) return true;
  bool taken = true;
  changeIf(field, edit(field, [&](auto& entry) {
             if (character == kBackspace) return entry.backspace();
             taken = entry.type(character);
             return taken;
           }));
  return taken;
}

void Hands::changeIf(toolkit::EditableText& field, bool changed) {
  if (changed) byHand(field, "Change", [&] { surfaceOf(field).raise(field.Change); });
}

void Hands::pressInList(ComboBox& list, Key key) {
  const std::int32_t current = list.ListIndex();
  const std::int32_t wanted = key.name == KeyName::Character
                                  ? list.nextBeginningWith(key.character)
                                  : rowByKey(key.name, current, list.ListCount() - 1).value_or(current);
  if (wanted >= 0 && wanted != current) pick(list, wanted);
}

void Hands::tab(toolkit::Widget& from, bool backwards) {
  std::vector<toolkit::Widget*> stops;
  for (toolkit::Widget* widget : from.owner().widgets()) {
    if (widget == &from || canHoldFocus(*widget)) stops.push_back(widget);
  }
  std::ranges::stable_sort(stops, {}, &toolkit::Widget::TabIndex);
  if (backwards) std::ranges::reverse(stops);
  const auto here = std::ranges::find(stops, &from);
  toolkit::Widget& next = here + 1 == stops.end() ? *stops.front() : **(here + 1);
  platform_.focus().giveByHand(next);
}

void Hands::pick(ComboBox& list, std::int32_t index) {
  byHand(list, "Click", [&] { list.ListIndex(index); });
}

void Hands::push(toolkit::Widget& widget) {
  byHand(widget, "Click", [&] {
    if (widget.Kind() == toolkit::WidgetKind::CheckBox) {
      auto& box = static_cast<toolkit::CheckBox&>(widget);
      box.Value(box.Value() == 0 ? 1 : 0);
    } else {
      surfaceOf(widget).raise(static_cast<toolkit::CommandButton&>(widget).Click);
    }
  });
}

void Hands::click(toolkit::Widget& widget) {
  own(widget);
  if (widget.Kind() != toolkit::WidgetKind::CheckBox && widget.Kind() != toolkit::WidgetKind::CommandButton) {
    throw Failure(FailureKind::InvalidCall, fullName(widget).append(" is neither a button nor a check box"));
  }
  if (!obstacle(widget).empty()) return;
  const Turn turn(platform_.turns());
  platform_.focus().giveByHand(widget);
  if (widget.hasFocus()) push(widget);
}

template <class Find>
void Hands::reachAndPick(ComboBox& list, Find find) {
  const Turn turn(platform_.turns());
  platform_.focus().giveByHand(list);
  if (!list.hasFocus()) return;
  if (const std::int32_t index = find(); index >= 0) pick(list, index);
}

void Hands::choose(toolkit::ComboBox& list, std::int32_t index) {
  own(list);
  if (index < 0 || index >= list.ListCount()) {
    throw Failure(FailureKind::InvalidCall, fullName(list).append(" has no item at ").append(std::to_string(index)));
  }
  reachAndPick(static_cast<ComboBox&>(list), [&] { return index < list.ListCount() ? index : -1; });
}

void Hands::choose(toolkit::ComboBox& list, std::string_view item) {
  own(list);
  auto& box = static_cast<ComboBox&>(list);
  const std::string wanted = utf8::valid(item);
  box.indexOf(wanted);  // fails before anything has moved
  reachAndPick(box, [&] { return box.find(wanted); });
}

}  // namespace qvn::memory
