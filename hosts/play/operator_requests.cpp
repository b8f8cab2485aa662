// What the operator does.
#include <array>
#include <cstdint>
#include <string>

#include "hosts/play/acts.h"
#include "hosts/play/bad_request.h"
#include "hosts/play/requests.h"
#include "qvn/shared/failure.h"

namespace qvn::play {

namespace {

/// Does something to the widget that the request names; a failure names it too.
template <class Act>
void atWidget(Session& session, const Request& request, Act&& act) {
  const toolkit::Surface& panel = session.panels().at(request.text("panel")).surface();
  toolkit::Widget& widget = panel.widget(request.text("widget"));
  try {
    act(widget);
  } catch (const Failure& failure) {
    throw Failure(failure.kind(), placed(panel, widget, failure.what()));
  }
}

/// Does something to what has the focus; a failure names the widget that has it by then, if one has.
template <class Act>
void atFocus(Session& session, Act&& act) {
  try {
    act(session.hands());
  } catch (const Failure& failure) {
    const toolkit::Widget* widget = session.toolkit().platform().focused();
    if (widget == nullptr) throw;
    throw Failure(failure.kind(), placed(widget->owner(), *widget, failure.what()));
  }
}

void focus(Session& session, const Request& request, Answer&) {
  atWidget(session, request, [&](toolkit::Widget& widget) { session.hands().focus(widget); });
}

void leave(Session& session, const Request&, Answer&) { session.hands().leave(); }

void type(Session& session, const Request& request, Answer&) {
  const std::string& keys = request.text("keys");
  atFocus(session, [&](Operator& hands) { hands.type(keys); });
}

void caret(Session& session, const Request& request, Answer&) {
  const std::int32_t start = request.whole("start");
  const std::int32_t length = request.whole("length");
  atFocus(session, [&](Operator& hands) { hands.caret(start, length); });
}

void paste(Session& session, const Request& request, Answer&) {
  const std::string& text = request.text("text");
  atFocus(session, [&](Operator& hands) { hands.paste(text); });
}

void click(Session& session, const Request& request, Answer&) {
  atWidget(session, request, [&](toolkit::Widget& widget) { session.hands().click(widget); });
}

void choose(Session& session, const Request& request, Answer&) {
  const bool byItem = request.has("item");
  if (byItem && request.has("index")) throw BadRequest("it has an \"item\" and an \"index\"");
  const std::string item = byItem ? request.text("item") : std::string();
  const std::int32_t index = byItem ? 0 : request.whole("index");
  atWidget(session, request, [&](toolkit::Widget& widget) {
    if (widget.Kind() != toolkit::WidgetKind::ComboBox) throw Failure(FailureKind::InvalidCall, "it is no closed list");
    auto& list = static_cast<toolkit::ComboBox&>(widget);
    if (byItem) {
      session.hands().choose(list, item);
    } else {
      session.hands().choose(list, index);
    }
  });
}

void layDown(Session& session, const Request& request, Answer&) {
  const std::string& form = request.text("form");
  if (form.empty()) throw BadRequest("a form's name is not empty");
  session.hands().layDown(form, actsOf(request.list("acts")));
}

}  // namespace

std::span<const RequestKind> operatorRequests() {
  static constexpr std::array kinds{
      RequestKind{.name = "focus", .carryOut = focus, .byOperator = true},
      RequestKind{.name = "leave", .carryOut = leave, .byOperator = true},
      RequestKind{.name = "type", .carryOut = type, .byOperator = true},
      RequestKind{.name = "caret", .carryOut = caret, .byOperator = true},
      RequestKind{.name = "paste", .carryOut = paste, .byOperator = true},
      RequestKind{.name = "click", .carryOut = click, .byOperator = true},
      RequestKind{.name = "choose", .carryOut = choose, .byOperator = true},
      RequestKind{.name = "operator", .carryOut = layDown, .byOperator = true},
  };
  return kinds;
}

}  // namespace qvn::play
