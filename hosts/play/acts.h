// What an operator is to do at a form, as sessions write it.
#pragma once

#include <vector>

#include "hosts/play/values.h"
#include "platforms/operator.h"

namespace qvn::play {

/// The acts of a list, each an object of one key: {"row":N}, {"double":N}, {"column":N}, {"key":K}, {"click":W},
/// {"close":true}, {"look":true}. BadRequest, naming the act by its place from 1, on anything else.
std::vector<Act> actsOf(const Json& list);

/// An act as it was written.
Answer toJson(const Act& act);

}  // namespace qvn::play
