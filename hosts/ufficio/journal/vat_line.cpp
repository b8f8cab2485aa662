#include "hosts/ufficio/journal/vat_line.h"

#include <vector>

namespace qvn::ufficio::journal {

Row vatLineOf(Store& store, const Value& movement) {
  if (store.hasTable(kVatTable)) {
    std::vector<Row> lines = store.rows("SELECT * FROM MOVIMENTI_IVA WHERE N_MOVIMENTO = ?1", std::array{movement});
    if (!lines.empty()) return std::move(lines.front());
  }
  const std::int64_t zero = 0;
  return {.columns = {"N_MOVIMENTO", "COD_IVA", "IMPONIBILE", "IVA"},
          .values = {movement, zero, zero, zero},
          .isNew = true};
}

void makeVatTable(Store& store) {
  store.run(
      "CREATE TABLE IF NOT EXISTS MOVIMENTI_IVA ("
      "N_MOVIMENTO INTEGER PRIMARY KEY, COD_IVA INTEGER NOT NULL, "
      "IMPONIBILE DECIMAL(19,4) NOT NULL, IVA DECIMAL(19,4) NOT NULL)");
}

}  // namespace qvn::ufficio::journal
