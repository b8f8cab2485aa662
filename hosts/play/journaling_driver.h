// A database driver that leaves a trace in the journal.
#pragma once

#include <memory>
#include <string_view>

#include "hosts/play/journal.h"
#include "qvn/toolkit/database.h"

namespace qvn::play {

/// Passes everything on to another driver, and enters each opening and each statement of the library's connection
/// before the other driver sees it, so that the failed ones stand in the journal too. A viewer's connection is the
/// platform's to tell of. Owns neither driver nor journal.
class JournalingDriver final : public toolkit::Driver {
 public:
  JournalingDriver(toolkit::Driver& driver, Journal& journal) : driver_(driver), journal_(journal) {}

  std::string_view head() const override { return driver_.head(); }
  std::unique_ptr<toolkit::Session> open(const toolkit::Opening& opening) override;

 private:
  toolkit::Driver& driver_;
  Journal& journal_;
};

}  // namespace qvn::play
