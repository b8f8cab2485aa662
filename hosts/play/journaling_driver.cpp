#include "hosts/play/journaling_driver.h"

#include <utility>

namespace qvn::play {

namespace {

class JournalingSession final : public toolkit::Session {
 public:
  JournalingSession(std::unique_ptr<toolkit::Session> session, Journal& journal)
      : session_(std::move(session)), journal_(journal) {}

  std::unique_ptr<toolkit::Rows> run(const toolkit::Statement& statement) override {
    journal_.sql(statement.sql, statement.cursorType, statement.lockType, statement.options);
    return session_->run(statement);
  }

 private:
  std::unique_ptr<toolkit::Session> session_;
  Journal& journal_;
};

}  // namespace

std::unique_ptr<toolkit::Session> JournalingDriver::open(const toolkit::Opening& opening) {
  if (!opening.viewer.empty()) return driver_.open(opening);
  journal_.open(opening.connectionString, opening.cursorLocation);
  return std::make_unique<JournalingSession>(driver_.open(opening), journal_);
}

}  // namespace qvn::play
