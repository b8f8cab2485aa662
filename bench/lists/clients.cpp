#include "bench/lists/clients.h"

#include <array>
#include <cstdio>
#include <map>
#include <random>
#include <span>
#include <stdexcept>
#include <string_view>
#include <unistd.h>

#include "platforms/sqlite/handle.h"

namespace qvn::bench {

namespace {

constexpr std::array<std::string_view, 32> kSyllables{
    "ma", "ro", "si", "ni", "bel", "lo", "fer", "ra", "ri", "co",  "lom", "bo", "gal", "li",  "con", "ti",
    "de", "lu", "ca", "es", "po",  "to", "gre", "vi", "ta", "san", "or",  "zi", "pa",  "mon", "tè",  "nel"};
constexpr std::array<std::string_view, 16> kNames{"Mario",    "Giulia",  "Nicolò",     "Anna",  "Francesco", "Lucia",
                                                  "Giovanni", "Rosalìa", "Alessandro", "Elena", "Pietro",    "Chiara",
                                                  "Ugo",      "Teresa",  "Beniamino",  "Ada"};
constexpr std::array<std::string_view, 8> kFirms{"Impresa Edile ",       "Costruzioni ", "Officine ", "Trasporti ",
                                                 "Società Immobiliare ", "Fratelli ",    "Studio ",   "EDIL"};

class Naming {
 public:
  std::string next() {
    std::string name;
    if (random_() % 2 == 0) {
      name = surname().append(" ").append(any(kNames));
    } else {
      name = std::string(any(kFirms)).append(surname()).append(" S.r.l.");
    }
    if (random_() % 4 == 0) capitalize(name);
    return name;
  }

 private:
  static void capitalize(std::string& text) {
    for (char& c : text) {
      if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 0x20);
    }
  }

  std::string_view any(std::span<const std::string_view> of) { return of[random_() % of.size()]; }

  std::string surname() {
    std::string name;
    for (auto left = 2 + random_() % 3; left > 0; --left) name.append(any(kSyllables));
    name.front() = static_cast<char>(name.front() - 0x20);
    return name;
  }

  std::mt19937 random_{20261115};
};

void run(sqlite3* database, const char* sql) {
  if (sqlite3_exec(database, sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
    throw std::runtime_error(sqlite3_errmsg(database));
  }
}

void bind(sqlite3_stmt* statement, int place, std::string_view text) {
  sqlite3_bind_text(statement, place, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
}

}  // namespace

Clients::Clients(std::int64_t count)
    : count_(count),
      file_(std::filesystem::temp_directory_path() /
            ("qvn-clients-" + std::to_string(count) + "-" + std::to_string(getpid()) + ".db")) {
  sqlite3* opened = nullptr;
  sqlite3_open(file_.c_str(), &opened);
  const sqlite::DatabaseHandle database(opened);
  run(opened,
      "PRAGMA synchronous = OFF;"
      "CREATE TABLE CLIENTI (COD_CLIENTE TEXT NOT NULL PRIMARY KEY, DESC_CLIENTE TEXT NOT NULL) WITHOUT ROWID;"
      "BEGIN");
  sqlite3_stmt* prepared = nullptr;
  sqlite3_prepare_v2(opened, "INSERT INTO CLIENTI VALUES (?, ?)", -1, &prepared, nullptr);
  const sqlite::StatementHandle insertion(prepared);
  Naming naming;
  for (std::int64_t i = 0; i < count; ++i) {
    std::array<char, 16> code{};
    const int length = std::snprintf(code.data(), code.size(), "C%07d", static_cast<int>(i));
    const std::string name = naming.next();
    bind(prepared, 1, {code.data(), static_cast<std::size_t>(length)});
    bind(prepared, 2, name);
    if (sqlite3_step(prepared) != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(opened));
    sqlite3_reset(prepared);
    textBytes_ += length + static_cast<std::int64_t>(name.size());
  }
  run(opened, "COMMIT");
}

Clients::~Clients() {
  std::error_code ignored;
  std::filesystem::remove(file_, ignored);
}

const Clients& clients(std::int64_t count) {
  static std::map<std::int64_t, Clients> made;
  return made.try_emplace(count, count).first->second;
}

}  // namespace qvn::bench
