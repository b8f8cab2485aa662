// Values on their way between the C interface and the library.
#pragma once

#include <span>
#include <vector>

#include "component/qvn.h"
#include "qvn/shared/variant.h"

namespace qvn::component {

/// What a host's value holds. "invalid argument" on a kind that there is not, on a text or an array without its data,
/// and on an object that is no event object.
Variant toVariant(const qvn_value& value);
std::vector<Variant> toVariants(std::span<const qvn_value> values);

/// Puts a value where the host finds it; texts, arrays and references belong to it. What stood there is not looked at.
void give(const Variant& value, qvn_value& to);

/// Gives back what a value owns, and leaves it empty.
void clear(qvn_value& value) noexcept;

/// The value as one of another kind, in the library's conversions. "invalid argument" for a kind that is none to
/// convert to.
Variant converted(const Variant& value, std::int32_t kind);

}  // namespace qvn::component
