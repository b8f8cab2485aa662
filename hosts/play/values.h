// Values on their way between JSON and the library.
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

#include "qvn/shared/date.h"
#include "qvn/shared/locale.h"
#include "qvn/shared/variant.h"

namespace qvn::play {

using Json = nlohmann::json;
using Answer = nlohmann::ordered_json;

/// The value that a request holds. BadRequest, quoting the JSON, where it is none of the protocol's forms; an element
/// of an array that does not convert to currency fails as the conversion does, naming its place.
Variant toVariant(const Json& json, const Locale& locale);

/// A whole number of 32 bits, 12.0 too; nothing where the JSON is none.
std::optional<std::int32_t> wholeNumber(const Json& json);

/// The value as answers show it.
Answer toJson(const Variant& value);

/// The date of a text "2026-11-15". BadRequest, quoting the text, if it is none.
Date dateOfIso(std::string_view text);

/// A text for a message, cut where it is long.
std::string shortened(std::string text);
/// A JSON value for a message.
std::string excerpt(const Json& json);

}  // namespace qvn::play
