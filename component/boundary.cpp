#include "component/boundary.h"

#include <array>
#include <new>
#include <string>

#include "component/object.h"

namespace qvn::component {

namespace {

struct Message {
  std::string text;
  bool outOfMemory = false;
};

Message& lastMessage() noexcept {
  // One for the one thread: a thread's own would keep the library loaded until the thread ends.
  static Message message;
  return message;
}

constexpr const char* kOutOfMemory = "out of memory";

struct Status {
  std::int32_t status;
  const char* name;
};

constexpr std::array kOthers{
    Status{QVN_INVALID_ARGUMENT, "invalid argument"},
    Status{QVN_OUT_OF_MEMORY, kOutOfMemory},
    Status{QVN_UNKNOWN, "unknown"},
};

/// Kinds of failure are statuses from 1 on, in the order of their kinds.
constexpr std::int32_t statusOf(FailureKind kind) { return static_cast<std::int32_t>(kind) + 1; }
static_assert(statusOf(FailureKind::TypeMismatch) == QVN_TYPE_MISMATCH);
static_assert(statusOf(FailureKind::Overflow) == QVN_OVERFLOW);
static_assert(statusOf(FailureKind::DivisionByZero) == QVN_DIVISION_BY_ZERO);
static_assert(statusOf(FailureKind::SubscriptOutOfRange) == QVN_SUBSCRIPT_OUT_OF_RANGE);
static_assert(statusOf(FailureKind::InvalidUseOfNull) == QVN_INVALID_USE_OF_NULL);
static_assert(statusOf(FailureKind::InvalidCall) == QVN_INVALID_CALL);
static_assert(statusOf(FailureKind::NoSuchMember) == QVN_NO_SUCH_MEMBER);
static_assert(statusOf(FailureKind::Database) == QVN_DATABASE);

constexpr bool isFailure(std::int32_t status) { return status >= QVN_TYPE_MISMATCH && status <= QVN_DATABASE; }
constexpr FailureKind kindOf(std::int32_t status) { return static_cast<FailureKind>(status - 1); }

}  // namespace

int Entry::depth_ = 0;

Entry::~Entry() {
  if (depth_ == 1) Object::destroyGone();
  --depth_;
}

const char* message() noexcept {
  const Message& last = lastMessage();
  return last.outOfMemory ? kOutOfMemory : last.text.c_str();
}

void leaveMessage(std::string_view text) noexcept {
  Message& last = lastMessage();
  try {
    last.text = text;
    last.outOfMemory = false;
  } catch (const std::bad_alloc&) {
    last.outOfMemory = true;
  }
}

void forgetMessage() noexcept {
  Message& last = lastMessage();
  last.text.clear();
  last.outOfMemory = false;
}

std::int32_t statusOfException() noexcept {
  try {
    throw;
  } catch (const Failure& failure) {
    leaveMessage(failure.what());
    return statusOf(failure.kind());
  } catch (const InvalidArgument& wrong) {
    leaveMessage(wrong.what());
    return QVN_INVALID_ARGUMENT;
  } catch (const std::bad_alloc&) {
    leaveMessage(kOutOfMemory);
    return QVN_OUT_OF_MEMORY;
  } catch (const std::exception& other) {
    leaveMessage(other.what());
    return QVN_UNKNOWN;
  } catch (...) {
    leaveMessage("unknown");
    return QVN_UNKNOWN;
  }
}

std::int32_t statusOf(const Failure& failure) { return statusOf(failure.kind()); }

const char* nameOfStatus(std::int32_t status) {
  if (isFailure(status)) return nameOf(kindOf(status)).data();
  for (const Status& other : kOthers) {
    if (other.status == status) return other.name;
  }
  return "";
}

void passOn(std::int32_t status, std::string_view handler) {
  if (status == QVN_OK) return;
  std::string why = message();
  if (why.empty()) why = std::string("the host's handler of ").append(handler).append(" failed");
  throw Failure(isFailure(status) ? kindOf(status) : FailureKind::InvalidCall, why);
}

}  // namespace qvn::component
