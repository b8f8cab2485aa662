// Qt's platform under a test's eyes.
#pragma once

#include <vector>

#include "platforms/guarded_hands.h"
#include "platforms/memory/stage.h"
#include "platforms/qt/platform.h"

namespace qvn::test {

/// Stands before the screen and knows what is to be on it. It holds what is shown against what the widgets say when a
/// panel is made and when it goes, and when a form comes, is drawn and goes; each difference is a failure of the test.
class Eyes final : public memory::Stage {
 public:
  Eyes(qt::Platform& platform, memory::Stage& screen) : platform_(platform), screen_(screen) {}

  /// At all that stands, as it is shown at the moment.
  void look() const;

  void made(memory::Surface& surface) override;
  void dropped(const memory::Surface& surface) noexcept override;
  void changed(const toolkit::Widget& widget) override { screen_.changed(widget); }
  void changed(const memory::Surface& surface) override { screen_.changed(surface); }
  void focusMoved() override { screen_.focusMoved(); }
  void changed(const memory::Form& form) override { screen_.changed(form); }
  void shown(memory::Form& form) override;
  void hidden(const memory::Form& form) override;
  void refresh(const memory::Form& form) override;
  void waitAt(const memory::Form& form, const bool& over) override;

  memory::Stage& screen() const { return screen_; }

 private:
  void lookAt(const toolkit::Surface& surface) const;
  void lookAtForm(const memory::Form& form) const;

  qt::Platform& platform_;
  memory::Stage& screen_;
  std::vector<const memory::Surface*> standing_;
};

/// Looks when an act is over, and when it has failed.
class Afterwards {
 public:
  explicit Afterwards(const Eyes& eyes) : eyes_(eyes) {}
  ~Afterwards() { eyes_.look(); }
  Afterwards(const Afterwards&) = delete;
  Afterwards& operator=(const Afterwards&) = delete;

 private:
  const Eyes& eyes_;
};

/// Hands after each of whose acts all is looked at: it is to be on the screen by then.
using SeenHands = GuardedHands<Afterwards, const Eyes>;

class SeenPlatform final : public qt::Platform {
 public:
  SeenPlatform();
  ~SeenPlatform() override;

  SeenHands& hands() { return hands_; }
  /// Lets what is shown when the event loop comes round be shown, and looks at all that stands.
  void expectShown() const;

 private:
  Eyes eyes_{*this, *stage()};
  SeenHands hands_{qt::Platform::hands(), eyes_};
};

}  // namespace qvn::test
