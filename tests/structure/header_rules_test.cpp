// Every header says at its head what it is for, and may be included twice. That each one of the library, the platforms
// and the hosts compiles alone is seen by the build.
#include <array>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "tests/structure/tree.h"

namespace qvn::structure {

namespace {

/// What is wrong with the head of a header, empty if nothing is.
std::string wrongWithHead(std::string_view text) {
  if (!text.starts_with("// ")) return "does not say what it is for";
  while (text.starts_with("//")) text.remove_prefix(std::min(text.find('\n'), text.size() - 1) + 1);
  return text.starts_with("#pragma once\n") ? "" : "is not kept from being included twice";
}

TEST(Headers, sayWhatTheyAreForAndAreKeptFromBeingIncludedTwice) {
  constexpr std::array<std::string_view, 8> folders{"qvn",      "platforms", "component", "hosts",
                                                    "examples", "tests",     "bench",     "fuzz"};
  constexpr std::array<std::string_view, 1> endings{".h"};
  const auto headers = filesBelow(folders, endings);
  EXPECT_GT(headers.size(), 20U);
  for (const auto& header : headers) EXPECT_EQ("", wrongWithHead(header.text)) << header.path;
}

TEST(Headers, areRefusedWithoutAHead) {
  EXPECT_EQ("", wrongWithHead("// Money.\n//\n// In ten-thousandths.\n#pragma once\n"));
  EXPECT_EQ("does not say what it is for", wrongWithHead("#pragma once\n"));
  EXPECT_EQ("is not kept from being included twice", wrongWithHead("// Money.\n#include <string>\n"));
  EXPECT_EQ("is not kept from being included twice", wrongWithHead("// Money."));
}

}  // namespace

}  // namespace qvn::structure
