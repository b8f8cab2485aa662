#include "hosts/play/values.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "hosts/play/bad_request.h"
#include "hosts/play/plain_number.h"
#include "qvn/shared/characters.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/failure.h"

namespace qvn::play {

namespace {

constexpr bool fitsInt32(double number) {
  return number >= std::numeric_limits<std::int32_t>::min() && number <= std::numeric_limits<std::int32_t>::max();
}

Variant number(const Json& json) {
  const auto value = json.get<double>();
  if (fitsInt32(value) && std::trunc(value) == value) return static_cast<std::int32_t>(value);
  return value;
}

[[noreturn]] void noValue(const Json& json) {
  throw BadRequest(std::string("no value of the protocol: ").append(excerpt(json)));
}

template <class Value>
Variant must(const std::optional<Value>& value, const Json& json, std::string_view what) {
  if (!value) throw BadRequest(std::string("no ").append(what).append(": ").append(excerpt(json)));
  return *value;
}

Variant wrapped(const Json& json) {
  if (json.size() != 1) noValue(json);
  const std::string& head = json.begin().key();
  const Json& inner = json.begin().value();
  if (head == "empty" && inner.is_boolean() && inner.get<bool>()) return Empty{};
  if (head == "date" && inner.is_number() && inner.get<double>() == 0) return Date{};
  if (!inner.is_string()) noValue(json);
  const auto& text = inner.get_ref<const std::string&>();
  if (head == "date") return dateOfIso(text);
  if (head == "currency") return must(currencyOfPlain(text), json, "currency amount with up to four decimals");
  if (head == "decimal") return must(decimalOfPlain(text), json, "decimal of 96 bits with up to 28 decimals");
  noValue(json);
}

Currency element(const Json& json, const std::string& place, const Locale& locale) {
  if (json.is_array()) throw BadRequest("an array of one or two dimensions has no array at " + place);
  try {
    return as<Currency>(toVariant(json, locale), locale);
  } catch (const Failure& failure) {
    throw failure.within(place);
  }
}

std::string at(std::size_t i) { return std::string("[").append(std::to_string(i)).append("]"); }

CurrencyArray array(const Json& json, const Locale& locale) {
  CurrencyArray result{.extents = {json.size()}, .values = {}};
  const bool rows = !json.empty() && json.front().is_array();
  if (rows) result.extents.push_back(json.front().size());
  for (std::size_t i = 0; i < json.size(); ++i) {
    if (!rows) {
      result.values.push_back(element(json[i], at(i), locale));
      continue;
    }
    if (!json[i].is_array() || json[i].size() != result.extents[1]) {
      throw BadRequest("the rows of an array are equally long arrays; row " + at(i) + " is not: " + excerpt(json[i]));
    }
    for (std::size_t j = 0; j < json[i].size(); ++j) {
      result.values.push_back(element(json[i][j], at(i) + at(j), locale));
    }
  }
  return result;
}

std::string padded(int number, std::size_t width) {
  const std::string digits = std::to_string(number);
  return std::string(width - std::min(width, digits.size()), '0').append(digits);
}

Answer wrapper(const char* head, Answer inner) {
  Answer result = Answer::object();
  result[head] = std::move(inner);
  return result;
}

struct Shown {
  Answer operator()(Empty) const { return wrapper("empty", true); }
  Answer operator()(Null) const { return nullptr; }
  Answer operator()(bool value) const { return value; }
  Answer operator()(std::uint8_t value) const { return value; }
  Answer operator()(std::int16_t value) const { return value; }
  Answer operator()(std::int32_t value) const { return value; }
  Answer operator()(double value) const { return value; }
  Answer operator()(const std::string& value) const { return value; }
  Answer operator()(Currency value) const { return wrapper("currency", plainText(value)); }
  Answer operator()(const Decimal& value) const { return wrapper("decimal", plainText(value)); }
  Answer operator()(Date value) const {
    if (value == Date{}) return wrapper("date", 0);
    return wrapper("date", padded(value.year(), 4) + "-" + padded(value.month(), 2) + "-" + padded(value.day(), 2));
  }
  Answer operator()(const CurrencyArray& value) const {
    const bool rows = value.extents.size() == 2;
    Answer result = Answer::array();
    for (std::size_t i = 0; i < value.extents.front(); ++i) {
      if (!rows) {
        result.push_back((*this)(value.at(i)));
        continue;
      }
      Answer row = Answer::array();
      for (std::size_t j = 0; j < value.extents[1]; ++j) row.push_back((*this)(value.at(i, j)));
      result.push_back(std::move(row));
    }
    return result;
  }
  Answer operator()(const EventsReference&) const { return wrapper("object", "clsQVN_Eventi"); }
};

}  // namespace

Variant toVariant(const Json& json, const Locale& locale) {
  switch (json.type()) {
    case Json::value_t::null:
      return Null{};
    case Json::value_t::boolean:
      return json.get<bool>();
    case Json::value_t::string:
      return json.get<std::string>();
    case Json::value_t::array:
      return array(json, locale);
    case Json::value_t::object:
      return wrapped(json);
    default:
      return number(json);
  }
}

std::optional<std::int32_t> wholeNumber(const Json& json) {
  if (!json.is_number()) return std::nullopt;
  const Variant value = number(json);
  const auto* whole = std::get_if<std::int32_t>(&value);
  return whole != nullptr ? std::optional(*whole) : std::nullopt;
}

Answer toJson(const Variant& value) { return std::visit(Shown{}, value); }

Date dateOfIso(std::string_view text) {
  auto part = [text](std::size_t from, std::size_t length) {
    int value = -1;
    const char* end = text.data() + from + length;
    const auto read = std::from_chars(text.data() + from, end, value);
    return read.ec == std::errc() && read.ptr == end ? value : -1;
  };
  if (text.size() == 10 && text[4] == '-' && text[7] == '-') {
    if (const auto date = Date::of(part(8, 2), part(5, 2), part(0, 4))) return *date;
  }
  throw BadRequest(std::string("no date \"yyyy-mm-dd\": ").append(excerpt(text)));
}

std::string shortened(std::string text) {
  constexpr std::size_t kLongest = 120;
  if (text.size() <= kLongest) return text;
  std::size_t cut = kLongest;
  while (cut > 0 && continuesCharacter(text[cut])) --cut;
  return text.substr(0, cut).append("…");
}

std::string excerpt(const Json& json) { return shortened(json.dump(-1, ' ', false, Json::error_handler_t::replace)); }

}  // namespace qvn::play
