// The records of the screen that is shown: finding, showing and changing them.
#pragma once

#include <functional>
#include <span>
#include <utility>

#include "hosts/ufficio/attempts.h"
#include "hosts/ufficio/field_focus.h"
#include "hosts/ufficio/notice.h"
#include "hosts/ufficio/record_chooser.h"
#include "hosts/ufficio/shown_screen.h"
#include "hosts/ufficio/store.h"
#include "hosts/ufficio/unsaved.h"
#include "platforms/qt/platform.h"

namespace qvn::ufficio {

/// What the work on records is done with. All of it must outlive the work.
struct DeskTools {
  qt::Platform& platform;
  Store& store;
  RecordChooser& chooser;
  Notice& notice;
  const Attempts& attempt;
  FieldFocus& field;
  std::function<void()> showState;  ///< shows how the record stands now
  AskUnsaved ask;
};

/// Members that give a bool are false where it came to nothing, as the notice tells, or the operator has wanted to
/// stay. But for turnTo(), screen(), shown() and those that say so, they need a screen.
class RecordDesk {
 public:
  explicit RecordDesk(DeskTools tools) : tools_(std::move(tools)) {}

  const DeskTools& tools() const { return tools_; }
  /// Null before the first screen.
  ShownScreen* shown() const { return shown_; }
  /// Null as well where the screen could not be made.
  Screen* screen() const { return shown_ == nullptr ? nullptr : shown_->screen.get(); }
  bool editing() const { return editing_; }
  /// Whether the record that is shown is one to come. Without a screen it is not.
  bool isNew() const { return shown_ != nullptr && shown_->isNew(); }

  /// Goes to another screen, with no record being edited. It must outlive the desk.
  void turnTo(ShownScreen& screen) { shown_ = &screen; }

  /// Lists the records that the filter finds; without a screen, none.
  void find();
  bool load(const Key& key);
  /// Shows a record of the list. False without a screen.
  bool open(const Found& record);
  /// Reads the list and the record that is shown again, unless it is being changed. False without a screen.
  bool renew();
  /// Shows no record.
  void forget();

  /// False without a screen or a record that can be changed.
  bool edit();
  /// True as well where no record is being edited.
  bool save();
  /// False where no record is being edited.
  bool cancel();
  /// Ends the editing, if the operator lets it end. True where no record is being edited.
  bool leave();
  /// Ends the editing without a question.
  void endEditing();

 private:
  void takeResults(std::span<const Found> found);
  /// What tells a record to the operator: as it is listed, or its code.
  QString textOf(const Key& key);
  void backToField();

  DeskTools tools_;
  ShownScreen* shown_ = nullptr;
  bool editing_ = false;
};

}  // namespace qvn::ufficio
