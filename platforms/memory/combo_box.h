// A closed list in memory.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platforms/memory/widget.h"

namespace qvn::memory {

class ComboBox final : public Common<toolkit::ComboBox> {
 public:
  /// The layout's text, where it has one, is the item that the list starts with. "invalid call" if it is no item.
  explicit ComboBox(const Making& making);

  void AddItem(std::string_view item) override;
  void RemoveItem(std::int32_t index) override;
  void Clear() override;
  std::int32_t ListCount() const override { return static_cast<std::int32_t>(items_.size()); }
  std::string List(std::int32_t index) const override;
  std::int32_t ListIndex() const override { return current_; }
  void ListIndex(std::int32_t index) override;
  std::string Text() const override { return current_ < 0 ? std::string() : List(current_); }
  void Text(std::string_view text) override;

  /// The first item with that text, -1 if there is none.
  std::int32_t find(std::string_view text) const;
  /// The first item with that text. "invalid call", quoting it, if there is none.
  std::int32_t indexOf(std::string_view text) const;
  /// The next item behind the current one, from the last on to the first, that begins with the character in either
  /// case; the current one if there is no other, -1 if there is none at all.
  std::int32_t nextBeginningWith(char32_t character) const;

 private:
  const std::string& at(std::int32_t index) const;

  std::vector<std::string> items_;
  std::int32_t current_ = -1;
};

}  // namespace qvn::memory
