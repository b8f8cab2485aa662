// What a session can be asked for, by name.
#pragma once

#include <span>
#include <string_view>

#include "hosts/play/request.h"
#include "hosts/play/session.h"

namespace qvn::play {

struct RequestKind {
  std::string_view name;
  /// Does it, and adds to the answer what stands beside "ok", on a failure too.
  void (*carryOut)(Session& session, const Request& request, Answer& answer);
  /// Done by the operator: the answer adds what it led to.
  bool byOperator = false;
};

std::span<const RequestKind> hostRequests();
std::span<const RequestKind> operatorRequests();
std::span<const RequestKind> lookingRequests();

}  // namespace qvn::play
