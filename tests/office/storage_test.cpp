// The same figures, to the ten-thousandth, however the amounts are stored.
#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
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

/// A figure that the panels' statements reckon, and the rows that they reckon it for, here all that there are. Division
/// keeps its fraction by a decimal divisor, as it does for the panels whatever is divided.
struct Figure {
  std::string_view figure;
  std::string_view rows;
};

constexpr std::string_view exposures =
    "(DATI_POLIZZE_4 INNER JOIN QUOTE_POLIZZE ON DATI_POLIZZE_4.PROT = QUOTE_POLIZZE.PROT) "
    "INNER JOIN POLIZZE ON QUOTE_POLIZZE.PROT = POLIZZE.PROT "
    "WHERE (((POLIZZE.STATO) Is Null Or (POLIZZE.STATO)='')) "
    "GROUP BY POLIZZE.COD_CLIENTE, QUOTE_POLIZZE.COD_COMP";
constexpr std::string_view shares = "POLIZZE JOIN QUOTE_POLIZZE USING (PROT) ORDER BY PROT, COD_COMP";
constexpr std::string_view producers = "PRODUTTORI JOIN QUOTE_POLIZZE USING (COD_PROD) ORDER BY PROT, COD_COMP";
constexpr std::string_view alternates =
    "PRODUTTORI JOIN QUOTE_POLIZZE ON PRODUTTORI.COD_PROD = QUOTE_POLIZZE.COD_PROD_ALT ORDER BY PROT, COD_COMP";
constexpr std::string_view claims = "SINISTRI JOIN QUOTE_SINISTRI USING (N_SINISTRO) ORDER BY N_SINISTRO, COD_COMP";
constexpr std::string_view titles = "SOSPESI GROUP BY PROT, PROG ORDER BY PROT, PROG";

constexpr Figure figures[] = {
    {"Sum([CAUZIONE]*[QUOTA]/1000.0)", exposures},
    {"[PL_TRF]*[QUOTA]/1000.0", shares},
    {"[PL_TAF]*[QUOTA]/1000.0", shares},
    {"[PN_UFF_TRF]+[ACC_UFF_TRF]+[AQ_UFF_TRF]", shares},
    {"[PN_UFF_TAF]+[ACC_UFF_TAF]+[AQ_UFF_TAF]", shares},
    {"[pn_prod_TRF]+[acc_prod_TRF]+[aq_prod_TRF]", producers},
    {"[pn_prod_Taf]+[acc_prod_Taf]+[aq_prod_Taf]", producers},
    {"([pn_prod_TRF]+[acc_prod_TRF]+[aq_prod_TRF])/100.0*[R_ACC]", producers},
    {"([pn_prod_Taf]+[acc_prod_Taf]+[aq_prod_Taf])/100.0*[R_ACC]", producers},
    {"([pn_prod_ALT_TRF]+[acc_prod_ALT_TRF]+[aq_prod_ALT_TRF])/100.0*[R_ACC]", alternates},
    {"([pn_prod_ALT_TAF]+[acc_prod_ALT_TAF]+[aq_prod_ALT_TAF])/100.0*[R_ACC]", alternates},
    {"[D_STIMATO]*[QUOTA]/1000.0", claims},
    {"[D_LIQUIDATO]*[QUOTA]/1000.0", claims},
    {"Sum(PL)", titles},
    {"Sum(RA)+Sum(RA_ALT)", titles},
};

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

TEST(OfficeStorage, everyFigureOfTheStatementsIsTheSameInAllThree) {
  for (const Figure& each : figures) {
    const std::string sql = "SELECT " + std::string(each.figure) + " FROM " + std::string(each.rows);
    const std::vector<long long> numeric = sample("numeric").tenThousandths(sql);
    EXPECT_GT(std::count_if(numeric.begin(), numeric.end(), [](long long count) { return count != 0; }), 100) << sql;
    EXPECT_EQ(numeric, sample("real").tenThousandths(sql)) << sql;
    EXPECT_EQ(numeric, sample("text").tenThousandths(sql)) << sql;
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
