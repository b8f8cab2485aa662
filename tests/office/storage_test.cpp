// The same figures, to the last digit, however the amounts are stored.
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "tests/office/office.h"

namespace office_test {
namespace {

/// The type that schema.sql gives amounts, by which the test finds them.
constexpr std::string_view amountColumns =
    "SELECT t.name, c.name FROM sqlite_schema t, pragma_table_info(t.name) c "
    "WHERE t.type = 'table' AND c.type = 'DECIMAL(19,4)' ORDER BY 1, 2";

struct Amounts {
  std::string table;
  std::string column;
};

std::vector<Amounts> amounts() {
  std::vector<Amounts> found;
  for (const Row& row : sample("numeric").rows(amountColumns)) found.push_back({row.at(0).value(), row.at(1).value()});
  return found;
}

/// A value that the driver gave, in hundred-thousandths.
long long hundredThousandths(const qvn::Variant& value) {
  if (const auto* number = std::get_if<std::int32_t>(&value)) return *number * 100'000LL;
  return std::llround(std::get<double>(value) * 100'000.0);
}

/// An amount of the sample in cents. All are whole cents.
std::string cents(const std::string& column) { return "CAST(round(100 * " + column + ") AS INTEGER)"; }

std::string centsOfSum(const std::string& one, const std::string& two, const std::string& three) {
  return "(" + cents(one) + " + " + cents(two) + " + " + cents(three) + ")";
}

/// A figure as the panels' statements reckon it, the same in hundred-thousandths by integers alone, and the rows to
/// reckon it for: all that there are. Taxes are whole tenths of a percent.
struct Figure {
  std::string figure;
  std::string exact;
  std::string_view rows;
};

constexpr std::string_view shares = "POLIZZE JOIN QUOTE_POLIZZE USING (PROT) ORDER BY PROT, COD_COMP";
constexpr std::string_view producers = "PRODUTTORI JOIN QUOTE_POLIZZE USING (COD_PROD) ORDER BY PROT, COD_COMP";
constexpr std::string_view alternates =
    "PRODUTTORI JOIN QUOTE_POLIZZE ON PRODUTTORI.COD_PROD = QUOTE_POLIZZE.COD_PROD_ALT ORDER BY PROT, COD_COMP";
constexpr std::string_view claims = "SINISTRI JOIN QUOTE_SINISTRI USING (N_SINISTRO) ORDER BY N_SINISTRO, COD_COMP";
const std::string taxTenths = "CAST(round(10 * R_ACC) AS INTEGER)";

const Figure figures[] = {
    {"[PL_TRF]*[QUOTA]/1000", cents("PL_TRF") + " * QUOTA", shares},
    {"[PL_TAF]*[QUOTA]/1000", cents("PL_TAF") + " * QUOTA", shares},
    {"[PN_UFF_TRF]+[ACC_UFF_TRF]+[AQ_UFF_TRF]", "1000 * " + centsOfSum("PN_UFF_TRF", "ACC_UFF_TRF", "AQ_UFF_TRF"),
     shares},
    {"[PN_UFF_TAF]+[ACC_UFF_TAF]+[AQ_UFF_TAF]", "1000 * " + centsOfSum("PN_UFF_TAF", "ACC_UFF_TAF", "AQ_UFF_TAF"),
     shares},
    {"[pn_prod_TRF]+[acc_prod_TRF]+[aq_prod_TRF]", "1000 * " + centsOfSum("pn_prod_TRF", "acc_prod_TRF", "aq_prod_TRF"),
     producers},
    {"[pn_prod_Taf]+[acc_prod_Taf]+[aq_prod_Taf]", "1000 * " + centsOfSum("pn_prod_TAF", "acc_prod_TAF", "aq_prod_TAF"),
     producers},
    {"([pn_prod_TRF]+[acc_prod_TRF]+[aq_prod_TRF])/100*[R_ACC]",
     centsOfSum("pn_prod_TRF", "acc_prod_TRF", "aq_prod_TRF") + " * " + taxTenths, producers},
    {"([pn_prod_Taf]+[acc_prod_Taf]+[aq_prod_Taf])/100*[R_ACC]",
     centsOfSum("pn_prod_TAF", "acc_prod_TAF", "aq_prod_TAF") + " * " + taxTenths, producers},
    {"([pn_prod_ALT_TRF]+[acc_prod_ALT_TRF]+[aq_prod_ALT_TRF])/100*[R_ACC]",
     centsOfSum("pn_prod_ALT_TRF", "acc_prod_ALT_TRF", "aq_prod_ALT_TRF") + " * " + taxTenths, alternates},
    {"([pn_prod_ALT_TAF]+[acc_prod_ALT_TAF]+[aq_prod_ALT_TAF])/100*[R_ACC]",
     centsOfSum("pn_prod_ALT_TAF", "acc_prod_ALT_TAF", "aq_prod_ALT_TAF") + " * " + taxTenths, alternates},
    {"[D_STIMATO]*[QUOTA]/1000", cents("D_STIMATO") + " * QUOTA", claims},
    {"[D_LIQUIDATO]*[QUOTA]/1000", cents("D_LIQUIDATO") + " * QUOTA", claims},
};

using ClientAndCompany = std::pair<std::string, std::string>;

/// What each client is guaranteed for by each company, in hundred-thousandths; no value if none of it is in force.
std::map<ClientAndCompany, std::optional<long long>> exposures() {
  std::map<ClientAndCompany, std::optional<long long>> found;
  for (const Row& row : sample().rows("SELECT COD_CLIENTE, COD_COMP, STATO, " + cents("CAUZIONE") +
                                      ", QUOTA FROM DATI_POLIZZE_4 JOIN QUOTE_POLIZZE USING (PROT) "
                                      "JOIN POLIZZE USING (PROT)")) {
    auto& exposure = found[{row.at(0).value(), row.at(1).value()}];
    if (row.at(2).value_or("").empty())
      exposure = exposure.value_or(0) + std::stoll(row.at(3).value()) * std::stoll(row.at(4).value());
  }
  return found;
}

TEST(OfficeStorage, everyAmountIsTheSameWholeCentInAllThree) {
  ASSERT_EQ(amounts().size(), 38U);
  for (const Amounts& each : amounts()) {
    const std::string sql = "SELECT " + each.column + "+0 FROM " + each.table;
    const std::vector<long long> numeric = sample("numeric").tenThousandths(sql);
    ASSERT_FALSE(numeric.empty()) << each.table;
    EXPECT_TRUE(std::all_of(numeric.begin(), numeric.end(), [](long long count) { return count % 100 == 0; }))
        << each.table << "." << each.column;
    EXPECT_EQ(numeric, sample("real").tenThousandths(sql)) << each.table << "." << each.column;
    EXPECT_EQ(numeric, sample("text").tenThousandths(sql)) << each.table << "." << each.column;
  }
}

TEST(OfficeStorage, everyExposureIsExactThroughTheDriverInAllThree) {
  const auto exact = exposures();
  const auto inForce =
      std::count_if(exact.begin(), exact.end(), [](const auto& each) { return each.second.has_value(); });
  EXPECT_GT(inForce, 100);
  EXPECT_LT(inForce, static_cast<long long>(exact.size()));
  for (const char* storage : storages) {
    for (const auto& [key, exposure] : exact) {
      const auto& [client, company] = key;
      const auto rows = session(storage).run(
          {.sql = "SELECT POLIZZE.COD_CLIENTE, QUOTE_POLIZZE.COD_COMP, Sum([CAUZIONE]*[QUOTA]/1000) AS ESP "
                  "FROM (DATI_POLIZZE_4 INNER JOIN QUOTE_POLIZZE ON DATI_POLIZZE_4.PROT = QUOTE_POLIZZE.PROT) INNER "
                  "JOIN POLIZZE ON QUOTE_POLIZZE.PROT = POLIZZE.PROT "
                  "WHERE (((POLIZZE.STATO) Is Null Or (POLIZZE.STATO)='')) "
                  "GROUP BY POLIZZE.COD_CLIENTE, QUOTE_POLIZZE.COD_COMP "
                  "HAVING (((POLIZZE.COD_CLIENTE)='" +
                  client + "') AND ((QUOTE_POLIZZE.COD_COMP)='" + company + "'))"});
      EXPECT_EQ(rows->atEnd() ? std::nullopt : std::optional(hundredThousandths(rows->value("ESP"))), exposure)
          << storage << ": " << client << ", " << company;
    }
  }
}

TEST(OfficeStorage, everyFigureOfTheStatementsIsExactThroughTheDriverInAllThree) {
  for (const Figure& each : figures) {
    std::vector<long long> exact;
    for (const Row& row : sample().rows("SELECT " + each.exact + " FROM " + std::string(each.rows)))
      exact.push_back(std::stoll(row.at(0).value()));
    EXPECT_GT(std::count_if(exact.begin(), exact.end(), [](long long count) { return count != 0; }), 100)
        << each.figure;
    const std::string sql = "SELECT " + each.figure + " AS F FROM " + std::string(each.rows);
    for (const char* storage : storages) {
      std::vector<long long> given;
      for (const auto rows = session(storage).run({.sql = sql}); !rows->atEnd(); rows->next())
        given.push_back(hundredThousandths(rows->value("F")));
      EXPECT_EQ(given, exact) << storage << ": " << sql;
    }
  }
}

TEST(OfficeStorage, whatIsNoAmountIsStoredAlikeInAllThree) {
  for (const std::string_view sql :
       {"SELECT PROT, COD_COMP, COD_PROD, DELEGATARIA, QUOTA, typeof(QUOTA) FROM QUOTE_POLIZZE",
        "SELECT COD_PROD, DENOMINAZIONE, PERCALT, typeof(PERCALT), R_ACC, typeof(R_ACC) FROM PRODUTTORI",
        "SELECT PROT, COD_CLIENTE, STATO, U_CALCOLO FROM POLIZZE"}) {
    EXPECT_EQ(sample("numeric").rows(sql), sample("real").rows(sql)) << sql;
    EXPECT_EQ(sample("numeric").rows(sql), sample("text").rows(sql)) << sql;
  }
}

TEST(OfficeStorage, numericStoresWholeAmountsAsIntegersAndOthersAsReals) {
  long long integers = 0;
  long long reals = 0;
  for (const Amounts& each : amounts()) {
    const std::string from = "SELECT count(*) FROM " + each.table + " WHERE typeof(" + each.column + ") ";
    const long long whole = sample("numeric").number(from + "= 'integer'");
    integers += whole;
    reals += sample("numeric").number(from + "= 'real'");
    EXPECT_EQ(sample("numeric").number(from + "NOT IN ('integer', 'real')"), 0) << each.table << "." << each.column;
    EXPECT_EQ(sample("numeric").number(from + "= 'real' AND " + each.column + " = round(" + each.column + ")"), 0)
        << each.table << "." << each.column;
  }
  EXPECT_GT(integers, 10000);
  EXPECT_GT(reals, 10000);
}

TEST(OfficeStorage, realStoresNothingButReals) {
  for (const Amounts& each : amounts()) {
    EXPECT_EQ(
        sample("real").number("SELECT count(*) FROM " + each.table + " WHERE typeof(" + each.column + ") <> 'real'"), 0)
        << each.table << "." << each.column;
  }
}

TEST(OfficeStorage, textStoresTheNumberAsTheDatabaseWouldWriteIt) {
  for (const Amounts& each : amounts()) {
    EXPECT_EQ(sample("text").number("SELECT count(*) FROM " + each.table + " WHERE typeof(" + each.column +
                                    ") <> 'text' OR " + each.column + " <> CAST(CAST(" + each.column +
                                    " AS NUMERIC) AS TEXT)"),
              0)
        << each.table << "." << each.column;
  }
}

// A division that drops the fraction must be seen on the sample, or nobody would notice one.
TEST(OfficeStorage, wholeNumberDivisionWouldShow) {
  for (const std::string_view rows :
       {"DATI_POLIZZE_4 JOIN QUOTE_POLIZZE USING (PROT) WHERE CAUZIONE*QUOTA/1000 <> CAUZIONE*QUOTA/1000.0",
        "POLIZZE JOIN QUOTE_POLIZZE USING (PROT) WHERE PL_TRF*QUOTA/1000 <> PL_TRF*QUOTA/1000.0",
        "SINISTRI JOIN QUOTE_SINISTRI USING (N_SINISTRO) WHERE D_STIMATO*QUOTA/1000 <> D_STIMATO*QUOTA/1000.0",
        "QUOTE_POLIZZE WHERE (pn_prod_TRF+acc_prod_TRF+aq_prod_TRF)/100 <> "
        "(pn_prod_TRF+acc_prod_TRF+aq_prod_TRF)/100.0"}) {
    EXPECT_GT(sample("numeric").number("SELECT count(*) FROM " + std::string(rows)), 20) << rows;
  }
}

}  // namespace
}  // namespace office_test
