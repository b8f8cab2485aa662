#include "platforms/qt/hands.h"

namespace qvn::qt {

namespace {

/// Shows what was done, and what was done before it failed.
class Showing {
 public:
  explicit Showing(Screen& screen) : screen_(screen) {}
  ~Showing() { screen_.settle(); }
  Showing(const Showing&) = delete;
  Showing& operator=(const Showing&) = delete;

 private:
  Screen& screen_;
};

}  // namespace

void Hands::focus(toolkit::Widget& widget) {
  const Showing showing(screen_);
  hands_.focus(widget);
}

void Hands::leave() {
  const Showing showing(screen_);
  hands_.leave();
}

void Hands::type(std::string_view keys) {
  const Showing showing(screen_);
  hands_.type(keys);
}

void Hands::caret(std::int32_t start, std::int32_t length) {
  const Showing showing(screen_);
  hands_.caret(start, length);
}

void Hands::paste(std::string_view text) {
  const Showing showing(screen_);
  hands_.paste(text);
}

void Hands::click(toolkit::Widget& widget) {
  const Showing showing(screen_);
  hands_.click(widget);
}

void Hands::choose(toolkit::ComboBox& list, std::int32_t index) {
  const Showing showing(screen_);
  hands_.choose(list, index);
}

void Hands::choose(toolkit::ComboBox& list, std::string_view item) {
  const Showing showing(screen_);
  hands_.choose(list, item);
}

}  // namespace qvn::qt
