#include "hosts/ufficio/removing.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <cstddef>
#include <vector>

#include "hosts/ufficio/panel_steps.h"

namespace qvn::ufficio {

namespace {

bool removeRow(RecordDesk& desk, const AskToGoOn& ask) {
  const DeskTools& tools = desk.tools();
  const std::vector<Panel*> panels = desk.screen()->panels();
  const Panel* const its = panelAround(tools.platform, panels, QApplication::focusWidget());
  if (its == nullptr) {
    tools.notice.tell("Prima di eliminare una riga bisogna andare in uno dei suoi campi.");
    return false;
  }
  if (!ask("Eliminare questa riga? La modifica ha effetto quando si salva.")) return false;
  QWidget* field = fieldOfNeighbour(tools.platform, panels, QApplication::focusWidget(), true);
  if (field == nullptr) field = fieldOfNeighbour(tools.platform, panels, QApplication::focusWidget(), false);
  if (field == nullptr) {
    tools.chooser.focusRecords();
  } else {
    field->setFocus();
  }
  desk.screen()->removeRow(*its);
  tools.platform.settle();
  tools.showState();
  return true;
}

bool removeRecord(RecordDesk& desk, const AskToGoOn& ask) {
  if (!ask(QString("Eliminare il record «%1»?").arg(desk.shown()->record))) return false;
  const DeskTools& tools = desk.tools();
  const Key key = desk.screen()->key();
  const auto records = tools.chooser.records();
  const auto place = std::ranges::find(records, key, &Found::key) - records.begin();
  if (!tools.attempt("Il record non è stato eliminato", [&] { desk.screen()->remove(tools.store); })) return false;
  desk.endEditing();
  desk.forget();
  desk.find();
  const auto left = static_cast<std::ptrdiff_t>(tools.chooser.records().size());
  if (left > 0) desk.open(Found(tools.chooser.records()[static_cast<std::size_t>(std::min(place, left - 1))]));
  tools.chooser.focusRecords();
  tools.notice.tell("Il record è stato eliminato.");
  return true;
}

}  // namespace

bool askToRemoveInWindow(QWidget& parent, const QString& question) {
  QMessageBox box(QMessageBox::Question, "Ufficio", question, QMessageBox::NoButton, &parent);
  const QPushButton* const remove = box.addButton("&Elimina", QMessageBox::DestructiveRole);
  QPushButton* const stay = box.addButton("&Annulla", QMessageBox::RejectRole);
  box.setDefaultButton(stay);
  box.setEscapeButton(stay);
  box.exec();
  return box.clickedButton() == remove;
}

bool removeAt(RecordDesk& desk, const AskToGoOn& ask) {
  return desk.screen()->removing() == Reach::Row ? removeRow(desk, ask) : removeRecord(desk, ask);
}

}  // namespace qvn::ufficio
