// A form in memory.
#pragma once

#include <cstdint>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "platforms/memory/surface.h"
#include "platforms/memory/turns.h"
#include "qvn/toolkit/form.h"

namespace qvn::memory {

class Platform;

/// What a window's frame and title add to the size of its inside, in twips.
inline constexpr std::int32_t kFrameWidth = 120;
inline constexpr std::int32_t kFrameHeight = 465;

/// One modal showing of a form, for as long as its call runs.
struct Showing {
  bool over = false;
};

/// A window that stands only for the operator's hands. While it is shown, what was laid down for it is done; then its
/// frame closes it.
class Form final : public toolkit::Form, public Turns::Lasting {
 public:
  Form(Platform& platform, const toolkit::FormLayout& layout, toolkit::Container& container)
      : platform_(platform), layout_(layout), container_(container) {}
  /// Unloads the form, whose failures then go to the container; inside a handler its memory stays until the outermost
  /// has returned.
  void operator delete(Form* form, std::destroying_delete_t);

  std::string_view Name() const override { return layout_.inside.name; }
  std::string Caption() const override;
  void Caption(std::string_view caption) override;
  toolkit::Place place() const override;
  void place(toolkit::Place place) override;

  void load() override;
  void unload() override;
  bool loaded() const override { return surface_ != nullptr; }
  void refresh() override;
  void showModal() override;
  void hide() override;
  toolkit::Surface& surface() const override { return standing(); }
  /// As the operator closes the window by its frame.
  void closeByFrame();

 private:
  void destroy() noexcept override;
  Surface& standing() const;
  [[noreturn]] void refuse(std::string_view why) const;
  /// Gives the focus back, whose handlers may do anything with the form.
  void leaveScreen(Showing& showing, Surface& surface);
  /// Raises Unload and takes the form away, whatever Unload does; its failure goes to whom it concerns.
  template <class OnFailure>
  void unload(OnFailure onFailure);
  void takeAway();
  void tell() const;
  /// False if the form has no widget in whose name the failure could be reported.
  bool report(const Failure& failure) noexcept;

  Platform& platform_;
  const toolkit::FormLayout& layout_;
  toolkit::Container& container_;
  std::shared_ptr<const void> life_ = std::make_shared<char>();
  std::unique_ptr<Surface> surface_;  // null while the form is not loaded
  std::string caption_;
  toolkit::Place place_;
  Showing* showing_ = nullptr;
  bool unloading_ = false;
};

/// The forms that are loaded, in load order.
class LoadedForms final : public toolkit::Forms {
 public:
  std::int32_t count() const override { return static_cast<std::int32_t>(forms_.size()); }
  toolkit::Form& at(std::int32_t index) const override;

  void add(toolkit::Form& form) { forms_.push_back(&form); }
  void remove(const toolkit::Form& form) { std::erase(forms_, &form); }

 private:
  std::vector<toolkit::Form*> forms_;
};

}  // namespace qvn::memory
