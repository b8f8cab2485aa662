// What an operator does at forms.
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platforms/memory/by_hand.h"
#include "platforms/memory/form.h"
#include "platforms/memory/hands.h"
#include "platforms/memory/list_view.h"
#include "platforms/memory/platform.h"
#include "platforms/memory/stage.h"
#include "platforms/memory/usable.h"
#include "qvn/shared/failure.h"

namespace qvn::memory {

namespace {

[[noreturn]] void refuse(const Surface& form, std::string_view why) {
  throw Failure(FailureKind::InvalidCall, std::string(form.name()).append(": ").append(why));
}

ListView& listOf(const Surface& form) {
  for (toolkit::Widget* widget : form.widgets()) {
    if (widget->Kind() == toolkit::WidgetKind::ListView) return static_cast<ListView&>(*widget);
  }
  refuse(form, "the form has no list view");
}

void requireHead(const ListView& list, std::int32_t column) {
  if (column >= 1 && column <= list.columnCount()) return;
  throw Failure(FailureKind::SubscriptOutOfRange, fullName(list)
                                                      .append(" has ")
                                                      .append(std::to_string(list.columnCount()))
                                                      .append(" column heads and no number ")
                                                      .append(std::to_string(column)));
}

Key oneKey(const Surface& form, std::string_view text) {
  KeyReader reader(text);
  const std::optional<Key> key = reader.next();
  if (!key || reader.next()) refuse(form, std::string("\"").append(text).append("\" is not one key"));
  return *key;
}

toolkit::Widget* firstStop(const Surface& form) {
  toolkit::Widget* first = nullptr;
  for (toolkit::Widget* widget : form.widgets()) {
    if (canHoldFocus(*widget) && (first == nullptr || widget->TabIndex() < first->TabIndex())) first = widget;
  }
  return first;
}

}  // namespace

void Hands::attend(const Form& form, Surface& surface, const Showing& showing) {
  std::optional<std::vector<Act>> acts = laidDown_.next(surface.name());
  if (toolkit::Widget* first = firstStop(surface)) platform_.focus().giveByHand(*first);
  if (showing.over) return;
  laidDown_.look(form);
  if (!acts) {
    if (Stage* stage = platform_.stage()) stage->waitAt(form, showing.over);
    return;
  }
  for (Act& next : *acts) {
    if (next.kind == Act::Kind::Close) return;
    try {
      act(form, surface, next);
    } catch (const Failure& failure) {
      laidDown_.fail({.form = std::string(surface.name()), .act = std::move(next), .failure = failure});
      return;
    }
    if (showing.over) return;
  }
}

void Hands::act(const toolkit::Form& form, Surface& surface, const Act& act) {
  switch (act.kind) {
    case Act::Kind::Row:
    case Act::Kind::Double:
    case Act::Kind::Column:
      return actAtList(listOf(surface), act);
    case Act::Kind::Key:
      return press(oneKey(surface, act.text));
    case Act::Kind::Click:
      return click(surface.widget(act.text));
    case Act::Kind::Look:
      return laidDown_.look(form);
    case Act::Kind::Close:
      return;
  }
}

void Hands::actAtList(ListView& list, const Act& act) {
  const Turn turn(platform_.turns());
  if (act.kind == Act::Kind::Column) {
    requireHead(list, act.number);
  } else {
    requirePlace(list, "rows", list.rowCount(), act.number);
  }
  platform_.focus().giveByHand(list);
  if (!list.hasFocus()) return;
  if (act.kind == Act::Kind::Column) {
    return byHand(list, "ColumnClick",
                  [&] { surfaceOf(list).raise(list.ColumnClick, static_cast<std::int16_t>(act.number)); });
  }
  if (act.number >= list.rowCount()) return;
  list.select(act.number);
  if (act.kind == Act::Kind::Double) byHand(list, "DblClick", [&] { surfaceOf(list).raise(list.DblClick); });
}

void Hands::pressOnForm(Surface& form, Key key) {
  if (key.name != KeyName::Enter && key.name != KeyName::Escape) return;
  for (toolkit::Widget* widget : form.widgets()) {
    const toolkit::WidgetLayout& row = widget->layout();
    const bool meant = key.name == KeyName::Enter ? row.defaultButton : row.cancelButton;
    if (meant && widget->Kind() == toolkit::WidgetKind::CommandButton && obstacle(*widget).empty()) {
      return push(*widget);
    }
  }
}

}  // namespace qvn::memory
