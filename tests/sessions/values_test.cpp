// Values between JSON and the library: each form there and back, and what is refused.
#include "hosts/play/values.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "hosts/play/bad_request.h"
#include "tests/failure_matchers.h"

namespace qvn::play {
namespace {

Variant read(std::string_view json) { return toVariant(Json::parse(json), Locale{}); }
std::string written(const Variant& value) { return toJson(value).dump(); }

struct There {
  std::string json;
  Variant value;
};
class ReadValue : public testing::TestWithParam<There> {};

TEST_P(ReadValue, IsWhatTheJsonMeans) {
  const Variant value = read(GetParam().json);
  EXPECT_EQ(value.index(), GetParam().value.index()) << kindName(value);
  EXPECT_EQ(value, GetParam().value);
}

Currency amount(std::int64_t tenThousandths) { return Currency::fromTenThousandths(tenThousandths); }
Decimal decimal(std::uint32_t magnitude, int scale, bool negative) {
  return Decimal::of({magnitude, 0, 0}, scale, negative);
}

INSTANTIATE_TEST_SUITE_P(
    OfEachKind, ReadValue,
    testing::Values(There{R"("testo")", std::string("testo")}, There{R"("")", std::string()},
                    There{"12", std::int32_t{12}}, There{"12.0", std::int32_t{12}}, There{"1e3", std::int32_t{1000}},
                    There{"-2147483648", std::int32_t{-2147483648}}, There{"2147483647", std::int32_t{2147483647}},
                    There{"2147483648", 2147483648.0}, There{"-2147483649", -2147483649.0}, There{"12.5", 12.5},
                    There{"18446744073709551615", 18446744073709551615.0}, There{"1e300", 1e300}, There{"true", true},
                    There{"false", false}, There{"null", Null{}}, There{R"({"empty":true})", Empty{}},
                    There{R"({"currency":"1234.5600"})", amount(12'345'600)},
                    There{R"({"currency":"-0.5"})", amount(-5'000)}, There{R"({"currency":"7"})", amount(70'000)},
                    There{R"({"currency":"000000000000000000000007"})", amount(70'000)},
                    There{R"({"currency":"922337203685477.5807"})", amount(INT64_MAX)},
                    There{R"({"currency":"-922337203685477.5808"})", amount(INT64_MIN)},
                    There{R"({"decimal":"-12.50"})", decimal(1250, 2, true)},
                    There{R"({"date":"2026-11-15"})", *Date::of(15, 11, 2026)}, There{R"({"date":0})", Date{}},
                    There{R"({"date":"1899-12-30"})", Date{}}));

struct Refused {
  std::string json;
};
class RefusedValue : public testing::TestWithParam<Refused> {};

TEST_P(RefusedValue, IsABadRequestThatQuotesIt) {
  try {
    const Variant value = read(GetParam().json);
    FAIL() << "taken as " << kindName(value);
  } catch (const BadRequest& bad) {
    EXPECT_THAT(bad.what(), testing::HasSubstr(Json::parse(GetParam().json).dump()));
  }
}

INSTANTIATE_TEST_SUITE_P(OfEachKind, RefusedValue,
                         testing::Values(Refused{"{}"}, Refused{R"({"empty":false})"}, Refused{R"({"empty":1})"},
                                         Refused{R"({"Currency":"1"})"}, Refused{R"({"currency":1})"},
                                         Refused{R"({"currency":""})"}, Refused{R"({"currency":"-"})"},
                                         Refused{R"({"currency":"1."})"}, Refused{R"({"currency":".5"})"},
                                         Refused{R"({"currency":"+1"})"}, Refused{R"({"currency":" 1"})"},
                                         Refused{R"({"currency":"1,5"})"}, Refused{R"({"currency":"1e3"})"},
                                         Refused{R"({"currency":"1.00001"})"},
                                         Refused{R"({"currency":"922337203685477.5808"})"},
                                         Refused{R"({"currency":"-922337203685477.5809"})"},
                                         Refused{R"({"decimal":"79228162514264337593543950336"})"},
                                         Refused{R"({"decimal":"0.00000000000000000000000000001"})"},
                                         Refused{R"({"decimal":12.5})"}, Refused{R"({"currency":"1","date":0})"}));

class RefusedDate : public testing::TestWithParam<std::string> {};

TEST_P(RefusedDate, IsABadRequestThatQuotesIt) {
  try {
    dateOfIso(GetParam());
    FAIL() << "taken as a date";
  } catch (const BadRequest& bad) {
    EXPECT_THAT(bad.what(), testing::HasSubstr("\"" + GetParam() + "\""));
  }
}

INSTANTIATE_TEST_SUITE_P(Texts, RefusedDate,
                         testing::Values("", "2026-11-1", "2026-11-015", "2026/11/15", "15-11-2026", "2026-02-29",
                                         "2026-13-01", "2026-00-01", "2026-01-00", "0099-01-01", "-999-01-01",
                                         "2026--1-01", "2026-1 -01", " 026-11-15"));

struct Back {
  Variant value;
  std::string json;
};
class WrittenValue : public testing::TestWithParam<Back> {};

TEST_P(WrittenValue, IsTheJsonOfItsKind) { EXPECT_EQ(written(GetParam().value), GetParam().json); }

INSTANTIATE_TEST_SUITE_P(
    OfEachKind, WrittenValue,
    testing::Values(Back{Empty{}, R"({"empty":true})"}, Back{Null{}, "null"}, Back{true, "true"}, Back{false, "false"},
                    Back{std::uint8_t{255}, "255"}, Back{std::int16_t{-32768}, "-32768"},
                    Back{std::int32_t{2147483647}, "2147483647"}, Back{0.1, "0.1"}, Back{600.04, "600.04"},
                    Back{-1234.5, "-1234.5"}, Back{std::string("così \"€\""), R"("così \"€\"")"},
                    Back{amount(0), R"({"currency":"0.0000"})"}, Back{amount(-1), R"({"currency":"-0.0001"})"},
                    Back{amount(12'345'600), R"({"currency":"1234.5600"})"},
                    Back{amount(INT64_MIN), R"({"currency":"-922337203685477.5808"})"},
                    Back{decimal(0, 2, false), R"({"decimal":"0.00"})"},
                    Back{decimal(5, 3, true), R"({"decimal":"-0.005"})"},
                    Back{Decimal::of({UINT32_MAX, UINT32_MAX, UINT32_MAX}, 0, false),
                         R"({"decimal":"79228162514264337593543950335"})"},
                    Back{Decimal::of({UINT32_MAX, UINT32_MAX, UINT32_MAX}, 28, true),
                         R"({"decimal":"-7.9228162514264337593543950335"})"},
                    Back{Date{}, R"({"date":0})"}, Back{*Date::of(1, 2, 103), R"({"date":"0103-02-01"})"},
                    Back{*Date::of(15, 11, 2026), R"({"date":"2026-11-15"})"}, Back{CurrencyArray{{0}, {}}, "[]"},
                    Back{CurrencyArray{{2}, {amount(10'000), amount(-5)}},
                         R"([{"currency":"1.0000"},{"currency":"-0.0005"}])"},
                    Back{CurrencyArray{{2, 1}, {amount(10'000), amount(20'000)}},
                         R"([[{"currency":"1.0000"}],[{"currency":"2.0000"}]])"},
                    Back{CurrencyArray{{2, 0}, {}}, "[[],[]]"}));

TEST(Excerpt, EndsBetweenCharacters) {
  const std::string before(119, 'a');
  EXPECT_EQ(shortened(before + "è"), before + "…");
  EXPECT_EQ(shortened(before + "e"), before + "e");
}

TEST(DecimalValue, KeepsItsScaleThereAndBack) {
  for (const std::string text :
       {"12.50", "12.5", "0.0", "-0.10", "100", "79228162514264337593543950335", "0.0000000000000000000000000001"}) {
    EXPECT_EQ(written(read(R"({"decimal":")" + text + "\"}")), R"({"decimal":")" + text + "\"}");
  }
}

TEST(DecimalValue, IsNotNegativeAsZero) { EXPECT_EQ(written(read(R"({"decimal":"-0.00"})")), R"({"decimal":"0.00"})"); }

TEST(ArrayValue, TakesWhatConvertsToCurrency) {
  const Variant value = read(R"([1, 2.5, "3,25", {"currency":"4.0001"}, {"decimal":"5.5"}, {"empty":true}])");
  EXPECT_EQ(value,
            Variant(CurrencyArray{
                {6}, {amount(10'000), amount(25'000), amount(32'500), amount(40'001), amount(55'000), amount(0)}}));
}

TEST(ArrayValue, HasRowsOfTheSameLength) {
  EXPECT_EQ(
      read("[[1,2,3],[4,5,6]]"),
      Variant(CurrencyArray{
          {2, 3}, {amount(10'000), amount(20'000), amount(30'000), amount(40'000), amount(50'000), amount(60'000)}}));
  for (const char* const ragged : {"[[1],[2,3]]", "[[1],2]", "[1,[2]]", "[[[1]]]", "[[1],[]]"}) {
    EXPECT_THROW(read(ragged), BadRequest) << ragged;
  }
}

TEST(ArrayValue, NamesTheElementThatIsNoAmount) {
  EXPECT_FAILURE(read(R"([[1,2],[3,"tre"]])"), FailureKind::TypeMismatch, "[1][1]");
  EXPECT_FAILURE(read(R"([1,"tre"])"), FailureKind::TypeMismatch, "tre");
  EXPECT_FAILURE(read("[null]"), FailureKind::InvalidUseOfNull, "[0]");
  EXPECT_FAILURE(read("[1e300]"), FailureKind::Overflow, "[0]");
}

}  // namespace
}  // namespace qvn::play
