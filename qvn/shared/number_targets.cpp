#include "qvn/shared/number_targets.h"

#include "qvn/shared/characters.h"
#include "qvn/shared/failure.h"

namespace qvn {

std::optional<std::int64_t> countBetween(const Digits& digits, int decimals, std::int64_t least, std::int64_t most) {
  const auto magnitude = rounded(digits, decimals, Ties::ToEven);
  if (!magnitude) return std::nullopt;
  if (!digits.negative || *magnitude == 0) {
    if (*magnitude > static_cast<std::uint64_t>(most)) return std::nullopt;
    return static_cast<std::int64_t>(*magnitude);
  }
  if (*magnitude > 0 - static_cast<std::uint64_t>(least)) return std::nullopt;
  return static_cast<std::int64_t>(0 - *magnitude);
}

template <>
std::optional<Date> numberAs<Date>(const Digits& digits) {
  constexpr std::int64_t kMostDigits = std::numeric_limits<std::int32_t>::digits10;
  if (digits.isZero()) return Date();
  if (digits.point() > kMostDigits) return std::nullopt;
  DigitWalk walk(digits);
  std::int32_t days = 0;
  for (std::int64_t left = digits.point(); left > 0; --left) days = days * 10 + walk.next();
  return Date::ofDays(digits.negative ? -days : days);
}

std::string quoted(std::string_view text) {
  constexpr std::size_t kLongest = 80;
  std::string_view shown = text.substr(0, kLongest);
  if (shown.size() < text.size()) {
    std::size_t end = kLongest;
    while (end > 0 && continuesCharacter(text[end])) --end;
    shown = text.substr(0, end);
  }
  return std::string("\"").append(shown).append(shown.size() < text.size() ? "…\"" : "\"");
}

void failNoNumber(std::string_view text) {
  throw Failure(FailureKind::TypeMismatch, "the text " + quoted(text) + " is no number");
}

void failToFit(std::string_view source, std::string_view target) {
  throw Failure(FailureKind::Overflow, std::string(source).append(" does not fit ").append(target));
}

}  // namespace qvn
