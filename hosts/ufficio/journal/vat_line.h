// The VAT line of a movement. The office keeps the table MOVIMENTI_IVA itself and makes it when the first line is
// stored.
#pragma once

#include <array>
#include <string_view>

#include "hosts/ufficio/field.h"
#include "hosts/ufficio/screen.h"
#include "hosts/ufficio/store.h"

namespace qvn::ufficio::journal {

inline constexpr std::string_view kVatTable = "MOVIMENTI_IVA";

/// How ctlINS_IVA shows the table's columns.
inline constexpr std::array kVatFields{
    Field{"COD_IVA", "COD_IVA", Kind::Number},
    Field{"IMPONIBILE", "IMPONIBILE", Kind::Amount},
    Field{"IVA", "IVA", Kind::Amount},
};

/// The line of that movement; one of no code and no amounts where it has none yet.
Row vatLineOf(Store& store, const Value& movement);

/// Makes the table if it is not there, within a transaction.
void makeVatTable(Store& store);

}  // namespace qvn::ufficio::journal
