#include "tests/commissions/driver_rows.h"

#include <charconv>
#include <string>

#include "tests/commissions/office_rows.h"

namespace qvn::test {

namespace {

std::string statement(std::string_view select, std::string_view code) {
  return std::string(select).append(code).append("'");
}

Variant textOrNull(std::string_view text) { return text.empty() ? Variant(Null{}) : Variant(std::string(text)); }
Variant numberOrNull(std::string_view text) { return text.empty() ? Variant(Null{}) : Variant(doubleOf(text)); }

}  // namespace

double doubleOf(std::string_view text) {
  double value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

void layDownRows(FakeDriver& driver) {
  for (const ProducerRow& row : kProducers) {
    driver.answers[statement(kSelectPRODUTTORE, row.code)] = {
        .columns = {"DENOMINAZIONE", "PERCALT"}, .rows = {{textOrNull(row.name), numberOrNull(row.percent)}}};
    driver.answers[statement(kSelectR_ACC, row.code)] = {.columns = {"R_ACC"},
                                                         .rows = {{numberOrNull(row.withholding)}}};
  }
  for (const CompanyRow& row : kCompanies) {
    driver.answers[statement(kSelectCOMPAGNIA, row.code)] = {.columns = {"DESC_COMPAGNIA"},
                                                             .rows = {{textOrNull(row.name)}}};
  }
}

}  // namespace qvn::test
