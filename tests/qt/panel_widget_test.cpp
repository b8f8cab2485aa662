// A panel in a host's window.
#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QScreen>

#include "tests/qt/on_screen.h"

namespace qvn::test {
namespace {

class QtPanel : public OnScreen {};

TEST_F(QtPanel, IsAsLargeAsLaidOut) {
  const QWidget& widget = platform.widgetOf(*panel);
  EXPECT_EQ(widget.width(), 7200 * widget.logicalDpiX() / 1440);
  EXPECT_EQ(widget.height(), 3600 * widget.logicalDpiY() / 1440);
  expectAgreement();
}

TEST_F(QtPanel, IsToldTheSizeOfThePrimaryScreen) {
  const QScreen& primary = *QGuiApplication::primaryScreen();
  const toolkit::ScreenSize size = platform.screen();
  EXPECT_NEAR(size.width, primary.size().width() * 1440 / primary.logicalDotsPerInchX(), 1);
  EXPECT_NEAR(size.height, primary.size().height() * 1440 / primary.logicalDotsPerInchY(), 1);
}

TEST_F(QtPanel, ShowsWhatTheProgramWrites) {
  box().Text("scritto");
  panel->label("Label").Caption("Altro:");
  panel->frame("Outer").Caption("Fuori");
  list().ListIndex(2);
  list().AddItem("Nuovo");
  list().RemoveItem(0);
  check().Value(1);
  box("B").Enabled(false);
  box("Hidden").Visible(true);
  box("Off").BackColor(0xFFFF00);
  box("Free").place({0, 0, 1440, 300});
  expectAgreement();
  EXPECT_EQ(shown("Off").palette().color(QPalette::Base), QColor(0, 255, 255));
  EXPECT_EQ(shown("Free").width(), shown("Free").logicalDpiX());
}

TEST_F(QtPanel, ACaptionThatIsCutIsToldWholeByTheTooltip) {
  panel->label("Label").Caption("Una didascalia molto più lunga del suo posto");
  platform.settle();
  EXPECT_EQ(shown("Label").toolTip(), QStringLiteral("Spiegazione: Una didascalia molto più lunga del suo posto"));
  panel->label("Label").Caption("Q:");
  platform.settle();
  EXPECT_EQ(shown("Label").toolTip(), QStringLiteral("Spiegazione"));
}

TEST_F(QtPanel, TabAndShiftTabFollowTheTabOrder) {
  focus(box());
  press(Qt::Key_Tab, "\t");
  EXPECT_TRUE(box("B").hasFocus());
  press(Qt::Key_Tab, "\t");
  EXPECT_TRUE(list().hasFocus());
  press(Qt::Key_Tab, "\t");
  EXPECT_TRUE(check().hasFocus());
  press(Qt::Key_Backtab, {}, Qt::ShiftModifier);
  EXPECT_TRUE(list().hasFocus());
  expectAgreement();
}

TEST_F(QtPanel, TabLeavesThePanelAtItsLastFieldAndShiftTabComesBackToIt) {
  std::vector<std::string> heard;
  box("Twin2").LostFocus = [&] { heard.emplace_back("lost"); };
  box("Twin2").GotFocus = [&] { heard.emplace_back("got"); };
  box("Twin2").Text("abc");
  focus(box("Twin1"));
  press(Qt::Key_Tab, "\t");
  EXPECT_TRUE(box("Twin2").hasFocus());
  press(Qt::Key_Tab, "\t");
  EXPECT_EQ(QApplication::focusWidget(), hostField);
  EXPECT_EQ(platform.focused(), nullptr);
  press(Qt::Key_Backtab, {}, Qt::ShiftModifier);
  EXPECT_TRUE(box("Twin2").hasFocus());
  EXPECT_EQ(box("Twin2").SelLength(), 0);
  EXPECT_THAT(heard, ElementsAre("got", "lost", "got"));
  expectAgreement();
}

TEST_F(QtPanel, TabLeavesThePanelAtTheLastFieldThatCanBeReached) {
  box("Twin2").Enabled(false);
  focus(box("Twin1"));
  press(Qt::Key_Tab, "\t");
  EXPECT_EQ(QApplication::focusWidget(), hostField);
  press(Qt::Key_Tab, "\t");
  EXPECT_TRUE(box("Free").hasFocus());
  press(Qt::Key_Backtab, {}, Qt::ShiftModifier);
  EXPECT_EQ(QApplication::focusWidget(), hostField);
}

TEST_F(QtPanel, TabSkipsWhatHasJustBeenSwitchedOff) {
  focus(box("Twin2"));
  const auto second = another("second");
  window->layout()->addWidget(&platform.widgetOf(*second));
  QApplication::processEvents();
  hostField->setEnabled(false);
  focus(box("Twin2"));
  second->textBox("Free").Enabled(false);
  press(Qt::Key_Tab, "\t");
  EXPECT_TRUE(second->textBox("A").hasFocus());
}

TEST_F(QtPanel, TabGoesFromPanelToPanel) {
  const auto second = another("second");
  const auto third = another("third");
  window->layout()->addWidget(&platform.widgetOf(*second));
  window->layout()->addWidget(&platform.widgetOf(*third));
  QApplication::processEvents();
  hostField->setFocus();
  press(Qt::Key_Tab, "\t");
  EXPECT_TRUE(second->textBox("Free").hasFocus());
  focus(second->textBox("Twin2"));
  press(Qt::Key_Tab, "\t");
  EXPECT_TRUE(third->textBox("Free").hasFocus());
  press(Qt::Key_Backtab, {}, Qt::ShiftModifier);
  EXPECT_TRUE(second->textBox("Twin2").hasFocus());
  focus(third->textBox("Twin2"));
  press(Qt::Key_Tab, "\t");
  EXPECT_TRUE(box("Free").hasFocus());
}

TEST_F(QtPanel, TabGoesRoundInAPanelThatIsAloneInItsWindow) {
  hostField->hide();
  focus(box("Twin2"));
  press(Qt::Key_Tab, "\t");
  EXPECT_TRUE(box("Free").hasFocus());
  press(Qt::Key_Backtab, {}, Qt::ShiftModifier);
  EXPECT_TRUE(box("Twin2").hasFocus());
}

TEST_F(QtPanel, APanelMayBeDroppedAsTabLeavesIt) {
  box("Twin2").LostFocus = [&] { panel.reset(); };
  focus(box("Twin2"));
  press(Qt::Key_Tab, "\t");
  EXPECT_EQ(QApplication::focusWidget(), hostField);
  EXPECT_EQ(platform.focused(), nullptr);
}

TEST_F(QtPanel, TheMouseMovesTheFocusAndPushes) {
  std::vector<std::string> heard;
  box().LostFocus = [&] { heard.emplace_back("lost A"); };
  box("B").GotFocus = [&] { heard.emplace_back("got B"); };
  panel->button("Button").Click = [&] { heard.emplace_back("push"); };
  check().Click = [&] { heard.emplace_back("check"); };
  focus(box());
  click(shown("B"));
  click(shown("Button"));
  EXPECT_TRUE(panel->button("Button").hasFocus());
  clickAt(shown("Check"), QPointF(6, shown("Check").height() / 2.0));
  EXPECT_THAT(heard, ElementsAre("lost A", "got B", "push", "check"));
  EXPECT_EQ(check().Value(), 1);
  press(Qt::Key_Space, " ");
  EXPECT_EQ(check().Value(), 0);
  expectAgreement();
}

TEST_F(QtPanel, AMarkThatIsNotTakenIsShownNoMore) {
  focus(box());
  box().LostFocus = [this] { box().SetFocus(); };
  clickAt(shown("Check"), QPointF(6, shown("Check").height() / 2.0));
  EXPECT_EQ(check().Value(), 0);
  expectAgreement();
}

TEST_F(QtPanel, KeysThatAreNoneOfAFieldGoToTheHost) {
  for (const char* name : {"A", "Date", "List", "Check", "Button"}) {
    focus(panel->widget(name));
    for (const int key : {Qt::Key_F5, Qt::Key_S}) {
      QKeyEvent event(QEvent::KeyPress, key, key == Qt::Key_S ? Qt::ControlModifier : Qt::NoModifier);
      QApplication::sendEvent(&shown(name), &event);
      EXPECT_FALSE(event.isAccepted()) << name << ' ' << key;
    }
    QKeyEvent typed(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, QStringLiteral("1"));
    QApplication::sendEvent(&shown(name), &typed);
    EXPECT_TRUE(typed.isAccepted()) << name;
  }
}

TEST_F(QtPanel, TheSpaceBarPushesAButton) {
  int pushed = 0;
  panel->button("Button").Click = [&] { ++pushed; };
  focus(panel->button("Button"));
  press(Qt::Key_Space, " ");
  EXPECT_EQ(pushed, 1);
}

TEST_F(QtPanel, AListIsChosenFromByKeysAndByItsPopup) {
  std::vector<std::string> heard;
  list().Click = [&] { heard.push_back(list().Text()); };
  focus(list());
  press(Qt::Key_Down);
  write("d");
  emit dynamic_cast<QComboBox&>(shown("List")).activated(0);
  EXPECT_THAT(heard, ElementsAre("Uno", "Due", "Uno"));
  expectAgreement();
}

TEST_F(QtPanel, TheFocusLeavesForAFieldOfTheHostAndComesBack) {
  std::vector<std::string> heard;
  box().LostFocus = [&] { heard.emplace_back("lost"); };
  box().GotFocus = [&] { heard.emplace_back("got"); };
  focus(box());
  hostField->setFocus();
  EXPECT_EQ(platform.focused(), nullptr);
  EXPECT_TRUE(hostField->hasFocus());
  line().setFocus();
  EXPECT_TRUE(box().hasFocus());
  EXPECT_THAT(heard, ElementsAre("got", "lost", "got"));
  expectAgreement();
}

TEST_F(QtPanel, AnotherProgramsWindowTakesTheFocusFromNoField) {
  std::vector<std::string> heard;
  box().LostFocus = [&] { heard.emplace_back("lost"); };
  box().GotFocus = [&] { heard.emplace_back("got"); };
  focus(box());
  write("12");
  box().SelStart(1);
  box().SelLength(1);
  platform.settle();
  for (int i = 0; i < 3; ++i) {
    QApplication::setActiveWindow(nullptr);
    QApplication::processEvents();
    EXPECT_TRUE(box().hasFocus());
    QApplication::setActiveWindow(window.get());
    QApplication::processEvents();
  }
  EXPECT_THAT(heard, ElementsAre("got"));
  EXPECT_EQ(line().selectedText(), "2");
  expectAgreement();
}

TEST_F(QtPanel, WhatTheHostOpensForAMomentTakesTheFocusFromNoField) {
  std::vector<std::string> heard;
  box().LostFocus = [&] { heard.emplace_back("lost"); };
  focus(box());
  QWidget popup(nullptr, Qt::Popup);
  auto* field = new QLineEdit(&popup);
  popup.show();
  QApplication::setActiveWindow(&popup);
  field->setFocus();
  QApplication::processEvents();
  EXPECT_TRUE(field->hasFocus());
  EXPECT_TRUE(box().hasFocus());
  EXPECT_THAT(heard, testing::IsEmpty());
}

TEST_F(QtPanel, AnotherWindowOfTheHostTakesTheFocusOnceAndGivesItBackOnce) {
  std::vector<std::string> heard;
  box().LostFocus = [&] { heard.emplace_back("lost"); };
  box().GotFocus = [&] { heard.emplace_back("got"); };
  focus(box());
  QWidget another;
  auto* field = new QLineEdit(&another);
  another.show();
  QApplication::setActiveWindow(&another);
  field->setFocus();
  QApplication::processEvents();
  EXPECT_EQ(platform.focused(), nullptr);
  EXPECT_TRUE(field->hasFocus());
  QApplication::setActiveWindow(window.get());
  line().setFocus();
  QApplication::processEvents();
  EXPECT_THAT(heard, ElementsAre("got", "lost", "got"));
  expectAgreement();
}

TEST_F(QtPanel, AFieldThatWasGivenTheFocusBeforeItsWindowIsShownHasItThere) {
  std::vector<std::string> heard;
  const auto early = another("early");
  early->textBox("Free").GotFocus = [&] { heard.emplace_back("got Free"); };
  early->textBox("B").GotFocus = [&] { heard.emplace_back("got B"); };
  early->textBox("B").LostFocus = [&] { heard.emplace_back("lost B"); };
  QWidget second;
  (new QVBoxLayout(&second))->addWidget(&platform.widgetOf(*early));
  early->textBox("B").SetFocus();
  second.show();
  QApplication::setActiveWindow(&second);
  QApplication::processEvents();
  EXPECT_EQ(QApplication::focusWidget(), platform.widgetOf(static_cast<const toolkit::Widget&>(early->textBox("B"))));
  EXPECT_THAT(heard, ElementsAre("got B"));
  platform.widgetOf(*early).setParent(nullptr);
}

TEST_F(QtPanel, AFieldThatIsSwitchedOffLosesTheFocusToNobody) {
  focus(box());
  box().Enabled(false);
  expectAgreement();
  EXPECT_EQ(platform.focused(), nullptr);
  EXPECT_EQ(QApplication::focusWidget(), nullptr);
}

TEST_F(QtPanel, MayBeDroppedByTheKeyThatItIsTyping) {
  focus(box());
  box().Change = [this] { panel.reset(); };
  write("1");
  EXPECT_EQ(panel, nullptr);
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(window->findChildren<QWidget*>("panel").size(), 0);
}

TEST_F(QtPanel, KeysThatComeAfterItWasDroppedDoNothing) {
  for (const char* name : {"List", "Check", "Button", "A"}) {
    auto dropped = another("dropped");
    QWidget& whole = platform.widgetOf(*dropped);
    window->layout()->addWidget(&whole);
    QApplication::processEvents();
    QWidget& widget = *platform.widgetOf(static_cast<const toolkit::Widget&>(dropped->widget(name)));
    dropped->textBox("Free").KeyPress = [&](std::int16_t&) { dropped.reset(); };
    dropped->textBox("Free").SetFocus();
    QApplication::processEvents();
    write("1");
    ASSERT_EQ(dropped, nullptr);
    QKeyEvent late(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QApplication::sendEvent(&widget, &late);
    EXPECT_THAT(reported(), testing::IsEmpty());
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

TEST_F(QtPanel, StandsOnWithoutTheWindowThatItWasPlacedIn) {
  box().Text("prima");
  window.reset();
  EXPECT_EQ(platform.widgetOf(static_cast<const toolkit::Widget&>(box())), nullptr);
  box().Text("dopo");
  QApplication::processEvents();
  window = std::make_unique<QWidget>();
  platform.widgetOf(*panel).setParent(window.get());
  window->show();
  EXPECT_EQ(line().text(), "dopo");
}

TEST_F(QtPanel, IsPlacedHiddenOrShownAsThePanelSaysBefore) {
  const auto hidden = another("hidden");
  hidden->Visible(false);
  const auto shown = another("shown");
  shown->Visible(false);
  QApplication::processEvents();
  shown->Visible(true);
  QApplication::processEvents();
  EXPECT_FALSE(platform.widgetOf(*shown).isVisible());
  for (const auto* one : {&hidden, &shown}) window->layout()->addWidget(&platform.widgetOf(**one));
  QApplication::processEvents();
  EXPECT_FALSE(platform.widgetOf(*hidden).isVisible());
  EXPECT_TRUE(platform.widgetOf(*shown).isVisible());
}

TEST_F(QtPanel, ALabelOfTwoLinesWrapsItsCaption) {
  const toolkit::Place place = panel->label("Label").place();
  panel->label("Label").place({place.left, place.top, place.width, 3 * place.height});
  panel->label("Label").Caption("Una didascalia molto più lunga del suo posto");
  platform.settle();
  EXPECT_TRUE(dynamic_cast<QLabel&>(shown("Label")).wordWrap());
  EXPECT_EQ(shown("Label").font().stretch(), QFont::Unstretched);
  EXPECT_EQ(shown("Label").toolTip(), QStringLiteral("Spiegazione"));
}

TEST_F(QtPanel, HidesAndShowsAsThePanelSays) {
  panel->Visible(false);
  QApplication::processEvents();
  EXPECT_TRUE(platform.widgetOf(*panel).isHidden());
  panel->Visible(true);
  panel->Enabled(false);
  QApplication::processEvents();
  EXPECT_TRUE(platform.widgetOf(*panel).isVisible());
  EXPECT_FALSE(platform.widgetOf(*panel).isEnabled());
}

}  // namespace
}  // namespace qvn::test
