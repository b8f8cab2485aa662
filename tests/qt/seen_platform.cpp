#include "tests/qt/seen_platform.h"

#include <QApplication>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <utility>

#include "platforms/memory/form.h"
#include "tests/qt/agreement.h"

namespace qvn::test {

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
