#include "platforms/memory/surface.h"

#include <array>
#include <memory>
#include <utility>

#include "platforms/memory/check_box.h"
#include "platforms/memory/combo_box.h"
#include "platforms/memory/command_button.h"
#include "platforms/memory/data_control.h"
#include "platforms/memory/data_grid.h"
#include "platforms/memory/date_control.h"
#include "platforms/memory/frame.h"
#include "platforms/memory/label.h"
#include "platforms/memory/list_view.h"
#include "platforms/memory/platform.h"
#include "platforms/memory/stage.h"
#include "platforms/memory/text_box.h"

namespace qvn::memory {

namespace {

/// How widgets of one kind are made.
struct Maker {
  toolkit::WidgetKind kind;
  std::size_t size;
  toolkit::Widget* (*make)(void* memory, const Making& making);
};

constexpr std::size_t kAlignment = alignof(std::max_align_t);

template <class Kind>
constexpr Maker makerOf(toolkit::WidgetKind kind) {
  static_assert(alignof(Kind) <= kAlignment);
  return {.kind = kind,
          .size = (sizeof(Kind) + kAlignment - 1) / kAlignment * kAlignment,
          .make = [](void* memory, const Making& making) -> toolkit::Widget* { return new (memory) Kind(making); }};
}

constexpr std::array kMakers{makerOf<TextBox>(toolkit::WidgetKind::TextBox),
                             makerOf<Label>(toolkit::WidgetKind::Label),
                             makerOf<ComboBox>(toolkit::WidgetKind::ComboBox),
                             makerOf<CheckBox>(toolkit::WidgetKind::CheckBox),
                             makerOf<Frame>(toolkit::WidgetKind::Frame),
                             makerOf<CommandButton>(toolkit::WidgetKind::CommandButton),
                             makerOf<DateControl>(toolkit::WidgetKind::DateControl),
                             makerOf<ListView>(toolkit::WidgetKind::ListView),
                             makerOf<DataGrid>(toolkit::WidgetKind::DataGrid),
                             makerOf<DataControl>(toolkit::WidgetKind::DataControl)};

const Maker* makerFor(toolkit::WidgetKind kind) {
  for (const Maker& maker : kMakers) {
    if (maker.kind == kind) return &maker;
  }
  return nullptr;
}

}  // namespace

Surface::Surface(Platform& platform, const toolkit::PanelLayout& layout, toolkit::Container& container,
                 std::string name, const std::shared_ptr<const void>& form)
    : platform_(platform),
      layout_(layout),
      container_(container),
      name_(std::move(name)),
      form_(form),
      ofForm_(form != nullptr),
      visible_(form == nullptr) {}

Surface::~Surface() {
  while (!widgets_.empty()) {
    std::destroy_at(widgets_.back());
    widgets_.pop_back();
  }
}

void Surface::operator delete(Surface* surface, std::destroying_delete_t) {
  surface->dropped_ = true;
  surface->platform_.focus().forget(*surface);
  if (Stage* stage = surface->platform_.stage()) stage->dropped(*surface);
  surface->platform_.turns().drop(*surface);
}

void Surface::destroy() noexcept {
  std::destroy_at(this);
  ::operator delete(this);
}

void Surface::makeWidgets() {
  std::size_t size = 0;
  for (const toolkit::WidgetLayout& row : layout_.widgets) {
    const Maker* maker = makerFor(row.kind);
    if (maker == nullptr) {
      throw Failure(FailureKind::InvalidCall,
                    std::string(name_).append(".").append(row.name).append(": the memory platform has no such widget"));
    }
    size += maker->size;
  }
  memory_ = std::make_unique_for_overwrite<std::byte[]>(size);
  widgets_.reserve(layout_.widgets.size());
  std::byte* next = memory_.get();
  for (const toolkit::WidgetLayout& row : layout_.widgets) {
    const Maker& maker = *makerFor(row.kind);
    widgets_.push_back(maker.make(next, {.layout = row, .surface = *this, .frame = frameNamed(row)}));
    next += maker.size;
  }
}

toolkit::Frame* Surface::frameNamed(const toolkit::WidgetLayout& row) const {
  if (row.frame.empty()) return nullptr;
  for (toolkit::Widget* widget : widgets_) {
    if (widget->Kind() == toolkit::WidgetKind::Frame && widget->Name() == row.frame) {
      return static_cast<toolkit::Frame*>(widget);
    }
  }
  throw Failure(FailureKind::InvalidCall, std::string(name_)
                                              .append(".")
                                              .append(row.name)
                                              .append(": there is no frame \"")
                                              .append(row.frame)
                                              .append("\" above it"));
}

toolkit::Platform& Surface::platform() const { return platform_; }
bool Surface::isCovered() const {
  const Surface* front = platform_.focus().front();
  return front != nullptr && front != this;
}

Watcher* Surface::watcher() const { return platform_.watcher(); }
Turns& Surface::turns() const { return platform_.turns(); }

void Surface::Visible(bool visible) {
  visible_ = visible;
  tellFlags();
  checkFocus();
}

void Surface::Enabled(bool enabled) {
  enabled_ = enabled;
  tellFlags();
  checkFocus();
}

void Surface::hideWithoutEvents() {
  visible_ = false;
  tellFlags();
}

void Surface::tell(const toolkit::Widget& widget) const {
  if (Stage* stage = platform_.stage()) stage->changed(widget);
}

void Surface::tellFlags() const {
  if (Stage* stage = platform_.stage()) stage->changed(*this);
}

void Surface::giveFocus(toolkit::Widget& widget) { platform_.focus().give(widget); }
void Surface::checkFocus() { platform_.focus().check(); }

void Surface::report(toolkit::Widget& widget, std::string_view event, const Failure& failure) noexcept {
  if (!dropped_ || !form_.expired()) container_.handlerFailed(*this, widget, event, failure);
}

}  // namespace qvn::memory
