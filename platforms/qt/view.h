// What shows one widget on the screen.
#pragma once

#include <QKeyEvent>
#include <QWidget>
#include <cstdint>

#include "qvn/toolkit/widget.h"

namespace qvn::qt {

class Screen;

/// The half of a Qt widget that belongs to a widget of the library. It shows what that one says and never holds
/// anything of its own: what a person does goes to the operator's hands, and what came of it is shown again.
class View {
 public:
  virtual ~View() = default;
  View(const View&) = delete;
  View& operator=(const View&) = delete;

  /// Whose view it is; null once that one is gone.
  toolkit::Widget* subject() const { return subject_; }
  /// The Qt widget that this is a half of.
  virtual QWidget& widget() = 0;

  /// Shows what the model says now.
  void showSubject();
  /// What it shows the rows of has others now.
  virtual void sourceChanged() {}
  /// The widget goes: nothing that is done here reaches it any more.
  void letGo() { subject_ = nullptr; }
  /// After the desktop's colours or fonts have changed.
  void forgetLook() { lookShown_ = false; }

 protected:
  View(Screen& screen, toolkit::Widget& model) : screen_(screen), subject_(&model) {}

  Screen& onScreen() const { return screen_; }
  /// False while the screen shows what the model says, and once the model is gone.
  bool byPerson() const;
  /// Gives the event's keys to the hands; false if it has none.
  bool press(const QKeyEvent& event);

 private:
  /// Shows what only widgets of its kind have.
  virtual void showContent() = 0;
  virtual QPalette paletteFor(std::uint32_t back, std::uint32_t fore) const;

  friend class Screen;

  Screen& screen_;
  toolkit::Widget* subject_;
  toolkit::Place place_;
  std::uint32_t back_ = 0;
  std::uint32_t fore_ = 0;
  bool lookShown_ = false;
  bool stale_ = false;  // the screen has it among those to be shown anew
};

/// The view of a Qt widget: the widget itself if it is one, or else the nearest around it; null if there is none.
View* viewAround(QWidget* widget);

}  // namespace qvn::qt
