// The definition of a movement type: ctlDATI_MOVIMENTI on DATI_MOVIMENTI, one panel a line.
#include <array>
#include <cstdint>

#include "hosts/ufficio/finding.h"
#include "hosts/ufficio/journal/accounts.h"
#include "hosts/ufficio/journal/movement_types.h"
#include "hosts/ufficio/line_panels.h"
#include "hosts/ufficio/screens/makers.h"

namespace qvn::ufficio::screens {

namespace {

constexpr std::string_view kFind =
    "SELECT COD_MOVIMENTO || '  ' || DESCRIZIONE AS TESTO, COD_MOVIMENTO FROM TIPI_MOVIMENTI "
    "WHERE holds(TESTO, ?1) ORDER BY COD_MOVIMENTO LIMIT ?2";

constexpr std::array kFields{
    Field{"PROGRESSIVO", "PROGRESSIVO", Kind::Number},
    Field{"Mastro", "MASTRO", Kind::Text},
    Field{"Conto", "CONTO", Kind::Text},
    Field{"TIPO", "TIPO", Kind::Text},
    Field{"RIPETI", "RIPETI", Kind::Flag},
    Field{"IVA", "IVA", Kind::Flag},
    Field{"TIPO_IVA", "TIPO_IVA", Kind::Text},
};

constexpr std::array kHeads{Head{"lblPROGRESSIVO", "N."}, Head{"txtMASTRO", "Mastro"}, Head{"TxtCONTO", "Conto"},
                            Head{"cmbTIPO", "Segno"}};

bool isTicked(const Row& line, std::string_view flag) { return std::get<bool>(shown(line.at(flag), Kind::Flag)); }

bool isEmpty(const Row& line) {
  return textOf(line.at("MASTRO")).empty() && textOf(line.at("CONTO")).empty() && !isTicked(line, "RIPETI") &&
         !isTicked(line, "IVA");
}

void requireType(Store& store, const Value& type) {
  if (store.rows("SELECT 1 FROM TIPI_MOVIMENTI WHERE COD_MOVIMENTO = ?1", std::array{type}).empty()) {
    throw StoreFailure("il tipo di movimento non c'è più: è stato eliminato da altri");
  }
}

constexpr LinesDescription kLines{
    .panelClass = "ctlDATI_MOVIMENTI",
    .table = "DATI_MOVIMENTI",
    .key = "COD_MOVIMENTO",
    .number = "PROGRESSIVO",
    .fields = kFields,
    .empty = isEmpty,
};

class MovementTypeLines final : public Screen {
 public:
  explicit MovementTypeLines(const ScreenSite& site) : lines_(kLines, site) {}

  std::vector<Panel*> panels() const override { return lines_.panels(); }
  std::span<const Head> heads() const override { return kHeads; }
  std::vector<Found> find(Store& store, std::string_view filter, int most) const override {
    return findBy(kFind, store, filter, most);
  }

  void load(Store& store, const Key& key) override {
    requireType(store, key.front());
    std::vector<Row> lines = journal::linesOfType(store, std::get<std::int64_t>(key.front()));
    const std::string none;
    const std::int64_t no = 0;
    key_.clear();
    lines_.show(std::move(lines),
                {.columns = {"COD_MOVIMENTO", "PROGRESSIVO", "MASTRO", "CONTO", "TIPO", "RIPETI", "IVA", "TIPO_IVA"},
                 .values = {key.front(), no, none, none, std::string("D"), no, no, std::string("A")},
                 .isNew = true});
    key_ = key;
  }
  Key key() const override { return key_; }

  bool editable() const override { return true; }
  void Attiva() override { lines_.Attiva(); }
  void Disattiva() override { lines_.Disattiva(); }
  bool changed() const override { return lines_.changed(); }

  Key save(Store& store) override {
    const std::vector<Row> lines = lines_.lines();
    for (const Row& line : lines) journal::requireAccount(store, line, kLines.number);
    Store::Transaction transaction(store);
    requireType(store, key_.front());
    journal::makeTypeLinesTable(store);
    lines_.write(store, key_.front(), lines);
    transaction.commit();
    return key_;
  }

  void forget() override {
    key_.clear();
    lines_.forget();
  }

 private:
  LinePanels lines_;
  Key key_;
};

}  // namespace

std::unique_ptr<Screen> movementTypeLines(const ScreenSite& site) { return std::make_unique<MovementTypeLines>(site); }

}  // namespace qvn::ufficio::screens
