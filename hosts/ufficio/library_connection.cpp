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
}

void LibraryConnection::renew() {
  if (!failed_) return;
  failed_ = false;
  Globale::unload();
  listen();
}

}  // namespace qvn::ufficio
