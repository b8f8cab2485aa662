#include "bench/lists/desk.h"

#include <array>
#include <utility>

#include "platforms/sqlite/driver.h"
#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/lookups/field_with_list.h"
#include "qvn/shared/Globale.h"
#include "qvn/toolkit/surface.h"

namespace qvn::bench {

namespace {

constexpr std::array<toolkit::WidgetLayout, 1> kFields{
    {{.name = "TxtCOD_CLI", .tabIndex = 0, .place = {0, 0, 900, 315}}}};
constexpr toolkit::PanelLayout kPanel{.name = "Desk", .width = 900, .height = 315, .widgets = kFields};

}  // namespace

Desk::Desk(const std::string& database) {
  platform_.drivers().add(sqlite::driver());
  Globale::install(platform_);
  Globale::Eventi()->ImpostaDB("sqlite:" + database);
  platform_.watch(this);
  panel_ = platform_.makeSurface(kPanel, *this, "desk");
  toolkit::TextBox& code = panel_->textBox("TxtCOD_CLI");
  code.KeyPress = [&code](std::int16_t& KeyAscii) {
    lookups::keyOrList(code, KeyAscii, QVN_Ricerche::ListaCLIENTI, Gest_SCHEDE::FiltroTesto, 8);
  };
  code.SetFocus();
}

Desk::~Desk() {
  Globale::uninstall();
  platform_.watch(nullptr);
}

void Desk::openList(AtShowing atShowing, std::vector<Act> acts) {
  panel_->textBox("TxtCOD_CLI").Text("");
  atShowing_ = std::move(atShowing);
  platform_.hands().layDown("Lista", std::move(acts));
  platform_.hands().type("?");
}

std::string Desk::chosen() const { return panel_->textBox("TxtCOD_CLI").Text(); }

void Desk::handlerFailed(toolkit::Surface& /*panel*/, toolkit::Widget& /*widget*/, std::string_view /*event*/,
                         const Failure& /*failure*/) noexcept {
  ++failures_;
}

void Desk::formShown(std::string_view /*form*/) {
  toolkit::Form& lista = platform_.forms().at(platform_.forms().count() - 1);
  atShowing_(lista.surface().listView("ListView1"));
}

}  // namespace qvn::bench
