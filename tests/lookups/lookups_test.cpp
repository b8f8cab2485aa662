// The twelve lookups on answers laid down beforehand: what each asks, and what it makes of the answer.
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/lookups/by_name.h"
#include "qvn/shared/Globale.h"
#include "tests/failure_matchers.h"
#include "tests/on_platform.h"

namespace qvn::test {
namespace {

using namespace QVN_Ricerche;

constexpr std::string_view kExposure =
    "SELECT POLIZZE.COD_CLIENTE, QUOTE_POLIZZE.COD_COMP, Sum([CAUZIONE]*[QUOTA]/1000) AS ESP FROM (DATI_POLIZZE_4 "
    "INNER "
    "JOIN QUOTE_POLIZZE ON DATI_POLIZZE_4.PROT = QUOTE_POLIZZE.PROT) INNER JOIN POLIZZE ON QUOTE_POLIZZE.PROT = "
    "POLIZZE.PROT WHERE (((POLIZZE.STATO) Is Null Or (POLIZZE.STATO)='')) GROUP BY POLIZZE.COD_CLIENTE, "
    "QUOTE_POLIZZE.COD_COMP HAVING (((POLIZZE.COD_CLIENTE)='C1') AND ((QUOTE_POLIZZE.COD_COMP)='AB'))";

class Lookups : public OnPlatform {
 public:
  void SetUp() override { Globale::Eventi()->ImpostaDB("fake:ufficio"); }

  /// Lays down one row for a statement.
  void answer(std::string_view sql, std::vector<std::string> columns, std::vector<Variant> row) {
    driver().answers[std::string(sql)] = {std::move(columns), {std::move(row)}};
  }
  /// The last statement that was run; fails the test if more or less than one was.
  Ran onlyStatement() {
    EXPECT_EQ(driver().ran.size(), 1U);
    return driver().ran.empty() ? Ran{} : driver().ran.back();
  }
};
QVN_ON_EVERY_PLATFORM(Lookups);

/// A call with its keys set, as the text of its result.
struct Call {
  std::string name;
  std::function<std::string()> run;
  std::string sql;
  std::int32_t cursorType;
  std::int32_t lockType;
  std::vector<std::string> columns;
  std::vector<Variant> row;
  std::string result;
  std::string emptyResult;
};

Variant of(std::string_view s) { return std::string(s); }

std::vector<Call> calls() {
  static std::string key;
  static std::string second;
  const auto with = [](const std::string& a, const std::string& b, auto lookup) {
    return [a, b, lookup] {
      key = a;
      second = b;
      return lookup();
    };
  };
  return {
      {"CercaTIPO_SK",
       with("01", "", [] { return std::to_string(CercaTIPO_SK(key)); }),
       "Select TIPO_SK FROM RAMI Where COD_RAMO = '01'",
       3,
       3,
       {"TIPO_SK"},
       {std::int32_t{4}},
       "4",
       "0"},
      {"CercaR_ACC",
       with("P1", "", [] { return std::to_string(CercaR_ACC(key).tenThousandths()); }),
       "Select R_ACC From PRODUTTORI Where COD_PROD = 'P1'",
       2,
       3,
       {"R_ACC"},
       {11.5},
       "115000",
       "0"},
      {"CercaPRODUTTORE",
       with("P1", "", [] { return CercaPRODUTTORE(key, false); }),
       "Select DENOMINAZIONE, PERCALT From PRODUTTORI Where COD_PROD = 'P1'",
       2,
       3,
       {"DENOMINAZIONE", "PERCALT"},
       {of("Rossi"), 12.5},
       "Rossi",
       ""},
      {"CercaPRODUTTORE with its percent",
       with("P1", "", [] { return CercaPRODUTTORE(key, true); }),
       "Select DENOMINAZIONE, PERCALT From PRODUTTORI Where COD_PROD = 'P1'",
       2,
       3,
       {"DENOMINAZIONE", "PERCALT"},
       {of("Rossi"), 12.5},
       "Rossi (12,5%)",
       ""},
      {"CercaCOMPAGNIA",
       with("AB", "", [] { return CercaCOMPAGNIA(key); }),
       "Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP = 'AB'",
       2,
       3,
       {"DESC_COMPAGNIA"},
       {of("Alfa")},
       "Alfa",
       ""},
      {"CercaCOMP_DEL",
       [] { return CercaCOMP_DEL(-7); },
       "Select COD_COMP From QUOTE_POLIZZE Where PROT = -7 AND DELEGATARIA <> 0",
       2,
       3,
       {"COD_COMP"},
       {of("AB")},
       "AB",
       ""},
      {"CercaCOMP_DEL_SIN",
       with("S/1", "", [] { return CercaCOMP_DEL_SIN(key); }),
       "Select COD_COMP From QUOTE_SINISTRI Where N_SINISTRO = 'S/1' AND DELEGATARIA <> 0",
       2,
       3,
       {"COD_COMP"},
       {of("AB")},
       "AB",
       ""},
      {"CercaPROD_DEL",
       [] { return CercaPROD_DEL(2147483647); },
       "Select COD_PROD From QUOTE_POLIZZE Where PROT = 2147483647 AND DELEGATARIA <> 0",
       2,
       3,
       {"COD_PROD"},
       {of("P1")},
       "P1",
       ""},
      {"CercaPROD_DEL_SOSPESO",
       [] { return CercaPROD_DEL_SOSPESO(12, 3); },
       "Select COD_PROD FROM SOSPESI Where COD_COMP = COD_COMP_DEL AND PROT = 12 AND PROG = 3",
       3,
       1,
       {"COD_PROD"},
       {of("P1")},
       "P1",
       ""},
      {"CercaIVA",
       with("22", "",
            [] {
              std::string description = "prima";
              std::int16_t rate = -1;
              CercaIVA(key, description, rate);
              return description + " " + std::to_string(rate);
            }),
       "Select * From TIPI_IVA Where COD_IVA = 22",
       2,
       3,
       {"COD_IVA", "DESCRIZIONE", "IVA"},
       {std::int32_t{22}, of("Ordinaria"), std::int32_t{22}},
       "Ordinaria 22",
       "prima -1"},
      {"CercaESPOSIZIONE",
       with("C1", "AB", [] { return CercaESPOSIZIONE(key, second); }),
       std::string(kExposure),
       2,
       3,
       {"COD_CLIENTE", "COD_COMP", "ESP"},
       {of("C1"), of("AB"), 1234.5},
       "1234,5",
       ""},
      {"CercaDESC_CONTO of a ledger",
       with("10", "", [] { return CercaDESC_CONTO(key, second); }),
       "Select DESCRIZIONE From MASTRI Where MASTRO = '10'",
       2,
       3,
       {"DESCRIZIONE"},
       {of("Cassa")},
       "Cassa",
       ""},
      {"CercaDESC_CONTO of an account",
       with("10", "001", [] { return CercaDESC_CONTO(key, second); }),
       "Select DESCRIZIONE From CONTI Where MASTRO = '10' AND CONTO = '001'",
       2,
       3,
       {"DESCRIZIONE"},
       {of("Cassa contanti")},
       "Cassa contanti",
       ""},
      {"CercaSIGLA",
       with("5", "", [] { return CercaSIGLA(key); }),
       "Select sigla From SOTTORAMI Where COD_SRAMO = 5",
       2,
       3,
       {"sigla"},
       {of("INC")},
       "INC",
       ""},
  };
}

TEST_P(Lookups, RunOneStatementAndConvertItsColumn) {
  for (const Call& call : calls()) {
    SCOPED_TRACE(call.name);
    driver().ran.clear();
    answer(call.sql, call.columns, call.row);
    EXPECT_EQ(call.run(), call.result);
    EXPECT_EQ(onlyStatement(), (Ran{call.sql, call.cursorType, call.lockType, -1}));
  }
}

TEST_P(Lookups, GiveTheEmptyValueWhereNoRowIsFound) {
  for (const Call& call : calls()) {
    SCOPED_TRACE(call.name);
    driver().answers.clear();
    EXPECT_EQ(call.run(), call.emptyResult);
  }
}

TEST_P(Lookups, TheFirstOfSeveralRowsWins) {
  const std::string sql = "Select COD_COMP From QUOTE_POLIZZE Where PROT = 9 AND DELEGATARIA <> 0";
  driver().answers[sql] = {{"COD_COMP"}, {{of("PRIMA")}, {of("SECONDA")}, {Null{}}}};
  EXPECT_EQ(CercaCOMP_DEL(9), "PRIMA");
}

TEST_P(Lookups, ANullInTheColumnReadFailsAndNamesTheColumn) {
  for (Call call : calls()) {
    if (call.name == "CercaPROD_DEL_SOSPESO") continue;
    SCOPED_TRACE(call.name);
    for (Variant& value : call.row) value = Null{};
    answer(call.sql, call.columns, call.row);
    std::string column = call.columns.back();
    if (call.name.starts_with("CercaPRODUTTORE")) column = "Denominazione";
    if (call.name == "CercaIVA") column = "DESCRIZIONE";
    if (call.name == "CercaESPOSIZIONE") column = "esp";
    EXPECT_FAILURE(call.run(), FailureKind::InvalidUseOfNull, column);
  }
}

TEST_P(Lookups, ANullProducerOfATitleGivesTheEmptyText) {
  answer("Select COD_PROD FROM SOSPESI Where COD_COMP = COD_COMP_DEL AND PROT = 1 AND PROG = 0", {"COD_PROD"},
         {Null{}});
  EXPECT_EQ(CercaPROD_DEL_SOSPESO(1, 0), "");
}

TEST_P(Lookups, ANullPercentShowsAsNothing) {
  answer("Select DENOMINAZIONE, PERCALT From PRODUTTORI Where COD_PROD = 'P1'", {"DENOMINAZIONE", "PERCALT"},
         {of("Rossi"), Null{}});
  std::string code = "P1";
  EXPECT_EQ(CercaPRODUTTORE(code, true), "Rossi (%)");
  EXPECT_EQ(CercaPRODUTTORE(code, false), "Rossi");
}

TEST_P(Lookups, ADescriptionIsGivenBackEvenWhereTheRateBehindItIsNull) {
  answer("Select * From TIPI_IVA Where COD_IVA = 22", {"DESCRIZIONE", "IVA"}, {of("Ordinaria"), Null{}});
  std::string code = "22";
  std::string description;
  std::int16_t rate = 7;
  EXPECT_FAILURE(CercaIVA(code, description, rate), FailureKind::InvalidUseOfNull, "IVA");
  EXPECT_EQ(description, "Ordinaria");
  EXPECT_EQ(rate, 7);
}

TEST_P(Lookups, EmptyKeysAskNothing) {
  std::string empty;
  std::string code = "X";
  EXPECT_EQ(CercaR_ACC(empty), Currency());
  EXPECT_EQ(CercaPRODUTTORE(empty, false), "");
  EXPECT_EQ(CercaPRODUTTORE(empty, true), "");
  EXPECT_EQ(CercaCOMPAGNIA(empty), "");
  EXPECT_EQ(CercaCOMP_DEL(0), "");
  EXPECT_EQ(CercaPROD_DEL(0), "");
  EXPECT_EQ(CercaPROD_DEL_SOSPESO(0, 5), "");
  EXPECT_EQ(CercaESPOSIZIONE(empty, code), "");
  EXPECT_EQ(CercaESPOSIZIONE(code, empty), "");
  EXPECT_EQ(CercaDESC_CONTO(empty, code), "");
  EXPECT_EQ(CercaDESC_CONTO(empty, empty), "");
  EXPECT_EQ(CercaSIGLA(empty), "");
  std::string zero = "0";
  EXPECT_EQ(CercaCOMP_DEL_SIN(zero), "");
  EXPECT_TRUE(driver().ran.empty());
}

TEST_P(Lookups, SomeAskWithAnEmptyKeyAllTheSame) {
  std::string empty;
  EXPECT_EQ(CercaTIPO_SK(empty), 0);
  EXPECT_EQ(driver().ran.back().sql, "Select TIPO_SK FROM RAMI Where COD_RAMO = ''");
  EXPECT_EQ(CercaCOMP_DEL_SIN(empty), "");
  EXPECT_EQ(driver().ran.back().sql, "Select COD_COMP From QUOTE_SINISTRI Where N_SINISTRO = '' AND DELEGATARIA <> 0");
  std::string description;
  std::int16_t rate = 0;
  CercaIVA(empty, description, rate);
  EXPECT_EQ(driver().ran.back().sql, "Select * From TIPI_IVA Where COD_IVA = ");
  EXPECT_EQ(CercaPROD_DEL_SOSPESO(1, 0), "");
  EXPECT_EQ(driver().ran.back().sql,
            "Select COD_PROD FROM SOSPESI Where COD_COMP = COD_COMP_DEL AND PROT = 1 AND PROG = 0");
}

TEST_P(Lookups, QuotesLeaveTheKeyForTheCallerToo) {
  std::string key = "'D'A''";
  CercaCOMPAGNIA(key);
  EXPECT_EQ(key, "DA");
  EXPECT_EQ(driver().ran.back().sql, "Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP = 'DA'");
  key = "'P'1";
  CercaR_ACC(key);
  EXPECT_EQ(key, "P1");
  key = "P'1";
  CercaPRODUTTORE(key, true);
  EXPECT_EQ(key, "P1");
  key = "5'";
  CercaSIGLA(key);
  EXPECT_EQ(key, "5");
  std::string mastro = "1'0";
  std::string conto = "'001";
  CercaDESC_CONTO(mastro, conto);
  EXPECT_EQ(mastro + " " + conto, "10 001");
}

TEST_P(Lookups, AKeyOfQuotesAloneIsEmpty) {
  std::string key = "'''";
  EXPECT_EQ(CercaCOMPAGNIA(key), "");
  EXPECT_EQ(key, "");
  key = "'";
  std::string conto = "0'01";  // loses its own, though nothing is asked without a ledger
  EXPECT_EQ(CercaDESC_CONTO(key, conto), "");
  EXPECT_EQ(key + conto, "001");
  EXPECT_TRUE(driver().ran.empty());
}

TEST_P(Lookups, SomeKeysKeepTheirQuotes) {
  std::string key = "1'2";
  CercaTIPO_SK(key);
  EXPECT_EQ(driver().ran.back().sql, "Select TIPO_SK FROM RAMI Where COD_RAMO = '1'2'");
  CercaCOMP_DEL_SIN(key);
  EXPECT_EQ(driver().ran.back().sql,
            "Select COD_COMP From QUOTE_SINISTRI Where N_SINISTRO = '1'2' AND DELEGATARIA <> 0");
  std::string description;
  std::int16_t rate = 0;
  CercaIVA(key, description, rate);
  EXPECT_EQ(driver().ran.back().sql, "Select * From TIPI_IVA Where COD_IVA = 1'2");
  std::string company = "A'B";
  CercaESPOSIZIONE(key, company);
  EXPECT_NE(driver().ran.back().sql.find("='1'2') AND ((QUOTE_POLIZZE.COD_COMP)='A'B'))"), std::string::npos);
  EXPECT_EQ(key + company, "1'2A'B");
}

TEST_P(Lookups, FireMancaDBFirstWhateverTheKey) {
  Globale::unload();
  int asked = 0;
  const Subscription host = Globale::Eventi()->MancaDB.subscribe([&] { ++asked; });
  std::string key = "'";
  std::string empty;
  std::string description;
  std::int16_t rate = 0;
  std::string seen;
  const Subscription looks = Globale::Eventi()->MancaDB.subscribe([&] { seen = key; });
  CercaR_ACC(key);
  EXPECT_EQ(seen, "'");  // even before its quotes go
  CercaPRODUTTORE(empty, false);
  CercaCOMPAGNIA(empty);
  CercaCOMP_DEL(0);
  CercaPROD_DEL(0);
  CercaPROD_DEL_SOSPESO(0, 0);
  CercaESPOSIZIONE(empty, empty);
  CercaDESC_CONTO(empty, empty);
  CercaSIGLA(empty);
  std::string zero = "0";
  CercaCOMP_DEL_SIN(zero);
  EXPECT_EQ(asked, 10);
  EXPECT_FAILURE(CercaTIPO_SK(empty), FailureKind::Database, "closed");
  EXPECT_FAILURE(CercaIVA(empty, description, rate), FailureKind::Database, "closed");
  EXPECT_EQ(asked, 12);
}

TEST_P(Lookups, FireMancaDBBeforeTheQuotesGo) {
  Globale::unload();
  std::string key;
  std::string seen;
  const Subscription host = Globale::Eventi()->MancaDB.subscribe([&] { seen += key; });
  const auto asked = [&](auto lookup) {
    key = "'";
    lookup();
    EXPECT_EQ(key, "");
  };
  asked([&] { CercaR_ACC(key); });
  asked([&] { CercaPRODUTTORE(key, false); });
  asked([&] { CercaCOMPAGNIA(key); });
  asked([&] { CercaDESC_CONTO(key, key); });
  asked([&] { CercaSIGLA(key); });
  EXPECT_EQ(seen, "'''''");
}

TEST_P(Lookups, QuotesAreGoneEvenWhereTheQueryFails) {
  Globale::unload();
  std::string key = "A'B";
  EXPECT_FAILURE(CercaCOMPAGNIA(key), FailureKind::Database, "closed");
  EXPECT_EQ(key, "AB");
}

TEST_P(Lookups, ANumberInAColumnReadAsTextGivesItsText) {
  answer("Select COD_COMP From QUOTE_POLIZZE Where PROT = 1 AND DELEGATARIA <> 0", {"COD_COMP"}, {std::int32_t{7}});
  EXPECT_EQ(CercaCOMP_DEL(1), "7");
  answer("Select COD_COMP From QUOTE_POLIZZE Where PROT = 2 AND DELEGATARIA <> 0", {"COD_COMP"}, {1.5});
  EXPECT_EQ(CercaCOMP_DEL(2), "1,5");
  answer("Select COD_COMP From QUOTE_POLIZZE Where PROT = 3 AND DELEGATARIA <> 0", {"COD_COMP"}, {of("00120")});
  EXPECT_EQ(CercaCOMP_DEL(3), "00120");
}

TEST_P(Lookups, ShowNumbersInThePlatformsLocale) {
  setLocale({.decimalSign = '.', .groupingSign = ','});
  answer("Select DENOMINAZIONE, PERCALT From PRODUTTORI Where COD_PROD = 'P1'", {"DENOMINAZIONE", "PERCALT"},
         {of("Rossi"), 12.5});
  std::string key = "P1";
  EXPECT_EQ(CercaPRODUTTORE(key, true), "Rossi (12.5%)");
}

TEST_P(Lookups, NumbersThatTheDatabaseKeepsAsTextReadAsTheDatabaseReadsThem) {
  answer("Select R_ACC From PRODUTTORI Where COD_PROD = 'P1'", {"R_ACC"}, {of("11.5")});
  std::string key = "P1";
  EXPECT_EQ(CercaR_ACC(key).tenThousandths(), 115000);
  answer("Select R_ACC From PRODUTTORI Where COD_PROD = 'P1'", {"R_ACC"}, {of("1.250")});
  EXPECT_EQ(CercaR_ACC(key).tenThousandths(), 12500);
  answer("Select R_ACC From PRODUTTORI Where COD_PROD = 'P1'", {"R_ACC"}, {of("11,5")});
  EXPECT_EQ(CercaR_ACC(key).tenThousandths(), 115000);
  answer("Select R_ACC From PRODUTTORI Where COD_PROD = 'P1'", {"R_ACC"}, {of("molto")});
  EXPECT_FAILURE(CercaR_ACC(key), FailureKind::TypeMismatch, "molto");
  answer("Select DENOMINAZIONE, PERCALT From PRODUTTORI Where COD_PROD = 'P1'", {"DENOMINAZIONE", "PERCALT"},
         {of("Rossi"), of("12.5")});
  EXPECT_EQ(CercaPRODUTTORE(key, true), "Rossi (12,5%)");
  answer("Select DENOMINAZIONE, PERCALT From PRODUTTORI Where COD_PROD = 'P1'", {"DENOMINAZIONE", "PERCALT"},
         {of("Rossi"), of("1234567890123456.5")});
  EXPECT_EQ(CercaPRODUTTORE(key, true), "Rossi (1234567890123456,5%)");
  answer("Select DENOMINAZIONE, PERCALT From PRODUTTORI Where COD_PROD = 'P1'", {"DENOMINAZIONE", "PERCALT"},
         {of("Rossi"), std::numeric_limits<double>::infinity()});
  EXPECT_FAILURE(CercaPRODUTTORE(key, true), FailureKind::Overflow, "percAlt");
  for (const auto office : {"1.250,00", "€ 1.250", "(1.250,0)"}) {
    answer("Select R_ACC From PRODUTTORI Where COD_PROD = 'P1'", {"R_ACC"}, {of(office)});
    EXPECT_EQ(std::abs(CercaR_ACC(key).tenThousandths()), 12'500'000) << office;
  }
  for (const auto neither : {"1'250", "€ 11.5", "(11.5)"}) {
    answer("Select R_ACC From PRODUTTORI Where COD_PROD = 'P1'", {"R_ACC"}, {of(neither)});
    EXPECT_FAILURE(CercaR_ACC(key), FailureKind::TypeMismatch, neither);
  }
}

TEST_P(Lookups, ColumnsThatDoNotFitTheResultFail) {
  std::string key = "1";
  answer("Select TIPO_SK FROM RAMI Where COD_RAMO = '1'", {"TIPO_SK"}, {std::int32_t{40000}});
  EXPECT_FAILURE(CercaTIPO_SK(key), FailureKind::Overflow, "TIPO_SK");
  answer("Select TIPO_SK FROM RAMI Where COD_RAMO = '1'", {"TIPO_SK"}, {of("x")});
  EXPECT_FAILURE(CercaTIPO_SK(key), FailureKind::TypeMismatch, "TIPO_SK");
  answer("Select TIPO_SK FROM RAMI Where COD_RAMO = '1'", {"ALTRO"}, {of("x")});
  EXPECT_FAILURE(CercaTIPO_SK(key), FailureKind::Database, "TIPO_SK");
}

TEST_P(Lookups, AreCalledByNameWithTheirArgumentsInAndOut) {
  answer("Select * From TIPI_IVA Where COD_IVA = 22", {"DESCRIZIONE", "IVA"}, {of("Ordinaria"), std::int32_t{22}});
  std::vector<Variant> args{std::int32_t{22}, of(""), std::int32_t{0}};
  EXPECT_EQ(callLookup("cercaiva", args), Variant(Empty{}));
  EXPECT_EQ(args, (std::vector<Variant>{of("22"), of("Ordinaria"), std::int16_t{22}}));
  std::vector<Variant> company{of("A'B")};
  EXPECT_EQ(callLookup("CercaCOMPAGNIA", company), of(""));
  EXPECT_EQ(company[0], of("AB"));
  EXPECT_FAILURE(callLookup("CercaNIENTE", company), FailureKind::NoSuchMember, "CercaNIENTE");
  EXPECT_FAILURE(callLookup("CercaIVA", company), FailureKind::InvalidCall, "CercaIVA");
  EXPECT_FAILURE(callLookup("CercaIVA", company), FailureKind::InvalidCall, "takes 3 arguments, given 1");
  std::vector<Variant> noRate{of("22"), of(""), of("molto")};
  EXPECT_FAILURE(callLookup("CercaIVA", noRate), FailureKind::TypeMismatch, "CercaIVA: argument 3: ");
  std::vector<Variant> none;
  EXPECT_FAILURE(callLookup("CercaSIGLA", none), FailureKind::InvalidCall, "takes 1 argument, given 0");
  std::vector<Variant> null{Null{}};
  EXPECT_FAILURE(callLookup("CercaCOMPAGNIA", null), FailureKind::InvalidUseOfNull, "CercaCOMPAGNIA");
}

TEST_P(Lookups, CalledByNameGiveBackWhatTheyWroteBeforeAFailure) {
  answer("Select * From TIPI_IVA Where COD_IVA = 22", {"DESCRIZIONE", "IVA"}, {of("Ordinaria"), Null{}});
  std::vector<Variant> args{std::int32_t{22}, of(""), std::int32_t{5}};
  EXPECT_FAILURE(callLookup("CercaIVA", args), FailureKind::InvalidUseOfNull, "CercaIVA: IVA");
  EXPECT_EQ(args, (std::vector<Variant>{of("22"), of("Ordinaria"), std::int16_t{5}}));
}

TEST_P(Lookups, AreTwelveAndSevenPickLists) {
  std::string functions;
  for (const LookupFunction& function : lookupFunctions()) {
    functions.append(function.name).append(": ").append(function.type).append("\n");
  }
  EXPECT_EQ(functions,
            "CercaCOMPAGNIA: text\n"
            "CercaCOMP_DEL: text\n"
            "CercaCOMP_DEL_SIN: text\n"
            "CercaDESC_CONTO: text\n"
            "CercaESPOSIZIONE: text\n"
            "CercaIVA: \n"
            "CercaPRODUTTORE: text\n"
            "CercaPROD_DEL: text\n"
            "CercaPROD_DEL_SOSPESO: text\n"
            "CercaR_ACC: currency\n"
            "CercaSIGLA: text\n"
            "CercaTIPO_SK: 16-bit integer\n"
            "ListaCLIENTI: text\n"
            "ListaCOMPAGNIE: text\n"
            "ListaCONTI: text\n"
            "ListaMASTRI: text\n"
            "ListaPRODUTTORI: text\n"
            "ListaSOTTORAMI: text\n"
            "ListaTIPI_IVA: text\n");
}

}  // namespace
}  // namespace qvn::test
