#include "platforms/memory/focus.h"

#include <algorithm>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

#include "platforms/memory/stage.h"
#include "platforms/memory/surface.h"
#include "platforms/memory/usable.h"
#include "qvn/shared/failure.h"

namespace qvn::memory {

namespace {

struct FocusHandlers {
  const std::function<void()>* got = nullptr;
  const std::function<void()>* lost = nullptr;
};

FocusHandlers handlersOf(const toolkit::Widget& widget) {
  switch (widget.Kind()) {
    case toolkit::WidgetKind::TextBox:
    case toolkit::WidgetKind::DateControl: {
      const auto& field = static_cast<const toolkit::EditableText&>(widget);
      return {.got = &field.GotFocus, .lost = &field.LostFocus};
    }
    case toolkit::WidgetKind::ComboBox: {
      const auto& list = static_cast<const toolkit::ComboBox&>(widget);
      return {.got = &list.GotFocus, .lost = &list.LostFocus};
    }
    default:
      return {};
  }
}

Surface& surfaceOf(const toolkit::Widget& widget) { return static_cast<Surface&>(widget.owner()); }

void refuseUnusable(const toolkit::Widget& widget) {
  const std::string_view why =
      takesFocus(widget.Kind()) ? obstacle(widget) : std::string_view("widgets of its kind never do");
  if (why.empty()) return;
  throw Failure(FailureKind::InvalidCall, fullName(widget).append(" cannot take the focus: ").append(why));
}

}  // namespace

Watcher* Focus::watcherOf(const toolkit::Widget& widget) const {
  return surfaceOf(widget).isOfForm() ? nullptr : watcher_;
}

void Focus::tell() const {
  if (stage_ != nullptr) stage_->focusMoved();
}

template <class OnFailure>
void Focus::move(toolkit::Widget* to, OnFailure onFailure) {
  const auto raise = [&](toolkit::Widget& widget, const std::function<void()>* handler, std::string_view event) {
    if (handler == nullptr) return;
    try {
      surfaceOf(widget).raise(*handler);
    } catch (const Failure& failure) {
      onFailure(widget, event, failure);
    }
  };
  holder_ = to;
  tell();
  if (told_ != nullptr) {
    toolkit::Widget& from = *std::exchange(told_, nullptr);
    if (Watcher* watcher = watcherOf(from)) watcher->lostFocus(from);
    raise(from, handlersOf(from).lost, "LostFocus");
  }
  if (to != nullptr && holder_ == to && told_ != to) {
    told_ = to;
    if (Watcher* watcher = watcherOf(*to)) watcher->gotFocus(*to);
    raise(*to, handlersOf(*to).got, "GotFocus");
  }
}

void Focus::moveByProgram(toolkit::Widget* to) {
  std::exception_ptr first;
  move(to, [&](toolkit::Widget&, std::string_view, const Failure&) {
    if (!first) first = std::current_exception();
  });
  if (first) std::rethrow_exception(first);
}

void Focus::moveByHand(toolkit::Widget* to) {
  const Turn turn(turns_);
  move(to, [](toolkit::Widget& widget, std::string_view event, const Failure& failure) {
    surfaceOf(widget).report(widget, event, failure);
  });
}

void Focus::give(toolkit::Widget& widget) {
  refuseUnusable(widget);
  if (holder_ == &widget) return;
  const Turn turn(turns_);
  moveByProgram(&widget);
}

void Focus::check() {
  if (holder_ == nullptr || canHoldFocus(*holder_)) return;
  const Turns::Keep keep(turns_);  // no turn, which may fail: the flag is written, and the focus must agree with it
  moveByProgram(nullptr);
}

void Focus::giveByHand(toolkit::Widget& widget) {
  refuseUnusable(widget);
  if (holder_ != &widget) moveByHand(&widget);
}

void Focus::leaveByHand() {
  if (holder_ != nullptr) moveByHand(nullptr);
}

void Focus::forget(const Surface& surface) noexcept {
  const auto forgetIn = [&](toolkit::Widget*& widget) {
    if (widget != nullptr && &widget->owner() == static_cast<const toolkit::Surface*>(&surface)) widget = nullptr;
  };
  forgetIn(holder_);
  forgetIn(told_);
  for (Shown& shown : shown_) {
    forgetIn(shown.holder);
    forgetIn(shown.told);
  }
}

void Focus::enter(Surface& form) {
  shown_.push_back({.form = &form, .holder = holder_, .told = told_});
  holder_ = nullptr;
  told_ = nullptr;
  tell();
}

void Focus::leave(const Surface& form) {
  const auto found = std::ranges::find(shown_, &form, &Shown::form);
  if (found == shown_.end()) return;
  forget(form);
  const bool wasFront = &*found == &shown_.back();
  // Where another form stands before it, that one gives the focus back to who had it before this one.
  toolkit::Widget*& holder = wasFront ? holder_ : (found + 1)->holder;
  toolkit::Widget*& told = wasFront ? told_ : (found + 1)->told;
  holder = found->holder;
  told = found->told;
  shown_.erase(found);
  tell();
  if (wasFront && holder_ != nullptr && !canHoldFocus(*holder_)) moveByHand(nullptr);
}

}  // namespace qvn::memory
