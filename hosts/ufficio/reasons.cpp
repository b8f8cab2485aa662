#include "hosts/ufficio/reasons.h"

#include <algorithm>
#include <array>

#include "hosts/ufficio/store_failure.h"
#include "platforms/qt/texts.h"

namespace qvn::ufficio {

namespace {

const char* clauseOf(FailureKind kind) {
  switch (kind) {
    case FailureKind::TypeMismatch:
      return "un valore manca o non è valido";
    case FailureKind::Overflow:
      return "un valore è troppo grande";
    case FailureKind::DivisionByZero:
      return "c'è una divisione per zero";
    case FailureKind::InvalidUseOfNull:
      return "nel database manca un valore";
    case FailureKind::Database:
      return "una ricerca nel database non è riuscita; riprovare tra poco";
    case FailureKind::SubscriptOutOfRange:
    case FailureKind::InvalidCall:
    case FailureKind::NoSuchMember:
      break;
  }
  return "il programma ha sbagliato una richiesta";
}

struct EventWord {
  QLatin1String event;
  const char* spoken;
};

constexpr std::array kEvents{
    EventWord{QLatin1String("KeyPress"), "tasto premuto"},
    EventWord{QLatin1String("Change"), "nuovo contenuto"},
    EventWord{QLatin1String("Click"), "scelta"},
    EventWord{QLatin1String("GotFocus"), "entrata nel campo"},
    EventWord{QLatin1String("LostFocus"), "uscita dal campo"},
};

}  // namespace

QString reasonOf(const std::exception& failure) {
  if (dynamic_cast<const StoreFailure*>(&failure) != nullptr) return qt::shown(failure.what());
  if (const auto* ofLibrary = dynamic_cast<const Failure*>(&failure)) return reasonOf(ofLibrary->kind());
  return "c'è un errore imprevisto";
}

QString reasonOf(FailureKind kind) { return QString::fromUtf8(clauseOf(kind)); }

QString wordsOf(const std::exception& failure) {
  const auto* ofStore = dynamic_cast<const StoreFailure*>(&failure);
  return qt::shown(ofStore == nullptr ? failure.what() : ofStore->words());
}

QString spokenEvent(const QString& event) {
  const auto* const found = std::ranges::find_if(kEvents, [&](const EventWord& word) { return event == word.event; });
  return found == kEvents.end() ? event : QString::fromUtf8(found->spoken);
}

}  // namespace qvn::ufficio
