#include "platforms/memory/platform.h"

#include <utility>

#include "platforms/memory/surface.h"

namespace qvn::memory {

std::unique_ptr<toolkit::Surface> Platform::makeSurface(const toolkit::PanelLayout& layout,
                                                        toolkit::Container& container, std::string name) {
  auto surface = std::make_unique<Surface>(*this, layout, container, std::move(name));
  surface->makeWidgets();
  if (stage_ != nullptr) stage_->made(*surface);
  return surface;
}

std::unique_ptr<toolkit::Form> Platform::makeForm(const toolkit::FormLayout& layout, toolkit::Container& container) {
  return std::make_unique<Form>(*this, layout, container);
}

void Platform::beep() {
  ++beeps_;
  if (watcher_ != nullptr) watcher_->beeped();
}

void Platform::watch(Watcher* watcher) {
  watcher_ = watcher;
  focus_.watch(watcher);
}

void Platform::show(Stage* stage) {
  stage_ = stage;
  focus_.show(stage);
}

}  // namespace qvn::memory
