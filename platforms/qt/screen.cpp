#include "platforms/qt/screen.h"

#include <QApplication>
#include <QEventLoop>
#include <QThread>
#include <algorithm>

#include "platforms/memory/usable.h"

namespace qvn::qt {

Screen::Screen(memory::Platform& platform) : platform_(platform) {
  QObject::connect(qApp, &QApplication::focusChanged, &receiver_, [this](QWidget* before, QWidget* now) {
    const toolkit::Widget* holder = platform_.focused();
    View* view = holder == nullptr || holder == holderShown_ ? nullptr : viewOf(*holder);
    // A window that comes up is given a focus by Qt, unless it is shown which it has.
    const bool comesUp = now != nullptr && (before == nullptr || before->window() != now->window());
    if (comesUp && view != nullptr && view->widget().window() == now->window()) return settle();
    focusWentTo(now);
  });
}

Screen::~Screen() {
  while (!panels_.empty()) dropped(static_cast<const memory::Surface&>(*panels_.begin()->first));
}

void Screen::made(memory::Surface& surface) { widgetOf(surface); }

PanelWidget& Screen::widgetOf(memory::Surface& surface) {
  if (const auto found = panels_.find(&surface); found != panels_.end()) return *found->second;
  const bool before = std::exchange(settling_, true);
  auto* panel = new PanelWidget(*this, surface);  // the host's, or discarded with the surface
  settling_ = before;
  panels_.emplace(&surface, panel);
  return *panel;
}

View* Screen::viewOf(const toolkit::Widget& widget) const {
  const auto panel = panels_.find(&widget.owner());
  return panel == panels_.end() ? nullptr : panel->second->viewOf(widget);
}

void Screen::dropped(const memory::Surface& surface) noexcept {
  const auto found = panels_.find(&surface);
  if (found == panels_.end()) return;
  PanelWidget& panel = *found->second;
  forget(panel);
  panel.detach();
  discard(panel);
}

void Screen::forget(const PanelWidget& panel) noexcept {
  marked_ = nullptr;
  for (const auto& [widget, view] : panel.views()) {
    std::ranges::replace(stale_, view, nullptr);
    if (holderShown_ == widget) holderShown_ = nullptr;
  }
  std::erase(staleFlags_, panel.surface());
  panels_.erase(panel.surface());
}

void Screen::discard(PanelWidget& panel) noexcept {
  QWidget& outermost = panel.formWindow() != nullptr ? static_cast<QWidget&>(*panel.formWindow()) : panel;
  outermost.hide();
  // Qt may stand on it at the moment.
  if (acting_ > 0 || settling_ || QThread::currentThread()->loopLevel() > 0) {
    outermost.deleteLater();
  } else {
    delete &outermost;
  }
}

void Screen::changed(const toolkit::Widget& widget) {
  if (&widget == marked_) return;
  const auto found = panels_.find(&widget.owner());
  if (found == panels_.end()) return;
  const PanelWidget& panel = *found->second;
  if (View* view = panel.viewOf(widget)) markStale(*view);
  if (widget.Kind() == toolkit::WidgetKind::DataControl) {
    for (const auto& [other, view] : panel.views()) {
      if (other->Kind() != toolkit::WidgetKind::DataGrid) continue;
      view->sourceChanged();
      markStale(*view);
    }
  }
  marked_ = &widget;
}

void Screen::changed(const memory::Surface& surface) {
  staleFlags_.push_back(&surface);
  schedule();
}

void Screen::focusMoved() { schedule(); }

void Screen::changed(const memory::Form& form) {
  if (FormWindow* window = windowOf(form)) window->showForm();
}

FormWindow* Screen::windowOf(const memory::Form& form) const {
  for (const auto& [surface, panel] : panels_) {
    FormWindow* window = panel->formWindow();
    if (window != nullptr && window->form() == &form) return window;
  }
  return nullptr;
}

void Screen::shown(memory::Form& form) {
  PanelWidget& inside = widgetOf(static_cast<memory::Surface&>(form.surface()));
  const bool before = std::exchange(settling_, true);
  if (inside.formWindow() == nullptr) inside.formWindow(*new FormWindow(*this, inside));
  inside.formWindow()->stand(form);
  settling_ = before;
  settle();
}

void Screen::hidden(const memory::Form& form) {
  for (const Wait& wait : waiting_) {
    if (wait.form == &form) wait.loop->quit();
  }
  FormWindow* window = windowOf(form);
  if (window == nullptr) return;
  const bool before = std::exchange(settling_, true);
  window->leave();
  settling_ = before;
  schedule();
}

void Screen::refresh(const memory::Form& form) {
  settle();
  if (FormWindow* window = windowOf(form)) window->repaint();
}

void Screen::waitAt(const memory::Form& form, const bool& over) {
  settle();
  if (!waits_ || over) return;
  QEventLoop loop;
  waiting_.push_back({.form = &form, .loop = &loop});
  loop.exec();
  waiting_.pop_back();
}

void Screen::markStale(View& view) {
  if (std::exchange(view.stale_, true)) return;
  stale_.push_back(&view);
  schedule();
}

void Screen::showAgain(View& view) {
  markStale(view);
  settle();
}

void Screen::schedule() {
  if (std::exchange(scheduled_, true)) return;
  QMetaObject::invokeMethod(
      &receiver_,
      [this] {
        scheduled_ = false;
        settle();
      },
      Qt::QueuedConnection);
}

void Screen::settle() {
  if (settling_) return;
  settling_ = true;
  const toolkit::Widget* holder = platform_.focused();
  if (holder != holderShown_) {
    for (const toolkit::Widget* widget : {holderShown_, holder}) {
      if (widget != nullptr) changed(*widget);
    }
    holderShown_ = holder;
  }
  while (!staleFlags_.empty()) {
    const auto panel = panels_.find(staleFlags_.back());
    staleFlags_.pop_back();
    if (panel != panels_.end()) panel->second->showFlags();
  }
  while (!stale_.empty()) {
    View* view = stale_.back();
    stale_.pop_back();
    marked_ = nullptr;
    if (view == nullptr) continue;
    view->stale_ = false;
    view->showSubject();
  }
  showFocus();
  settling_ = false;
}

void Screen::showFocus() {
  if (toolkit::Widget* holder = platform_.focused()) {
    View* view = viewOf(*holder);
    if (view == nullptr) return;
    QWidget& widget = view->widget();
    if (widget.window()->focusWidget() != &widget) widget.setFocus(Qt::OtherFocusReason);
    return;
  }
  QWidget* now = QApplication::focusWidget();
  if (View* view = viewAround(now); view != nullptr && view->subject() != nullptr) now->clearFocus();
}

void Screen::focusWentTo(QWidget* now) {
  // Another program's window, or what opens for a moment, leaves the focus where it is.
  if (settling_ || now == nullptr || now->window()->windowType() == Qt::Popup) return;
  if (View* view = viewAround(now)) {
    toolkit::Widget* model = view->subject();
    if (model == nullptr || model == platform_.focused()) return;
    return act(*model, "GotFocus", [&](memory::Hands&) { reach(*model); });
  }
  toolkit::Widget* holder = platform_.focused();
  if (holder == nullptr || platform_.focus().front() != nullptr) return;
  act(*holder, "LostFocus", [](memory::Hands& hands) { hands.leave(); });
}

void Screen::reach(toolkit::Widget& widget) {
  if (memory::canHoldFocus(widget)) platform_.hands().focus(widget);
}

bool Screen::leavePanel(const toolkit::Widget& from, const memory::Key& key) {
  const bool backwards = key.name == memory::KeyName::ShiftTab;
  if (!backwards && key.name != memory::KeyName::Tab) return false;
  const auto& surface = static_cast<const memory::Surface&>(from.owner());
  if (!from.hasFocus() || surface.isOfForm()) return false;
  bool listedBefore = true;
  for (const toolkit::Widget* other : surface.widgets()) {
    if (other == &from) {
      listedBefore = false;
    } else if (memory::canHoldFocus(*other)) {
      const bool alike = other->TabIndex() == from.TabIndex();
      const bool before = alike ? listedBefore : other->TabIndex() < from.TabIndex();
      if (before == backwards) return false;
    }
  }
  settle();  // Qt skips what it shows as switched off or hidden
  const auto panel = panels_.find(&surface);
  return panel != panels_.end() && panel->second->passFocusOn(!backwards);
}

void Screen::press(toolkit::Widget& widget, std::span<const memory::Key> keys) {
  if (keys.size() == 1 && leavePanel(widget, keys.front())) return;
  act(widget, "KeyPress", [&](memory::Hands& hands) {
    reach(widget);
    if (!widget.hasFocus()) return;
    for (const memory::Key& key : keys) {
      if (platform_.focused() == nullptr && platform_.focus().front() == nullptr) return;
      hands.press(key);
    }
  });
}

void Screen::pressAtForm(memory::Form& form, std::span<const memory::Key> keys) {
  toolkit::Surface& surface = form.surface();
  if (surface.widgets().empty()) return;
  act(*surface.widgets().front(), "KeyPress", [&](memory::Hands& hands) {
    for (const memory::Key& key : keys) {
      if (platform_.focus().front() != &surface) return;
      hands.press(key);
    }
  });
}

void Screen::closeByFrame(memory::Form& form) {
  toolkit::Surface& surface = form.surface();
  if (surface.widgets().empty()) return form.closeByFrame();
  act(*surface.widgets().front(), "Unload", [&](memory::Hands&) { form.closeByFrame(); });
}

}  // namespace qvn::qt
