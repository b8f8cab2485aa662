// What failed, with what kind, and whether the message says it.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "qvn/shared/failure.h"

namespace qvn::test {

template <class Statement>
testing::AssertionResult failsWith(FailureKind kind, std::string_view named, Statement&& statement) {
  try {
    statement();
  } catch (const Failure& failure) {
    if (failure.kind() != kind) {
      return testing::AssertionFailure() << "failed with \"" << nameOf(failure.kind()) << "\": " << failure.what();
    }
    if (std::string_view(failure.what()).find(named) == std::string_view::npos) {
      return testing::AssertionFailure() << "the message does not name \"" << named << "\": " << failure.what();
    }
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure() << "did not fail";
}

}  // namespace qvn::test

/// Expects the statement to fail with the kind and a message that contains the text.
#define EXPECT_FAILURE(statement, kind, named) \
  EXPECT_TRUE(::qvn::test::failsWith(kind, named, [&] { (void)(statement); }))
