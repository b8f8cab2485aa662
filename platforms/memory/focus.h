// Who has the focus among all panels and forms of a platform.
#pragma once

#include <vector>

#include "platforms/memory/turns.h"
#include "platforms/operator.h"
#include "qvn/toolkit/widget.h"

namespace qvn::memory {

class Stage;
class Surface;

/// Moves the focus and raises its events. They come in pairs, whatever handlers do in between: a widget that was told
/// of its GotFocus is told of its LostFocus once, before any other is told of its own; where a handler moves the focus
/// on, the move that it interrupted tells nothing more.
class Focus {
 public:
  explicit Focus(Turns& turns) : turns_(turns) {}

  toolkit::Widget* holder() const { return holder_; }
  void watch(Watcher* watcher) { watcher_ = watcher; }
  void show(Stage* stage) { stage_ = stage; }

  /// Gives the widget the focus. "invalid call", naming it, if it cannot hold it. Where handlers fail, the first
  /// failure passes on when both have run.
  void give(toolkit::Widget& widget);
  /// Takes the focus from its holder if that can no longer hold it. A failure of its LostFocus passes on, as does that
  /// of handlers without end, which leave LostFocus no room to run.
  void check();

  /// The same by the operator's hand: failures of handlers go to the containers of their panels.
  void giveByHand(toolkit::Widget& widget);
  void leaveByHand();

  /// Drops what lies on a surface that is going, and raises nothing.
  void forget(const Surface& surface) noexcept;

  /// A form comes to stand before all else: the focus is put aside, without events, and nobody has it.
  void enter(Surface& form);
  /// The form goes, with the focus of its own widgets: who had it before has it again, without events, or loses it by
  /// hand if it can no longer hold it. Nothing if it does not stand.
  void leave(const Surface& form);
  /// The form that stands before all else, or null.
  Surface* front() const { return shown_.empty() ? nullptr : shown_.back().form; }

 private:
  /// A form that stands, and the focus as it was put aside.
  struct Shown {
    Surface* form;
    toolkit::Widget* holder;
    toolkit::Widget* told;
  };

  /// Who is to hear of the widget, or null.
  Watcher* watcherOf(const toolkit::Widget& widget) const;
  /// Tells the stage that another widget has the focus, or none.
  void tell() const;
  template <class OnFailure>
  void move(toolkit::Widget* to, OnFailure onFailure);
  void moveByProgram(toolkit::Widget* to);
  void moveByHand(toolkit::Widget* to);

  Turns& turns_;
  Watcher* watcher_ = nullptr;
  Stage* stage_ = nullptr;
  toolkit::Widget* holder_ = nullptr;
  std::vector<Shown> shown_;
  toolkit::Widget* told_ = nullptr;  // has had its GotFocus and not yet its LostFocus
};

}  // namespace qvn::memory
