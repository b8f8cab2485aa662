#include "hosts/ufficio/window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>
#include <exception>
#include <string>

#include "hosts/ufficio/page.h"
#include "hosts/ufficio/panel_steps.h"
#include "hosts/ufficio/reasons.h"
#include "platforms/qt/texts.h"

namespace qvn::ufficio {

Window::Window(qt::Platform& platform, Store& store, std::span<const ScreenClass> classes)
    : platform_(platform), store_(store), connection_(store) {
  ask_ = [this](const QString& record) { return askInWindow(*this, record); };
  askFile_ = [this](const QString& name) { return askFileInWindow(*this, name); };
  screens_.reserve(classes.size());
  for (const ScreenClass& made : classes) screens_.emplace_back().made = &made;
  layOut();
  addCommands();
  addSettings();
  connect(&announcements_, &qt::Announcements::failed, this, &Window::tellFailure);
  // A panel may announce in the middle of its rules: it is asked when they have run.
  connect(&announcements_, &qt::Announcements::changed, this, &Window::showState, Qt::QueuedConnection);
  // The list goes back to the screen before, if the operator stays there, when it has done with the click.
  connect(
      list_, &QListWidget::currentRowChanged, this,
      [this](int row) {
        if (row >= 0) chooseScreen(static_cast<std::size_t>(row));
      },
      Qt::QueuedConnection);
  connect(chooser_, &RecordChooser::filterChanged, this, &Window::findRecords);
  connect(chooser_, &RecordChooser::chosen, this, &Window::openRecord);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*before*/, QWidget* now) {
    if (now == nullptr || !pages_->isAncestorOf(now)) return;
    field_ = now;
    if (auto* page = qobject_cast<QScrollArea*>(pages_->currentWidget())) page->ensureWidgetVisible(now);
  });
  showState();
}

Window::~Window() {
  disconnect(qApp, nullptr, this, nullptr);
  announcements_.disconnect();
  list_->disconnect();
  chooser_->disconnect();
}

void Window::layOut() {
  list_ = new QListWidget;
  list_->setObjectName("schermate");
  list_->setAccessibleName("Schermate");
  for (const Shown& shown : screens_) list_->addItem(qt::shown(shown.made->title));
  chooser_ = new RecordChooser;
  pages_ = new QStackedWidget;
  pages_->addWidget(new QWidget);

  heading_ = new QLabel;
  heading_->setObjectName("intestazione");
  heading_->setTextFormat(Qt::PlainText);
  heading_->setWordWrap(true);
  QFont bold = heading_->font();
  bold.setBold(true);
  heading_->setFont(bold);
  auto* work = new QWidget;
  auto* workLayout = new QVBoxLayout(work);
  workLayout->addWidget(heading_);
  workLayout->addWidget(pages_, 1);
  remark_ = new QLabel;
  remark_->setObjectName("osservazione");
  remark_->setTextFormat(Qt::PlainText);
  remark_->setWordWrap(true);
  workLayout->addWidget(remark_);

  auto* parts = new QSplitter(Qt::Horizontal);
  parts->setChildrenCollapsible(false);
  parts->addWidget(list_);
  parts->addWidget(chooser_);
  parts->addWidget(work);
  parts->setStretchFactor(2, 1);
  constexpr int kListWidth = 190;
  constexpr int kChooserWidth = 330;
  constexpr int kPagesWidth = 935;
  constexpr int kHeight = 600;
  parts->setSizes({kListWidth, kChooserWidth, kPagesWidth});
  notice_ = new Notice;
  auto* all = new QWidget;
  auto* allLayout = new QVBoxLayout(all);
  allLayout->setContentsMargins(0, 0, 0, 0);
  allLayout->setSpacing(0);
  allLayout->addWidget(parts, 1);
  allLayout->addWidget(notice_);
  setCentralWidget(all);
  resize(kListWidth + kChooserWidth + kPagesWidth, kHeight);
}

QAction* Window::addCommand(const char* name, const char* caption, const QKeySequence& keys, const char* tip) {
  auto* command = new QAction(QString::fromUtf8(caption), this);
  command->setObjectName(name);
  command->setShortcut(keys);
  command->setToolTip(QString("%1 (%2)").arg(QString::fromUtf8(tip), keys.toString(QKeySequence::NativeText)));
  return command;
}

void Window::addCommands() {
  edit_ = addCommand("modifica", "&Modifica", Qt::Key_F2, "Modifica il record");
  save_ = addCommand("salva", "&Salva", QKeySequence::Save, "Salva le modifiche");
  cancel_ = addCommand("annulla", "&Annulla", Qt::Key_Escape, "Rinuncia alle modifiche");
  print_ = addCommand("stampa", "S&tampa in PDF…", QKeySequence::Print, "Stampa in un file PDF");
  QAction* search = addCommand("cerca", "&Cerca", QKeySequence::Find, "Cerca un record");
  QAction* screens = addCommand("vai", "Sc&hermate", Qt::Key_F6, "Va all'elenco delle schermate");
  QAction* next = addCommand("avanti", "&Pannello seguente", Qt::CTRL | Qt::Key_PageDown, "Va al pannello che segue");
  QAction* previous =
      addCommand("indietro", "Pannello p&recedente", Qt::CTRL | Qt::Key_PageUp, "Va al pannello che precede");
  QAction* quit = addCommand("esci", "&Esci", Qt::CTRL | Qt::Key_Q, "Chiude il programma");
  connect(edit_, &QAction::triggered, this, &Window::edit);
  connect(save_, &QAction::triggered, this, &Window::save);
  connect(cancel_, &QAction::triggered, this, &Window::cancel);
  connect(print_, &QAction::triggered, this, &Window::print);
  connect(search, &QAction::triggered, chooser_, &RecordChooser::focusFilter);
  connect(screens, &QAction::triggered, list_, [this] { list_->setFocus(); });
  connect(next, &QAction::triggered, this, [this] { stepToPanel(true); });
  connect(previous, &QAction::triggered, this, [this] { stepToPanel(false); });
  connect(quit, &QAction::triggered, this, &QWidget::close);

  QMenu* menu = menuBar()->addMenu("&Record");
  menu->addActions({search, screens});
  menu->addSeparator();
  menu->addActions({next, previous});
  menu->addSeparator();
  menu->addActions({edit_, save_, cancel_});
  menu->addSeparator();
  menu->addAction(print_);
  menu->addSeparator();
  menu->addAction(quit);

  QToolBar* bar = addToolBar("Comandi");
  bar->setObjectName("comandi");
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->addActions({search, edit_, save_, cancel_});
}

void Window::addSettings() {
  mayCancel_ = addCommand("autorizzato", "A&utorizzato ad annullare", Qt::CTRL | Qt::SHIFT | Qt::Key_A,
                          "Permette di annullare i titoli sospesi");
  mayCancel_->setCheckable(true);
  mayCancel_->setChecked(settings_.mayCancel);
  connect(mayCancel_, &QAction::toggled, this, [this](bool may) { settings_.mayCancel = may; });
  menuBar()->addMenu("&Operatore")->addAction(mayCancel_);
}

template <class Work>
bool Window::attempt(const QString& failed, Work work) {
  connection_.renew();
  try {
    work();
    return true;
  } catch (const std::exception& failure) {
    notice_->warn(QString("%1: %2.").arg(failed, reasonOf(failure)));
  }
  return false;
}

std::unique_ptr<ResultsView> Window::makeResults(ResultScreen& results) {
  return std::make_unique<ResultsView>(platform_, store_, results, [this](const std::exception& failure) {
    notice_->warn(QString("Un record trovato non si può mostrare: %1.").arg(reasonOf(failure)));
  });
}

bool Window::makeScreen(Shown& shown) {
  return attempt("La schermata non si può aprire", [&] {
    const ScreenClass& made = *shown.made;
    auto screen = made.make({.container = announcements_, .settings = settings_, .name = std::string(made.name)});
    if (ResultScreen* results = screen->results()) {
      shown.results = makeResults(*results);
      shown.page = shown.results.get();
    } else {
      shown.page = makePage(platform_, *screen);
      if (ResultScreen* lines = screen->lines()) {
        shown.lines = makeResults(*lines);
        shown.page = placeOver(shown.page, shown.lines.get());
      }
    }
    pages_->addWidget(shown.page);
    shown.screen = std::move(screen);
  });
}

bool Window::chooseScreen(std::size_t number) {
  Shown& wanted = screens_.at(number);
  if (current_ == &wanted) return true;
  const auto mark = [&](int row) {
    const QSignalBlocker silent(list_);
    list_->setCurrentRow(row);
  };
  if (!leaveRecord()) {
    mark(static_cast<int>(current_ - screens_.data()));
    return false;
  }
  mark(static_cast<int>(number));
  notice_->tell({});
  current_ = &wanted;
  const bool made = wanted.screen != nullptr || makeScreen(wanted);
  pages_->setCurrentWidget(made ? wanted.page : pages_->widget(0));
  chooser_->clearFilter();
  if (made) findRecords();
  // What stood there may have been given up, or be other by now.
  if (made && !screen()->key().empty()) load(screen()->key());
  showState();
  return made;
}

void Window::findRecords() {
  if (screen() == nullptr) return;
  const int most = current_->results == nullptr ? RecordChooser::kMost : ResultScreen::kMost;
  std::vector<Found> found;
  const bool looked = attempt("I record non si possono cercare",
                              [&] { found = screen()->find(store_, chooser_->filter().toStdString(), most + 1); });
  const auto shown = std::ranges::find(found, screen()->key(), &Found::key);
  if (shown != found.end()) current_->record = qt::shown(shown->text);
  chooser_->show(std::move(found), most);
  if (!looked) chooser_->clear();
  if (current_->results != nullptr) takeResults(chooser_->records());
  chooser_->mark(screen()->key());
}

void Window::takeResults(std::span<const Found> found) {
  screen()->results()->take(found);
  current_->results->renew();
  if (screen()->key().empty()) current_->record.clear();
  showState();
}

bool Window::load(const Key& key) {
  const bool loaded = attempt("Il record non si può mostrare", [&] { screen()->load(store_, key); });
  if (current_->results != nullptr) {
    current_->results->showMarked();
  } else if (current_->lines != nullptr) {
    current_->lines->renew();
  } else {
    placeAdded(platform_, *current_->page, *screen());
  }
  platform_.settle();
  if (screen()->key().empty()) current_->record.clear();
  chooser_->mark(screen()->key());
  showState();
  return loaded;
}

bool Window::openRecord(const Found& record) {
  if (screen() == nullptr) return false;
  if (editing_ && record.key == screen()->key()) {
    backToField();
    return true;
  }
  if (!leaveRecord()) {
    chooser_->mark(screen()->key());
    return false;
  }
  if (!load(record.key)) return false;
  current_->record = qt::shown(record.text);
  notice_->tell({});
  showState();
  return true;
}

bool Window::edit() {
  if (editing_ || screen() == nullptr || screen()->key().empty() || !screen()->editable()) return false;
  // What is changed is to be what the database holds now.
  if (!load(screen()->key())) return false;
  editing_ = attempt("Il record non si può modificare", [&] { screen()->Attiva(); });
  platform_.settle();
  if (editing_) notice_->tell("Modifica in corso.");
  showState();
  return editing_;
}

bool Window::leaveField() {
  failures_ = 0;
  chooser_->focusRecords();
  // In a window that is not the active one, no change of the focus is heard of.
  if (platform_.focused() != nullptr) attempt("Il campo non si può lasciare", [&] { platform_.hands().leave(); });
  return failures_ == 0;
}

void Window::backToField() {
  if (editing_ && field_ != nullptr) field_->setFocus();
}

bool Window::save() {
  if (!editing_) return true;
  Key key;
  const bool saved = leaveField() && attempt("Il record non è stato salvato", [&] {
                       key = screen()->changed() ? screen()->save(store_) : screen()->key();
                     });
  if (!saved) {
    backToField();
    showState();
    return false;
  }
  editing_ = false;
  const bool other = key != screen()->key();
  notice_->tell({});
  load(key);
  findRecords();
  // One that was new is no longer what the filter has found it by.
  if (other && std::ranges::find(chooser_->records(), key, &Found::key) == chooser_->records().end()) {
    chooser_->clearFilter();
    findRecords();
  }
  const QString trouble = notice();  // with showing what was stored
  if (trouble.isEmpty()) {
    notice_->tell("Il record è stato salvato.");
  } else {
    notice_->warn("Il record è stato salvato. " + trouble);
  }
  showState();
  return true;
}

bool Window::cancel() {
  if (!editing_ || !leaveRecord()) return false;
  return load(screen()->key());
}

void Window::stepToPanel(bool forwards) {
  if (screen() == nullptr) return;
  QWidget* const field = fieldOfNeighbour(platform_, screen()->panels(), QApplication::focusWidget(), forwards);
  if (field != nullptr) field->setFocus();
}

bool Window::print() {
  if (!print_->isEnabled()) return false;
  Printing& printing = *screen()->printing();
  const QString file = askFile_(qt::shown(printing.fileName()));
  if (file.isEmpty()) return false;
  bool printed = false;
  if (!attempt("La stampa non è riuscita", [&] { printed = printWithBar(*this, printing, store_, file); }))
    return false;
  notice_->tell(printed ? QString("Stampato in %1.").arg(file) : QString("La stampa è stata annullata."));
  return printed;
}

bool Window::leaveRecord() {
  if (!editing_) return true;
  leaveField();
  if (screen()->changed()) {
    switch (ask_(current_->record)) {
      case Unsaved::Save:
        return save();
      case Unsaved::Stay:
        backToField();
        return false;
      case Unsaved::Discard:
        break;
    }
  }
  attempt("I campi non si possono chiudere", [&] { screen()->Disattiva(); });
  editing_ = false;
  showState();
  return true;
}

void Window::closeEvent(QCloseEvent* event) { event->setAccepted(leaveRecord()); }

void Window::showState() {
  const bool loaded = screen() != nullptr && !screen()->key().empty();
  edit_->setEnabled(loaded && !editing_ && screen()->editable());
  save_->setEnabled(editing_);
  cancel_->setEnabled(editing_);
  print_->setEnabled(loaded && !editing_ && screen()->printing() != nullptr);
  mayCancel_->setEnabled(!editing_);
  const QString title = current_ == nullptr ? QString() : qt::shown(current_->made->title);
  const QString record = loaded && current_->record.size() > 0 ? QString("%1[*] – ").arg(current_->record) : "[*]";
  setWindowTitle(record + (title.isEmpty() ? "Ufficio" : title + " – Ufficio"));
  if (loaded) {
    heading_->setText(current_->record);
  } else if (screen() == nullptr) {
    heading_->clear();
  } else if (ResultScreen* const results = screen()->results()) {
    heading_->setText(QString("Record trovati: %1.").arg(results->count()));
  } else {
    heading_->setText("Scegliere un record dall'elenco.");
  }
  remark_->setText(loaded ? qt::shown(screen()->remark()) : QString());
  remark_->setVisible(!remark_->text().isEmpty());
  setWindowModified(editing_ && screen()->changed());
}

void Window::tellFailure(const QString& panel, const QString& widget, const QString& event, const QString& message,
                         FailureKind kind) {
  ++failures_;
  // When the handler is done.
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (QApplication::activeModalWidget() == nullptr) connection_.renew();
      },
      Qt::QueuedConnection);
  const QWidget* const shown = pages_->findChild<QWidget*>(panel);
  const QWidget* const field = shown == nullptr ? nullptr : shown->findChild<QWidget*>(widget);
  const QString name = field == nullptr ? widget : field->accessibleName();
  notice_->warn(QString("Campo «%1», %2: %3.").arg(name, spokenEvent(event), reasonOf(kind, message)));
}

}  // namespace qvn::ufficio
