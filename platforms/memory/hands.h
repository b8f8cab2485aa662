// An operator's hands on the widgets in memory.
#pragma once

#include <cstdint>
#include <string_view>

#include "platforms/memory/keys.h"
#include "platforms/operator.h"

namespace qvn::memory {

class ComboBox;
class Platform;
class TextBox;
class TextBuffer;

class Hands final : public Operator {
 public:
  explicit Hands(Platform& platform) : platform_(platform) {}

  void focus(toolkit::Widget& widget) override;
  void leave() override;
  void type(std::string_view keys) override;
  void caret(std::int32_t start, std::int32_t length) override;
  void paste(std::string_view text) override;
  void click(toolkit::Widget& widget) override;
  void choose(toolkit::ComboBox& list, std::int32_t index) override;
  void choose(toolkit::ComboBox& list, std::string_view item) override;

 private:
  void own(const toolkit::Widget& widget) const;
  toolkit::Widget& held() const;
  toolkit::EditableText& heldField() const;

  void press(toolkit::Widget& widget, Key key);
  void pressInField(toolkit::EditableText& field, Key key);
  void pressInList(ComboBox& list, Key key);
  void tab(toolkit::Widget& from, bool backwards);
  /// Raises KeyPress; what the handler leaves of the key goes into the field. False if it was refused.
  bool typeInto(toolkit::EditableText& field, char32_t character);
  void take(TextBox& box, char32_t character);
  /// Moves the focus to the list and picks what is found once it is there; -1 is nothing.
  template <class Find>
  void reachAndPick(ComboBox& list, Find find);
  void pick(ComboBox& list, std::int32_t index);
  void push(toolkit::Widget& buttonOrCheckBox);

  Platform& platform_;
};

}  // namespace qvn::memory
