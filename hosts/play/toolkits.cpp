#include "hosts/play/toolkits.h"

#include <algorithm>
#include <array>

#include "platforms/memory/platform.h"
#ifdef QVN_QT
#include "platforms/qt/platform.h"
#endif

namespace qvn::play {

namespace {

template <class Platform>
class On final : public Toolkit {
 public:
  toolkit::Platform& platform() override { return platform_; }
  Operator& hands() override { return platform_.hands(); }
  void watch(Watcher* watcher) override { platform_.watch(watcher); }
  void today(Date date) override { platform_.today(date); }

 private:
  Platform platform_;
};

struct Named {
  std::string_view name;
  std::unique_ptr<Toolkit> (*make)();
};

template <class Platform>
std::unique_ptr<Toolkit> make() {
  return std::make_unique<On<Platform>>();
}

constexpr std::array kToolkits{
    Named{.name = "memory", .make = make<memory::Platform>},
#ifdef QVN_QT
    Named{.name = "qt", .make = make<qt::OffscreenPlatform>},
#endif
};

}  // namespace

std::string toolkitNames() {
  std::string names;
  for (const Named& one : kToolkits) names.append(names.empty() ? "" : ", ").append(one.name);
  return names;
}

std::unique_ptr<Toolkit> makeToolkit(std::string_view name, std::optional<Date> today) {
  const auto* found = std::ranges::find(kToolkits, name, &Named::name);
  if (found == kToolkits.end()) return nullptr;
  std::unique_ptr<Toolkit> toolkit = found->make();
  if (today) toolkit->today(*today);
  return toolkit;
}

}  // namespace qvn::play
