#include "component/object.h"

std::int32_t qvn_object::living_ = 0;
qvn_object* qvn_object::gone_ = nullptr;

qvn_object::qvn_object() { ++living_; }
qvn_object::~qvn_object() { --living_; }

std::int32_t qvn_object::release() noexcept {
  if (gone()) return 0;
  const std::int32_t left = --references_;
  if (left == 0) {
    goneBefore_ = std::exchange(gone_, this);
    drop();
  }
  return left;
}

void qvn_object::destroyGone() noexcept {
  // One that goes may have held the last reference to another.
  while (gone_ != nullptr) {
    const qvn_object* next = std::exchange(gone_, gone_->goneBefore_);
    delete next;
  }
}

const qvn::component::MemberList& qvn_object::members() const { refuse(); }

void qvn_object::refuse() const {
  throw qvn::component::InvalidArgument(
      std::string("an object of the class ").append(className()).append(" has no members to get, let or call"));
}

qvn::Variant qvn_object::get(std::string_view) { refuse(); }
void qvn_object::let(std::string_view, const qvn::Variant&) { refuse(); }
qvn::Variant qvn_object::call(std::string_view, std::span<qvn::Variant>) { refuse(); }
