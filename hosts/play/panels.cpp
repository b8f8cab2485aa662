#include "hosts/play/panels.h"

#include <utility>

#include "hosts/play/acts.h"
#include "hosts/play/bad_request.h"
#include "hosts/play/place_of.h"
#include "qvn/shared/failure.h"

namespace qvn::play {

namespace {

Answer entry(std::string_view panel, Answer widget, std::string_view event, const Failure& failure,
             std::string message) {
  Answer result = Answer::object();
  result["panel"] = panel;
  result["widget"] = std::move(widget);
  result["event"] = event;
  result["failure"] = nameOf(failure.kind());
  result["message"] = std::move(message);
  return result;
}

/// Whether a message begins with a name, and not with a longer one.
bool startsWithName(std::string_view message, std::string_view name) {
  if (!message.starts_with(name)) return false;
  message.remove_prefix(name.size());
  return message.empty() || message.front() == ':' || message.front() == ' ';
}

/// The message with the form in front, unless it names the form itself.
std::string placed(std::string_view form, std::string_view message) {
  if (startsWithName(message, form) || message.starts_with(std::string(form).append("."))) return std::string(message);
  return std::string(form).append(": ").append(message);
}

}  // namespace

Panel& Panels::make(const std::string& name, const PanelClass& made) {
  if (name.empty()) throw BadRequest("a panel's name is not empty");
  if (panels_.contains(name)) {
    throw Failure(FailureKind::InvalidCall, "the session has a panel \"" + name + "\" already");
  }
  auto panel = qvn::placed(name, [&] { return made.make({.container = *this, .name = name}); });
  return *panels_.emplace(name, std::move(panel)).first->second;
}

Panel& Panels::at(const std::string& name) const {
  const auto found = panels_.find(name);
  if (found == panels_.end()) throw BadRequest("the session has no panel \"" + name + "\"");
  return *found->second;
}

void Panels::drop(const std::string& name) {
  at(name);
  panels_.erase(name);
}

Answer Panels::takeFailures() {
  addFailedActs();
  return std::exchange(failures_, Answer::array());
}

void Panels::PropertyChanged(toolkit::Surface& panel, std::string_view name) { journal_.notice(panel.name(), name); }

void Panels::handlerFailed(toolkit::Surface& panel, toolkit::Widget& widget, std::string_view event,
                           const Failure& failure) noexcept {
  addFailedActs();  // which were before: the handler goes on when its form is gone
  failures_.push_back(entry(panel.name(), widget.Name(), event, failure, placed(panel, widget, failure.what())));
}

void Panels::addFailedActs() {
  for (const FailedAct& failed : hands_.failedActs()) {
    const bool named = failed.act.kind == Act::Kind::Click;
    Answer added = entry(failed.form, named ? Answer(failed.act.text) : Answer(), "operator", failed.failure,
                         placed(failed.form, failed.failure.what()));
    added["act"] = toJson(failed.act);
    failures_.push_back(std::move(added));
  }
}

std::string placed(const toolkit::Surface& panel, const toolkit::Widget& widget, std::string_view message) {
  const std::string place = placeOf(panel, widget);
  if (startsWithName(message, place)) return std::string(message);
  if (startsWithName(message, widget.Name())) return std::string(panel.name()).append(".").append(message);
  return std::string(place).append(": ").append(message);
}

}  // namespace qvn::play
