// The office's window: its screens, the records of the one that is shown, and what can be done with them.
#pragma once

#include <QMainWindow>
#include <QSettings>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "hosts/ufficio/attempts.h"
#include "hosts/ufficio/commands.h"
#include "hosts/ufficio/field_focus.h"
#include "hosts/ufficio/library_connection.h"
#include "hosts/ufficio/print_dialog.h"
#include "hosts/ufficio/record_chooser.h"
#include "hosts/ufficio/record_desk.h"
#include "hosts/ufficio/removing.h"
#include "hosts/ufficio/screen.h"
#include "hosts/ufficio/settings.h"
#include "hosts/ufficio/shown_screen.h"
#include "hosts/ufficio/unsaved.h"
#include "hosts/ufficio/window_parts.h"
#include "platforms/qt/announcements.h"
#include "platforms/qt/platform.h"

namespace qvn::ufficio {

/// Nothing leaves it as an exception: what fails is told in the notice. What the operator has typed stays on the screen
/// until it is stored or the operator says that it is not to be.
class Window final : public QMainWindow {
 public:
  /// The library must be installed on the platform, which must outlive the window, as must store and classes.
  Window(qt::Platform& platform, Store& store, std::span<const ScreenClass> classes);
  ~Window() override;

  /// How to ask about changes that are not stored; to begin with, by askInWindow().
  void askBy(AskUnsaved ask) { ask_ = std::move(ask); }
  /// How to ask before something is removed; to begin with, by askToRemoveInWindow().
  void askRemovalBy(AskToGoOn ask) { askRemoval_ = std::move(ask); }
  /// How to ask for the file of a print; to begin with, by askFileInWindow().
  void askFileBy(AskFile ask) { askFile_ = std::move(ask); }

  /// What the operator does by the list of screens, the chooser and the commands. False where it came to nothing, as
  /// the notice tells, or the operator has wanted to stay.
  bool chooseScreen(std::size_t number);
  bool openRecord(const Found& record) { return desk_.open(record); }
  bool edit() { return desk_.edit(); }
  bool add();
  bool save() { return desk_.save(); }
  bool cancel() { return desk_.cancel(); }
  bool remove();
  /// Reads the list and the record that is shown again, unless it is being changed.
  bool renew() { return desk_.renew(); }
  bool print();
  void help();

  /// Shows all windows of the program in dark colours.
  void darken() { commands_[Command::Dark].setChecked(true); }
  /// Takes place, parts, appearance and last screen from there, and puts them there when it closes. The settings must
  /// outlive it.
  void keepStateIn(QSettings& settings);

  /// The screen that is shown; null where it could not be made.
  Screen* screen() const { return desk_.screen(); }
  RecordChooser& chooser() const { return *parts_.chooser; }
  QString notice() const { return parts_.notice->text(); }
  bool editing() const { return desk_.editing(); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  /// What others have stored in the meantime is shown when the operator comes back to the window.
  void changeEvent(QEvent* event) override;

 private:
  void connectCommands();
  bool makeScreen(ShownScreen& shown);
  void stepToPanel(bool forwards);
  void showState();
  void tellFailure(const QString& panel, const QString& widget, const QString& event, const QString& message,
                   FailureKind kind);

  qt::Platform& platform_;
  Store& store_;
  Settings settings_;
  LibraryConnection connection_;
  qt::Announcements announcements_;  // before the panels, which announce to it
  AskUnsaved ask_;
  AskFile askFile_;
  AskToGoOn askRemoval_;
  bool asking_ = false;
  QSettings* settingsFile_ = nullptr;
  std::vector<ShownScreen> screens_;

  const Commands commands_{*this};
  const WindowParts parts_;
  const Attempts attempt_{connection_, *parts_.notice};
  FieldFocus field_{platform_, *parts_.chooser, attempt_};
  RecordDesk desk_;
};

}  // namespace qvn::ufficio
