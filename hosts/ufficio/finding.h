// Finds records by what the operator types.
#pragma once

#include <string_view>
#include <vector>

#include "hosts/ufficio/screen.h"
#include "hosts/ufficio/store.h"

namespace qvn::ufficio {

/// What a statement finds: ?1 is the filter, which holds() looks for, ?2 the most rows. Its first column is the
/// record's text, the others its key.
std::vector<Found> findBy(std::string_view statement, Store& store, std::string_view filter, int most);

}  // namespace qvn::ufficio
