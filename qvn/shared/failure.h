// What goes wrong, as one exception type with a kind and a message.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace qvn {

/// What kind of thing went wrong.
enum class FailureKind {
  TypeMismatch,
  Overflow,
  DivisionByZero,
  SubscriptOutOfRange,
  InvalidUseOfNull,
  InvalidCall,
  NoSuchMember,
  Database,
};

/// The kind in words, as messages and session answers name it: "type mismatch", "overflow", …
std::string_view nameOf(FailureKind kind);

/// The one failure of the library. Its message names the widget or member and the offending text.
class Failure : public std::runtime_error {
 public:
  Failure(FailureKind kind, const std::string& message) : std::runtime_error(message), kind_(kind) {}

  FailureKind kind() const { return kind_; }

  /// The same failure with its place put in front: "TxtCodice: the text "" is no number".
  Failure within(std::string_view place) const;

 private:
  FailureKind kind_;
};

/// Does the work and gives its result; a failure of it has the place put in front.
template <class Work>
decltype(auto) placed(std::string_view place, Work&& work) {
  try {
    return std::forward<Work>(work)();
  } catch (const Failure& failure) {
    throw failure.within(place);
  }
}

}  // namespace qvn
