#include "hosts/ufficio/print_dialog.h"

#include <QFileDialog>
#include <QProgressDialog>

#include "platforms/qt/texts.h"

namespace qvn::ufficio {

QString askFileInWindow(QWidget& parent, const QString& name) {
  QFileDialog dialog(&parent, "Stampa in PDF", QString(), "Documenti PDF (*.pdf)");
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix("pdf");
  dialog.selectFile(name);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().constFirst() : QString();
}

bool printWithBar(QWidget& parent, Printing& printing, Store& store, const QString& file) {
  QProgressDialog bar("Stampa in corso…", "Annulla", 0, 1, &parent);
  bar.setWindowTitle("Stampa in PDF");
  bar.setWindowModality(Qt::WindowModal);
  bar.setMinimumDuration(0);
  bar.setAutoReset(false);
  return printing.print(store, qt::utf8(file), [&bar](std::size_t done, std::size_t all) {
    bar.setMaximum(static_cast<int>(all));
    bar.setValue(static_cast<int>(done));  // which lets the operator press the button
    return !bar.wasCanceled();
  });
}

}  // namespace qvn::ufficio
