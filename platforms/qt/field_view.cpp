#include "platforms/qt/field_view.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <algorithm>
#include <array>
#include <limits>

#include "platforms/qt/colours.h"
#include "platforms/qt/key_events.h"
#include "platforms/qt/screen.h"
#include "platforms/qt/texts.h"

namespace qvn::qt {

namespace {

constexpr std::array kAlignments{Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};

/// What Qt's own field does by these keys changes no text.
constexpr std::array kSelecting{QKeySequence::SelectAll,
                                QKeySequence::Copy,
                                QKeySequence::Deselect,
                                QKeySequence::SelectNextChar,
                                QKeySequence::SelectPreviousChar,
                                QKeySequence::SelectNextWord,
                                QKeySequence::SelectPreviousWord,
                                QKeySequence::SelectStartOfLine,
                                QKeySequence::SelectEndOfLine,
                                QKeySequence::SelectStartOfBlock,
                                QKeySequence::SelectEndOfBlock,
                                QKeySequence::SelectStartOfDocument,
                                QKeySequence::SelectEndOfDocument,
                                QKeySequence::MoveToNextWord,
                                QKeySequence::MoveToPreviousWord};

constexpr memory::Key kDelete{.name = memory::KeyName::Delete};

}  // namespace

FieldView::FieldView(Screen& screen, toolkit::EditableText& model, QWidget& parent)
    : QLineEdit(&parent), View(screen, model) {
  setMaxLength(std::numeric_limits<int>::max());
  setAlignment(kAlignments.at(static_cast<std::size_t>(model.layout().align)) | Qt::AlignVCenter);
  connect(this, &QLineEdit::selectionChanged, this, [this] { takeSelection(); });
  connect(this, &QLineEdit::cursorPositionChanged, this, [this] { takeSelection(); });
  // An assistive program may write the text past all keys: what the field says is put back.
  connect(this, &QLineEdit::textChanged, this, [this] {
    if (byPerson()) onScreen().showAgain(*this);
  });
}

QPalette FieldView::paletteFor(std::uint32_t back, std::uint32_t fore) const {
  return fieldColours(QApplication::palette(), back, fore);
}

void FieldView::showContent() {
  const QString text = shown(field().Text());
  if (this->text() != text) setText(text);
  if (field().hasFocus()) {
    showSelection();
  } else {
    before_.clear();
    after_.clear();
    if (hasSelectedText() || cursorPosition() != 0) setCursorPosition(0);
  }
}

void FieldView::showSelection() {
  const QString text = this->text();
  const int start = unitsBefore(text, field().SelStart());
  const int length = unitsBefore(text, field().SelStart() + field().SelLength()) - start;
  if (length == 0) {
    if (hasSelectedText() || cursorPosition() != start) setCursorPosition(start);
  } else if (selectionStart() != start || selectionLength() != length) {
    setSelection(start, length);
  }
}

void FieldView::takeSelection() {
  if (!byPerson() || !field().hasFocus()) return;
  const QString text = this->text();
  const int from = hasSelectedText() ? selectionStart() : cursorPosition();
  const int to = from + (hasSelectedText() ? static_cast<int>(selectionLength()) : 0);
  const std::int32_t start = charactersBefore(text, from);
  const std::int32_t length = charactersBefore(text, to) - start;
  if (field().SelStart() == start && field().SelLength() == length) return;
  onScreen().act(*subject(), "KeyPress", [&](memory::Hands& hands) { hands.caret(start, length); });
}

template <class Do>
void FieldView::edit(Do act) {
  if (!byPerson()) return;
  const QString before = shown(field().Text());
  act();
  if (subject() == nullptr || !field().hasFocus() || shown(field().Text()) == before) return;
  before_.push_back(before);
  after_.clear();
}

void FieldView::paste(const QString& text, std::optional<std::int32_t> at) {
  edit([&] {
    toolkit::EditableText& target = field();
    onScreen().act(target, "KeyPress", [&](memory::Hands& hands) {
      onScreen().reach(target);
      if (!target.hasFocus()) return;
      if (at) hands.caret(*at, 0);
      hands.paste(utf8(text));
    });
  });
}

void FieldView::pasteByHand() { paste(QApplication::clipboard()->text()); }

void FieldView::cutByHand() {
  if (!byPerson() || !hasSelectedText()) return;
  copy();
  edit([&] { onScreen().press(*subject(), std::array{kDelete}); });
}

void FieldView::undoByHand() { writeAgain(before_, after_); }

void FieldView::redoByHand() { writeAgain(after_, before_); }

void FieldView::writeAgain(std::vector<QString>& texts, std::vector<QString>& others) {
  if (!byPerson() || texts.empty()) return;
  const QString text = texts.back();
  texts.pop_back();
  others.push_back(shown(field().Text()));
  onScreen().act(*subject(), "Change", [&](memory::Hands&) {
    field().Text(utf8(text));
    field().SelStart(charactersBefore(text, text.size()));
  });
}

bool FieldView::event(QEvent* event) {
  if (!isTab(*event)) return QLineEdit::event(event);
  keyPressEvent(static_cast<QKeyEvent*>(event));
  return true;
}

bool FieldView::deleteWord(const QKeyEvent& event) {
  const bool back = event.matches(QKeySequence::DeleteStartOfWord);
  if (!back && !event.matches(QKeySequence::DeleteEndOfWord)) return false;
  if (!hasSelectedText()) back ? cursorWordBackward(true) : cursorWordForward(true);
  if (hasSelectedText()) edit([&] { onScreen().press(*subject(), std::array{kDelete}); });
  return true;
}

void FieldView::keyPressEvent(QKeyEvent* event) {
  if (!byPerson()) return;
  event->accept();
  if (event->matches(QKeySequence::Paste)) return pasteByHand();
  if (event->matches(QKeySequence::Cut)) return cutByHand();
  if (event->matches(QKeySequence::Undo)) return undoByHand();
  if (event->matches(QKeySequence::Redo)) return redoByHand();
  if (std::ranges::any_of(kSelecting, [&](auto selecting) { return event->matches(selecting); })) {
    return QLineEdit::keyPressEvent(event);
  }
  if (deleteWord(*event)) return;
  bool taken = false;
  edit([&] { taken = press(*event); });
  if (!taken) event->ignore();
}

void FieldView::inputMethodEvent(QInputMethodEvent* event) {
  if (!byPerson()) return;
  const bool replaces = event->replacementLength() > 0;
  if (replaces) {
    const int from =
        (hasSelectedText() ? static_cast<int>(selectionStart()) : cursorPosition()) + event->replacementStart();
    const int first = std::clamp(from, 0, static_cast<int>(text().size()));
    setSelection(first, std::clamp(from + event->replacementLength(), first, static_cast<int>(text().size())) - first);
  }
  if ((replaces || !event->preeditString().isEmpty()) && hasSelectedText()) {
    edit([&] { onScreen().press(*subject(), std::array{kDelete}); });
  }
  QInputMethodEvent composing(event->preeditString(), event->attributes());
  QLineEdit::inputMethodEvent(&composing);
  std::vector<memory::Key> keys;
  const auto characters = event->commitString().toUcs4();
  keys.reserve(static_cast<std::size_t>(characters.size()));
  for (const char32_t character : characters) keys.push_back({.character = character});
  if (!keys.empty() && subject() != nullptr) edit([&] { onScreen().press(*subject(), keys); });
  event->accept();
}

void FieldView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::MiddleButton) return QLineEdit::mouseReleaseEvent(event);
  if (byPerson() && QApplication::clipboard()->supportsSelection()) {
    paste(QApplication::clipboard()->text(QClipboard::Selection));
  }
}

bool FieldView::takesDrop(QDropEvent& event) const {
  const bool takes = byPerson() && event.mimeData()->hasText();
  event.setDropAction(Qt::CopyAction);  // where it was, it stays
  event.setAccepted(takes);
  return takes;
}

void FieldView::dragEnterEvent(QDragEnterEvent* event) { takesDrop(*event); }

void FieldView::dragMoveEvent(QDragMoveEvent* event) { takesDrop(*event); }

void FieldView::dropEvent(QDropEvent* event) {
  if (!takesDrop(*event)) return;
  paste(event->mimeData()->text(), charactersBefore(text(), cursorPositionAt(event->position().toPoint())));
}

void FieldView::contextMenuEvent(QContextMenuEvent* event) {
  if (!byPerson()) return;
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto add = [&](const char* caption, bool enabled, auto act) {
    menu->addAction(QString::fromUtf8(caption), this, act)->setEnabled(enabled);
  };
  add("Annulla digitazione", !before_.empty(), [this] { undoByHand(); });
  add("Ripeti digitazione", !after_.empty(), [this] { redoByHand(); });
  menu->addSeparator();
  add("Taglia", hasSelectedText(), [this] { cutByHand(); });
  add("Copia", hasSelectedText(), [this] { copy(); });
  add("Incolla", !QApplication::clipboard()->text().isEmpty(), [this] { pasteByHand(); });
  menu->addSeparator();
  add("Seleziona tutto", !text().isEmpty(), [this] { selectAll(); });
  menu->popup(event->globalPos());
}

void FieldView::focusInEvent(QFocusEvent* /*event*/) {
  QFocusEvent plain(QEvent::FocusIn, Qt::OtherFocusReason);  // for Tab Qt selects of itself what is for the panel to do
  QLineEdit::focusInEvent(&plain);
}

void FieldView::focusOutEvent(QFocusEvent* event) {
  QFocusEvent plain(QEvent::FocusOut, Qt::PopupFocusReason);  // for others Qt lets go of the selection of itself
  QLineEdit::focusOutEvent(event->reason() == Qt::ActiveWindowFocusReason ? event : &plain);
}

}  // namespace qvn::qt
