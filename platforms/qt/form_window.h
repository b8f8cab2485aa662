// A form's window.
#pragma once

#include <QDialog>

#include "platforms/memory/form.h"

namespace qvn::qt {

class PanelWidget;
class Screen;

/// Stands around the inside of a form, before all other windows.
class FormWindow final : public QDialog {
 public:
  FormWindow(Screen& screen, PanelWidget& inside);

  /// The form that is shown, null while none is.
  memory::Form* form() const { return form_; }
  void stand(memory::Form& form);
  void leave();
  /// Shows the form's caption, and its place where that is another than it was; the desktop finds the first.
  void showForm();
  /// Nothing: Escape is a key like any other.
  void reject() override {}

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  Screen& screen_;
  memory::Form* form_ = nullptr;
  toolkit::Place place_;
};

}  // namespace qvn::qt
