// An operator's hands with something to be done around each of their acts.
#pragma once

#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "platforms/operator.h"

namespace qvn {

/// The hands of another operator. A Guard, made of what it guards, stands for as long as each of their acts runs, and
/// falls when the act is over and when it has failed. Hands and what is guarded must outlive it.
template <class Guard, class Guarded>
class GuardedHands final : public Operator {
 public:
  GuardedHands(Operator& hands, Guarded& guarded) : hands_(hands), guarded_(guarded) {}

  void focus(toolkit::Widget& widget) override {
    const Guard guard(guarded_);
    hands_.focus(widget);
  }
  void leave() override {
    const Guard guard(guarded_);
    hands_.leave();
  }
  void type(std::string_view keys) override {
    const Guard guard(guarded_);
    hands_.type(keys);
  }
  void caret(std::int32_t start, std::int32_t length) override {
    const Guard guard(guarded_);
    hands_.caret(start, length);
  }
  void paste(std::string_view text) override {
    const Guard guard(guarded_);
    hands_.paste(text);
  }
  void click(toolkit::Widget& widget) override {
    const Guard guard(guarded_);
    hands_.click(widget);
  }
  void choose(toolkit::ComboBox& list, std::int32_t index) override {
    const Guard guard(guarded_);
    hands_.choose(list, index);
  }
  void choose(toolkit::ComboBox& list, std::string_view item) override {
    const Guard guard(guarded_);
    hands_.choose(list, item);
  }

  // Which are no acts.
  void layDown(std::string_view form, std::vector<Act> acts) override { hands_.layDown(form, std::move(acts)); }
  std::vector<FailedAct> failedActs() override { return hands_.failedActs(); }
  void takePictures(bool take) override { hands_.takePictures(take); }
  std::vector<FormPicture> shown() override { return hands_.shown(); }

 private:
  Operator& hands_;
  Guarded& guarded_;
};

}  // namespace qvn
