// A platform on which chosen widgets refuse what is asked of them.
#pragma once

#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "qvn/shared/failure.h"
#include "qvn/toolkit/platform.h"

namespace qvn::test {

/// A widget that hands on what every widget has, as a double of a real one.
template <class Interface>
class Double : public Interface {
 public:
  explicit Double(Interface& real) : real_(real) {}

  const toolkit::WidgetLayout& layout() const override { return real_.layout(); }
  toolkit::Surface& owner() const override { return real_.owner(); }
  toolkit::Frame* frame() const override { return real_.frame(); }
  toolkit::Place place() const override { return real_.place(); }
  void place(toolkit::Place place) override { real_.place(place); }
  bool Enabled() const override { return real_.Enabled(); }
  void Enabled(bool enabled) override { real_.Enabled(enabled); }
  bool Visible() const override { return real_.Visible(); }
  void Visible(bool visible) override { real_.Visible(visible); }
  std::uint32_t BackColor() const override { return real_.BackColor(); }
  void BackColor(std::uint32_t colour) override { real_.BackColor(colour); }
  std::uint32_t ForeColor() const override { return real_.ForeColor(); }
  void ForeColor(std::uint32_t colour) override { real_.ForeColor(colour); }
  void SetFocus() override { real_.SetFocus(); }
  bool hasFocus() const override { return real_.hasFocus(); }

 protected:
  Interface& real_;

  [[noreturn]] void refuse() const {
    throw Failure(FailureKind::InvalidCall, std::string(real_.Name()).append(" refuses"));
  }
};

/// Refuses to be enabled.
class RefusingFrame final : public Double<toolkit::Frame> {
 public:
  using Double::Double;
  using Double::Enabled;
  void Enabled(bool /*enabled*/) override { refuse(); }
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
  void SelStart(std::int32_t /*start*/) override { refuse(); }
  std::int32_t SelLength() const override { return real_.SelLength(); }
  void SelLength(std::int32_t /*length*/) override { refuse(); }
};

/// A surface whose frames and text boxes of the given names are refusing ones.
class RefusingSurface final : public toolkit::Surface {
 public:
  RefusingSurface(std::unique_ptr<toolkit::Surface> real, const std::set<std::string, std::less<>>& refusing)
      : real_(std::move(real)), widgets_(real_->widgets().begin(), real_->widgets().end()) {
    for (toolkit::Widget*& widget : widgets_) {
      if (!refusing.contains(widget->Name())) continue;
      if (widget->Kind() == toolkit::WidgetKind::Frame) {
        doubles_.push_back(std::make_unique<RefusingFrame>(static_cast<toolkit::Frame&>(*widget)));
      } else {
        doubles_.push_back(std::make_unique<RefusingTextBox>(static_cast<toolkit::TextBox&>(*widget)));
      }
      widget = doubles_.back().get();
    }
  }

  toolkit::Platform& platform() const override { return real_->platform(); }
  toolkit::Container& container() const override { return real_->container(); }
  const toolkit::PanelLayout& layout() const override { return real_->layout(); }
  std::string_view name() const override { return real_->name(); }
  std::span<toolkit::Widget* const> widgets() const override { return widgets_; }
  bool Visible() const override { return real_->Visible(); }
  void Visible(bool visible) override { real_->Visible(visible); }
  bool Enabled() const override { return real_->Enabled(); }
  void Enabled(bool enabled) override { real_->Enabled(enabled); }
  bool dropped() const override { return real_->dropped(); }

 private:
  void hold() override { holds_.push_back(std::make_unique<Hold>(*real_)); }
  void release() noexcept override { holds_.pop_back(); }

  std::unique_ptr<toolkit::Surface> real_;
  std::vector<toolkit::Widget*> widgets_;
  std::vector<std::unique_ptr<toolkit::Widget>> doubles_;
  std::vector<std::unique_ptr<Hold>> holds_;
};

/// Makes such surfaces; all else is the real platform's. The panels on it go before it does, outside any handler.
class RefusingPlatform final : public toolkit::Platform {
 public:
  explicit RefusingPlatform(toolkit::Platform& real) : real_(real) {}

  /// Of the surfaces made from now on.
  std::set<std::string, std::less<>> refusing;

  std::string_view name() const override { return real_.name(); }
  toolkit::Capabilities capabilities() const override { return real_.capabilities(); }
  std::unique_ptr<toolkit::Surface> makeSurface(const toolkit::PanelLayout& layout, toolkit::Container& container,
                                                std::string name) override {
    return std::make_unique<RefusingSurface>(real_.makeSurface(layout, container, std::move(name)), refusing);
  }
  std::unique_ptr<toolkit::Form> makeForm(const toolkit::FormLayout& layout, toolkit::Container& container) override {
    return real_.makeForm(layout, container);
  }
  toolkit::Widget* focused() const override { return real_.focused(); }
  const Locale& locale() const override { return real_.locale(); }
  const toolkit::Clock& clock() const override { return real_.clock(); }
  toolkit::ScreenSize screen() const override { return real_.screen(); }
  void beep() override { real_.beep(); }
  const toolkit::Forms& forms() const override { return real_.forms(); }
  toolkit::Drivers& drivers() override { return real_.drivers(); }

 private:
  toolkit::Platform& real_;
};

}  // namespace qvn::test
