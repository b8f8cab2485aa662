// The forms that stand loaded on a platform.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "qvn/toolkit/platform.h"

namespace qvn::test {

/// The names of the loaded forms, in load order.
inline std::vector<std::string> namesOfLoadedForms(const toolkit::Platform& platform) {
  const toolkit::Forms& forms = platform.forms();
  std::vector<std::string> names;
  names.reserve(static_cast<std::size_t>(forms.count()));
  for (std::int32_t i = 0; i < forms.count(); ++i) names.emplace_back(forms.at(i).Name());
  return names;
}

}  // namespace qvn::test
