#include "qvn/shared/clsQVN_Eventi.h"

#include "qvn/shared/Globale.h"

namespace qvn {

void clsQVN_Eventi::FireMancaDB() {
  if (Globale::DB().State() == 0) MancaDB.raise();
}

void clsQVN_Eventi::ImpostaDB(std::string_view Connessione) {
  toolkit::Connection& db = Globale::DB();
  if (!db.ConnectionString().empty() || Connessione.empty()) return;
  db.CursorLocation(toolkit::adUseClient);
  db.Open(Connessione, "", "", toolkit::adOptionUnspecified);
}

}  // namespace qvn
