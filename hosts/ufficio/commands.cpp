#include "hosts/ufficio/commands.h"

#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace qvn::ufficio {

namespace {

struct Wording {
  Command command;
  const char* name;
  const char* caption;
  QKeyCombination keys;
  const char* tip;
  bool checkable = false;
};

constexpr std::array kRecord{
    Wording{Command::Search, "cerca", "&Cerca", Qt::CTRL | Qt::Key_F, "Cerca un record"},
    Wording{Command::Screens, "vai", "Sc&hermate", Qt::Key_F6, "Va all'elenco delle schermate"},
    Wording{Command::Renew, "aggiorna", "A&ggiorna", Qt::Key_F5, "Rilegge l'elenco e il record dal database"},
};
constexpr std::array kPanels{
    Wording{Command::Next, "avanti", "&Pannello seguente", Qt::CTRL | Qt::Key_PageDown, "Va al pannello che segue"},
    Wording{Command::Previous, "indietro", "Pannello p&recedente", Qt::CTRL | Qt::Key_PageUp,
            "Va al pannello che precede"},
};
constexpr std::array kChanges{
    Wording{Command::Edit, "modifica", "&Modifica", Qt::Key_F2, "Modifica il record"},
    Wording{Command::Add, "nuovo", "&Nuovo", Qt::CTRL | Qt::Key_N, "Aggiunge un record, o una riga al record"},
    Wording{Command::Save, "salva", "&Salva", Qt::CTRL | Qt::Key_S, "Salva le modifiche"},
    Wording{Command::Cancel, "annulla", "&Annulla", Qt::Key_Escape, "Rinuncia alle modifiche"},
    Wording{Command::Remove, "elimina", "E&limina…", Qt::Key_F8, "Elimina il record, o la riga in cui si scrive"},
};
constexpr std::array kPrint{
    Wording{Command::Print, "stampa", "S&tampa in PDF…", Qt::CTRL | Qt::Key_P, "Stampa in un file PDF"},
};
constexpr std::array kQuit{
    Wording{Command::Quit, "esci", "&Esci", Qt::CTRL | Qt::Key_Q, "Chiude il programma"},
};
constexpr std::array kOperator{
    Wording{Command::MayCancel, "autorizzato", "A&utorizzato ad annullare", Qt::CTRL | Qt::SHIFT | Qt::Key_A,
            "Permette di annullare i titoli sospesi", true},
    Wording{Command::Dark, "scuro", "Aspetto &scuro", Qt::CTRL | Qt::SHIFT | Qt::Key_D,
            "Mostra le finestre in colori scuri", true},
};
constexpr std::array kHelp{
    Wording{Command::Help, "guida", "&Guida alla schermata", Qt::Key_F1, "Spiega la schermata e i suoi tasti"},
};

constexpr std::array kInBar{Command::Search, Command::Edit,   Command::Add,
                            Command::Save,   Command::Cancel, Command::Remove};

QAction* make(const Wording& wording, QMainWindow& window) {
  const QKeySequence keys(wording.keys);
  auto* action = new QAction(QString::fromUtf8(wording.caption), &window);
  action->setObjectName(wording.name);
  action->setShortcut(keys);
  action->setToolTip(QString("%1 (%2)").arg(QString::fromUtf8(wording.tip), keys.toString(QKeySequence::NativeText)));
  action->setCheckable(wording.checkable);
  return action;
}

}  // namespace

Commands::Commands(QMainWindow& window) {
  const auto fill = [&](QMenu& menu, const auto& wordings) {
    if (!menu.isEmpty()) menu.addSeparator();
    for (const Wording& wording : wordings) {
      QAction* const action = make(wording, window);
      actions_.at(static_cast<std::size_t>(wording.command)) = action;
      menu.addAction(action);
    }
  };
  QMenu& record = *window.menuBar()->addMenu("&Record");
  fill(record, kRecord);
  fill(record, kPanels);
  fill(record, kChanges);
  fill(record, kPrint);
  fill(record, kQuit);
  fill(*window.menuBar()->addMenu("&Operatore"), kOperator);
  fill(*window.menuBar()->addMenu("&Guida"), kHelp);

  QToolBar* bar = window.addToolBar("Comandi");
  bar->setObjectName("comandi");
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  for (const Command command : kInBar) bar->addAction(&(*this)[command]);
}

}  // namespace qvn::ufficio
