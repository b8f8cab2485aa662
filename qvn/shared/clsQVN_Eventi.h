// The object through which the library asks its host for the database.
#pragma once

#include <string_view>

#include "qvn/shared/event.h"

namespace qvn {

/// The library fires on the one instance of Globale; a host that makes another hears nothing on it.
class clsQVN_Eventi {
 public:
  /// Raises MancaDB if the shared connection is closed. Returns when the host's handlers have.
  void FireMancaDB();

  /// Opens the shared connection, once: the first text that is not empty wins for the life of the library, and every
  /// later call does nothing. Fails with "database" if the connection cannot be opened; its string stays set.
  void ImpostaDB(std::string_view Connessione);

  /// The database is missing: the host is to call ImpostaDB now.
  Event MancaDB;
};

}  // namespace qvn
