#include "hosts/ufficio/record_desk.h"

#include <algorithm>
#include <vector>

#include "hosts/ufficio/result_screen.h"
#include "hosts/ufficio/store_failure.h"
#include "platforms/qt/texts.h"

namespace qvn::ufficio {

void RecordDesk::find() {
  if (screen() == nullptr) return;
  RecordChooser& chooser = tools_.chooser;
  const int most = shown_->results == nullptr ? RecordChooser::kMost : ResultScreen::kMost;
  std::vector<Found> found;
  const bool looked = tools_.attempt("I record non si possono cercare", [&] {
    found = screen()->find(tools_.store, chooser.filter().toStdString(), most + 1);
  });
  const auto shown = std::ranges::find(found, screen()->key(), &Found::key);
  if (shown != found.end()) shown_->record = qt::shown(shown->text);
  chooser.show(std::move(found), most);
  if (!looked) chooser.clear();
  if (shown_->results != nullptr) takeResults(chooser.records());
  chooser.mark(screen()->key());
}

void RecordDesk::takeResults(std::span<const Found> found) {
  screen()->results()->take(found);
  shown_->results->renew();
  if (screen()->key().empty()) shown_->record.clear();
  tools_.showState();
}

QString RecordDesk::textOf(const Key& key) {
  const std::string code = ufficio::textOf(key.front());
  std::vector<Found> alike;
  tools_.attempt("I record non si possono cercare",
                 [&] { alike = screen()->find(tools_.store, code, RecordChooser::kMost); });
  const auto found = std::ranges::find(alike, key, &Found::key);
  return qt::shown(found == alike.end() ? code : found->text);
}

bool RecordDesk::load(const Key& key) {
  const bool loaded = tools_.attempt("Il record non si può mostrare", [&] { screen()->load(tools_.store, key); });
  shown_->placeLoaded(tools_.platform);
  tools_.platform.settle();
  if (screen()->key().empty()) shown_->record.clear();
  tools_.chooser.mark(screen()->key());
  tools_.showState();
  return loaded;
}

bool RecordDesk::open(const Found& record) {
  if (screen() == nullptr) return false;
  if (editing_ && record.key == screen()->key()) {
    backToField();
    return true;
  }
  if (!leave()) {
    tools_.chooser.mark(screen()->key());
    return false;
  }
  if (!load(record.key)) return false;
  shown_->record = qt::shown(record.text);
  tools_.notice.tell({});
  tools_.showState();
  return true;
}

bool RecordDesk::renew() {
  if (editing_ || screen() == nullptr) return false;
  tools_.notice.tell({});
  find();
  return screen()->key().empty() || load(screen()->key());
}

void RecordDesk::forget() {
  shown_->forget();
  tools_.showState();
}

bool RecordDesk::edit() {
  if (editing_ || screen() == nullptr || screen()->key().empty() || !screen()->editable()) return false;
  // What is changed is to be what the database holds now.
  if (!load(screen()->key())) return false;
  editing_ = tools_.attempt("Il record non si può modificare", [&] { screen()->Attiva(); });
  tools_.platform.settle();
  if (editing_) tools_.notice.tell("Modifica in corso.");
  tools_.showState();
  return editing_;
}

bool RecordDesk::save() {
  if (!editing_) return true;
  Key key;
  bool changed = false;
  const bool saved = tools_.field.leave() && tools_.attempt("Il record non è stato salvato", [&] {
    changed = screen()->changed();
    if (!changed && isNew()) throw StoreFailure("non è ancora stato scritto nulla");
    key = changed ? screen()->save(tools_.store) : screen()->key();
  });
  if (!saved) {
    backToField();
    tools_.showState();
    return false;
  }
  endEditing();
  const bool other = key != screen()->key();
  RecordChooser& chooser = tools_.chooser;
  Notice& notice = tools_.notice;
  notice.tell({});
  load(key);
  find();
  const auto listed = [&] { return std::ranges::find(chooser.records(), key, &Found::key) != chooser.records().end(); };
  // One that was new is no longer what the filter has found it by.
  if (other && !listed()) {
    chooser.clearFilter();
    find();
    if (!listed()) shown_->record = textOf(key);
  }
  const QString trouble = notice.text();  // with showing what was stored
  const QString words = notice.words();
  const QString done = changed ? "Il record è stato salvato." : "Il record è com'era: non c'era nulla da salvare.";
  if (trouble.isEmpty()) {
    notice.tell(done);
  } else {
    notice.warn(done + " " + trouble, words);
  }
  tools_.showState();
  return true;
}

bool RecordDesk::cancel() {
  if (!editing_) return false;
  const Key before = shown_->before;
  if (!leave()) return false;
  // What stood there before stands there again.
  if (!isNew() && !screen()->key().empty()) return true;
  forget();
  if (!before.empty()) load(before);
  find();
  return true;
}

bool RecordDesk::leave() {
  if (!editing_) return true;
  tools_.field.leave();
  bool givenUp = false;
  if (screen()->changed()) {
    switch (tools_.ask(shown_->record)) {
      case Unsaved::Save:
        return save();
      case Unsaved::Stay:
        backToField();
        return false;
      case Unsaved::Discard:
        givenUp = true;
        break;
    }
  }
  tools_.notice.tell({});
  endEditing();
  // What was given up is not to stand there as if it were stored.
  if (givenUp && (isNew() || !load(screen()->key()))) forget();
  tools_.showState();
  return true;
}

void RecordDesk::endEditing() {
  if (editing_) tools_.attempt("I campi non si possono chiudere", [&] { screen()->Disattiva(); });
  editing_ = false;
}

void RecordDesk::backToField() {
  if (editing_) tools_.field.goBack();
}

}  // namespace qvn::ufficio
