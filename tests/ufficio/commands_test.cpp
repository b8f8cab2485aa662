// The window's commands: their keys, and what F1 tells of each screen.
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolBar>
#include <map>
#include <memory>

#include "hosts/ufficio/help.h"
#include "hosts/ufficio/italian.h"
#include "platforms/qt/texts.h"
#include "tests/ufficio/at_window.h"

namespace qvn::test {
namespace {

using testing::HasSubstr;

class OfficeCommands : public AtWindow {
 public:
  /// All entries of the menus.
  std::vector<QAction*> commands() {
    std::vector<QAction*> all;
    for (const QAction* menu : window().menuBar()->actions()) {
      for (QAction* entry : menu->menu()->actions()) {
        if (!entry->isSeparator()) all.push_back(entry);
      }
    }
    return all;
  }
  /// The names of those that can be given now, but for those that always can.
  std::string given() {
    const std::set<QString> always{"cerca", "vai", "avanti", "indietro", "esci", "scuro", "guida"};
    std::string names;
    for (const QAction* command : commands()) {
      if (always.contains(command->objectName())) {
        EXPECT_TRUE(command->isEnabled()) << command->objectName().toStdString();
        continue;
      }
      if (!command->isEnabled()) continue;
      names.append(names.empty() ? "" : " ").append(qt::utf8(command->objectName()));
    }
    return names;
  }
  QDialog* help() {
    for (QDialog* dialog : window().findChildren<QDialog*>("guida")) {
      if (dialog->isVisible()) return dialog;
    }
    return nullptr;
  }
};

/// The letter behind the "&" of a caption.
QChar mnemonic(const QString& caption) {
  const auto place = caption.indexOf('&');
  return place < 0 ? QChar() : caption.at(place + 1).toLower();
}

TEST_F(OfficeCommands, HaveEachAKeyOfItsOwnThatIsShown) {
  std::map<QString, QString> keys;
  for (const QAction* command : commands()) {
    const QString key = command->shortcut().toString(QKeySequence::NativeText);
    ASSERT_FALSE(key.isEmpty()) << command->text().toStdString();
    EXPECT_TRUE(keys.emplace(key, command->text()).second) << key.toStdString() << " twice";
    EXPECT_TRUE(command->isShortcutVisibleInContextMenu()) << command->text().toStdString();
    EXPECT_TRUE(command->toolTip().endsWith("(" + key + ")")) << command->toolTip().toStdString();
  }
  EXPECT_GE(keys.size(), 15U);
}

TEST_F(OfficeCommands, HaveEachALetterOfItsOwnInTheirMenu) {
  std::set<QChar> ofMenus;
  for (const QAction* menu : window().menuBar()->actions()) {
    EXPECT_TRUE(ofMenus.insert(mnemonic(menu->text())).second) << menu->text().toStdString();
    std::set<QChar> letters;
    for (const QAction* entry : menu->menu()->actions()) {
      if (entry->isSeparator()) continue;
      EXPECT_FALSE(mnemonic(entry->text()).isNull()) << entry->text().toStdString();
      EXPECT_TRUE(letters.insert(mnemonic(entry->text())).second) << entry->text().toStdString();
    }
  }
}

TEST_F(OfficeCommands, CanBeGivenOnlyWhereTheyComeToSomething) {
  struct Given {
    std::string_view screen;
    std::string_view none;     ///< where no record is shown
    std::string_view record;   ///< where the last of the list is shown
    std::string_view editing;  ///< where it is being changed
  };
  const std::vector<Given> all{
      {"iva", "aggiorna nuovo autorizzato", "aggiorna modifica nuovo elimina autorizzato",
       "nuovo salva annulla elimina"},
      {"provvigioni", "aggiorna autorizzato", "aggiorna modifica autorizzato", "salva annulla"},
      {"quote-polizze", "aggiorna autorizzato", "aggiorna modifica nuovo autorizzato", "nuovo salva annulla elimina"},
      {"ricerca-polizze", "aggiorna autorizzato", "aggiorna autorizzato", ""},
      {"prima-nota", "aggiorna nuovo autorizzato", "aggiorna modifica nuovo elimina autorizzato",
       "nuovo salva annulla elimina"},
      {"giornale", "aggiorna autorizzato", "aggiorna modifica stampa autorizzato", "salva annulla"}};
  for (const Given& its : all) {
    choose(its.screen);
    EXPECT_EQ(given(), its.none) << its.screen;
    ASSERT_TRUE(window().openRecord(ufficio::Found(window().chooser().records().back())));
    EXPECT_EQ(given(), its.record) << its.screen;
    if (!window().edit()) continue;
    EXPECT_EQ(given(), its.editing) << its.screen;
    ASSERT_TRUE(window().cancel());
  }
  choose("iva");
  press(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(given(), "nuovo salva annulla") << "a record to come";
}

TEST_F(OfficeCommands, AreAllInTheMenus) {
  const std::vector<QAction*> all = commands();
  for (QAction* shown : window().findChild<QToolBar*>("comandi")->actions()) {
    EXPECT_NE(std::ranges::find(all, shown), all.end()) << shown->text().toStdString();
  }
}

TEST_F(OfficeCommands, GoRoundTheWindowByKeysAlone) {
  press(Qt::Key_F6);
  EXPECT_EQ(focused(), "schermate");
  press(Qt::Key_End);
  see();
  EXPECT_EQ(window().windowTitle(), "[*]Rami – Ufficio");
  press(Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(focused(), "filtro");
  press(Qt::Key_Down);
  EXPECT_EQ(focused(), "record");
  press(Qt::Key_Return);
  ASSERT_FALSE(screen().key().empty());
  edit();
  EXPECT_EQ(focused(), "TxtCOD_RAMO");
  press(Qt::Key_Tab);
  EXPECT_TRUE(field(focused()).isEnabled());
  press(Qt::Key_Escape);
  EXPECT_FALSE(window().editing());
}

TEST_F(OfficeCommands, TellByF1WhatTheScreenIsForAndAllKeys) {
  open("22  ");
  edit();
  press(Qt::Key_F1);
  ASSERT_NE(help(), nullptr);
  EXPECT_EQ(help()->windowTitle(), "Guida – Codici IVA");
  const std::string text = qt::utf8(help()->findChild<QTextBrowser*>()->toPlainText());
  EXPECT_THAT(text, HasSubstr("I codici IVA: per ogni codice"));
  for (const QAction* command : commands()) {
    EXPECT_THAT(text, HasSubstr(qt::utf8(command->shortcut().toString(QKeySequence::NativeText))));
  }
  QTest::keyClick(help(), Qt::Key_Escape);
  see();
  EXPECT_EQ(help(), nullptr);
  QApplication::setActiveWindow(&window());
  see();
  EXPECT_EQ(focused(), "TxtCodice") << "the work goes on where it was";
  EXPECT_TRUE(window().editing());
}

TEST_F(OfficeCommands, TellByF1OfTheScreenThatIsShown) {
  for (const ufficio::ScreenClass& made : ufficio::screenClasses()) {
    choose(made.name);
    press(Qt::Key_F1);
    ASSERT_NE(help(), nullptr) << made.name;
    EXPECT_EQ(help()->windowTitle(), "Guida – " + qt::shown(made.title));
    QTextDocument wanted;
    wanted.setHtml(ufficio::helpOn(made.name));
    EXPECT_TRUE(help()->findChild<QTextBrowser*>()->toPlainText().contains(wanted.toPlainText())) << made.name;
    QTest::keyClick(help(), Qt::Key_Escape);
    see();
    QApplication::setActiveWindow(&window());
    see();
  }
}

TEST_F(OfficeCommands, AreItalianInQtsOwnMenusAndDialogsToo) {
  const ufficio::ItalianDialogs italian;
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Annulla");
  const std::unique_ptr<QMenu> menu(window().findChild<QLineEdit*>("filtro")->createStandardContextMenu());
  QString entries;
  for (const QAction* entry : menu->actions()) entries += entry->text().remove('&') + '\n';
  EXPECT_TRUE(entries.contains("Incolla")) << entries.toStdString();
  EXPECT_FALSE(entries.contains("Paste")) << entries.toStdString();
}

TEST_F(OfficeCommands, TellOfEachScreenWhatItIsFor) {
  const std::map<std::string_view, const char*> beginnings{
      {"iva", "I codici IVA: "},
      {"provvigioni", "La provvigione di una compagnia che partecipa a una polizza, "},
      {"quote-polizze", "Le compagnie che partecipano a una polizza, "},
      {"quote-sinistri", "Le compagnie che partecipano a un sinistro, "},
      {"sospesi", "I titoli sospesi di una polizza, "},
      {"estratti", "L'estratto conto di un cliente, "},
      {"fidi", "I fidi di un cliente: "},
      {"ricerca-polizze", "Cerca tra le polizze "},
      {"ricerca-sinistri", "Cerca tra i sinistri "},
      {"righe-iva", "La riga IVA di un movimento: "},
      {"prima-nota", "Una registrazione di prima nota: "},
      {"giornale", "Il libro giornale di un anno "},
      {"tipi-movimenti", "I tipi di movimento della prima nota, "},
      {"righe-tipi", "Le righe con cui comincia una registrazione "},
      {"stampe-contabili", "I codici delle stampe contabili, "},
      {"rami", "I rami: "},
  };
  for (const ufficio::ScreenClass& made : ufficio::screenClasses()) {
    QTextDocument text;
    text.setHtml(ufficio::helpOn(made.name));
    ASSERT_TRUE(beginnings.contains(made.name)) << made.name;
    EXPECT_THAT(qt::utf8(text.toPlainText()), testing::StartsWith(beginnings.at(made.name)));
    EXPECT_GE(text.characterCount(), 90) << made.name;
  }
}

}  // namespace
}  // namespace qvn::test
