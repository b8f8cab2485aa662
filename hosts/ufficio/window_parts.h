// The parts of the office's window, and how they are laid out.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QSplitter>
#include <QStackedWidget>
#include <span>

#include "hosts/ufficio/notice.h"
#include "hosts/ufficio/record_chooser.h"
#include "hosts/ufficio/screen.h"

namespace qvn::ufficio {

/// They belong to the window.
struct WindowParts {
  QSplitter* sides = nullptr;   ///< list and chooser at the left, the rest at the right
  QListWidget* list = nullptr;  ///< the screens' titles
  RecordChooser* chooser = nullptr;
  QLabel* heading = nullptr;        ///< over the page
  QStackedWidget* pages = nullptr;  ///< the first is empty, for no screen
  QLabel* remark = nullptr;         ///< below the page
  Notice* notice = nullptr;
};

/// Lays the parts out in the window and gives it the size that they are to have to begin with.
WindowParts layOut(QMainWindow& window, std::span<const ScreenClass> classes);

}  // namespace qvn::ufficio
