#include "bench/lists/plain_list.h"

#include <algorithm>
#include <stdexcept>

namespace qvn::bench {

namespace {

/// The byte of a text, that of the small letter in a capital as far as U+00DE.
unsigned char small(std::string_view text, std::size_t at) {
  const auto byte = static_cast<unsigned char>(text[at]);
  if (byte >= 'A' && byte <= 'Z') return byte + 0x20;
  const bool accented = byte >= 0x80 && byte <= 0x9E && byte != 0x97 && at > 0 && text[at - 1] == '\xC3';
  return accented ? byte + 0x20 : byte;
}

std::string textOf(sqlite3_stmt* statement, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))};
}

}  // namespace

PlainDatabase::PlainDatabase(const std::string& path) {
  sqlite3* opened = nullptr;
  const int result = sqlite3_open_v2(path.c_str(), &opened, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
  database_.reset(opened);
  if (result != SQLITE_OK ||
      sqlite3_exec(opened, "PRAGMA cache_size = -16384", nullptr, nullptr, nullptr) != SQLITE_OK) {
    throw std::runtime_error(sqlite3_errmsg(opened));
  }
}

std::vector<PlainRow> PlainDatabase::clients() const {
  sqlite3_stmt* prepared = nullptr;
  sqlite3_prepare_v2(database_.get(), "Select DESC_CLIENTE, COD_CLIENTE From CLIENTI", -1, &prepared, nullptr);
  const sqlite::StatementHandle statement(prepared);
  std::vector<PlainRow> rows;
  int result = sqlite3_step(prepared);
  for (; result == SQLITE_ROW; result = sqlite3_step(prepared)) {
    rows.push_back({textOf(prepared, 0), textOf(prepared, 1)});
  }
  if (result != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(database_.get()));
  return rows;
}

bool before(std::string_view a, std::string_view b) {
  const std::size_t shared = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < shared; ++i) {
    if (a[i] == b[i]) continue;
    const unsigned char ofA = small(a, i);
    const unsigned char ofB = small(b, i);
    if (ofA != ofB) return ofA < ofB;
  }
  return a.size() < b.size();
}

}  // namespace qvn::bench
