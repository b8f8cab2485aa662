// What has the focus stands where it can be seen.
#include <QScrollArea>
#include <QScrollBar>

#include "tests/ufficio/at_window.h"

namespace qvn::test {
namespace {

class OfficeInView : public AtWindow {
 public:
  static bool whollySeen(const QWidget& widget) { return widget.visibleRegion().boundingRect() == widget.rect(); }
  QWidget& widgetOf(std::size_t panel) { return office.platform.widgetOf(screen().panels().at(panel)->surface()); }
  bool focusIn(std::size_t panel) { return widgetOf(panel).isAncestorOf(QApplication::focusWidget()); }
  QScrollBar& bar() { return *window().findChild<QScrollArea*>()->verticalScrollBar(); }
  void openSixParticipants() {
    choose("quote-polizze");
    window().resize(1280, 600);
    open("29/00000024");
  }
};

TEST_F(OfficeInView, ANewRowIsAtOnce) {
  openSixParticipants();
  press(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(focused(), "TxtQUOTA");
  EXPECT_TRUE(focusIn(6));
  EXPECT_TRUE(whollySeen(widgetOf(6)));
}

TEST_F(OfficeInView, EachFieldIsOnTheWayThroughAllPanels) {
  openSixParticipants();
  edit();
  int steps = 0;
  for (std::size_t panel = 0; panel < 6; ++panel) {
    for (; focusIn(panel); ++steps) {
      EXPECT_TRUE(whollySeen(*QApplication::focusWidget())) << focused().toStdString() << " of panel " << panel;
      EXPECT_TRUE(whollySeen(widgetOf(panel))) << "panel " << panel;
      press(Qt::Key_Tab);
    }
  }
  EXPECT_EQ(steps, 42);
}

TEST_F(OfficeInView, AFieldIsInAPanelThatIsTallerThanTheWindow) {
  choose("provvigioni");
  window().resize(900, 300);
  open("29/00000024");
  edit();
  int steps = 0;
  for (; focusIn(0) && steps < 60; ++steps) {
    EXPECT_TRUE(whollySeen(*QApplication::focusWidget())) << focused().toStdString();
    press(Qt::Key_Tab);
  }
  EXPECT_EQ(steps, 13);
  EXPECT_FALSE(whollySeen(widgetOf(0)));
}

TEST_F(OfficeInView, NothingMovesUnderAPressedMouse) {
  openSixParticipants();
  edit();
  bar().setValue(bar().value() + 30);
  QLineEdit& number = field("TxtN_POLIZZA", 0);
  ASSERT_TRUE(whollySeen(number));
  const int before = bar().value();
  QTest::mouseClick(&number, Qt::LeftButton);
  EXPECT_EQ(focused(), "TxtN_POLIZZA");
  EXPECT_EQ(bar().value(), before);
}

}  // namespace
}  // namespace qvn::test
