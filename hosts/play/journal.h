// What has happened, in order, until it is read.
#pragma once

#include <string_view>

#include "hosts/play/values.h"
#include "platforms/operator.h"

namespace qvn::play {

/// Hears the focus, the beep, the forms and the viewers from the platform; the other entries are written by who sees
/// them.
class Journal final : public Watcher {
 public:
  /// The name is kept as it was announced.
  void notice(std::string_view panel, std::string_view name);
  void mancaDB();
  void open(std::string_view connectionString, std::int32_t cursorLocation);
  void sql(std::string_view text, std::int32_t cursor, std::int32_t lock, std::int32_t options);

  void lostFocus(const toolkit::Widget& widget) override;
  void gotFocus(const toolkit::Widget& widget) override;
  void beeped() override;
  void formLoaded(std::string_view form) override;
  void formShown(std::string_view form) override;
  void formHidden(std::string_view form) override;
  void formUnloaded(std::string_view form) override;
  void viewerRuns(std::string_view form, std::string_view sql) override;

  /// How often it has beeped since the journal was made.
  std::int32_t beeps() const { return beeps_; }

  /// The entries since the last call, oldest first.
  Answer take();

 private:
  Answer entries_ = Answer::array();
  std::int32_t beeps_ = 0;
};

}  // namespace qvn::play
