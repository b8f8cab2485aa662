// Characters in UTF-8 texts. What is no UTF-8 is read as the replacement character, byte by byte.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace qvn::memory::utf8 {

inline constexpr char32_t kReplacement = 0xFFFD;

/// Takes the first character off a text that is not empty.
char32_t takeFirst(std::string_view& text);

void append(std::string& text, char32_t character);

/// Whether every byte of the text belongs to a character.
bool isValid(std::string_view text);

/// The text with the replacement character for each byte that belongs to no character.
std::string valid(std::string_view text);

/// Where the character of that index begins in a valid text, in bytes; the text's end for an index beyond it.
std::size_t offset(std::string_view text, std::size_t index);

/// The small letter of an ASCII or Latin-1 capital, any other character as it is.
char32_t lowered(char32_t character);

}  // namespace qvn::memory::utf8
