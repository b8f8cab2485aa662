// A platform that notes what is written to widgets, in order, whether or not it changes anything.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/doubles.h"

namespace qvn::test {

/// What was written, as "widget.property value".
using Notes = std::vector<std::string>;

/// A widget whose writes are noted and then done. Its handlers are not raised.
template <class Interface>
class Noting : public Double<Interface> {
 public:
  Noting(Interface& real, Notes& notes) : Double<Interface>(real), notes_(notes) {}

  using Double<Interface>::Enabled;
  void Enabled(bool enabled) override {
    note("Enabled", enabled ? "true" : "false");
    this->real_.Enabled(enabled);
  }
  using Double<Interface>::BackColor;
  void BackColor(std::uint32_t colour) override {
    note("BackColor", std::to_string(colour));
    this->real_.BackColor(colour);
  }
  void SetFocus() override {
    note("SetFocus", "");
    this->real_.SetFocus();
  }

 protected:
  void note(std::string_view property, std::string_view value) {
    notes_.push_back(std::string(this->Name()).append(".").append(property).append(" ").append(value));
  }

 private:
  Notes& notes_;
};

/// A text box or a date field.
template <class Interface>
class NotingText : public Noting<Interface> {
 public:
  using Noting<Interface>::Noting;
  std::string Text() const override { return this->real_.Text(); }
  void Text(std::string_view text) override {
    this->note("Text", text);
    this->real_.Text(text);
  }
  std::int32_t SelStart() const override { return this->real_.SelStart(); }
  void SelStart(std::int32_t start) override {
    this->note("SelStart", std::to_string(start));
    this->real_.SelStart(start);
  }
  std::int32_t SelLength() const override { return this->real_.SelLength(); }
  void SelLength(std::int32_t length) override {
    this->note("SelLength", std::to_string(length));
    this->real_.SelLength(length);
  }
};

class NotingDate final : public NotingText<toolkit::DateControl> {
 public:
  using NotingText::NotingText;
  Variant Value() const override { return real_.Value(); }
  void Value(const Variant& value) override {
    note("Value", isNull(value) ? "Null" : std::get<std::string>(value));
    real_.Value(value);
  }
};

class NotingLabel final : public Noting<toolkit::Label> {
 public:
  using Noting::Noting;
  std::string Caption() const override { return real_.Caption(); }
  void Caption(std::string_view caption) override {
    note("Caption", caption);
    real_.Caption(caption);
  }
};

class NotingCheckBox final : public Noting<toolkit::CheckBox> {
 public:
  using Noting::Noting;
  std::string Caption() const override { return real_.Caption(); }
  std::int16_t Value() const override { return real_.Value(); }
  void Value(std::int16_t value) override {
    note("Value", std::to_string(value));
    real_.Value(value);
  }
};

class NotingComboBox final : public Noting<toolkit::ComboBox> {
 public:
  using Noting::Noting;
  void AddItem(std::string_view item) override { real_.AddItem(item); }
  void RemoveItem(std::int32_t index) override { real_.RemoveItem(index); }
  void Clear() override { real_.Clear(); }
  std::int32_t ListCount() const override { return real_.ListCount(); }
  std::string List(std::int32_t index) const override { return real_.List(index); }
  std::int32_t ListIndex() const override { return real_.ListIndex(); }
  void ListIndex(std::int32_t index) override { real_.ListIndex(index); }
  std::string Text() const override { return real_.Text(); }
  void Text(std::string_view text) override {
    note("Text", text);
    real_.Text(text);
  }
};

class NotingFrame final : public Noting<toolkit::Frame> {
 public:
  using Noting::Noting;
  std::string Caption() const override { return real_.Caption(); }
  void Caption(std::string_view caption) override { real_.Caption(caption); }
};

/// A surface all of whose writes are noted, but for those to kinds of widget that panels only show or push.
class NotingSurface final : public SurfaceWithDoubles {
 public:
  NotingSurface(std::unique_ptr<toolkit::Surface> real, Notes& notes) : SurfaceWithDoubles(std::move(real)) {
    putBefore([&notes](toolkit::Widget& widget) -> std::unique_ptr<toolkit::Widget> {
      switch (widget.Kind()) {
        case toolkit::WidgetKind::TextBox:
          return std::make_unique<NotingText<toolkit::TextBox>>(static_cast<toolkit::TextBox&>(widget), notes);
        case toolkit::WidgetKind::DateControl:
          return std::make_unique<NotingDate>(static_cast<toolkit::DateControl&>(widget), notes);
        case toolkit::WidgetKind::Label:
          return std::make_unique<NotingLabel>(static_cast<toolkit::Label&>(widget), notes);
        case toolkit::WidgetKind::CheckBox:
          return std::make_unique<NotingCheckBox>(static_cast<toolkit::CheckBox&>(widget), notes);
        case toolkit::WidgetKind::ComboBox:
          return std::make_unique<NotingComboBox>(static_cast<toolkit::ComboBox&>(widget), notes);
        case toolkit::WidgetKind::Frame:
          return std::make_unique<NotingFrame>(static_cast<toolkit::Frame&>(widget), notes);
        default:
          return nullptr;
      }
    });
  }
};

/// Makes such surfaces; all else is the real platform's.
class NotingPlatform final : public PlatformWithDoubles {
 public:
  using PlatformWithDoubles::PlatformWithDoubles;

  Notes notes;

  std::unique_ptr<toolkit::Surface> makeSurface(const toolkit::PanelLayout& layout, toolkit::Container& container,
                                                std::string name) override {
    return std::make_unique<NotingSurface>(real_.makeSurface(layout, container, std::move(name)), notes);
  }
};

}  // namespace qvn::test
