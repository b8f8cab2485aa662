#include "hosts/ufficio/pictures.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QStackedWidget>
#include <algorithm>
#include <array>
#include <iostream>
#include <set>

#include "platforms/qt/texts.h"

namespace qvn::ufficio {

namespace {

/// How many records a picture is chosen from.
constexpr std::size_t kLookedAt = 20;

/// What is typed for a picture where no record of a screen has anything to show.
struct Typed {
  std::string_view screen;
  std::string_view property;
  std::string_view value;
};

constexpr std::array kTyped{
    Typed{"righe-iva", "COD_IVA", "22"},    Typed{"righe-iva", "IMPONIBILE", "1250"},
    Typed{"righe-iva", "IVA", "275"},       Typed{"righe-tipi", "Mastro", "0601"},
    Typed{"righe-tipi", "Conto", "000004"}, Typed{"righe-tipi", "RIPETI", "-1"},
};

/// How many different texts the panels show.
std::size_t textsIn(const Window& window) {
  const QWidget& page = *window.findChild<QStackedWidget*>()->currentWidget();
  std::set<QString> texts;
  for (const QLineEdit* field : page.findChildren<QLineEdit*>()) {
    if (field->isVisible()) texts.insert(field->text());
  }
  for (const QLabel* label : page.findChildren<QLabel*>()) {
    if (label->isVisible()) texts.insert(label->text());
  }
  return texts.size();
}

/// Begins to change the record that is shown.
bool type(Window& window, std::string_view screen) {
  if (!window.edit()) return false;
  Panel& panel = *window.screen()->panels().front();
  for (const Typed& typed : kTyped) {
    if (typed.screen == screen) letByName(panel, typed.property, std::string(typed.value));
  }
  return true;
}

/// Shows the record that has the most to show; of alike ones, and of those that are all in view, the first.
bool showARecord(Window& window, std::string_view screen) {
  const auto found = window.chooser().records();
  const std::size_t most = window.screen()->results() == nullptr ? kLookedAt : 1;
  const std::vector<Found> records(found.begin(),
                                   found.begin() + static_cast<std::ptrdiff_t>(std::min(found.size(), most)));
  std::vector<std::size_t> texts;
  texts.reserve(records.size());
  for (const Found& record : records) {
    if (!window.openRecord(record)) return false;
    texts.push_back(textsIn(window));
  }
  if (records.empty()) return false;
  const auto fullest = std::ranges::max_element(texts);
  if (!window.openRecord(records.at(static_cast<std::size_t>(fullest - texts.begin())))) return false;
  const bool alike = std::ranges::all_of(texts, [&](std::size_t count) { return count == *fullest; });
  const bool typed = std::ranges::find(kTyped, screen, &Typed::screen) != kTyped.end();
  return !alike || !typed || type(window, screen);
}

}  // namespace

bool writePictures(Window& window, std::span<const ScreenClass> classes, const std::string& folder) {
  const QDir directory(qt::shown(folder));
  bool all = directory.mkpath(".");
  window.askBy([](const QString& /*record*/) { return Unsaved::Discard; });
  window.show();
  QApplication::setActiveWindow(&window);
  for (std::size_t number = 0; number < classes.size(); ++number) {
    const std::string name(classes[number].name);
    if (!window.chooseScreen(number) || !showARecord(window, name)) {
      std::cerr << "qvn-ufficio: " << name << ": no record to show. " << window.notice().toStdString() << '\n';
      all = false;
    }
    QApplication::processEvents();
    const QString file = directory.filePath(qt::shown(name + ".png"));
    if (!window.grab().save(file)) {
      std::cerr << "qvn-ufficio: cannot write " << file.toStdString() << '\n';
      all = false;
    }
    window.cancel();
  }
  return all;
}

}  // namespace qvn::ufficio
