// What the office asks of the account that a line posts to.
#pragma once

#include "hosts/ufficio/store.h"

namespace qvn::ufficio::journal {

/// StoreFailure, naming the line by its number, if the line's MASTRO and CONTO are no account.
void requireAccount(Store& store, const Row& line, std::string_view number);

}  // namespace qvn::ufficio::journal
