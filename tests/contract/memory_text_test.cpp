// UTF-8 as the platform in memory reads it.
#include <gtest/gtest.h>
#include <string>

#include "platforms/memory/utf8.h"

namespace qvn::test {
namespace {

namespace utf8 = memory::utf8;

TEST(MemoryText, EveryCharacterSurvivesEncodingAndDecoding) {
  for (char32_t c = 0; c <= 0x10FFFF; c += (c < 0x3000 ? 1 : 13)) {
    if (c >= 0xD800 && c <= 0xDFFF) continue;
    std::string text;
    utf8::append(text, c);
    std::string_view rest = text;
    ASSERT_EQ(utf8::takeFirst(rest), c);
    ASSERT_TRUE(rest.empty());
    ASSERT_EQ(utf8::valid(text), text);
  }
}

TEST(MemoryText, TheEdgesOfEachLengthAreEncodedAsShortAsTheyGo) {
  const auto bytes = [](char32_t c) {
    std::string text;
    utf8::append(text, c);
    return text.size();
  };
  EXPECT_EQ(bytes(0x7F), 1U);
  EXPECT_EQ(bytes(0x80), 2U);
  EXPECT_EQ(bytes(0x7FF), 2U);
  EXPECT_EQ(bytes(0x800), 3U);
  EXPECT_EQ(bytes(0xFFFF), 3U);
  EXPECT_EQ(bytes(0x10000), 4U);
  EXPECT_EQ(bytes(0x10FFFF), 4U);
}

TEST(MemoryText, WhatIsNoCharacterIsEncodedAsTheReplacement) {
  for (const char32_t c : {char32_t{0xD800}, char32_t{0xDFFF}, char32_t{0x110000}, char32_t{0xFFFFFFFF}}) {
    std::string text;
    utf8::append(text, c);
    EXPECT_EQ(text, "\uFFFD");
  }
}

TEST(MemoryText, EachByteThatBelongsToNoCharacterIsReplaced) {
  EXPECT_EQ(utf8::valid(""), "");
  EXPECT_EQ(utf8::valid("\x80"), "\uFFFD");                                // a continuation alone
  EXPECT_EQ(utf8::valid("\xC3"), "\uFFFD");                                // a beginning alone
  EXPECT_EQ(utf8::valid("\xC3(z"), "\uFFFD(z");                            // broken off by another character
  EXPECT_EQ(utf8::valid("\xE2\x82z"), "\uFFFD\uFFFDz");                    // broken off late
  EXPECT_EQ(utf8::valid("\xC0\xAF"), "\uFFFD\uFFFD");                      // longer than need be
  EXPECT_EQ(utf8::valid("\xE0\x80\xAF"), "\uFFFD\uFFFD\uFFFD");            // longer than need be
  EXPECT_EQ(utf8::valid("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD");            // half of a pair
  EXPECT_EQ(utf8::valid("\xF4\x90\x80\x80"), "\uFFFD\uFFFD\uFFFD\uFFFD");  // beyond the last character
  EXPECT_EQ(utf8::valid("\xFF\xFE"), "\uFFFD\uFFFD");
}

TEST(MemoryText, CharactersAreFoundByIndex) {
  const std::string text = "a€😀z";
  EXPECT_EQ(utf8::offset(text, 0), 0U);
  EXPECT_EQ(utf8::offset(text, 1), 1U);
  EXPECT_EQ(utf8::offset(text, 2), 4U);
  EXPECT_EQ(utf8::offset(text, 3), 8U);
  EXPECT_EQ(utf8::offset(text, 4), 9U);
  EXPECT_EQ(utf8::offset(text, 99), 9U);
}

TEST(MemoryText, LoweringKnowsAsciiAndLatin1) {
  EXPECT_EQ(utf8::lowered(U'Z'), U'z');
  EXPECT_EQ(utf8::lowered(U'È'), U'è');
  EXPECT_EQ(utf8::lowered(U'×'), U'×');
  EXPECT_EQ(utf8::lowered(U'ß'), U'ß');
  EXPECT_EQ(utf8::lowered(U'['), U'[');
}

}  // namespace
}  // namespace qvn::test
