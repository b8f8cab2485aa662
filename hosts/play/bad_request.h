// A line that asks for what the player does not know.
#pragma once

#include <stdexcept>
#include <string>

namespace qvn::play {

/// Answered with the failure "bad request". The message tells what was wrong with the line.
class BadRequest : public std::runtime_error {
 public:
  explicit BadRequest(const std::string& message) : std::runtime_error(message) {}
};

}  // namespace qvn::play
