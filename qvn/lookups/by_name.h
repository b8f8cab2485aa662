// The free lookups and pick lists by their names, for sessions and component hosts.
#pragma once

#include <functional>
#include <span>
#include <string_view>

#include "qvn/shared/locale.h"
#include "qvn/shared/variant.h"

namespace qvn {

/// One lookup or pick list; its arguments are in/out.
struct LookupFunction {
  std::string_view name;
  std::string_view type;  ///< of the result; empty for none
  std::function<Variant(std::span<Variant>, const Locale&)> call;
};

/// The lookups and pick lists of the library, sorted by name.
std::span<const LookupFunction> lookupFunctions();

/// Calls a lookup by its name, without regard to case. Arguments are in/out. "no such member" if there is none of that
/// name; any failure of the lookup names it in front.
Variant callLookup(std::string_view name, std::span<Variant> args);

}  // namespace qvn
