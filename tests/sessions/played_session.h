// A session in memory, played line by line.
#pragma once

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string_view>

#include "hosts/play/session.h"
#include "tests/fake_database.h"

namespace qvn::play {

class PlayedSession : public testing::Test {
 protected:
  Answer play(std::string_view line) { return session_.answer(line); }

  test::FakeDriver driver_;
  std::unique_ptr<Toolkit> toolkit_ = makeToolkit("memory");
  std::array<toolkit::Driver*, 1> drivers_{&driver_};
  Session session_{*toolkit_, drivers_};
};

MATCHER(IsOk, "") { return arg["ok"].template get<bool>(); }
MATCHER_P2(FailsAs, kind, message, "") {
  return !arg["ok"].template get<bool>() && arg["failure"] == kind && arg["message"] == message;
}
MATCHER(IsBadRequest, "") { return !arg["ok"].template get<bool>() && arg["failure"] == "bad request"; }

}  // namespace qvn::play
