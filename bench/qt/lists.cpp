// What a pick list costs until it is seen, beside a view of plain Qt on the same table.
#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlTableModel>
#include <QTableView>
#include <array>
#include <benchmark/benchmark.h>
#include <memory>
#include <stdexcept>
#include <string>

#include "bench/lists/clients.h"
#include "bench/qt/comparison.h"
#include "bench/qt/paints.h"
#include "bench/qt/screens.h"
#include "platforms/sqlite/driver.h"
#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/lookups/field_with_list.h"
#include "qvn/shared/Globale.h"

namespace qvn::bench {
namespace {

constexpr std::int64_t kRows = 100'000;

constexpr std::array<toolkit::WidgetLayout, 1> kFields{
    {{.name = "TxtCOD_CLI", .tabIndex = 0, .place = {0, 0, 900, 315}}}};
constexpr toolkit::PanelLayout kPanel{.name = "Desk", .width = 900, .height = 315, .widgets = kFields};

/// A field in a window, in which the key "?" opens the list of the clients.
class ListScreen {
 public:
  explicit ListScreen(const std::string& database) : office_(sqlite::driver(), "sqlite:" + database) {
    office_.platform.formsWait(true);
    panel_ = office_.platform.makeSurface(kPanel, office_.host, "desk");
    toolkit::TextBox& code = panel_->textBox("TxtCOD_CLI");
    code.KeyPress = [&code](std::int16_t& KeyAscii) {
      lookups::keyOrList(code, KeyAscii, QVN_Ricerche::ListaCLIENTI, Gest_SCHEDE::FiltroTesto, 8);
    };
    window_ = std::make_unique<QWidget>();
    showIn(*window_, office_.platform.widgetOf(*panel_));
  }

  /// Presses "?" and, once the list is painted, Enter. What it took to the painting.
  double open() {
    toolkit::TextBox& code = panel_->textBox("TxtCOD_CLI");
    code.Text("");
    QWidget& field = office_.widgetOf(code);
    QApplication::setActiveWindow(window_.get());
    field.setFocus();
    QApplication::processEvents();
    double took = 0;
    QKeyEvent question(QEvent::KeyPress, Qt::Key_Question, Qt::NoModifier, "?");
    const ProcessorTime time;
    const FirstPaint painted([&] {
      took = time.seconds();
      auto& list = *QApplication::activeModalWidget()->findChild<QAbstractItemView*>();
      rows_ = list.model()->rowCount();
      first_ = list.model()->index(0, 1).data().toString().toStdString();
      QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r");
      QApplication::sendEvent(&list, &enter);
    });
    QApplication::sendEvent(&field, &question);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return took;
  }

  /// Whether the list showed all rows when it was last open, and its first row was chosen.
  bool worked() const {
    return rows_ == kRows && !first_.empty() && panel_->textBox("TxtCOD_CLI").Text() == first_ &&
           office_.host.failures == 0;
  }

 private:
  ScreenOffice office_;
  std::unique_ptr<toolkit::Surface> panel_;
  std::unique_ptr<QWidget> window_;
  int rows_ = 0;
  std::string first_;
};

/// The table of the clients, sorted by the database by their names.
class PlainClients final : public QSqlTableModel {
 public:
  PlainClients(const QSqlDatabase& database, bool disregardingCase)
      : QSqlTableModel(nullptr, database), disregardingCase_(disregardingCase) {
    setTable("CLIENTI");
    setSort(1, Qt::AscendingOrder);
  }

 protected:
  QString orderByClause() const override {
    return disregardingCase_ ? QStringLiteral("ORDER BY DESC_CLIENTE COLLATE NOCASE") : QSqlTableModel::orderByClause();
  }

 private:
  bool disregardingCase_;
};

/// The same table for plain Qt, open for reading with the driver's cache.
class PlainListScreen {
 public:
  PlainListScreen(const std::string& file, bool disregardingCase) : disregardingCase_(disregardingCase) {
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", kName);
    database.setDatabaseName(QString::fromStdString(file));
    database.setConnectOptions("QSQLITE_OPEN_READONLY");
    if (!database.open() || !QSqlQuery(database).exec("PRAGMA cache_size = -16384")) {
      throw std::runtime_error(database.lastError().text().toStdString());
    }
  }
  ~PlainListScreen() { QSqlDatabase::removeDatabase(kName); }
  PlainListScreen(const PlainListScreen&) = delete;
  PlainListScreen& operator=(const PlainListScreen&) = delete;

  /// What it takes until the first rows, sorted by the database, are painted.
  double open() {
    double took = 0;
    const ProcessorTime time;
    PlainClients model(QSqlDatabase::database(kName), disregardingCase_);
    model.select();
    QDialog dialog;
    QTableView view(&dialog);
    view.setGeometry(kPlace);
    view.setModel(&model);
    dialog.setFixedSize(kSize);
    const FirstPaint painted([&] {
      took = time.seconds();
      worked_ = !model.index(0, 1).data().toString().isEmpty();
      dialog.reject();
    });
    dialog.exec();
    return took;
  }
  bool worked() const { return worked_; }

 private:
  static constexpr QRect kPlace{5, 5, 303, 202};
  static constexpr QSize kSize{396, 212};
  const QString kName = "plain";

  bool disregardingCase_;
  bool worked_ = false;
};

/// From the key "?" until the list is painted. The argument is 1 where plain Qt has the names sorted without regard to
/// case too, and not by their bytes.
void openingAListOnTheScreen(benchmark::State& state) {
  const Clients& clientsOfOffice = clients(kRows);
  ListScreen ours(clientsOfOffice.path());
  PlainListScreen plain(clientsOfOffice.path(), state.range(0) != 0);
  Comparison comparison;
  for (auto _ : state) {
    const double plainTook = plain.open();
    const double took = ours.open();
    if (!ours.worked() || !plain.worked()) return state.SkipWithError("the lists do not show what they must");
    comparison.add(took, plainTook);
    state.SetIterationTime(took);
  }
  comparison.report(state);
}
BENCHMARK(openingAListOnTheScreen)
    ->Arg(0)
    ->Arg(1)
    ->ArgName("by_letters")
    ->UseManualTime()
    ->MinTime(2)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qvn::bench
