#include "qvn/shared/failure.h"

#include <array>

namespace qvn {

std::string_view nameOf(FailureKind kind) {
  static constexpr std::array<std::string_view, 8> names{
      "type mismatch",       "overflow",     "division by zero", "subscript out of range",
      "invalid use of null", "invalid call", "no such member",   "database",
  };
  return names.at(static_cast<std::size_t>(kind));
}

Failure Failure::within(std::string_view place) const {
  return {kind_, std::string(place).append(": ").append(what())};
}

}  // namespace qvn
