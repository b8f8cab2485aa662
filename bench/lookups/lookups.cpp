// What a look-up costs through the connection and the result set, beside the database's own work for the same text:
// preparing, one step, letting go. Both work without mutexes and with the same cache, and take turns over the same
// statements, so that what else the machine does falls on both; "ratio" is the first by the second.
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <utility>
#include <variant>
#include <vector>

#include "platforms/sqlite/driver.h"
#include "platforms/sqlite/handle.h"
#include "platforms/sqlite/session.h"
#include "qvn/toolkit/database.h"

namespace {

using namespace qvn;
using Clock = std::chrono::steady_clock;

constexpr int kCodes = 1024;

/// As the driver opens a database, but for its guards.
sqlite::DatabaseHandle openPlainly(const std::string& file, int access) {
  sqlite3* handle = nullptr;
  const int result = sqlite3_open_v2(file.c_str(), &handle, access | SQLITE_OPEN_NOMUTEX, nullptr);
  sqlite::DatabaseHandle database(handle);
  if (result != SQLITE_OK || sqlite3_exec(handle, "PRAGMA cache_size = -16384", nullptr, nullptr, nullptr) != SQLITE_OK)
    throw std::runtime_error(sqlite3_errmsg(handle));
  return database;
}

/// A database of so many companies, "C000000" and on.
sqlite::DatabaseHandle companies(const std::string& file, int count) {
  auto database = openPlainly(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  const std::string sql =
      "CREATE TABLE COMPAGNIE (COD_COMP TEXT PRIMARY KEY, DESC_COMPAGNIA TEXT);"
      "WITH RECURSIVE N(N) AS (SELECT 0 UNION ALL SELECT N + 1 FROM N WHERE N + 1 < " +
      std::to_string(count) +
      ") INSERT INTO COMPAGNIE SELECT printf('C%06d', N), printf('Compagnia di assicurazioni %d', N) FROM N";
  if (sqlite3_exec(database.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
    throw std::runtime_error(sqlite3_errmsg(database.get()));
  return database;
}

/// Statements for codes that lie all over the table.
std::vector<std::string> lookups(int count) {
  std::vector<std::string> statements;
  for (int i = 0; i < kCodes; ++i) {
    char code[16];
    std::snprintf(code, sizeof code, "C%06d", static_cast<int>(i * 7919LL % count));
    statements.push_back(std::string("Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP = '") + code + "'");
  }
  return statements;
}

void lookUpPlainly(sqlite3* database, const std::string& sql) {
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(database, sql.data(), static_cast<int>(sql.size()), &statement, nullptr);
  if (sqlite3_step(statement) != SQLITE_ROW) throw std::runtime_error("nothing found: " + sql);
  sqlite3_finalize(statement);
}

void lookUp(toolkit::Connection& connection, const std::string& sql) {
  toolkit::Recordset rows;
  rows.Open(sql, connection, toolkit::adOpenDynamic, toolkit::adLockOptimistic, toolkit::adOptionUnspecified);
  if (rows.Eof()) throw std::runtime_error("nothing found: " + sql);
  auto name = std::get<std::string>(rows.Fields("DESC_COMPAGNIA"));
  benchmark::DoNotOptimize(name);
}

template <class Each>
Clock::duration timeOf(const std::vector<std::string>& statements, const Each& each) {
  const auto start = Clock::now();
  for (const std::string& sql : statements) each(sql);
  return Clock::now() - start;
}

void compare(benchmark::State& state, toolkit::Connection& connection, sqlite3* plain, int count) {
  const auto statements = lookups(count);
  Clock::duration through{};
  Clock::duration beside{};
  for (auto _ : state) {
    beside += timeOf(statements, [&](const std::string& sql) { lookUpPlainly(plain, sql); });
    const auto took = timeOf(statements, [&](const std::string& sql) { lookUp(connection, sql); });
    through += took;
    state.SetIterationTime(std::chrono::duration<double>(took).count());
  }
  const auto perLookup = [&](Clock::duration all) {
    return std::chrono::duration<double, std::nano>(all).count() / static_cast<double>(state.iterations() * kCodes);
  };
  state.counters["driver_ns"] = perLookup(through);
  state.counters["plain_ns"] = perLookup(beside);
  state.counters["ratio"] = perLookup(through) / perLookup(beside);
}

/// A driver for one database that is open already.
class OpenDatabase final : public toolkit::Driver {
 public:
  explicit OpenDatabase(sqlite::DatabaseHandle database) : database_(std::move(database)) {}
  std::string_view head() const override { return "open:"; }
  std::unique_ptr<toolkit::Session> open(const toolkit::Opening& /*opening*/) override {
    return std::make_unique<sqlite::Session>(std::move(database_));
  }

 private:
  sqlite::DatabaseHandle database_;
};

void inMemory(benchmark::State& state) {
  const auto plain = companies(":memory:", kCodes);
  OpenDatabase driver(companies(":memory:", kCodes));
  toolkit::Drivers drivers;
  drivers.add(driver);
  toolkit::Connection connection(drivers);
  connection.Open("open:");
  compare(state, connection, plain.get(), kCodes);
}
BENCHMARK(inMemory)->UseManualTime()->MinTime(1)->Unit(benchmark::kMicrosecond);

void inAFile(benchmark::State& state) {
  constexpr int kRows = 100'000;
  const auto file = std::filesystem::temp_directory_path() / ("qvn-lookups-" + std::to_string(getpid()) + ".db");
  companies(file.string(), kRows);
  toolkit::Drivers drivers;
  drivers.add(sqlite::driver());
  toolkit::Connection connection(drivers);
  connection.Open("sqlite:" + file.string());
  const auto plain = openPlainly(file.string(), SQLITE_OPEN_READONLY);
  compare(state, connection, plain.get(), kRows);
  connection.Close();
  std::filesystem::remove(file);
}
BENCHMARK(inAFile)->UseManualTime()->MinTime(1)->Unit(benchmark::kMicrosecond);

}  // namespace
