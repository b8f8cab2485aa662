#include "component/panel_object.h"

#include <utility>

namespace qvn::component {

PanelObject::PanelObject(const ComponentClass& made, ScreenObject& screen, std::string name)
    : class_(made), screen_(screen), panel_(made.panel->make({.container = *this, .name = std::move(name)})) {}

void PanelObject::PropertyChanged(toolkit::Surface& /*panel*/, std::string_view name) {
  changed_.call([this] { return panel_ != nullptr; }, std::string(name).c_str());
}

void PanelObject::handlerFailed(toolkit::Surface& /*panel*/, toolkit::Widget& widget, std::string_view event,
                                const Failure& failure) noexcept {
  try {
    failed_.call([this] { return panel_ != nullptr; }, std::string(widget.Name()).c_str(), std::string(event).c_str(),
                 failure);
  } catch (...) {
    // The operator goes on: there is nobody else to be told.
    forgetMessage();
  }
}

}  // namespace qvn::component
