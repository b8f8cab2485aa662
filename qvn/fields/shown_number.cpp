#include "qvn/fields/shown_number.h"

#include <string>
#include <string_view>

#include "qvn/shared/conversions.h"
#include "qvn/shared/failure.h"
#include "qvn/toolkit/platform.h"

namespace qvn::fields {

namespace {

/// A conversion of a text that the widget shows; its failure names the widget.
template <class Number>
Number read(const toolkit::Widget& widget, std::string_view text, Number (*convert)(std::string_view, const Locale&)) {
  return placed(widget.Name(), [&] { return convert(text, widget.owner().platform().locale()); });
}

}  // namespace

Currency currencyOf(const toolkit::TextBox& box) { return read<Currency>(box, box.Text(), toCurrency); }
Currency currencyOf(const toolkit::Label& label) { return read<Currency>(label, label.Caption(), toCurrency); }
Decimal decimalOf(const toolkit::TextBox& box) { return read<Decimal>(box, box.Text(), toDecimal); }
double doubleOf(const toolkit::TextBox& box) { return read<double>(box, box.Text(), toDouble); }
std::uint8_t byteOf(const toolkit::TextBox& box) { return read<std::uint8_t>(box, box.Text(), toByte); }
std::int16_t int16Of(const toolkit::TextBox& box) { return read<std::int16_t>(box, box.Text(), toInt16); }
std::int16_t int16Of(const toolkit::Label& label) { return read<std::int16_t>(label, label.Caption(), toInt16); }
std::int32_t int32Of(const toolkit::Label& label) { return read<std::int32_t>(label, label.Caption(), toInt32); }

}  // namespace qvn::fields
