// What text boxes and date fields in memory have in common.
#pragma once

#include <string>
#include <string_view>

#include "platforms/memory/text_buffer.h"
#include "platforms/memory/widget.h"

namespace qvn::memory {

template <class Interface>
class Editable : public Common<Interface> {
 public:
  std::string Text() const final { return buffer_.text(); }
  std::int32_t SelStart() const final { return buffer_.selStart(); }
  /// Moves the caret there; nothing is selected then.
  void SelStart(std::int32_t start) final { select(start, 0); }
  std::int32_t SelLength() const final { return buffer_.selLength(); }
  void SelLength(std::int32_t length) final { select(buffer_.selStart(), length); }

  TextBuffer& buffer() { return buffer_; }

 protected:
  explicit Editable(const Making& making) : Common<Interface>(making, toolkit::kWhite) {}

  void write(std::string_view text) {
    if (!buffer_.set(text)) return;
    this->tell();
    this->surface().raise(this->Change);
  }

 private:
  void select(std::int32_t start, std::int32_t length) {
    buffer_.select(start, length);
    this->tell();
  }

  TextBuffer buffer_;
};

}  // namespace qvn::memory
