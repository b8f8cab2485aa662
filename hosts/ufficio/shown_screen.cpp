#include "hosts/ufficio/shown_screen.h"

#include <exception>
#include <string>
#include <utility>

#include "hosts/ufficio/page.h"
#include "hosts/ufficio/reasons.h"
#include "hosts/ufficio/result_screen.h"

namespace qvn::ufficio {

namespace {

std::unique_ptr<ResultsView> makeResults(const ShownSite& site, ResultScreen& results) {
  return std::make_unique<ResultsView>(
      site.platform, site.store, results, [&notice = site.notice](const std::exception& failure) {
        notice.warn(QString("Un record trovato non si può mostrare: %1.").arg(reasonOf(failure)), wordsOf(failure));
      });
}

}  // namespace

void ShownScreen::make(const ShownSite& site) {
  auto fresh = made->make({.container = site.container, .settings = site.settings, .name = std::string(made->name)});
  if (ResultScreen* found = fresh->results()) {
    results = makeResults(site, *found);
    page = results.get();
  } else {
    page = makePage(site.platform, *fresh);
    if (ResultScreen* its = fresh->lines()) {
      lines = makeResults(site, *its);
      page = placeOver(page, lines.get());
    }
  }
  screen = std::move(fresh);
}

bool ShownScreen::isNew() const {
  return loaded() && screen->adding() == Reach::Record && screen->key() == screen->newKey();
}

QString ShownScreen::heading() const {
  if (loaded()) return record;
  if (screen == nullptr) return {};
  if (const ResultScreen* const found = screen->results()) return QString("Record trovati: %1.").arg(found->count());
  return "Scegliere un record dall'elenco.";
}

void ShownScreen::placeLoaded(qt::Platform& platform) {
  if (results != nullptr) {
    results->showMarked();
  } else if (lines != nullptr) {
    lines->renew();
  } else {
    placeAdded(platform, *page, *screen);
  }
}

void ShownScreen::forget() {
  screen->forget();
  if (lines != nullptr) lines->renew();
  record.clear();
  before.clear();
}

}  // namespace qvn::ufficio
