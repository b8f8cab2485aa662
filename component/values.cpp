#include "component/values.h"

#include <array>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>
#include <string>

#include "component/boundary.h"
#include "component/events_object.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/locale.h"

namespace qvn::component {

namespace {

/// As much memory as C gives back by free().
template <class Element>
Element* allocated(std::size_t count) {
  if (count > std::numeric_limits<std::size_t>::max() / sizeof(Element)) throw std::bad_alloc();
  void* memory = std::malloc(count * sizeof(Element));
  if (memory == nullptr) throw std::bad_alloc();
  return static_cast<Element*>(memory);
}

std::string textOf(const qvn_text& text) {
  if (text.length == 0) return {};
  if (text.length > std::numeric_limits<std::ptrdiff_t>::max()) {
    throw InvalidArgument("the text's length is beyond all memory");
  }
  return {&given(text.data, "the data of the text"), text.length};
}

Decimal decimalOf(const qvn_decimal& decimal) {
  return Decimal::of({decimal.magnitude[0], decimal.magnitude[1], decimal.magnitude[2]}, decimal.decimals,
                     decimal.negative != 0);
}

/// How many rows and, where there are two dimensions, columns.
class Extents {
 public:
  explicit Extents(const qvn_array& array) : both_{array.rows, array.columns}, count_(array.columns == 0 ? 1 : 2) {}
  auto begin() const { return both_.begin(); }
  auto end() const { return both_.begin() + count_; }

 private:
  std::array<std::size_t, 2> both_;
  std::ptrdiff_t count_;
};

CurrencyArray arrayOf(const qvn_array& array) {
  const Extents extents(array);
  CurrencyArray result{.extents = {extents.begin(), extents.end()}, .values = {}};
  const std::size_t columns = array.columns > 0 ? array.columns : 1;
  if (array.rows > std::numeric_limits<std::ptrdiff_t>::max() / sizeof(std::int64_t) / columns) {
    throw InvalidArgument("the array's rows and columns are beyond all memory");
  }
  const std::size_t count = array.rows * columns;
  if (count == 0) return result;
  const std::span values(&given(array.values, "the data of the array"), count);
  result.values.reserve(count);
  for (const std::int64_t value : values) result.values.push_back(Currency::fromTenThousandths(value));
  return result;
}

/// Writes what a variant holds.
class Giver {
 public:
  explicit Giver(qvn_value& to) : to_(to) {}

  void operator()(Empty) { set(QVN_EMPTY); }
  void operator()(Null) { set(QVN_NULL); }
  void operator()(bool value) { set(QVN_BOOLEAN).boolean = value ? 1 : 0; }
  void operator()(std::uint8_t value) { set(QVN_BYTE).byte = value; }
  void operator()(std::int16_t value) { set(QVN_INT16).int16 = value; }
  void operator()(std::int32_t value) { set(QVN_INT32).int32 = value; }
  void operator()(double value) { set(QVN_DOUBLE).number = value; }
  void operator()(Currency value) { set(QVN_CURRENCY).currency = value.tenThousandths(); }
  void operator()(const Decimal& value) {
    const Decimal::Magnitude& magnitude = value.magnitude();
    set(QVN_DECIMAL).decimal = {.magnitude = {magnitude[0], magnitude[1], magnitude[2]},
                                .decimals = static_cast<std::uint8_t>(value.scale()),
                                .negative = static_cast<std::uint8_t>(value.negative() ? 1 : 0)};
  }
  void operator()(Date value) { set(QVN_DATE).date = value.days(); }
  void operator()(const std::string& value) {
    char* data = allocated<char>(value.size() + 1);
    std::memcpy(data, value.c_str(), value.size() + 1);
    setOwned(QVN_TEXT).text = {.data = data, .length = value.size()};
  }
  void operator()(const CurrencyArray& value) {
    std::int64_t* values = allocated<std::int64_t>(value.values.size() + 1);
    std::int64_t* next = values;
    for (const Currency amount : value.values) *next++ = amount.tenThousandths();
    const bool flat = value.extents.size() < 2;
    setOwned(QVN_ARRAY).array = {
        .values = values, .rows = value.extents.front(), .columns = flat ? 0 : value.extents[1]};
  }
  void operator()(const EventsReference& value) { setOwned(QVN_OBJECT).object = &EventsObject::of(value); }

 private:
  decltype(qvn_value::as)& set(std::int32_t kind) {
    to_ = {.kind = kind, .owned = 0, .as = {}};
    return to_.as;
  }
  decltype(qvn_value::as)& setOwned(std::int32_t kind) {
    to_ = {.kind = kind, .owned = 1, .as = {}};
    return to_.as;
  }

  qvn_value& to_;
};

}  // namespace

Variant toVariant(const qvn_value& value) {
  switch (value.kind) {
    case QVN_EMPTY:
      return Empty{};
    case QVN_NULL:
      return Null{};
    case QVN_BOOLEAN:
      return value.as.boolean != 0;
    case QVN_BYTE:
      return value.as.byte;
    case QVN_INT16:
      return value.as.int16;
    case QVN_INT32:
      return value.as.int32;
    case QVN_DOUBLE:
      return value.as.number;
    case QVN_CURRENCY:
      return Currency::fromTenThousandths(value.as.currency);
    case QVN_DECIMAL:
      return decimalOf(value.as.decimal);
    case QVN_DATE:
      return Date::fromDays(value.as.date);
    case QVN_TEXT:
      return textOf(value.as.text);
    case QVN_ARRAY:
      return arrayOf(value.as.array);
    case QVN_OBJECT:
      return ofKind<EventsObject>(value.as.object).events();
    default:
      throw InvalidArgument("there is no kind of value " + std::to_string(value.kind));
  }
}

std::vector<Variant> toVariants(std::span<const qvn_value> values) {
  std::vector<Variant> variants;
  variants.reserve(values.size());
  for (const qvn_value& value : values) variants.push_back(toVariant(value));
  return variants;
}

void give(const Variant& value, qvn_value& to) { std::visit(Giver(to), value); }

void clear(qvn_value& value) noexcept {
  if (value.owned != 0) {
    // Only what the library has given is owned, and that is its own to take back.
    if (value.kind == QVN_TEXT) std::free(const_cast<char*>(value.as.text.data));
    if (value.kind == QVN_ARRAY) std::free(const_cast<std::int64_t*>(value.as.array.values));
    if (value.kind == QVN_OBJECT) value.as.object->release();
  }
  value = {};
}

Variant converted(const Variant& value, std::int32_t kind) {
  const Locale locale;
  switch (kind) {
    case QVN_BOOLEAN:
      return as<bool>(value, locale);
    case QVN_BYTE:
      return as<std::uint8_t>(value, locale);
    case QVN_INT16:
      return as<std::int16_t>(value, locale);
    case QVN_INT32:
      return as<std::int32_t>(value, locale);
    case QVN_DOUBLE:
      return as<double>(value, locale);
    case QVN_CURRENCY:
      return as<Currency>(value, locale);
    case QVN_DECIMAL:
      return as<Decimal>(value, locale);
    case QVN_DATE:
      return as<Date>(value, locale);
    case QVN_TEXT:
      return as<std::string>(value, locale);
    case QVN_ARRAY:
      return as<CurrencyArray>(value, locale);
    default:
      throw InvalidArgument("there is no conversion to the kind " + std::to_string(kind));
  }
}

}  // namespace qvn::component
