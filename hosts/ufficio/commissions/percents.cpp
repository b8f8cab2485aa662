#include "hosts/ufficio/commissions/percents.h"

#include <string>
#include <utility>
#include <vector>

#include "hosts/ufficio/bound_panel.h"

namespace qvn::ufficio::commissions {

namespace {

constexpr std::string_view kTable = "PERCENTUALI_POLIZZE";

/// The sample office reckons what it passes on as a part of its own commission.
constexpr std::int64_t kOnOfficeCommission = 2;

Row stored(Store& store, const Row& participant, const Value& family) {
  const std::vector<Value> key{participant.at("PROT"), participant.at("COD_COMP"), family};
  if (store.hasTable(kTable)) {
    std::vector<Row> rows =
        store.rows("SELECT * FROM PERCENTUALI_POLIZZE WHERE PROT = ?1 AND COD_COMP = ?2 AND FAMIGLIA = ?3", key);
    if (!rows.empty()) return std::move(rows.front());
  }
  Row none{.columns = {"PROT", "COD_COMP", "FAMIGLIA"}, .values = key, .isNew = true};
  for (const Field& field : kPercentFields) {
    none.columns.emplace_back(field.column);
    none.values.push_back(field.kind == Kind::Number ? Value(kOnOfficeCommission) : blank(field.kind));
  }
  return none;
}

void makeTable(Store& store) {
  std::string sql =
      "CREATE TABLE IF NOT EXISTS PERCENTUALI_POLIZZE ("
      "PROT INTEGER NOT NULL, COD_COMP TEXT NOT NULL, FAMIGLIA TEXT NOT NULL, ";
  for (const Field& field : kPercentFields) {
    sql.append(field.column).append(field.kind == Kind::Number ? " INTEGER" : " DECIMAL(19,4)").append(" NOT NULL, ");
  }
  store.run(sql.append("PRIMARY KEY (PROT, COD_COMP, FAMIGLIA)) WITHOUT ROWID"));
}

}  // namespace

Row percentsOf(Store& store, const Row& participant, std::string_view family) {
  return stored(store, participant, std::string(family));
}

void storePercents(Store& store, const Row& before, const Row& now) {
  const Row found = stored(store, before, before.at("FAMIGLIA"));
  if (found.isNew != before.isNew || found.values != before.values) throw ChangedByOthers();
  makeTable(store);
  if (!before.isNew) {
    store.run("DELETE FROM PERCENTUALI_POLIZZE WHERE PROT = ?1 AND COD_COMP = ?2 AND FAMIGLIA = ?3",
              std::array{before.at("PROT"), before.at("COD_COMP"), before.at("FAMIGLIA")});
  }
  addRow(store, kTable, now);
}

void movePercents(Store& store, const Row& before, const Row& now) {
  if (before.isNew || before.at("COD_COMP") == now.at("COD_COMP") || !store.hasTable(kTable)) return;
  store.run("UPDATE PERCENTUALI_POLIZZE SET COD_COMP = ?3 WHERE PROT = ?1 AND COD_COMP = ?2",
            std::array{before.at("PROT"), before.at("COD_COMP"), now.at("COD_COMP")});
}

void erasePercents(Store& store, const Row& participant) {
  if (!store.hasTable(kTable)) return;
  store.run("DELETE FROM PERCENTUALI_POLIZZE WHERE PROT = ?1 AND COD_COMP = ?2",
            std::array{participant.at("PROT"), participant.at("COD_COMP")});
}

}  // namespace qvn::ufficio::commissions
