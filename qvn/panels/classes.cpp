#include "qvn/panels/classes.h"

#include <algorithm>
#include <array>
#include <string>

#include "qvn/panels/accounting/ctlINS_IVA.h"
#include "qvn/panels/commissions/ctlPROV_POLIZZE.h"
#include "qvn/panels/master/ctlIVA.h"
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
    describe<ctlINS_IVA>("ctlINS_IVA"),
    describe<ctlIVA>("ctlIVA"),
    describe<ctlPROV_POLIZZE>("ctlPROV_POLIZZE"),
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
