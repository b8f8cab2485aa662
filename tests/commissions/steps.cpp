#include "tests/commissions/steps.h"

#include <array>
#include <string_view>
#include <utility>

#include "tests/commissions/widget_names.h"

namespace qvn::test {

namespace {

using Do = Step::Do;
using Kind = Given::Kind;

constexpr std::array<std::string_view, 15> kNamedKeys{"{Enter}",     "{Enter}",     "{Enter}",  "{Tab}",  "{ShiftTab}",
                                                      "{Backspace}", "{Backspace}", "{Delete}", "{Left}", "{Right}",
                                                      "{Up}",        "{Down}",      "{Home}",   "{End}",  "{Escape}"};
constexpr std::array<std::string_view, 6> kOddKeys{".", "-", "a", "€", "è", "{{"};
constexpr std::array<std::string_view, 16> kCodes{"00120", "A1", "B2",  "2.5", "C3", "NR",    "NN",  "OV",
                                                  "",      "ZZ", "A'1", "''",  "B2", "00120", "3.5", "99999"};
constexpr std::array<std::string_view, 6> kCompanyCodes{"GEN", "RAS", "NUL", "", "XX", "G'EN"};
constexpr std::array<std::string_view, 12> kPasted{"12,5", "7.25",    "abc", "1234,567", "-3",    ",",
                                                   "12",   "€ 10,00", "0",   "1,",       "1,2,3", ""};
constexpr std::array<std::string_view, 8> kOddTexts{"abc", "", ",", "1.2", "12,5", "€ 1.234,567", "-0,004", "1,2,3"};

std::string inJson(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') quoted.push_back('\\');
    quoted.push_back(c);
  }
  return quoted.append("\"");
}

std::string wrapped(std::string_view kind, std::string_view text) {
  return std::string("{\"").append(kind).append("\":").append(inJson(text)).append("}");
}

template <class List, class Print>
std::string listed(const List& list, Print print) {
  std::string text = "[";
  for (const auto& one : list) text.append(text.size() > 1 ? "," : "").append(print(one));
  return text.append("]");
}

std::string valueOf(const Given& given) {
  const auto row = [](const std::vector<std::string>& figures) {
    return listed(figures, [](const std::string& figure) { return wrapped("currency", figure); });
  };
  switch (given.kind) {
    case Kind::Empty:
      return "{\"empty\":true}";
    case Kind::Null:
      return "null";
    case Kind::Boolean:
    case Kind::Integer:
    case Kind::Double:
      return given.text;
    case Kind::Currency:
      return wrapped("currency", given.text);
    case Kind::Decimal:
      return wrapped("decimal", given.text);
    case Kind::Text:
      return inJson(given.text);
    case Kind::Array:
      return given.flat ? row(given.figures.front()) : listed(given.figures, row);
  }
  return {};
}

/// Builds {"do":"…",…} field by field.
class RequestLine {
 public:
  explicit RequestLine(std::string_view what) : line_("{\"do\":") { line_.append(inJson(what)); }

  RequestLine& raw(std::string_view key, std::string_view value) {
    line_.append(",").append(inJson(key)).append(":").append(value);
    return *this;
  }
  RequestLine& text(std::string_view key, std::string_view value) { return raw(key, inJson(value)); }
  RequestLine& number(std::string_view key, int value) { return raw(key, std::to_string(value)); }
  RequestLine& panel() { return text("panel", "p"); }
  std::string str() const { return line_ + "}"; }

 private:
  std::string line_;
};

constexpr std::string_view kDatabase = "sqlite:provvigioni.db";

}  // namespace

std::vector<std::string> keysOf(const std::string& keys) {
  std::vector<std::string> list;
  list.reserve(keys.size());
  for (std::size_t i = 0; i < keys.size();) {
    std::size_t size = 1;
    const auto lead = static_cast<unsigned char>(keys[i]);
    if (keys.compare(i, 2, "{{") == 0) {
      size = 2;
    } else if (lead == '{') {
      size = keys.find('}', i) - i + 1;
    } else if (lead >= 0xC0) {
      size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    }
    list.push_back(keys.substr(i, size));
    i += size;
  }
  return list;
}

std::string StepMaker::digits(std::size_t most) {
  std::string text;
  for (std::size_t left = 1 + below(most); left > 0; --left) text.push_back(static_cast<char>('0' + below(10)));
  return text;
}

std::string StepMaker::decimal(std::size_t wholeDigits, std::size_t decimals) {
  const std::string whole = digits(wholeDigits);
  const std::size_t first = whole.find_first_not_of('0');
  std::string text = first == std::string::npos ? "0" : whole.substr(first);
  if (chance(70)) text.append(".").append(digits(decimals));
  if (chance(8) && text.find_first_not_of("0.") != std::string::npos) text.insert(text.begin(), '-');
  return text;
}

Given StepMaker::amount() {
  if (chance(5)) return {.kind = Kind::Null};
  if (chance(5)) return {.kind = Kind::Empty};
  if (chance(5)) return {.kind = Kind::Text, .text = std::string(anyOf(kOddTexts))};
  if (chance(5)) return {.kind = Kind::Integer, .text = std::to_string(below(2000))};
  if (chance(5)) return {.kind = Kind::Double, .text = std::to_string(below(90'000)) + ".125"};
  if (chance(hugeAmounts_ ? 70 : 2))
    return {.kind = Kind::Currency, .text = chance(50) ? "900000000000000" : "-900000000000000"};
  return {.kind = Kind::Currency, .text = decimal(5, 4)};
}

Given StepMaker::percent() {
  if (chance(4)) return {.kind = Kind::Null};
  if (chance(6)) return {.kind = Kind::Empty};
  if (chance(6)) return {.kind = Kind::Text, .text = std::string(anyOf(kOddTexts))};
  if (chance(15)) return {.kind = Kind::Double, .text = std::to_string(below(60)) + "." + digits(2) + "5"};
  if (chance(20)) return {.kind = Kind::Integer, .text = std::to_string(below(101))};
  if (chance(10)) return {.kind = Kind::Currency, .text = decimal(2, 4)};
  return {.kind = Kind::Decimal, .text = decimal(2, 6)};
}

Given StepMaker::figures() {
  Given array{.kind = Kind::Array};
  const std::size_t rows = chance(8) ? 1 + below(3) : 3 + below(2);
  const std::size_t columns = chance(8) ? 1 : 2 + below(2);
  for (std::size_t i = 0; i < rows; ++i) {
    std::vector<std::string>& row = array.figures.emplace_back();
    for (std::size_t j = 0; j < columns; ++j) row.push_back(chance(1) ? "922337203685477.5807" : decimal(6, 4));
  }
  array.flat = chance(6);
  return array;
}

std::size_t StepMaker::anyBox(bool ofAmount) {
  const std::size_t party = below(kParties.size());
  const std::size_t component = below(kComponents.size());
  return ofAmount ? amountBox(party, component) : percentBox(party, component);
}

Step StepMaker::letBox() {
  const bool ofAmount = chance(40);
  const std::size_t box = anyBox(ofAmount);
  return {.what = Do::Let, .name = std::string(propertyOf(box)), .given = {ofAmount ? amount() : percent()}};
}

Step StepMaker::letCode() {
  if (chance(20)) {
    return {.what = Do::Let,
            .name = "COD_COMPAGNIA",
            .given = {{.kind = Kind::Text, .text = std::string(anyOf(kCompanyCodes))}}};
  }
  Given code{.kind = Kind::Text, .text = std::string(anyOf(kCodes))};
  if (chance(3)) code = {.kind = chance(50) ? Kind::Null : Kind::Empty};
  return {.what = Do::Let, .name = chance(50) ? "COD_PRODUTTORE" : "COD_PRODUTTORE_ALT", .given = {std::move(code)}};
}

Step StepMaker::letOther() {
  const auto whole = [](std::string text) { return Given{.kind = Kind::Integer, .text = std::move(text)}; };
  switch (below(6)) {
    case 0:
    case 1: {
      Given quota = whole(std::to_string(chance(20) ? below(40'000) : 50 * below(21)));
      if (chance(5)) quota = {.kind = Kind::Double, .text = std::to_string(below(1000)) + ".5"};
      if (chance(5)) quota = {.kind = Kind::Text, .text = "-250"};
      return {.what = Do::Let, .name = "QUOTA", .given = {std::move(quota)}};
    }
    case 2:
    case 3: {
      constexpr std::array<std::string_view, 10> kValues{"0", "1", "2", "3", "1", "2", "2", "1", "256", "-1"};
      return {.what = Do::Let,
              .name = chance(50) ? "CALC_PROD" : "CALC_PROD_ALT",
              .given = {whole(std::string(anyOf(kValues)))}};
    }
    case 4:
      return {.what = Do::Let,
              .name = "DELEGATARIA",
              .given = {{.kind = Kind::Boolean, .text = chance(50) ? "true" : "false"}}};
    default:
      return {.what = Do::Let, .name = chance(50) ? "P_ATTIVE" : "P_PASSIVE", .given = {amount()}};
  }
}

Step StepMaker::getAny() {
  constexpr std::array<std::string_view, 9> kOthers{"QUOTA",         "CALC_PROD",      "CALC_PROD_ALT",
                                                    "COD_COMPAGNIA", "COD_PRODUTTORE", "COD_PRODUTTORE_ALT",
                                                    "DELEGATARIA",   "P_ATTIVE",       "P_PASSIVE"};
  if (chance(50)) return {.what = Do::Get, .name = std::string(anyOf(kOthers))};
  return {.what = Do::Get, .name = std::string(propertyOf(anyBox(chance(50))))};
}

Step StepMaker::callAny() {
  constexpr std::array<std::string_view, 9> kMethods{"TOTALI", "TOTALI", "percAlt", "percAlt",  "setCombo",
                                                     "Attiva", "Attiva", "Attiva",  "Disattiva"};
  if (chance(20)) return {.what = Do::Call, .name = "VALORI", .given = {figures()}};
  return {.what = Do::Call, .name = std::string(anyOf(kMethods))};
}

std::string StepMaker::keys() {
  std::string text;
  for (std::size_t left = 1 + below(6); left > 0; --left) {
    const std::size_t kind = below(100);
    if (kind < 58) {
      text.push_back(static_cast<char>('0' + below(10)));
    } else if (kind < 68) {
      text.append(",");
    } else if (kind < 92) {
      text.append(anyOf(kNamedKeys));
    } else {
      text.append(anyOf(kOddKeys));
    }
  }
  return text;
}

Step StepMaker::handAct() {
  switch (below(16)) {
    case 0:
    case 1:
    case 2:
      return {.what = Do::Focus, .name = std::string(anyOf(kFields))};
    case 3:
      return {.what = Do::Choose,
              .name = std::string(chance(50) ? kFields[6] : kFields[13]),
              .number = chance(4) ? 2 : static_cast<int>(below(2))};
    case 4:
    case 5:
      return {.what = Do::Caret, .number = static_cast<int>(below(8)), .length = static_cast<int>(below(5))};
    case 6:
      return {.what = Do::Paste, .text = std::string(anyOf(kPasted))};
    case 7:
      if (chance(60)) return {.what = Do::Leave};
      return {.what = Do::Focus, .name = chance(50) ? "LblPN" : "FrmUFF"};
    default:
      return {.what = Do::Type, .text = keys()};
  }
}

Step StepMaker::step() {
  const std::size_t kind = below(1000);
  if (kind < 160) return letBox();
  if (kind < 220) return letCode();
  if (kind < 290) return letOther();
  if (kind < 350) return getAny();
  if (kind < 440) return callAny();
  if (kind < 443) return {.what = Do::Connect};
  if (kind < 446) return {.what = Do::Answer, .text = chance(50) ? "" : "null"};
  if (kind < 447) return {.what = Do::Disconnect};
  if (kind < 455) return {.what = Do::Show, .number = chance(70) ? 1 : 0};
  return handAct();
}

Session StepMaker::session() {
  Session session{.connected = !chance(10), .visible = !chance(5)};
  hugeAmounts_ = chance(4);
  if (chance(20)) return session;
  // As hosts begin; what is left to chance alone seldom has premiums, a quota and a panel that can be typed into.
  session.steps = {letCode(), letCode(), {.what = Do::Call, .name = "VALORI", .given = {figures()}}};
  session.steps.push_back(
      {.what = Do::Let, .name = "QUOTA", .given = {{.kind = Kind::Integer, .text = std::to_string(1 + below(1000))}}});
  if (chance(80)) session.steps.push_back({.what = Do::Call, .name = "Attiva"});
  return session;
}

std::string requestOf(const Step& step) {
  switch (step.what) {
    case Do::Connect:
      return RequestLine("connect").text("string", kDatabase).str();
    case Do::Answer:
      if (step.text == "null") return RequestLine("answer").raw("string", "null").str();
      return RequestLine("answer").text("string", kDatabase).str();
    case Do::Disconnect:
      return RequestLine("disconnect").str();
    case Do::Show:
      return RequestLine("show").panel().raw("visible", step.number != 0 ? "true" : "false").str();
    case Do::Let:
      return RequestLine("let").panel().text("name", step.name).raw("value", valueOf(step.given.front())).str();
    case Do::Get:
      return RequestLine("get").panel().text("name", step.name).str();
    case Do::Call: {
      RequestLine line = RequestLine("call").panel().text("name", step.name);
      if (!step.given.empty()) line.raw("args", listed(step.given, valueOf));
      return line.str();
    }
    case Do::Focus:
      return RequestLine("focus").panel().text("widget", step.name).str();
    case Do::Leave:
      return RequestLine("leave").str();
    case Do::Type:
      return RequestLine("type").text("keys", step.text).str();
    case Do::Caret:
      return RequestLine("caret").number("start", step.number).number("length", step.length).str();
    case Do::Paste:
      return RequestLine("paste").text("text", step.text).str();
    case Do::Choose:
      return RequestLine("choose").panel().text("widget", step.name).number("index", step.number).str();
  }
  return {};
}

}  // namespace qvn::test
