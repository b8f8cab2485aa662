#include "qvn/shared/variant.h"

#include <array>
#include <cmath>
#include <string>

#include "qvn/shared/failure.h"
#include "qvn/shared/variant_numbers.h"

namespace qvn {

namespace {

std::string shown(std::span<const std::size_t> indexes) {
  std::string text;
  for (std::size_t index : indexes) text.append(text.empty() ? "(" : ", ").append(std::to_string(index));
  return text + ")";
}

const Currency& element(const CurrencyArray& array, std::span<const std::size_t> indexes) {
  std::size_t place = 0;
  bool inside = indexes.size() == array.extents.size();
  for (std::size_t i = 0; inside && i < indexes.size(); ++i) {
    inside = indexes[i] < array.extents[i];
    place = place * array.extents[i] + indexes[i];
  }
  if (!inside || place >= array.values.size()) {
    std::string extents;
    for (std::size_t extent : array.extents)
      extents.append(extents.empty() ? "" : " × ").append(std::to_string(extent));
    throw Failure(FailureKind::SubscriptOutOfRange,
                  "no element " + shown(indexes) + " in an array of " + extents + " amounts");
  }
  return array.values[place];
}

/// What a variant is to a comparison.
enum class Standing : std::uint8_t { Nothing, Empty, Number, Text, Whole };

Standing standingOf(const Variant& value) {
  if (isNull(value)) return Standing::Nothing;
  if (isEmpty(value)) return Standing::Empty;
  if (std::holds_alternative<std::string>(value)) return Standing::Text;
  if (std::holds_alternative<CurrencyArray>(value) || std::holds_alternative<EventsReference>(value)) {
    return Standing::Whole;
  }
  return Standing::Number;
}

std::partial_ordering compareNumbers(const Variant& a, const Variant& b) {
  const auto* ofA = std::get_if<double>(&a);
  const auto* ofB = std::get_if<double>(&b);
  if (ofA != nullptr && ofB != nullptr) return *ofA <=> *ofB;
  // Any finite number stands to a value that is infinite or no number as 0 does.
  if (ofA != nullptr && !std::isfinite(*ofA)) return *ofA <=> 0.0;
  if (ofB != nullptr && !std::isfinite(*ofB)) return 0.0 <=> *ofB;
  const VariantNumber left(a);
  const VariantNumber right(b);
  return order(*left.digits(), *right.digits());
}

std::string_view textOf(const Variant& value) {
  const auto* text = std::get_if<std::string>(&value);
  return text != nullptr ? *text : std::string_view();
}

}  // namespace

const Currency& CurrencyArray::at(std::size_t i) const { return element(*this, std::array{i}); }

const Currency& CurrencyArray::at(std::size_t i, std::size_t j) const { return element(*this, std::array{i, j}); }

std::string_view kindName(const Variant& value) {
  static constexpr std::array<std::string_view, std::variant_size_v<Variant>> names{
      "Empty",   "Null", "boolean", "8-bit unsigned integer", "16-bit integer", "32-bit integer", "double", "currency",
      "decimal", "date", "text",    "array of currency",      "object",
  };
  return names.at(value.index());
}

std::partial_ordering compare(const Variant& a, const Variant& b) {
  const Standing left = standingOf(a);
  const Standing right = standingOf(b);
  if (left == Standing::Nothing || right == Standing::Nothing) return std::partial_ordering::unordered;
  if (left == Standing::Whole || right == Standing::Whole) {
    return a == b ? std::partial_ordering::equivalent : std::partial_ordering::unordered;
  }
  const bool texts = left == Standing::Text || right == Standing::Text;
  if (texts && left != Standing::Number && right != Standing::Number) return textOf(a) <=> textOf(b);
  if (texts) return left == Standing::Number ? std::partial_ordering::less : std::partial_ordering::greater;
  return compareNumbers(a, b);
}

VariantNumber::VariantNumber(const Variant& value) {
  struct Reading {
    DecimalRoom room;
    std::optional<Digits> operator()(Empty) const { return digitsOf(std::int64_t{0}, 0); }
    std::optional<Digits> operator()(Null) const { return std::nullopt; }
    std::optional<Digits> operator()(bool on) const { return digitsOf(std::int64_t{on ? -1 : 0}, 0); }
    std::optional<Digits> operator()(std::int32_t whole) const { return digitsOf(std::int64_t{whole}, 0); }
    std::optional<Digits> operator()(double number) const { return digitsOf(number); }
    std::optional<Digits> operator()(Currency amount) const { return digitsOf(amount.tenThousandths(), 4); }
    std::optional<Digits> operator()(const Decimal& decimal) const { return digitsOf(decimal, room); }
    std::optional<Digits> operator()(Date date) const { return digitsOf(std::int64_t{date.days()}, 0); }
    std::optional<Digits> operator()(const std::string&) const { return std::nullopt; }
    std::optional<Digits> operator()(const CurrencyArray&) const { return std::nullopt; }
    std::optional<Digits> operator()(const EventsReference&) const { return std::nullopt; }
  };
  digits_ = std::visit(Reading{room_}, value);
}

}  // namespace qvn
