#include "hosts/ufficio/library_connection.h"

#include "qvn/shared/Globale.h"

namespace qvn::ufficio {

void LibraryConnection::listen() {
  subscription_ = Globale::Eventi()->MancaDB.subscribe([this] { answer(); });
}

void LibraryConnection::answer() {
  if (!store_.canOpen()) return;
  failed_ = true;
  Globale::Eventi()->ImpostaDB("sqlite:" + store_.path());
  failed_ = false;
  answered_ = store_.openings();
}

void LibraryConnection::renew() {
  const bool other = answered_ != 0 && answered_ != store_.openings();
  if (!failed_ && !other) return;
  failed_ = false;
  answered_ = 0;
  Globale::unload();
  listen();
}

}  // namespace qvn::ufficio
