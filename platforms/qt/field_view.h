// A text box or a date field on the screen.
#pragma once

#include <QLineEdit>
#include <optional>
#include <vector>

#include "platforms/qt/view.h"

namespace qvn::qt {

/// Every way of changing a text by hand, the keys, a paste, a cut, an undo, an input method, goes through the
/// operator's hands, and so past the field's KeyPress.
class FieldView final : public QLineEdit, public View {
 public:
  FieldView(Screen& screen, toolkit::EditableText& model, QWidget& parent);

  QWidget& widget() override { return *this; }
  void pasteByHand();
  void cutByHand();
  /// Writes the text as it was before the last change by hand since the field has the focus.
  void undoByHand();
  /// Writes again what the last undo took away, unless the text was changed by hand since.
  void redoByHand();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  /// A text may be dropped into the field, which takes it as a paste at that place.
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void showContent() override;
  QPalette paletteFor(std::uint32_t back, std::uint32_t fore) const override;
  toolkit::EditableText& field() const { return static_cast<toolkit::EditableText&>(*subject()); }
  void showSelection();
  void takeSelection();
  /// Does what changes the text, and keeps what was there before.
  template <class Do>
  void edit(Do act);
  /// Writes the last of the texts, and keeps what was there before among the others.
  void writeAgain(std::vector<QString>& texts, std::vector<QString>& others);
  /// Puts the caret before the character of that index first, if there is one.
  void paste(const QString& text, std::optional<std::int32_t> at = {});
  bool takesDrop(QDropEvent& event) const;
  bool deleteWord(const QKeyEvent& event);

  std::vector<QString> before_;  ///< what an undo goes back to, the last one first gone to
  std::vector<QString> after_;   ///< what a redo goes on to
};

}  // namespace qvn::qt
