// Work that may fail, done in the office's window.
#pragma once

#include <QString>
#include <functional>

#include "hosts/ufficio/library_connection.h"
#include "hosts/ufficio/notice.h"

namespace qvn::ufficio {

/// Connection and notice must outlive it.
class Attempts {
 public:
  Attempts(LibraryConnection& connection, Notice& notice) : connection_(connection), notice_(notice) {}

  /// Does the work. Where it fails with an exception, warns in the notice, behind these words, and is false.
  bool operator()(const QString& failed, const std::function<void()>& work) const;

 private:
  LibraryConnection& connection_;
  Notice& notice_;
};

}  // namespace qvn::ufficio
