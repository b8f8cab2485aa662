#include "hosts/ufficio/window_state.h"

namespace qvn::ufficio {

namespace {

constexpr QLatin1String kGeometry("finestra/posizione");
constexpr QLatin1String kParts("finestra/parti");
constexpr QLatin1String kScreen("finestra/schermata");
constexpr QLatin1String kDark("finestra/scuro");

}  // namespace

WindowState stateIn(const QSettings& settings) {
  return {.geometry = settings.value(kGeometry).toByteArray(),
          .parts = settings.value(kParts).toByteArray(),
          .screen = settings.value(kScreen).toString(),
          .dark = settings.value(kDark).toBool()};
}

void keep(const WindowState& state, QSettings& settings) {
  settings.setValue(kGeometry, state.geometry);
  settings.setValue(kParts, state.parts);
  settings.setValue(kScreen, state.screen);
  settings.setValue(kDark, state.dark);
}

}  // namespace qvn::ufficio
