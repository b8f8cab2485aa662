#include "tests/sqlite/scratch.h"

#include <atomic>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <type_traits>
#include <unistd.h>
#include <variant>

#include "platforms/sqlite/driver.h"
#include "qvn/shared/failure.h"

namespace qvn::test {

namespace {

std::string realText(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "r %.17g", value);
  return text;
}

std::string valueText(const Variant& value) {
  if (isNull(value)) return "null";
  if (const auto* number = std::get_if<std::int32_t>(&value)) return "i " + std::to_string(*number);
  if (const auto* number = std::get_if<double>(&value)) return realText(*number);
  if (const auto* text = std::get_if<std::string>(&value)) return "t " + *text;
  if (const auto* number = std::get_if<Decimal>(&value)) {
    const auto [low, high, top] = number->magnitude();
    if (top != 0 || number->scale() != 0) return "no 64-bit integer";
    const auto magnitude = static_cast<std::uint64_t>(high) << 32U | low;
    return (number->negative() ? "i -" : "i ") + std::to_string(magnitude);
  }
  return "unexpected kind";
}

}  // namespace

ScratchFolder::ScratchFolder() {
  static std::atomic<int> count = 0;
  path_ = std::filesystem::temp_directory_path() /
          ("qvn-sqlite-" + std::to_string(getpid()) + "-" + std::to_string(++count));
  std::filesystem::create_directories(path_);
}

ScratchFolder::~ScratchFolder() { std::filesystem::remove_all(path_); }

std::map<std::string, std::string> ScratchFolder::contents() const {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(path_)) {
    std::ifstream file(entry.path(), std::ios::binary);
    files[entry.path().filename().string()] = std::string(std::istreambuf_iterator<char>(file), {});
  }
  return files;
}

void writeFile(const std::filesystem::path& file, std::string_view bytes) {
  std::ofstream stream(file, std::ios::binary | std::ios::trunc);
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!stream.flush()) throw std::runtime_error("cannot write " + file.string());
}

Host::Host(const std::string& file) {
  sqlite3* handle = nullptr;
  const int result = sqlite3_open(file.c_str(), &handle);
  database_.reset(handle);
  if (result != SQLITE_OK) throw std::runtime_error(file + ": " + sqlite3_errmsg(handle));
  // The files need not survive a failure of the machine.
  exec("PRAGMA synchronous = OFF");
}

int Host::tryTo(const std::string& sql) {
  return sqlite3_exec(database_.get(), sql.c_str(), nullptr, nullptr, nullptr);
}

void Host::exec(const std::string& sql) {
  if (tryTo(sql) != SQLITE_OK) throw std::runtime_error(sqlite3_errmsg(database_.get()) + (": " + sql));
}

std::string officeSchema() {
  return "CREATE TABLE COMPAGNIE (COD_COMP TEXT PRIMARY KEY, DESC_COMPAGNIA TEXT);"
         "INSERT INTO COMPAGNIE VALUES ('GEN', 'Generale'), ('TOR', 'Torinese'), ('ADR', 'Adriatica');"
         "CREATE TABLE MASTRI (MASTRO TEXT PRIMARY KEY, DESCRIZIONE TEXT);"
         "INSERT INTO MASTRI VALUES ('01', 'Cassa'), ('02', 'Banca');"
         "CREATE TABLE PRODUTTORI (COD_PROD TEXT PRIMARY KEY, DENOMINAZIONE TEXT, PERCALT REAL, R_ACC INTEGER);"
         "INSERT INTO PRODUTTORI VALUES ('P1', 'Rossi', 12.5, 23), ('P2', 'Niccolò', NULL, 115);"
         "CREATE TABLE TIPI_IVA (COD_IVA INTEGER PRIMARY KEY, DESCRIZIONE TEXT, IVA INTEGER);"
         "INSERT INTO TIPI_IVA VALUES (1, 'Ordinaria', 22), (2, 'Ridotta', 10);"
         "CREATE TABLE POLIZZE (PROT INTEGER PRIMARY KEY, COD_CLIENTE TEXT, STATO TEXT, PL_TRF INTEGER);"
         "INSERT INTO POLIZZE VALUES (1, 'C1', NULL, 1001), (2, 'C1', '', 2001), (3, 'C1', 'A', 3001), (4, 'C1', ' ', "
         "1);"
         "CREATE TABLE QUOTE_POLIZZE (PROT INTEGER, COD_COMP TEXT, COD_PROD TEXT, DELEGATARIA INTEGER, QUOTA INTEGER,"
         "  pn_prod_TAF INTEGER);"
         "INSERT INTO QUOTE_POLIZZE VALUES (1, 'GEN', 'P1', -1, 333, 7), (1, 'TOR', 'P2', 0, 667, 8),"
         "  (2, 'GEN', 'P1', 1, 1000, 9), (3, 'GEN', 'P1', 1, 1000, 10), (4, 'GEN', 'P1', 1, 1000, 11);"
         "CREATE TABLE DATI_POLIZZE_4 (PROT INTEGER PRIMARY KEY, CAUZIONE INTEGER);"
         "INSERT INTO DATI_POLIZZE_4 VALUES (1, 10001), (2, 501), (3, 99), (4, 99);"
         "CREATE TABLE SINISTRI (N_SINISTRO TEXT PRIMARY KEY, D_STIMATO INTEGER);"
         "INSERT INTO SINISTRI VALUES ('S/1', 1501);"
         "CREATE TABLE CONTI (MASTRO TEXT, CONTO TEXT, DESCRIZIONE TEXT, CEE TEXT, PRIMARY KEY (MASTRO, CONTO));"
         "INSERT INTO CONTI VALUES ('01', '001', 'Cassa contanti', 'C'), ('01', '002', 'Cassa assegni', 'C');";
}

std::string officeFile(const ScratchFolder& folder) {
  std::string file = folder.file("office.db");
  Host(file).exec(officeSchema());
  return file;
}

std::unique_ptr<toolkit::Session> opened(const std::string& file) {
  return sqlite::driver().open({.connectionString = "sqlite:" + file, .rest = file, .cursorLocation = 3});
}

Answer answerOf(toolkit::Session& session, std::string_view sql, const std::vector<std::string>& columns) {
  const auto rows = session.run({.sql = sql});
  Answer answer;
  for (; !rows->atEnd(); rows->next()) {
    auto& row = answer.emplace_back();
    for (const auto& column : columns) row.push_back(valueText(rows->value(column)));
  }
  return answer;
}

Answer plainAnswerOf(sqlite3& database, const std::string& sql) {
  sqlite3_stmt* handle = nullptr;
  const int prepared = sqlite3_prepare_v2(&database, sql.c_str(), -1, &handle, nullptr);
  const sqlite::StatementHandle statement(handle);
  if (prepared != SQLITE_OK) throw std::runtime_error(sqlite3_errmsg(&database) + (": " + sql));
  Answer answer;
  int result = sqlite3_step(handle);
  for (; result == SQLITE_ROW; result = sqlite3_step(handle)) {
    auto& row = answer.emplace_back();
    for (int i = 0; i < sqlite3_column_count(handle); ++i) {
      const int type = sqlite3_column_type(handle, i);
      if (type == SQLITE_NULL) {
        row.emplace_back("null");
      } else if (type == SQLITE_FLOAT) {
        row.push_back(realText(sqlite3_column_double(handle, i)));
      } else {
        row.push_back((type == SQLITE_INTEGER ? "i " : "t ") +
                      std::string(reinterpret_cast<const char*>(sqlite3_column_text(handle, i))));
      }
    }
  }
  if (result != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(&database) + (": " + sql));
  return answer;
}

std::string databaseFailureOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const Failure& failure) {
    if (failure.kind() != FailureKind::Database) throw;
    return failure.what();
  }
  return {};
}

}  // namespace qvn::test
