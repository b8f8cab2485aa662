#include "hosts/ufficio/italian.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace qvn::ufficio {

ItalianDialogs::ItalianDialogs() {
  if (words_.load("qtbase_it", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&words_);
  }
}

ItalianDialogs::~ItalianDialogs() { QCoreApplication::removeTranslator(&words_); }

}  // namespace qvn::ufficio
