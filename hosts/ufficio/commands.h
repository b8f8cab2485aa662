// The window's commands: a menu entry and a shortcut each.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <array>
#include <cstddef>
#include <cstdint>

namespace qvn::ufficio {

enum class Command : std::uint8_t {
  Search,
  Screens,
  Next,
  Previous,
  Edit,
  Add,
  Save,
  Cancel,
  Remove,
  Renew,
  Print,
  Quit,
  MayCancel,
  Dark,
  Help,
};

/// Made once for a window, in its menus and its tool bar.
class Commands {
 public:
  explicit Commands(QMainWindow& window);

  QAction& operator[](Command command) const { return *actions_.at(static_cast<std::size_t>(command)); }

 private:
  std::array<QAction*, static_cast<std::size_t>(Command::Help) + 1> actions_{};
};

}  // namespace qvn::ufficio
