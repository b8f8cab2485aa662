// Handlers of hosts, for C.
#include <memory>
#include <utility>

#include "component/boundary.h"
#include "component/events_object.h"
#include "component/object.h"
#include "component/panel_object.h"
#include "component/qvn.h"
#include "component/screen_object.h"
#include "component/subscription.h"

using namespace qvn::component;

namespace {

/// Gives the subscription that `subscribe` makes.
template <class Subscribe>
int32_t subscribed(bool hasHandler, qvn_object** subscription, Subscribe&& subscribe) noexcept {
  return guarded([&] {
    given(subscription, "the place for the subscription") = nullptr;
    if (!hasHandler) throw InvalidArgument("the handler is null");
    *subscription = std::make_unique<SubscriptionObject>(std::forward<Subscribe>(subscribe)()).release();
  });
}

}  // namespace

int32_t qvn_on_manca_db(qvn_object* events, qvn_manca_db_handler handler, void* data, qvn_object** subscription) {
  return subscribed(handler != nullptr, subscription, [&] {
    return ofKind<EventsObject>(events).events()->MancaDB.subscribe([handler, data] {
      forgetMessage();
      passOn(handler(data), "MancaDB");
    });
  });
}

int32_t qvn_on_changed(qvn_object* panel, qvn_changed_handler handler, void* data, qvn_object** subscription) {
  return subscribed(handler != nullptr, subscription, [&] {
    auto& object = ofKind<PanelObject>(panel);
    return object.changed().subscribe([&object, handler, data](const char* name) {
      forgetMessage();
      passOn(handler(data, &object, name), "a change");
    });
  });
}

int32_t qvn_on_failed(qvn_object* panel, qvn_failed_handler handler, void* data, qvn_object** subscription) {
  return subscribed(handler != nullptr, subscription, [&] {
    auto& object = ofKind<PanelObject>(panel);
    return object.failed().subscribe(
        [&object, handler, data](const char* widget, const char* event, const qvn::Failure& failure) {
          handler(data, &object, widget, event, statusOf(failure), failure.what());
        });
  });
}

int32_t qvn_on_form(qvn_object* screen, qvn_form_handler handler, void* data, qvn_object** subscription) {
  return subscribed(handler != nullptr, subscription, [&] {
    auto& object = ofKind<ScreenObject>(screen);
    return object.forms().subscribe(
        [&object, handler, data](const char* form, std::int32_t event) { handler(data, &object, form, event); });
  });
}
