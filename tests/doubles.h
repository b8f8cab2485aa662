// Doubles of widgets that stand before the real ones of a platform.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

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
};

/// A real surface, some of whose widgets have doubles before them.
class SurfaceWithDoubles : public toolkit::Surface {
 public:
  explicit SurfaceWithDoubles(std::unique_ptr<toolkit::Surface> real)
      : real_(std::move(real)), widgets_(real_->widgets().begin(), real_->widgets().end()) {}

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

 protected:
  /// Puts the double that is made of each widget before it; none where it makes null.
  template <class MakeDouble>
  void putBefore(MakeDouble&& makeDouble) {
    for (toolkit::Widget*& widget : widgets_) {
      std::unique_ptr<toolkit::Widget> made = makeDouble(*widget);
      if (made == nullptr) continue;
      widget = made.get();
      doubles_.push_back(std::move(made));
    }
  }

 private:
  void hold() override { holds_.push_back(std::make_unique<Hold>(*real_)); }
  void release() noexcept override { holds_.pop_back(); }

  std::unique_ptr<toolkit::Surface> real_;
  std::vector<toolkit::Widget*> widgets_;
  std::vector<std::unique_ptr<toolkit::Widget>> doubles_;
  std::vector<std::unique_ptr<Hold>> holds_;
};

/// A real platform but for its surfaces. The panels on it go before it does, outside any handler.
class PlatformWithDoubles : public toolkit::Platform {
 public:
  explicit PlatformWithDoubles(toolkit::Platform& real) : real_(real) {}

  std::string_view name() const override { return real_.name(); }
  toolkit::Capabilities capabilities() const override { return real_.capabilities(); }
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

 protected:
  toolkit::Platform& real_;
};

}  // namespace qvn::test
