// An operator's hands on the widgets in memory.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "platforms/laid_down.h"
#include "platforms/memory/keys.h"
#include "platforms/operator.h"

namespace qvn::memory {

class ComboBox;
class Form;
class ListView;
class Platform;
class Surface;
struct Showing;

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

  void layDown(std::string_view form, std::vector<Act> acts) override { laidDown_.add(form, std::move(acts)); }
  std::vector<FailedAct> failedActs() override { return laidDown_.takeFailed(); }
  void takePictures(bool take) override { laidDown_.takePictures(take); }
  std::vector<FormPicture> shown() override { return laidDown_.takePicturesTaken(); }

  /// Does at a form that has just come to stand what was laid down for it, until the showing is over or nothing is left
  /// but to close it by its frame.
  void attend(const Form& form, Surface& surface, const Showing& showing);

  /// Presses a key at what has the focus. "invalid call" if nothing has it, unless a form stands.
  void press(Key key);
  /// Selects or double-clicks a row of a list, or clicks a column's head.
  void actAtList(ListView& list, const Act& act);

 private:
  void act(const toolkit::Form& form, Surface& surface, const Act& act);

  void own(const toolkit::Widget& widget) const;
  toolkit::Widget& held() const;
  toolkit::EditableText& heldField() const;

  /// False if the widget has used the key up, so that it does not reach its form.
  bool pressIn(toolkit::Widget& widget, Key key);
  bool pressInField(toolkit::EditableText& field, Key key);
  bool pressInListView(ListView& list, Key key);
  void pressInList(ComboBox& list, Key key);
  /// Presses the default or the cancel button of a form, where the key is for one and the form still stands.
  void pressOnForm(Surface& form, Key key);
  void tab(toolkit::Widget& from, bool backwards);
  /// Raises KeyPress, and returns what the handler leaves of the key; nothing if it was refused.
  template <class Keyed>
  std::optional<char32_t> keyPress(Keyed& widget, char32_t character);
  /// The same, and what is left goes into the field.
  std::optional<char32_t> typeInto(toolkit::EditableText& field, char32_t character);
  /// Puts a character into the field. False if it has no place there.
  bool take(toolkit::EditableText& field, char32_t character);
  void changeIf(toolkit::EditableText& field, bool changed);
  /// Moves the focus to the list and picks what is found once it is there; -1 is nothing.
  template <class Find>
  void reachAndPick(ComboBox& list, Find find);
  void pick(ComboBox& list, std::int32_t index);
  void push(toolkit::Widget& buttonOrCheckBox);

  Platform& platform_;
  LaidDown laidDown_;
};

}  // namespace qvn::memory
