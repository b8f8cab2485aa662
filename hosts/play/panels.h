// The panels of a session, by the session's names for them.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "hosts/play/journal.h"
#include "hosts/play/values.h"
#include "platforms/operator.h"
#include "qvn/panels/classes.h"

namespace qvn::play {

/// Holds the panels and is the container that they are placed in: notices go to the journal, failures of handlers, and
/// acts that the operator could not do at forms, are kept until they are taken. Journal and operator must outlive it.
class Panels final : public toolkit::Container {
 public:
  Panels(Journal& journal, Operator& hands) : journal_(journal), hands_(hands) {}

  /// BadRequest for an empty name, "invalid call" for one that is taken; whatever the class's own making fails with
  /// passes on, and no panel stays.
  Panel& make(const std::string& name, const PanelClass& made);
  /// The panel of a name, BadRequest if the session has none.
  Panel& at(const std::string& name) const;
  void drop(const std::string& name);
  void clear() { panels_.clear(); }

  /// What handlers let pass and what could not be done since the last call, in order, as answers show it.
  Answer takeFailures();

  void PropertyChanged(toolkit::Surface& panel, std::string_view name) override;
  void handlerFailed(toolkit::Surface& panel, toolkit::Widget& widget, std::string_view event,
                     const Failure& failure) noexcept override;

 private:
  void addFailedActs();

  Journal& journal_;
  Operator& hands_;
  Answer failures_ = Answer::array();
  std::map<std::string, std::unique_ptr<Panel>, std::less<>> panels_;
};

/// The message with panel and widget in front, as far as it does not name them itself.
std::string placed(const toolkit::Surface& panel, const toolkit::Widget& widget, std::string_view message);

}  // namespace qvn::play
