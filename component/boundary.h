// The one place where exceptions become statuses: every function of the C interface runs its work in here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "component/qvn.h"
#include "qvn/shared/failure.h"

namespace qvn::component {

/// A call that is wrong by itself: a null, an object of another kind. It becomes QVN_INVALID_ARGUMENT.
class InvalidArgument : public std::invalid_argument {
 public:
  using std::invalid_argument::invalid_argument;
};

/// A call of the library that is under way. Objects that go inside one keep their memory until the outermost has ended,
/// for handlers stand on them.
class Entry {
 public:
  Entry() noexcept { ++depth_; }
  ~Entry();
  Entry(const Entry&) = delete;
  Entry& operator=(const Entry&) = delete;

 private:
  static int depth_;
};

/// The last message; leaving one cannot fail, but for want of memory the message may be another.
const char* message() noexcept;
void leaveMessage(std::string_view text) noexcept;
void forgetMessage() noexcept;

/// The status of the exception at hand, whose message is left.
std::int32_t statusOfException() noexcept;

/// The status of a failure.
std::int32_t statusOf(const Failure& failure);

/// A status in words, empty for what is none.
const char* nameOfStatus(std::int32_t status);

/// Does the work of one call: QVN_OK, or the status of what it throws.
template <class Work>
std::int32_t guarded(Work&& work) noexcept {
  const Entry entry;
  try {
    std::forward<Work>(work)();
    forgetMessage();
    return QVN_OK;
  } catch (...) {
    return statusOfException();
  }
}

/// What a host's handler has answered: fails with its status and the last message unless it is QVN_OK. A status that is
/// no failure's kind fails as "invalid call".
void passOn(std::int32_t status, std::string_view handler);

/// What a pointer points to; "invalid argument", naming it, if it is null.
template <class Pointed>
Pointed& given(Pointed* pointer, const char* name) {
  if (pointer == nullptr) throw InvalidArgument(std::string(name).append(" is null"));
  return *pointer;
}
inline std::string_view givenText(const char* text, const char* name) { return &given(text, name); }

/// One of a list, by the host's index from 0. "subscript out of range", saying what it is a list of, outside.
template <class List>
decltype(auto) at(const List& list, std::int32_t index, const char* what) {
  if (index < 0 || static_cast<std::size_t>(index) >= list.size()) {
    throw Failure(FailureKind::SubscriptOutOfRange,
                  std::string("there is no ").append(what).append(" ").append(std::to_string(index)));
  }
  return list[static_cast<std::size_t>(index)];
}

}  // namespace qvn::component
