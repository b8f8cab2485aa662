// Panels without a screen: widgets that live in memory, for batch work, for services and for hosts that draw
// themselves.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platforms/memory/clock.h"
#include "platforms/memory/focus.h"
#include "platforms/memory/form.h"
#include "platforms/memory/hands.h"
#include "platforms/memory/stage.h"
#include "platforms/memory/turns.h"
#include "platforms/operator.h"
#include "qvn/toolkit/platform.h"

namespace qvn::memory {

/// A toolkit whose widgets behave as an operator's screen would, in one thread and without a window. A form that is
/// shown modally waits for nobody: the operator's hands do at once what was laid down for it, and close it by its frame
/// if it still stands then.
///
/// A panel may be dropped at any moment, from inside a handler of its own as well; nothing more is raised on it then.
/// Handlers that call each other without end fail with "invalid call" before the stack is used up.
class Platform : public toolkit::Platform {
 public:
  Platform() = default;
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;

  std::string_view name() const override { return "memory"; }
  toolkit::Capabilities capabilities() const override { return {.modalForms = true}; }
  std::unique_ptr<toolkit::Surface> makeSurface(const toolkit::PanelLayout& layout, toolkit::Container& container,
                                                std::string name) override;
  std::unique_ptr<toolkit::Form> makeForm(const toolkit::FormLayout& layout, toolkit::Container& container) override;
  toolkit::Widget* focused() const override { return focus_.holder(); }

  const Locale& locale() const override { return locale_; }
  void setLocale(const Locale& locale) { locale_ = locale; }

  const toolkit::Clock& clock() const override { return clock_; }
  /// Fixes today's date; until then it is the system's.
  void today(Date date) { clock_.fix(date); }

  /// 1024 by 768 dots of 96 to the inch.
  toolkit::ScreenSize screen() const override { return {.width = 15360, .height = 11520}; }

  void beep() override;
  /// Beeps since the platform was made.
  std::int64_t beeps() const { return beeps_; }

  const toolkit::Forms& forms() const override { return forms_; }
  /// No drivers until a host adds its own.
  toolkit::Drivers& drivers() override { return drivers_; }

  Hands& hands() { return hands_; }
  /// Tells the watcher from now on what happens; null stops it. It must outlive the platform or be taken away before.
  void watch(Watcher* watcher);

  /// For the platform's own widgets and forms.
  Watcher* watcher() const { return watcher_; }
  Stage* stage() const { return stage_; }
  LoadedForms& loadedForms() { return forms_; }
  Focus& focus() { return focus_; }
  Turns& turns() { return turns_; }

 protected:
  /// Shows the widgets from now on; null shows them no more. Set while there is no panel and no form.
  void show(Stage* stage);

 private:
  Turns turns_;
  Focus focus_{turns_};
  Hands hands_{*this};
  Clock clock_;
  Locale locale_;
  LoadedForms forms_;
  toolkit::Drivers drivers_;
  Watcher* watcher_ = nullptr;
  Stage* stage_ = nullptr;
  std::int64_t beeps_ = 0;
};

}  // namespace qvn::memory
