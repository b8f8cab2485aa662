// What the outstanding title panel costs beside its database: from a title's numbers and its lead company's code to the
// four captions that name the lead company and its producer. Beside it stand the same three queries on the same
// connection, their texts made beforehand. Both take turns over the same titles; "ratio" is the first by the second.
#include <benchmark/benchmark.h>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

#include "bench/panels/office.h"
#include "platforms/sqlite/driver.h"
#include "platforms/sqlite/handle.h"
#include "qvn/panels/documents/ctlSOSPESI.h"

namespace qvn::bench {
namespace {

constexpr int kTitles = 1024;

/// A database of so many policies with one title each, of 40 companies and 60 producers.
class TitlesFile {
 public:
  explicit TitlesFile(std::int32_t policies)
      : path_(std::filesystem::temp_directory_path() / ("qvn-titles-" + std::to_string(getpid()) + ".db")) {
    sqlite3* opened = nullptr;
    sqlite3_open(path_.c_str(), &opened);
    const sqlite::DatabaseHandle database(opened);
    const std::string count = std::to_string(policies);
    const std::string sql =
        "PRAGMA synchronous = OFF;"
        "CREATE TABLE COMPAGNIE (COD_COMP TEXT PRIMARY KEY, DESC_COMPAGNIA TEXT) WITHOUT ROWID;"
        "CREATE TABLE PRODUTTORI (COD_PROD TEXT PRIMARY KEY, DENOMINAZIONE TEXT, PERCALT NUMERIC) WITHOUT ROWID;"
        "CREATE TABLE SOSPESI (PROT INTEGER, PROG INTEGER, COD_COMP TEXT, COD_COMP_DEL TEXT, COD_PROD TEXT,"
        " PRIMARY KEY (PROT, PROG, COD_COMP)) WITHOUT ROWID;"
        "CREATE TEMPORARY TABLE N AS WITH RECURSIVE R(N) AS (SELECT 0 UNION ALL SELECT N + 1 FROM R WHERE N < " +
        count +
        ") SELECT N FROM R;"
        "INSERT INTO COMPAGNIE SELECT printf('C%04d', N), printf('Compagnia %d', N) FROM N WHERE N < 40;"
        "INSERT INTO PRODUTTORI SELECT printf('P%06d', N), printf('Produttore %d', N), 30 FROM N WHERE N < 60;"
        "INSERT INTO SOSPESI SELECT N, N % 3 + 1, printf('C%04d', N % 40), printf('C%04d', N % 40),"
        " printf('P%06d', N % 60) FROM N;";
    if (sqlite3_exec(opened, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
      throw std::runtime_error(sqlite3_errmsg(opened));
  }
  ~TitlesFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }
  TitlesFile(const TitlesFile&) = delete;
  TitlesFile& operator=(const TitlesFile&) = delete;

  std::string connectionString() const { return "sqlite:" + path_.string(); }

 private:
  std::filesystem::path path_;
};

std::string code(const char* form, std::int32_t number) {
  char text[16];
  std::snprintf(text, sizeof text, form, static_cast<int>(number));
  return text;
}

/// One title, and what it shows in the end.
struct Title {
  std::int32_t PROT;
  std::int16_t PROG;
  std::string COD_COMP_DEL;
  std::string producer;  ///< its code
  std::string companySql;
  std::string titleSql;
  std::string producerSql;
};

/// Titles that lie all over the table.
std::vector<Title> titles(std::int32_t policies) {
  std::vector<Title> all;
  all.reserve(kTitles);
  for (std::int64_t i = 1; i <= kTitles; ++i) {
    const auto PROT = static_cast<std::int32_t>(i * 7919 % policies);
    Title title{.PROT = PROT,
                .PROG = static_cast<std::int16_t>(PROT % 3 + 1),
                .COD_COMP_DEL = code("C%04d", PROT % 40),
                .producer = code("P%06d", PROT % 60),
                .companySql = {},
                .titleSql = {},
                .producerSql = {}};
    title.companySql = "Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP = '" + title.COD_COMP_DEL + "'";
    title.titleSql = "Select COD_PROD FROM SOSPESI Where COD_COMP = COD_COMP_DEL AND PROT = " + std::to_string(PROT) +
                     " AND PROG = " + std::to_string(title.PROG);
    title.producerSql = "Select DENOMINAZIONE, PERCALT From PRODUTTORI Where COD_PROD = '" + title.producer + "'";
    all.push_back(std::move(title));
  }
  return all;
}

void show(ctlSOSPESI& panel, const Title& title) {
  panel.COD_COMP_DEL(title.COD_COMP_DEL);
  panel.PROT(title.PROT);
  panel.PROG(title.PROG);
  // The next title's first number would be looked up beside this one's second.
  panel.PROG(Empty{});
}

void ask(const std::string& sql, std::string_view column) {
  toolkit::Recordset rows;
  rows.Open(sql, Globale::DB(), toolkit::adOpenDynamic, toolkit::adLockOptimistic, toolkit::adOptionUnspecified);
  if (rows.Eof()) throw std::runtime_error("nothing found: " + sql);
  auto text = std::get<std::string>(rows.Fields(column));
  benchmark::DoNotOptimize(text);
}

void askPlainly(const Title& title) {
  ask(title.companySql, "DESC_COMPAGNIA");
  ask(title.titleSql, "COD_PROD");
  ask(title.producerSql, "DENOMINAZIONE");
}

/// What the processor takes for all titles, in seconds.
template <class Each>
double secondsOf(const std::vector<Title>& all, const Each& each) {
  const std::clock_t start = std::clock();
  for (const Title& title : all) each(title);
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

void showingATitle(benchmark::State& state) {
  const auto policies = static_cast<std::int32_t>(state.range(0));
  const TitlesFile file(policies);
  Host host;
  memory::Platform platform;
  platform.drivers().add(sqlite::driver());
  Globale::install(platform);
  Globale::Eventi()->ImpostaDB(file.connectionString());
  {
    ctlSOSPESI panel({.container = host, .name = "panel"});
    const auto all = titles(policies);
    double shown = 0;
    double beside = 0;
    for (auto _ : state) {
      beside += secondsOf(all, askPlainly);
      const double took = secondsOf(all, [&](const Title& title) { show(panel, title); });
      shown += took;
      state.SetIterationTime(took);
    }
    const auto each = static_cast<double>(state.iterations() * kTitles);
    state.counters["panel_us"] = shown / each * 1e6;
    state.counters["queries_us"] = beside / each * 1e6;
    state.counters["ratio"] = shown / beside;
    const auto caption = [&](std::string_view name) { return panel.surface().label(name).Caption(); };
    const Title& last = all.back();
    if (caption("LblCOD_PROD_DEL") != last.producer ||
        caption("LblDESC_PROD_DEL") != "Produttore " + std::to_string(last.PROT % 60) ||
        caption("LblDESC_COMP_DEL") != "Compagnia " + std::to_string(last.PROT % 40) || host.failures != 0) {
      state.SkipWithError("the leads are not those that they must be");
    }
  }
  Globale::uninstall();
}
BENCHMARK(showingATitle)->Arg(100'000)->UseManualTime()->MinTime(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qvn::bench
