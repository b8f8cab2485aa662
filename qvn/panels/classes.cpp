#include "qvn/panels/classes.h"

#include <algorithm>
#include <array>
#include <string>

#include "qvn/panels/accounting/ctlDATI_MOVIMENTI.h"
#include "qvn/panels/accounting/ctlINS_IVA.h"
#include "qvn/panels/accounting/ctlINS_MOVIMENTI.h"
#include "qvn/panels/accounting/ctlSTP_GIORNALE.h"
#include "qvn/panels/accounting/ctlSTP_MOVIMENTI.h"
#include "qvn/panels/commissions/ctlPROV_POLIZZE.h"
#include "qvn/panels/documents/ctlESTRATTI.h"
#include "qvn/panels/documents/ctlFIDO.h"
#include "qvn/panels/documents/ctlRICERCA.h"
#include "qvn/panels/documents/ctlRIC_SINISTRI.h"
#include "qvn/panels/documents/ctlSOSPESI.h"
#include "qvn/panels/master/ctlIVA.h"
#include "qvn/panels/master/ctlMOVIMENTI.h"
#include "qvn/panels/master/ctlRAMI.h"
#include "qvn/panels/master/ctlSTP_CONTABILE.h"
#include "qvn/panels/quotas/ctlQ_POLIZZE.h"
#include "qvn/panels/quotas/ctlQ_SINISTRI.h"
#include "qvn/shared/failure.h"

namespace qvn {

namespace {

template <class P>
constexpr PanelClass describe(std::string_view name) {
  return {.name = name,
          .make = [](const PanelSite& site) -> std::unique_ptr<Panel> { return std::make_unique<P>(site); },
          .members = &P::publicMembers};
}

constexpr std::array kClasses{
    describe<ctlDATI_MOVIMENTI>("ctlDATI_MOVIMENTI"),
    describe<ctlESTRATTI>("ctlESTRATTI"),
    describe<ctlFIDO>("ctlFIDO"),
    describe<ctlINS_IVA>("ctlINS_IVA"),
    describe<ctlINS_MOVIMENTI>("ctlINS_MOVIMENTI"),
    describe<ctlIVA>("ctlIVA"),
    describe<ctlMOVIMENTI>("ctlMOVIMENTI"),
    describe<ctlPROV_POLIZZE>("ctlPROV_POLIZZE"),
    describe<ctlQ_POLIZZE>("ctlQ_POLIZZE"),
    describe<ctlQ_SINISTRI>("ctlQ_SINISTRI"),
    describe<ctlRAMI>("ctlRAMI"),
    describe<ctlRICERCA>("ctlRICERCA"),
    describe<ctlRIC_SINISTRI>("ctlRIC_SINISTRI"),
    describe<ctlSOSPESI>("ctlSOSPESI"),
    describe<ctlSTP_CONTABILE>("ctlSTP_CONTABILE"),
    describe<ctlSTP_GIORNALE>("ctlSTP_GIORNALE"),
    describe<ctlSTP_MOVIMENTI>("ctlSTP_MOVIMENTI"),
};
static_assert(std::ranges::is_sorted(kClasses, {}, &PanelClass::name));

}  // namespace

std::span<const PanelClass> panelClasses() { return kClasses; }

const PanelClass& panelClass(std::string_view name) {
  const auto found = std::ranges::find(kClasses, name, &PanelClass::name);
  if (found == kClasses.end()) {
    throw Failure(FailureKind::NoSuchMember, std::string("there is no panel class \"").append(name).append("\""));
  }
  return *found;
}

}  // namespace qvn
