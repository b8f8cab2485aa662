// Widgets on a surface of their own, for tests of how they are shown.
#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <span>

#include "platforms/memory/platform.h"
#include "tests/recording_container.h"

namespace qvn::play {

class LaidOut : public testing::Test {
 protected:
  /// A panel "p" of these widgets, which live as long as the test.
  toolkit::Surface& place(std::span<const toolkit::WidgetLayout> widgets) {
    layout_ = {.name = "drawn", .width = 3000, .height = 2000, .widgets = widgets};
    surface_ = platform_.makeSurface(layout_, container_, "p");
    return *surface_;
  }

  memory::Platform platform_;
  test::RecordingContainer container_;
  toolkit::PanelLayout layout_;
  std::unique_ptr<toolkit::Surface> surface_;
};

}  // namespace qvn::play
