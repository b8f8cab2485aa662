// The event object, as hosts of the C interface hold it.
#pragma once

#include <memory>
#include <string_view>

#include "component/classes.h"
#include "component/object.h"
#include "qvn/shared/clsQVN_Eventi.h"

namespace qvn::component {

class EventsObject final : public Object {
 public:
  static constexpr const char* kKind = "event object";

  /// The object of an event object, with a reference more: the same one as long as it has any.
  static EventsObject& of(const EventsReference& events);

  std::string_view className() const override { return eventsClass().name; }
  const MemberList& members() const override { return eventsClass().members; }
  Variant get(std::string_view name) override;
  void let(std::string_view name, const Variant& value) override;
  Variant call(std::string_view name, std::span<Variant> arguments) override;

  const EventsReference& events() const { return events_; }

 private:
  explicit EventsObject(EventsReference events) : events_(std::move(events)) {}
  void drop() noexcept override;

  EventsReference events_;
};

}  // namespace qvn::component
