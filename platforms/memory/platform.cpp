#include "platforms/memory/platform.h"

#include <utility>

#include "platforms/memory/surface.h"
#include "qvn/shared/failure.h"

namespace qvn::memory {

std::unique_ptr<toolkit::Surface> Platform::makeSurface(const toolkit::PanelLayout& layout,
                                                        toolkit::Container& container, std::string name) {
  auto surface = std::make_unique<Surface>(*this, layout, container, std::move(name));
  surface->makeWidgets();
  return surface;
}

std::unique_ptr<toolkit::Form> Platform::makeForm(const toolkit::FormLayout& layout,
                                                  toolkit::Container& /*container*/) {
  throw Failure(FailureKind::InvalidCall, std::string(layout.inside.name).append(": the memory platform has no forms"));
}

void Platform::beep() {
  ++beeps_;
  if (watcher_ != nullptr) watcher_->beeped();
}

void Platform::watch(Watcher* watcher) {
  watcher_ = watcher;
  focus_.watch(watcher);
}

toolkit::Form& Platform::NoForms::at(std::int32_t index) const {
  throw Failure(FailureKind::SubscriptOutOfRange, "no form is loaded, so there is none at " + std::to_string(index));
}

}  // namespace qvn::memory
