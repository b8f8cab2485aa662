// The VAT code panel, typed into by real key events, beside the same panel driven by the operator's hands in memory.
#include "platforms/memory/platform.h"
#include "qvn/panels/master/ctlIVA.h"
#include "qvn/shared/Globale.h"
#include "tests/qt/on_screen.h"

namespace qvn::test {
namespace {

std::vector<std::string> textsOf(toolkit::Surface& surface) {
  std::vector<std::string> texts;
  for (toolkit::Widget* widget : surface.widgets()) {
    if (widget->Kind() == toolkit::WidgetKind::TextBox) texts.push_back(static_cast<toolkit::TextBox*>(widget)->Text());
  }
  return texts;
}

TEST(QtTyping, GivesWhatTheHandsGive) {
  std::vector<std::string> expected;
  std::vector<std::string> notices;
  {
    memory::Platform memory;
    Globale::install(memory);
    RecordingContainer container;
    ctlIVA panel(PanelSite{container, "iva"});
    panel.Attiva();
    memory.hands().type("7x{Enter}ordinaria à{Backspace}{Enter}250{Enter}");
    expected = textsOf(panel.surface());
    notices = container.notices;
    Globale::uninstall();
  }
  qt::OffscreenPlatform platform;
  Globale::install(platform);
  {
    RecordingContainer container;
    ctlIVA panel(PanelSite{container, "iva"});
    QWidget& widget = platform.widgetOf(panel.surface());
    widget.show();
    QApplication::setActiveWindow(&widget);
    panel.Attiva();
    QApplication::processEvents();
    write("7x");
    press(Qt::Key_Return, "\r");
    write("ordinaria à");
    press(Qt::Key_Backspace, "\b");
    press(Qt::Key_Return, "\r");
    write("250");
    press(Qt::Key_Enter, "\r", Qt::KeypadModifier);
    EXPECT_EQ(textsOf(panel.surface()), expected);
    EXPECT_EQ(container.notices, notices);
    QApplication::processEvents();
    EXPECT_THAT(disagreements(platform, panel.surface()), testing::IsEmpty());
  }
  Globale::uninstall();
}

}  // namespace
}  // namespace qvn::test
