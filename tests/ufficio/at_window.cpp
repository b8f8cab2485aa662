#include "tests/ufficio/at_window.h"

#include <QTableView>
#include <QTimer>
#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "platforms/qt/texts.h"
#include "platforms/sqlite/driver.h"
#include "qvn/shared/Globale.h"

namespace qvn::test {

namespace {

const std::string& pristine(const std::string& storage) {
  static const office_test::Folder folder;
  static std::map<std::string, std::string> files;
  if (const auto made = files.find(storage); made != files.end()) return made->second;
  const std::string file = folder.file(storage + ".db");
  const office_test::Answer run = office_test::campione("'" + file + "' --storage " + storage);
  if (run.status != 0) throw std::runtime_error("no sample: " + run.errors);
  return files.emplace(storage, file).first->second;
}

sqlite3* openForWriting(const std::string& file) {
  sqlite3* database = nullptr;
  if (sqlite3_open_v2(file.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
    throw std::runtime_error("cannot open " + file);
  }
  return database;
}

void runOn(sqlite3* database, const std::string& sql) {
  if (sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
    throw std::runtime_error(std::string(sqlite3_errmsg(database)).append(", at: ").append(sql));
  }
}

}  // namespace

SampleCopy::SampleCopy(const std::string& storage) { std::filesystem::copy_file(pristine(storage), file()); }

std::string SampleCopy::line(std::string_view sql) const {
  std::string line;
  const std::vector<office_test::Row> found = rows(sql);
  if (found.size() != 1) return std::to_string(found.size()) + " rows";
  for (const auto& value : found.front()) line.append(line.empty() ? "" : "|").append(value.value_or("NULL"));
  return line;
}

void SampleCopy::write(const std::string& sql) const {
  sqlite3* database = openForWriting(file());
  runOn(database, sql);
  sqlite3_close_v2(database);
}

std::string SampleCopy::everything() const {
  const office_test::Database database(file());
  std::string all;
  for (const office_test::Row& table :
       database.rows("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY 1")) {
    all.append("\n== ").append(table.front().value()).append("\n");
    for (const office_test::Row& row : database.rows("SELECT * FROM " + table.front().value())) {
      for (const auto& value : row) all.append(value.value_or("NULL")).append("|");
      all.append("\n");
    }
  }
  return all;
}

Writer::Writer(const std::string& file) : database_(openForWriting(file)) { runOn(database_, "BEGIN EXCLUSIVE"); }

OfficeAt::OfficeAt(const std::string& file) : store(file) {
  platform.drivers().add(sqlite::driver());
  Globale::install(platform);
  show(ufficio::screenClasses());
}

void OfficeAt::show(std::span<const ufficio::ScreenClass> classes) {
  window = std::make_unique<ufficio::Window>(platform, store, classes);
  window->askBy([](const QString& record) {
    ADD_FAILURE() << "asks about " << record.toStdString();
    return ufficio::Unsaved::Stay;
  });
  window->chooseScreen(0);
  window->show();
  QApplication::setActiveWindow(window.get());
}

OfficeAt::~OfficeAt() {
  window.reset();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  Globale::uninstall();
}

std::size_t numberOf(std::string_view screen) {
  const auto classes = ufficio::screenClasses();
  const auto found = std::ranges::find(classes, screen, &ufficio::ScreenClass::name);
  if (found == classes.end()) throw std::runtime_error("no screen " + std::string(screen));
  return static_cast<std::size_t>(found - classes.begin());
}

void AtWindow::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QWidget* focus = QApplication::focusWidget();
  ASSERT_NE(focus, nullptr) << "no widget has the focus";
  QTest::keyClick(focus, key, modifiers);
  see();
}

void AtWindow::write(const QString& text) {
  for (const QChar c : text) {
    QWidget* focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr) << "no widget has the focus";
    QTest::sendKeyEvent(QTest::Click, focus, static_cast<Qt::Key>(c.toUpper().unicode()), c, Qt::NoModifier);
  }
  see();
}

void AtWindow::enter(const QString& text) {
  press(Qt::Key_A, Qt::ControlModifier);
  write(text);
  press(Qt::Key_Return);
}

void AtWindow::choose(std::string_view screen) {
  auto* list = window().findChild<QListWidget*>("schermate");
  list->setCurrentRow(static_cast<int>(numberOf(screen)));
  see();
}

void AtWindow::open(const QString& filter) {
  press(Qt::Key_F, Qt::ControlModifier);
  write(filter);
  ASSERT_FALSE(window().chooser().records().empty()) << "for " << filter.toStdString();
  press(Qt::Key_Return);
}

Viewed AtWindow::viewed(const std::function<void()>& open) {
  Viewed seen;
  office.platform.formsWait(true);
  QTimer::singleShot(0, [&seen] {
    QWidget* viewer = QApplication::activeModalWidget();
    ASSERT_NE(viewer, nullptr);
    seen.title = viewer->windowTitle();
    const auto* table = viewer->findChild<QTableView*>();
    ASSERT_NE(table, nullptr);
    for (int row = 0; row < table->model()->rowCount(); ++row) {
      seen.codes.push_back(qt::utf8(table->model()->index(row, 0).data().toString()));
    }
    viewer->close();
  });
  open();
  QApplication::setActiveWindow(&window());
  see();
  return seen;
}

QLineEdit& AtWindow::field(const QString& name, int panel) {
  Panel* const its = screen().panels().at(static_cast<std::size_t>(panel));
  const toolkit::Widget& widget = its->surface().widget(qt::utf8(name));
  return dynamic_cast<QLineEdit&>(*office.platform.widgetOf(widget));
}

QString AtWindow::focused() {
  const QWidget* focus = QApplication::focusWidget();
  return focus == nullptr ? QString("none") : focus->objectName();
}

}  // namespace qvn::test
