#include "platforms/designer/panels.h"

#include <algorithm>
#include <array>

namespace qvn::designer {

namespace {

template <class P>
constexpr FormPanel describe() {
  return {.description = P::staticMetaObject, .make = [](QWidget* parent) -> PanelInForm* { return new P(parent); }};
}

constexpr std::array kPanels{
    describe<ctlDATI_MOVIMENTI>(), describe<ctlESTRATTI>(),   describe<ctlFIDO>(),          describe<ctlINS_IVA>(),
    describe<ctlINS_MOVIMENTI>(),  describe<ctlIVA>(),        describe<ctlMOVIMENTI>(),     describe<ctlPROV_POLIZZE>(),
    describe<ctlQ_POLIZZE>(),      describe<ctlQ_SINISTRI>(), describe<ctlRAMI>(),          describe<ctlRICERCA>(),
    describe<ctlRIC_SINISTRI>(),   describe<ctlSOSPESI>(),    describe<ctlSTP_CONTABILE>(), describe<ctlSTP_GIORNALE>(),
    describe<ctlSTP_MOVIMENTI>(),
};

}  // namespace

std::span<const FormPanel> formPanels() { return kPanels; }

PanelInForm* makeFormPanel(const QString& className, QWidget* parent) {
  const auto* const found = std::ranges::find_if(
      kPanels, [&](const FormPanel& panel) { return className == QLatin1String(panel.description.className()); });
  return found == kPanels.end() ? nullptr : found->make(parent);
}

}  // namespace qvn::designer
