// What makes each of the office's screens.
#pragma once

#include <memory>

#include "hosts/ufficio/screen.h"

namespace qvn::ufficio::screens {

std::unique_ptr<Screen> vatCodes(const ScreenSite& site);
std::unique_ptr<Screen> commissions(const ScreenSite& site);
std::unique_ptr<Screen> vatLines(const ScreenSite& site);
std::unique_ptr<Screen> policyQuotas(const ScreenSite& site);
std::unique_ptr<Screen> claimQuotas(const ScreenSite& site);
std::unique_ptr<Screen> titles(const ScreenSite& site);
std::unique_ptr<Screen> statements(const ScreenSite& site);
std::unique_ptr<Screen> creditLines(const ScreenSite& site);
std::unique_ptr<Screen> policySearch(const ScreenSite& site);
std::unique_ptr<Screen> claimSearch(const ScreenSite& site);
std::unique_ptr<Screen> journalEntry(const ScreenSite& site);
std::unique_ptr<Screen> movementTypes(const ScreenSite& site);
std::unique_ptr<Screen> movementTypeLines(const ScreenSite& site);
std::unique_ptr<Screen> accountingPrints(const ScreenSite& site);
std::unique_ptr<Screen> branches(const ScreenSite& site);
std::unique_ptr<Screen> journalPrint(const ScreenSite& site);

}  // namespace qvn::ufficio::screens
