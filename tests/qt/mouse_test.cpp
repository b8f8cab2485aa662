// The mouse on the fields of a panel.
#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QMenu>
#include <QWheelEvent>

#include "tests/qt/on_screen.h"

namespace qvn::test {
namespace {

class QtMouse : public OnScreen {
 public:
  QtMouse() {
    box().KeyPress = [this](std::int16_t& code) {
      if (code >= '0' && code <= '9') {
        code = 0;
        platform.beep();
      }
    };
  }

  /// A place in the field's line, before the character of that index.
  QPointF before(int character) {
    QPoint place(0, line().height() / 2);
    while (line().cursorPositionAt(place) < character && place.x() < line().width()) place.rx() += 1;
    return place;
  }

  /// Asks for the menu of the right button, and clicks the entry of that name; false if it is not there or is off.
  bool choose(const QString& entry) {
    QContextMenuEvent asks(QContextMenuEvent::Mouse, QPoint(3, 3), line().mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&line(), &asks);
    auto* menu = line().findChild<QMenu*>();
    if (menu == nullptr) return false;
    bool chosen = false;
    for (QAction* action : menu->actions()) {
      if (action->text() != entry || !action->isEnabled()) continue;
      action->trigger();
      chosen = true;
    }
    menu->close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return chosen;
  }
};

TEST_F(QtMouse, DraggingSelectsAndTakesNoTextOut) {
  box().Text("uno due");
  platform.settle();
  drag(line(), before(0), before(3));
  EXPECT_TRUE(box().hasFocus());
  EXPECT_EQ(box().SelStart(), 0);
  EXPECT_EQ(box().SelLength(), 3);
  drag(line(), before(1), before(5));
  EXPECT_EQ(box().Text(), "uno due");
  EXPECT_EQ(box().SelStart(), 1);
  EXPECT_EQ(box().SelLength(), 4);
  expectAgreement();
}

TEST_F(QtMouse, ADoubleClickSelectsTheWord) {
  box().Text("uno due tre");
  platform.settle();
  doubleClickAt(line(), before(5));
  EXPECT_EQ(box().SelStart(), 4);
  EXPECT_EQ(line().selectedText().trimmed(), "due");
  write("x");
  EXPECT_TRUE(box().Text() == "uno x tre" || box().Text() == "uno xtre") << box().Text();
  expectAgreement();
}

TEST_F(QtMouse, ATextThatIsDroppedGoesPastTheFilter) {
  box().Text("uno");
  focus(box("B"));
  std::vector<std::string> heard;
  box("B").LostFocus = [&] { heard.emplace_back("lost B"); };
  box().GotFocus = [&] {
    heard.emplace_back("got A");
    box().SelLength(3);
  };
  EXPECT_TRUE(drop(line(), "xy4z", before(2)));
  EXPECT_EQ(box().Text(), "unxyo");
  EXPECT_EQ(platform.beeps(), 1);
  EXPECT_THAT(heard, ElementsAre("lost B", "got A"));
  expectAgreement();
  press(Qt::Key_Z, "\x1a", Qt::ControlModifier);
  EXPECT_EQ(box().Text(), "uno");
}

TEST_F(QtMouse, WhatIsNoTextOrComesToAFieldThatIsOffIsNotTaken) {
  QMimeData colour;
  colour.setColorData(QColor(Qt::red));
  QDragEnterEvent enter(QPoint(2, 2), Qt::CopyAction, &colour, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&line(), &enter);
  EXPECT_FALSE(enter.isAccepted());
  EXPECT_FALSE(drop(line("Off"), "xyz", QPointF(2, 2)));
  EXPECT_EQ(box("Off").Text(), "");
}

TEST_F(QtMouse, ATextThatIsToBeMovedIsCopied) {
  QMimeData text;
  text.setText("xyz");
  QDragEnterEvent enter(QPoint(2, 2), Qt::MoveAction, &text, Qt::LeftButton, Qt::ShiftModifier);
  QApplication::sendEvent(&line(), &enter);
  QDropEvent moved(QPointF(2, 2), Qt::CopyAction | Qt::MoveAction, &text, Qt::LeftButton, Qt::ShiftModifier);
  moved.setDropAction(Qt::MoveAction);
  QApplication::sendEvent(&line(), &moved);
  EXPECT_EQ(box().Text(), "xyz");
  EXPECT_EQ(moved.dropAction(), Qt::CopyAction);
}

TEST_F(QtMouse, NothingIsDroppedWhereTheFocusIsSentOn) {
  box("B").Text("");
  box().GotFocus = [this] { box("B").SetFocus(); };
  drop(line(), "xyz", QPointF(2, 2));
  EXPECT_EQ(box().Text(), "");
  EXPECT_EQ(box("B").Text(), "");
  expectAgreement();
}

TEST_F(QtMouse, TheMenuOfTheRightButtonKeepsTheFieldsRules) {
  focus(box());
  QApplication::clipboard()->clear();
  EXPECT_FALSE(choose("Incolla"));
  EXPECT_FALSE(choose("Seleziona tutto"));
  QApplication::clipboard()->setText("ab1c");
  EXPECT_FALSE(choose("Annulla digitazione"));
  EXPECT_FALSE(choose("Ripeti digitazione"));
  EXPECT_FALSE(choose("Taglia"));
  EXPECT_TRUE(choose("Incolla"));
  EXPECT_EQ(box().Text(), "ab");
  EXPECT_FALSE(choose("Copia"));
  EXPECT_EQ(platform.beeps(), 1);
  EXPECT_TRUE(choose("Seleziona tutto"));
  EXPECT_EQ(box().SelLength(), 2);
  EXPECT_TRUE(choose("Copia"));
  EXPECT_EQ(QApplication::clipboard()->text(), "ab");
  EXPECT_TRUE(choose("Taglia"));
  EXPECT_EQ(box().Text(), "");
  EXPECT_TRUE(choose("Annulla digitazione"));
  EXPECT_EQ(box().Text(), "ab");
  EXPECT_TRUE(choose("Ripeti digitazione"));
  EXPECT_EQ(box().Text(), "");
  comeBack();
  expectAgreement();
}

TEST_F(QtMouse, TheMenuTakesTheFocusFromNoField) {
  focus(box());
  std::vector<std::string> heard;
  box().LostFocus = [&] { heard.emplace_back("lost"); };
  box().GotFocus = [&] { heard.emplace_back("got"); };
  choose("Seleziona tutto");
  QApplication::processEvents();
  EXPECT_THAT(heard, testing::IsEmpty());
  EXPECT_TRUE(box().hasFocus());
}

TEST_F(QtMouse, TheWheelOverAClosedListPicksNothingAndRollsOn) {
  list().ListIndex(1);
  focus(list());
  int clicks = 0;
  list().Click = [&] { ++clicks; };
  const QPointF middle(5, 5);
  QWheelEvent wheel(middle, shown("List").mapToGlobal(middle), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(&shown("List"), &wheel);
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(list().ListIndex(), 1);
  EXPECT_FALSE(wheel.isAccepted());
  expectAgreement();
}

class QtClosedList : public OnScreen {
 public:
  QtClosedList() {
    focus(list());
    list().Click = [this] { heard.push_back("pick " + list().Text()); };
    list().LostFocus = [this] { heard.emplace_back("lost"); };
    list().GotFocus = [this] { heard.emplace_back("got"); };
  }
  ~QtClosedList() override { dynamic_cast<QComboBox&>(shown("List")).hidePopup(); }

  QAbstractItemView& opened() {
    press(Qt::Key_F4);
    QApplication::processEvents();
    return *dynamic_cast<QComboBox&>(shown("List")).view();
  }
  static void pressAt(QWidget& widget, int key) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&widget, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier);
    QApplication::sendEvent(&widget, &up);
  }

  std::vector<std::string> heard;
};

TEST_F(QtClosedList, IsOpenedByAltWithAnArrowToo) {
  auto& box = dynamic_cast<QComboBox&>(shown("List"));
  for (const int arrow : {Qt::Key_Down, Qt::Key_Up}) {
    press(arrow, {}, Qt::AltModifier);
    EXPECT_TRUE(box.view()->isVisible()) << arrow;
    box.hidePopup();
  }
  EXPECT_THAT(heard, testing::IsEmpty());
}

TEST_F(QtClosedList, IsPickedFromItsPopupByKeys) {
  QAbstractItemView& rows = opened();
  EXPECT_TRUE(rows.isVisible());
  pressAt(rows, Qt::Key_Down);
  pressAt(rows, Qt::Key_Down);
  pressAt(rows, Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_FALSE(rows.isVisible());
  EXPECT_THAT(heard, ElementsAre("pick Dodici"));
  expectAgreement();
}

TEST_F(QtClosedList, IsPickedFromItsPopupByTheMouse) {
  QAbstractItemView& rows = opened();
  const QPointF where(5, rows.visualRect(rows.model()->index(1, 0)).center().y());
  QWidget& sheet = *rows.viewport();
  QMouseEvent move(QEvent::MouseMove, where, sheet.mapToGlobal(where), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(&sheet, &move);
  QMouseEvent down(QEvent::MouseButtonPress, where, sheet.mapToGlobal(where), Qt::LeftButton, Qt::LeftButton,
                   Qt::NoModifier);
  QApplication::sendEvent(&sheet, &down);
  QMouseEvent up(QEvent::MouseButtonRelease, where, sheet.mapToGlobal(where), Qt::LeftButton, Qt::NoButton,
                 Qt::NoModifier);
  QApplication::sendEvent(&sheet, &up);
  QApplication::processEvents();
  EXPECT_THAT(heard, ElementsAre("pick Due"));
  EXPECT_TRUE(list().hasFocus());
  comeBack();
  expectAgreement();
}

TEST_F(QtClosedList, AnItemPickedAgainIsToldAgain) {
  list().ListIndex(1);
  platform.settle();
  heard.clear();
  pressAt(opened(), Qt::Key_Return);
  EXPECT_THAT(heard, ElementsAre("pick Due"));
}

TEST_F(QtClosedList, AnItemThatIsNotTakenIsShownNoMore) {
  focus(box());
  heard.clear();
  list().GotFocus = [this] { box("B").SetFocus(); };
  auto& shownList = dynamic_cast<QComboBox&>(shown("List"));
  shownList.setCurrentIndex(1);
  emit shownList.activated(1);
  EXPECT_EQ(shownList.currentIndex(), -1);
  EXPECT_THAT(heard, testing::Not(testing::Contains("pick Due")));
  expectAgreement();
}

TEST_F(QtClosedList, ALeftPopupPicksNothing) {
  QAbstractItemView& rows = opened();
  pressAt(rows, Qt::Key_Down);
  pressAt(rows, Qt::Key_Escape);
  QApplication::processEvents();
  EXPECT_FALSE(rows.isVisible());
  EXPECT_THAT(heard, testing::IsEmpty());
  EXPECT_EQ(list().ListIndex(), -1);
  expectAgreement();
}

TEST_F(QtClosedList, AHandlerMayChangeTheItemsUnderTheHand) {
  list().Click = [this] { list().Clear(); };
  pressAt(opened(), Qt::Key_Down);
  pressAt(*dynamic_cast<QComboBox&>(shown("List")).view(), Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_EQ(list().ListCount(), 0);
  expectAgreement();
}

}  // namespace
}  // namespace qvn::test
