#include "platforms/memory/combo_box.h"

#include "platforms/memory/usable.h"
#include "platforms/memory/utf8.h"
#include "qvn/shared/failure.h"

namespace qvn::memory {

ComboBox::ComboBox(const Making& making) : Common(making, toolkit::kWhite) {
  items_.reserve(making.layout.items.size());
  for (const std::string_view item : making.layout.items) items_.push_back(utf8::valid(item));
  if (!making.layout.caption.empty()) current_ = indexOf(utf8::valid(making.layout.caption));
}

void ComboBox::AddItem(std::string_view item) {
  items_.push_back(utf8::valid(item));
  tell();
}

void ComboBox::RemoveItem(std::int32_t index) {
  at(index);
  items_.erase(items_.begin() + index);
  if (index == current_) {
    current_ = -1;
  } else if (index < current_) {
    --current_;
  }
  tell();
}

void ComboBox::Clear() {
  items_.clear();
  current_ = -1;
  tell();
}

std::string ComboBox::List(std::int32_t index) const { return at(index); }

void ComboBox::ListIndex(std::int32_t index) {
  if (index != -1) at(index);
  current_ = index;
  tell();
  surface().raise(Click);
}

void ComboBox::Text(std::string_view text) {
  const std::string written = utf8::valid(text);
  if (written != Text()) return ListIndex(indexOf(written));
  if (current_ >= 0) return;
  if (const std::int32_t blank = find(written); blank >= 0) ListIndex(blank);
}

std::int32_t ComboBox::find(std::string_view text) const {
  for (std::int32_t i = 0; i < ListCount(); ++i) {
    if (at(i) == text) return i;
  }
  return -1;
}

std::int32_t ComboBox::indexOf(std::string_view text) const {
  if (const std::int32_t index = find(text); index >= 0) return index;
  throw Failure(FailureKind::InvalidCall, fullName(*this).append(" has no item \"").append(text).append("\""));
}

std::int32_t ComboBox::nextBeginningWith(char32_t character) const {
  const std::int32_t count = ListCount();
  for (std::int32_t step = 1; step <= count; ++step) {
    const std::int32_t index = (current_ + step) % count;
    std::string_view item = at(index);
    if (!item.empty() && utf8::lowered(utf8::takeFirst(item)) == utf8::lowered(character)) return index;
  }
  return -1;
}

const std::string& ComboBox::at(std::int32_t index) const {
  requirePlace(*this, "items", ListCount(), index);
  return items_[static_cast<std::size_t>(index)];
}

}  // namespace qvn::memory
