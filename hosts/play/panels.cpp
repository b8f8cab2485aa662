#include "hosts/play/panels.h"

#include <utility>

#include "hosts/play/bad_request.h"
#include "hosts/play/place_of.h"
#include "qvn/shared/failure.h"

namespace qvn::play {

Panel& Panels::make(const std::string& name, const PanelClass& made) {
  if (panels_.contains(name)) {
    throw Failure(FailureKind::InvalidCall, "the session has a panel \"" + name + "\" already");
  }
  return *panels_.emplace(name, made.make({.container = *this, .name = name})).first->second;
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

Answer Panels::takeFailures() { return std::exchange(failures_, Answer::array()); }

void Panels::PropertyChanged(toolkit::Surface& panel, std::string_view name) { journal_.notice(panel.name(), name); }

void Panels::handlerFailed(toolkit::Surface& panel, toolkit::Widget& widget, std::string_view event,
                           const Failure& failure) noexcept {
  Answer entry = Answer::object();
  entry["panel"] = panel.name();
  entry["widget"] = widget.Name();
  entry["event"] = event;
  entry["failure"] = nameOf(failure.kind());
  entry["message"] = placed(panel, widget, failure.what());
  failures_.push_back(std::move(entry));
}

std::string placed(const toolkit::Surface& panel, const toolkit::Widget& widget, std::string_view message) {
  std::string place = placeOf(panel, widget);
  if (message.find(place) != std::string_view::npos) return std::string(message);
  if (message.starts_with(std::string(widget.Name()).append(":"))) place = panel.name();
  return place.append(place.size() == panel.name().size() ? "." : ": ").append(message);
}

}  // namespace qvn::play
