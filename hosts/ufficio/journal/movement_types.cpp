#include "hosts/ufficio/journal/movement_types.h"

#include <array>

namespace qvn::ufficio::journal {

std::vector<Row> linesOfType(Store& store, std::int64_t type) {
  if (!store.hasTable("DATI_MOVIMENTI")) return {};
  return store.rows("SELECT * FROM DATI_MOVIMENTI WHERE COD_MOVIMENTO = ?1 ORDER BY PROGRESSIVO",
                    std::array{Value(type)});
}

void makeTypeLinesTable(Store& store) {
  store.run(
      "CREATE TABLE IF NOT EXISTS DATI_MOVIMENTI ("
      "COD_MOVIMENTO INTEGER NOT NULL, PROGRESSIVO INTEGER NOT NULL, MASTRO TEXT NOT NULL, CONTO TEXT NOT NULL, "
      "TIPO TEXT NOT NULL, RIPETI INTEGER NOT NULL, IVA INTEGER NOT NULL, TIPO_IVA TEXT NOT NULL, "
      "PRIMARY KEY (COD_MOVIMENTO, PROGRESSIVO)) WITHOUT ROWID");
}

}  // namespace qvn::ufficio::journal
