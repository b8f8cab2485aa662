// A host without a screen: one panel, an operator who types into it, the values read back.
#include <iostream>

#include "platforms/memory/platform.h"
#include "qvn/panels/master/ctlIVA.h"
#include "qvn/shared/Globale.h"

namespace {

struct Screen final : qvn::toolkit::Container {
  bool changed = false;

  void PropertyChanged(qvn::toolkit::Surface&, std::string_view) override { changed = true; }
  void handlerFailed(qvn::toolkit::Surface&, qvn::toolkit::Widget&, std::string_view,
                     const qvn::Failure& failure) noexcept override {
    std::cerr << failure.what() << '\n';
  }
};

}  // namespace

int main() {
  qvn::memory::Platform platform;
  qvn::Globale::install(platform);
  Screen screen;

  qvn::ctlIVA panel({.container = screen, .name = "iva"});
  panel.Attiva();
  platform.hands().type("22{Enter}ordinaria{Enter}250");

  std::cout << int{panel.Codice()} << ' ' << panel.DESCRIZIONE() << ' ' << int{panel.IVA()} << "%"
            << (screen.changed ? ", to be stored\n" : "\n");
}
