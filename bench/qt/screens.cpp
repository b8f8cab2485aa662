#include "bench/qt/screens.h"

#include <QApplication>

#include "qvn/shared/Globale.h"

namespace qvn::bench {

ScreenOffice::ScreenOffice(toolkit::Driver& driver, const std::string& connection) {
  platform.drivers().add(driver);
  Globale::install(platform);
  Globale::Eventi()->ImpostaDB(connection);
}

ScreenOffice::~ScreenOffice() { Globale::uninstall(); }

void showIn(QWidget& window, QWidget& inside) {
  inside.setParent(&window);
  inside.show();
  window.setFixedSize(inside.size());
  window.show();
  QApplication::processEvents();
}

}  // namespace qvn::bench
