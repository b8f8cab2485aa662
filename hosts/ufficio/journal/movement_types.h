// The lines that a movement type is defined by. The office keeps the table DATI_MOVIMENTI itself and makes it when the
// first are stored.
#pragma once

#include <cstdint>
#include <vector>

#include "hosts/ufficio/store.h"

namespace qvn::ufficio::journal {

/// In their order; none where there is no table yet.
std::vector<Row> linesOfType(Store& store, std::int64_t type);

/// Makes the table if it is not there, within a transaction.
void makeTypeLinesTable(Store& store);

}  // namespace qvn::ufficio::journal
