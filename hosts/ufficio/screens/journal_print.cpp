// The print of a year's journal: ctlSTP_GIORNALE with the period and what is carried to it, and below it the lines,
// each in a ctlSTP_MOVIMENTI while it is in view. The period's last day and the kind of print are kept in the table
// STAMPE_GIORNALE, which the office makes itself when the first of them is stored.
#include <array>
#include <cstdint>
#include <string>

#include "hosts/ufficio/bound_panel.h"
#include "hosts/ufficio/finding.h"
#include "hosts/ufficio/journal/journal_file.h"
#include "hosts/ufficio/printing.h"
#include "hosts/ufficio/result_screen.h"
#include "hosts/ufficio/screens/makers.h"
#include "qvn/panels/classes.h"
#include "qvn/shared/conversions.h"

namespace qvn::ufficio::screens {

namespace {

using journal::Balance;

constexpr std::string_view kTable = "STAMPE_GIORNALE";

constexpr std::string_view kFind =
    "SELECT 'Esercizio ' || substr(DA_DATA, 1, 4) AS TESTO, DA_DATA FROM "
    "(SELECT DISTINCT substr(DATA_MOVIMENTO, 1, 4) || '-01-01' AS DA_DATA FROM MOVIMENTI) "
    "WHERE holds(TESTO, ?1) ORDER BY DA_DATA DESC LIMIT ?2";

constexpr std::array kHeaderFields{
    Field{"DA_DATA", "DA_DATA", Kind::Day},
    Field{"A_DATA", "A_DATA", Kind::Day},
    Field{"DEFINITIVO", "DEFINITIVO", Kind::Flag},
};

/// The amount stands before its side, which places it.
constexpr std::array kLineFields{
    Field{"NRIF", "N_MOVIMENTO", Kind::Number}, Field{"DATA_RIF", "DATA_MOVIMENTO", Kind::Day},
    Field{"NDOC", "DOCUMENTO", Kind::Text},     Field{"DESC_1", "CONTO", Kind::Text},
    Field{"DESC_2", "DESCRIZIONE", Kind::Text}, Field{"IMPORTO", "IMPORTO", Kind::Amount},
    Field{"TIPO", "TIPO", Kind::Text},
};

constexpr ResultDescription kLines{
    .panelClass = "ctlSTP_MOVIMENTI",
    .find = {},
    .read =
        "SELECT M.N_MOVIMENTO, M.DATA_MOVIMENTO, M.N_MOVIMENTO || '/' || M.RIGA AS DOCUMENTO, "
        "M.MASTRO || ' ' || M.CONTO || '  ' || coalesce(C.DESCRIZIONE, '') AS CONTO, "
        "rtrim(M.DESC_1 || '  ' || M.DESC_2) AS DESCRIZIONE, M.IMPORTO, M.TIPO "
        "FROM MOVIMENTI M LEFT JOIN CONTI C ON C.MASTRO = M.MASTRO AND C.CONTO = M.CONTO "
        "WHERE M.N_MOVIMENTO = ?1 AND M.RIGA = ?2",
    .fields = kLineFields,
};

std::string shownDay(const Value& stored) { return toText(std::get<Date>(shown(stored, Kind::Day))); }

/// What was posted before a day.
Balance carriedTo(Store& store, const Value& day) {
  Balance carried;
  for (const Row& sum : store.rows("SELECT TIPO, sum(CAST(round(IMPORTO * 10000) AS INTEGER)) AS SOMMA "
                                   "FROM MOVIMENTI WHERE DATA_MOVIMENTO < ?1 GROUP BY TIPO",
                                   std::array{day})) {
    carried.add(textOf(sum.at("TIPO")), Currency::fromTenThousandths(std::get<std::int64_t>(sum.at("SOMMA"))));
  }
  return carried;
}

Row headerOf(Store& store, const Value& from) {
  if (store.hasTable(kTable)) {
    std::vector<Row> kept = store.rows("SELECT * FROM STAMPE_GIORNALE WHERE DA_DATA = ?1", std::array{from});
    if (!kept.empty()) return std::move(kept.front());
  }
  return {.columns = {"DA_DATA", "A_DATA", "DEFINITIVO"},
          .values = {from, textOf(from).substr(0, 4) + "-12-31", std::int64_t{0}},
          .isNew = true};
}

std::vector<Found> linesOf(Store& store, const Row& header) {
  std::vector<Found> lines;
  for (Row& row : store.rows("SELECT N_MOVIMENTO, RIGA FROM MOVIMENTI WHERE DATA_MOVIMENTO BETWEEN ?1 AND ?2 "
                             "ORDER BY DATA_MOVIMENTO, N_MOVIMENTO, RIGA",
                             std::array{header.at("DA_DATA"), header.at("A_DATA")})) {
    lines.push_back({.key = std::move(row.values), .text = {}});
  }
  return lines;
}

class JournalPrint final : public Screen, private Printing {
 public:
  explicit JournalPrint(const ScreenSite& site)
      : header_(panelClass("ctlSTP_GIORNALE").make({.container = site.container, .name = site.name})),
        lines_(kLines, {.container = site.container, .settings = site.settings, .name = site.name + "-riga"}) {}

  std::vector<Panel*> panels() const override { return {&header_.panel()}; }
  ResultScreen* lines() override { return &lines_; }
  Printing* printing() override { return this; }

  std::vector<Found> find(Store& store, std::string_view filter, int most) const override {
    return findBy(kFind, store, filter, most);
  }

  void load(Store& store, const Key& key) override {
    const Row header = headerOf(store, key.front());
    const Balance carried = carriedTo(store, key.front());
    const std::vector<Found> lines = linesOf(store, header);
    key_.clear();
    header_.clear();
    Panel& panel = header_.panel();
    panel.surface().Visible(true);
    callByName(panel, "Disattiva", {});
    letByName(panel, "N_RIGHE", static_cast<std::int32_t>(lines.size()));
    letByName(panel, "DARE", carried.debit);
    letByName(panel, "AVERE", carried.credit);
    letByName(panel, "A_DATA", Date());
    header_.show(header, kHeaderFields);
    carried_ = carried;
    lines_.take(lines);
    key_ = key;
  }
  Key key() const override { return key_; }

  bool editable() const override { return true; }
  void Attiva() override { callByName(header_.panel(), "Attiva", {}); }
  void Disattiva() override { callByName(header_.panel(), "Disattiva", {}); }
  bool changed() const override { return header_.changed(); }

  Key save(Store& store) override {
    const Row header = header_.toBeStored();
    if (textOf(header.at("A_DATA")) < textOf(header.at("DA_DATA"))) {
      throw StoreFailure("l'ultimo giorno manca o viene prima del primo");
    }
    if (textOf(header.at("A_DATA")).substr(0, 4) != textOf(header.at("DA_DATA")).substr(0, 4)) {
      throw StoreFailure("l'ultimo giorno non è dell'anno che si stampa");
    }
    Store::Transaction transaction(store);
    store.run(
        "CREATE TABLE IF NOT EXISTS STAMPE_GIORNALE ("
        "DA_DATA TEXT NOT NULL PRIMARY KEY, A_DATA TEXT NOT NULL, DEFINITIVO INTEGER NOT NULL) WITHOUT ROWID");
    header_.write(store, kTable);
    transaction.commit();
    return key_;
  }

  void forget() override {
    key_.clear();
    header_.forget();
    lines_.take({});
  }

 private:
  std::string fileName() const override {
    return std::string("giornale-").append(textOf(key_.front()).substr(0, 4)).append(".pdf");
  }

  bool print(Store& store, const std::string& file, const Progress& goesOn) override {
    const Row& header = header_.row().value();
    const journal::PrintedJournal printed{
        .from = shownDay(header.at("DA_DATA")),
        .to = shownDay(header.at("A_DATA")),
        .definitive = std::get<bool>(shown(header.at("DEFINITIVO"), Kind::Flag)),
        .lines = lines_.count(),
    };
    return journal::writeJournal(
        file, printed, carried_, [&](std::size_t place) { return lineAt(store, place); }, goesOn);
  }

  journal::PrintedLine lineAt(Store& store, std::size_t place) const {
    const Row row = lines_.rowAt(store, place);
    return {.number = place + 1,
            .reference = textOf(row.at("N_MOVIMENTO")),
            .day = shownDay(row.at("DATA_MOVIMENTO")),
            .account = textOf(row.at("CONTO")),
            .description = textOf(row.at("DESCRIZIONE")),
            .side = textOf(row.at("TIPO")),
            .amount = amountOf(row.at("IMPORTO"))};
  }

  BoundPanel header_;
  ResultScreen lines_;
  Balance carried_;
  Key key_;
};

}  // namespace

std::unique_ptr<Screen> journalPrint(const ScreenSite& site) { return std::make_unique<JournalPrint>(site); }

}  // namespace qvn::ufficio::screens
