// A person before the office's window, on Qt's own display, with a sample database of its own.
#pragma once

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "hosts/ufficio/register.h"
#include "hosts/ufficio/window.h"
#include "platforms/qt/platform.h"
#include "tests/office/office.h"

namespace qvn::test {

/// A copy of the sample office's database, for a test to change.
class SampleCopy {
 public:
  explicit SampleCopy(const std::string& storage = "numeric");
  std::string file() const { return folder_.file("ufficio.db"); }
  std::string beside(std::string_view name) const { return folder_.file(name); }
  std::vector<office_test::Row> rows(std::string_view sql) const { return office_test::Database(file()).rows(sql); }
  /// The only row's columns, "NULL" for Null, with "|" between them.
  std::string line(std::string_view sql) const;
  /// Another program's writing.
  void write(const std::string& sql) const;
  /// All that the tables hold.
  std::string everything() const;

 private:
  office_test::Folder folder_;
};

/// Another program that is writing for as long as it lives.
class Writer {
 public:
  explicit Writer(const std::string& file);
  ~Writer() { sqlite3_close_v2(database_); }
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;

 private:
  sqlite3* database_ = nullptr;
};

/// The library on its platform, and a window that is open on a database.
class OfficeAt {
 public:
  explicit OfficeAt(const std::string& file);
  ~OfficeAt();
  OfficeAt(const OfficeAt&) = delete;
  OfficeAt& operator=(const OfficeAt&) = delete;

  /// Another window, with these screens, in the place of the one that is open.
  void show(std::span<const ufficio::ScreenClass> classes);

  qt::OffscreenPlatform platform;
  ufficio::Store store;
  std::unique_ptr<ufficio::Window> window;
};

/// The number of a screen in the register.
std::size_t numberOf(std::string_view screen);

/// What a viewer shows: its title, and the codes of its rows.
struct Viewed {
  QString title;
  std::vector<std::string> codes;
};

class AtWindow : public testing::Test {
 public:
  AtWindow() { see(); }

  ufficio::Window& window() { return *office.window; }
  ufficio::Screen& screen() { return *window().screen(); }
  QString notice() { return window().notice(); }

  /// Lets everything that is due come about.
  static void see() { QApplication::processEvents(); }
  /// Presses a key at whatever has the focus, shortcuts included.
  static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  static void write(const QString& text);
  /// Clears the field that has the focus and types this into it, then Enter.
  static void enter(const QString& text);

  void choose(std::string_view screen);
  /// Finds by the filter, and chooses the first record that is found.
  void open(const QString& filter);
  void edit() { press(Qt::Key_F2); }
  void save() { press(Qt::Key_S, Qt::ControlModifier); }

  /// What the viewer shows that this opens; it is closed then.
  Viewed viewed(const std::function<void()>& open);

  QLineEdit& field(const QString& name, int panel = 0);
  QString focused();

  SampleCopy sample;
  OfficeAt office{sample.file()};
};

}  // namespace qvn::test
