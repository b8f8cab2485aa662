#include "hosts/ufficio/enabled_commands.h"

namespace qvn::ufficio {

void enable(const Commands& commands, const RecordDesk& desk) {
  Screen* const screen = desk.screen();
  const bool editing = desk.editing();
  const bool loaded = screen != nullptr && !screen->key().empty();
  const Reach adding = screen == nullptr ? Reach::Nothing : screen->adding();
  const Reach removing = screen == nullptr ? Reach::Nothing : screen->removing();
  const bool begins = screen != nullptr && !screen->newFilter().empty();
  const auto set = [&](Command command, bool enabled) { commands[command].setEnabled(enabled); };
  set(Command::Edit, loaded && !editing && screen->editable());
  set(Command::Add, adding == Reach::Record || begins || (adding == Reach::Row && loaded));
  set(Command::Save, editing);
  set(Command::Cancel, editing);
  set(Command::Remove, (removing == Reach::Record && loaded && !desk.isNew()) || (removing == Reach::Row && editing));
  set(Command::Renew, screen != nullptr && !editing);
  set(Command::Print, loaded && !editing && screen->printing() != nullptr);
  set(Command::MayCancel, !editing);
}

}  // namespace qvn::ufficio
