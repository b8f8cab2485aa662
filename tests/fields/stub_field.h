// A field that counts what is written to it. Widgets of a platform pass over a write of what is there already, and so
// cannot tell whether a routine wrote or compared.
#pragma once

#include <string>
#include <utility>

#include "qvn/toolkit/surface.h"

namespace qvn::test {

/// A text box or date control outside any platform, lying on the surface of another one's widgets.
template <class Kind>
class StubField : public Kind {
 public:
  StubField(toolkit::Surface& owner, const toolkit::WidgetLayout& layout) : owner_(owner), layout_(layout) {}

  const toolkit::WidgetLayout& layout() const override { return layout_; }
  toolkit::Surface& owner() const override { return owner_; }
  toolkit::Frame* frame() const override { return nullptr; }
  toolkit::Place place() const override { return {}; }
  void place(toolkit::Place) override {}
  bool Enabled() const override { return true; }
  void Enabled(bool) override {}
  bool Visible() const override { return true; }
  void Visible(bool) override {}
  std::uint32_t BackColor() const override { return 0; }
  void BackColor(std::uint32_t) override {}
  std::uint32_t ForeColor() const override { return 0; }
  void ForeColor(std::uint32_t) override {}
  void SetFocus() override {}
  bool hasFocus() const override { return false; }
  std::string Text() const override { return text; }
  void Text(std::string_view written) override {
    text = written;
    ++textWrites;
  }
  std::int32_t SelStart() const override { return 0; }
  void SelStart(std::int32_t) override {}
  std::int32_t SelLength() const override { return 0; }
  void SelLength(std::int32_t) override {}

  std::string text;
  int textWrites = 0;

 private:
  toolkit::Surface& owner_;
  const toolkit::WidgetLayout& layout_;
};

class StubTextBox final : public StubField<toolkit::TextBox> {
 public:
  using StubField::StubField;
};

class StubDate final : public StubField<toolkit::DateControl> {
 public:
  using StubField::StubField;
  Variant Value() const override { return value; }
  void Value(const Variant& written) override {
    value = written;
    ++valueWrites;
  }

  Variant value;
  int valueWrites = 0;
};

}  // namespace qvn::test
