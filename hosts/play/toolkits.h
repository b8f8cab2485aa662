// The toolkits that the player can put the panels on.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platforms/operator.h"
#include "qvn/toolkit/platform.h"

namespace qvn::play {

/// A platform with its operator and a clock that can be set.
class Toolkit {
 public:
  virtual ~Toolkit() = default;
  virtual toolkit::Platform& platform() = 0;
  virtual Operator& hands() = 0;
  /// The watcher must outlive the toolkit or be replaced by null.
  virtual void watch(Watcher* watcher) = 0;
  virtual void today(Date date) = 0;
};

/// The names of the toolkits built in, for messages: "memory, qt".
std::string toolkitNames();

/// A toolkit by its name, null if none of that name is built in. Its clock tells the date given, or the system's.
std::unique_ptr<Toolkit> makeToolkit(std::string_view name, std::optional<Date> today = {});

}  // namespace qvn::play
