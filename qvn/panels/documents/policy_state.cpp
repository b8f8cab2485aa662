#include "qvn/panels/documents/policy_state.h"

#include <cstdint>
#include <string>
#include <string_view>

#include "qvn/lookups/QVN_Ricerche.h"

namespace qvn::documents {

namespace {

constexpr std::int16_t kGuarantees = 4;

bool is(const Variant& letter, std::string_view expected) {
  return compare(letter, std::string(expected)) == std::partial_ordering::equivalent;
}

std::string_view endOfPolicy(const toolkit::Label& branch) {
  std::string code = branch.Caption();
  return QVN_Ricerche::CercaTIPO_SK(code) == kGuarantees ? "SVINCOLATA" : "DISDETTA";
}

}  // namespace

void showPolicyState(toolkit::Surface& panel, const Variant& letter) {
  const toolkit::Surface::Hold hold(panel);
  toolkit::Label& state = panel.label("LblSTATO");
  if (is(letter, "A")) {
    state.Caption("ANNULLATA");
  } else if (is(letter, "D")) {
    state.Caption(endOfPolicy(panel.label("LblCOD_GR")));
  } else {
    state.Caption("");
  }
}

}  // namespace qvn::documents
