#include "tests/qt/seen_platform.h"

#include <QApplication>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <utility>

#include "platforms/memory/form.h"
#include "tests/qt/agreement.h"

namespace qvn::test {

namespace {

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

}  // namespace

void Eyes::lookAt(const toolkit::Surface& surface) const {
  EXPECT_THAT(disagreements(platform_, surface), testing::IsEmpty());
}

void Eyes::lookAtForm(const memory::Form& form) const {
  lookAt(form.surface());
  EXPECT_THAT(disagreementsOfWindow(platform_, form), testing::IsEmpty());
}

void Eyes::look() const {
  for (const memory::Surface* surface : standing_) {
    lookAt(*surface);
    if (surface->isOfForm() || surface->widgets().empty()) continue;
    const QWidget* first = platform_.widgetOf(std::as_const(*surface->widgets().front()));
    ASSERT_NE(first, nullptr) << surface->name();
    EXPECT_EQ(first->window()->isVisible(), surface->Visible()) << surface->name();
  }
}

void Eyes::made(memory::Surface& surface) {
  screen_.made(surface);
  standing_.push_back(&surface);
  lookAt(surface);
}

void Eyes::dropped(const memory::Surface& surface) noexcept {
  if (std::erase(standing_, &surface) > 0) {  // or else its widgets could not be made
    platform_.settle();
    lookAt(surface);
  }
  screen_.dropped(surface);
}

void Eyes::shown(memory::Form& form) {
  screen_.shown(form);
  lookAtForm(form);
}

void Eyes::hidden(const memory::Form& form) {
  if (form.loaded()) {
    platform_.settle();
    lookAtForm(form);
  }
  screen_.hidden(form);
}

void Eyes::refresh(const memory::Form& form) {
  screen_.refresh(form);
  lookAt(form.surface());
}

void Eyes::waitAt(const memory::Form& form, const bool& over) {
  screen_.waitAt(form, over);
  if (!over) look();
}

void SeenHands::focus(toolkit::Widget& widget) {
  const Afterwards afterwards(eyes_);
  hands_.focus(widget);
}

void SeenHands::leave() {
  const Afterwards afterwards(eyes_);
  hands_.leave();
}

void SeenHands::type(std::string_view keys) {
  const Afterwards afterwards(eyes_);
  hands_.type(keys);
}

void SeenHands::caret(std::int32_t start, std::int32_t length) {
  const Afterwards afterwards(eyes_);
  hands_.caret(start, length);
}

void SeenHands::paste(std::string_view text) {
  const Afterwards afterwards(eyes_);
  hands_.paste(text);
}

void SeenHands::click(toolkit::Widget& widget) {
  const Afterwards afterwards(eyes_);
  hands_.click(widget);
}

void SeenHands::choose(toolkit::ComboBox& list, std::int32_t index) {
  const Afterwards afterwards(eyes_);
  hands_.choose(list, index);
}

void SeenHands::choose(toolkit::ComboBox& list, std::string_view item) {
  const Afterwards afterwards(eyes_);
  hands_.choose(list, item);
}

SeenPlatform::SeenPlatform() : qt::Platform(qt::Display::Offscreen) {
  panelsAreWindows(true);
  show(&eyes_);
}

SeenPlatform::~SeenPlatform() { show(&eyes_.screen()); }

void SeenPlatform::expectShown() const {
  // Without the desktop's own events: a window that it makes active gives a field the focus.
  QApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
  eyes_.look();
}

}  // namespace qvn::test
