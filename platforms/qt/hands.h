// An operator's hands on widgets that stand on a screen.
#pragma once

#include <string_view>
#include <vector>

#include "platforms/operator.h"
#include "platforms/qt/screen.h"

namespace qvn::qt {

/// The hands on the widgets in memory; what each thing that they do has come to is on the screen when it returns.
class Hands final : public Operator {
 public:
  Hands(memory::Hands& hands, Screen& screen) : hands_(hands), screen_(screen) {}

  void focus(toolkit::Widget& widget) override;
  void leave() override;
  void type(std::string_view keys) override;
  void caret(std::int32_t start, std::int32_t length) override;
  void paste(std::string_view text) override;
  void click(toolkit::Widget& widget) override;
  void choose(toolkit::ComboBox& list, std::int32_t index) override;
  void choose(toolkit::ComboBox& list, std::string_view item) override;
  void layDown(std::string_view form, std::vector<Act> acts) override { hands_.layDown(form, std::move(acts)); }
  std::vector<FailedAct> failedActs() override { return hands_.failedActs(); }
  void takePictures(bool take) override { hands_.takePictures(take); }
  std::vector<FormPicture> shown() override { return hands_.shown(); }

 private:
  memory::Hands& hands_;
  Screen& screen_;
};

}  // namespace qvn::qt
