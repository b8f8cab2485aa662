// A platform on which chosen widgets refuse what is asked of them.
#pragma once

#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "qvn/shared/failure.h"
#include "tests/doubles.h"

namespace qvn::test {

[[noreturn]] inline void refuseFor(const toolkit::Widget& widget) {
  throw Failure(FailureKind::InvalidCall, std::string(widget.Name()).append(" refuses"));
}

/// Refuses to be enabled.
class RefusingFrame final : public Double<toolkit::Frame> {
 public:
  using Double::Double;
  using Double::Enabled;
  void Enabled(bool /*enabled*/) override { refuseFor(*this); }
  std::string Caption() const override { return real_.Caption(); }
  void Caption(std::string_view caption) override { real_.Caption(caption); }
};

/// Refuses a selection. Its handlers are not raised.
class RefusingTextBox final : public Double<toolkit::TextBox> {
 public:
  using Double::Double;
  std::string Text() const override { return real_.Text(); }
  void Text(std::string_view text) override { real_.Text(text); }
  std::int32_t SelStart() const override { return real_.SelStart(); }
  void SelStart(std::int32_t /*start*/) override { refuseFor(*this); }
  std::int32_t SelLength() const override { return real_.SelLength(); }
  void SelLength(std::int32_t /*length*/) override { refuseFor(*this); }
};

/// Refuses a selection too.
class RefusingDate final : public Double<toolkit::DateControl> {
 public:
  using Double::Double;
  std::string Text() const override { return real_.Text(); }
  void Text(std::string_view text) override { real_.Text(text); }
  std::int32_t SelStart() const override { return real_.SelStart(); }
  void SelStart(std::int32_t /*start*/) override { refuseFor(*this); }
  std::int32_t SelLength() const override { return real_.SelLength(); }
  void SelLength(std::int32_t /*length*/) override { refuseFor(*this); }
  Variant Value() const override { return real_.Value(); }
  void Value(const Variant& value) override { real_.Value(value); }
};

/// A field that refuses to be enabled or disabled. Its handlers are not raised.
template <class Interface>
class RefusingToBeEnabled : public Double<Interface> {
 public:
  using Double<Interface>::Double;
  using Double<Interface>::Enabled;
  void Enabled(bool /*enabled*/) override { refuseFor(*this); }
};

template <class Interface>
class TextRefusingToBeEnabled : public RefusingToBeEnabled<Interface> {
 public:
  using RefusingToBeEnabled<Interface>::RefusingToBeEnabled;
  std::string Text() const override { return this->real_.Text(); }
  void Text(std::string_view text) override { this->real_.Text(text); }
  std::int32_t SelStart() const override { return this->real_.SelStart(); }
  void SelStart(std::int32_t start) override { this->real_.SelStart(start); }
  std::int32_t SelLength() const override { return this->real_.SelLength(); }
  void SelLength(std::int32_t length) override { this->real_.SelLength(length); }
};

class DateRefusingToBeEnabled final : public TextRefusingToBeEnabled<toolkit::DateControl> {
 public:
  using TextRefusingToBeEnabled::TextRefusingToBeEnabled;
  Variant Value() const override { return real_.Value(); }
  void Value(const Variant& value) override { real_.Value(value); }
};

class CheckBoxRefusingToBeEnabled final : public RefusingToBeEnabled<toolkit::CheckBox> {
 public:
  using RefusingToBeEnabled::RefusingToBeEnabled;
  std::string Caption() const override { return real_.Caption(); }
  std::int16_t Value() const override { return real_.Value(); }
  void Value(std::int16_t value) override { real_.Value(value); }
};

inline std::unique_ptr<toolkit::Widget> refusingToBeEnabled(toolkit::Widget& widget) {
  switch (widget.Kind()) {
    case toolkit::WidgetKind::DateControl:
      return std::make_unique<DateRefusingToBeEnabled>(static_cast<toolkit::DateControl&>(widget));
    case toolkit::WidgetKind::CheckBox:
      return std::make_unique<CheckBoxRefusingToBeEnabled>(static_cast<toolkit::CheckBox&>(widget));
    default:
      return std::make_unique<TextRefusingToBeEnabled<toolkit::TextBox>>(static_cast<toolkit::TextBox&>(widget));
  }
}

/// A surface whose frames and fields of the given names are refusing ones, and whose fields of other names refuse to
/// be enabled.
class RefusingSurface final : public SurfaceWithDoubles {
 public:
  RefusingSurface(std::unique_ptr<toolkit::Surface> real, const std::set<std::string, std::less<>>& refusing,
                  const std::set<std::string, std::less<>>& toBeEnabled)
      : SurfaceWithDoubles(std::move(real)) {
    putBefore([&](toolkit::Widget& widget) -> std::unique_ptr<toolkit::Widget> {
      if (toBeEnabled.contains(widget.Name())) return refusingToBeEnabled(widget);
      if (!refusing.contains(widget.Name())) return nullptr;
      if (widget.Kind() == toolkit::WidgetKind::Frame) {
        return std::make_unique<RefusingFrame>(static_cast<toolkit::Frame&>(widget));
      }
      if (widget.Kind() == toolkit::WidgetKind::DateControl) {
        return std::make_unique<RefusingDate>(static_cast<toolkit::DateControl&>(widget));
      }
      return std::make_unique<RefusingTextBox>(static_cast<toolkit::TextBox&>(widget));
    });
  }
};

/// Makes such surfaces; all else is the real platform's.
class RefusingPlatform final : public PlatformWithDoubles {
 public:
  using PlatformWithDoubles::PlatformWithDoubles;

  /// Of the surfaces made from now on.
  std::set<std::string, std::less<>> refusing;
  std::set<std::string, std::less<>> refusingToBeEnabled;

  std::unique_ptr<toolkit::Surface> makeSurface(const toolkit::PanelLayout& layout, toolkit::Container& container,
                                                std::string name) override {
    return std::make_unique<RefusingSurface>(real_.makeSurface(layout, container, std::move(name)), refusing,
                                             refusingToBeEnabled);
  }
};

}  // namespace qvn::test
