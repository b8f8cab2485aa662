#include "hosts/ufficio/adding.h"

#include "hosts/ufficio/page.h"
#include "hosts/ufficio/panel_steps.h"
#include "platforms/qt/texts.h"

namespace qvn::ufficio {

namespace {

bool beginRow(RecordDesk& desk) {
  if (!desk.editing() && !desk.edit()) return false;
  const DeskTools& tools = desk.tools();
  Screen& screen = *desk.screen();
  const Panel* added = nullptr;
  if (!tools.attempt("La riga non si può aggiungere", [&] { added = screen.beginRow(tools.store); })) return false;
  placeAdded(tools.platform, *desk.shown()->page, screen);
  tools.platform.settle();
  if (QWidget* const field = firstFieldOf(tools.platform, *added)) field->setFocus();
  tools.showState();
  return true;
}

bool beginRecord(RecordDesk& desk) {
  if (!desk.leave()) return false;
  ShownScreen& shown = *desk.shown();
  const Key before = desk.isNew() ? shown.before : shown.screen->key();
  if (!desk.load(shown.screen->newKey())) return false;
  shown.before = before;
  shown.record = "Nuovo record";
  return desk.edit();
}

}  // namespace

bool addAt(RecordDesk& desk) {
  const Screen& screen = *desk.screen();
  if (screen.adding() == Reach::Row) return beginRow(desk);
  if (screen.newFilter().empty()) return beginRecord(desk);
  desk.tools().chooser.filterBy(qt::shown(screen.newFilter()));
  desk.tools().chooser.focusFirst();
  return true;
}

}  // namespace qvn::ufficio
