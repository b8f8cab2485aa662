#include "hosts/ufficio/pictures.h"

#include <QApplication>
#include <QDir>
#include <iostream>

#include "platforms/qt/texts.h"

namespace qvn::ufficio {

namespace {

bool showFirstRecord(Window& window, std::size_t number) {
  if (!window.chooseScreen(number) || window.chooser().records().empty()) return false;
  const Found first = window.chooser().records().front();
  return window.openRecord(first);
}

}  // namespace

bool writePictures(Window& window, std::span<const ScreenClass> classes, const std::string& folder) {
  const QDir directory(qt::shown(folder));
  bool all = directory.mkpath(".");
  window.show();
  QApplication::setActiveWindow(&window);
  for (std::size_t number = 0; number < classes.size(); ++number) {
    const std::string name(classes[number].name);
    if (!showFirstRecord(window, number)) {
      std::cerr << "qvn-ufficio: " << name << ": no record to show. " << window.notice().toStdString() << '\n';
      all = false;
    }
    QApplication::processEvents();
    const QString file = directory.filePath(qt::shown(name + ".png"));
    if (!window.grab().save(file)) {
      std::cerr << "qvn-ufficio: cannot write " << file.toStdString() << '\n';
      all = false;
    }
  }
  return all;
}

}  // namespace qvn::ufficio
