// Every kind of value, on its way into the library and out of it.
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include "tests/component/component.h"

namespace qvn::component_test {

namespace {

using Values = Component;

Value converted(const qvn_value& value, std::int32_t kind) {
  Value result;
  EXPECT_EQ(QVN_OK, qvn_value_convert(&value, kind, result.place())) << qvn_last_message();
  EXPECT_EQ(kind, result->kind);
  return result;
}

/// The value after a way into the library and out again.
Value back(const qvn_value& value) { return converted(value, value.kind); }

TEST_F(Values, ofNumbersGoBothWays) {
  qvn_value value = ofKind(QVN_BOOLEAN);
  value.as.boolean = 7;
  EXPECT_EQ(1, back(value)->as.boolean);
  value.as.boolean = 0;
  EXPECT_EQ(0, back(value)->as.boolean);

  value = ofKind(QVN_BYTE);
  value.as.byte = 255;
  EXPECT_EQ(255, back(value)->as.byte);
  value = ofKind(QVN_INT16);
  value.as.int16 = -32768;
  EXPECT_EQ(-32768, back(value)->as.int16);
  EXPECT_EQ(-2147483647 - 1, back(number(-2147483647 - 1))->as.int32);
  value = ofKind(QVN_DOUBLE);
  value.as.number = 0.1;
  EXPECT_EQ(0.1, back(value)->as.number);
  value = ofKind(QVN_CURRENCY);
  value.as.currency = std::numeric_limits<std::int64_t>::min();
  EXPECT_EQ(std::numeric_limits<std::int64_t>::min(), back(value)->as.currency);
  EXPECT_EQ(0, back(value)->owned);
}

TEST_F(Values, ofDecimalsGoBothWays) {
  qvn_value value = ofKind(QVN_DECIMAL);
  value.as.decimal = {.magnitude = {1, 2, 0xFFFFFFFF}, .decimals = 28, .negative = 1};
  const Value given = back(value);
  const qvn_decimal& decimal = given->as.decimal;
  EXPECT_EQ(1U, decimal.magnitude[0]);
  EXPECT_EQ(2U, decimal.magnitude[1]);
  EXPECT_EQ(0xFFFFFFFFU, decimal.magnitude[2]);
  EXPECT_EQ(28, decimal.decimals);
  EXPECT_EQ(1, decimal.negative);

  value.as.decimal.decimals = 29;
  Value refused;
  EXPECT_TRUE(failed(QVN_OVERFLOW, "", qvn_value_convert(&value, QVN_DECIMAL, refused.place())));
}

TEST_F(Values, ofDatesGoBothWays) {
  qvn_value value = ofKind(QVN_DATE);
  value.as.date = 46347;
  EXPECT_EQ(46347, back(value)->as.date);
  EXPECT_EQ("21/11/2026", converted(value, QVN_TEXT).text());
  EXPECT_EQ("0.00.00", converted(ofKind(QVN_DATE), QVN_TEXT).text());
  value.as.date = 4'000'000;
  Value refused;
  EXPECT_TRUE(failed(QVN_OVERFLOW, "", qvn_value_convert(&value, QVN_DATE, refused.place())));
}

TEST_F(Values, ofTextsGoBothWays) {
  EXPECT_EQ("", back(text("")).text());
  EXPECT_EQ("città € 1", back(text("città € 1")).text());
  const std::string holdingZero("a\0b", 3);
  const Value given = back(text(holdingZero));
  EXPECT_EQ(holdingZero, given.text());
  EXPECT_EQ('\0', given->as.text.data[3]);
  EXPECT_NE(0, given->owned);

  qvn_value nowhere = ofKind(QVN_TEXT);
  EXPECT_EQ("", back(nowhere).text());
  nowhere.as.text.length = 1;
  Value refused;
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "text", qvn_value_convert(&nowhere, QVN_TEXT, refused.place())));
}

TEST_F(Values, ofArraysGoBothWays) {
  const std::array<std::int64_t, 6> amounts{1, -2, 3, 4, 5, 6};
  qvn_value value = ofKind(QVN_ARRAY);
  value.as.array = {.values = amounts.data(), .rows = 2, .columns = 3};
  const Value table = back(value);
  EXPECT_EQ(2U, table->as.array.rows);
  EXPECT_EQ(3U, table->as.array.columns);
  EXPECT_EQ(-2, table->as.array.values[1]);
  EXPECT_EQ(6, table->as.array.values[5]);

  value.as.array = {.values = amounts.data(), .rows = 2, .columns = 0};
  const Value list = back(value);
  EXPECT_EQ(2U, list->as.array.rows);
  EXPECT_EQ(0U, list->as.array.columns);
  EXPECT_EQ(-2, list->as.array.values[1]);

  value.as.array = {};
  EXPECT_EQ(0U, back(value)->as.array.rows);
}

TEST_F(Values, ofArraysBeyondMemoryAreRefused) {
  const std::int64_t amount = 1;
  qvn_value value = ofKind(QVN_ARRAY);
  Value refused;
  value.as.array = {.values = nullptr, .rows = 1, .columns = 0};
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "array", qvn_value_convert(&value, QVN_ARRAY, refused.place())));
  value.as.array = {.values = &amount, .rows = SIZE_MAX / 2, .columns = 3};
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "array", qvn_value_convert(&value, QVN_ARRAY, refused.place())));
  value.as.array = {.values = &amount, .rows = SIZE_MAX, .columns = 0};
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "array", qvn_value_convert(&value, QVN_ARRAY, refused.place())));
}

// A sanitizer ends the program where memory runs out, and 32 bits have no such array.
#if !defined(__SANITIZE_ADDRESS__) && !defined(QVN_SANITIZED) && SIZE_MAX > UINT32_MAX
TEST_F(Values, thatNoMemoryIsLeftForAreAFailure) {
  const std::int64_t amount = 1;
  qvn_value value = ofKind(QVN_ARRAY);
  value.as.array = {.values = &amount, .rows = SIZE_MAX / 32, .columns = 0};
  Value refused;
  EXPECT_TRUE(failed(QVN_OUT_OF_MEMORY, "out of memory", qvn_value_convert(&value, QVN_ARRAY, refused.place())));
}
#endif

TEST_F(Values, ofObjectsGoBothWays) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlQ_POLIZZE", "quota");
  const Handle events = eventsOf(panel);
  qvn_value value = ofKind(QVN_OBJECT);
  value.as.object = events.get();
  // No property takes one: it arrives, and is no text.
  EXPECT_TRUE(failed(QVN_TYPE_MISMATCH, "object", qvn_let(panel.get(), "COD_COMP", &value)));
  value.as.object = panel.get();
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "no event object", qvn_let(panel.get(), "COD_COMP", &value)));
  value.as.object = nullptr;
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "null", qvn_let(panel.get(), "COD_COMP", &value)));
}

TEST_F(Values, emptyAndUnknownGoBothWays) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlQ_POLIZZE", "quota");
  EXPECT_EQ(QVN_NULL, get(panel, "D_RIMESSA")->kind);
  let(panel, "D_RIMESSA", text("01/02/2026"));
  let(panel, "D_RIMESSA", ofKind(QVN_NULL));
  EXPECT_EQ(QVN_OK, qvn_get(panel.get(), "D_RIMESSA", Value().place()));
  EXPECT_EQ("01/02/2026", show(panel, "TxtD_RIMESSA", "Text")) << "Null leaves the date";

  let(panel, "N_POLIZZA", text("83"));
  let(panel, "N_POLIZZA", ofKind(QVN_EMPTY));
  EXPECT_EQ("", get(panel, "N_POLIZZA").text());
  const qvn_value unknown = ofKind(QVN_NULL);
  EXPECT_TRUE(failed(QVN_INVALID_USE_OF_NULL, "quota.N_POLIZZA", qvn_let(panel.get(), "N_POLIZZA", &unknown)));
  Value result;
  EXPECT_EQ(QVN_OK, qvn_call(panel.get(), "Attiva", nullptr, 0, result.place()));
  EXPECT_EQ(QVN_EMPTY, result->kind);
}

TEST_F(Values, areConvertedAsTheFieldsDo) {
  EXPECT_EQ(12'345'600, converted(text("€ 1.234,56"), QVN_CURRENCY)->as.currency);
  EXPECT_EQ(2, converted(text("2,5"), QVN_INT32)->as.int32);
  EXPECT_EQ(1, converted(text("true"), QVN_BOOLEAN)->as.boolean);
  EXPECT_EQ(-1, converted(*converted(number(1), QVN_BOOLEAN), QVN_INT16)->as.int16);
  EXPECT_EQ(46347, converted(text("21/11/2026"), QVN_DATE)->as.date);
  EXPECT_EQ("0", converted(number(0), QVN_TEXT).text());
  EXPECT_EQ(0, converted(ofKind(QVN_EMPTY), QVN_DOUBLE)->as.number);
  EXPECT_EQ(12, converted(text("12"), QVN_BYTE)->as.byte);
  EXPECT_EQ(1, converted(text("12,5"), QVN_DECIMAL)->as.decimal.decimals);
}

TEST_F(Values, areConvertedInTheirOwnPlace) {
  qvn_value value = text("12");
  ASSERT_EQ(QVN_OK, qvn_value_convert(&value, QVN_TEXT, &value));
  EXPECT_NE(0, value.owned);
  ASSERT_EQ(QVN_OK, qvn_value_convert(&value, QVN_INT32, &value));
  EXPECT_EQ(QVN_INT32, value.kind);
  EXPECT_EQ(12, value.as.int32);
  EXPECT_EQ(0, value.owned);

  value = text("dodici");
  ASSERT_EQ(QVN_OK, qvn_value_convert(&value, QVN_TEXT, &value));
  EXPECT_TRUE(failed(QVN_TYPE_MISMATCH, "dodici", qvn_value_convert(&value, QVN_INT32, &value)));
  EXPECT_EQ(QVN_EMPTY, value.kind);
}

TEST_F(Values, thatDoNotConvertLeaveTheirPlaceEmptyWhateverStoodThere) {
  qvn_value date = ofKind(QVN_DATE);
  date.as.date = 4'000'000;
  const qvn_value noKind = ofKind(99);
  const qvn_value word = text("dodici");
  struct Refused {
    const qvn_value* value;
    std::int32_t kind;
  };
  for (const Refused& refused : {Refused{&noKind, QVN_TEXT}, Refused{nullptr, QVN_TEXT}, Refused{&date, QVN_TEXT},
                                 Refused{&word, QVN_INT32}, Refused{&word, QVN_EMPTY}}) {
    qvn_value place;
    std::memset(&place, 0x5a, sizeof place);
    EXPECT_NE(QVN_OK, qvn_value_convert(refused.value, refused.kind, &place));
    EXPECT_EQ(QVN_EMPTY, place.kind);
    EXPECT_EQ(0, place.owned);
  }
  for (qvn_value inPlace : {noKind, date, word}) {
    EXPECT_NE(QVN_OK, qvn_value_convert(&inPlace, QVN_CURRENCY, &inPlace));
    EXPECT_EQ(QVN_EMPTY, inPlace.kind);
    EXPECT_EQ(0, inPlace.owned);
  }
}

TEST_F(Values, thatDoNotConvertAreRefused) {
  const qvn_value word = text("dodici");
  Value refused;
  EXPECT_TRUE(failed(QVN_TYPE_MISMATCH, "dodici", qvn_value_convert(&word, QVN_INT16, refused.place())));
  EXPECT_EQ(QVN_EMPTY, refused->kind);
  const qvn_value large = number(256);
  EXPECT_TRUE(failed(QVN_OVERFLOW, "", qvn_value_convert(&large, QVN_BYTE, refused.place())));
  const qvn_value unknown = ofKind(QVN_NULL);
  EXPECT_TRUE(failed(QVN_INVALID_USE_OF_NULL, "", qvn_value_convert(&unknown, QVN_TEXT, refused.place())));
  for (const std::int32_t kind : std::vector<std::int32_t>{QVN_EMPTY, QVN_NULL, QVN_OBJECT, 13, -1}) {
    EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "conversion", qvn_value_convert(&word, kind, refused.place()))) << kind;
  }
  const qvn_value noKind = ofKind(99);
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "99", qvn_value_convert(&noKind, QVN_TEXT, refused.place())));
  qvn_value endless = text("x");
  endless.as.text.length = SIZE_MAX;
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "beyond all", qvn_value_convert(&endless, QVN_TEXT, refused.place())));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "null", qvn_value_convert(nullptr, QVN_TEXT, refused.place())));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "null", qvn_value_convert(&word, QVN_TEXT, nullptr)));
}

TEST_F(Values, thatAHostHandsInStayTheHosts) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlIVA", "iva");
  std::string ours = "esente";
  let(panel, "DESCRIZIONE", text(ours));
  ours = "altro!";
  EXPECT_EQ("esente", get(panel, "DESCRIZIONE").text());
  qvn_value value = text(ours);
  qvn_value_clear(&value);
  EXPECT_EQ(QVN_EMPTY, value.kind);
  EXPECT_EQ("altro!", ours);
  qvn_value_clear(nullptr);
}

TEST_F(Values, thatAreArgumentsStayAsTheyWere) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlQ_POLIZZE", "quota");
  const std::string quota = "250";
  qvn_value argument = text(quota);
  ASSERT_EQ(QVN_OK, qvn_call(panel.get(), "Calcola_QUOTA", &argument, 1, nullptr));
  EXPECT_EQ(QVN_TEXT, argument.kind);
  EXPECT_EQ(quota.data(), argument.as.text.data);
  EXPECT_EQ(0, argument.owned);
}

}  // namespace

}  // namespace qvn::component_test
