// What the policy panel of a search costs beside its database: from a policy's number to the four captions that name
// its lead company and its lead producer. Beside it stand the same four queries on the same connection, their texts
// made beforehand. Both take turns over the same policies; "ratio" is the first by the second.
#include <benchmark/benchmark.h>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

#include "bench/panels/office.h"
#include "platforms/sqlite/driver.h"
#include "platforms/sqlite/handle.h"
#include "qvn/panels/documents/ctlRICERCA.h"

namespace qvn::bench {
namespace {

constexpr std::int32_t kPolicies = 100'000;
constexpr std::int32_t kShown = 1024;
constexpr std::int32_t kCompanies = 40;
constexpr std::int32_t kProducers = 60;

/// A database of policies with two companies each, of which the second leads.
std::string policiesSql() {
  const auto below = [](std::int32_t count) { return " FROM N WHERE N < " + std::to_string(count) + ";"; };
  return "PRAGMA synchronous = OFF;"
         "CREATE TABLE COMPAGNIE (COD_COMP TEXT PRIMARY KEY, DESC_COMPAGNIA TEXT) WITHOUT ROWID;"
         "CREATE TABLE PRODUTTORI (COD_PROD TEXT PRIMARY KEY, DENOMINAZIONE TEXT, PERCALT NUMERIC) WITHOUT ROWID;"
         "CREATE TABLE QUOTE_POLIZZE (PROT INTEGER, COD_COMP TEXT, COD_PROD TEXT, DELEGATARIA INTEGER,"
         " PRIMARY KEY (PROT, COD_COMP)) WITHOUT ROWID;"
         "CREATE TEMPORARY TABLE N AS WITH RECURSIVE R(N) AS (SELECT 0 UNION ALL SELECT N + 1 FROM R WHERE N < " +
         std::to_string(kPolicies) +
         ") SELECT N FROM R;"
         "INSERT INTO COMPAGNIE SELECT 'C' || N, 'Compagnia ' || N" +
         below(kCompanies) + "INSERT INTO PRODUTTORI SELECT 'P' || N, 'Produttore ' || N, 30" + below(kProducers) +
         "INSERT INTO QUOTE_POLIZZE SELECT N, 'A', 'P0', 0 FROM N;"
         "INSERT INTO QUOTE_POLIZZE SELECT N, 'C' || (N % " +
         std::to_string(kCompanies) + "), 'P' || (N % " + std::to_string(kProducers) + "), -1 FROM N;";
}

class PoliciesFile {
 public:
  PoliciesFile()
      : path_(std::filesystem::temp_directory_path() / ("qvn-policies-" + std::to_string(getpid()) + ".db")) {
    sqlite3* opened = nullptr;
    sqlite3_open(path_.c_str(), &opened);
    const sqlite::DatabaseHandle database(opened);
    if (sqlite3_exec(opened, policiesSql().c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
      throw std::runtime_error(sqlite3_errmsg(opened));
  }
  ~PoliciesFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }
  PoliciesFile(const PoliciesFile&) = delete;
  PoliciesFile& operator=(const PoliciesFile&) = delete;

  std::string connectionString() const { return "sqlite:" + path_.string(); }

 private:
  std::filesystem::path path_;
};

struct Query {
  std::string sql;
  std::string column;
};

/// A policy with the queries of its leads. Neither lead is that of the policy before.
struct Policy {
  std::int32_t PROT;
  std::vector<Query> queries;
};

/// Policies that lie all over the table.
std::vector<Policy> policies() {
  std::vector<Policy> all;
  all.reserve(kShown);
  for (std::int32_t i = 1; i <= kShown; ++i) {
    const std::int32_t PROT = i * 7919 % kPolicies;
    const std::string lead = " From QUOTE_POLIZZE Where PROT = " + std::to_string(PROT) + " AND DELEGATARIA <> 0";
    const std::string company = std::to_string(PROT % kCompanies);
    const std::string producer = std::to_string(PROT % kProducers);
    all.push_back(
        {.PROT = PROT,
         .queries = {
             {"Select COD_COMP" + lead, "COD_COMP"},
             {"Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP = 'C" + company + "'", "DESC_COMPAGNIA"},
             {"Select COD_PROD" + lead, "COD_PROD"},
             {"Select DENOMINAZIONE, PERCALT From PRODUTTORI Where COD_PROD = 'P" + producer + "'", "DENOMINAZIONE"}}});
  }
  return all;
}

void askPlainly(const Policy& policy) {
  for (const Query& query : policy.queries) {
    toolkit::Recordset rows;
    rows.Open(query.sql, Globale::DB(), toolkit::adOpenDynamic, toolkit::adLockOptimistic,
              toolkit::adOptionUnspecified);
    if (rows.Eof()) throw std::runtime_error("nothing found: " + query.sql);
    auto text = std::get<std::string>(rows.Fields(query.column));
    benchmark::DoNotOptimize(text);
  }
}

/// What the processor takes for all policies, in seconds.
template <class Each>
double secondsOf(const std::vector<Policy>& all, const Each& each) {
  const std::clock_t start = std::clock();
  for (const Policy& policy : all) each(policy);
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

void showingAPolicy(benchmark::State& state) {
  const PoliciesFile file;
  Host host;
  memory::Platform platform;
  platform.drivers().add(sqlite::driver());
  Globale::install(platform);
  Globale::Eventi()->ImpostaDB(file.connectionString());
  {
    ctlRICERCA panel({.container = host, .name = "panel"});
    const auto all = policies();
    double shown = 0;
    double beside = 0;
    for (auto _ : state) {
      beside += secondsOf(all, askPlainly);
      const double took = secondsOf(all, [&](const Policy& policy) { panel.PROT(policy.PROT); });
      shown += took;
      state.SetIterationTime(took);
    }
    const auto each = static_cast<double>(state.iterations() * kShown);
    state.counters["panel_us"] = shown / each * 1e6;
    state.counters["queries_us"] = beside / each * 1e6;
    state.counters["ratio"] = shown / beside;
    const auto caption = [&](std::string_view name) { return panel.surface().label(name).Caption(); };
    const std::int32_t last = all.back().PROT;
    if (caption("LblDESC_COMP_DEL") != "Compagnia " + std::to_string(last % kCompanies) ||
        caption("LblDESC_PROD_DEL") != "Produttore " + std::to_string(last % kProducers)) {
      state.SkipWithError("the leads are not those that they must be");
    }
  }
  Globale::uninstall();
}
BENCHMARK(showingAPolicy)->UseManualTime()->MinTime(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qvn::bench
