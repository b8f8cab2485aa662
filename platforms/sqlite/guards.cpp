#include "platforms/sqlite/guards.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "platforms/sqlite/like.h"
#include "platforms/sqlite/reason.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/names.h"

namespace qvn::sqlite {

namespace {

/// The functions that compute from their arguments alone, and the aggregates.
constexpr std::array<std::string_view, 74> kFunctions{
    "->",           "->>",         "abs",        "avg",          "ceil",         "ceiling",
    "char",         "coalesce",    "count",      "cume_dist",    "date",         "datetime",
    "dense_rank",   "first_value", "floor",      "format",       "group_concat", "hex",
    "ifnull",       "iif",         "instr",      "json",         "json_array",   "json_array_length",
    "json_extract", "json_object", "json_quote", "json_type",    "json_valid",   "julianday",
    "lag",          "last_value",  "lead",       "length",       "like",         "likelihood",
    "likely",       "lower",       "ltrim",      "max",          "min",          "mod",
    "nth_value",    "ntile",       "nullif",     "percent_rank", "pow",          "power",
    "printf",       "quote",       "rank",       "regexp",       "replace",      "round",
    "row_number",   "rtrim",       "sign",       "soundex",      "sqrt",         "strftime",
    "string_agg",   "substr",      "substring",  "sum",          "time",         "total",
    "trim",         "trunc",       "typeof",     "unicode",      "unixepoch",    "unlikely",
    "upper",        "zeroblob"};

/// Allows reading, and nothing else.
int authorize(void* /*context*/, int action, const char* /*detail*/, const char* function, const char* /*database*/,
              const char* /*inside*/) {
  switch (action) {
    case SQLITE_SELECT:
    case SQLITE_READ:
    case SQLITE_RECURSIVE:
      return SQLITE_OK;
    case SQLITE_FUNCTION:
      return std::ranges::any_of(kFunctions, [&](std::string_view known) { return sameName(known, function); })
                 ? SQLITE_OK
                 : SQLITE_DENY;
    default:
      return SQLITE_DENY;
  }
}

int look(void* work) { return static_cast<Work*>(work)->exceeded() ? 1 : 0; }

constexpr std::array<std::pair<int, bool>, 4> kSettings{{
    {SQLITE_DBCONFIG_TRUSTED_SCHEMA, false},
    {SQLITE_DBCONFIG_DEFENSIVE, true},
    {SQLITE_DBCONFIG_WRITABLE_SCHEMA, false},
    {SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, false},
}};

constexpr std::array<std::pair<int, int>, 6> kLimits{{
    {SQLITE_LIMIT_LENGTH, kLongestValue},
    {SQLITE_LIMIT_EXPR_DEPTH, 200},
    {SQLITE_LIMIT_COMPOUND_SELECT, 50},
    {SQLITE_LIMIT_VDBE_OP, 250'000},
    {SQLITE_LIMIT_ATTACHED, 0},
    {SQLITE_LIMIT_LIKE_PATTERN_LENGTH, kLongestPattern},
}};

/// The driver's own steps ahead of the authorizer. Sorting stays in memory, so that no temporary file comes into being.
/// The last one reads the header and the schema, and fails on what is no database.
constexpr std::array<const char*, 5> kSteps{
    "PRAGMA temp_store = MEMORY",         "PRAGMA query_only = ON",
    "PRAGMA cell_size_check = ON",        "PRAGMA cache_size = -16384",
    "SELECT count(*) FROM sqlite_schema",
};

}  // namespace

bool Work::exceeded() {
  const std::int64_t memory = sqlite3_memory_used();
  const auto now = std::chrono::steady_clock::now();
  // Statements that end before the first look, as look-ups do, are not to pay for it.
  if (looks_ == 0) {
    memoryAtFirst_ = memory;
    first_ = now;
  }
  return ++looks_ > bounds_.looks || memory - memoryAtFirst_ > bounds_.memory || now - first_ > bounds_.time;
}

void guard(sqlite3& database, Work& work) {
  sqlite3_busy_timeout(&database, kBusyMilliseconds);
  for (const auto& [setting, value] : kSettings) sqlite3_db_config(&database, setting, value ? 1 : 0, nullptr);
  for (const auto& [limit, value] : kLimits) sqlite3_limit(&database, limit, value);
  work.start();
  sqlite3_progress_handler(&database, kStepsPerLook, look, &work);
  addRegexp(database);
  for (const char* step : kSteps) {
    if (sqlite3_exec(&database, step, nullptr, nullptr, nullptr) == SQLITE_OK) continue;
    std::string reason = reasonOf(database);
    if (sqlite3_errcode(&database) == SQLITE_CANTOPEN)
      reason += ", or the \"-wal\" and \"-shm\" files that belong to it";
    throw Failure(FailureKind::Database, reason);
  }
  sqlite3_set_authorizer(&database, authorize, nullptr);
}

}  // namespace qvn::sqlite
