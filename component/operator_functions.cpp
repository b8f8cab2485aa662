// The operator's hands, for C.
#include <array>
#include <span>
#include <string>
#include <vector>

#include "component/boundary.h"
#include "component/object.h"
#include "component/panel_object.h"
#include "component/qvn.h"
#include "component/screen_object.h"
#include "component/values.h"
#include "qvn/shared/failure.h"

using namespace qvn::component;

namespace {

/// Does something with the hands of a screen's operator.
template <class Do>
int32_t byHand(qvn_object* screen, Do&& act) noexcept {
  return guarded([&] { act(ofKind<ScreenObject>(screen).hands()); });
}

/// The same at a widget of a panel.
template <class Do>
int32_t atWidget(qvn_object* panel, const char* widget, Do&& act) noexcept {
  return guarded([&] {
    auto& object = ofKind<PanelObject>(panel);
    act(object.screen().hands(), object.surface().widget(givenText(widget, "the widget's name")));
  });
}

qvn::Act actOf(const qvn_act& act) {
  const auto text = [&] { return std::string(givenText(act.text, "the text of an act")); };
  switch (act.kind) {
    case QVN_ACT_ROW:
      return qvn::Act::row(act.number);
    case QVN_ACT_DOUBLE:
      return qvn::Act::doubleClick(act.number);
    case QVN_ACT_COLUMN:
      return qvn::Act::column(act.number);
    case QVN_ACT_KEY:
      return qvn::Act::key(text());
    case QVN_ACT_CLICK:
      return qvn::Act::click(text());
    case QVN_ACT_CLOSE:
      return qvn::Act::close();
    default:
      throw InvalidArgument("there is no act " + std::to_string(act.kind));
  }
}

std::vector<qvn::Act> actsOf(const qvn_act* acts, std::size_t count) {
  std::vector<qvn::Act> all;
  if (count == 0) return all;
  all.reserve(count);
  for (const qvn_act& act : std::span(&given(acts, "the list of acts"), count)) all.push_back(actOf(act));
  return all;
}

}  // namespace

int32_t qvn_operator_type(qvn_object* screen, const char* keys) {
  return byHand(screen, [&](qvn::Operator& hands) { hands.type(givenText(keys, "the text of keys")); });
}

int32_t qvn_operator_paste(qvn_object* screen, const char* text) {
  return byHand(screen, [&](qvn::Operator& hands) { hands.paste(givenText(text, "the text")); });
}

int32_t qvn_operator_select(qvn_object* screen, int32_t start, int32_t length) {
  return byHand(screen, [&](qvn::Operator& hands) { hands.caret(start, length); });
}

int32_t qvn_operator_leave(qvn_object* screen) {
  return byHand(screen, [](qvn::Operator& hands) { hands.leave(); });
}

int32_t qvn_operator_focus(qvn_object* panel, const char* widget) {
  return atWidget(panel, widget, [](qvn::Operator& hands, qvn::toolkit::Widget& found) { hands.focus(found); });
}

int32_t qvn_operator_click(qvn_object* panel, const char* widget) {
  return atWidget(panel, widget, [](qvn::Operator& hands, qvn::toolkit::Widget& found) { hands.click(found); });
}

int32_t qvn_operator_choose(qvn_object* panel, const char* widget, const char* item) {
  return atWidget(panel, widget, [&](qvn::Operator& hands, qvn::toolkit::Widget& found) {
    auto* const list = dynamic_cast<qvn::toolkit::ComboBox*>(&found);
    if (list == nullptr) {
      throw qvn::Failure(
          qvn::FailureKind::InvalidCall,
          std::string(found.owner().name()).append(".").append(found.Name()).append(" is no closed list"));
    }
    hands.choose(*list, givenText(item, "the item"));
  });
}

int32_t qvn_operator_lay_down(qvn_object* screen, const char* form, const qvn_act* acts, size_t count) {
  return byHand(screen,
                [&](qvn::Operator& hands) { hands.layDown(givenText(form, "the form's name"), actsOf(acts, count)); });
}

int32_t qvn_operator_failed_acts(qvn_object* screen, qvn_value* text) {
  return guarded([&] {
    given(text, "the place for the text") = {};
    std::string lines;
    for (const qvn::FailedAct& failed : ofKind<ScreenObject>(screen).hands().failedActs()) {
      const std::string_view message = failed.failure.what();
      const std::string form = failed.form + ": ";
      lines.append(message.starts_with(form) ? "" : form).append(message).append("\n");
    }
    give(lines, *text);
  });
}
