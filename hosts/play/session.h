// A session: panels on a toolkit, driven line by line.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "hosts/play/journal.h"
#include "hosts/play/journaling_driver.h"
#include "hosts/play/panels.h"
#include "hosts/play/toolkits.h"
#include "hosts/play/values.h"
#include "qvn/shared/clsQVN_Eventi.h"

namespace qvn::play {

/// Puts the library on the toolkit's platform for as long as it lives, so there is one session at a time. The toolkit
/// and the drivers must outlive it.
class Session {
 public:
  Session(Toolkit& toolkit, std::span<toolkit::Driver* const> drivers);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  /// Does what a line says and answers it; whatever it throws becomes a failure. Lines are counted from 1, and a bad
  /// request tells its line.
  Answer answer(std::string_view line);
  /// Counts a line that gets no answer.
  void passOver() { ++line_; }

  /// Whether any answer had "ok": false, and whether any was the failure "bad request".
  bool anyFailed() const { return anyFailed_; }
  bool anyBadRequest() const { return anyBadRequest_; }

  /// Nothing stops answering MancaDB.
  void answerMancaDB(std::optional<std::string> connectionString) { mancaDBAnswer_ = std::move(connectionString); }
  /// Drops all panels and unloads the library.
  void unload();

  Toolkit& toolkit() const { return toolkit_; }
  Operator& hands() const { return toolkit_.hands(); }
  const Locale& locale() const { return toolkit_.platform().locale(); }
  Panels& panels() { return panels_; }
  Journal& journal() { return journal_; }

 private:
  void listenForMancaDB();
  Answer carriedOut(std::string_view line);
  Answer shown();

  Toolkit& toolkit_;
  Journal journal_;
  Panels panels_;
  std::vector<std::unique_ptr<JournalingDriver>> drivers_;
  Subscription mancaDB_;
  std::optional<std::string> mancaDBAnswer_;
  std::size_t line_ = 0;
  bool anyFailed_ = false;
  bool anyBadRequest_ = false;
};

}  // namespace qvn::play
