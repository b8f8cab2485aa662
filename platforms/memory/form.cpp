#include "platforms/memory/form.h"

#include <exception>
#include <utility>

#include "platforms/memory/platform.h"
#include "platforms/memory/stage.h"
#include "platforms/memory/utf8.h"
#include "qvn/shared/failure.h"

namespace qvn::memory {

void Form::operator delete(Form* form, std::destroying_delete_t) {
  form->unload([&](const std::exception_ptr& thrown) {
    try {
      std::rethrow_exception(thrown);
    } catch (const Failure& failure) {
      form->report(failure);
    } catch (const std::exception& other) {  // which nobody stands above to take
      form->report(Failure(FailureKind::InvalidCall, other.what()));
    }
  });
  form->takeAway();
  form->life_.reset();
  form->platform_.turns().drop(*form);
}

void Form::destroy() noexcept {
  std::destroy_at(this);
  ::operator delete(this);
}

Surface& Form::standing() const {
  if (!surface_) refuse("is not loaded");
  return *surface_;
}

void Form::refuse(std::string_view why) const {
  throw Failure(FailureKind::InvalidCall, std::string("the form ").append(Name()).append(" ").append(why));
}

std::string Form::Caption() const {
  standing();
  return caption_;
}

void Form::Caption(std::string_view caption) {
  standing();
  caption_ = utf8::valid(caption);
  tell();
}

toolkit::Place Form::place() const {
  standing();
  return place_;
}

void Form::place(toolkit::Place place) {
  standing();
  place_ = place;
  tell();
}

void Form::tell() const {
  if (Stage* stage = platform_.stage()) stage->changed(*this);
}

void Form::refresh() {
  if (Stage* stage = platform_.stage(); stage != nullptr && loaded()) stage->refresh(*this);
}

void Form::load() {
  if (loaded()) return;
  const Turn turn(platform_.turns());
  auto surface = std::make_unique<Surface>(platform_, layout_.inside, container_, std::string(Name()), life_);
  surface->makeWidgets();
  platform_.loadedForms().add(*this);
  surface_ = std::move(surface);
  caption_ = utf8::valid(layout_.caption);
  place_ = {.width = layout_.inside.width + kFrameWidth, .height = layout_.inside.height + kFrameHeight};
  if (Stage* stage = platform_.stage()) stage->made(*surface_);
  if (Watcher* watcher = platform_.watcher()) watcher->formLoaded(Name());
  if (Load) Load();
}

template <class OnFailure>
void Form::unload(OnFailure onFailure) {
  if (!loaded() || unloading_) return;
  const Turns::Keep keep(platform_.turns());  // no turn, which may fail: the form is to go whatever happens
  unloading_ = true;
  std::exception_ptr thrown;
  try {
    if (Unload) Unload();
  } catch (...) {
    thrown = std::current_exception();
  }
  if (!thrown) return takeAway();
  try {
    onFailure(thrown);
  } catch (...) {
    takeAway();
    throw;
  }
  takeAway();
}

void Form::unload() {
  unload([](const std::exception_ptr& thrown) { std::rethrow_exception(thrown); });
}

void Form::closeByFrame() {
  unload([this](const std::exception_ptr& thrown) {
    try {
      std::rethrow_exception(thrown);
    } catch (const Failure& failure) {
      if (!report(failure)) throw;
    }
  });
}

void Form::takeAway() {
  if (!loaded()) return;
  const std::unique_ptr<Surface> surface = std::move(surface_);
  Showing* showing = std::exchange(showing_, nullptr);
  unloading_ = false;
  platform_.loadedForms().remove(*this);
  if (Watcher* watcher = platform_.watcher()) watcher->formUnloaded(Name());
  if (showing != nullptr) leaveScreen(*showing, *surface);
}

bool Form::report(const Failure& failure) noexcept {
  if (surface_ == nullptr || surface_->widgets().empty()) return false;
  surface_->report(*surface_->widgets().front(), "Unload", failure);
  return true;
}

void Form::leaveScreen(Showing& showing, Surface& surface) {
  showing.over = true;
  if (Stage* stage = platform_.stage()) stage->hidden(*this);
  surface.hideWithoutEvents();
  platform_.focus().leave(surface);
}

void Form::hide() {
  if (showing_ == nullptr) return;
  const Turns::Keep keep(platform_.turns());
  Showing& showing = *std::exchange(showing_, nullptr);
  if (Watcher* watcher = platform_.watcher()) watcher->formHidden(Name());
  leaveScreen(showing, *surface_);
}

void Form::showModal() {
  const Turn turn(platform_.turns());
  if (showing_ != nullptr) refuse("is shown already");
  if (unloading_) refuse("is being unloaded and cannot be shown");
  load();
  if (!loaded()) refuse("unloaded itself while it was loaded, and cannot be shown");

  Showing showing;
  Surface& surface = *surface_;
  platform_.focus().enter(surface);
  showing_ = &showing;
  surface.Visible(true);
  if (Stage* stage = platform_.stage()) stage->shown(*this);
  try {
    if (Watcher* watcher = platform_.watcher()) watcher->formShown(Name());
    platform_.hands().attend(*this, surface, showing);
  } catch (...) {
    if (!showing.over) hide();
    throw;
  }
  if (!showing.over) closeByFrame();
}

toolkit::Form& LoadedForms::at(std::int32_t index) const {
  if (index < 0 || index >= count()) {
    throw Failure(
        FailureKind::SubscriptOutOfRange,
        std::to_string(count()).append(" forms are loaded, and there is none at ").append(std::to_string(index)));
  }
  return *forms_[static_cast<std::size_t>(index)];
}

}  // namespace qvn::memory
