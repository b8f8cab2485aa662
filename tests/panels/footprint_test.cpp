// What a panel takes of the heap, on widgets in memory.
#include <gtest/gtest.h>

#include "platforms/memory/platform.h"
#include "qvn/panels/commissions/ctlPROV_POLIZZE.h"
#include "qvn/panels/documents/ctlRICERCA.h"
#include "qvn/panels/master/ctlIVA.h"
#include "qvn/shared/Globale.h"
#include "tests/allocations.h"
#include "tests/recording_container.h"

namespace qvn::test {
namespace {

TEST(PanelFootprint, OfTheVatCodePanelIsUnderEightKibibytesAndGivenBack) {
  memory::Platform platform;
  Globale::install(platform);
  RecordingContainer container;
  { const ctlIVA first(PanelSite{container, "iva"}); }  // makes the table of members, once
  const std::int64_t before = liveBytes();
  resetPeak();
  {
    const ctlIVA panel(PanelSite{container, "iva"});
    EXPECT_GT(peakBytes() - before, 500);
  }
  EXPECT_LT(peakBytes() - before, 8 * 1024);
  EXPECT_EQ(liveBytes(), before);
  Globale::uninstall();
}

TEST(PanelFootprint, OfTheCommissionPanelIsUnderSixtyFourKibibytesAndGivenBack) {
  memory::Platform platform;
  Globale::install(platform);
  RecordingContainer container;
  { const ctlPROV_POLIZZE first(PanelSite{container, "provv"}); }  // makes the shared objects, once
  container.notices = {};
  container.notices.reserve(100);
  const std::int64_t before = liveBytes();
  resetPeak();
  {
    const ctlPROV_POLIZZE panel(PanelSite{container, "provv"});
    EXPECT_GT(peakBytes() - before, 2000);
    container.notices.clear();
  }
  EXPECT_LT(peakBytes() - before, 64 * 1024);
  EXPECT_EQ(liveBytes(), before);
  Globale::uninstall();
}

TEST(PanelFootprint, OfThePolicyPanelIsUnderEightKibibytesAndGivenBack) {
  memory::Platform platform;
  Globale::install(platform);
  RecordingContainer container;
  { const ctlRICERCA first(PanelSite{container, "polizza"}); }  // makes the shared objects, once
  const std::int64_t before = liveBytes();
  resetPeak();
  {
    const ctlRICERCA panel(PanelSite{container, "polizza"});
    EXPECT_GT(peakBytes() - before, 500);
  }
  EXPECT_LT(peakBytes() - before, 8 * 1024);
  EXPECT_EQ(liveBytes(), before);
  Globale::uninstall();
}

TEST(PanelFootprint, OfADigitIsNothing) {
  memory::Platform platform;
  Globale::install(platform);
  RecordingContainer container;
  {
    ctlIVA panel(PanelSite{container, "iva"});
    panel.Attiva();
    platform.hands().type("1{Backspace}");
    container.notices.reserve(100);
    const std::int64_t before = allocationCount();
    platform.hands().type("2");
    EXPECT_EQ(allocationCount(), before);
  }
  Globale::uninstall();
}

}  // namespace
}  // namespace qvn::test
