#include "hosts/ufficio/unsaved.h"

#include <QMessageBox>
#include <QPushButton>

namespace qvn::ufficio {

Unsaved askInWindow(QWidget& parent, const QString& record) {
  QMessageBox box(QMessageBox::Question, "Ufficio", "Il record è stato modificato e non ancora salvato.",
                  QMessageBox::NoButton, &parent);
  box.setInformativeText(record);
  const QPushButton* const save = box.addButton("&Salva", QMessageBox::AcceptRole);
  const QPushButton* const discard = box.addButton("&Non salvare", QMessageBox::DestructiveRole);
  QPushButton* const stay = box.addButton("&Continua a modificare", QMessageBox::RejectRole);
  box.setDefaultButton(stay);
  box.setEscapeButton(stay);
  box.exec();
  if (box.clickedButton() == save) return Unsaved::Save;
  return box.clickedButton() == discard ? Unsaved::Discard : Unsaved::Stay;
}

}  // namespace qvn::ufficio
