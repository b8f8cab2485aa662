#include "component/events_object.h"

#include <algorithm>
#include <string>
#include <vector>

#include "qvn/shared/calling.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/names.h"

namespace qvn::component {

namespace {

/// Those that have references.
std::vector<EventsObject*>& known() {
  static std::vector<EventsObject*> objects;
  return objects;
}

[[noreturn]] void noMember(std::string_view name, std::string_view use) {
  const std::string place = std::string("clsQVN_Eventi.").append(name);
  for (const ListedMember& member : eventsClass().members) {
    if (sameName(member.name, name)) throw Failure(FailureKind::NoSuchMember, place + ": it is no " + std::string(use));
  }
  throw Failure(FailureKind::NoSuchMember, place + ": there is no member of that name");
}

}  // namespace

EventsObject& EventsObject::of(const EventsReference& events) {
  const auto found = std::ranges::find(known(), events, &EventsObject::events_);
  if (found != known().end()) {
    (*found)->addref();
    return **found;
  }
  known().reserve(known().size() + 1);
  known().push_back(new EventsObject(events));
  return *known().back();
}

void EventsObject::drop() noexcept { std::erase(known(), this); }

Variant EventsObject::get(std::string_view name) { noMember(name, "property"); }
void EventsObject::let(std::string_view name, const Variant&) { noMember(name, "property"); }

Variant EventsObject::call(std::string_view name, std::span<Variant> arguments) {
  // The object may go while the call runs.
  const EventsReference events = events_;
  if (sameName(name, "FireMancaDB")) {
    return placed("clsQVN_Eventi.FireMancaDB",
                  [&] { return callWith<void>(arguments, Locale(), [&] { events->FireMancaDB(); }); });
  }
  if (sameName(name, "ImpostaDB")) {
    return placed("clsQVN_Eventi.ImpostaDB", [&] {
      return callWith<void, std::string_view>(arguments, Locale(),
                                              [&](std::string_view connection) { events->ImpostaDB(connection); });
    });
  }
  noMember(name, "method");
}

}  // namespace qvn::component
