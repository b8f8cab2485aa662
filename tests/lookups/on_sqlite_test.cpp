// The twelve lookups on a real database file, with its Nulls, gaps and locks.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <string>
#include <unistd.h>

#include "platforms/sqlite/driver.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "tests/failure_matchers.h"
#include "tests/on_platform.h"

namespace qvn::test {
namespace {

using namespace QVN_Ricerche;

/// The host's own connection, which may write.
class HostConnection {
 public:
  explicit HostConnection(const std::filesystem::path& file) { EXPECT_EQ(sqlite3_open(file.c_str(), &db_), SQLITE_OK); }
  ~HostConnection() { sqlite3_close(db_); }
  HostConnection(const HostConnection&) = delete;
  HostConnection& operator=(const HostConnection&) = delete;

  void run(const std::string& sql) {
    char* error = nullptr;
    EXPECT_EQ(sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &error), SQLITE_OK) << sql << ": " << error;
    sqlite3_free(error);
  }

 private:
  sqlite3* db_ = nullptr;
};

constexpr const char* kOffice = R"(
  create table RAMI (COD_RAMO text, DESCRIZIONE text, TIPO_SK integer);
  insert into RAMI values ('01', 'Incendio', 1), ('04', 'Cauzioni', 4), ('99', 'Senza tipo', null);
  create table PRODUTTORI (COD_PROD text, DENOMINAZIONE text, PERCALT numeric, R_ACC numeric);
  insert into PRODUTTORI values ('P1', 'Rossi Mario', 12.5, 11.5), ('P2', 'D''Angelo Nicolò', null, 23),
    ('P3', null, 10, null), ('P4', 'Intero', 40, 0.00005);
  create table COMPAGNIE (COD_COMP text, DESC_COMPAGNIA text);
  insert into COMPAGNIE values ('AB', 'Alfa Beta'), ('NN', null), ('VU', ''), ('DA', 'D''Apostrofo');
  create table POLIZZE (PROT integer, COD_CLIENTE text, STATO text, U_CALCOLO text);
  insert into POLIZZE values (1, 'C1', null, 'TRF'), (2, 'C1', '', 'TAF'), (3, 'C1', 'A', 'TRF'), (4, 'C1', ' ', null),
    (5, 'C2', null, '');
  create table QUOTE_POLIZZE (PROT integer, COD_COMP text, COD_PROD text, COD_PROD_ALT text, DELEGATARIA integer,
    QUOTA integer);
  insert into QUOTE_POLIZZE values (1, 'AB', 'P1', null, 0, 400), (1, 'NN', 'P2', null, -1, 333),
    (1, 'VU', 'P3', null, 1, 267), (2, 'NN', null, null, 1, 333), (3, 'NN', 'P1', null, 0, 333),
    (4, 'NN', 'P1', null, 1, 333), (5, null, 'P1', null, 1, 1000);
  create table DATI_POLIZZE_4 (PROT integer, CAUZIONE integer);
  insert into DATI_POLIZZE_4 values (1, 1), (2, 1000), (3, 70000), (4, 50000);
  create table SOSPESI (PROT integer, PROG integer, COD_COMP text, COD_COMP_DEL text, COD_PROD text);
  insert into SOSPESI values (1, 1, 'AB', 'NN', 'P1'), (1, 1, 'NN', 'NN', 'P2'), (1, 2, 'NN', 'NN', null);
  create table QUOTE_SINISTRI (N_SINISTRO text, COD_COMP text, DELEGATARIA integer, QUOTA integer);
  insert into QUOTE_SINISTRI values ('S/1', 'AB', 0, 500), ('S/1', 'NN', 1, 500), ('0', 'AB', 1, 1000);
  create table TIPI_IVA (COD_IVA integer, DESCRIZIONE text, IVA integer, Deb_Dec integer);
  insert into TIPI_IVA values (22, 'Ordinaria', 22, 100), (1, null, 4, 0), (2, 'Senza aliquota', null, 0);
  create table MASTRI (MASTRO text, DESCRIZIONE text);
  insert into MASTRI values ('10', 'Cassa'), ('11', null);
  create table CONTI (MASTRO text, CONTO text, DESCRIZIONE text, CEE text);
  insert into CONTI values ('10', '001', 'Cassa contanti', 'C.IV'), ('10', '002', null, null);
  create table SOTTORAMI (COD_SRAMO integer, DESCRIZIONE text, sigla text);
  insert into SOTTORAMI values (5, 'Incendio civile', 'INC'), (6, 'Senza sigla', null);
)";

class LookupsOnSqlite : public OnPlatform {
 public:
  LookupsOnSqlite() {
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
    HostConnection(file()).run(kOffice);
    platform().drivers().add(sqlite::driver());
  }
  ~LookupsOnSqlite() override {
    Globale::uninstall();
    std::filesystem::remove_all(folder_);
  }

  std::filesystem::path file() const { return folder_ / "ufficio.db"; }
  void connect() { Globale::Eventi()->ImpostaDB("sqlite:" + file().string()); }

  std::string company(std::string code) { return CercaCOMPAGNIA(code); }
  std::string producer(std::string code, bool percent) { return CercaPRODUTTORE(code, percent); }
  std::string exposure(std::string client, std::string company) { return CercaESPOSIZIONE(client, company); }
  std::string account(std::string mastro, std::string conto) { return CercaDESC_CONTO(mastro, conto); }
  std::string initials(std::string code) { return CercaSIGLA(code); }
  std::string claimLead(std::string number) { return CercaCOMP_DEL_SIN(number); }
  std::int64_t withholding(std::string code) { return CercaR_ACC(code).tenThousandths(); }
  std::int16_t branchType(std::string code) { return CercaTIPO_SK(code); }
  std::string vat(std::string code) {
    std::string description = "-";
    std::int16_t rate = -1;
    CercaIVA(code, description, rate);
    return description + " " + std::to_string(rate);
  }

 private:
  std::filesystem::path folder_ =
      std::filesystem::temp_directory_path() /
      ("qvn_lookups_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()).substr(0, 40) +
       std::to_string(::getpid()));
};
QVN_ON_EVERY_PLATFORM(LookupsOnSqlite);

TEST_P(LookupsOnSqlite, FindWhatIsThere) {
  connect();
  EXPECT_EQ(branchType("04"), 4);
  EXPECT_EQ(withholding("P1"), 115000);
  EXPECT_EQ(withholding("P2"), 230000);
  EXPECT_EQ(withholding("P4"), 0);  // half a ten-thousandth, to even
  EXPECT_EQ(producer("P1", false), "Rossi Mario");
  EXPECT_EQ(producer("P1", true), "Rossi Mario (12,5%)");
  EXPECT_EQ(producer("P2", true), "D'Angelo Nicolò (%)");
  EXPECT_EQ(producer("P4", true), "Intero (40%)");
  EXPECT_EQ(company("AB"), "Alfa Beta");
  EXPECT_EQ(company("'A'B'"), "Alfa Beta");
  EXPECT_EQ(company("VU"), "");
  EXPECT_EQ(CercaCOMP_DEL(1), "NN");  // the first of two lead rows
  EXPECT_EQ(CercaPROD_DEL(1), "P2");
  EXPECT_EQ(CercaPROD_DEL_SOSPESO(1, 1), "P2");
  EXPECT_EQ(claimLead("S/1"), "NN");
  EXPECT_EQ(vat("22"), "Ordinaria 22");
  EXPECT_EQ(account("10", ""), "Cassa");
  EXPECT_EQ(account("10", "001"), "Cassa contanti");
  EXPECT_EQ(initials("5"), "INC");
}

TEST_P(LookupsOnSqlite, AnExposureCountsPoliciesInForceAndIsNeverCutShort) {
  connect();
  EXPECT_EQ(exposure("C1", "NN"), "333,333");  // 1 and 1000 times 333 thousandths; neither "A" nor a blank is in force
  EXPECT_EQ(exposure("C1", "AB"), "0,4");
  EXPECT_EQ(exposure("C2", "NN"), "");  // no policy of the kind
  EXPECT_EQ(exposure("C9", "NN"), "");
}

TEST_P(LookupsOnSqlite, GiveTheEmptyValueWhereNoRowIs) {
  connect();
  EXPECT_EQ(branchType("77"), 0);
  EXPECT_EQ(branchType(""), 0);
  EXPECT_EQ(withholding("P9"), 0);
  EXPECT_EQ(producer("P9", false), "");
  EXPECT_EQ(producer("P9", true), "");
  EXPECT_EQ(company("ZZ"), "");
  EXPECT_EQ(CercaCOMP_DEL(9), "");
  EXPECT_EQ(CercaCOMP_DEL(3), "");  // rows, but none that leads
  EXPECT_EQ(CercaPROD_DEL(3), "");
  EXPECT_EQ(CercaPROD_DEL_SOSPESO(1, 9), "");
  EXPECT_EQ(claimLead("S/9"), "");
  EXPECT_EQ(claimLead(""), "");
  EXPECT_EQ(claimLead("0"), "");  // is there, and is never asked for
  EXPECT_EQ(vat("99"), "- -1");
  EXPECT_EQ(account("12", ""), "");
  EXPECT_EQ(account("10", "999"), "");
  EXPECT_EQ(account("", "001"), "");
  EXPECT_EQ(initials("9"), "");
}

TEST_P(LookupsOnSqlite, FailOnANullButInTheTwoThatTakeIt) {
  connect();
  EXPECT_FAILURE(branchType("99"), FailureKind::InvalidUseOfNull, "TIPO_SK");
  EXPECT_FAILURE(withholding("P3"), FailureKind::InvalidUseOfNull, "R_ACC");
  EXPECT_FAILURE(producer("P3", false), FailureKind::InvalidUseOfNull, "Denominazione");
  EXPECT_FAILURE(producer("P3", true), FailureKind::InvalidUseOfNull, "Denominazione");
  EXPECT_FAILURE(company("NN"), FailureKind::InvalidUseOfNull, "DESC_COMPAGNIA");
  EXPECT_FAILURE(CercaCOMP_DEL(5), FailureKind::InvalidUseOfNull, "COD_COMP");
  EXPECT_FAILURE(CercaPROD_DEL(2), FailureKind::InvalidUseOfNull, "COD_PROD");
  EXPECT_FAILURE(vat("1"), FailureKind::InvalidUseOfNull, "DESCRIZIONE");
  EXPECT_FAILURE(vat("2"), FailureKind::InvalidUseOfNull, "IVA");
  EXPECT_FAILURE(account("11", ""), FailureKind::InvalidUseOfNull, "DESCRIZIONE");
  EXPECT_FAILURE(account("10", "002"), FailureKind::InvalidUseOfNull, "DESCRIZIONE");
  EXPECT_FAILURE(initials("6"), FailureKind::InvalidUseOfNull, "sigla");
  EXPECT_EQ(CercaPROD_DEL_SOSPESO(1, 2), "");
}

TEST_P(LookupsOnSqlite, FailWhereTheStatementCannotBeRun) {
  connect();
  EXPECT_FAILURE(vat(""), FailureKind::Database, "COD_IVA");
  EXPECT_FAILURE(vat("abc"), FailureKind::Database, "abc");
  EXPECT_FAILURE(initials("x y"), FailureKind::Database, "x y");
  EXPECT_FAILURE(branchType("0'1"), FailureKind::Database, "0'1");
  EXPECT_EQ(company("AB"), "Alfa Beta");  // the connection goes on
}

TEST_P(LookupsOnSqlite, FailWhereATableOrAColumnIsMissing) {
  HostConnection(file()).run("drop table COMPAGNIE; alter table SOTTORAMI rename column sigla to iniziali");
  connect();
  EXPECT_FAILURE(company("AB"), FailureKind::Database, "COMPAGNIE");
  EXPECT_FAILURE(initials("5"), FailureKind::Database, "sigla");
  HostConnection(file()).run(
      "drop table RAMI; drop table PRODUTTORI; drop table QUOTE_POLIZZE; drop table SOSPESI; "
      "drop table QUOTE_SINISTRI; drop table TIPI_IVA; drop table MASTRI; drop table CONTI");
  EXPECT_FAILURE(branchType("04"), FailureKind::Database, "RAMI");
  EXPECT_FAILURE(withholding("P1"), FailureKind::Database, "PRODUTTORI");
  EXPECT_FAILURE(producer("P1", true), FailureKind::Database, "PRODUTTORI");
  EXPECT_FAILURE(CercaCOMP_DEL(1), FailureKind::Database, "QUOTE_POLIZZE");
  EXPECT_FAILURE(CercaPROD_DEL(1), FailureKind::Database, "QUOTE_POLIZZE");
  EXPECT_FAILURE(CercaPROD_DEL_SOSPESO(1, 1), FailureKind::Database, "SOSPESI");
  EXPECT_FAILURE(claimLead("S/1"), FailureKind::Database, "QUOTE_SINISTRI");
  EXPECT_FAILURE(vat("22"), FailureKind::Database, "TIPI_IVA");
  EXPECT_FAILURE(exposure("C1", "AB"), FailureKind::Database, "QUOTE_POLIZZE");
  EXPECT_FAILURE(account("10", ""), FailureKind::Database, "MASTRI");
  EXPECT_FAILURE(account("10", "001"), FailureKind::Database, "CONTI");
}

TEST_P(LookupsOnSqlite, SeeWhatTheHostWritesBetweenThem) {
  connect();
  HostConnection host(file());
  EXPECT_EQ(company("AB"), "Alfa Beta");
  host.run("update COMPAGNIE set DESC_COMPAGNIA = 'Gamma' where COD_COMP = 'AB'");
  EXPECT_EQ(company("AB"), "Gamma");
  host.run("alter table COMPAGNIE add column ALTRO text");
  EXPECT_EQ(company("AB"), "Gamma");
}

TEST_P(LookupsOnSqlite, FailWhileAWriterLocksTheDatabaseAndGoOnAfterwards) {
  connect();
  HostConnection host(file());
  host.run("begin exclusive");
  EXPECT_FAILURE(company("AB"), FailureKind::Database, "locked");
  host.run("commit");
  EXPECT_EQ(company("AB"), "Alfa Beta");
}

TEST_P(LookupsOnSqlite, FailWithoutADatabase) {
  EXPECT_FAILURE(company("AB"), FailureKind::Database, "closed");
  EXPECT_FAILURE(Globale::Eventi()->ImpostaDB("sqlite:" + file().string() + ".manca"), FailureKind::Database, "manca");
  EXPECT_FAILURE(company("AB"), FailureKind::Database, "closed");
  EXPECT_FALSE(std::filesystem::exists(file().string() + ".manca"));
}

TEST_P(LookupsOnSqlite, FailWhereTheFileIsNoDatabase) {
  const std::string path = file().string() + ".txt";
  std::ofstream(path) << std::string(5000, 'x');
  EXPECT_FAILURE(Globale::Eventi()->ImpostaDB("sqlite:" + path), FailureKind::Database, path);
}

TEST_P(LookupsOnSqlite, FailOnceClosedFromOutside) {
  connect();
  EXPECT_EQ(company("AB"), "Alfa Beta");
  Globale::DB().Close();
  EXPECT_FAILURE(company("AB"), FailureKind::Database, "closed");
}

}  // namespace
}  // namespace qvn::test
