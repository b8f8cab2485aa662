// Answers the library where it misses its database.
#pragma once

#include "hosts/ufficio/store.h"
#include "qvn/shared/event.h"

namespace qvn::ufficio {

/// Gives the library the office's database when it asks for one. As long as the office itself cannot open the file it
/// gives nothing, so that the library asks again; the look-up at hand then fails.
class LibraryConnection {
 public:
  explicit LibraryConnection(Store& store) : store_(store) { listen(); }
  LibraryConnection(const LibraryConnection&) = delete;
  LibraryConnection& operator=(const LibraryConnection&) = delete;

  /// Lets the library ask anew after an opening that failed, and where the office reads another file by now. Not to be
  /// called from inside one of its handlers.
  void renew();

 private:
  void listen();
  void answer();

  Store& store_;
  Subscription subscription_;
  bool failed_ = false;
  int answered_ = 0;  ///< the store's openings when the library got its database; 0 before
};

}  // namespace qvn::ufficio
