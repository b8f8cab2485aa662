// The words of Qt's own dialogs and menus.
#pragma once

#include <QTranslator>

namespace qvn::ufficio {

/// For as long as it lives they are Italian, where Qt's translations are installed. Needs the QApplication.
class ItalianDialogs {
 public:
  ItalianDialogs();
  ~ItalianDialogs();
  ItalianDialogs(const ItalianDialogs&) = delete;
  ItalianDialogs& operator=(const ItalianDialogs&) = delete;

 private:
  QTranslator words_;
};

}  // namespace qvn::ufficio
