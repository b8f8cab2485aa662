// Any text, read as an amount in any locale: what is read is shown, and what is shown is read back.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "qvn/shared/conversions.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/patterns.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::uint8_t choice = data[0];
  const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
  const qvn::Locale locale{.symbolFirst = (choice & 1U) != 0,
                           .negative = static_cast<qvn::NegativeForm>((choice >> 1U) % 3),
                           .currencyDecimals = static_cast<std::uint8_t>((choice >> 3U) % 5)};
  try {
    const qvn::Currency amount = qvn::toCurrency(text, locale);
    const qvn::FormattedText shown = qvn::format(amount, qvn::Pattern::Currency, locale);
    const qvn::Currency back = qvn::toCurrency(shown.view(), locale);
    if (qvn::format(back, qvn::Pattern::Currency, locale).view() != shown.view()) std::abort();
  } catch (const qvn::Failure& failure) {
    if (qvn::isNumber(text, locale) && failure.kind() == qvn::FailureKind::TypeMismatch) std::abort();
  }
  qvn::leadingNumber(text);
  return 0;
}
