#include "hosts/ufficio/window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <algorithm>

#include "hosts/ufficio/adding.h"
#include "hosts/ufficio/appearance.h"
#include "hosts/ufficio/enabled_commands.h"
#include "hosts/ufficio/help.h"
#include "hosts/ufficio/page.h"
#include "hosts/ufficio/panel_steps.h"
#include "hosts/ufficio/reasons.h"
#include "hosts/ufficio/window_state.h"
#include "platforms/qt/texts.h"

namespace qvn::ufficio {

Window::Window(qt::Platform& platform, Store& store, std::span<const ScreenClass> classes)
    : platform_(platform),
      store_(store),
      connection_(store),
      parts_(layOut(*this, classes)),
      desk_({.platform = platform,
             .store = store,
             .chooser = *parts_.chooser,
             .notice = *parts_.notice,
             .attempt = attempt_,
             .field = field_,
             .showState = [this] { showState(); },
             .ask =
                 [this](const QString& record) {
                   const QScopedValueRollback asking(asking_, true);
                   return ask_(record);
                 }}) {
  ask_ = [this](const QString& record) { return askInWindow(*this, record); };
  askRemoval_ = [this](const QString& question) { return askToRemoveInWindow(*this, question); };
  askFile_ = [this](const QString& name) { return askFileInWindow(*this, name); };
  screens_.reserve(classes.size());
  for (const ScreenClass& made : classes) screens_.emplace_back().made = &made;
  connectCommands();
  connect(&announcements_, &qt::Announcements::failed, this, &Window::tellFailure);
  // A panel may announce in the middle of its rules: it is asked when they have run.
  connect(&announcements_, &qt::Announcements::changed, this, &Window::showState, Qt::QueuedConnection);
  // The list goes back to the screen before, if the operator stays there, when it has done with the click.
  connect(
      parts_.list, &QListWidget::currentRowChanged, this,
      [this] {
        // By then it may have gone on, or been set to another screen.
        if (const int row = parts_.list->currentRow(); row >= 0) chooseScreen(static_cast<std::size_t>(row));
      },
      Qt::QueuedConnection);
  connect(parts_.chooser, &RecordChooser::filterChanged, this, [this] { desk_.find(); });
  connect(parts_.chooser, &RecordChooser::chosen, this, &Window::openRecord);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*before*/, QWidget* now) {
    if (now == nullptr || !parts_.pages->isAncestorOf(now)) return;
    field_.goneTo(now);
    bringIntoView(*now);
  });
  showState();
}

Window::~Window() {
  disconnect(qApp, nullptr, this, nullptr);
  announcements_.disconnect();
  parts_.list->disconnect();
  parts_.chooser->disconnect();
}

void Window::connectCommands() {
  const auto on = [this](Command command, auto work) {
    connect(&commands_[command], &QAction::triggered, this, std::move(work));
  };
  on(Command::Search, [this] { parts_.chooser->focusFilter(); });
  on(Command::Screens, [this] { parts_.list->setFocus(); });
  on(Command::Renew, [this] { renew(); });
  on(Command::Next, [this] { stepToPanel(true); });
  on(Command::Previous, [this] { stepToPanel(false); });
  on(Command::Edit, [this] { edit(); });
  on(Command::Add, [this] { add(); });
  on(Command::Save, [this] { save(); });
  on(Command::Cancel, [this] { cancel(); });
  on(Command::Remove, [this] { remove(); });
  on(Command::Print, [this] { print(); });
  on(Command::Quit, [this] { close(); });
  on(Command::Help, [this] { help(); });
  commands_[Command::MayCancel].setChecked(settings_.mayCancel);
  connect(&commands_[Command::MayCancel], &QAction::toggled, this, [this](bool may) { settings_.mayCancel = may; });
  connect(&commands_[Command::Dark], &QAction::toggled, this,
          [](bool dark) { wear(dark ? Appearance::Dark : Appearance::Desktop); });
}

bool Window::makeScreen(ShownScreen& shown) {
  return attempt_("La schermata non si può aprire", [&] {
    shown.make({.platform = platform_,
                .store = store_,
                .container = announcements_,
                .settings = settings_,
                .notice = *parts_.notice});
    parts_.pages->addWidget(shown.page);
  });
}

bool Window::chooseScreen(std::size_t number) {
  ShownScreen& wanted = screens_.at(number);
  if (desk_.shown() == &wanted) return true;
  const auto mark = [&](int row) {
    const QSignalBlocker silent(parts_.list);
    parts_.list->setCurrentRow(row);
  };
  if (!desk_.leave()) {
    mark(static_cast<int>(desk_.shown() - screens_.data()));
    return false;
  }
  mark(static_cast<int>(number));
  parts_.notice->tell({});
  if (desk_.isNew()) desk_.forget();
  desk_.turnTo(wanted);
  const bool made = wanted.screen != nullptr || makeScreen(wanted);
  parts_.pages->setCurrentWidget(made ? wanted.page : parts_.pages->widget(0));
  parts_.chooser->clearFilter();
  if (made) desk_.find();
  // What stood there may have been given up, or be other by now.
  if (made && !screen()->key().empty()) desk_.load(screen()->key());
  showState();
  return made;
}

bool Window::add() { return commands_[Command::Add].isEnabled() && addAt(desk_); }

bool Window::remove() {
  const auto ask = [this](const QString& question) {
    const QScopedValueRollback asking(asking_, true);
    return askRemoval_(question);
  };
  return commands_[Command::Remove].isEnabled() && removeAt(desk_, ask);
}

void Window::help() {
  const QString title = desk_.shown() == nullptr ? QString("Ufficio") : qt::shown(desk_.shown()->made->title);
  showHelp(*this, title,
           (desk_.shown() == nullptr ? QString() : helpOn(desk_.shown()->made->name)) + keysOf(*menuBar()));
}

void Window::stepToPanel(bool forwards) {
  if (screen() == nullptr) return;
  QWidget* const field = fieldOfNeighbour(platform_, screen()->panels(), QApplication::focusWidget(), forwards);
  if (field != nullptr) field->setFocus();
}

bool Window::print() {
  if (!commands_[Command::Print].isEnabled()) return false;
  Printing& printing = *screen()->printing();
  const QString file = askFile_(qt::shown(printing.fileName()));
  if (file.isEmpty()) return false;
  bool printed = false;
  if (!attempt_("La stampa non è riuscita", [&] { printed = printWithBar(*this, printing, store_, file); }))
    return false;
  parts_.notice->tell(printed ? QString("Stampato in %1.").arg(file) : QString("La stampa è stata annullata."));
  return printed;
}

void Window::keepStateIn(QSettings& settings) {
  settingsFile_ = &settings;
  const WindowState state = stateIn(settings);
  restoreGeometry(state.geometry);
  parts_.sides->restoreState(state.parts);
  commands_[Command::Dark].setChecked(state.dark);
  const auto shown = std::ranges::find_if(
      screens_, [&](const ShownScreen& screen) { return qt::shown(screen.made->name) == state.screen; });
  if (shown != screens_.end()) chooseScreen(static_cast<std::size_t>(shown - screens_.begin()));
}

void Window::closeEvent(QCloseEvent* event) {
  event->setAccepted(desk_.leave());
  if (!event->isAccepted() || settingsFile_ == nullptr) return;
  keep({.geometry = saveGeometry(),
        .parts = parts_.sides->saveState(),
        .screen = desk_.shown() == nullptr ? QString() : qt::shown(desk_.shown()->made->name),
        .dark = commands_[Command::Dark].isChecked()},
       *settingsFile_);
}

void Window::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  // What the operator is asked about is what stands there.
  if (event->type() != QEvent::ActivationChange || !isActiveWindow() || editing() || asking_) return;
  if (store_.othersWrote()) renew();
}

void Window::showState() {
  enable(commands_, desk_);
  const ShownScreen* const shown = desk_.shown();
  const bool loaded = shown != nullptr && shown->loaded();
  const QString title = shown == nullptr ? QString() : qt::shown(shown->made->title);
  const QString record = loaded && !shown->record.isEmpty() ? QString("%1[*] – ").arg(shown->record) : "[*]";
  setWindowTitle(record + (title.isEmpty() ? "Ufficio" : title + " – Ufficio"));
  parts_.heading->setText(shown == nullptr ? QString() : shown->heading());
  parts_.remark->setText(loaded ? qt::shown(screen()->remark()) : QString());
  parts_.remark->setVisible(!parts_.remark->text().isEmpty());
  setWindowModified(editing() && screen()->changed());
}

void Window::tellFailure(const QString& panel, const QString& widget, const QString& event, const QString& message,
                         FailureKind kind) {
  field_.handlerFailed(event == QLatin1String("LostFocus"));
  // When the handler is done.
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (QApplication::activeModalWidget() == nullptr) connection_.renew();
      },
      Qt::QueuedConnection);
  const QWidget* const shown = parts_.pages->findChild<QWidget*>(panel);
  const QWidget* const field = shown == nullptr ? nullptr : shown->findChild<QWidget*>(widget);
  const QString name = field == nullptr ? widget : field->accessibleName();
  parts_.notice->warn(QString("Campo «%1», %2: %3.").arg(name, spokenEvent(event), reasonOf(kind)), message);
}

}  // namespace qvn::ufficio
