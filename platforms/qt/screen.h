// All that stands on the screen for the widgets in memory.
#pragma once

#include <QObject>
#include <QPointer>
#include <span>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platforms/memory/by_hand.h"
#include "platforms/memory/platform.h"
#include "platforms/qt/panel_widget.h"

class QEventLoop;

namespace qvn::qt {

/// Shows what has changed together and once, when the person's hand has finished or the event loop comes round; and
/// brings what a person does to the hands.
class Screen final : public memory::Stage {
 public:
  explicit Screen(memory::Platform& platform);
  ~Screen() override;

  void made(memory::Surface& surface) override;
  void dropped(const memory::Surface& surface) noexcept override;
  void changed(const toolkit::Widget& widget) override;
  void changed(const memory::Surface& surface) override;
  void focusMoved() override;
  void changed(const memory::Form& form) override;
  void shown(memory::Form& form) override;
  void hidden(const memory::Form& form) override;
  void refresh(const memory::Form& form) override;
  void waitAt(const memory::Form& form, const bool& over) override;

  /// The panel's widget, made anew if what it was placed in has taken it along.
  PanelWidget& widgetOf(memory::Surface& surface);
  View* viewOf(const toolkit::Widget& widget) const;
  /// The widget goes with what it was placed in.
  void forget(const PanelWidget& panel) noexcept;

  bool panelsAreWindows() const { return panelsAreWindows_; }
  void panelsAreWindows(bool windows) { panelsAreWindows_ = windows; }
  void waits(bool waits) { waits_ = waits; }

  /// Shows what has changed.
  void settle();
  /// Whether it is being shown, and what Qt tells of its widgets is no person's doing.
  bool settling() const { return settling_; }
  void markStale(View& view);
  /// Shows the widget as its model says, whatever Qt has made of it.
  void showAgain(View& view);

  /// Does what a person started at the widget, and shows what came of it. Nothing leaves as an exception: what fails
  /// goes to the container, in the name of the event.
  template <class Do>
  void act(toolkit::Widget& widget, std::string_view event, Do started);
  /// Presses keys at the widget, which takes the focus if it has not got it.
  void press(toolkit::Widget& widget, std::span<const memory::Key> keys);
  void pressAtForm(memory::Form& form, std::span<const memory::Key> keys);
  void closeByFrame(memory::Form& form);
  /// Gives the widget the focus by hand; nothing where it cannot take it.
  void reach(toolkit::Widget& widget);

 private:
  /// While a person's hand is at work.
  class Acting {
   public:
    explicit Acting(Screen& screen) : screen_(screen) { ++screen_.acting_; }
    ~Acting() { --screen_.acting_; }
    Acting(const Acting&) = delete;
    Acting& operator=(const Acting&) = delete;

   private:
    Screen& screen_;
  };
  struct Wait {
    const memory::Form* form;
    QEventLoop* loop;
  };

  void schedule();
  void showFocus();
  void focusWentTo(QWidget* now);
  FormWindow* windowOf(const memory::Form& form) const;
  /// Lets Tab leave a panel at its last stop, and Shift+Tab at its first. False if the key does not lead out.
  bool leavePanel(const toolkit::Widget& from, const memory::Key& key);
  void discard(PanelWidget& panel) noexcept;

  memory::Platform& platform_;
  QObject receiver_;
  std::unordered_map<const toolkit::Surface*, PanelWidget*> panels_;
  std::vector<View*> stale_;
  std::vector<const memory::Surface*> staleFlags_;
  const toolkit::Widget* marked_ = nullptr;  // the last that changed, if it is not shown yet: rows come by the thousand
  std::vector<Wait> waiting_;
  const toolkit::Widget* holderShown_ = nullptr;
  int acting_ = 0;
  bool settling_ = false;
  bool scheduled_ = false;
  bool panelsAreWindows_ = false;
  bool waits_ = true;
};

template <class Do>
void Screen::act(toolkit::Widget& widget, std::string_view event, Do started) {
  const Acting acting(*this);
  {
    const memory::Turns::Keep keep(platform_.turns());
    memory::Surface& surface = memory::surfaceOf(widget);
    try {
      started(platform_.hands());
    } catch (const Failure& failure) {
      surface.report(widget, event, failure);
    } catch (const std::exception& other) {
      surface.report(widget, event, Failure(FailureKind::InvalidCall, other.what()));
    } catch (...) {
      surface.report(widget, event,
                     Failure(FailureKind::InvalidCall, "a handler has failed with what tells no reason"));
    }
  }
  settle();
}

}  // namespace qvn::qt
