// The rows of the sessions as a driver for tests answers with them.
#pragma once

#include <string_view>

#include "tests/fake_database.h"

namespace qvn::test {

/// The answers to all statements that find a row.
void layDownRows(FakeDriver& driver);

/// The double of a number with a point.
double doubleOf(std::string_view text);

}  // namespace qvn::test
