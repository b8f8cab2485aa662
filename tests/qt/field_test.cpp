// A field under a person's hands.
#include <QAccessible>
#include <QAccessibleEditableTextInterface>
#include <QClipboard>
#include <QImage>
#include <QInputMethodEvent>

#include "tests/qt/on_screen.h"

namespace qvn::test {
namespace {

class QtField : public OnScreen {
 public:
  QtField() { focus(box()); }
  void digitsOnly() {
    box().KeyPress = [this](std::int16_t& code) {
      if (code >= 32 && (code < '0' || code > '9')) {
        code = 0;
        platform.beep();
      }
    };
  }
  void select(std::int32_t start, std::int32_t length) {
    box().SelStart(start);
    box().SelLength(length);
    QApplication::processEvents();
  }
  void paste(const QString& text) {
    QApplication::clipboard()->setText(text);
    press(Qt::Key_V, "\x16", Qt::ControlModifier);
  }
};

TEST_F(QtField, TakesTheKeysThatItsFilterLeaves) {
  digitsOnly();
  write("1a2");
  EXPECT_EQ(box().Text(), "12");
  EXPECT_EQ(platform.beeps(), 1);
  expectAgreement();
}

TEST_F(QtField, EditsInTheMiddle) {
  write("12345");
  press(Qt::Key_Left);
  press(Qt::Key_Left);
  press(Qt::Key_Backspace);
  press(Qt::Key_Home);
  press(Qt::Key_Delete);
  write("9");
  EXPECT_EQ(box().Text(), "9245");
  expectAgreement();
}

TEST_F(QtField, ShowsWhatAHandlerMakesOfTheText) {
  box().Change = [this] {
    if (box().Text() == "ab") box().Text("scritto");
  };
  write("ab");
  EXPECT_EQ(line().text(), "scritto");
  expectAgreement();
}

TEST_F(QtField, SelectsByKeysAndReplacesWhatIsSelected) {
  write("12345");
  press(Qt::Key_Left, {}, Qt::ShiftModifier);
  press(Qt::Key_Left, {}, Qt::ShiftModifier);
  EXPECT_EQ(box().SelStart(), 3);
  EXPECT_EQ(box().SelLength(), 2);
  write("0");
  EXPECT_EQ(box().Text(), "1230");
  press(Qt::Key_A, "\x01", Qt::ControlModifier);
  EXPECT_EQ(box().SelLength(), 4);
  press(Qt::Key_Backspace, {}, Qt::ControlModifier);
  EXPECT_EQ(box().Text(), "");
  expectAgreement();
}

TEST_F(QtField, CountsCharactersAndNotUnits) {
  box().Text("a😀b");
  select(1, 1);
  EXPECT_EQ(line().selectedText(), QString::fromUtf8("😀"));
  press(Qt::Key_End, {}, Qt::ShiftModifier);
  EXPECT_EQ(box().SelStart() + box().SelLength(), 3);
  expectAgreement();
}

TEST_F(QtField, APasteStopsAtTheFirstCharacterThatIsRefused) {
  digitsOnly();
  paste("12-34");
  EXPECT_EQ(box().Text(), "12");
  expectAgreement();
}

TEST_F(QtField, CopiesWhatIsSelected) {
  write("12345");
  select(1, 3);
  QApplication::clipboard()->clear();
  press(Qt::Key_C, "\x03", Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "234");
  EXPECT_EQ(box().Text(), "12345");
}

TEST_F(QtField, ShowsTheBeginningOfALongTextWhereItHasNoFocus) {
  focus(box("B"));
  box().Text(std::string(200, 'x'));
  expectAgreement();
  ASSERT_EQ(line().text().size(), 200);
  EXPECT_EQ(line().cursorPosition(), 0);
  focus(box());
  select(200, 0);
  EXPECT_EQ(line().cursorPosition(), 200);
  focus(box("B"));
  EXPECT_EQ(line().cursorPosition(), 0);
  expectAgreement();
}

TEST_F(QtField, CutsAndUndoes) {
  write("12345");
  select(1, 3);
  press(Qt::Key_X, "\x18", Qt::ControlModifier);
  EXPECT_EQ(box().Text(), "15");
  EXPECT_EQ(QApplication::clipboard()->text(), "234");
  int changes = 0;
  box().Change = [&] { ++changes; };
  press(Qt::Key_Z, "\x1a", Qt::ControlModifier);
  EXPECT_EQ(box().Text(), "12345");
  EXPECT_EQ(box().SelStart(), 5);
  press(Qt::Key_Z, "\x1a", Qt::ControlModifier);
  EXPECT_EQ(box().Text(), "1234");
  EXPECT_EQ(changes, 2);
  expectAgreement();
}

TEST_F(QtField, WritesAgainWhatWasUndone) {
  const auto undo = [] { press(Qt::Key_Z, "\x1a", Qt::ControlModifier); };
  const auto redo = [] { press(Qt::Key_Z, "\x1a", Qt::ControlModifier | Qt::ShiftModifier); };
  write("123");
  redo();
  EXPECT_EQ(box().Text(), "123");
  undo();
  undo();
  EXPECT_EQ(box().Text(), "1");
  int changes = 0;
  box().Change = [&] { ++changes; };
  redo();
  EXPECT_EQ(box().Text(), "12");
  EXPECT_EQ(box().SelStart(), 2);
  redo();
  redo();
  EXPECT_EQ(box().Text(), "123");
  EXPECT_EQ(changes, 2);
  undo();
  EXPECT_EQ(box().Text(), "12");
  write("7");
  redo();
  EXPECT_EQ(box().Text(), "127") << "what was typed since stays";
  undo();
  undo();
  EXPECT_EQ(box().Text(), "1");
  expectAgreement();
}

TEST_F(QtField, UndoesNothingThatWasWrittenBeforeItHadTheFocus) {
  write("1");
  focus(box("B"));
  focus(box());
  press(Qt::Key_Z, "\x1a", Qt::ControlModifier);
  EXPECT_EQ(box().Text(), "1");
}

TEST_F(QtField, WritesNothingAgainThatWasUndoneBeforeItHadTheFocus) {
  write("1");
  press(Qt::Key_Z, "\x1a", Qt::ControlModifier);
  focus(box("B"));
  focus(box());
  press(Qt::Key_Z, "\x1a", Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(box().Text(), "");
}

TEST_F(QtField, UndoesNothingThatHasSentTheFocusOn) {
  box().Change = [this] { box("B").SetFocus(); };
  write("1");
  focus(box());
  press(Qt::Key_Z, "\x1a", Qt::ControlModifier);
  EXPECT_EQ(box().Text(), "1");
}

TEST_F(QtField, CutsNothingWhereNothingIsSelected) {
  write("123");
  press(Qt::Key_Home);
  press(Qt::Key_X, "\x18", Qt::ControlModifier);
  EXPECT_EQ(box().Text(), "123");
}

TEST_F(QtField, DeletesTheWordBeforeAndBehindTheCaret) {
  write("uno due tre");
  select(7, 0);
  press(Qt::Key_Backspace, {}, Qt::ControlModifier);
  EXPECT_EQ(box().Text(), "uno  tre");
  press(Qt::Key_Delete, {}, Qt::ControlModifier);
  EXPECT_EQ(box().Text(), "uno tre");
  press(Qt::Key_Delete, {}, Qt::ControlModifier);
  EXPECT_EQ(box().Text(), "uno ");
  expectAgreement();
}

TEST_F(QtField, ShowsASelectionOnlyWithTheFocus) {
  write("12345");
  select(1, 3);
  EXPECT_EQ(line().selectedText(), "234");
  focus(box("B"));
  EXPECT_FALSE(line().hasSelectedText());
}

TEST_F(QtField, WhatIsSelectedWithoutTheFocusSelectsInNoOther) {
  box("B").Text("abcdef");
  write("12345");
  select(1, 3);
  line("B").setSelection(0, 5);
  EXPECT_EQ(box().SelStart(), 1);
  EXPECT_EQ(box().SelLength(), 3);
  expectAgreement();
}

TEST_F(QtField, KeepsItsSelectionWhileItsWindowIsHidden) {
  write("12345");
  select(1, 3);
  window->hide();
  QApplication::processEvents();
  window->show();
  comeBack();
  EXPECT_EQ(box().SelLength(), 3);
  expectAgreement();
}

TEST_F(QtField, AnInputMethodReplacesWhatStandsBeforeTheCaret) {
  write("caffe");
  QInputMethodEvent composed;
  composed.setCommitString(QStringLiteral("è"), -1, 1);
  QApplication::sendEvent(&line(), &composed);
  EXPECT_EQ(box().Text(), "caffè");
  expectAgreement();
  press(Qt::Key_Left);
  press(Qt::Key_Left);
  QInputMethodEvent beyond;
  beyond.setCommitString(QStringLiteral("b"), -9, 7);
  QApplication::sendEvent(&line(), &beyond);
  EXPECT_EQ(box().Text(), "baffè");
  QInputMethodEvent around;
  around.setCommitString(QStringLiteral("c"), -1, 2);
  QApplication::sendEvent(&line(), &around);
  EXPECT_EQ(box().Text(), "cffè");
  expectAgreement();
}

TEST_F(QtField, WhatIsComposedReplacesWhatIsSelected) {
  write("12345");
  select(1, 3);
  QInputMethodEvent composing(QStringLiteral("`"), {});
  QApplication::sendEvent(&line(), &composing);
  EXPECT_EQ(box().Text(), "15");
}

TEST_F(QtField, WhatIsComposedAtOnceReplacesWhatIsSelectedInOneChange) {
  write("12345");
  select(1, 3);
  std::vector<std::string> seen;
  box().Change = [&] { seen.push_back(box().Text()); };
  QInputMethodEvent composed;
  composed.setCommitString(QStringLiteral("è"));
  QApplication::sendEvent(&line(), &composed);
  EXPECT_THAT(seen, ElementsAre("1è5"));
}

TEST_F(QtField, WhatIsComposedEndsWhereAHandlerTakesTheFocusAway) {
  box().Change = [this] { box().Enabled(false); };
  QInputMethodEvent composed;
  composed.setCommitString(QStringLiteral("ab"));
  QApplication::sendEvent(&line(), &composed);
  EXPECT_EQ(box().Text(), "a");
  EXPECT_THAT(reported(), IsEmpty());
}

TEST_F(QtField, NoKeyGoesWhereAHandlerSendsTheFocusOn) {
  focus(box("Free"));
  box("B").Text("");
  box().GotFocus = [this] { box("B").SetFocus(); };
  QInputMethodEvent composed;
  composed.setCommitString(QStringLiteral("ab"));
  QApplication::sendEvent(&line(), &composed);
  EXPECT_TRUE(box("B").hasFocus());
  EXPECT_EQ(box().Text() + box("B").Text() + box("Free").Text(), "");
}

TEST_F(QtField, WhatIsComposedIsSeenBeforeItIsTyped) {
  write("caff");
  const QImage before = line().grab().toImage();
  QInputMethodEvent composing(QStringLiteral("wwww"), {});
  QApplication::sendEvent(&line(), &composing);
  EXPECT_EQ(box().Text(), "caff");
  EXPECT_NE(line().grab().toImage(), before);
}

TEST_F(QtField, WhatAnInputMethodComposesGoesPastTheFilter) {
  QInputMethodEvent composing("`", {});
  QApplication::sendEvent(&line(), &composing);
  EXPECT_EQ(box().Text(), "");
  QInputMethodEvent composed;
  composed.setCommitString("è");
  QApplication::sendEvent(&line(), &composed);
  EXPECT_EQ(box().Text(), "è");
  digitsOnly();
  QInputMethodEvent refused;
  refused.setCommitString("ù1");
  QApplication::sendEvent(&line(), &refused);
  EXPECT_EQ(box().Text(), "è1");
  expectAgreement();
}

TEST_F(QtField, TheKeypadsDecimalKeyTypesAComma) {
  write("1");
  press(Qt::Key_Period, ".", Qt::KeypadModifier);
  press(Qt::Key_5, "5", Qt::KeypadModifier);
  press(Qt::Key_Period, ".");
  EXPECT_EQ(box().Text(), "1,5.");
  expectAgreement();
}

TEST_F(QtField, AMenuShortcutOfTheHostIsNoKeyOfTheField) {
  write("1");
  press(Qt::Key_S, "\x13", Qt::ControlModifier);
  press(Qt::Key_F, "f", Qt::AltModifier);
  press(Qt::Key_F5);
  EXPECT_EQ(box().Text(), "1");
  expectAgreement();
}

TEST_F(QtField, TheMouseSetsTheCaretAndSelects) {
  write("12345");
  clickAt(line(), QPointF(1, line().height() / 2.0));
  EXPECT_EQ(box().SelStart(), 0);
  QMouseEvent twice(QEvent::MouseButtonDblClick, QPointF(8, line().height() / 2.0), QPointF(), Qt::LeftButton,
                    Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&line(), &twice);
  EXPECT_EQ(box().SelLength(), 5);
  expectAgreement();
}

TEST_F(QtField, WhatComesPastTheHandsIsPutBack) {
  write("12");
  line().insert("34");
  QApplication::processEvents();
  EXPECT_EQ(box().Text(), "12");
  expectAgreement();
}

TEST_F(QtField, WhatAnAssistiveProgramWritesIsPutBack) {
  write("12");
  QAccessibleInterface& spoken = *QAccessible::queryAccessibleInterface(&line());
  spoken.setText(QAccessible::Value, QStringLiteral("34"));
  EXPECT_EQ(box().Text(), "12");
  expectAgreement();
  ASSERT_NE(spoken.editableTextInterface(), nullptr);
  spoken.editableTextInterface()->insertText(0, QStringLiteral("9"));
  EXPECT_EQ(box().Text(), "12");
  expectAgreement();
}

TEST_F(QtField, AFailingHandlerGoesToTheContainerAndTheKeysGoOn) {
  box().Change = [this] {
    if (box().Text() == "1") throw Failure(FailureKind::Overflow, "troppo");
    if (box().Text() == "12") throw std::runtime_error("altro");
    if (box().Text() == "123") throw 5;
  };
  write("1234");
  EXPECT_EQ(box().Text(), "1234");
  EXPECT_THAT(reported(), testing::ElementsAre("A Change: troppo", "A KeyPress: altro",
                                               "A KeyPress: a handler has failed with what tells no reason"));
  expectAgreement();
}

TEST_F(QtField, ADateIsTypedOverItsMask) {
  toolkit::DateControl& date = panel->date("Date");
  focus(date);
  write("15x1");
  EXPECT_EQ(date.Text(), "15/1#/####");
  press(Qt::Key_Backspace, "\b");
  EXPECT_EQ(date.Text(), "15/##/####");
  press(Qt::Key_A, "\x01", Qt::ControlModifier);
  press(Qt::Key_X, "\x18", Qt::ControlModifier);
  EXPECT_EQ(date.Text(), "##/##/####");
  expectAgreement();
  press(Qt::Key_Z, "\x1a", Qt::ControlModifier);
  EXPECT_EQ(date.Text(), "15/##/####");
  press(Qt::Key_A, "\x01", Qt::ControlModifier);
  paste("5/3/2026");
  EXPECT_EQ(date.Text(), "05/03/2026");
  expectAgreement();
}

}  // namespace
}  // namespace qvn::test
