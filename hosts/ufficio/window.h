// The office's window: its screens, the records of the one that is shown, and what can be done with them.
#pragma once

#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QPointer>
#include <QStackedWidget>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "hosts/ufficio/library_connection.h"
#include "hosts/ufficio/notice.h"
#include "hosts/ufficio/print_dialog.h"
#include "hosts/ufficio/record_chooser.h"
#include "hosts/ufficio/results_view.h"
#include "hosts/ufficio/screen.h"
#include "hosts/ufficio/settings.h"
#include "hosts/ufficio/unsaved.h"
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
  /// How to ask for the file of a print; to begin with, by askFileInWindow().
  void askFileBy(AskFile ask) { askFile_ = std::move(ask); }

  /// What the operator does by the list of screens, the chooser and the commands. False where it came to nothing, as
  /// the notice tells, or the operator has wanted to stay.
  bool chooseScreen(std::size_t number);
  bool openRecord(const Found& record);
  bool edit();
  bool save();
  bool cancel();
  bool print();

  /// The screen that is shown; null where it could not be made.
  Screen* screen() const { return current_ == nullptr ? nullptr : current_->screen.get(); }
  RecordChooser& chooser() const { return *chooser_; }
  QString notice() const { return notice_->text(); }
  bool editing() const { return editing_; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  /// A screen that was shown before, and where it stands.
  struct Shown {
    const ScreenClass* made = nullptr;
    std::unique_ptr<Screen> screen;
    QWidget* page = nullptr;
    std::unique_ptr<ResultsView> results;  ///< the page, where it is one; goes before its screen
    std::unique_ptr<ResultsView> lines;    ///< below the panels, where there are some
    QString record;                        ///< the text of the record that it shows
  };

  void layOut();
  void addCommands();
  void addSettings();
  QAction* addCommand(const char* name, const char* caption, const QKeySequence& keys, const char* tip);
  /// Does the work; where it fails, tells so behind these words.
  template <class Work>
  bool attempt(const QString& failed, Work work);

  bool makeScreen(Shown& shown);
  std::unique_ptr<ResultsView> makeResults(ResultScreen& results);
  void findRecords();
  void takeResults(std::span<const Found> found);
  bool load(const Key& key);
  /// Takes the focus from the panels, so that the field is left as by hand. False if that failed.
  bool leaveField();
  void backToField();
  void stepToPanel(bool forwards);
  /// Ends the editing, if the operator lets it end.
  bool leaveRecord();
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
  std::vector<Shown> screens_;
  Shown* current_ = nullptr;
  bool editing_ = false;
  int failures_ = 0;
  QPointer<QWidget> field_;  // of the panels, the one that had the focus last

  QListWidget* list_ = nullptr;
  RecordChooser* chooser_ = nullptr;
  QLabel* heading_ = nullptr;
  QStackedWidget* pages_ = nullptr;
  QLabel* remark_ = nullptr;
  Notice* notice_ = nullptr;
  QAction* edit_ = nullptr;
  QAction* save_ = nullptr;
  QAction* cancel_ = nullptr;
  QAction* print_ = nullptr;
  QAction* mayCancel_ = nullptr;
};

}  // namespace qvn::ufficio
