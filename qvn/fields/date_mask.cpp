#include "qvn/fields/date_mask.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace qvn::fields {

namespace {

constexpr auto kPlaces = static_cast<std::int32_t>(kBlankDate.size());

bool isDigit(char32_t c) { return c >= U'0' && c <= U'9'; }
bool isSeparator(char32_t c) { return c == U'/' || c == U'.' || c == U'-' || c == U','; }
bool isSlash(std::int32_t place) { return place == 2 || place == 5; }

char& at(std::string& text, std::int32_t place) { return text[static_cast<std::size_t>(place)]; }

/// A run of digits at the start, taken off.
std::string_view takeDigits(std::string_view& text) {
  const auto end = static_cast<std::size_t>(std::ranges::find_if_not(text, isDigit) - text.begin());
  const std::string_view digits = text.substr(0, end);
  text.remove_prefix(end);
  return digits;
}

std::string twoDigits(std::string_view digits) { return std::string(2 - digits.size(), '0').append(digits); }
bool isDayOrMonth(std::string_view digits) { return digits.size() == 1 || digits.size() == 2; }

}  // namespace

bool fitsDateMask(std::string_view text, bool placeholders) {
  if (text.size() != kBlankDate.size()) return false;
  for (std::int32_t place = 0; place < kPlaces; ++place) {
    const char c = text[static_cast<std::size_t>(place)];
    const bool fits = isSlash(place) ? c == '/' : isDigit(static_cast<unsigned char>(c)) || (placeholders && c == '#');
    if (!fits) return false;
  }
  return true;
}

bool DateEntry::type(char32_t character) {
  if (isSeparator(character)) return separate();
  if (!isDigit(character)) return false;
  const std::int32_t place = isSlash(start) ? start + 1 : start;
  if (place == kPlaces) return false;
  blank(start, start + length);
  at(text, place) = static_cast<char>(character);
  caretTo(isSlash(place + 1) ? place + 2 : place + 1);
  return true;
}

bool DateEntry::separate() {
  struct Part {
    std::int32_t first;
    std::int32_t next;
  };
  if (length > 0) return false;
  for (const Part part : {Part{0, 3}, Part{3, 6}}) {
    if (start == part.next && at(text, part.next - 2) != '#') return true;
    if (start <= part.first || start >= part.next) continue;
    char& tens = at(text, part.first);
    char& units = at(text, part.first + 1);
    if (tens == '#' || (tens == '0' && units == '#')) return false;
    if (units == '#') {
      units = tens;
      tens = '0';
    }
    caretTo(part.next);
    return true;
  }
  return false;
}

bool DateEntry::blank(std::int32_t from, std::int32_t to) {
  bool changed = false;
  for (std::int32_t place = from; place < to; ++place) {
    if (isSlash(place) || at(text, place) == '#') continue;
    at(text, place) = '#';
    changed = true;
  }
  caretTo(from);
  return changed;
}

bool DateEntry::backspace() {
  if (length > 0) return blank(start, start + length);
  if (start == 0) return false;
  const std::int32_t place = isSlash(start - 1) ? start - 2 : start - 1;
  return blank(place, place + 1);
}

bool DateEntry::erase() {
  if (length > 0) return blank(start, start + length);
  const std::int32_t place = isSlash(start) ? start + 1 : start;
  return place < kPlaces && blank(place, place + 1);
}

void DateEntry::left() {
  if (length > 0) return caretTo(start);
  caretTo(isSlash(start - 1) ? start - 2 : start - 1);
}

void DateEntry::right() {
  if (length > 0) return caretTo(start + length);
  caretTo(isSlash(start + 1) ? start + 2 : start + 1);
}

void DateEntry::end() {
  const std::size_t last = text.find_last_of("0123456789");
  if (last == std::string::npos) return home();
  const auto behind = static_cast<std::int32_t>(last) + 1;
  caretTo(isSlash(behind) ? behind + 1 : behind);
}

void DateEntry::caretTo(std::int32_t place) {
  start = std::clamp(place, 0, kPlaces);
  length = 0;
}

std::optional<std::string> digitsOfWholeDate(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  const std::size_t first = std::min(text.find_first_not_of(kBlanks), text.size());
  text.remove_prefix(first);
  text.remove_suffix(text.size() - (text.find_last_not_of(kBlanks) + 1));

  std::array<std::string_view, 3> parts;
  for (std::string_view& part : parts) {
    part = takeDigits(text);
    if (&part == &parts.back()) break;
    if (text.empty()) break;
    if (!isSeparator(static_cast<unsigned char>(text.front()))) return std::nullopt;
    text.remove_prefix(1);
  }
  if (!text.empty()) return std::nullopt;
  const auto& [a, b, c] = parts;
  if (a.size() == 8 && b.empty() && c.empty()) return std::string(a);
  if (isDayOrMonth(a) && isDayOrMonth(b) && c.size() == 4) return twoDigits(a).append(twoDigits(b)).append(c);
  if (a.size() == 4 && isDayOrMonth(b) && isDayOrMonth(c)) return twoDigits(c).append(twoDigits(b)).append(a);
  return std::nullopt;
}

}  // namespace qvn::fields
