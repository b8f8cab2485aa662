// The component as its tests use it: by its C interface alone, with owners for what it gives.
#pragma once

#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "component/qvn.h"

namespace qvn::component_test {

/// A reference that the library gave.
class Handle {
 public:
  Handle() = default;
  explicit Handle(qvn_object* object) : object_(object) {}
  ~Handle() { reset(); }
  Handle(Handle&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  Handle& operator=(Handle&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  void reset() { qvn_release(std::exchange(object_, nullptr)); }
  /// Where the library puts what it gives.
  qvn_object** place() {
    reset();
    return &object_;
  }
  qvn_object* get() const { return object_; }

 private:
  qvn_object* object_ = nullptr;
};

/// A value that the library gave.
class Value {
 public:
  Value() = default;
  ~Value() { qvn_value_clear(&value_); }
  Value(Value&& other) noexcept : value_(std::exchange(other.value_, {})) {}
  Value(const Value&) = delete;
  Value& operator=(const Value&) = delete;
  Value& operator=(Value&&) = delete;

  qvn_value* place() {
    qvn_value_clear(&value_);
    return &value_;
  }
  const qvn_value& operator*() const { return value_; }
  const qvn_value* operator->() const { return &value_; }
  std::string text() const {
    return value_.kind == QVN_TEXT ? std::string(value_.as.text.data, value_.as.text.length) : "no text";
  }

 private:
  qvn_value value_{};
};

// Values of a host, which own nothing.

inline qvn_value ofKind(std::int32_t kind) {
  qvn_value value{};
  value.kind = kind;
  return value;
}
inline qvn_value text(std::string_view text) {
  qvn_value value = ofKind(QVN_TEXT);
  value.as.text = {.data = text.data(), .length = text.size()};
  return value;
}
inline qvn_value number(std::int32_t number) {
  qvn_value value = ofKind(QVN_INT32);
  value.as.int32 = number;
  return value;
}

inline Handle classObject(const char* name) {
  void* object = nullptr;
  EXPECT_EQ(QVN_S_OK, DllGetClassObject(name, QVN_CLASS_INTERFACE, &object)) << name;
  return Handle(static_cast<qvn_object*>(object));
}

inline Handle screen() {
  Handle made;
  EXPECT_EQ(QVN_OK, qvn_screen_create(made.place())) << qvn_last_message();
  return made;
}

inline Handle create(const Handle& screen, const char* className, const char* name) {
  Handle made;
  EXPECT_EQ(QVN_OK, qvn_create(classObject(className).get(), screen.get(), name, made.place())) << qvn_last_message();
  return made;
}

inline Value get(const Handle& object, const char* name) {
  Value value;
  EXPECT_EQ(QVN_OK, qvn_get(object.get(), name, value.place())) << qvn_last_message();
  return value;
}

inline void let(const Handle& object, const char* name, const qvn_value& value) {
  EXPECT_EQ(QVN_OK, qvn_let(object.get(), name, &value)) << qvn_last_message();
}

inline void call(const Handle& object, const char* name) {
  EXPECT_EQ(QVN_OK, qvn_call(object.get(), name, nullptr, 0, nullptr)) << qvn_last_message();
}

/// The event object that a panel gives.
inline Handle eventsOf(const Handle& panel) {
  const Value value = get(panel, "Events");
  EXPECT_EQ(QVN_OBJECT, value->kind);
  qvn_addref(value->as.object);
  return Handle(value->as.object);
}

inline void type(const Handle& screen, const char* keys) {
  EXPECT_EQ(QVN_OK, qvn_operator_type(screen.get(), keys)) << qvn_last_message();
}

inline std::string show(const Handle& panel, const char* widget, const char* property) {
  Value value;
  EXPECT_EQ(QVN_OK, qvn_widget_get(panel.get(), widget, property, value.place())) << qvn_last_message();
  return value.text();
}

/// All that a host has, which a handler may drop at once.
struct Belongings {
  Handle onScreen = screen();
  Handle panel = create(onScreen, "ctlQ_POLIZZE", "quota");
  Handle events = eventsOf(panel);
  Handle subscription;

  void drop() {
    for (Handle* one : {&panel, &subscription, &events, &onScreen}) one->reset();
  }
};

/// Whether a call has failed with a status and a message that says something.
inline testing::AssertionResult failed(std::int32_t status, std::string_view said, std::int32_t given) {
  if (given != status) {
    return testing::AssertionFailure() << "gave " << given << ", \"" << qvn_status_name(given) << "\", saying \""
                                       << qvn_last_message() << "\"";
  }
  if (std::string_view(qvn_last_message()).find(said) == std::string_view::npos) {
    return testing::AssertionFailure() << "said \"" << qvn_last_message() << "\"";
  }
  return testing::AssertionSuccess();
}

/// Every test leaves a library that may be unloaded.
class Component : public testing::Test {
 public:
  ~Component() override { EXPECT_EQ(QVN_S_OK, DllCanUnloadNow()) << "an object was left behind"; }
};

}  // namespace qvn::component_test
